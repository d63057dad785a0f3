// The whole state of one run, handed to everything that needs it.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "design/catalog_lists.h"
#include "design/design.h"
#include "design/units.h"
#include "engine/curves.h"
#include "platform/platform.h"

namespace orby {

inline constexpr std::string_view ProgramTitle = "Orby Roof Support Workbench";
inline constexpr std::string_view BuildStamp = "201030";
inline constexpr std::string_view UntitledName = "Untitled";

// The window titles of messages, set by the dialog that loaded last.
struct MessageTitles {
  std::string MessageTitle;
  std::string RangeErrorTitle;
  std::string RangeWarningTitle;
  std::string InvalidCharacterTitle;
  std::string ErrorTitle;
  std::string LogicErrorTitle;
};

// The numbered lines that tell what happened, as the pane of the main window shows them.
struct History {
  std::string Text;
  Integer HistoryLineCounter = 0;
  std::function<void()> Changed;  // a line was asked for, whether or not it was added
};

// What the roof rating estimator last chose.
struct EstimatorState {
  Integer EstimatedCMRR = 0;  // 0: none
  Integer EstimatorRegion = 0;
  Integer EstimatorRockType = 0;
  bool EstimatorManual = false;      // the chosen row is the region's last
  Integer EstimatorManualValue = 0;  // nothing sets it, so it never applies
  Integer CallerCode = 0;            // the dialog that opened the estimator
};

// The curve that was drawn last.
struct DrawnCurve : Curve {
  Integer CurveIndex = 0;
  Integer CurveCount = 0;    // series in the chart
  bool GraphClosed = false;  // the graph window was on the screen and is so no longer
};

// Which input dialog asked for the report on view.
namespace report_caller {
inline constexpr Integer None = -1;
inline constexpr Integer Parameters = 1;
inline constexpr Integer Cost = 2;
}  // namespace report_caller

// What the calculations of a report are made from.
struct ReportBasis {
  RoofSupport Support;
  bool UsesAustralianTable = false;
  Catalogs catalogs;
  bool operator==(const ReportBasis&) const = default;
};

// The calculations that the Results button of the parameters showed last.
struct ShownResults {
  ReportBasis MadeFrom;
  std::string Page;
};

// A project file as this run read or saved it last.
struct FileOnDisk {
  std::string Path;  // empty: none
  std::string Bytes;
  bool IsSpoilt = false;      // a failed save has left something else there, and could not put the bytes back
  std::string SpoiltBytes{};  // what it has left there, as far as that could be read
};

// What is kept of a project whose changes were not saved.
struct UnsavedProject {
  std::string CurrentFile{UntitledName};
  Integer UseAUSStandardTable = 0;
  std::string ProjectTitle;
  std::string ProjectDescription;
  bool FileEmpty = true;
  bool UnitsLocked = false;
  Design WorkParms;  // the committed design
};

// The open project, and what this run knows of its file.
struct Project : UnsavedProject {
  Integer DescLines = 0;
  std::string PreviousFile;
  FileOnDisk LastFile;
  Integer FileVersion = 0;  // of the last project read: one less than the number in its label
  bool FileSaved = true;
};

// What a run keeps beside its project.
struct Session {
  Catalogs catalogs;
  Settings settings;
  TextBrowseSettings textBrowse;
  OptionSettings options;
  GraphSettings graph;
  RecentFiles recentFiles;
  Folders folders;
  std::string IniFilePath;
  std::string UpdateServer;  // the address that new versions are published under; empty: there is none
  DesignDefaults defaults;
  History history;
  std::array<std::string, 5>
      OutBuf;  // pages of the last report: 0 the input echo, 1 the calculations or the cost table
  std::optional<ShownResults> LastResults;
  bool ToldOfNoBackup = false;
  std::string SavedDecimalSeparator;
};

// What the windows hold between them.
struct WindowState {
  Design WorkParmsCopy;  // what a dialog shows, for previews and curves
  MessageTitles titles;
  EstimatorState estimator;
  DrawnCurve curve;
  Integer LastPage = 4;
  Integer ReportCaller = report_caller::None;
  Integer OptionsTab = 0;  // the page of the options dialog that was chosen last
  Integer RecentMode = 0;
  bool DialogOpen = false;
  std::function<void(Integer)> OpenInputDialog;  // opens the dialog of this report_caller, as the Input menu does
};

struct Program {
  explicit Program(Platform platformGiven) : platform(platformGiven) {}

  Platform platform;
  Project project;
  Session session;
  WindowState windows;
  // Keeps the bytes of a recovery file where no other run takes them, as far as the disk has the room, and returns the
  // file that has them; empty when none has.
  std::function<std::string(const std::string&)> KeepAside;
  std::function<void()> EndAtOnce = [] {
  };  // ends the run: no question, nothing saved; unsaved work is kept for the next start
};

// Whether the Australian table of bolts is the one in force: it is a variant of the Metric tables.
inline bool UsesAustralianTable(const Project& project) {
  return project.UseAUSStandardTable == 1 && project.WorkParms.Units == Metric;
}

}  // namespace orby
