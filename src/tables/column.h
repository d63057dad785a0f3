// The columns of a table of designs.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tables/cell.h"
#include "tables/table_row.h"

namespace orby {

enum class ColumnGroup : std::uint8_t { Project, Inputs, Report, Live, Cost, Verdicts };

struct Column {
  std::string Key;   // "entry-rock-load-height"
  std::string Head;  // without its unit: "Entries: Rock Load Height"
  CellUnit Unit;
  ColumnGroup Group{};
  std::function<Cell(const TableRow& row)> Get;  // in the units of the design; requires a row that is read
};

// Returns all columns: project, inputs, figures of the report, figures of the parameters dialog, cost, judgements.
const std::vector<Column>& AllColumns();

using Columns = std::vector<const Column*>;

// Returns the columns of a list such as "overview,depth-of-cover": keys of columns and names of groups. Returns nothing
// if one of them does not exist, and stores it in `unknown`.
std::optional<Columns> ChosenColumns(std::string_view list, std::string& unknown);

// The names that stand for several columns in a list.
inline constexpr std::string_view GroupNames = "all, overview, project, inputs, report, live, cost, verdicts";

// Returns the head with the unit: "Entries: Rock Load Height (ft)".
std::string HeadText(const Column& column, UnitSystem units);

// Returns the cell of a row in a unit system. The cells of a row without a design are empty except for file, title and
// reason.
Cell CellOf(const Column& column, const TableRow& row, UnitSystem units);

}  // namespace orby
