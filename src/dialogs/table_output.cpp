#include "dialogs/table_output.h"

#include <utility>

namespace orby {

TableOutput::TableOutput(Form form, std::vector<RowPointer> rows, TableView table, FileSystem& files, std::string path)
    : form_(form),
      rows_(std::move(rows)),
      table_(std::move(table)),
      files_(files),
      path_(std::move(path)),
      work_([this](const std::stop_token& stop) { Run(stop); }) {}

void TableOutput::Run(const std::stop_token& stop) {
  const auto goesOn = [&](std::size_t done) {
    done_ = done;
    return !stop.stop_requested();
  };
  switch (form_) {
    case Form::Cells:
      text_ = TableAsCells(table_, goesOn);
      isWhole_ = !stop.stop_requested();
      break;
    case Form::Csv:
      text_ = TableAsCsv(table_, goesOn);
      if (stop.stop_requested()) break;
      files_.ReplaceFile(path_, text_);
      isWhole_ = true;
      break;
    case Form::Workbook: isWhole_ = WriteTableWorkbook(table_, path_, goesOn); break;
  }
}

}  // namespace orby
