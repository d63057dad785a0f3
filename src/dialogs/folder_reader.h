// Reads all projects below a folder on threads of their own.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "dialogs/background_work.h"
#include "platform/file_system.h"
#include "tables/table_row.h"

namespace orby {

using RowPointer = std::shared_ptr<const TableRow>;

class FolderReader {
 public:
  // Starts to read. `files` must outlive the reader, and must bear calls from several threads.
  FolderReader(RowMaker maker, FileSystem& files, std::string folder);

  // Ends the reading after the pieces under way.
  void Cancel() { work_.Cancel(); }
  bool IsCancelled() const { return work_.IsCancelled(); }
  bool HasEnded() const { return work_.HasEnded(); }
  // Waits for the end. Throws what has ended the reading.
  void Finish() { work_.Finish(); }

  // What is done so far. The files are counted before the first one is read.
  std::size_t Found() const { return found_; }
  bool HasFoundAll() const { return hasFoundAll_; }
  std::size_t Read() const { return read_; }
  // Returns the rows that have been read since the last call, in no order.
  std::vector<RowPointer> TakeRows();

 private:
  void Run(const std::stop_token& stop);
  void Keep(std::vector<RowPointer> rows);

  RowMaker maker_;
  FileSystem& files_;
  std::string folder_;
  std::atomic<std::size_t> found_ = 0;
  std::atomic<bool> hasFoundAll_ = false;
  std::atomic<std::size_t> read_ = 0;
  std::mutex keeping_;
  std::vector<RowPointer> rows_;  // not yet taken
  BackgroundWork work_;           // last: it uses the others
};

}  // namespace orby
