#include "platform/file_handle.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/file_errors.h"

namespace orby {

FileHandle::FileHandle(int file, const std::string& path) : file_(file), path_(path) {
  if (file_ < 0) throw FileError(errno, path_);
}

FileHandle::~FileHandle() {
  if (file_ >= 0) close(file_);
}

void FileHandle::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(file_, bytes.data(), bytes.size());
    if (written >= 0) {
      bytes.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      throw FileError(errno, path_);
    }
  }
}

void FileHandle::Flush() {
  if (fsync(file_) != 0) throw FileError(errno, path_);
}

void FileHandle::Close() {
  if (close(std::exchange(file_, -1)) != 0) throw FileError(errno, path_);
}

}  // namespace orby
