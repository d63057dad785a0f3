#include "windows/file_errors.h"

#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

constexpr DWORD DiskQuotaExceeded = 1295;  // which the headers of some compilers lack

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(WideText(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

RuntimeError FileError(unsigned long systemError, const std::string& path) {
  switch (systemError) {
    case ERROR_FILE_NOT_FOUND: return RuntimeError(error_number::FileNotFound);
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
      return RuntimeError(IsFolder(path) ? error_number::PathFileAccess : error_number::PermissionDenied);
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT: return RuntimeError(error_number::PermissionDenied);
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE: return RuntimeError(error_number::BadFileName);
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY: return RuntimeError(error_number::OutOfMemory);
    default: return RuntimeError(error_number::PathFileAccess);
  }
}

RuntimeError LastFileError(const std::string& path) { return FileError(GetLastError(), path); }

}  // namespace orby
