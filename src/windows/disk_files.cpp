#include "machine/disk_files.h"

#include <algorithm>
#include <utility>

#include "base/attempt.h"
#include "base/paths.h"
#include "base/runtime_error.h"
#include "windows/file_attributes.h"
#include "windows/file_errors.h"
#include "windows/file_handle.h"
#include "windows/in_place_file.h"
#include "windows/replaced_file.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

using Opening = FileHandle::Opening;

constexpr std::size_t PieceSize = 1U << 16U;

class DiskOutputFile : public OutputFile {
 public:
  explicit DiskOutputFile(const std::string& path) : file_(path, Opening::ToOverwrite) { file_.Cut(); }
  void Write(std::string_view bytes) override { file_.Write(bytes); }
  void Close() override { file_.Close(); }

 private:
  FileHandle file_;
};

class DiskInputFile : public InputFile {
 public:
  explicit DiskInputFile(const std::string& path) : file_(path, Opening::ToRead) {}
  std::string Read(std::size_t most) override { return file_.Read(most); }

 private:
  FileHandle file_;
};

// A byte of the file is locked that lies beyond the end of every file, so that the file can be read meanwhile. The
// system unlocks it when the program ends, also after a crash.
class DiskFileMark : public FileMark {
 public:
  explicit DiskFileMark(const std::string& path) : file_(path, Opening::ToMark) {}

  bool TryLock() {
    OVERLAPPED place{};
    place.OffsetHigh = 0x7FFF'FFFF;
    return LockFileEx(file_.Handle(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) != 0;
  }

 private:
  FileHandle file_;
};

// Calls `act` for each file and folder in the folder.
template <class Act>
void ForEachIn(const std::string& folder, const Act& act) {
  WIN32_FIND_DATAW found{};
  const std::wstring path = WidePath(folder);
  HANDLE first = FindFirstFileW((path + (EndsInSeparator(folder) ? L"*" : L"\\*")).c_str(), &found);
  if (first == INVALID_HANDLE_VALUE) {
    const DWORD problem = GetLastError();
    const DWORD attributes = AttributesOf(folder);
    if (Exists(attributes) && !IsFolder(attributes)) throw RuntimeError(error_number::PathNotFound);
    // An empty disk has no entries at all.
    if (Exists(attributes) && problem == ERROR_FILE_NOT_FOUND) return;
    throw FileError(problem, WithSeparator(folder));
  }
  const std::unique_ptr<void, decltype(&FindClose)> search(first, FindClose);
  do {
    const std::string name = Utf8Text(found.cFileName);
    if (name != "." && name != "..") act(name, found.dwFileAttributes);
  } while (FindNextFileW(search.get(), &found) != 0);
}

// Makes the folder and those above it. `permissions` are those of the last one.
void MakeFolders(const std::string& path, SECURITY_ATTRIBUTES* permissions) {
  const std::string folder(IsRoot(path) ? path : WithoutSeparator(path));
  const std::wstring wide = WidePath(folder);
  if (CreateDirectoryW(wide.c_str(), permissions) != 0) return;
  if (GetLastError() == ERROR_PATH_NOT_FOUND) {
    const std::string above = FolderOf(folder);
    if (above.empty() || IsRoot(above)) throw FileError(ERROR_PATH_NOT_FOUND, path);
    MakeFolders(above, nullptr);
    if (CreateDirectoryW(wide.c_str(), permissions) != 0) return;
  }
  const DWORD problem = GetLastError();
  if (IsFolder(AttributesOf(folder))) return;
  throw problem == ERROR_ALREADY_EXISTS ? RuntimeError(error_number::PathNotFound) : FileError(problem, path);
}

}  // namespace

DiskFiles::DiskFiles(std::string programFolder) : programFolder_(std::move(programFolder)) {}

Found DiskFiles::Find(const std::string& path) {
  if (path.empty()) return Found::Nothing;
  const DWORD attributes = AttributesOf(path);
  if (IsFolder(attributes)) return Found::Folder;
  // Only a folder has a separator at its end.
  if (Exists(attributes)) return EndsInSeparator(path) ? Found::Nothing : Found::File;
  switch (GetLastError()) {
    // The path has a folder that may not be entered, which is error 75 and not error 70 of a file that may not be used.
    case ERROR_ACCESS_DENIED: throw RuntimeError(error_number::PathFileAccess);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE: throw RuntimeError(error_number::BadFileName);
    default: return Found::Nothing;
  }
}

std::string DiskFiles::ReadFile(const std::string& path) {
  FileHandle file(path, Opening::ToRead);
  std::string bytes;
  // The file may grow while it is read.
  bytes.reserve(file.Length());
  for (std::string piece; !(piece = file.Read(PieceSize)).empty();) bytes += piece;
  return bytes;
}

std::unique_ptr<InputFile> DiskFiles::OpenFile(const std::string& path) {
  return std::make_unique<DiskInputFile>(path);
}

std::uint64_t DiskFiles::FileLength(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA facts{};
  if (GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &facts) == 0) throw LastFileError(path);
  if (IsFolder(facts.dwFileAttributes)) return 0;
  return (static_cast<std::uint64_t>(facts.nFileSizeHigh) << 32U) | facts.nFileSizeLow;
}

std::optional<Moment> DiskFiles::WrittenAt(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA facts{};
  SYSTEMTIME world{};
  SYSTEMTIME time{};
  if (GetFileAttributesExW(WidePath(path).c_str(), GetFileExInfoStandard, &facts) == 0 ||
      FileTimeToSystemTime(&facts.ftLastWriteTime, &world) == 0 ||
      SystemTimeToTzSpecificLocalTime(nullptr, &world, &time) == 0) {
    return std::nullopt;
  }
  return Moment{{time.wYear, time.wMonth, time.wDay}, time.wHour, time.wMinute, time.wSecond};
}

std::unique_ptr<OutputFile> DiskFiles::CreateFile(const std::string& path) {
  return std::make_unique<DiskOutputFile>(path);
}

std::unique_ptr<OutputFile> DiskFiles::OpenInPlace(const std::string& path, std::uint64_t length) {
  return OpenFileInPlace(path, length);
}

void DiskFiles::RemoveFile(const std::string& path) {
  if (DeleteFileW(WidePath(path).c_str()) == 0) throw LastFileError(path);
}

void DiskFiles::RenameFile(const std::string& path, const std::string& newPath) {
  constexpr DWORD InOneStep = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
  if (MoveFileExW(WidePath(path).c_str(), WidePath(newPath).c_str(), InOneStep) != 0) return;
  const DWORD problem = GetLastError();
  throw FileError(problem, Exists(AttributesOf(path)) ? newPath : path);
}

void DiskFiles::ReplaceFile(const std::string& path, std::string_view bytes) { ReplaceFileOnDisk(path, bytes); }

void DiskFiles::MakeFileLike(const std::string& path, const std::string& model) { MakeFileOnDiskLike(path, model); }

std::string DiskFiles::ResolveLinks(const std::string& path) { return ResolvedLinks(path); }

void DiskFiles::MakeFolder(const std::string& path) { MakeFolders(path, nullptr); }

void DiskFiles::MakePrivateFolder(const std::string& path) {
  // Full access for the owner and the system, inherited by what the folder contains, and nothing from the folder above.
  constexpr const wchar_t* OwnerOnly = L"D:P(A;OICI;FA;;;OW)(A;OICI;FA;;;SY)";
  SECURITY_ATTRIBUTES permissions{sizeof(SECURITY_ATTRIBUTES), nullptr, FALSE};
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(OwnerOnly, SDDL_REVISION_1,
                                                           &permissions.lpSecurityDescriptor, nullptr) == 0) {
    throw LastFileError(path);
  }
  const std::unique_ptr<void, decltype(&LocalFree)> owned(permissions.lpSecurityDescriptor, LocalFree);
  MakeFolders(path, &permissions);
}

// Only an attempt shows whether files can be made: the attributes of a folder say nothing about it.
bool DiskFiles::CanWriteTo(const std::string& folder) {
  if (!Succeeds([&] { static_cast<void>(WidePath(folder)); })) return false;
  const std::string path = WithSeparator(folder) + ".orby-" + std::to_string(GetCurrentProcessId());
  HANDLE file = CreateFileW(WidePath(path).c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                            FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  CloseHandle(file);
  return true;
}

std::vector<std::string> DiskFiles::FilesIn(const std::string& folder) {
  std::vector<std::string> files;
  Succeeds([&] {
    ForEachIn(folder, [&](const std::string& name, DWORD attributes) {
      if (!IsFolder(attributes)) files.push_back(WithSeparator(folder) + name);
    });
  });
  std::ranges::sort(files);
  return files;
}

std::vector<std::string> DiskFiles::FoldersIn(const std::string& folder) {
  std::vector<std::string> folders;
  ForEachIn(folder, [&](const std::string& name, DWORD attributes) {
    const bool isHidden = name.starts_with('.') || (attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (IsFolder(attributes) && !isHidden) folders.push_back(name);
  });
  std::ranges::sort(folders);
  return folders;
}

std::vector<std::string> DiskFiles::Drives() {
  std::vector<std::string> drives;
  const DWORD present = GetLogicalDrives();
  for (unsigned letter = 0; letter < 26; ++letter) {
    if ((present >> letter & 1U) != 0) drives.push_back(static_cast<char>('A' + letter) + std::string(":\\"));
  }
  return drives;
}

void DiskFiles::SetWorkingFolder(const std::string& path) {
  if (SetCurrentDirectoryW(WidePath(path).c_str()) == 0) throw LastFileError(WithSeparator(path));
}

// A name that names no file stays, and is refused when the path is used. The system would make another name of it.
std::string DiskFiles::AbsolutePath(const std::string& path) {
  if (Succeeds([&] { static_cast<void>(WidePath(path)); })) return Utf8Text(FullPath(WideText(path)));
  const std::string folder = FolderOf(path);
  return folder.empty() ? path : WithSeparator(Utf8Text(FullPath(WideText(folder)))) + path.substr(folder.size());
}

std::unique_ptr<FileMark> DiskFiles::TryMark(const std::string& path) {
  try {
    auto mark = std::make_unique<DiskFileMark>(path);
    return mark->TryLock() ? std::move(mark) : nullptr;
  } catch (const RuntimeError&) {
    return nullptr;
  }
}

std::string DiskFiles::TemporaryFolder() {
  std::wstring text(MAX_PATH + 1, L'\0');
  const DWORD length = GetTempPathW(static_cast<DWORD>(text.size()), text.data());
  text.resize(length < text.size() ? length : 0);
  const std::string folder = Utf8Text(text);
  // The system does not look whether there is such a folder.
  if (Find(folder) != Found::Folder) throw RuntimeError(error_number::PathNotFound);
  return folder;
}

std::string DiskFiles::ProgramFolder() { return programFolder_; }

}  // namespace orby
