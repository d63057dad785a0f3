// The user's settings and the initial values of a new design.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"
#include "design/units.h"

namespace orby {

inline constexpr std::string_view BuiltInExtension = "ORB";
inline constexpr std::string_view BuiltInViewer = "Notepad.exe";

// Flags are 0 and 1, except the font flags, which are 0 and -1.
struct Settings {
  UnitSystem UnitsDefault = English;
  Integer DisplayHistoryWin = 1;
  Integer MaxDisplaySize = 2048;  // characters; a history of this length is reduced to its last two lines
  std::string DisplayFontName;
  Single DisplayFontSize = 10;
  Integer DisplayFontBold = 0;
  Integer DisplayFontItalic = 0;
  Integer KeepFileNames = 1;
  Integer ShowDisclaim = 1;
  Integer MaxMainMenu = 0;
  Integer EnableMainMenuToolbar = 1;
  Integer ShortRecentFiles = 0;
  Integer LoadLastInputFile = 0;
  Integer RemindAnnualUpdates = 1;
  Integer CopyExampleFiles = 1;
  std::string ExternalEditor{BuiltInViewer};
  std::string DataPath;  // with a trailing separator
  std::string FileExtension{BuiltInExtension};
  bool operator==(const Settings&) const = default;
};

struct TextBrowseSettings {
  std::string BrowseFontName;
  Single BrowseFontSize = 10;
  Integer BrowseFontBold = 0;
  Integer BrowseFontItalic = 0;
  std::string BrowseDefaultFilter;
  Integer BrowseUseNotepad = 0;
  std::string LastFolder;  // of this run only; empty: DataPath
};

// Choices that apply until the program ends. They are written to a section of the configuration file that is never
// read.
struct OptionSettings {
  StrengthBasis BoltGradeAsUltimateDefault = StrengthBasis::Yield;  // of a new design
  Integer OutputStrUnits = 0;
  Integer OutputStrGradUnits = 0;
  Integer ShowInputScreenOnLoad = 1;
  Integer ViewChildWindow = 1;
  Integer PrintModuleHeader = 1;
  Integer AskOfficeInstall = 1;
};

// The recent files in the File menu, the newest first.
struct RecentFiles {
  static constexpr Integer Capacity = 4;
  struct Entry {
    std::string LastFile;  // the text in the menu
    Integer LastFileMode = 0;
    std::string LastFileLong;  // the path
  };
  Integer MaxLastFiles = 0;  // entries in use
  std::array<Entry, Capacity> Entries;
};

enum class FormatParameters : Integer { Default, LastUsed };
enum class GridLines : Integer { None, Horizontal, Vertical, Both };
enum class CurveStyle : Integer { LinesOnly = 1, SymbolsOnly, LinesAndSymbols };

// How curves are drawn.
struct GraphSettings {
  FormatParameters GraphSetParams = FormatParameters::Default;
  GridLines GridStyle = GridLines::Both;
  CurveStyle GraphStyle = CurveStyle::LinesAndSymbols;
  Integer CurveLegend = 1;
  Integer SymbolSize = 6;
  UnitSystem GraphUnits = English;  // the unit system of the axis titles
  std::string GraphTitle;
  std::array<std::string, 10> XAxisTitle;  // of each curve
  std::array<std::string, 3> YAxisTitle;   // of each dependent variable
};

// Where windows stood when they were last closed, by the name of the form: left and top of the frame, inner width and
// height, and 1 if maximized. How a window is divided, by the name of the form and that of the divider after a point:
// the sizes of the parts. In pixels of the desktop.
using WindowPlaces = std::map<std::string, std::vector<int>, std::less<>>;

// Folders for the data of the user. Each path has a trailing separator.
struct Folders {
  std::string Group;
  std::string GroupTemporary;
  std::string ProgramData;
  std::string ProgramTemporary;
};

// The size of printed pages.
enum class PaperChoice : Integer { ByLocale, AlwaysA4, AlwaysLetter };

// What the first page of a signed report says about its project.
struct TitleBlock {
  std::string Company;
  std::string Mine;
  std::string Section;
  std::string Author;
  std::string Checker;
  std::string Revision;
  bool operator==(const TitleBlock&) const = default;
};

struct TitleField {
  std::string_view Name;
  std::string TitleBlock::*Text;
};
inline constexpr std::array<TitleField, 6> TitleFields{{{"Company", &TitleBlock::Company},
                                                        {"Mine", &TitleBlock::Mine},
                                                        {"Section", &TitleBlock::Section},
                                                        {"Author", &TitleBlock::Author},
                                                        {"Checker", &TitleBlock::Checker},
                                                        {"Revision", &TitleBlock::Revision}}};

// What the user chose for signed reports.
struct SignedReportSettings {
  TitleBlock Titles;
  PaperChoice Paper = PaperChoice::ByLocale;  // also of calculation sheets
  bool HasDrawings = true;
  bool HasCost = true;
  bool HasSheet = false;
  std::array<bool, 10> HasCurve{};
  std::string RemarksOf;  // the path of the project that the remarks are about
  std::string Remarks;    // lines
  bool operator==(const SignedReportSettings&) const = default;
};

// Initial values of a new design. Most have a Metric (MET) and an English (ENG) value.
struct DesignDefaults {
  Integer DefaultCMRR = 45;
  Single DefaultMETDepthofCover = 150;
  Single DefaultENGDepthofCover = 400;
  Single DefaultMETUnitWeight = 25;
  Single DefaultENGUnitWeight = 162;
  Single DefaultStabilityFactor = 1;
  Single DefaultMETActualBoltLength = 2;
  Single DefaultENGActualBoltLength = 6;
  Single DefaultMETboltDiameter = 20;
  Single DefaultENGboltDiameter = 0.75F;
  Single DefaultMETBoltGrade = 520;
  Single DefaultENGBoltGrade = 75;
  Single DefaultMETBoltUTS = 690;
  Single DefaultENGBoltUTS = 100;
  Integer DefaultNumberBoltsPerRow = 4;
  Single DefaultMETrowSpacing = 1.2F;
  Single DefaultENGrowSpacing = 4;
  Single DefaultMETActualInterSpan = 20;
  Single DefaultENGActualInterSpan = 60;
  Single DefaultMETEntryWidth = 6.2F;
  Single DefaultENGEntryWidth = 20;
};

}  // namespace orby
