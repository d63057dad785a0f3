#include "windows/replaced_file.h"

#include <optional>
#include <vector>

#include "base/attempt.h"
#include "base/runtime_error.h"
#include "windows/file_attributes.h"
#include "windows/file_errors.h"
#include "windows/file_handle.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

constexpr DWORD KeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

// Gives the permissions and attributes of the model to the file. A disk without permissions has none to give.
void GiveLike(const std::string& path, const std::string& model) {
  const std::wstring from = WidePath(model);
  const std::wstring to = WidePath(path);
  DWORD size = 0;
  GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> permissions(size);
  if (size > 0 && GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, permissions.data(), size, &size) != 0) {
    SetFileSecurityW(to.c_str(), DACL_SECURITY_INFORMATION, permissions.data());
  }
  const DWORD attributes = AttributesOf(model) & KeptAttributes;
  if (attributes != 0) SetFileAttributesW(to.c_str(), attributes);
}

// Returns the path as users know it, without the prefix of long paths.
std::string WithoutPrefix(const std::string& path) {
  constexpr std::string_view Prefix = R"(\\?\)";
  constexpr std::string_view NetworkPrefix = R"(\\?\UNC\)";
  if (path.starts_with(NetworkPrefix)) return R"(\\)" + path.substr(NetworkPrefix.size());
  return path.starts_with(Prefix) ? path.substr(Prefix.size()) : path;
}

// A temporary file that replaces another one when it is complete. The destructor removes it if it has not.
class Replacement {
 public:
  explicit Replacement(std::string path) : path_(std::move(path)) {
    const std::string start = FolderOf(path_) + ".orby-" + std::to_string(GetCurrentProcessId()) + "-";
    for (int number = 0; !file_; ++number) {
      beside_ = start + std::to_string(number);
      const auto failure = FailureOf([this] { file_.emplace(beside_, FileHandle::Opening::ToMake); });
      if (failure && !Exists(AttributesOf(beside_))) throw *failure;
    }
  }
  ~Replacement() {
    if (!file_) return;
    file_.reset();
    DeleteFileW(WidePath(beside_).c_str());
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  void Fill(std::string_view bytes) {
    file_->Write(bytes);
    file_->Flush();
    file_->Close();
  }

  void TakeItsPlace(bool replaces) {
    if (replaces) GiveLike(beside_, path_);
    constexpr DWORD InOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    if (MoveFileExW(WidePath(beside_).c_str(), WidePath(path_).c_str(), InOneStep) == 0) throw LastFileError(path_);
    file_.reset();
  }

 private:
  std::string path_;
  std::string beside_;
  std::optional<FileHandle> file_;  // until it has replaced the other file
};

}  // namespace

std::string ResolvedLinks(const std::string& path) {
  const DWORD attributes = AttributesOf(path);
  if (!Exists(attributes) || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return path;
  HANDLE file = CreateFileW(WidePath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                            OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (file == INVALID_HANDLE_VALUE) return path;
  std::wstring target(32'768, L'\0');
  const DWORD length = GetFinalPathNameByHandleW(file, target.data(), static_cast<DWORD>(target.size()), 0);
  CloseHandle(file);
  target.resize(length < target.size() ? length : 0);
  return target.empty() ? path : WithoutPrefix(Utf8Text(target));
}

void MakeFileOnDiskLike(const std::string& path, const std::string& model) {
  if (!Exists(AttributesOf(model))) throw LastFileError(model);
  FileHandle(path, FileHandle::Opening::ToMake).Close();
  GiveLike(path, model);
}

void ReplaceFileOnDisk(const std::string& path, std::string_view bytes) {
  const DWORD attributes = AttributesOf(path);
  const bool replaces = Exists(attributes);
  if (IsFolder(attributes)) throw FileError(ERROR_ACCESS_DENIED, path);
  // The system itself would replace it only if it belonged to another user.
  if (replaces && (attributes & FILE_ATTRIBUTE_READONLY) != 0) throw FileError(ERROR_WRITE_PROTECT, path);
  Replacement replacement(ResolvedLinks(path));
  replacement.Fill(bytes);
  replacement.TakeItsPlace(replaces);
}

}  // namespace orby
