// A table of designs as a spreadsheet file.
#include "spreadsheet/cell_file.h"
#include "tables/design_table.h"

namespace orby {

void WriteTableWorkbook(const DesignTable& table, const std::string& path) {
  CellFile file(path, "Designs");
  for (const Column* column : table.Shown) file.Head(HeadText(*column, table.Units));
  for (const TableRow& row : table.Rows) {
    file.NextRow();
    for (const Column* column : table.Shown) {
      const Cell cell = CellOf(*column, row, table.Units);
      if (cell.IsNumber()) {
        file.Number(SevenDigitValue(cell), NumberFormat(cell), ShownText(cell).size());
      } else if (cell.Kind == CellKind::Text && !cell.Text.empty()) {
        file.Text(std::string(cell.Text));
      } else {
        file.Blank();
      }
    }
  }
  file.Close();
}

}  // namespace orby
