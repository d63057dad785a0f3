// Spreadsheet files of cells below a row of heads.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace orby {

// Writes an .xlsx file with one sheet, cell after cell and row after row. The row of heads is bold, stays on view and
// filters. Each column is as wide as its widest text, within limits. Rows are not kept in memory.
class CellFile {
 public:
  // Replaces an existing file when it is closed.
  CellFile(const std::string& path, const std::string& sheetName);
  ~CellFile();
  CellFile(const CellFile&) = delete;
  CellFile& operator=(const CellFile&) = delete;

  // Adds a head. Requires that no row has begun.
  void Head(const std::string& text);
  // Begins the next row. A sheet has 1,048,575 rows at most; throws RuntimeError 6 after them.
  void NextRow();

  // Each writes the next cell of the row. An empty `format` shows a number with the digits that it has; others are such
  // as "0.0". `width` is the number of characters that are shown.
  void Number(double value, const std::string& format, std::size_t width);
  void Text(const std::string& text);
  void Blank();

  // Writes the file. Throws RuntimeError 75 when that fails.
  void Close();

 private:
  struct Book;
  std::unique_ptr<Book> book_;
};

}  // namespace orby
