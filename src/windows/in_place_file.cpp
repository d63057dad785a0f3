#include "windows/in_place_file.h"

#include <string_view>

#include "base/runtime_error.h"
#include "windows/file_attributes.h"
#include "windows/file_errors.h"
#include "windows/file_handle.h"
#include "windows/system.h"
#include "windows/wide_text.h"

namespace orby {
namespace {

class InPlaceFile : public OutputFile {
 public:
  InPlaceFile(const std::string& path, std::uint64_t length, bool isNew)
      : file_(path, FileHandle::Opening::ToOverwrite) {
    try {
      FindRoom(path, length);
    } catch (const RuntimeError&) {
      file_.Close();
      if (isNew) DeleteFileW(WidePath(path).c_str());
      throw;
    }
  }

  void Write(std::string_view bytes) override { file_.Write(bytes); }

  void Close() override {
    file_.Cut();
    file_.Flush();
    file_.Close();
  }

 private:
  // Throws RuntimeError 61 if the free space of the disk is too small. A disk that does not know its free space is
  // assumed to have enough.
  void FindRoom(const std::string& path, std::uint64_t length) const {
    const std::uint64_t held = file_.Length();
    if (length <= held) return;
    const std::string folder = FolderOf(path);
    ULARGE_INTEGER room{};
    const std::wstring disk = folder.empty() ? L"." : WidePath(folder);
    if (GetDiskFreeSpaceExW(disk.c_str(), &room, nullptr, nullptr) == 0) return;
    if (room.QuadPart < length - held) throw FileError(ERROR_DISK_FULL, path);
  }

  FileHandle file_;
};

}  // namespace

std::unique_ptr<OutputFile> OpenFileInPlace(const std::string& path, std::uint64_t length) {
  const bool isNew = !Exists(AttributesOf(path));
  return std::make_unique<InPlaceFile>(path, length, isNew);
}

}  // namespace orby
