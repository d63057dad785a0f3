// A table of designs as CSV.
#include <algorithm>

#include "base/text.h"
#include "tables/all_cores.h"
#include "tables/design_table.h"

namespace orby {
namespace {

// A text with a comma, a quote or a line end stands in quotes, with its own quotes doubled.
void AppendField(std::string& csv, std::string_view text) {
  const auto needsQuotes = [](char c) { return c == ',' || c == '"' || c == '\r' || c == '\n'; };
  if (std::ranges::none_of(text, needsQuotes)) {
    csv += text;
    return;
  }
  csv += '"';
  for (const char c : text) {
    if (c == '"') csv += '"';
    csv += c;
  }
  csv += '"';
}

// A number has no characters that need quotes.
void AppendCell(std::string& csv, const Cell& cell) {
  if (cell.IsNumber() && cell.Text.empty()) {
    csv += ShownText(cell);
  } else if (!cell.Text.empty()) {
    AppendField(csv, cell.Text);
  }
}

// Appends the line of a table with a field for each column.
template <class AppendColumn>
void AppendRecord(std::string& csv, const DesignTable& table, const AppendColumn& appendColumn) {
  for (const Column* column : table.Shown) {
    appendColumn(*column);
    csv += ',';
  }
  if (!table.Shown.empty()) csv.pop_back();
  csv += LineEnd;
}

}  // namespace

std::string TableAsCsv(const DesignTable& table) {
  constexpr std::size_t PieceSize = 128;
  std::string csv;
  AppendRecord(csv, table, [&](const Column& column) { AppendField(csv, HeadText(column, table.Units)); });

  std::vector<std::string> pieces((table.Rows.size() + PieceSize - 1) / PieceSize);
  InPieces(table.Rows.size(), PieceSize, [&](std::size_t first, std::size_t last) {
    std::string& piece = pieces[first / PieceSize];
    for (std::size_t i = first; i < last; ++i) {
      const TableRow& row = table.Rows[i];
      AppendRecord(piece, table, [&](const Column& column) { AppendCell(piece, CellOf(column, row, table.Units)); });
    }
  });
  for (const std::string& piece : pieces) csv += piece;
  return csv;
}

}  // namespace orby
