#include "spreadsheet/cell_file.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "base/runtime_error.h"
#include "base/text.h"
#include "machine/plain_numbers.h"

namespace orby {

struct CellFile::Book {
  lxw_workbook* Workbook = nullptr;
  lxw_worksheet* Sheet = nullptr;
  lxw_format* OfHeads = nullptr;
  std::map<std::string, lxw_format*> Formats;
  std::vector<std::size_t> Widths;
  lxw_row_t Row = 0;
  lxw_col_t Column = 0;

  // Widens the column of the next cell for a text, and returns the column.
  lxw_col_t Take(std::size_t width) {
    if (Column >= Widths.size()) Widths.push_back(0);
    Widths[Column] = std::max(Widths[Column], width);
    return Column++;
  }

  lxw_format* FormatOf(const std::string& numberFormat) {
    if (numberFormat.empty()) return nullptr;
    lxw_format*& format = Formats[numberFormat];
    if (format == nullptr) {
      format = workbook_add_format(Workbook);
      format_set_num_format(format, numberFormat.c_str());
    }
    return format;
  }

  void WriteText(const std::string& text, lxw_format* format) {
    constexpr std::size_t MostCharacters = 32767;  // a cell holds no more
    const lxw_col_t column = Take(CharacterCount(text));
    const std::string fitting = text.substr(0, CharacterOffset(text, MostCharacters));
    worksheet_write_string(Sheet, Row, column, fitting.c_str(), format);
  }

  // Long texts would push the other columns out of view.
  void SetWidths() const {
    constexpr std::size_t Least = 8;
    constexpr std::size_t Most = 48;
    for (std::size_t i = 0; i < Widths.size(); ++i) {
      const auto column = static_cast<lxw_col_t>(i);
      const auto width = static_cast<double>(std::clamp(Widths[i] + 2, Least, Most));
      worksheet_set_column(Sheet, column, column, width, nullptr);
    }
  }
};

CellFile::CellFile(const std::string& path, const std::string& sheetName) : book_(std::make_unique<Book>()) {
  // Rows go to a temporary file at once.
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  book_->Workbook = workbook_new_opt(path.c_str(), &options);
  if (book_->Workbook == nullptr) throw RuntimeError(error_number::PathFileAccess);
  book_->Sheet = workbook_add_worksheet(book_->Workbook, sheetName.c_str());
  if (book_->Sheet == nullptr) throw RuntimeError(error_number::PathFileAccess);
  book_->OfHeads = workbook_add_format(book_->Workbook);
  format_set_bold(book_->OfHeads);
  worksheet_freeze_panes(book_->Sheet, 1, 0);
}

// A file that was not closed is not written.
CellFile::~CellFile() {
  if (book_->Workbook != nullptr) lxw_workbook_free(book_->Workbook);
}

void CellFile::Head(const std::string& text) { book_->WriteText(text, book_->OfHeads); }

void CellFile::NextRow() {
  if (book_->Row + 1 >= LXW_ROW_MAX) throw RuntimeError(error_number::Overflow);
  ++book_->Row;
  book_->Column = 0;
}

void CellFile::Number(double value, const std::string& format, std::size_t width) {
  const PlainNumbers plain;
  worksheet_write_number(book_->Sheet, book_->Row, book_->Take(width), value, book_->FormatOf(format));
}

void CellFile::Text(const std::string& text) { book_->WriteText(text, nullptr); }

void CellFile::Blank() { book_->Take(0); }

void CellFile::Close() {
  const PlainNumbers plain;
  book_->SetWidths();
  if (!book_->Widths.empty()) {
    worksheet_autofilter(book_->Sheet, 0, 0, book_->Row, static_cast<lxw_col_t>(book_->Widths.size() - 1));
  }
  // The library frees the workbook also when it cannot write the file.
  lxw_workbook* workbook = std::exchange(book_->Workbook, nullptr);
  if (workbook_close(workbook) != LXW_NO_ERROR) throw RuntimeError(error_number::PathFileAccess);
}

}  // namespace orby
