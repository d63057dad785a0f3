// Fuzzes recovery files: a project that is read from the bytes writes the same bytes. Also uses the bytes as the texts
// of a project, which must read back unchanged.
#include "files/recovery_file.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/code_page.h"
#include "files/project_file.h"
#include "support/recording_platform.h"

namespace {

using orby::UnsavedProject;

void Expect(bool holds) {
  if (!holds) std::abort();
}

void ReadAsFile(const std::string& bytes) {
  const auto project = orby::ReadRecovery(bytes);
  if (!project) return;
  orby::test::RecordingPlatform platform;
  orby::Program program(platform.AsPlatform());

  orby::RestoreProject(program.project, *project);

  Expect(!program.project.FileSaved);
  Expect(orby::RecoveryBytes(program.project) == bytes);
  Expect(!orby::ProjectFileBytes(program.project).empty());
}

void KeepAsTexts(const std::string& text) {
  UnsavedProject project;
  project.CurrentFile = text;
  if (orby::IsValidUtf8(text)) {
    project.ProjectTitle = text;
    project.ProjectDescription = text;
    project.WorkParms.Intersections.Bolt.Desc = text;
    project.WorkParms.Entries.Standing.TypeName = text;
  }
  const std::string bytes = orby::RecoveryBytes(project);

  const auto read = orby::ReadRecovery(bytes);

  Expect(read.has_value());
  Expect(read->CurrentFile == project.CurrentFile);
  Expect(read->ProjectTitle == project.ProjectTitle);
  Expect(read->ProjectDescription == project.ProjectDescription);
  Expect(read->WorkParms.Intersections.Bolt.Desc == project.WorkParms.Intersections.Bolt.Desc);
  Expect(read->WorkParms.Entries.Standing.TypeName == project.WorkParms.Entries.Standing.TypeName);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  ReadAsFile(bytes);
  KeepAsTexts(bytes);
  return 0;
}
