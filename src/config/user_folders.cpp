#include "config/user_folders.h"

#include <string>
#include <string_view>

#include "base/attempt.h"
#include "base/paths.h"
#include "core/file_helpers.h"
#include "core/program_names.h"
#include "platform/whole_file.h"

namespace orby {
namespace {

constexpr std::string_view GroupFolderName = "MyStrataDesk";
constexpr std::string_view TemporaryFolderName = "Temp";
constexpr std::string_view ExamplesFolderName = "examples";

std::string Below(const std::string& folder, std::string_view name) {
  return WithSeparator(WithSeparator(folder).append(name));
}

bool IsThere(FileSystem& files, const std::string& folder) {
  bool found = false;
  return Succeeds([&] { found = files.Finds(folder); }) && found;
}

// Returns the folder and makes it when it is missing. Returns the folder of the program when it cannot be made.
std::string MadeOrProgramFolder(Program& program, const std::string& folder) {
  FileSystem& files = program.platform.files;
  Succeeds([&] { files.MakeFolder(folder); });
  return IsThere(files, folder) ? folder : AppDirectory(program.platform.files);
}

std::vector<std::string> ShippedExamples(FileSystem& files) {
  return files.FilesIn(AppDirectory(files).append(ExamplesFolderName));
}

// Returns the path of the user's copy of an example.
std::string CopyOf(const Program& program, const std::string& example) {
  return WithSeparator(program.session.settings.DataPath).append(NameAfterSeparator(example));
}

void CopyMissing(FileSystem& files, const std::string& source, const std::string& target) {
  if (files.Finds(target)) return;
  TryWriteWhole(files, target, files.ReadFile(source));
}

}  // namespace

void FindUserFolders(Program& program) {
  const auto documents = program.platform.userFolders.Documents();
  const auto desktop = program.platform.userFolders.Desktop();
  Folders& folders = program.session.folders;
  if (!documents || !desktop) {
    const std::string own = AppDirectory(program.platform.files);
    folders = {own, own, own, own};
    return;
  }
  const std::string group = Below(*documents, GroupFolderName);
  folders.Group = MadeOrProgramFolder(program, group);
  folders.GroupTemporary = MadeOrProgramFolder(program, Below(group, TemporaryFolderName));
  folders.ProgramData = MadeOrProgramFolder(program, Below(group, ProgramShortName));
  folders.ProgramTemporary = MadeOrProgramFolder(program, Below(folders.ProgramData, TemporaryFolderName));
}

void CopyExamples(Program& program) {
  if (program.session.settings.CopyExampleFiles != 1) return;
  FileSystem& files = program.platform.files;
  for (const std::string& source : ShippedExamples(files)) {
    Succeeds([&] { CopyMissing(files, source, CopyOf(program, source)); });
  }
}

std::vector<std::string> ExampleFiles(Program& program) {
  FileSystem& files = program.platform.files;
  const std::string ending = "." + std::string(BuiltInExtension);
  std::vector<std::string> found;
  for (const std::string& source : ShippedExamples(files)) {
    if (!source.ends_with(ending)) continue;
    const std::string copy = CopyOf(program, source);
    found.push_back(IsThere(files, copy) ? copy : source);
  }
  return found;
}

void EnterWorkingFolder(Program& program) {
  FileSystem& files = program.platform.files;
  const std::string own = AppDirectory(program.platform.files);
  Succeeds([&] { files.SetWorkingFolder(files.CanWriteTo(own) ? own : program.session.folders.ProgramData); });
}

}  // namespace orby
