#include "posix/file_handle.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "posix/file_errors.h"

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
  while (fsync(file_) != 0) {
    // Some network disks do not support this call.
    if (errno == EINVAL || errno == ENOTSUP) return;
    if (errno != EINTR) throw FileError(errno, path_);
  }
}

void FileHandle::Close() {
  if (close(std::exchange(file_, -1)) != 0) throw FileError(errno, path_);
}

void FlushFolder(const std::string& path) {
  const std::string folder = path.substr(0, path.rfind('/') + 1);
  const int handle = open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (handle < 0) return;
  fsync(handle);
  close(handle);
}

}  // namespace orby
