#include "dialogs/patterns_page.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/graph.h"
#include "dialogs/study_texts.h"

namespace orby {
namespace {

constexpr int PatternHeaderRows = 1;
constexpr double Percent = 100;

struct LimitRow {
  Lever What;
  LimitControls PatternControls::*Controls;
  LeverRange PatternLimits::*Range;
};

constexpr std::array LimitRows{
    LimitRow{Lever::Length, &PatternControls::Length, &PatternLimits::Length},
    LimitRow{Lever::Number, &PatternControls::Number, &PatternLimits::Number},
    LimitRow{Lever::Spacing, &PatternControls::Spacing, &PatternLimits::Spacing},
};

// Returns the number that the text of a limit stands for, so that the limit itself is accepted.
double AsTyped(Single limit) { return TextValue(NumberText(limit)); }

// A number that no Single can hold is outside all limits.
Single LimitOf(const TextBox& box) { return static_cast<Single>(FittingNumber(box.Text()).value_or(-1)); }

int PercentDone(const PatternSearch& search) {
  return search.Total() == 0 ? ProgressBar::Whole
                             : static_cast<int>(search.Done() * ProgressBar::Whole / search.Total());
}

std::string Counted(std::size_t count) { return NumberText(static_cast<double>(count)); }

std::string FoundText(const FoundPatterns& found, const PatternSearch& search) {
  std::string text = Counted(found.HoldingPriced + found.HoldingNotPriced) + " of " + Counted(search.Done()) +
                     " patterns hold, " + Counted(found.HoldingPriced) + " of them with a price.";
  if (search.Done() < search.Total()) text += " The search was stopped before its end.";
  const std::size_t listed = found.Ranked.size() + found.NotPriced.size();
  if (listed < found.HoldingPriced + found.HoldingNotPriced) text += " " + Counted(listed) + " are listed.";
  return text;
}

ChartSeries SeriesOf(std::string legend, Integer color, const std::vector<const FoundPattern*>& patterns) {
  ChartSeries series;
  series.legend = std::move(legend);
  series.colour = CurveColors(color);
  for (const FoundPattern* pattern : patterns) {
    series.x.push_back(pattern->Margin * Percent);
    series.y.push_back(*pattern->Cost.Dollars);
  }
  return series;
}

}  // namespace

PatternsPage::PatternsPage(Program& program, PatternControls& controls) : program_(program), controls_(controls) {
  controls_.grdPatterns.Change = [this] { ShowSelected(); };
  controls_.grdPatterns.Click = controls_.grdPatterns.Change;
  controls_.cmdSearch.Click = [this] { Search(); };
  controls_.cmdStop.Click = [this] { End(); };
  controls_.cmdStop.SetEnabled(false);
}

bool PatternsPage::Has(Lever lever) const {
  return subject_ && std::ranges::count(LeversOf(subject_->Studied, subject_->Support), lever) > 0;
}

FieldRange PatternsPage::RangeOfLimit(Lever lever) const {
  const PatternLimits widest = WidestLimits(subject_->Studied.Units, subject_->Support);
  const auto row = std::ranges::find(LimitRows, lever, &LimitRow::What);
  const LeverRange& range = widest.*row->Range;
  return {.limits = Between(AsTyped(range.From), AsTyped(range.To))};
}

void PatternsPage::Start(const Design& design, const StudiedSupport& support) {
  search_.reset();
  subject_ = {design, support};
  ShowLimits(UsualLimits(design, support));
  controls_.cmdSearch.SetEnabled(true);
  Clear();
}

void PatternsPage::Disable() {
  search_.reset();
  subject_.reset();
  ShowLimits({});
  controls_.cmdSearch.SetEnabled(false);
  Clear();
}

void PatternsPage::ShowLimits(const PatternLimits& limits) {
  for (const LimitRow& row : LimitRows) {
    LimitControls& controls = controls_.*row.Controls;
    const LeverRange& range = limits.*row.Range;
    controls.From.SetText(Has(row.What) ? NumberText(range.From) : std::string());
    controls.To.SetText(Has(row.What) ? NumberText(range.To) : std::string());
    for (LabelledBox* box : controls.Both()) {
      box->SetEnabled(Has(row.What));
      box->Range = {};
      if (Has(row.What)) box->Range = [this, lever = row.What] { return RangeOfLimit(lever); };
    }
  }
}

PatternLimits PatternsPage::Limits() const {
  PatternLimits limits = UsualLimits(subject_->Studied, subject_->Support);
  for (const LimitRow& row : LimitRows) {
    const LimitControls& controls = controls_.*row.Controls;
    if (Has(row.What)) limits.*row.Range = {LimitOf(controls.From), LimitOf(controls.To)};
  }
  return limits;
}

void PatternsPage::Clear() {
  search_.reset();
  listed_.clear();
  controls_.cmdStop.SetEnabled(false);
  controls_.prgSearch.SetValue(0);
  controls_.lblFound.SetCaption(subject_ ? "Press Search to find the patterns that hold." : "");
  if (subject_) searched_ = Limits();
  ShowRows({Headers()});
  ShowChart({});
}

void PatternsPage::FollowLimits() {
  if (subject_ && Limits() != searched_) Clear();
}

void PatternsPage::ReportFault(Lever lever) {
  const auto row = std::ranges::find(LimitRows, lever, &LimitRow::What);
  LimitControls& controls = controls_.*row->Controls;
  const UnitSuffix suffix = SuffixOf(lever);
  const std::string unit(suffix == UnitSuffix::None ? "" : UnitName(suffix, subject_->Studied.Units));
  std::string text = "Invalid limits: " + std::string(LeverText(subject_->Support, lever)) + ". Valid range " +
                     LimitsText(RangeOfLimit(lever).limits, unit) + ", the least value first";
  const bool isStocked = lever == Lever::Length && subject_->Support.What == PricedSupport::Bolt;
  if (isStocked) text += ", with a stocked length between them";
  ShowMessage(program_, text, BoxIcon::Critical, program_.windows.titles.RangeErrorTitle);
  controls.Dialog.RequestFocus(controls.From);
}

void PatternsPage::Search() {
  if (!subject_) return;
  const PatternLimits limits = Limits();
  if (const auto fault = FaultOf(limits, subject_->Studied.Units, Prices(), subject_->Support)) {
    return ReportFault(*fault);
  }
  Clear();
  searched_ = limits;
  search_ = std::make_shared<PatternSearch>(subject_->Studied, program_.session.catalogs, Prices(), subject_->Support,
                                            limits, MostListed);
  controls_.cmdSearch.SetEnabled(false);
  controls_.cmdStop.SetEnabled(true);
  controls_.lblFound.SetCaption("Searching...");
  SearchOn();
}

// A short search ends at once.
void PatternsPage::SearchOn() {
  if (search_->Step(PieceSize)) return End();
  controls_.prgSearch.SetValue(PercentDone(*search_));
  program_.platform.clock.CallLater(0, [this, waiting = std::weak_ptr(search_)] {
    if (waiting.lock() != nullptr) SearchOn();
  });
}

void PatternsPage::End() {
  if (search_ == nullptr) return;
  const auto ended = std::exchange(search_, nullptr);
  controls_.cmdSearch.SetEnabled(true);
  controls_.cmdStop.SetEnabled(false);
  controls_.prgSearch.SetValue(PercentDone(*ended));
  const FoundPatterns found = ended->Found();
  controls_.lblFound.SetCaption(FoundText(found, *ended));
  ShowFound(found);
  if (Ended) Ended();
}

std::vector<std::string> PatternsPage::Headers() const {
  if (!subject_) return {"Cost", "Margin (%)", ""};
  const UnitSystem units = subject_->Studied.Units;
  std::vector<std::string> headers{"Cost" + CostUnit(subject_->Support, units), "Margin (%)",
                                   LeverHead(subject_->Support, Lever::Item, units)};
  for (const LimitRow& row : LimitRows) {
    if (Has(row.What)) headers.push_back(LeverHead(subject_->Support, row.What, units));
  }
  headers.emplace_back("Front");
  return headers;
}

std::vector<std::string> PatternsPage::RowOf(const FoundPattern& found) const {
  const Pattern& pattern = found.Values;
  std::vector<std::string> row{
      CostText(found.Cost), FormatNumber(found.Margin * Percent, "0.0"),
      ItemText(program_.session.catalogs, subject_->Studied.Units, subject_->Support, pattern.Item)};
  const std::array<Single, LimitRows.size()> numbers{pattern.Length, pattern.Number, pattern.Spacing};
  for (std::size_t i = 0; i < LimitRows.size(); ++i) {
    if (Has(LimitRows[i].What)) row.push_back(NumberText(numbers[i]));
  }
  row.emplace_back(found.IsOnFront ? "front" : "");
  return row;
}

void PatternsPage::ShowFound(const FoundPatterns& found) {
  listed_ = found.Ranked;
  listed_.insert(listed_.end(), found.NotPriced.begin(), found.NotPriced.end());
  std::vector<std::vector<std::string>> rows{Headers()};
  for (const FoundPattern& pattern : listed_) rows.push_back(RowOf(pattern));
  ShowRows(std::move(rows));
  ShowChart(found);
  ShowSelected();
}

// The last column fills the remaining width, so that no name is cut.
void PatternsPage::ShowRows(std::vector<std::vector<std::string>> rows) {
  controls_.grdPatterns.SetStretchedColumn(static_cast<int>(rows.front().size()) - 1);
  controls_.grdPatterns.SetRows(std::move(rows), PatternHeaderRows);
}

void PatternsPage::ShowChart(const FoundPatterns& found) {
  Chart& chart = controls_.chtPatterns;
  chart.SetReadPoint({});
  // A chart counts its points by their places, from the left.
  std::vector<std::size_t> byMargin(found.Ranked.size());
  std::iota(byMargin.begin(), byMargin.end(), std::size_t{0});
  std::ranges::stable_sort(byMargin, {}, [&](std::size_t row) { return found.Ranked[row].Margin; });
  pointOfRow_.assign(byMargin.size(), 0);
  std::vector<const FoundPattern*> all;
  std::vector<const FoundPattern*> front;
  for (const std::size_t row : byMargin) {
    const FoundPattern& pattern = found.Ranked[row];
    pointOfRow_[row] = static_cast<int>(all.size());
    all.push_back(&pattern);
    if (pattern.IsOnFront) front.push_back(&pattern);
  }
  ChartSeries points = SeriesOf("Patterns that hold", 1, all);
  points.hasLine = false;
  points.symbolSize = 4;
  ChartSeries best = SeriesOf("Front", 2, front);
  best.symbolSize = 8;
  best.width = 4;
  chart.SetAxisX({"Margin (%)", true});
  chart.SetAxisY({Headers().front(), true});
  chart.SetHeading(all.empty() ? "" : "The line joins the front");
  if (all.empty()) {
    chart.SetSeries({});
  } else {
    chart.SetSeries({std::move(points), std::move(best)});
  }
  chart.SetOwn(OwnPoint());
}

// The design as it is, if it holds and has a cost.
std::optional<ChartPoint> PatternsPage::OwnPoint() const {
  if (!subject_) return std::nullopt;
  const Catalogs& catalogs = program_.session.catalogs;
  const Assessment present = Assess(subject_->Studied, catalogs, subject_->Support);
  const PatternCost cost = CostOf(subject_->Studied, catalogs, Prices(), subject_->Support);
  if (!present.Holds() || !cost.Dollars) return std::nullopt;
  return ChartPoint{present.Margin() * Percent, *cost.Dollars, "The design"};
}

void PatternsPage::ShowSelected() {
  const int row = controls_.grdPatterns.Row() - PatternHeaderRows;
  const bool isInChart = row >= 0 && static_cast<std::size_t>(row) < pointOfRow_.size();
  std::optional<ChartPlace> place;
  if (isInChart) place = {0, pointOfRow_[static_cast<std::size_t>(row)]};
  controls_.chtPatterns.SetReadPoint(place);
}

std::optional<Design> PatternsPage::Selected() const {
  const auto row = static_cast<std::size_t>(controls_.grdPatterns.Row() - PatternHeaderRows);
  if (!subject_ || controls_.grdPatterns.Row() < PatternHeaderRows || row >= listed_.size()) return std::nullopt;
  Design design = subject_->Studied;
  SetPattern(design, program_.session.catalogs, subject_->Support, listed_[row].Values);
  return design;
}

}  // namespace orby
