// The file system of this machine. Paths are UTF-8.
#pragma once

#include "platform/file_system.h"

namespace orby {

class DiskFiles : public FileSystem {
 public:
  explicit DiskFiles(std::string programFolder);

  Found Find(const std::string& path) override;
  std::string ReadFile(const std::string& path) override;
  std::unique_ptr<InputFile> OpenFile(const std::string& path) override;
  std::uint64_t FileLength(const std::string& path) override;
  std::optional<Moment> WrittenAt(const std::string& path) override;
  std::unique_ptr<OutputFile> CreateFile(const std::string& path) override;
  std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t length) override;
  void RemoveFile(const std::string& path) override;
  void RenameFile(const std::string& path, const std::string& newPath) override;
  void ReplaceFile(const std::string& path, std::string_view bytes) override;
  void MakeFileLike(const std::string& path, const std::string& model) override;
  std::string ResolveLinks(const std::string& path) override;
  void MakeFolder(const std::string& path) override;
  void MakePrivateFolder(const std::string& path) override;
  bool CanWriteTo(const std::string& folder) override;
  std::vector<std::string> FilesIn(const std::string& folder) override;
  std::vector<std::string> FoldersIn(const std::string& folder) override;
  std::vector<std::string> Drives() override;
  void SetWorkingFolder(const std::string& path) override;
  std::string AbsolutePath(const std::string& path) override;
  std::unique_ptr<FileMark> TryMark(const std::string& path) override;
  std::string TemporaryFolder() override;
  std::string ProgramFolder() override;

 private:
  std::string programFolder_;
};

}  // namespace orby
