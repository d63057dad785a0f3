// Files in memory for tests. Any step can fail, and the power can be cut at any step.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace orby::test {

// The power is cut at a step. Nothing happens after it, and only the test catches this exception.
struct PowerCut {};

// A file system in memory. A test can make any step fail with a run-time error or with a power cut.
class MemoryFiles : public FileSystem {
 public:
  static constexpr int Always = -1;

  enum class Step {
    Find,
    Read,
    Create,
    Reserve,
    Write,
    Cut,
    Flush,
    Close,
    Remove,
    Rename,
    MakeFolder,
    EnterFolder,
    ListFolders
  };

  // Makes the step fail with this error after it has succeeded `after` times. It fails `count` times, or always.
  void Fail(Step step, int errorNumber, int after = 0, int count = Always);
  // Makes all steps succeed again.
  void Mend();

  // Makes one step of any kind fail with this error, after `after` others.
  void FailNext(int errorNumber, int after);
  // Makes that step and all later ones fail.
  void FailFrom(int errorNumber, int after);
  // Cuts the power at a step of any kind, after `after` others.
  void CutPower(int after);
  // Returns true if that step has been reached.
  bool HasFailed() const;

  Found Find(const std::string& path) override;

  std::string ReadFile(const std::string& path) override;

  std::unique_ptr<InputFile> OpenFile(const std::string& path) override;
  std::uint64_t FileLength(const std::string& path) override;
  std::optional<Moment> WrittenAt(const std::string& path) override;

  std::unique_ptr<OutputFile> CreateFile(const std::string& path) override;

  std::unique_ptr<OutputFile> OpenInPlace(const std::string& path, std::uint64_t) override;

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

  std::map<std::string, std::string> files;
  std::map<std::string, std::string> onDisk;  // the bytes that survive a power cut
  std::map<std::string, Moment> times;        // when the files were last written
  std::set<std::string, std::less<>> folders{"/tmp", "/program"};
  std::set<std::string, std::less<>> readOnly;  // folders
  std::set<std::string, std::less<>> privateFolders;
  std::map<std::string, std::string> links;       // targets of links; only ResolveLinks uses them
  std::map<std::string, std::string> likeOthers;  // files that were made by MakeFileLike, and their models
  std::set<std::string> marked;                   // files that TryMark has marked
  std::vector<std::string> drives{"/"};
  std::string workingFolder = "/section";
  std::vector<std::string> created;
  std::size_t bytesRead = 0;  // through InputFile

 private:
  struct Failure {
    int errorNumber = 0;
    int after = 0;
    int times = Always;
    bool hasFailed = false;

    bool IsMet();
  };

  class MemoryOutput;
  class MemoryInPlace;
  class MemoryInput;
  class MemoryMark;

  void Meet(Step step);

  static constexpr int PowerIsCut = -1;

  std::map<Step, Failure> failures;
  Failure nextFailure;  // of a step of any kind; no error number: none
};

}  // namespace orby::test
