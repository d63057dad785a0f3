// A table of designs as CSV.
#include <algorithm>
#include <atomic>

#include "base/all_cores.h"
#include "base/csv_text.h"
#include "base/text.h"
#include "tables/design_table.h"

namespace orby {
namespace {

// A number has no characters that need quotes.
void AppendCell(std::string& csv, const Cell& cell) {
  if (cell.IsNumber() && cell.Text.empty()) {
    csv += ShownText(cell);
  } else if (!cell.Text.empty()) {
    AppendCsvField(csv, cell.Text);
  }
}

// Appends a line with a field for each column.
template <class AppendColumn>
void AppendRecord(std::string& csv, const Columns& columns, const AppendColumn& appendColumn) {
  for (const Column* column : columns) {
    appendColumn(*column);
    csv += ',';
  }
  if (!columns.empty()) csv.pop_back();
  csv += LineEnd;
}

void AppendRow(std::string& csv, const Columns& columns, const TableRow& row, UnitSystem units) {
  AppendRecord(csv, columns, [&](const Column& column) { AppendCell(csv, CellOf(column, row, units)); });
}

// Returns the head, and the lines of `count` rows. `append` appends a row by its number to a text.
template <class Append>
std::string WithHead(const Columns& columns, UnitSystem units, std::size_t count, const Append& append) {
  constexpr std::size_t PieceSize = 128;
  std::string csv;
  AppendRecord(csv, columns, [&](const Column& column) { AppendCsvField(csv, HeadText(column, units)); });
  std::vector<std::string> pieces((count + PieceSize - 1) / PieceSize);
  InPieces(count, PieceSize, [&](std::size_t first, std::size_t last) {
    for (std::size_t i = first; i < last; ++i) append(pieces[first / PieceSize], i);
  });
  for (const std::string& piece : pieces) csv += piece;
  return csv;
}

UnitSystem UnitsOfFirst(const RowMaker& maker, FileSystem& files, const std::vector<FoundProject>& projects) {
  for (const FoundProject& project : projects) {
    const TableRow row = ReadRow(maker, files, project);
    if (row.IsRead()) return row.Shown.Units;
  }
  return English;
}

}  // namespace

std::string TableAsCsv(const DesignTable& table) {
  return WithHead(table.Shown, table.Units, table.Rows.size(), [&](std::string& csv, std::size_t row) {
    AppendRow(csv, table.Shown, table.Rows[row], table.Units);
  });
}

CsvOfFiles FilesAsCsv(const RowMaker& maker, FileSystem& files, const std::vector<FoundProject>& projects,
                      const Columns& columns, std::optional<UnitSystem> units) {
  // A Metric table that turns out to have English designs, too, is begun again.
  const UnitSystem likely = units ? *units : UnitsOfFirst(maker, files, projects);
  const bool mayChange = !units && likely == Metric;
  std::atomic<bool> hasChanged = false;
  std::atomic<bool> allAreRead = true;
  CsvOfFiles result;
  result.Text = WithHead(columns, likely, projects.size(), [&](std::string& csv, std::size_t number) {
    if (hasChanged) return;
    const TableRow row = ReadRow(maker, files, projects[number]);
    if (!row.IsRead()) allAreRead = false;
    if (mayChange && row.IsRead() && row.Shown.Units != likely) hasChanged = true;
    AppendRow(csv, columns, row, likely);
  });
  if (hasChanged) return FilesAsCsv(maker, files, projects, columns, English);
  result.AllAreRead = allAreRead;
  return result;
}

}  // namespace orby
