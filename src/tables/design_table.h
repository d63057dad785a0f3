// A table of designs: a row a project, with chosen columns in one unit system.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "tables/column.h"
#include "tables/project_walk.h"
#include "tables/table_row.h"

namespace orby {

struct DesignTable {
  std::vector<TableRow> Rows;
  Columns Shown;
  UnitSystem Units = English;
};

// A table of rows that are kept elsewhere.
struct TableView {
  std::vector<const TableRow*> Rows;
  Columns Shown;
  UnitSystem Units = English;
};

// Returns all rows of the table, which must outlive the view.
TableView ViewOf(const DesignTable& table);

// Called with the number of rows that are done, from any thread. Returns false to end the work.
using RowsGoOn = std::function<bool(std::size_t done)>;

// Returns the row of a file, or of a folder that cannot be read. May be called on any thread.
TableRow ReadRow(const RowMaker& maker, FileSystem& files, const FoundProject& project);

// Returns the rows of the files, in their order. Reads them on all cores.
std::vector<TableRow> ReadRows(const RowMaker& maker, FileSystem& files, const std::vector<FoundProject>& projects);

// Returns the unit system that all designs share, or English if they differ or if there are none.
UnitSystem CommonUnits(const std::vector<TableRow>& rows);

// Returns true if each row has a design.
bool AllAreRead(const std::vector<TableRow>& rows);

// Each returns the table as a text in UTF-8. A figure without a value is empty in CSV, null in JSON, and "--" in plain
// text.
//
// CSV by RFC 4180: the first line has the heads with their units, numbers have a decimal point and the digits that the
// program shows.
// FilesAsCsv reads the files, too, and keeps no rows in memory. Without `units` the table has those of CommonUnits.
std::string TableAsCsv(const DesignTable& table);
// The text is of no use after `goesOn` has returned false.
std::string TableAsCsv(const TableView& table, const RowsGoOn& goesOn);
struct CsvOfFiles {
  std::string Text;
  bool AllAreRead = true;
};
CsvOfFiles FilesAsCsv(const RowMaker& maker, FileSystem& files, const std::vector<FoundProject>& projects,
                      const Columns& columns, std::optional<UnitSystem> units);
// JSON as docs/table-format.md describes it.
std::string TableAsJson(const DesignTable& table);
// Columns of the width of their widest text, two blanks apart.
std::string TableAsText(const DesignTable& table);
// Cells as the program shows them, separated by tabs, which spreadsheets paste. Line ends and tabs in texts become
// blanks. The text is of no use after `goesOn` has returned false.
std::string TableAsCells(const TableView& table, const RowsGoOn& goesOn);

// Writes the table as an .xlsx file. Numbers have formats that show their digits as the program does; the head stays on
// view. Replaces an existing file. Throws RuntimeError 75 when the file cannot be written.
void WriteTableWorkbook(const DesignTable& table, const std::string& path);
// Returns false, and writes nothing, if `goesOn` returns false.
bool WriteTableWorkbook(const TableView& table, const std::string& path, const RowsGoOn& goesOn);

}  // namespace orby
