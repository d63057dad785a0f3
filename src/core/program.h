// The state of a run of the program.
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
#include "design/prices.h"
#include "design/units.h"
#include "engine/curves.h"
#include "platform/platform.h"

namespace orby {

inline constexpr std::string_view ProgramTitle = "Orby Roof Support Workbench";
inline constexpr std::string_view BuildStamp = "201030";
inline constexpr std::string_view UntitledName = "Untitled";

// The titles of messages. The dialog that opened last sets them.
struct MessageTitles {
  std::string MessageTitle;
  std::string RangeErrorTitle;
  std::string RangeWarningTitle;
  std::string InvalidCharacterTitle;
  std::string ErrorTitle;
  std::string LogicErrorTitle;
};

// The numbered lines about what happened, which the main window shows.
struct History {
  std::string Text;
  Integer HistoryLineCounter = 0;
  std::function<void()> Changed;  // called for each line, also when the history is switched off
};

// The dialog that opened the estimator of the roof rating.
enum class EstimatorCaller { None = 0, ParametersDialog = 2 };

// The last choice in the estimator of the roof rating.
struct EstimatorState {
  Integer EstimatedCMRR = 0;  // 0: none
  Integer EstimatorRegion = 0;
  Integer EstimatorRockType = 0;
  bool EstimatorManual = false;                        // the chosen row is the last of its region
  Integer EstimatorManualValue = 0;                    // nothing sets it, so it has no effect
  EstimatorCaller CallerCode = EstimatorCaller::None;  // kept, but nothing reads it
};

// A curve that is kept for comparison.
struct KeptCurve : Curve {
  Integer Number = 0;  // unique in this run
  Integer CurveIndex = 0;
  UnitSystem Units = English;
  std::optional<CurvePoint> Own;
};

// The curve that was drawn last.
struct DrawnCurve : Curve {
  Integer CurveIndex = 0;
  Integer CurveCount = 0;         // series in the chart
  bool GraphClosed = false;       // the graph window was open and has been closed
  std::optional<CurvePoint> Own;  // of the design that the curve was computed from
  std::vector<CurveReference> References;
  std::vector<KeptCurve> Kept;  // the oldest first
  Integer LastKept = 0;         // the number of the last one kept
};

// The input dialog that requested the report that is shown.
enum class InputDialog { None, Parameters, Cost };

// The inputs of the calculations of a report.
struct ReportBasis {
  RoofSupport Support;
  bool UsesAustralianTable = false;
  Catalogs catalogs;
  bool operator==(const ReportBasis&) const = default;
};

// The page of calculations that the Results button of the parameters showed last.
struct ShownResults {
  ReportBasis MadeFrom;
  std::string Page;
};

// A project file as this run last read or saved it.
struct FileOnDisk {
  std::string Path;  // empty: none
  std::string Bytes;
  bool IsSpoilt = false;      // a failed save has changed the file and could not restore the bytes
  std::string SpoiltBytes{};  // the bytes that the failed save left, as far as they could be read
};

// Where the results window was left in this run, and whether it opens there.
struct ResultsPlace {
  bool IsWanted = false;
  Integer Page = 0;
};

// The part of a project that is kept when its changes were not saved.
struct UnsavedProject {
  std::string CurrentFile{UntitledName};
  Integer UseAUSStandardTable = 0;
  std::string ProjectTitle;
  std::string ProjectDescription;
  bool FileEmpty = true;
  bool UnitsLocked = false;
  Design WorkParms;  // the committed design
};

// A design that the user kept from the fields of the parameters dialog, with the project that it belongs to.
struct KeptVariant : UnsavedProject {
  Integer Number = 0;  // unique in this run
  std::string Name;
};

// A design to compare: a variant, a file, or, without both, the open project.
struct ComparedSource {
  Integer Variant = 0;  // its number; 0: none
  std::string File;
  bool operator==(const ComparedSource&) const = default;
};

// What the user compares in this run.
struct ComparedDesigns {
  std::vector<KeptVariant> Variants;  // the oldest first
  Integer LastVariant = 0;            // the number of the last one kept
  std::vector<ComparedSource> Chosen{ComparedSource{}};
};

// The open project and the state of its file.
struct Project : UnsavedProject {
  Integer DescLines = 0;
  std::string PreviousFile;
  FileOnDisk LastFile;
  Integer FileVersion = 0;  // of the last project read; one less than the number in its label
  bool FileSaved = true;
};

// The state of a run apart from its project.
struct Session {
  Catalogs catalogs;
  Settings settings;
  TextBrowseSettings textBrowse;
  OptionSettings options;
  GraphSettings graph;
  RecentFiles recentFiles;
  WindowPlaces places;
  Folders folders;
  std::string IniFilePath;
  std::string UpdateServer;  // the address at which new versions are published; empty: none
  DesignDefaults defaults;
  PriceLists prices = BuiltInPrices();
  SignedReportSettings signedReport;
  std::string designsFolder;  // whose designs were shown last, with a trailing separator; empty: none
  History history;
  std::array<std::string, 5> OutBuf;  // pages of the last report: 0 the inputs, 1 the calculations or the cost table
  std::optional<ShownResults> LastResults;
  bool NoBackupReported = false;
  std::string SavedDecimalSeparator;
};

// The state that the windows share.
struct WindowState {
  Design WorkParmsCopy;  // the design that a dialog shows, for previews and curves
  Design ResultsShown;   // the fields from which the results on view were made
  MessageTitles titles;
  EstimatorState estimator;
  DrawnCurve curve;
  Integer LastPage = 4;
  InputDialog ReportCaller = InputDialog::None;
  ResultsPlace results;
  ComparedDesigns compared;
  Integer OptionsTab = 0;  // the last page of the options dialog
  Integer RecentMode = 0;
  bool DialogOpen = false;
  std::function<void(InputDialog)> OpenInputDialog;  // opens the dialog, as the Input menu does
};

struct Program {
  explicit Program(Platform platformGiven) : platform(platformGiven) {}

  Platform platform;
  Project project;
  Session session;
  WindowState windows;
  // Stores the bytes of a recovery file where no other run removes them. Returns the path of the file, or an empty text
  // when they could not be stored.
  std::function<std::string(const std::string&)> KeepAside;
  std::function<void()> EndAtOnce = [] {
  };  // ends the run without asking or saving; the next start offers the unsaved work
};

// Returns true if the Australian table of bolts is used. It replaces the Metric one, so it requires Metric units.
inline bool UsesAustralianTable(const Project& project) {
  return project.UseAUSStandardTable == 1 && project.WorkParms.Units == Metric;
}

}  // namespace orby
