#include "machine/disk_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "base/attempt.h"
#include "base/paths.h"
#include "base/runtime_error.h"
#include "posix/file_errors.h"
#include "posix/in_place_file.h"
#include "posix/replaced_file.h"

namespace orby {
namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using StreamHandle = std::unique_ptr<std::FILE, FileCloser>;

StreamHandle Open(const std::string& path, const char* mode) {
  CheckName(path);
  StreamHandle file(std::fopen(path.c_str(), mode));
  if (!file) throw FileError(errno, path);
  return file;
}

class DiskOutputFile : public OutputFile {
 public:
  explicit DiskOutputFile(const std::string& path) : path_(path), file_(Open(path, "wb")) {}

  void Write(std::string_view bytes) override {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) throw FileError(errno, path_);
  }

  void Close() override {
    if (std::fclose(file_.release()) != 0) throw FileError(errno, path_);
  }

 private:
  std::string path_;
  StreamHandle file_;
};

struct stat FactsOf(std::FILE& file, const std::string& path) {
  struct stat facts {};
  if (fstat(fileno(&file), &facts) != 0) throw FileError(errno, path);
  if (S_ISDIR(facts.st_mode)) throw RuntimeError(error_number::PathFileAccess);
  return facts;
}

class DiskInputFile : public InputFile {
 public:
  explicit DiskInputFile(const std::string& path) : path_(path), file_(Open(path, "rb")) { FactsOf(*file_, path_); }

  std::string Read(std::size_t most) override {
    std::string bytes(most, '\0');
    std::clearerr(file_.get());  // after an error a read may be tried again
    bytes.resize(std::fread(bytes.data(), 1, most, file_.get()));
    if (std::ferror(file_.get()) != 0) throw FileError(errno, path_);
    return bytes;
  }

 private:
  std::string path_;
  StreamHandle file_;
};

class DiskFileMark : public FileMark {
 public:
  explicit DiskFileMark(int file) : file_(file) {}
  ~DiskFileMark() override { close(file_); }
  DiskFileMark(const DiskFileMark&) = delete;
  DiskFileMark& operator=(const DiskFileMark&) = delete;

 private:
  int file_;
};

// Returns the folder above. For a link this is the folder above its target.
std::filesystem::path FolderAbove(const std::filesystem::path& folder) {
  std::error_code problem;
  if (!std::filesystem::is_symlink(folder, problem)) return folder.parent_path();
  const auto target = std::filesystem::canonical(folder, problem);
  return problem ? folder / ".." : target.parent_path();
}

}  // namespace

DiskFiles::DiskFiles(std::string programFolder) : programFolder_(std::move(programFolder)) {}

Found DiskFiles::Find(const std::string& path) {
  if (path.empty()) return Found::Nothing;
  CheckName(path);
  std::error_code problem;
  const auto status = std::filesystem::status(path, problem);
  if (status.type() == std::filesystem::file_type::not_found) return Found::Nothing;
  // The path has a folder that may not be entered, which is error 75 and not error 70 of a file that may not be used.
  if (problem == std::errc::permission_denied) throw RuntimeError(error_number::PathFileAccess);
  if (problem) throw FileError(problem.value(), path);
  return status.type() == std::filesystem::file_type::directory ? Found::Folder : Found::File;
}

std::string DiskFiles::ReadFile(const std::string& path) {
  const StreamHandle file = Open(path, "rb");
  const struct stat facts = FactsOf(*file, path);
  std::string bytes;
  if (facts.st_size > 0) bytes.resize(static_cast<std::size_t>(facts.st_size));
  bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
  // A pipe has no known size, and a file may grow while it is read.
  char more[4096];
  for (std::size_t count = 0; (count = std::fread(more, 1, sizeof more, file.get())) > 0;) bytes.append(more, count);
  if (std::ferror(file.get()) != 0) throw FileError(errno, path);
  return bytes;
}

std::unique_ptr<InputFile> DiskFiles::OpenFile(const std::string& path) {
  return std::make_unique<DiskInputFile>(path);
}

std::uint64_t DiskFiles::FileLength(const std::string& path) {
  CheckName(path);
  struct stat facts {};
  if (stat(path.c_str(), &facts) != 0) throw FileError(errno, path);
  return S_ISREG(facts.st_mode) ? static_cast<std::uint64_t>(facts.st_size) : 0;
}

std::optional<Moment> DiskFiles::WrittenAt(const std::string& path) {
  struct stat facts {};
  struct tm time {};
  if (stat(path.c_str(), &facts) != 0 || localtime_r(&facts.st_mtime, &time) == nullptr) return std::nullopt;
  return Moment{{time.tm_year + 1900, time.tm_mon + 1, time.tm_mday}, time.tm_hour, time.tm_min, time.tm_sec};
}

std::unique_ptr<OutputFile> DiskFiles::CreateFile(const std::string& path) {
  return std::make_unique<DiskOutputFile>(path);
}

std::unique_ptr<OutputFile> DiskFiles::OpenInPlace(const std::string& path, std::uint64_t length) {
  return OpenFileInPlace(path, length);
}

void DiskFiles::RemoveFile(const std::string& path) {
  CheckName(path);
  if (unlink(path.c_str()) != 0) throw FileError(errno, path);
}

void DiskFiles::RenameFile(const std::string& path, const std::string& newPath) {
  CheckName(path);
  CheckName(newPath);
  // The system itself requires only write access to the folder.
  if (access(newPath.c_str(), W_OK) != 0 && errno != ENOENT) throw FileError(errno, newPath);
  if (std::rename(path.c_str(), newPath.c_str()) == 0) return;
  const int systemError = errno;
  throw FileError(systemError, access(path.c_str(), F_OK) == 0 ? newPath : path);
}

void DiskFiles::ReplaceFile(const std::string& path, std::string_view bytes) { ReplaceFileOnDisk(path, bytes); }

void DiskFiles::MakeFileLike(const std::string& path, const std::string& model) { MakeFileOnDiskLike(path, model); }

std::string DiskFiles::ResolveLinks(const std::string& path) { return ResolvedLinks(path); }

void DiskFiles::MakeFolder(const std::string& path) {
  CheckName(path);
  std::error_code problem;
  std::filesystem::create_directories(path, problem);
  if (problem) throw FileError(problem.value(), path);
}

void DiskFiles::MakePrivateFolder(const std::string& path) {
  MakeFolder(std::filesystem::path(WithoutSeparator(path)).parent_path().string());
  if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) throw FileError(errno, WithSeparator(path));
}

bool DiskFiles::CanWriteTo(const std::string& folder) { return access(folder.c_str(), W_OK | X_OK) == 0; }

std::vector<std::string> DiskFiles::FilesIn(const std::string& folder) {
  std::vector<std::string> files;
  std::error_code problem;
  std::filesystem::directory_iterator entry(folder, problem);
  for (; !problem && entry != std::filesystem::directory_iterator(); entry.increment(problem)) {
    std::error_code unknown;
    if (entry->is_regular_file(unknown)) files.push_back(entry->path().string());
  }
  std::ranges::sort(files);
  return files;
}

std::vector<std::string> DiskFiles::FoldersIn(const std::string& folder) {
  CheckName(folder);
  std::vector<std::string> folders;
  std::error_code problem;
  std::filesystem::directory_iterator entry(folder, problem);
  // A missing folder is error 76, path not found. The separator makes it so.
  if (problem) throw FileError(problem.value(), WithSeparator(folder));
  for (; !problem && entry != std::filesystem::directory_iterator(); entry.increment(problem)) {
    std::error_code unknown;
    const std::string name = entry->path().filename().string();
    if (!name.starts_with('.') && entry->is_directory(unknown)) folders.push_back(name);
  }
  std::ranges::sort(folders);
  return folders;
}

// The desktop attaches disks two or three folders down, in folders named after the user and the disk.
std::vector<std::string> DiskFiles::Drives() {
  std::vector<std::string> drives{"/"};
  std::error_code problem;
  for (const char* place : {"/media", "/mnt", "/run/media"}) {
    std::filesystem::recursive_directory_iterator entry(place, problem);
    for (; !problem && entry != std::filesystem::recursive_directory_iterator(); entry.increment(problem)) {
      if (entry.depth() >= 1) entry.disable_recursion_pending();
      struct stat facts {};
      struct stat above {};
      const std::string path = entry->path().string();
      if (stat(path.c_str(), &facts) != 0 || stat((path + "/..").c_str(), &above) != 0) continue;
      if (facts.st_dev != above.st_dev) drives.push_back(path);
    }
  }
  std::ranges::sort(drives);
  return drives;
}

void DiskFiles::SetWorkingFolder(const std::string& path) {
  CheckName(path);
  if (chdir(path.c_str()) != 0) throw FileError(errno, WithSeparator(path));
}

std::string DiskFiles::AbsolutePath(const std::string& path) {
  std::error_code problem;
  const auto absolute = std::filesystem::absolute(path, problem);
  if (problem) return path;
  std::filesystem::path resolved;
  for (const auto& part : absolute) {
    if (part == "..") {
      resolved = FolderAbove(resolved);
    } else if (part != ".") {
      resolved /= part;
    }
  }
  return resolved.string();
}

std::unique_ptr<FileMark> DiskFiles::TryMark(const std::string& path) {
  if (!Succeeds([&] { CheckName(path); })) return nullptr;
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (file < 0) return nullptr;
  // The system releases the lock when the program ends, also after a crash.
  if (flock(file, LOCK_EX | LOCK_NB) == 0) return std::make_unique<DiskFileMark>(file);
  close(file);
  return nullptr;
}

std::string DiskFiles::TemporaryFolder() {
  std::error_code problem;
  const auto folder = std::filesystem::temp_directory_path(problem);
  if (problem) throw RuntimeError(error_number::PathNotFound);
  return folder.string();
}

std::string DiskFiles::ProgramFolder() { return programFolder_; }

}  // namespace orby
