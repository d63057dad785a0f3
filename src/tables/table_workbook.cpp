// A table of designs as a spreadsheet file.
#include "spreadsheet/cell_file.h"
#include "tables/design_table.h"

namespace orby {

bool WriteTableWorkbook(const TableView& table, const std::string& path, const RowsGoOn& goesOn) {
  CellFile file(path, "Designs");
  for (const Column* column : table.Shown) file.Head(HeadText(*column, table.Units));
  for (std::size_t done = 0; done < table.Rows.size(); ++done) {
    if (!goesOn(done)) return false;
    file.NextRow();
    for (const Column* column : table.Shown) {
      const Cell cell = CellOf(*column, *table.Rows[done], table.Units);
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
  return true;
}

void WriteTableWorkbook(const DesignTable& table, const std::string& path) {
  WriteTableWorkbook(ViewOf(table), path, [](std::size_t) { return true; });
}

}  // namespace orby
