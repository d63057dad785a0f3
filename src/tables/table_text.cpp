// A table of designs as plain text.
#include <algorithm>

#include "base/text.h"
#include "tables/design_table.h"

namespace orby {
namespace {

struct TextColumn {
  std::vector<std::string> Texts;  // the head first
  std::size_t Width = 0;
  bool IsOfNumbers = false;
};

// A file name may contain characters that move the cursor of a terminal.
std::string WithoutControls(std::string text) {
  constexpr unsigned char FirstPrinted = 0x20;
  constexpr unsigned char Delete = 0x7F;
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < FirstPrinted || byte == Delete) c = '?';
  }
  return text;
}

TextColumn TextsOf(const DesignTable& table, const Column& column) {
  TextColumn texts;
  const auto add = [&](std::string text) {
    texts.Width = std::max(texts.Width, CharacterCount(text));
    texts.Texts.push_back(std::move(text));
  };
  add(HeadText(column, table.Units));
  for (const TableRow& row : table.Rows) {
    const Cell cell = CellOf(column, row, table.Units);
    texts.IsOfNumbers = texts.IsOfNumbers || cell.IsNumber();
    add(WithoutControls(ShownText(cell)));
  }
  return texts;
}

}  // namespace

std::string TableAsText(const DesignTable& table) {
  constexpr std::string_view Gap = "  ";
  std::vector<TextColumn> columns;
  for (const Column* column : table.Shown) columns.push_back(TextsOf(table, *column));
  std::string text;
  for (std::size_t line = 0; line <= table.Rows.size(); ++line) {
    std::string row;
    for (const TextColumn& column : columns) {
      if (!row.empty()) row += Gap;
      const std::string& cell = column.Texts[line];
      row += column.IsOfNumbers ? AlignRight(cell, column.Width) : PadSpaces(cell, column.Width);
    }
    row.resize(row.find_last_not_of(' ') + 1);
    text += row + "\n";
  }
  return text;
}

}  // namespace orby
