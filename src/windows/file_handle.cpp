#include "windows/file_handle.h"

#include <algorithm>
#include <array>
#include <utility>

#include "windows/file_errors.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

struct OpeningRule {
  DWORD access;
  DWORD disposition;
};

// By Opening. Windows cannot empty a hidden file at its opening, so one that is overwritten is cut afterwards.
constexpr std::array<OpeningRule, 4> Rules{{{GENERIC_READ, OPEN_EXISTING},
                                            {GENERIC_WRITE, OPEN_ALWAYS},
                                            {GENERIC_WRITE, CREATE_NEW},
                                            {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS}}};

constexpr std::size_t LargestPiece = 1U << 30U;  // of one call of the system

HANDLE Open(const std::string& path, FileHandle::Opening opening) {
  constexpr DWORD Sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const OpeningRule& rule = Rules[static_cast<std::size_t>(opening)];
  HANDLE file = CreateFileW(WidePath(path).c_str(), rule.access, Sharing, nullptr, rule.disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) throw LastFileError(path);
  return file;
}

}  // namespace

FileHandle::FileHandle(const std::string& path, Opening opening) : path_(path), file_(Open(path, opening)) {}

FileHandle::~FileHandle() {
  if (file_ != nullptr) CloseHandle(file_);
}

std::uint64_t FileHandle::Length() const {
  LARGE_INTEGER length{};
  return GetFileSizeEx(file_, &length) != 0 ? static_cast<std::uint64_t>(length.QuadPart) : 0;
}

std::string FileHandle::Read(std::size_t most) {
  std::string bytes(std::min(most, LargestPiece), '\0');
  DWORD count = 0;
  if (ReadFile(file_, bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr) == 0) {
    throw LastFileError(path_);
  }
  bytes.resize(count);
  return bytes;
}

void FileHandle::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    DWORD count = 0;
    const auto size = static_cast<DWORD>(std::min(bytes.size(), LargestPiece));
    if (WriteFile(file_, bytes.data(), size, &count, nullptr) == 0) throw LastFileError(path_);
    bytes.remove_prefix(count);
  }
}

void FileHandle::Cut() {
  if (SetEndOfFile(file_) == 0) throw LastFileError(path_);
}

void FileHandle::Flush() {
  // Some network disks do not support this call.
  if (FlushFileBuffers(file_) == 0 && GetLastError() != ERROR_INVALID_FUNCTION) throw LastFileError(path_);
}

void FileHandle::Close() {
  if (CloseHandle(std::exchange(file_, nullptr)) == 0) throw LastFileError(path_);
}

}  // namespace orby
