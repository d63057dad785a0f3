#include "dialogs/folder_reader.h"

#include <iterator>
#include <utility>

#include "base/all_cores.h"
#include "tables/design_table.h"

namespace orby {

FolderReader::FolderReader(RowMaker maker, FileSystem& files, std::string folder)
    : maker_(std::move(maker)),
      files_(files),
      folder_(std::move(folder)),
      work_([this](const std::stop_token& stop) { Run(stop); }) {}

void FolderReader::Run(const std::stop_token& stop) {
  constexpr std::size_t PieceSize = 32;
  const std::vector<FoundProject> projects = ProjectsBelow(files_, folder_, [&](std::size_t found) {
    found_ = found;
    return !stop.stop_requested();
  });
  found_ = projects.size();
  hasFoundAll_ = !stop.stop_requested();
  const auto read = [&](std::size_t first, std::size_t last) {
    if (stop.stop_requested()) return;
    std::vector<RowPointer> rows;
    rows.reserve(last - first);
    for (std::size_t i = first; i < last; ++i) {
      rows.push_back(std::make_shared<const TableRow>(ReadRow(maker_, files_, projects[i])));
    }
    Keep(std::move(rows));
  };
  InPieces(projects.size(), PieceSize, read, ThreadsBesideTheWindow());
}

void FolderReader::Keep(std::vector<RowPointer> rows) {
  read_ += rows.size();
  const std::lock_guard lock(keeping_);
  rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
}

std::vector<RowPointer> FolderReader::TakeRows() {
  const std::lock_guard lock(keeping_);
  return std::exchange(rows_, {});
}

}  // namespace orby
