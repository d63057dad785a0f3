// The choices of the user in the configuration file.
#include "config/settings_sections.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "base/runtime_error.h"
#include "base/text.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using section = StoredSettings;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* SettingsPath = "/data/ORBY.INI";

struct SettingsSections : testing::Test {
  SettingsSections() {
    platform.fonts.screen = {"Courier New", "Arial"};
    program.session.folders.ProgramData = "/data/";
    program.session.IniFilePath = SettingsPath;
    SetBuiltInSettings(program);
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  Settings& settings = program.session.settings;
  TextBrowseSettings& textBrowse = program.session.textBrowse;
  GraphSettings& graph = program.session.graph;
  OptionSettings& options = program.session.options;
  RecentFiles& recent = program.session.recentFiles;

  void Read(StoredSettings what, const std::string& text) { ReadSettings(program, IniText(text), what); }
  void ReadKeys(const std::string& keys) { Read(section::Settings, "[Settings]\r\n" + keys); }
  std::string Written(StoredSettings what) const {
    IniText ini;
    WriteSettings(program.session, ini, what);
    return ini.Text();
  }
  std::string& FileBytes() { return platform.files.files[SettingsPath]; }
};

constexpr const char* BuiltInSettingsText =
    "[Settings]\r\n"
    "DefaultUnits=0\r\n"
    "DisplayHistoryWin=1\r\n"
    "MaxDisplaySize=2048\r\n"
    "DisplayFontName=Arial\r\n"
    "DisplayFontSize=10\r\n"
    "DisplayFontBold=0\r\n"
    "DisplayFontItalic=0\r\n"
    "KeepFileNames=1\r\n"
    "ShowDisclaim=1\r\n"
    "MaxMainMenu=0\r\n"
    "EnableMainMenuToolbar=1\r\n"
    "ShortRecentFiles=0\r\n"
    "LoadLastInputFile=0\r\n"
    "RemindAnnualUpdates=1\r\n"
    "CopyExampleFiles=1\r\n"
    "ExternalEditor=Notepad.exe\r\n"
    "DataPath=/data/\r\n"
    "FileExtension=ORB\r\n";

TEST_F(SettingsSections, TheBuiltInSettingsAreWrittenInTableOrder) {
  EXPECT_EQ(Written(section::Settings), BuiltInSettingsText);
}

TEST_F(SettingsSections, ANewFileHasNoRecentFiles) {
  EXPECT_EQ(Written(section::FileMenu), "[FileMenu]\r\nMaxLastFiles=0\r\n");
}

TEST_F(SettingsSections, TheBuiltInBrowserSettingsAreWrittenInTableOrder) {
  EXPECT_EQ(Written(section::TextBrowse),
            "[TextBrowse]\r\n"
            "BrowseFontName=Arial\r\n"
            "BrowseFontSize=10\r\n"
            "BrowseFontBold=0\r\n"
            "BrowseFontItalic=0\r\n"
            "BrowseDefaultFilter=\r\n"
            "BrowseUseNotepad=0\r\n");
}

TEST_F(SettingsSections, TheBuiltInGraphFormatIsWrittenInTableOrder) {
  EXPECT_EQ(Written(section::Graph),
            "[Graph]\r\n"
            "GraphSetParams=0\r\n"
            "GridStyle=3\r\n"
            "GraphStyle=3\r\n"
            "CurveLegend=1\r\n"
            "SymbolSize=6\r\n"
            "GraphUnits=0\r\n"
            "GraphTitle=\r\n"
            "XAxisTitle0=\r\nXAxisTitle1=\r\nXAxisTitle2=\r\nXAxisTitle3=\r\nXAxisTitle4=\r\n"
            "XAxisTitle5=\r\nXAxisTitle6=\r\nXAxisTitle7=\r\nXAxisTitle8=\r\nXAxisTitle9=\r\n"
            "YAxisTitle0=\r\nYAxisTitle1=\r\nYAxisTitle2=\r\n");
}

TEST_F(SettingsSections, TheOptionsAreWrittenToASectionThatIsNeverRead) {
  EXPECT_EQ(Written(section::Options),
            "[TULKOptions]\r\n"
            "DefaultSteelStrength=0\r\n"
            "OutputStrUnits=0\r\n"
            "OutputStrGradUnits=0\r\n"
            "ShowInputScreenOnLoad=1\r\n"
            "ViewChildWindow=1\r\n"
            "PrintModuleHeader=1\r\n"
            "AskOfficeInstall=1\r\n");
}

TEST_F(SettingsSections, TheSectionsAreWrittenInTheOrderOfTheirSelectors) {
  const std::string text = Written(section::All);

  std::vector<std::string> names;
  for (std::string_view rest = text; !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    if (line.starts_with('[')) names.emplace_back(line);
  }
  EXPECT_THAT(names, ElementsAre("[Settings]", "[FileMenu]", "[TextBrowse]", "[Graph]", "[TULKOptions]"));
  EXPECT_THAT(text, StartsWith(BuiltInSettingsText));
}

TEST_F(SettingsSections, AnUnknownSelectorReadsAndWritesNothing) {
  Read(StoredSettings{7}, "[Settings]\r\nDefaultUnits=1\r\n");

  EXPECT_EQ(settings.UnitsDefault, English);
  EXPECT_EQ(Written(StoredSettings{7}), "");
}

TEST_F(SettingsSections, EverySettingIsReadIntoItsOwnMember) {
  platform.files.folders.insert("/designs");

  ReadKeys(
      "DefaultUnits=1\r\nDisplayHistoryWin=0\r\nMaxDisplaySize=8192\r\nDisplayFontName=Terminal\r\n"
      "DisplayFontSize=14\r\nDisplayFontBold=-1\r\nDisplayFontItalic=-1\r\nKeepFileNames=0\r\nShowDisclaim=0\r\n"
      "MaxMainMenu=1\r\nEnableMainMenuToolbar=0\r\nShortRecentFiles=1\r\nLoadLastInputFile=1\r\n"
      "RemindAnnualUpdates=0\r\nCopyExampleFiles=0\r\nExternalEditor=gedit\r\nDataPath=/designs\r\n"
      "FileExtension=DAT\r\n");

  EXPECT_EQ(settings.UnitsDefault, Metric);
  EXPECT_EQ(settings.DisplayHistoryWin, 0);
  EXPECT_EQ(settings.MaxDisplaySize, 8192);
  EXPECT_EQ(settings.DisplayFontName, "Terminal");
  EXPECT_EQ(settings.DisplayFontSize, 14);
  EXPECT_EQ(settings.DisplayFontBold, -1);
  EXPECT_EQ(settings.DisplayFontItalic, -1);
  EXPECT_EQ(settings.KeepFileNames, 0);
  EXPECT_EQ(settings.ShowDisclaim, 0);
  EXPECT_EQ(settings.MaxMainMenu, 1);
  EXPECT_EQ(settings.EnableMainMenuToolbar, 0);
  EXPECT_EQ(settings.ShortRecentFiles, 1);
  EXPECT_EQ(settings.LoadLastInputFile, 1);
  EXPECT_EQ(settings.RemindAnnualUpdates, 0);
  EXPECT_EQ(settings.CopyExampleFiles, 0);
  EXPECT_EQ(settings.ExternalEditor, "gedit");
  EXPECT_EQ(settings.DataPath, "/designs/");
  EXPECT_EQ(settings.FileExtension, "DAT");
}

TEST_F(SettingsSections, MissingFlagsAreOffExceptTheCopyOfExamples) {
  ReadKeys("");

  EXPECT_EQ(settings.CopyExampleFiles, 1);
  EXPECT_EQ(settings.DisplayHistoryWin, 0);
  EXPECT_EQ(settings.KeepFileNames, 0);
  EXPECT_EQ(settings.ShowDisclaim, 0);
  EXPECT_EQ(settings.MaxMainMenu, 0);
  EXPECT_EQ(settings.EnableMainMenuToolbar, 0);
  EXPECT_EQ(settings.ShortRecentFiles, 0);
  EXPECT_EQ(settings.LoadLastInputFile, 0);
  EXPECT_EQ(settings.RemindAnnualUpdates, 0);
  EXPECT_EQ(settings.DisplayFontBold, 0);
  EXPECT_EQ(settings.DisplayFontItalic, 0);
}

TEST_F(SettingsSections, AFlagOutsideItsRangeIsOff) {
  ReadKeys("KeepFileNames=-1\r\nShowDisclaim=2\r\nMaxMainMenu=99999\r\nCopyExampleFiles=1E999\r\n");

  EXPECT_EQ(settings.KeepFileNames, 0);
  EXPECT_EQ(settings.ShowDisclaim, 0);
  EXPECT_EQ(settings.MaxMainMenu, 0);
  EXPECT_EQ(settings.CopyExampleFiles, 0);
}

TEST_F(SettingsSections, AFontFlagIsMinusOneWhenItIsNotZero) {
  ReadKeys("DisplayFontBold=-1\r\nDisplayFontItalic=1\r\n");

  EXPECT_EQ(settings.DisplayFontBold, -1);
  EXPECT_EQ(settings.DisplayFontItalic, -1) << "outside the range, so it is the minimum";
}

TEST_F(SettingsSections, ALengthOfTheHistoryOutsideItsRangeIsTheMinimum) {
  ReadKeys("MaxDisplaySize=2048\r\n");
  EXPECT_EQ(settings.MaxDisplaySize, 4096) << "the value in a new file is outside the range";

  ReadKeys("MaxDisplaySize=16384\r\n");
  EXPECT_EQ(settings.MaxDisplaySize, 16384);

  ReadKeys("MaxDisplaySize=16385\r\n");
  EXPECT_EQ(settings.MaxDisplaySize, 4096);
}

TEST_F(SettingsSections, FontSizesAreRoundedToWholeNumbers) {
  ReadKeys("DisplayFontSize=10.5\r\n");
  EXPECT_EQ(settings.DisplayFontSize, 10);

  ReadKeys("DisplayFontSize=11.5\r\n");
  EXPECT_EQ(settings.DisplayFontSize, 12);

  Read(section::TextBrowse, "[TextBrowse]\r\nBrowseFontSize=10.5\r\n");
  EXPECT_EQ(textBrowse.BrowseFontSize, 10);
}

TEST_F(SettingsSections, AFontSizeOutsideItsRangeIsTheSmallest) {
  Read(section::TextBrowse, "[TextBrowse]\r\nBrowseFontSize=100\r\n");
  EXPECT_EQ(textBrowse.BrowseFontSize, 7);

  ReadKeys("DisplayFontSize=6\r\n");
  EXPECT_EQ(settings.DisplayFontSize, 7);
}

TEST_F(SettingsSections, FontSizesFrom7To24AreAccepted) {
  for (const auto& [typed, taken] : {std::pair{"6", 7}, {"7", 7}, {"8", 8}, {"24", 24}, {"25", 7}}) {
    ReadKeys(std::string("DisplayFontSize=") + typed + "\r\n");

    EXPECT_EQ(settings.DisplayFontSize, taken) << typed;
  }
}

TEST_F(SettingsSections, AnEmptyFontNameBecomesAnInstalledFont) {
  settings.DisplayFontName = "Terminal";
  textBrowse.BrowseFontName = "Terminal";

  ReadKeys("DisplayFontName=\r\n");
  Read(section::TextBrowse, "");

  EXPECT_EQ(settings.DisplayFontName, "Arial");
  EXPECT_EQ(textBrowse.BrowseFontName, "Arial");
}

TEST_F(SettingsSections, TheExtensionZeroMeansTheBuiltInExtension) {
  ReadKeys("FileExtension=0\r\n");

  EXPECT_EQ(settings.FileExtension, "ORB");
}

TEST_F(SettingsSections, AnEmptyExtensionStaysEmpty) {
  ReadKeys("FileExtension=\r\n");

  EXPECT_EQ(settings.FileExtension, "");
}

TEST_F(SettingsSections, ADataPathThatWasNeverSetIsTheProgramDataFolder) {
  for (const char* keys : {"", "DataPath=\r\n", "DataPath=0\r\n", "DataPath=\"\"\r\n"}) {
    settings.DataPath = "/elsewhere/";

    ReadKeys(keys);

    EXPECT_EQ(settings.DataPath, "/data/") << keys;
  }
}

TEST_F(SettingsSections, ADataPathIsTrimmedAndGetsATrailingSeparator) {
  platform.files.folders.insert({"/designs/north mains", "/panels"});

  ReadKeys("DataPath= \" /designs/north mains \" \r\n");
  EXPECT_EQ(settings.DataPath, "/designs/north mains/");

  ReadKeys("DataPath=/panels/\r\n");
  EXPECT_EQ(settings.DataPath, "/panels/");
}

TEST_F(SettingsSections, AMissingDataPathBecomesTheProgramDataFolderWithoutAMessage) {
  ReadKeys("DataPath=/gone\r\n");

  EXPECT_EQ(settings.DataPath, "/data/");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(SettingsSections, AnUnusableDataPathBecomesTheProgramDataFolderWithoutAMessage) {
  for (const int error : {error_number::BadFileName, error_number::PathFileAccess}) {
    platform.files.Fail(MemoryFiles::Step::Find, error);
    settings.DataPath = "/elsewhere/";

    ReadKeys("DataPath=/designs\r\n");

    EXPECT_EQ(settings.DataPath, "/data/") << error;
    EXPECT_THAT(platform.boxes.shown, IsEmpty()) << error;
  }
}

TEST_F(SettingsSections, TextsAreCutAfter254Characters) {
  ReadKeys("ExternalEditor=" + std::string(300, 'e') + "\r\n");

  EXPECT_EQ(settings.ExternalEditor, std::string(254, 'e'));
}

TEST_F(SettingsSections, TheRecentFilesReadBack) {
  recent.MaxLastFiles = 2;
  recent.Entries[0] = {"Belt entry.ORB", 1, "/designs/Belt entry.ORB"};
  recent.Entries[1] = {"weak-roof.ORB", 0, "/designs/weak-roof.ORB"};
  const std::string text = Written(section::FileMenu);
  recent = {};

  Read(section::FileMenu, text);

  EXPECT_EQ(text,
            "[FileMenu]\r\n"
            "MaxLastFiles=2\r\n"
            "LastFile1=Belt entry.ORB\r\n"
            "LastFileMode1=1\r\n"
            "LastFileLong1=/designs/Belt entry.ORB\r\n"
            "LastFile2=weak-roof.ORB\r\n"
            "LastFileMode2=0\r\n"
            "LastFileLong2=/designs/weak-roof.ORB\r\n");
  EXPECT_EQ(recent.MaxLastFiles, 2);
  EXPECT_EQ(recent.Entries[0].LastFile, "Belt entry.ORB");
  EXPECT_EQ(recent.Entries[0].LastFileMode, 1);
  EXPECT_EQ(recent.Entries[0].LastFileLong, "/designs/Belt entry.ORB");
  EXPECT_EQ(recent.Entries[1].LastFileLong, "/designs/weak-roof.ORB");
  EXPECT_EQ(recent.Entries[2].LastFileLong, "");
}

TEST_F(SettingsSections, FourRecentFilesAreWrittenAndReadBack) {
  recent.MaxLastFiles = 4;
  recent.Entries[0] = {"a.ORB", 1, "/designs/a.ORB"};
  recent.Entries[3] = {"d.ORB", 2, "/designs/d.ORB"};
  const std::string text = Written(section::FileMenu);
  recent = {};

  Read(section::FileMenu, text);

  EXPECT_THAT(text, HasSubstr("LastFile4=d.ORB\r\nLastFileMode4=2\r\nLastFileLong4=/designs/d.ORB\r\n"));
  EXPECT_EQ(recent.MaxLastFiles, 4);
  EXPECT_EQ(recent.Entries[0].LastFile, "a.ORB");
  EXPECT_EQ(recent.Entries[3].LastFile, "d.ORB");
}

TEST_F(SettingsSections, ATooLargeCountOfRecentFilesReadsAsNone) {
  Read(section::FileMenu, "[FileMenu]\r\nMaxLastFiles=9\r\nLastFile1=a.ORB\r\nLastFileLong1=/designs/a.ORB\r\n");

  EXPECT_EQ(recent.MaxLastFiles, 0);
  EXPECT_EQ(recent.Entries[0].LastFile, "");
}

TEST_F(SettingsSections, TheModeOfARecentFileIsAnyIntegerOf16Bits) {
  Read(section::FileMenu,
       "[FileMenu]\r\nMaxLastFiles=2\r\nLastFileMode1=-300\r\nLastFileMode2=99999\r\nLastFile2=b.ORB\r\n");

  EXPECT_EQ(recent.Entries[0].LastFileMode, -300);
  EXPECT_EQ(recent.Entries[1].LastFileMode, 0);
  EXPECT_EQ(recent.Entries[1].LastFile, "b.ORB");
}

TEST_F(SettingsSections, RecentFilesBeyondTheCountStayInTheFileAndAreIgnored) {
  IniText ini("[FileMenu]\r\nMaxLastFiles=2\r\nLastFile1=a.ORB\r\nLastFile2=b.ORB\r\n");
  recent.MaxLastFiles = 1;
  recent.Entries[0].LastFile = "c.ORB";

  WriteSettings(program.session, ini, section::FileMenu);
  recent = {};
  ReadSettings(program, ini, section::FileMenu);

  EXPECT_EQ(ini.Find("FileMenu", "LastFile2"), "b.ORB");
  EXPECT_EQ(recent.Entries[0].LastFile, "c.ORB");
  EXPECT_EQ(recent.Entries[1].LastFile, "");
}

TEST_F(SettingsSections, ATooLargeCountOfRecentFilesIsWrittenWithoutEntries) {
  recent.MaxLastFiles = 5;
  recent.Entries[0].LastFile = "a.ORB";

  EXPECT_EQ(Written(section::FileMenu), "[FileMenu]\r\nMaxLastFiles=5\r\n");
}

TEST_F(SettingsSections, EveryBrowserSettingIsReadIntoItsOwnMember) {
  Read(section::TextBrowse,
       "[TextBrowse]\r\nBrowseFontName=Courier New\r\nBrowseFontSize=12\r\nBrowseFontBold=-1\r\n"
       "BrowseFontItalic=0\r\nBrowseDefaultFilter=*.TXT\r\nBrowseUseNotepad=1\r\n");

  EXPECT_EQ(textBrowse.BrowseFontName, "Courier New");
  EXPECT_EQ(textBrowse.BrowseFontSize, 12);
  EXPECT_EQ(textBrowse.BrowseFontBold, -1);
  EXPECT_EQ(textBrowse.BrowseFontItalic, 0);
  EXPECT_EQ(textBrowse.BrowseDefaultFilter, "*.TXT");
  EXPECT_EQ(textBrowse.BrowseUseNotepad, 1);
}

TEST_F(SettingsSections, TheGraphFormatReadsBack) {
  graph = {FormatParameters::LastUsed,
           GridLines::Vertical,
           CurveStyle::LinesOnly,
           0,
           12,
           Metric,
           "Suggested support",
           {},
           {}};
  graph.XAxisTitle[0] = "CMRR";
  graph.XAxisTitle[9] = "Roof Fall Angle (deg)";
  graph.YAxisTitle[0] = "Suggested PSUP";
  graph.YAxisTitle[2] = "Rock Load Intersections (tons)";
  const std::string text = Written(section::Graph);
  graph = {};

  Read(section::Graph, text);

  EXPECT_EQ(graph.GraphSetParams, FormatParameters::LastUsed);
  EXPECT_EQ(graph.GridStyle, GridLines::Vertical);
  EXPECT_EQ(graph.GraphStyle, CurveStyle::LinesOnly);
  EXPECT_EQ(graph.CurveLegend, 0);
  EXPECT_EQ(graph.SymbolSize, 12);
  EXPECT_EQ(graph.GraphUnits, Metric);
  EXPECT_EQ(graph.GraphTitle, "Suggested support");
  EXPECT_EQ(graph.XAxisTitle[0], "CMRR");
  EXPECT_EQ(graph.XAxisTitle[9], "Roof Fall Angle (deg)");
  EXPECT_EQ(graph.YAxisTitle[0], "Suggested PSUP");
  EXPECT_EQ(graph.YAxisTitle[2], "Rock Load Intersections (tons)");
}

TEST_F(SettingsSections, TheSymbolSizeIsReadWithAndWithoutBlanksAroundItsKey) {
  Read(section::Graph, "[Graph]\r\nSymbolSize=14\r\n");
  EXPECT_EQ(graph.SymbolSize, 14);

  Read(section::Graph, "[Graph]\r\nSymbolSize = 15\r\n");
  EXPECT_EQ(graph.SymbolSize, 15);

  EXPECT_THAT(Written(section::Graph), HasSubstr("\r\nSymbolSize=15\r\n"));
}

TEST_F(SettingsSections, AGraphKeyOutsideItsRangeIsTheMinimum) {
  Read(section::Graph, "[Graph]\r\nGraphStyle=0\r\nGridStyle=4\r\nSymbolSize=21\r\nCurveLegend=5\r\n");

  EXPECT_EQ(graph.GraphStyle, CurveStyle::LinesOnly);
  EXPECT_EQ(graph.GridStyle, GridLines::None);
  EXPECT_EQ(graph.SymbolSize, 3);
  EXPECT_EQ(graph.CurveLegend, 0);
}

TEST_F(SettingsSections, TheOptionsDoNotSurviveARestart) {
  options = {StrengthBasis::Ultimate, 1, 1, 0, 0, 0, 0};
  const std::string text = Written(section::Options);

  Read(section::Options, text);

  EXPECT_THAT(text, HasSubstr("DefaultSteelStrength=1\r\n"));
  EXPECT_EQ(options.BoltGradeAsUltimateDefault, StrengthBasis::Yield);
  EXPECT_EQ(options.OutputStrUnits, 0);
  EXPECT_EQ(options.OutputStrGradUnits, 0);
  EXPECT_EQ(options.ShowInputScreenOnLoad, 1);
  EXPECT_EQ(options.ViewChildWindow, 1);
  EXPECT_EQ(options.PrintModuleHeader, 1);
  EXPECT_EQ(options.AskOfficeInstall, 1);
}

TEST_F(SettingsSections, OptionsAreReadFromASectionThatTheProgramNeverWrites) {
  Read(section::Options, "[PENVOptions]\r\nDefaultSteelStrength=1\r\nAskOfficeInstall=0\r\nViewChildWindow=7\r\n");

  EXPECT_EQ(options.BoltGradeAsUltimateDefault, StrengthBasis::Ultimate);
  EXPECT_EQ(options.AskOfficeInstall, 0);
  EXPECT_EQ(options.ViewChildWindow, 0);
  EXPECT_EQ(options.PrintModuleHeader, 1);
}

TEST_F(SettingsSections, AllSectionsAreReadTogether) {
  ReadDefaults(program, IniText("[Settings]\r\nDefaultUnits=1\r\n[FileMenu]\r\nMaxLastFiles=1\r\nLastFile1=a.ORB\r\n"
                                "[TextBrowse]\r\nBrowseUseNotepad=1\r\n[Graph]\r\nGraphTitle=PSUP\r\n"
                                "[PENVOptions]\r\nOutputStrUnits=1\r\n"));

  EXPECT_EQ(settings.UnitsDefault, Metric);
  EXPECT_EQ(recent.Entries[0].LastFile, "a.ORB");
  EXPECT_EQ(textBrowse.BrowseUseNotepad, 1);
  EXPECT_EQ(graph.GraphTitle, "PSUP");
  EXPECT_EQ(options.OutputStrUnits, 1);
}

TEST_F(SettingsSections, WritingOneSectionKeepsTheOthersInTheFile) {
  FileBytes() = "[Version]\r\nINIFileVersion=201030\r\n[Settings]\r\nDefaultUnits=1\r\n";
  recent.MaxLastFiles = 1;
  recent.Entries[0] = {"a.ORB", 1, "/designs/a.ORB"};

  WriteDefaults(program, section::FileMenu);

  EXPECT_EQ(FileBytes(),
            "[Version]\r\nINIFileVersion=201030\r\n[Settings]\r\nDefaultUnits=1\r\n"
            "[FileMenu]\r\nMaxLastFiles=1\r\nLastFile1=a.ORB\r\nLastFileMode1=1\r\nLastFileLong1=/designs/a.ORB\r\n");
}

TEST_F(SettingsSections, EachWriteAddsALineToTheHistory) {
  WriteDefaults(program, section::Graph);

  EXPECT_EQ(program.session.history.Text, "1. Saving default settings to file: /data/ORBY.INI\r\n");
}

TEST_F(SettingsSections, AFailedWriteAddsALineToTheHistoryToo) {
  platform.files.Fail(MemoryFiles::Step::Create, error_number::PermissionDenied);

  WriteDefaults(program, section::All);

  EXPECT_EQ(program.session.history.Text, "1. Saving default settings to file: /data/ORBY.INI\r\n");
  EXPECT_THAT(platform.files.files, IsEmpty());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(SettingsSections, TheVersionOfAFileReadsBack) {
  IniText ini;
  WriteIniVersion(ini);
  FileBytes() = ini.FileBytes();

  EXPECT_EQ(FileBytes(), "[Version]\r\nINIFileVersion=201030\r\n");
  EXPECT_EQ(IniVersion(ReadIniFile(program, program.session.IniFilePath)), "201030");
}

TEST_F(SettingsSections, AFileWithoutAVersionHasAnEmptyVersion) {
  FileBytes() = "[Settings]\r\nDefaultUnits=1\r\n";

  EXPECT_EQ(IniVersion(ReadIniFile(program, program.session.IniFilePath)), "");
}

TEST_F(SettingsSections, ANewFileHasItsVersionFirstAndEverySectionThatAStartReads) {
  WriteNewIniFile(program, NewIniText(program.session));

  std::vector<std::string> names;
  for (std::string_view rest = FileBytes(); !rest.empty();) {
    const std::string_view line = TakeLine(rest);
    if (line.starts_with('[')) names.emplace_back(line);
  }
  EXPECT_THAT(names, ElementsAre("[Version]", "[Settings]", "[FileMenu]", "[TextBrowse]", "[Graph]", "[TULKOptions]",
                                 "[ORBYDefaults]", "[ORBYBoltParams]"));
  EXPECT_EQ(program.session.history.Text, "1. Saving default settings to file: /data/ORBY.INI\r\n");
  EXPECT_EQ(platform.files.created.size(), 1U) << "an interrupted run leaves no partial file";
}

// ---- the places of windows ------------------------------------------------------------------------------------------

TEST_F(SettingsSections, PlacesOfWindowsAreListsOfNumbers) {
  program.session.places = {{"frmMain", {31, -47, 640, 480, 0}}, {"frmMain.viewSplit", {560, 400}}};

  EXPECT_EQ(Written(section::Windows), "[Windows]\r\nfrmMain=31,-47,640,480,0\r\nfrmMain.viewSplit=560,400\r\n");
}

TEST_F(SettingsSections, PlacesOfWindowsReadBackAsWritten) {
  const WindowPlaces places{{"frmMain", {31, -47, 640, 480, 1}}, {"frmTULKCost", {0, 0, 99'999, 1, 0}}};
  program.session.places = places;
  const std::string text = Written(section::All);
  program.session.places.clear();

  Read(section::All, text);

  EXPECT_EQ(program.session.places, places);
}

TEST_F(SettingsSections, ADamagedPlaceOfAWindowIsIgnored) {
  Read(section::Windows,
       "[Windows]\r\nfrmMain=31,47,640,480,0\r\nfrmSet=\r\nfrmFont\r\nfrmUnits=1,2,x\r\nfrmGraph=1,,2\r\n"
       "frmConvert=1,2,\r\nfrmUpdate=1.5,2\r\nfrmBackups=99999999999,1\r\nfrmPreview=100000,1\r\n");

  EXPECT_THAT(program.session.places, ElementsAre(testing::Pair("frmMain", ElementsAre(31, 47, 640, 480, 0))));
}

TEST_F(SettingsSections, AFileWithoutPlacesOfWindowsHasNoSectionForThem) { EXPECT_EQ(Written(section::Windows), ""); }

TEST_F(SettingsSections, PlacesOfWindowsAreWrittenWithoutALineInTheHistory) {
  FileBytes() = "[Version]\r\nINIFileVersion=201030\r\n";
  program.session.places = {{"frmMain", {31, 47, 640, 480, 0}}};

  WriteWindowPlaces(program);

  EXPECT_EQ(FileBytes(), "[Version]\r\nINIFileVersion=201030\r\n[Windows]\r\nfrmMain=31,47,640,480,0\r\n");
  EXPECT_THAT(program.session.history.Text, IsEmpty());
}

}  // namespace
}  // namespace orby::test
