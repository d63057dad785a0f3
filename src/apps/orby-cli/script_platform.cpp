#include "apps/orby-cli/script_platform.h"

#include <cstdio>
#include <utility>

namespace orby::cli {
namespace {

// A folder that no real path can name.
constexpr std::string_view ScratchFolder{"\0scratch", 8};

bool IsScratch(const std::string& path) { return path.starts_with(ScratchFolder); }

class ScratchFile : public OutputFile {
 public:
  explicit ScratchFile(std::string& text) : text_(text) {}
  void Write(std::string_view bytes) override { text_ += bytes; }
  void Close() override {}

 private:
  std::string& text_;
};

class WholeFile : public OutputFile {
 public:
  WholeFile(FileSystem& files, std::string path) : files_(files), path_(std::move(path)) {}
  void Write(std::string_view bytes) override { bytes_ += bytes; }
  void Close() override { files_.ReplaceFile(path_, bytes_); }

 private:
  FileSystem& files_;
  std::string path_;
  std::string bytes_;
};

}  // namespace

BoxResult ScriptBoxes::Show(const MessageBox& box) {
  if (Keeps) {
    Kept.push_back(box.text);
  } else {
    const std::string line = "message: " + box.text + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
  }
  // No user is present to retry or to agree.
  return box.style.Buttons == BoxButtons::Ok ? BoxResult::Ok : BoxResult::Cancel;
}

Found ScriptFiles::Find(const std::string& path) {
  if (!IsScratch(path)) return DiskFiles::Find(path);
  if (path == ScratchFolder) return Found::Folder;
  return scratch_.contains(path) ? Found::File : Found::Nothing;
}

std::string ScriptFiles::ReadFile(const std::string& path) {
  return IsScratch(path) ? scratch_.at(path) : DiskFiles::ReadFile(path);
}

std::unique_ptr<OutputFile> ScriptFiles::CreateFile(const std::string& path) {
  if (!IsScratch(path)) return std::make_unique<WholeFile>(*this, path);
  std::string& text = scratch_[path];
  text.clear();
  return std::make_unique<ScratchFile>(text);
}

// Scripts need no partly written file, so the old file stays until the new one is complete.
std::unique_ptr<OutputFile> ScriptFiles::OpenInPlace(const std::string& path, std::uint64_t) {
  return CreateFile(path);
}

void ScriptFiles::RemoveFile(const std::string& path) {
  if (IsScratch(path)) {
    scratch_.erase(path);
  } else {
    DiskFiles::RemoveFile(path);
  }
}

std::string ScriptFiles::TemporaryFolder() { return std::string(ScratchFolder); }

}  // namespace orby::cli
