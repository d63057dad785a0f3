#include "dialogs/least_changes_page.h"

#include <utility>

#include "dialogs/study_texts.h"
#include "reports/verdict_text.h"

namespace orby {
namespace {

constexpr int DecisionColumn = 3;
constexpr int ChangeHeaderRows = 1;

std::string ObstacleText(const LeverChange& change, UnitSystem units) {
  return change.Obstacle ? VerdictLine(*change.Obstacle, units) : "No value lets all judgements hold together";
}

}  // namespace

LeastChangesPage::LeastChangesPage(Program& program, Grid& grid) : program_(program), grid_(grid) {
  grid_.SetStretchedColumn(DecisionColumn);
}

void LeastChangesPage::Clear() {
  rows_.clear();
  after_.clear();
  AddRow({"Change", "From", "To", "What decides then", "Cost"}, std::nullopt);
  grid_.SetRows(rows_, ChangeHeaderRows);
}

void LeastChangesPage::AddRow(Row texts, std::optional<Design> after) {
  rows_.push_back(std::move(texts));
  after_.push_back(std::move(after));
}

void LeastChangesPage::Show(const Design& design, const StudiedSupport& support) {
  rows_.clear();
  after_.clear();
  AddRow({"Change", "From", "To", "What decides then", "Cost" + CostUnit(support, design.Units)}, std::nullopt);
  if (!Assess(design, program_.session.catalogs, support).Holds()) {
    std::vector<Row> helpless;
    for (const Lever lever : LeversOf(design, support)) {
      const LeverChange change = ChangeOf(design, support, lever);
      if (change.Outcome == LeverOutcome::Changed) AddRow(TextsOf(change, design, support, lever), change.After);
      if (change.Outcome == LeverOutcome::NoHelp) helpless.push_back(TextsOf(change, design, support, lever));
    }
    for (Row& row : helpless) AddRow(std::move(row), std::nullopt);
  }
  grid_.SetRows(rows_, ChangeHeaderRows);
}

LeverChange LeastChangesPage::ChangeOf(const Design& design, const StudiedSupport& support, Lever lever) const {
  return LeastChange(design, program_.session.catalogs, program_.session.prices[PlaceOf(design.Units)], support, lever);
}

LeastChangesPage::Row LeastChangesPage::TextsOf(const LeverChange& change, const Design& design,
                                                const StudiedSupport& support, Lever lever) const {
  const Catalogs& catalogs = program_.session.catalogs;
  const bool helps = change.Outcome == LeverOutcome::Changed;
  return {std::string(LeverText(support, lever)), LeverValueText(design, catalogs, support, lever),
          helps ? LeverValueText(change.After, catalogs, support, lever) : "none helps",
          helps ? DecidingText(change.Judged, design.Units) : ObstacleText(change, design.Units),
          helps ? CostText(change.Cost) : std::string()};
}

const Design* LeastChangesPage::Selected() const {
  const auto row = static_cast<std::size_t>(grid_.Row());
  return row < after_.size() && after_[row] ? &*after_[row] : nullptr;
}

}  // namespace orby
