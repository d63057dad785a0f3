// Files in memory, for tests: any step can fail, and the power can go at any step.
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

// The power goes at a step of the files: nothing after it happens, and nothing below the test catches this.
struct PowerCut {};

// Files in memory. Any step of a file's life can be made to fail with a run-time error, or to be the last before the
// power goes.
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

  // The step fails with this error, as soon as it has succeeded `after` times; so many times, or always.
  void Fail(Step step, int errorNumber, int after = 0, int count = Always);
  // No step fails any more.
  void Mend();

  // The step after so many others fails with this error, whatever it is.
  void FailNext(int errorNumber, int after);
  // That step and all that follow it fail.
  void FailFrom(int errorNumber, int after);
  // The power goes at the step after so many others.
  void CutPower(int after);
  // Whether that step has come.
  bool HasFailed() const;

  bool Finds(const std::string& path, bool foldersToo) override;

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
  std::string BehindLinks(const std::string& path) override;

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
  std::map<std::string, std::string> onDisk;  // what is sure to be there after a power cut
  std::map<std::string, Moment> times;        // when they were written last
  std::set<std::string, std::less<>> folders{"/tmp", "/program"};
  std::set<std::string, std::less<>> readOnly;  // folders
  std::set<std::string, std::less<>> privateFolders;
  std::map<std::string, std::string> links;       // where they lead to; only BehindLinks looks at them
  std::map<std::string, std::string> likeOthers;  // files that were made like another one
  std::set<std::string> marked;                   // files in use by a program
  std::vector<std::string> drives{"/"};
  std::string workingFolder = "/section";
  std::vector<std::string> created;
  std::size_t bytesRead = 0;  // from files that were read piece by piece

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
  Failure nextFailure;  // of whatever step; none: no error number
};

}  // namespace orby::test
