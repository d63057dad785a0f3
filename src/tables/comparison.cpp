#include "tables/comparison.h"

#include <algorithm>
#include <array>
#include <utility>

#include "reports/verdict_text.h"

namespace orby {
namespace {

// ---- what is better ------------------------------------------------------------------------------------------------

enum class Better : std::uint8_t {
  Greater,
  Less,
  LessOfAll,  // if all designs have a number; one without a number is better still
  Result,
};

// Which direction is better, by the end of the key of a column. Rows without an entry have no best.
struct Direction {
  ColumnGroup Group;
  std::string_view KeyEnd;
  Better Which;
};
constexpr auto Directions =
    std::to_array<Direction>({{ColumnGroup::Report, "-stability-factor", Better::Greater},
                              {ColumnGroup::Report, "-capacity", Better::Greater},
                              {ColumnGroup::Report, "-actual-psup-for-this-design", Better::Greater},
                              {ColumnGroup::Live, "-stability-factor", Better::Greater},
                              {ColumnGroup::Live, "-capacity", Better::Greater},
                              {ColumnGroup::Live, "-actual-psup", Better::Greater},
                              {ColumnGroup::Cost, "", Better::Less},
                              {ColumnGroup::Verdicts, "verdicts-short", Better::Less},
                              {ColumnGroup::Verdicts, "verdicts-not-computed", Better::Less},
                              {ColumnGroup::Verdicts, "verdicts-to-check", Better::Less},
                              {ColumnGroup::Verdicts, "-short-by", Better::LessOfAll},
                              {ColumnGroup::Verdicts, "-over-by", Better::LessOfAll},
                              {ColumnGroup::Verdicts, "", Better::Result}});

std::optional<Better> DirectionOf(const Column& column) {
  const auto* found = std::ranges::find_if(Directions, [&](const Direction& entry) {
    return entry.Group == column.Group && column.Key.ends_with(entry.KeyEnd);
  });
  return found == Directions.end() ? std::nullopt : std::optional(found->Which);
}

// Returns how good a cell is: the greater, the better. Empty if it cannot be compared.
std::optional<double> Goodness(const ComparedCell& cell, Better which) {
  if (which == Better::Result) {
    return cell.Result ? std::optional(-static_cast<double>(*cell.Result)) : std::nullopt;
  }
  if (!cell.Number) return std::nullopt;
  const auto value = static_cast<double>(cell.Number->Value);
  return which == Better::Greater ? value : -value;
}

void MarkBest(ComparedRow& row, Better which) {
  const auto hasNumber = [](const ComparedCell& cell) { return cell.Number.has_value(); };
  if (which == Better::LessOfAll && !std::ranges::all_of(row.Cells, hasNumber)) return;
  const ComparedCell* best = nullptr;
  bool differs = false;
  for (const ComparedCell& cell : row.Cells) {
    const auto goodness = Goodness(cell, which);
    if (!goodness) continue;
    differs = differs || (best != nullptr && cell.Text != best->Text);
    if (best == nullptr || *goodness > *Goodness(*best, which)) best = &cell;
  }
  if (!differs) return;
  const std::string text = best->Text;
  for (ComparedCell& cell : row.Cells) cell.IsBest = Goodness(cell, which) && cell.Text == text;
}

// ---- rows ----------------------------------------------------------------------------------------------------------

constexpr auto Results = std::to_array<Holding>({Holding::Holds, Holding::Check, Holding::Uncomputed, Holding::Short});

ComparedCell CellFor(const Column& column, const TableRow& row, UnitSystem units) {
  Cell cell = CellOf(column, row, units);
  ComparedCell made{.Text = ShownText(cell), .Number = {}, .Result = {}};
  if (column.Group == ColumnGroup::Verdicts && cell.Kind == CellKind::Text) {
    const auto* result = std::ranges::find(Results, cell.Text, HoldingWord);
    if (result != Results.end()) made.Result = *result;
  }
  cell.Text = {};
  if (cell.IsNumber()) made.Number = cell;
  return made;
}

bool IsEmptyRow(const ComparedRow& row) {
  return std::ranges::all_of(row.Cells, [](const ComparedCell& cell) { return cell.Text.empty(); });
}

struct Part {
  std::string_view Title;
  ColumnGroup Group;
  std::string_view Prefix;  // of the heads, which the title of the section says
};
constexpr auto Figures = std::to_array<Part>({{"Figures of the report", ColumnGroup::Report, "Report: "},
                                              {"Figures of the parameters dialog", ColumnGroup::Live, "Dialog: "},
                                              {"Cost of bolting", ColumnGroup::Cost, "Cost: "},
                                              {"Judgements", ColumnGroup::Verdicts, "Judgement: "}});

// A figure of the dialog and the same one of the report, by the ends of their keys.
struct Twins {
  std::string_view Live;
  std::string_view Report;
};
constexpr auto TwinKeys =
    std::to_array<Twins>({{"suggested-sum-of-diagonals", "suggested-sum-of-diagonals"},
                          {"suggested-bolt-length", "suggested-minimum-roof-bolt-length"},
                          {"suggested-psup", "suggested-psup-for-this-location"},
                          {"actual-psup", "actual-psup-for-this-design"},
                          {"rock-load", "rock-load"},
                          {"cable-bolts-capacity", "cable-bolt-system-support-capacity"},
                          {"cable-bolts-stability-factor", "cable-bolt-system-stability-factor"},
                          {"trusses-capacity", "truss-system-support-capacity"},
                          {"trusses-stability-factor", "truss-stability-factor"},
                          {"roof-bolts-capacity", "roof-bolt-support-system-capacity"},
                          {"roof-bolts-stability-factor", "roof-bolt-support-system-stability-factor"},
                          {"standing-supports-capacity", "standing-support-system-capacity"},
                          {"standing-supports-stability-factor", "standing-support-system-stability-factor"}});

// Returns the key of the report's figure of the same name. Empty if there is none.
std::string ReportKeyOf(std::string_view live) {
  constexpr std::string_view Start = "live-";
  for (const Twins& twins : TwinKeys) {
    if (!live.ends_with(twins.Live)) continue;
    const std::string_view place = live.substr(Start.size(), live.size() - Start.size() - twins.Live.size());
    if (place != "primary-" && place != "entry-" && place != "intersection-") continue;
    return std::string("report-").append(place).append(twins.Report);
  }
  return {};
}

// Other columns of the project are inputs.
bool IsOfSectionDesigns(const Column& column) {
  return std::ranges::find(IdentityKeys, column.Key) != IdentityKeys.end() || column.Key == "why-there-is-no-report";
}

class Comparing {
 public:
  Comparing(const std::vector<ComparedDesign>& designs, UnitSystem units) : designs_(designs) { made_.Units = units; }

  DesignComparison Make() {
    TakeNames();
    AddDesigns();
    AddInputs();
    for (const Part& part : Figures) AddFigures(part);
    return std::move(made_);
  }

 private:
  // A name that another design has already gets a number.
  void TakeNames() {
    for (const ComparedDesign& design : designs_) {
      std::string name = design.Name;
      for (int number = 2; std::ranges::find(made_.Names, name) != made_.Names.end(); ++number) {
        name = design.Name + " (" + std::to_string(number) + ")";
      }
      made_.Names.push_back(std::move(name));
    }
  }

  ComparedRow RowFor(const Column& column, std::string_view prefix) const {
    ComparedRow row{.Key = column.Key, .Head = HeadText(column, made_.Units), .Cells = {}};
    if (row.Head.starts_with(prefix)) row.Head.erase(0, prefix.size());
    row.Cells.reserve(designs_.size());
    for (const ComparedDesign& design : designs_) row.Cells.push_back(CellFor(column, design.Row, made_.Units));
    return row;
  }

  void AddSection(ComparedSection section) {
    if (!section.Rows.empty()) made_.Sections.push_back(std::move(section));
  }

  void AddDesigns() {
    ComparedSection section{.Title = "Designs", .Rows = {}};
    for (const Column& column : AllColumns()) {
      if (!IsOfSectionDesigns(column)) continue;
      ComparedRow row = RowFor(column, {});
      if (!IsEmptyRow(row)) section.Rows.push_back(std::move(row));
    }
    AddSection(std::move(section));
  }

  // Designs that cannot be read have no inputs to differ in.
  bool Differs(const ComparedRow& row) const {
    const std::string* first = nullptr;
    for (std::size_t i = 0; i < designs_.size(); ++i) {
      if (!designs_[i].Row.IsRead()) continue;
      if (first != nullptr && row.Cells[i].Text != *first) return true;
      first = &row.Cells[i].Text;
    }
    return false;
  }

  void AddInputs() {
    ComparedSection section{.Title = "Inputs that differ", .Rows = {}};
    for (const Column& column : AllColumns()) {
      const bool isInput = column.Group == ColumnGroup::Inputs || column.Group == ColumnGroup::Project;
      if (!isInput || IsOfSectionDesigns(column)) continue;
      ComparedRow row = RowFor(column, {});
      if (Differs(row)) section.Rows.push_back(std::move(row));
    }
    AddSection(std::move(section));
  }

  void AddFigures(const Part& part) {
    ComparedSection section{.Title = part.Title, .Rows = {}};
    for (const Column& column : AllColumns()) {
      if (column.Group != part.Group) continue;
      ComparedRow row = RowFor(column, part.Prefix);
      if (IsEmptyRow(row) || (part.Group == ColumnGroup::Live && IsInReport(row))) continue;
      if (const auto which = DirectionOf(column)) MarkBest(row, *which);
      section.Rows.push_back(std::move(row));
    }
    AddSection(std::move(section));
  }

  bool IsInReport(const ComparedRow& live) const {
    const std::string key = ReportKeyOf(live.Key);
    for (const ComparedSection& section : made_.Sections) {
      for (const ComparedRow& row : section.Rows) {
        if (row.Key == key)
          return std::ranges::equal(row.Cells, live.Cells, {}, &ComparedCell::Text, &ComparedCell::Text);
      }
    }
    return false;
  }

  const std::vector<ComparedDesign>& designs_;
  DesignComparison made_;
};

}  // namespace

DesignComparison CompareDesigns(const std::vector<ComparedDesign>& designs, UnitSystem units) {
  return Comparing(designs, units).Make();
}

std::string MarkedText(const ComparedCell& cell) {
  if (!cell.IsBest) return cell.Text;
  return std::string(cell.Text).append(" ").append(BestWord);
}

}  // namespace orby
