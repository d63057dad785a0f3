#include "shell/start_up.h"

#include <gtest/gtest.h>

#include "config/catalog_sections.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct StartUp : testing::Test {
  RecordingPlatform platform;
  Program program{platform.Doors()};
};

TEST_F(StartUp, BeginsANewEnglishDesignWithTheBuiltInCatalogs) {
  StartProgram(program, nullptr);

  EXPECT_EQ(program.CurrentFile, "Untitled");
  EXPECT_TRUE(program.FileSaved);
  EXPECT_TRUE(program.FileEmpty);
  EXPECT_EQ(program.Units, English);
  EXPECT_EQ(program.WorkParms.DepthofCover, 400);
  EXPECT_EQ(program.catalogs.BoltTableENG.size(), 10U);
  EXPECT_EQ(program.WorkParms.SupportTypeNameSecEntry, "4-point Hardwood Crib (8in x 8in timbers, 5' height)");
  EXPECT_EQ(program.history.Text, "1. File initialized. Use Edit-Project Parameters to enter data\r\n");
}

TEST_F(StartUp, RecordsAMachinesCommaAndKeepsThePoint) {
  platform.locale.separator = ",";

  StartProgram(program, nullptr);

  EXPECT_EQ(program.SavedDecimalSeparator, ",");
}

TEST_F(StartUp, TakesTheNewDesignFromTheConfiguredDefaults) {
  StartProgram(program, nullptr);
  IniText configuration;
  program.defaults.DefaultENGDepthofCover = 725;
  WriteCatalogSection(program, configuration, catalog_section::Defaults);
  WriteCatalogSection(program, configuration, catalog_section::BoltParams);
  Program next(platform.Doors());

  StartProgram(next, &configuration);

  EXPECT_EQ(next.WorkParms.DepthofCover, 725);
  EXPECT_EQ(next.WorkParms.EntryWidth, 20);
  EXPECT_EQ(next.catalogs.DefaultBoltGradeArrayENG.Values, program.catalogs.DefaultBoltGradeArrayENG.Values);
}

TEST_F(StartUp, OffersOnlyTheEntriesThatTheConfigurationCounts) {
  const IniText configuration(
      "[ORBYBoltParams]\r\nDefaultBoltGradeIndexENG=2\r\nDefaultBoltGradeArrayENG0=40\r\n"
      "DefaultBoltGradeArrayENG1=55\r\nDefaultBoltGradeArrayENG2=60\r\n");

  StartProgram(program, &configuration);

  EXPECT_EQ(program.catalogs.DefaultBoltGradeArrayENG.Count(), 3U);
  EXPECT_EQ(program.catalogs.DefaultBoltGradeArrayENG[4], 90) << "still in the list, no longer offered";
}

}  // namespace
}  // namespace orby::test
