// A table of designs as CSV, and as cells that are pasted.
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
void AppendRecord(std::string& csv, const Columns& columns, const AppendColumn& appendColumn, char separator = ',') {
  for (const Column* column : columns) {
    appendColumn(*column);
    csv += separator;
  }
  if (!columns.empty()) csv.pop_back();
  csv += LineEnd;
}

void AppendRow(std::string& csv, const Columns& columns, const TableRow& row, UnitSystem units) {
  AppendRecord(csv, columns, [&](const Column& column) { AppendCell(csv, CellOf(column, row, units)); });
}

// Appends the lines of `count` rows. `append` appends a row by its number to a text.
template <class Append>
void AppendRows(std::string& csv, std::size_t count, const Append& append) {
  constexpr std::size_t PieceSize = 128;
  std::vector<std::string> pieces((count + PieceSize - 1) / PieceSize);
  InPieces(count, PieceSize, [&](std::size_t first, std::size_t last) {
    for (std::size_t i = first; i < last; ++i) append(pieces[first / PieceSize], i);
  });
  for (const std::string& piece : pieces) csv += piece;
}

// Returns the head, and the lines of `count` rows.
template <class Append>
std::string WithHead(const Columns& columns, UnitSystem units, std::size_t count, const Append& append) {
  std::string csv;
  AppendRecord(csv, columns, [&](const Column& column) { AppendCsvField(csv, HeadText(column, units)); });
  AppendRows(csv, count, append);
  return csv;
}

// Counts the rows that are done.
class RowCount {
 public:
  explicit RowCount(const RowsGoOn& goesOn) : goesOn_(goesOn) {}

  // Returns false if the next row is not wanted.
  bool Take() {
    if (!hasEnded_ && !goesOn_(done_++)) hasEnded_ = true;
    return !hasEnded_;
  }

 private:
  const RowsGoOn& goesOn_;
  std::atomic<std::size_t> done_ = 0;
  std::atomic<bool> hasEnded_ = false;
};

// Line ends and tabs would begin another cell.
std::string AsOneCell(std::string text) {
  std::ranges::replace_if(
      text, [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
  return text;
}

UnitSystem UnitsOfFirst(const RowMaker& maker, FileSystem& files, const std::vector<FoundProject>& projects) {
  for (const FoundProject& project : projects) {
    const TableRow row = ReadRow(maker, files, project);
    if (row.IsRead()) return row.Shown.Units;
  }
  return English;
}

}  // namespace

std::string TableAsCsv(const TableView& table, const RowsGoOn& goesOn) {
  RowCount count(goesOn);
  return WithHead(table.Shown, table.Units, table.Rows.size(), [&](std::string& csv, std::size_t row) {
    if (count.Take()) AppendRow(csv, table.Shown, *table.Rows[row], table.Units);
  });
}

std::string TableAsCsv(const DesignTable& table) {
  return TableAsCsv(ViewOf(table), [](std::size_t) { return true; });
}

std::string TableAsCells(const TableView& table, const RowsGoOn& goesOn) {
  constexpr char Tab = '\t';
  std::string cells;
  AppendRecord(
      cells, table.Shown, [&](const Column& column) { cells += HeadText(column, table.Units); }, Tab);
  RowCount count(goesOn);
  AppendRows(cells, table.Rows.size(), [&](std::string& text, std::size_t place) {
    if (!count.Take()) return;
    const TableRow& row = *table.Rows[place];
    const auto append = [&](const Column& column) { text += AsOneCell(ShownText(CellOf(column, row, table.Units))); };
    AppendRecord(text, table.Shown, append, Tab);
  });
  return cells;
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
