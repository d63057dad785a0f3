// A main window on a platform of memory, over a new English design.
#pragma once

#include <gmock/gmock.h>

#include <string>

#include "files/project_writer.h"
#include "shell/main_window.h"
#include "shell/start_up.h"
#include "support/recording_platform.h"

namespace orby::test {

inline const std::string TemporaryFolder = "/home/user/Documents/Orby/Temp/";
inline const std::string RecoveryPath = TemporaryFolder + "~recover1.tmp";
inline const std::string IniPath = "/home/user/Documents/Orby/ORBY.INI";
inline const std::string Panel3 = "/designs/panel3.orb";
inline const std::string Panel4 = "/designs/panel4.orb";

// A run as its start leaves it, but for the disclaimer, which is not shown, and the parameters dialog, which no file
// opens by itself.
inline Program StartedProgram(const Platform& doors) {
  Program program(doors);
  program.session.folders.ProgramTemporary = TemporaryFolder;
  program.session.IniFilePath = IniPath;
  program.session.options.ShowInputScreenOnLoad = 0;
  program.session.settings.ShowDisclaim = 0;
  StartApart(program, nullptr);
  return program;
}

inline Program StartedProgram(RecordingPlatform& platform) { return StartedProgram(platform.Doors()); }

struct MainWindowTest : testing::Test {
  MainWindowTest() {
    platform.files.files[Panel3] = DesignAt(725);
    platform.files.files[Panel4] = DesignAt(980);
    window.Open();
    platform.boxes.shown.clear();
    program.session.history.Text.clear();
  }

  // The bytes of a project file with this depth of cover.
  std::string DesignAt(Single depth) {
    Program other(platform.Doors());
    StartApart(other, nullptr);
    other.project.WorkParms.Place.DepthofCover = depth;
    return ProjectFileBytes(other.project);
  }

  // The Open command, the user choosing this file.
  void OpenByDialog(const std::string& path) {
    platform.fileDialogs.answers.push_back(path);
    window.mnuFileItem.ClickItem(FileItem::Open);
  }

  // An open project with a change that is not saved.
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
