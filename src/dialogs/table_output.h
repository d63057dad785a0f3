// Rows of a table of designs that become a text or a file on threads of their own.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

#include "dialogs/background_work.h"
#include "dialogs/folder_reader.h"
#include "tables/design_table.h"

namespace orby {

class TableOutput {
 public:
  enum class Form : std::uint8_t { Cells, Csv, Workbook };

  // Starts the work.
  //
  // rows       must have those that the table has
  // path       of the file; empty for cells
  TableOutput(Form form, std::vector<RowPointer> rows, TableView table, FileSystem& files, std::string path);

  void Cancel() { work_.Cancel(); }
  bool HasEnded() const { return work_.HasEnded(); }
  // Waits for the end. Throws what has ended the work. A file is written as a whole or not at all.
  void Finish() { work_.Finish(); }
  // Returns true if all cells or the file were made, after the end. A cancel may have come too late.
  bool IsWhole() const { return isWhole_; }

  const std::string& Path() const { return path_; }
  std::size_t Rows() const { return table_.Rows.size(); }
  std::size_t Done() const { return done_; }  // rows
  // The cells, if they are whole.
  const std::string& Cells() const { return text_; }

 private:
  void Run(const std::stop_token& stop);

  Form form_;
  std::vector<RowPointer> rows_;
  TableView table_;
  FileSystem& files_;
  std::string path_;
  std::string text_;
  bool isWhole_ = false;
  std::atomic<std::size_t> done_ = 0;
  BackgroundWork work_;  // last: it uses the others
};

}  // namespace orby
