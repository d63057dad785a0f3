// A main window on an in-memory platform, with a new English design.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "files/project_writer.h"
#include "shell/main_window.h"
#include "shell/start_up.h"
#include "support/recording_platform.h"

namespace orby::test {

inline const std::string ProgramDataPath = "/home/user/Documents/Orby/";
inline const std::string TemporaryPath = "/home/user/Documents/Orby/Temp/";
inline const std::string RecoveryPath = TemporaryPath + "~recover1.tmp";
inline const std::string IniPath = "/home/user/Documents/Orby/ORBY.INI";
inline const std::string Panel3 = "/designs/panel3.orb";
inline const std::string Panel4 = "/designs/panel4.orb";

// Returns a program as after its start. The disclaimer is off, and opening a file does not open the parameters dialog.
inline Program StartedProgram(const Platform& doors) {
  Program program(doors);
  program.session.folders.ProgramTemporary = TemporaryPath;
  program.session.IniFilePath = IniPath;
  program.session.options.ShowInputScreenOnLoad = 0;
  program.session.settings.ShowDisclaim = 0;
  StartApart(program, nullptr);
  return program;
}

inline Program StartedProgram(RecordingPlatform& platform) { return StartedProgram(platform.AsPlatform()); }

struct MainWindowTest : testing::Test {
  MainWindowTest() {
    platform.files.files[Panel3] = DesignAt(725);
    platform.files.files[Panel4] = DesignAt(980);
    window.Open();
    platform.boxes.shown.clear();
    program.session.history.Text.clear();
  }

  // Returns the bytes of a project file with this depth of cover.
  std::string DesignAt(Single depth) {
    Program other(platform.AsPlatform());
    StartApart(other, nullptr);
    other.project.WorkParms.Place.DepthofCover = depth;
    return ProjectFileBytes(other.project);
  }

  // Chooses Open and then this file.
  void OpenByDialog(const std::string& path) {
    platform.fileDialogs.answers.push_back(path);
    window.mnuFileItem.ClickItem(FileItem::Open);
  }

  // Opens panel 3 and makes an unsaved change.
  void EditPanel3() {
    OpenByDialog(Panel3);
    program.project.WorkParms.Place.DepthofCover = 800;
    program.project.FileSaved = false;
  }

  const std::string& FileAt(const std::string& path) { return platform.files.files.at(path); }
  bool Exists(const std::string& path) const { return platform.files.files.contains(path); }

  RecordingPlatform platform;
  Program program = StartedProgram(platform);
  MainWindow window{program};
};

}  // namespace orby::test
