#include "shell/start_up.h"

#include <gmock/gmock.h>

#include <filesystem>

#include "base/runtime_error.h"
#include "config/catalog_sections.h"
#include "config/settings_sections.h"
#include "machine/disk_files.h"
#include "support/recording_platform.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* StartIniPath = "/home/user/Documents/MyStrataDesk/ORBY/ORBY.INI";

struct StartUp : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};

  std::string& Ini() { return platform.files.files[StartIniPath]; }

  // Expects the built-in settings, and a message with the reason why they are not stored.
  void ExpectBuiltInSettings(const std::string& reason) {
    EXPECT_EQ(program.session.defaults.DefaultENGDepthofCover, 400);
    EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
    EXPECT_EQ(program.session.settings.DisplayHistoryWin, 1);
    EXPECT_EQ(program.session.settings.FileExtension, "ORB");
    EXPECT_EQ(program.session.settings.MaxDisplaySize, 4096);
    EXPECT_EQ(program.session.graph.SymbolSize, 6);
    EXPECT_EQ(program.session.catalogs.DefaultBoltUTSArrayENG.Count(), 6U);
    EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayMET.Count(), 6U);
    const std::string trouble = "Configuration file cannot be used: " + std::string(StartIniPath) + " (" + reason +
                                "). Built-in settings are in force";
    EXPECT_THAT(platform.boxes.Texts(), ElementsAre(trouble + " and changes to them may be lost."));
    EXPECT_THAT(program.session.history.Text, HasSubstr(trouble + "\r\n"));
  }
};

TEST_F(StartUp, CreatesAMissingConfigurationFileAndStartsWithTheDefaults) {
  StartProgram(program);

  EXPECT_EQ(program.session.IniFilePath, StartIniPath);
  EXPECT_THAT(Ini(), StartsWith("[Version]\r\nINIFileVersion=201030\r\n[Settings]\r\nDefaultUnits=0\r\n"));
  EXPECT_THAT(Ini(), HasSubstr("[ORBYDefaults]\r\nDefaultCMRR=45\r\n"));
  EXPECT_THAT(Ini(), HasSubstr("[ORBYBoltParams]\r\nDefaultBoltGradeIndexENG="));
  EXPECT_THAT(Ini(), Not(HasSubstr("ORBYStandSupportParams")));
  EXPECT_EQ(program.session.defaults.DefaultENGDepthofCover, 400);
  EXPECT_EQ(program.session.settings.DisplayHistoryWin, 1);
  EXPECT_EQ(program.session.settings.DataPath, "/home/user/Documents/MyStrataDesk/ORBY/");
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(StartUp, RecordsInTheHistoryWhereItStoredTheNewDefaults) {
  StartProgram(program);

  EXPECT_EQ(program.session.history.Text,
            "1. Saving default settings to file: /home/user/Documents/MyStrataDesk/ORBY/ORBY.INI\r\n"
            "2. File initialized. Use Edit-Project Parameters to enter data\r\n");
}

TEST_F(StartUp, ReadsANewFileBackLikeAnyOther) {
  StartProgram(program);

  EXPECT_THAT(Ini(), HasSubstr("MaxDisplaySize=2048\r\n"));
  EXPECT_EQ(program.session.settings.MaxDisplaySize, 4096);
}

TEST_F(StartUp, HasTheSameListsOnTheFirstAndOnTheSecondRun) {
  StartProgram(program);
  const std::string written = Ini();
  Program next(platform.AsPlatform());

  StartProgram(next);

  EXPECT_EQ(Ini(), written);
  EXPECT_EQ(next.session.catalogs.DefaultBoltUTSArrayENG.Count(),
            program.session.catalogs.DefaultBoltUTSArrayENG.Count());
  EXPECT_EQ(next.session.catalogs.DefaultBoltUTSArrayENG.Values,
            program.session.catalogs.DefaultBoltUTSArrayENG.Values);
  EXPECT_GT(next.session.catalogs.DefaultBoltUTSArrayENG.Count(), 1U);
  EXPECT_EQ(next.session.history.Text, "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
}

TEST_F(StartUp, UsesTheValuesOfTheFile) {
  Ini() =
      "[Version]\r\nINIFileVersion=201030\r\n[Settings]\r\nDefaultUnits=1\r\nDisplayHistoryWin=1\r\n"
      "[FileMenu]\r\nMaxLastFiles=1\r\nLastFile1=panel.ORB\r\nLastFileLong1=/designs/panel.ORB\r\n"
      "[ORBYDefaults]\r\nDefaultMETDepthofCover=310\r\n"
      "[ORBYBoltParams]\r\nDefaultBoltGradeIndexMET=1\r\nDefaultBoltGradeArrayMET1=420\r\n";
  const std::string before = Ini();

  StartProgram(program);

  EXPECT_EQ(program.project.WorkParms.Units, Metric);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 310);
  EXPECT_EQ(program.session.recentFiles.Entries[0].LastFileLong, "/designs/panel.ORB");
  EXPECT_EQ(program.session.catalogs.DefaultBoltGradeArrayMET.Count(), 2U);
  EXPECT_EQ(Ini(), before) << "reading writes nothing";
}

TEST_F(StartUp, ReplacesAFileOfAnotherVersion) {
  for (const char* version :
       {"INIFileVersion=201029\r\n", "INIFileVersion=201031\r\n", "INIFileVersion=0201030\r\n", ""}) {
    Ini() = std::string("[Version]\r\n") + version +
            "Extra=1\r\n[Settings]\r\nDefaultUnits=1\r\n[ORBYDefaults]\r\nDefaultENGDepthofCover=900\r\n";
    Program next(platform.AsPlatform());

    StartProgram(next);

    EXPECT_THAT(Ini(), StartsWith("[Version]\r\nINIFileVersion=201030\r\n[Settings]\r\n")) << version;
    EXPECT_THAT(Ini(), Not(HasSubstr("Extra"))) << version;
    EXPECT_EQ(next.session.settings.UnitsDefault, English) << version;
    EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 400) << version;
  }
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(StartUp, KeepsAFileOfAnotherVersionThatCannotBeReplaced) {
  Ini() = "[Version]\r\nINIFileVersion=201029\r\n[ORBYDefaults]\r\nDefaultENGDepthofCover=900\r\n";
  const std::string before = Ini();
  platform.files.Fail(MemoryFiles::Step::Rename, error_number::PermissionDenied);

  StartProgram(program);

  EXPECT_EQ(Ini(), before);
  ExpectBuiltInSettings("Permission denied");
}

TEST_F(StartUp, TakesTheStandingSupportsFromTheBuiltInTableWhateverTheFileSays) {
  StartProgram(program);
  program.session.catalogs.StandSupports = {0, {"Can, 24in"}, {{{120, 1068}}}};
  EditIniFile(program, program.session.IniFilePath,
              [this](IniText& ini) { WriteCatalogSection(program.session, ini, StoredCatalogs::StandSupports); });
  Program next(platform.AsPlatform());

  StartProgram(next);

  EXPECT_THAT(Ini(), HasSubstr("DefaultStandSupportType0=Can, 24in\r\n"));
  EXPECT_EQ(next.session.catalogs.StandSupports.DefaultStandSupportType[0],
            "4-point Hardwood Crib (8in x 8in timbers, 5' height)");
  EXPECT_EQ(next.session.catalogs.StandSupports.HighestIndex, 15);
  EXPECT_EQ(next.session.catalogs.StandSupports.DefaultStandSupportType[15], "Concrete Crib (24in x 24in)");
}

TEST_F(StartUp, StartsWithTheDefaultOptionsEvenIfOthersAreStored) {
  StartProgram(program);
  program.session.options.BoltGradeAsUltimateDefault = StrengthBasis::Ultimate;
  WriteDefaults(program, StoredSettings::Options);
  Program next(platform.AsPlatform());

  StartProgram(next);

  EXPECT_THAT(Ini(), HasSubstr("DefaultSteelStrength=1\r\n"));
  EXPECT_EQ(next.session.options.BoltGradeAsUltimateDefault, StrengthBasis::Yield);
  EXPECT_EQ(next.project.WorkParms.Basis, StrengthBasis::Yield);
}

TEST_F(StartUp, KeepsTheConfigurationInTheProgramsFolderWithoutDocuments) {
  platform.userFolders.documents.reset();

  StartProgram(program);

  EXPECT_EQ(program.session.IniFilePath, "/program/ORBY.INI");
  EXPECT_TRUE(platform.files.files.contains("/program/ORBY.INI"));
  EXPECT_EQ(program.session.settings.DataPath, "/program/");
}

TEST_F(StartUp, UsesTheBuiltInSettingsIfNoFileCanBeWritten) {
  platform.files.Fail(MemoryFiles::Step::Create, error_number::DiskFull);

  StartProgram(program);

  EXPECT_THAT(platform.files.files, IsEmpty());
  ExpectBuiltInSettings("Disk full");
}

TEST_F(StartUp, KeepsAnUnreadableFileAndUsesTheBuiltInSettings) {
  Ini() = "[Version]\r\nINIFileVersion=201030\r\n[ORBYDefaults]\r\nDefaultENGDepthofCover=900\r\n";
  const std::string before = Ini();
  platform.files.Fail(MemoryFiles::Step::Read, error_number::PermissionDenied);

  StartProgram(program);

  EXPECT_EQ(Ini(), before);
  ExpectBuiltInSettings("Permission denied");
}

TEST_F(StartUp, KeepsAFileThatIsUnreadableForAMoment) {
  Ini() = "[Version]\r\nINIFileVersion=201030\r\n[ORBYDefaults]\r\nDefaultENGDepthofCover=900\r\n";
  const std::string before = Ini();
  platform.files.Fail(MemoryFiles::Step::Read, error_number::PermissionDenied, 0, 1);

  StartProgram(program);

  EXPECT_EQ(Ini(), before);
  ExpectBuiltInSettings("Permission denied");
}

TEST(StartOnADisk, UsesTheBuiltInSettingsIfAFolderHasTheNameOfTheFile) {
  const TemporaryFolder home;
  DiskFiles files(home.Path());
  RecordingPlatform platform;
  platform.userFolders.documents = home.Path();
  std::filesystem::create_directories(home.At("MyStrataDesk/ORBY/ORBY.INI/kept"));
  Program program(platform.AsPlatformWith(files));
  const auto workingFolder = std::filesystem::current_path();

  StartProgram(program);

  std::filesystem::current_path(workingFolder);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_THAT(platform.boxes.Texts(), ElementsAre(HasSubstr("Configuration file cannot be used: ")));
  EXPECT_TRUE(std::filesystem::exists(home.At("MyStrataDesk/ORBY/ORBY.INI/kept")));
}

TEST_F(StartUp, ChoosesAFontThatTheMachineHas) {
  platform.fonts.screen = {"DejaVu Sans", "Courier New"};

  StartProgram(program);

  EXPECT_EQ(program.session.settings.DisplayFontName, "Courier New");
  EXPECT_EQ(program.session.textBrowse.BrowseFontName, "Courier New");
  EXPECT_THAT(Ini(), HasSubstr("DisplayFontName=Courier New\r\n"));
}

TEST_F(StartUp, AsksForNoFontsIfOneIsAlreadyChosen) {
  platform.fonts.screen = {"Verdana", "Arial"};
  StartProgram(program);
  platform.fonts.asked = 0;
  Program second(platform.AsPlatform());

  StartProgram(second);

  EXPECT_EQ(platform.fonts.asked, 0);
  EXPECT_EQ(second.session.settings.DisplayFontName, "Arial");
}

TEST_F(StartUp, EndsInTheProgramsFolder) {
  StartProgram(program);

  EXPECT_EQ(platform.files.workingFolder, "/program/");
}

TEST_F(StartUp, RecordsTheSystemsDecimalCommaAndUsesThePoint) {
  platform.locale.separator = ",";

  StartProgram(program);

  EXPECT_EQ(program.session.SavedDecimalSeparator, ",");
  EXPECT_THAT(Ini(), HasSubstr("DefaultENGboltDiameter=0.75\r\n"));
}

struct StartOfAScript : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

TEST_F(StartOfAScript, BeginsANewEnglishDesignWithTheBuiltInCatalogs) {
  StartApart(program, nullptr);

  EXPECT_EQ(program.project.CurrentFile, "Untitled");
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_EQ(program.session.catalogs.BoltTableENG.size(), 10U);
  EXPECT_EQ(program.project.WorkParms.Entries.Standing.TypeName,
            "4-point Hardwood Crib (8in x 8in timbers, 5' height)");
  EXPECT_EQ(program.session.history.Text, "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
}

TEST_F(StartOfAScript, WritesNothingAndStaysWhereItIs) {
  StartApart(program, nullptr);

  EXPECT_THAT(platform.files.files, IsEmpty());
  EXPECT_THAT(platform.files.folders, ElementsAre("/program", "/tmp"));
  EXPECT_EQ(platform.files.workingFolder, "/section");
  EXPECT_EQ(program.session.folders.ProgramData, "");
}

TEST_F(StartOfAScript, RecordsTheSystemsDecimalCommaAndUsesThePoint) {
  platform.locale.separator = ",";

  StartApart(program, nullptr);

  EXPECT_EQ(program.session.SavedDecimalSeparator, ",");
}

TEST_F(StartOfAScript, BeginsTheNewDesignWithTheConfiguredDefaults) {
  StartApart(program, nullptr);
  IniText configuration;
  program.session.defaults.DefaultENGDepthofCover = 725;
  WriteCatalogSection(program.session, configuration, StoredCatalogs::Defaults);
  WriteCatalogSection(program.session, configuration, StoredCatalogs::BoltParams);
  Program next(platform.AsPlatform());

  StartApart(next, &configuration);

  EXPECT_EQ(next.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_EQ(next.project.WorkParms.Place.EntryWidth, 20);
  EXPECT_EQ(next.session.catalogs.DefaultBoltGradeArrayENG.Values,
            program.session.catalogs.DefaultBoltGradeArrayENG.Values);
}

TEST_F(StartOfAScript, OffersOnlyTheEntriesThatTheConfigurationCounts) {
  const IniText configuration(
      "[ORBYBoltParams]\r\nDefaultBoltGradeIndexENG=2\r\nDefaultBoltGradeArrayENG0=40\r\n"
      "DefaultBoltGradeArrayENG1=55\r\nDefaultBoltGradeArrayENG2=60\r\n");

  StartApart(program, &configuration);

  EXPECT_EQ(program.session.catalogs.DefaultBoltGradeArrayENG.Count(), 3U);
  EXPECT_EQ(program.session.catalogs.DefaultBoltGradeArrayENG[4], 90) << "still in the list, no longer offered";
}

struct CommandLineOfARun : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

TEST_F(CommandLineOfARun, MayBeEmpty) {
  EXPECT_EQ(CommandLineFile(program, {}), "");
  EXPECT_EQ(CommandLineFile(program, {""}), "");
  EXPECT_EQ(CommandLineFile(program, {"\"\""}), "");
}

TEST_F(CommandLineOfARun, GivesAnAbsolutePath) {
  EXPECT_EQ(CommandLineFile(program, {"/designs/panel.ORB"}), "/designs/panel.ORB");
  EXPECT_EQ(CommandLineFile(program, {"panel.ORB"}), "/section/panel.ORB");
}

TEST_F(CommandLineOfARun, LosesItsDoubleQuotes) {
  EXPECT_EQ(CommandLineFile(program, {"\"/designs/north mains.ORB\""}), "/designs/north mains.ORB");
  EXPECT_EQ(CommandLineFile(program, {"/des\"igns\"/panel.ORB"}), "/designs/panel.ORB");
}

TEST_F(CommandLineOfARun, JoinsItsArgumentsToOneName) {
  EXPECT_EQ(CommandLineFile(program, {"\"/designs/north", "mains.ORB\""}), "/designs/north mains.ORB");
  EXPECT_EQ(CommandLineFile(program, {"north", "", "-mains.ORB"}), "/section/north  -mains.ORB");
}

}  // namespace
}  // namespace orby::test
