#include "reports/input_echo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "reports/designs.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;
using testing::StartsWith;

std::string InputPage(Desk& desk) {
  LoadOutBuf0(desk.program, desk.program.project.WorkParms);
  return desk.program.session.OutBuf[0];
}

// Returns the lines from the project file to the next empty line.
std::vector<std::string> FileLines(Desk& desk) {
  const std::vector<std::string> lines = LinesOf(InputPage(desk));
  std::vector<std::string> file;
  for (std::size_t i = 1; i < lines.size() && !lines[i].empty(); ++i) file.push_back(lines[i]);
  return file;
}

std::vector<std::string> Geology(Desk& desk) { return SectionOf(InputPage(desk), "[GEOLOGY PARAMETERS]"); }

TEST(InputEcho, StartsWithTheTitleWithoutAHeader) {
  Desk desk;
  desk.program.session.options.PrintModuleHeader = 0;

  EXPECT_THAT(InputPage(desk), StartsWith("[PROJECT TITLE]\r\n"));
}

TEST(InputEcho, HasAHeaderOnlyForASettingOfOne) {
  Desk desk;
  desk.program.session.options.PrintModuleHeader = 2;

  EXPECT_THAT(InputPage(desk), StartsWith("[PROJECT TITLE]\r\n"));
}

TEST(InputEcho, WrapsALongFileNameAtItsBlanks) {
  Desk desk;
  desk.program.project.CurrentFile =
      "/designs/cedar hollow/north mains/crosscut nine/belt entry under the old works.ORB";

  EXPECT_THAT(FileLines(desk), ElementsAre("Project File: /designs/cedar hollow/north mains/crosscut nine/belt",
                                           "entry under the old works.ORB"));
}

TEST(InputEcho, ShowsTheEndOfALongFileNameWithoutBlanks) {
  Desk desk;
  desk.program.project.CurrentFile =
      "/designs/cedar_hollow/north_mains/crosscut_nine/belt_entry_under_the_old_works.ORB";

  EXPECT_THAT(FileLines(desk),
              ElementsAre("Project File:", "...hollow/north_mains/crosscut_nine/belt_entry_under_the_old_works.ORB"));
}

TEST(InputEcho, EndsAfterTheOptionsWithAllAnalysesOff) {
  Desk desk;
  desk.program.project.WorkParms.Primary.Analysed = 0;
  desk.program.project.WorkParms.Entries.Analysed = 0;
  desk.program.project.WorkParms.Intersections.Analysed = 0;

  const std::string page = InputPage(desk);

  EXPECT_TRUE(page.ends_with("Analysis of Secondary Support: Intersections............NO\r\n\r\n\r\n"));
}

TEST(InputEcho, HasAnAnalysisOnlyForAFlagOfOne) {
  for (const Integer flag : std::array<Integer, 2>{2, -1}) {
    Desk desk;
    Design& record = desk.program.project.WorkParms;
    record.Primary.Analysed = record.Entries.Analysed = record.Intersections.Analysed = flag;

    EXPECT_TRUE(
        InputPage(desk).ends_with("[ROOF SUPPORT ANALYSIS OPTIONS]\r\n"
                                  "Analysis of Primary Roof Bolts..........................NO\r\n"
                                  "Analysis of Secondary Support: Entries..................NO\r\n"
                                  "Analysis of Secondary Support: Intersections............NO\r\n\r\n\r\n"))
        << flag;
  }
}

TEST(InputEcho, HasASystemOnlyForAFlagOfOne) {
  for (const Integer flag : std::array<Integer, 2>{2, -1}) {
    Desk desk;
    desk.program.project.WorkParms.Primary.Analysed = 0;
    UseEverySystem(desk.program.project.WorkParms, flag);

    const std::string page = InputPage(desk);

    EXPECT_THAT(LinesOf(page), Not(Contains(HasSubstr("SUPPORT - ")))) << flag;
    for (const auto* options :
         {"[SECONDARY ENTRY SUPPORT ANALYSIS OPTIONS]", "[SECONDARY INTERSECTION SUPPORT ANALYSIS OPTIONS]"}) {
      EXPECT_THAT(SectionOf(page, options),
                  IsSupersetOf({"Evaluation of Cable Bolt Systems........................NO",
                                "Evaluation of Truss Systems.............................NO",
                                "Evaluation of Roof Bolt Systems.........................NO",
                                "Evaluation of Standing Support Systems..................NO"}))
          << flag;
    }
  }
}

TEST(InputEcho, HasAnEmptyLineBeforeIntersectionsWithoutEntries) {
  Desk desk;
  desk.program.project.WorkParms.Primary.Analysed = 0;
  desk.program.project.WorkParms.Entries.Analysed = 0;

  EXPECT_NE(InputPage(desk).find("...YES\r\n\r\n\r\n\r\n[SECONDARY INTERSECTION SUPPORT]\r\n"), std::string::npos);
}

TEST(InputEcho, NamesNeitherRegionNorRockForATypedRating) {
  Desk desk;
  desk.program.project.WorkParms.Place.CMRRManual = 1;

  EXPECT_THAT(Geology(desk),
              ElementsAre("CMRR......................................................45",
                          "CMRR Region...............................Manual Selection",
                          "CMRR Rock Type............................Manual Selection",
                          "Depth of Cover............................................400 (ft)",
                          "Unit Weight of Rock.......................................162 (pcf)", "", ""));
}

TEST(InputEcho, HasATypedRatingOnlyInModeOne) {
  Desk desk;
  desk.program.project.WorkParms.Place.CMRRManual = 2;
  desk.program.project.WorkParms.Place.CMRRRegionIndex = 5;
  desk.program.project.WorkParms.Place.CMRRRockTypeIndex = 3;

  EXPECT_THAT(Geology(desk), IsSupersetOf({"CMRR Region..................................Other Western",
                                           "CMRR Rock Type............................Bedded Sandstone"}));
}

TEST(InputEcho, HasNoRowsForARegionOutsideTheTable) {
  for (const Integer region : std::array<Integer, 2>{-1, 6}) {
    Desk desk;
    desk.program.project.WorkParms.Place.CMRRRegionIndex = region;

    EXPECT_THAT(Geology(desk),
                ElementsAre("CMRR......................................................45",
                            "Depth of Cover............................................400 (ft)",
                            "Unit Weight of Rock.......................................162 (pcf)", "", ""));
  }
}

TEST(InputEcho, HasNoRowForARockTypeOutsideTheTable) {
  for (const Integer rockType : std::array<Integer, 2>{-1, 8}) {
    Desk desk;
    desk.program.project.WorkParms.Place.CMRRRegionIndex = 5;
    desk.program.project.WorkParms.Place.CMRRRockTypeIndex = rockType;

    const auto geology = Geology(desk);

    EXPECT_THAT(geology, Contains("CMRR Region..................................Other Western"));
    EXPECT_THAT(geology, Not(Contains(StartsWith("CMRR Rock Type"))));
  }
}

TEST(InputEcho, HasNoNameForTheEighthRockTypeOfARegionWithSeven) {
  Desk desk;
  desk.program.project.WorkParms.Place.CMRRRegionIndex = 5;
  desk.program.project.WorkParms.Place.CMRRRockTypeIndex = 7;

  EXPECT_THAT(Geology(desk), Contains("CMRR Rock Type............................................"));
}

TEST(InputEcho, HasNoBoltInANewProject) {
  Desk desk;

  EXPECT_THAT(SectionOf(InputPage(desk), "[PRIMARY SUPPORT - ROOF BOLTS]"),
              ElementsAre("Roof Bolt Length..........................................6 (ft)",
                          "Number of Roof Bolts per Row..............................4",
                          "Roof Bolt Row Spacing.....................................4 (ft)",
                          "Target Stability Factor...................................1",
                          "Roof Bolt Option................Select from Standard Table",
                          "Bolt Description..........................................",
                          "Roof Bolt Diameter........................................0 (in)",
                          "Roof Bolt Grade...........................................0 (ksi)",
                          "Roof Bolt Yield Capacity..................................0.0 (tons)",
                          "Roof Bolt Ultimate Capacity...............................0.0 (tons)", "", ""));
}

TEST(InputEcho, HasTheTypedBolt) {
  Desk desk;
  Design& record = desk.program.project.WorkParms;
  PickBolt(record, 0.75F, 75);
  record.Primary.DiameterMode = ValueSource::Typed;
  record.Primary.DiameterManual = 1.125F;
  record.Primary.GradeMode = ValueSource::Typed;
  record.Primary.GradeManual = 62.5F;

  const std::string page = InputPage(desk);

  // 62.5 x 0.99402 / 2 and (0.9 x 62.5 + 35) x 0.99402 / 2
  EXPECT_EQ(ValueOf(page, "Roof Bolt Diameter"), "1.125 (in)");
  EXPECT_EQ(ValueOf(page, "Roof Bolt Grade"), "62.5 (ksi)");
  EXPECT_EQ(ValueOf(page, "Roof Bolt Yield Capacity"), "31.1 (tons)");
  EXPECT_EQ(ValueOf(page, "Roof Bolt Ultimate Capacity"), "45.4 (tons)");
}

TEST(InputEcho, HasTheTableRowForAnUnknownBoltOption) {
  Desk desk;
  Design& record = desk.program.project.WorkParms;
  record.Primary.Options = BoltSource{2};
  record.Primary.TableDiameter = 0.625F;
  record.Primary.TableGrade = 60;

  const std::string page = InputPage(desk);

  EXPECT_THAT(LinesOf(page), Contains("Roof Bolt Option..........................Manual Selection"));
  EXPECT_EQ(ValueOf(page, "Roof Bolt Diameter"), "0.625 (in)");
  EXPECT_EQ(ValueOf(page, "Roof Bolt Grade"), "60 (ksi)");
}

TEST(InputEcho, HasNoDotBeforeALongBoltDescription) {
  Desk desk;
  desk.program.project.WorkParms.Primary.Desc = "fully grouted rebar, grade 60, M22 threads";

  EXPECT_THAT(LinesOf(InputPage(desk)), Contains("Bolt Descriptionfully grouted rebar, grade 60, M22 threads"));
}

TEST(InputEcho, HasDifferentCapacitiesOfPrimaryAndSecondaryBoltsForMetricUltimateGrades) {
  Desk desk(Metric, StrengthBasis::Ultimate);
  Design& record = desk.program.project.WorkParms;
  PickBolt(record, 20, 690);
  UseEverySystem(record);

  const std::string page = InputPage(desk);

  const auto capacities = [&](std::string_view heading) {
    const auto rows = SectionOf(page, heading);
    std::vector<std::string> found;
    for (const auto& row : rows) {
      if (row.starts_with("Roof Bolt Yield") || row.starts_with("Roof Bolt Ultimate")) found.push_back(row.substr(58));
    }
    return found;
  };
  EXPECT_THAT(capacities("[PRIMARY SUPPORT - ROOF BOLTS]"), ElementsAre("157 (kN)", "217 (kN)"));
  EXPECT_THAT(capacities("[SECONDARY ENTRY SUPPORT - ROOF BOLTS]"), ElementsAre("-340 (kN)", "-230 (kN)"));
  EXPECT_THAT(capacities("[SECONDARY INTERSECTION SUPPORT - ROOF BOLTS]"), ElementsAre("-340 (kN)", "-230 (kN)"));
}

TEST(InputEcho, ConvertsGradesOfAnUnknownKindLikeUltimateGradesWithoutTheirLine) {
  Desk english;
  english.program.project.WorkParms.Basis = StrengthBasis{2};
  PickBolt(english.program.project.WorkParms, 0.75F, 100);
  Desk metric(Metric);
  metric.program.project.WorkParms.Basis = StrengthBasis{2};
  PickBolt(metric.program.project.WorkParms, 20, 690);

  const std::string inTons = InputPage(english);
  const std::string inKilonewtons = InputPage(metric);

  EXPECT_THAT(inTons, Not(HasSubstr("Ultimate Strength")));
  EXPECT_EQ(ValueOf(inTons, "Roof Bolt Yield Capacity"), "16.6 (tons)");
  EXPECT_EQ(ValueOf(inTons, "Roof Bolt Ultimate Capacity"), "22.1 (tons)");
  EXPECT_EQ(ValueOf(inKilonewtons, "Roof Bolt Yield Capacity"), "157 (kN)");
  EXPECT_EQ(ValueOf(inKilonewtons, "Roof Bolt Ultimate Capacity"), "217 (kN)");
}

TEST(InputEcho, HasTheSelectedCapacityOfACableEvenWithItsDiameter) {
  Desk desk;
  Design& record = desk.program.project.WorkParms;
  record.Intersections.Analysed = 0;
  record.Entries.Cable.Capacity = ValueSource::Typed;
  record.Entries.Cable.CapacityStd = 26.4F;
  record.Entries.Cable.CapacityManual = 29.5F;

  const std::string page = InputPage(desk);

  EXPECT_EQ(ValueOf(page, "Cable Bolt Diameter"), "0.6 (in)");
  EXPECT_EQ(ValueOf(page, "Cable Bolt Capacity"), "29.5 (tons)");
}

TEST(InputEcho, HasNoDiameterForACableOfGivenCapacity) {
  Desk desk;
  Design& record = desk.program.project.WorkParms;
  record.Intersections.Analysed = 0;
  record.Entries.Cable.CapMode = CapacityMode::Given;

  const std::string page = InputPage(desk);

  EXPECT_EQ(ValueOf(page, "Cable Bolt Diameter"), "no such line");
  EXPECT_EQ(ValueOf(page, "Cable Bolt Capacity"), "27 (tons)");
}

TEST(InputEcho, HasTheTypedCapacityForACableOfAnUnknownKind) {
  Desk desk;
  Design& record = desk.program.project.WorkParms;
  record.Intersections.Analysed = 0;
  record.Entries.Cable.CapMode = CapacityMode{2};
  record.Entries.Cable.Capacity = ValueSource{2};
  record.Entries.Cable.CapacityManual = 29.5F;

  const std::string page = InputPage(desk);

  EXPECT_EQ(ValueOf(page, "Cable Bolt Diameter"), "no such line");
  EXPECT_EQ(ValueOf(page, "Cable Bolt Capacity"), "29.5 (tons)");
}

TEST(InputEcho, NormalisesTheDescriptionOfTheProject) {
  Desk desk;
  desk.program.project.ProjectDescription = "Belt entry\r\n\r\nReturn entry\r\n";

  const std::string page = InputPage(desk);

  EXPECT_EQ(desk.program.project.ProjectDescription, "Belt entry\r\nReturn entry");
  EXPECT_EQ(desk.program.project.DescLines, 4);
  EXPECT_NE(page.find("[PROJECT DESCRIPTION]\r\nBelt entry\r\nReturn entry\r\n\r\n[GEOLOGY"), std::string::npos);
}

TEST(InputEcho, HasTheUnchangedDescriptionIfItCannotBeNormalised) {
  Desk desk;
  desk.program.project.ProjectDescription = "Belt entry\r\n\r\nReturn entry";
  desk.machine.files.Fail(MemoryFiles::Step::Create, 61);

  const std::string page = InputPage(desk);

  EXPECT_NE(page.find("[PROJECT DESCRIPTION]\r\nBelt entry\r\n\r\nReturn entry\r\n\r\n[GEOLOGY"), std::string::npos);
}

TEST(InputEcho, ReplacesOnlyItsOwnPage) {
  Desk desk;
  desk.program.session.OutBuf[0] = "yesterday's page";
  desk.program.session.OutBuf[1] = "the calculations";
  desk.program.windows.LastPage = 4;

  const std::string once = InputPage(desk);
  const std::string twice = InputPage(desk);

  EXPECT_THAT(once, StartsWith("ORBY module build: 201030\r\n"));
  EXPECT_EQ(twice, once);
  EXPECT_EQ(desk.program.session.OutBuf[1], "the calculations");
  EXPECT_EQ(desk.program.windows.LastPage, 1);
}

TEST(InputEcho, ShowsTheCommittedDesign) {
  Desk desk;
  desk.program.windows.WorkParmsCopy.Place.EntryWidth = 17;

  EXPECT_EQ(ValueOf(InputPage(desk), "Entry Width"), "20 (ft)");
}

TEST(InputEcho, FailsForAnUnknownUnitSystem) {
  Desk desk;
  desk.program.project.WorkParms.Units = UnitSystem{2};

  EXPECT_EQ(ErrorNumberOf([&] { LoadOutBuf0(desk.program, desk.program.project.WorkParms); }), 9);
}

}  // namespace
}  // namespace orby::test
