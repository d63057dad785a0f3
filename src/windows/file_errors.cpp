#include "windows/file_errors.h"

#include "windows/file_attributes.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

constexpr DWORD DiskQuotaExceeded = 1295;  // which the headers of some compilers lack

// Returns true if the path has a folder that does not exist. Windows reports that as a missing file for some disks.
bool LacksItsFolder(const std::string& path) {
  const std::string folder = FolderOf(path);
  return !folder.empty() && !IsFolder(AttributesOf(folder));
}

}  // namespace

RuntimeError FileError(unsigned long systemError, const std::string& path) {
  switch (systemError) {
    case ERROR_FILE_NOT_FOUND:
      return RuntimeError(LacksItsFolder(path) ? error_number::PathNotFound : error_number::FileNotFound);
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY: return RuntimeError(error_number::PathNotFound);
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case DiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE: return RuntimeError(error_number::DiskFull);
    // Windows denies access to a folder that is used as a file.
    case ERROR_ACCESS_DENIED:
      return RuntimeError(IsFolder(AttributesOf(path)) ? error_number::PathFileAccess : error_number::PermissionDenied);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT: return RuntimeError(error_number::PermissionDenied);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_BUFFER_OVERFLOW:  // of a name that is too long
    case ERROR_FILENAME_EXCED_RANGE: return RuntimeError(error_number::BadFileName);
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY: return RuntimeError(error_number::OutOfMemory);
    default: return RuntimeError(error_number::PathFileAccess);
  }
}

RuntimeError LastFileError(const std::string& path) { return FileError(GetLastError(), path); }

}  // namespace orby
