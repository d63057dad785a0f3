#include "posix/replaced_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include "posix/file_errors.h"
#include "posix/file_handle.h"

namespace orby {
namespace {

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;
constexpr mode_t AsTheUserGives =
    OwnerOnly | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;  // without the bits of the user's umask
constexpr mode_t Permissions = 07777;

// Returns the owner, permissions and type of the file, or nothing when there is no file.
std::optional<struct stat> FactsOf(const std::string& path) {
  struct stat facts {};
  if (stat(path.c_str(), &facts) == 0) return facts;
  if (errno == ENOENT) return std::nullopt;
  throw FileError(errno, path);
}

// Sets the owner and the permissions of the file to those of the other one.
//
// Only the administrator may give a file to another owner. A file that any other user replaces belongs to that user
// from then on. Where the file cannot have the group of the other one, its own group gets the permissions of everybody.
void GiveTo(const FileHandle& file, const struct stat& other, const std::string& path) {
  mode_t mode = other.st_mode & Permissions;
  if (fchown(file.Number(), other.st_uid, other.st_gid) != 0 &&
      fchown(file.Number(), static_cast<uid_t>(-1), other.st_gid) != 0) {
    mode = (mode & ~static_cast<mode_t>(S_IRWXG)) | ((mode & S_IRWXO) << 3U);
  }
  if (fchmod(file.Number(), mode) != 0) throw FileError(errno, path);
}

// A temporary file that replaces another one when it is complete. The destructor removes it if it has not.
class Replacement {
 public:
  Replacement(std::string path, const std::optional<struct stat>& replaced) : path_(std::move(path)) {
    const mode_t mode = replaced ? OwnerOnly : AsTheUserGives;
    for (int number = 0; !file_; ++number) {
      beside_ = FolderPart() + ".orby-" + std::to_string(getpid()) + "-" + std::to_string(number);
      const int file = open(beside_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
      if (file >= 0 || errno != EEXIST) file_.emplace(file, path_);
    }
  }
  ~Replacement() {
    if (file_) unlink(beside_.c_str());
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  void TakeOver(const struct stat& replaced) { GiveTo(*file_, replaced, path_); }

  void Fill(std::string_view bytes) {
    file_->Write(bytes);
    file_->Flush();
    file_->Close();
  }

  void TakeItsPlace() {
    if (std::rename(beside_.c_str(), path_.c_str()) != 0) throw FileError(errno, path_);
    file_.reset();
    FlushFolder(beside_);
  }

 private:
  std::string FolderPart() const { return path_.substr(0, path_.rfind('/') + 1); }

  std::string path_;
  std::string beside_;
  std::optional<FileHandle> file_;  // until it has replaced the other file
};

}  // namespace

std::string ResolvedLinks(const std::string& path) {
  constexpr int MostLinks = 40;
  std::filesystem::path target = path;
  for (int links = 0; links <= MostLinks; ++links) {
    std::error_code isNoLink;
    const auto next = std::filesystem::read_symlink(target, isNoLink);
    if (isNoLink) return target.string();
    target = target.parent_path() / next;
  }
  throw FileError(ELOOP, path);
}

void MakeFileOnDiskLike(const std::string& path, const std::string& model) {
  CheckName(path);
  const auto facts = FactsOf(model);
  if (!facts) throw FileError(ENOENT, model);
  FileHandle file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, OwnerOnly), path);
  try {
    GiveTo(file, *facts, path);
    file.Close();
  } catch (const RuntimeError&) {
    unlink(path.c_str());
    throw;
  }
  FlushFolder(path);
}

void ReplaceFileOnDisk(const std::string& path, std::string_view bytes) {
  CheckName(path);
  const auto replaced = FactsOf(path);
  // The system itself requires only write access to the folder.
  if (replaced && access(path.c_str(), W_OK) != 0) throw FileError(errno, path);
  if (replaced && !S_ISREG(replaced->st_mode)) {
    // A pipe or a device cannot be replaced and has no old bytes, so it is written directly. A folder fails to open
    // here.
    FileHandle file(open(path.c_str(), O_WRONLY | O_CLOEXEC), path);
    file.Write(bytes);
    return file.Close();
  }
  Replacement replacement(ResolvedLinks(path), replaced);
  if (replaced) replacement.TakeOver(*replaced);
  replacement.Fill(bytes);
  replacement.TakeItsPlace();
}

}  // namespace orby
