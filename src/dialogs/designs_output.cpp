// What the window "Designs in a Folder" does with its rows: it opens, compares, copies and saves them.
#include <utility>

#include "core/messages.h"
#include "dialogs/designs_arranging.h"
#include "dialogs/save_in_format.h"
#include "dialogs/side_by_side_window.h"
#include "reports/study_report.h"

namespace orby {

std::vector<std::string> DesignsWindow::SelectedFiles() const {
  std::vector<std::string> files;
  files.reserve(tblDesigns.Marked().size());
  for (const int row : tblDesigns.Marked()) {
    if (RowAt(row).IsRead()) files.push_back(RowAt(row).File);
  }
  return files;
}

void DesignsWindow::OpenCurrent() {
  if (!current_) return;
  const TableRow& row = *rows_[*current_];
  if (!row.IsRead()) {
    ShowMessage(program_, row.File + " cannot be opened. " + row.Reason, BoxIcon::Exclamation, Caption());
    return;
  }
  Chosen = row.File;
  Close();
}

void DesignsWindow::Compare() {
  std::vector<ComparedSource>& compared = program_.windows.compared.Chosen;
  compared.clear();
  for (std::string& file : SelectedFiles()) compared.push_back({.Variant = 0, .File = std::move(file)});
  ShowSideBySide(program_);
}

void DesignsWindow::Copy() {
  if (output_ || marked_.empty()) return;
  std::vector<RowPointer> rows;
  rows.reserve(marked_.size());
  for (const std::size_t row : marked_) rows.push_back(rows_[row]);
  Put(TableOutput::Form::Cells, std::move(rows), {});
}

void DesignsWindow::SaveAs() {
  const auto file = AskForFile(program_, "Save Table", "designs",
                               {{"Spreadsheet", "xlsx", {}}, {"Comma-Separated Values", "csv", {}}});
  if (!file) return;
  std::vector<RowPointer> rows;
  rows.reserve(order_.size());
  for (const std::size_t row : order_) rows.push_back(rows_[row]);
  Put(file->Format == 0 ? TableOutput::Form::Workbook : TableOutput::Form::Csv, std::move(rows), file->Path);
}

void DesignsWindow::Put(TableOutput::Form form, std::vector<RowPointer> rows, std::string path) {
  TableView table{.Rows = {}, .Shown = shown_, .Units = Units()};
  table.Rows.reserve(rows.size());
  for (const RowPointer& row : rows) table.Rows.push_back(row.get());
  output_ =
      std::make_unique<TableOutput>(form, std::move(rows), std::move(table), program_.platform.files, std::move(path));
  ShowProgress();
  Follow();
}

void DesignsWindow::TakeOutput() {
  ShowProgress();
  if (!output_->HasEnded()) return;
  const auto ended = std::exchange(output_, nullptr);
  ShowProgress();
  const std::string count = CountWithCommas(ended->Rows()) + (ended->Rows() == 1 ? " row" : " rows");
  RunTrapped(program_, [&] { ended->Finish(); });
  if (!ended->IsWhole()) {
    lblDone.SetCaption(ended->Path().empty() ? "Nothing was copied" : "Nothing was saved");
  } else if (ended->Path().empty()) {
    program_.platform.clipboard.SetText(ended->Cells());
    lblDone.SetCaption("Copied " + count);
  } else {
    lblDone.SetCaption("Saved " + count);
    AddHistoryLine(program_, "Table of designs saved as: " + ended->Path());
  }
}

}  // namespace orby
