#include "posix/in_place_file.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "posix/file_errors.h"
#include "posix/file_handle.h"

namespace orby {
namespace {

constexpr int ToWrite = O_WRONLY | O_CLOEXEC;
constexpr mode_t UsualMode = 0666;  // without the bits of the user's umask

bool CannotReserve(int systemError) {
  return systemError == EOPNOTSUPP || systemError == ENOSYS || systemError == EINVAL || systemError == ENODEV;
}

class InPlaceFile : public OutputFile {
 public:
  InPlaceFile(const std::string& path, std::uint64_t length, bool isNew)
      : path_(path), isNew_(isNew), file_(open(path.c_str(), isNew ? ToWrite | O_CREAT : ToWrite, UsualMode), path) {
    try {
      if (fstat(file_.Number(), &facts_) != 0) throw FileError(errno, path_);
      if (IsRegular()) Reserve(length);
    } catch (const RuntimeError&) {
      if (isNew_) unlink(OwnPath().c_str());
      throw;
    }
  }

  void Write(std::string_view bytes) override {
    file_.Write(bytes);
    written_ += bytes.size();
  }

  void Close() override {
    if (IsRegular()) {
      if (ftruncate(file_.Number(), static_cast<off_t>(written_)) != 0) throw FileError(errno, path_);
      file_.Flush();
    }
    file_.Close();
    if (isNew_) FlushFolder(OwnPath());
  }

 private:
  // A pipe or a device has no size and no old bytes.
  bool IsRegular() const { return S_ISREG(facts_.st_mode); }

  // Reserves room for `length` bytes. The size of the file stays the same until new bytes are written. Throws
  // RuntimeError 61 when there is too little room.
  void Reserve(std::uint64_t length) const {
    const auto held = static_cast<std::uint64_t>(facts_.st_size);
    if (length <= held) return;
    rlimit limit{};
    if (getrlimit(RLIMIT_FSIZE, &limit) == 0 && length > limit.rlim_cur) throw FileError(EFBIG, path_);
    while (fallocate(file_.Number(), FALLOC_FL_KEEP_SIZE, 0, static_cast<off_t>(length)) != 0) {
      if (CannotReserve(errno)) return FindRoom(length - held);
      if (errno != EINTR) throw FileError(errno, path_);
    }
  }

  // Throws RuntimeError 61 if the free space of the disk is too small. For disks that cannot reserve room. A disk that
  // does not know its free space is assumed to have enough.
  void FindRoom(std::uint64_t bytes) const {
    struct statvfs disk {};
    if (fstatvfs(file_.Number(), &disk) != 0 || disk.f_blocks == 0) return;
    if (static_cast<std::uint64_t>(disk.f_bavail) * disk.f_frsize < bytes) throw FileError(ENOSPC, path_);
  }

  // Returns the path that all links lead to. Empty when the file no longer exists.
  std::filesystem::path OwnPath() const {
    std::error_code problem;
    return std::filesystem::canonical(path_, problem);
  }

  std::string path_;
  bool isNew_;
  FileHandle file_;
  struct stat facts_ {};  // when the file was opened
  std::uint64_t written_ = 0;
};

}  // namespace

std::unique_ptr<OutputFile> OpenFileInPlace(const std::string& path, std::uint64_t length) {
  CheckName(path);
  const bool isNew = access(path.c_str(), F_OK) != 0 && errno == ENOENT;
  return std::make_unique<InPlaceFile>(path, length, isNew);
}

}  // namespace orby
