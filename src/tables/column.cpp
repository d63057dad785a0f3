#include "tables/column.h"

#include <algorithm>
#include <array>
#include <map>

#include "tables/column_list.h"

namespace orby {
namespace {

void AddProjectColumns(std::vector<Column>& columns) {
  ColumnList list(columns, ColumnGroup::Project);
  list.Add("File", {}, [](const TableRow& row) { return TextCell(row.File); });
  list.Add("Title", {}, [](const TableRow& row) { return TextCell(row.Title); });
  list.Add("Reason", {}, [](const TableRow& row) { return TextCell(row.Reason); });
  list.Add("Units", {}, [](const TableRow& row) {
    if (!row.IsRead()) return Cell{};
    return TextCell(row.Shown.Units == Metric ? "Metric" : "English");
  });
  list.Add("Bolt grades", {}, [](const TableRow& row) {
    if (!row.IsRead()) return Cell{};
    return TextCell(row.Shown.Basis == StrengthBasis::Yield ? "yield strengths" : "ultimate strengths");
  });
  list.Add("Why there is no report", {}, [](const TableRow& row) {
    if (!row.IsRead() || row.ReportError == 0) return Cell{};
    return TextCell(ErrorDescription(row.ReportError));
  });
}

std::vector<Column> MadeColumns() {
  std::vector<Column> columns;
  AddProjectColumns(columns);
  AddInputColumns(columns);
  AddReportColumns(columns);
  AddLiveColumns(columns);
  AddCostColumns(columns);
  AddVerdictColumns(columns);
  return columns;
}

// What fits a terminal.
constexpr std::array<std::string_view, 13> Overview{"file",
                                                    "units",
                                                    "cmrr",
                                                    "depth-of-cover",
                                                    "entry-width",
                                                    "primary-roof-bolt-length",
                                                    "live-primary-suggested-psup",
                                                    "live-primary-actual-psup",
                                                    "verdicts-short",
                                                    "verdicts-not-computed",
                                                    "verdicts-to-check",
                                                    "verdicts-holding",
                                                    "reason"};

constexpr auto Groups = std::to_array<std::pair<std::string_view, ColumnGroup>>({{"project", ColumnGroup::Project},
                                                                                 {"inputs", ColumnGroup::Inputs},
                                                                                 {"report", ColumnGroup::Report},
                                                                                 {"live", ColumnGroup::Live},
                                                                                 {"cost", ColumnGroup::Cost},
                                                                                 {"verdicts", ColumnGroup::Verdicts}});

const Column* ColumnOf(std::string_view key) {
  static const auto byKey = [] {
    std::map<std::string_view, const Column*> found;
    for (const Column& column : AllColumns()) found.emplace(column.Key, &column);
    return found;
  }();
  const auto found = byKey.find(key);
  return found == byKey.end() ? nullptr : found->second;
}

// Returns the columns of one word of a list. Empty if there are none.
Columns ColumnsOf(std::string_view word) {
  Columns chosen;
  if (word == "overview") {
    for (const std::string_view key : Overview) chosen.push_back(ColumnOf(key));
    return chosen;
  }
  if (const Column* column = ColumnOf(word)) return {column};
  const auto* group = std::ranges::find(Groups, word, &decltype(Groups)::value_type::first);
  if (group == Groups.end() && word != "all") return {};
  for (const Column& column : AllColumns()) {
    if (word == "all" || column.Group == group->second) chosen.push_back(&column);
  }
  return chosen;
}

}  // namespace

std::string KeyOf(std::string_view label) {
  std::string key;
  while (!label.empty()) {
    if (label.front() == '(') {
      const std::size_t end = std::min(label.find(')'), label.size());
      const bool isUnit = label.substr(0, end).find_first_of("/$") != std::string_view::npos;
      label.remove_prefix(isUnit ? end : 1);
      continue;
    }
    const char c = label.front();
    label.remove_prefix(1);
    if (c >= 'A' && c <= 'Z') {
      key += static_cast<char>(c - 'A' + 'a');
    } else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) {
      key += c;
    } else if (!key.empty() && key.back() != '-') {
      key += '-';
    }
  }
  if (key.ends_with('-')) key.pop_back();
  return key;
}

const std::vector<Column>& AllColumns() {
  static const std::vector<Column> columns = MadeColumns();
  return columns;
}

std::optional<Columns> ChosenColumns(std::string_view list, std::string& unknown) {
  Columns chosen;
  while (true) {
    const std::size_t comma = std::min(list.find(','), list.size());
    const Columns more = ColumnsOf(list.substr(0, comma));
    if (more.empty()) {
      unknown = list.substr(0, comma);
      return std::nullopt;
    }
    chosen.insert(chosen.end(), more.begin(), more.end());
    if (comma == list.size()) return chosen;
    list.remove_prefix(comma + 1);
  }
}

std::string HeadText(const Column& column, UnitSystem units) {
  const std::string unit = UnitText(column.Unit, units);
  return unit.empty() ? column.Head : column.Head + " (" + unit + ")";
}

Cell CellOf(const Column& column, const TableRow& row, UnitSystem units) {
  if (!row.IsRead() && column.Group != ColumnGroup::Project) return {};
  if (!row.IsRead() || row.Shown.Units == units) return column.Get(row);
  return Converted(column.Get(row), column.Unit, row.Shown.Units, units);
}

}  // namespace orby
