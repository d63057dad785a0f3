// Designs side by side as a spreadsheet file.
#include "spreadsheet/cell_file.h"
#include "tables/comparison.h"

namespace orby {
namespace {

// Returns the number format of a cell, which shows the word for the best.
std::string FormatOf(const ComparedCell& cell) {
  std::string format = NumberFormat(*cell.Number);
  if (!cell.IsBest) return format;
  return (format.empty() ? std::string("General") : format) + "\" " + std::string(BestWord) + "\"";
}

}  // namespace

void WriteComparisonWorkbook(const DesignComparison& comparison, const std::string& path) {
  CellFile file(path, "Side by Side");
  file.Head("Section");
  file.Head("Row");
  for (const std::string& name : comparison.Names) file.Head(name);
  for (const ComparedSection& section : comparison.Sections) {
    for (const ComparedRow& row : section.Rows) {
      file.NextRow();
      file.Text(std::string(section.Title));
      file.Text(row.Head);
      for (const ComparedCell& cell : row.Cells) {
        const std::string text = MarkedText(cell);
        if (cell.Number) {
          file.Number(SevenDigitValue(*cell.Number), FormatOf(cell), text.size());
        } else if (!text.empty()) {
          file.Text(text);
        } else {
          file.Blank();
        }
      }
    }
  }
  file.Close();
}

}  // namespace orby
