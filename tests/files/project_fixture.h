// A program with a short list of standing supports, on a platform in memory.
#pragma once

#include <string>
#include <utility>

#include "core/messages.h"
#include "files/new_project.h"
#include "files/project_file.h"
#include "files/save_command.h"
#include "support/recording_platform.h"

namespace orby::test {

inline const std::string ProjectPath = "/designs/panel3.orb";
inline const std::string TemporaryDescription = "/tmp/~tmpdesc.tmp";

struct TestProject {
  TestProject() {
    program.session.catalogs.StandSupports.HighestIndex = 1;
    program.session.catalogs.StandSupports.DefaultStandSupportType = {"Four-point timber crib", "Pumped crib"};
    program.project.CurrentFile = ProjectPath;
  }

  std::string& File() { return platform.files.files[ProjectPath]; }

  bool Save() {
    FileSave(program);
    return program.project.FileSaved;
  }

  bool Open() { return MayLeavePreviousFile(program) && FileOpen(program); }

  bool Open(std::string bytes) {
    File() = std::move(bytes);
    return Open();
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

struct NewProject : TestProject {
  NewProject() { FileNew(program, Keeping::Name); }
};

// Returns the joined lines, each with CR LF.
inline std::string Lines(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (const auto line : lines) {
    text += line;
    text += "\r\n";
  }
  return text;
}

}  // namespace orby::test
