#include "posix/file_errors.h"

#include <cerrno>
#include <filesystem>

namespace orby {

RuntimeError FileError(int systemError, const std::string& path) {
  switch (systemError) {
    case ENOENT: {
      const auto folder = std::filesystem::path(path).parent_path();
      std::error_code ignored;
      const bool folderIsMissing = !folder.empty() && !std::filesystem::is_directory(folder, ignored);
      return RuntimeError(folderIsMissing ? error_number::PathNotFound : error_number::FileNotFound);
    }
    case ENOTDIR: return RuntimeError(error_number::PathNotFound);
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return RuntimeError(error_number::DiskFull);
    case EACCES:
    case EPERM:
    case EROFS: return RuntimeError(error_number::PermissionDenied);
    case ENAMETOOLONG:
    case EINVAL: return RuntimeError(error_number::BadFileName);
    case ENOMEM: return RuntimeError(error_number::OutOfMemory);
    default: return RuntimeError(error_number::PathFileAccess);
  }
}

void CheckName(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) throw RuntimeError(error_number::BadFileName);
}

}  // namespace orby
