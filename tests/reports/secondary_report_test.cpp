#include "reports/secondary_report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "reports/calculation_report.h"
#include "reports/designs.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Not;

constexpr auto EntryCables = "[SECONDARY ENTRY SUPPORT - CABLE BOLTS]";
constexpr auto EntryBolts = "[SECONDARY ENTRY SUPPORT - ROOF BOLTS]";
constexpr auto IntersectionCables = "[SECONDARY INTERSECTION SUPPORT - CABLE BOLTS]";
constexpr auto IntersectionBolts = "[SECONDARY INTERSECTION SUPPORT - ROOF BOLTS]";
constexpr auto BelowMinimum = "Bolt capacity may not meet ASTM minimum standards for roof support";

// A new design with the default bolt and only secondary support.
struct SecondaryDesk : Desk {
  explicit SecondaryDesk(UnitSystem units = English) : Desk(units) {
    if (units == Metric) {
      PickBolt(Parms(), 20, 520);
    } else {
      PickBolt(Parms(), 0.75F, 75);
    }
    Parms().Primary.Analysed = 0;
  }
  Design& Parms() { return program.project.WorkParms; }
  std::string Page() { return CalculationReport(Parms(), program.session.catalogs); }
  std::vector<std::string> Section(std::string_view heading) { return SectionOf(Page(), heading); }
  int Error() {
    return ErrorNumberOf([this] { Page(); });
  }
};

// A desk with only intersections, and one with only entries.
struct IntersectionDesk : SecondaryDesk {
  explicit IntersectionDesk(UnitSystem units = English) : SecondaryDesk(units) { Parms().Entries.Analysed = 0; }
};
struct EntryDesk : SecondaryDesk {
  explicit EntryDesk(UnitSystem units = English) : SecondaryDesk(units) { Parms().Intersections.Analysed = 0; }
};

TEST(EntryReport, HasNoWarningForCablesWithEnoughAnchorage) {
  EntryDesk desk;
  desk.Parms().Entries.Cable.Length = 12;
  desk.Parms().Entries.RockLoad = 9.967F;
  desk.Parms().Entries.Cable.SupportCap = 10.56F;
  desk.Parms().Entries.Cable.StabFactor = 1.0595F;

  EXPECT_EQ(desk.Page(),
            "[ORBY CALCULATIONS]\r\n"
            "[SECONDARY ENTRY SUPPORT]\r\n"
            "Rock Load.................................................10.0 (tons/ft)\r\n"
            "\r\n"
            "[SECONDARY ENTRY SUPPORT - CABLE BOLTS]\r\n"
            "Cable Bolt System Support Capacity........................10.6 (tons/ft)\r\n"
            "Cable Bolt System Stability Factor........................1.06\r\n"
            "Secondary Reinforcement Density Index (SRDI)..............178.7\r\n"
            "Secondary PRSUP...........................................6.3\r\n"
            "\r\n");
}

TEST(EntryReport, ReportsAHeightThatTheFallAngleDoesNotAllow) {
  EntryDesk desk;
  desk.Parms().Place.EntryWidth = 20;
  desk.Parms().Entries.RockFallAngle = 45;
  desk.Parms().Entries.RockLoadHeight = 10;

  const auto possible = desk.Section("[SECONDARY ENTRY SUPPORT]");
  desk.Parms().Entries.RockLoadHeight = 10.1F;
  const auto impossible = desk.Section("[SECONDARY ENTRY SUPPORT]");

  EXPECT_THAT(possible, ElementsAre("Rock Load.................................................0.0 (tons/ft)", ""));
  EXPECT_THAT(impossible, ElementsAre("Rock Load.................................................0.0 (tons/ft)",
                                      "(*) Rock Load Height adjusted. Maximum possible height....10.0 (ft)", ""));
}

TEST(EntryReport, FailsForAFallAngleOfZero) {
  EntryDesk desk;
  desk.Parms().Entries.RockFallAngle = 0;

  EXPECT_EQ(desk.Error(), 11);
}

TEST(EntryReport, RequiresFourFeetOfACableAboveTheRock) {
  EntryDesk desk;
  desk.Parms().Entries.RockLoadHeight = 8;
  desk.Parms().Entries.Cable.Length = 12;

  const auto anchored = desk.Section(EntryCables);
  desk.Parms().Entries.Cable.Length = 11.999999F;
  const auto loose = desk.Section(EntryCables);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, IsSupersetOf({"[Warning]", "Cable bolt may not be long enough to achieve adequate",
                                   "anchorage for the assumed rock load height."}));
  EXPECT_EQ(loose.back(), "");
}

TEST(EntryReport, RequiresOnePointThreeMetresOfAMetricCableAboveTheRock) {
  EntryDesk desk(Metric);
  desk.Parms().Entries.RockLoadHeight = 3;
  desk.Parms().Entries.Cable.Length = 4.3F;

  const auto anchored = desk.Section(EntryCables);
  desk.Parms().Entries.Cable.Length = 4.2999997F;
  const auto loose = desk.Section(EntryCables);
  desk.Parms().Entries.Cable.Length = 3.3F;  // 3.29999995 m
  desk.Parms().Entries.RockLoadHeight = 2;
  const auto shortByARounding = desk.Section(EntryCables);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, Contains("[Warning]"));
  EXPECT_THAT(shortByARounding, Contains("[Warning]"));
}

TEST(EntryReport, UsesTheDiameterOfACableUnlessItsCapacityIsGiven) {
  EntryDesk desk;
  constexpr auto Srdi = "Secondary Reinforcement Density Index (SRDI)";

  const std::string byDiameter = ValueOf(desk.Page(), Srdi);  // 26.4 tons
  desk.Parms().Entries.Cable.Diam = 0.65F;
  const std::string unknownDiameter = ValueOf(desk.Page(), Srdi);
  desk.Parms().Entries.Cable.CapMode = CapacityMode::Given;
  desk.Parms().Entries.Cable.CapacityManual = 31.5F;
  const std::string standard = ValueOf(desk.Page(), Srdi);  // 27 tons
  desk.Parms().Entries.Cable.Capacity = ValueSource::Typed;
  const std::string typed = ValueOf(desk.Page(), Srdi);  // 31.5 tons

  EXPECT_EQ(byDiameter, "148.1");
  EXPECT_EQ(unknownDiameter, "0.0");
  EXPECT_EQ(standard, "151.4");
  EXPECT_EQ(typed, "176.7");
}

TEST(EntryReport, UsesTheTypedCapacityOfACableForAnyFlagsExceptZero) {
  EntryDesk desk;
  constexpr auto Srdi = "Secondary Reinforcement Density Index (SRDI)";
  desk.Parms().Entries.Cable.CapacityManual = 31.5F;

  desk.Parms().Entries.Cable.CapMode = CapacityMode{2};
  const std::string standard = ValueOf(desk.Page(), Srdi);  // 27 tons
  desk.Parms().Entries.Cable.Capacity = ValueSource{2};
  const std::string typed = ValueOf(desk.Page(), Srdi);  // 31.5 tons

  EXPECT_EQ(standard, "151.4");
  EXPECT_EQ(typed, "176.7");
}

TEST(EntryReport, ConvertsTheCapacityOfAMetricCableToTons) {
  EntryDesk desk(Metric);
  constexpr auto Srdi = "Secondary Reinforcement Density Index (SRDI)";

  const std::string byDiameter = ValueOf(desk.Page(), Srdi);  // 590 kN
  desk.Parms().Entries.Cable.CapMode = CapacityMode::Given;
  desk.Parms().Entries.Cable.CapacityStd = 635;
  const std::string standard = ValueOf(desk.Page(), Srdi);

  EXPECT_EQ(byDiameter, "219.3");
  EXPECT_EQ(standard, "236.0");
}

TEST(EntryReport, UsesTheLengthOfThePrimaryBoltsForTheSecondaryPRSUPOfCables) {
  EntryDesk desk;
  desk.Parms().Primary.Length = 12;
  desk.Parms().Entries.Cable.Length = 20;

  // 12 x 2 x 52.8 / (5 x 20)
  EXPECT_EQ(ValueOf(desk.Page(), "Secondary PRSUP"), "12.7");
}

TEST(EntryReport, FailsForRoofBoltsWithoutCableBolts) {
  for (const Integer noCables : std::array<Integer, 3>{0, 2, -1}) {
    EntryDesk desk;
    desk.Parms().Entries.Cable.Use = noCables;
    desk.Parms().Entries.Bolt.Use = 1;

    EXPECT_EQ(desk.Error(), 11) << noCables;
  }
}

TEST(EntryReport, FailsForMissingCableBoltsBeforeTooManyBolts) {
  EntryDesk desk;
  desk.Parms().Entries.Bolt.Use = 1;
  desk.Parms().Entries.Bolt.BoltsperRow = 3E38F;

  const int withCableBolts = desk.Error();
  desk.Parms().Entries.Cable.Use = 0;
  const int without = desk.Error();

  EXPECT_EQ(withCableBolts, 6);
  EXPECT_EQ(without, 11);
}

TEST(EntryReport, HasTheDensitiesOfRoofBoltsWithCableBolts) {
  EntryDesk desk;
  desk.Parms().Entries.Bolt.Use = 1;
  desk.Parms().Entries.RockLoadHeight = 5;
  desk.Parms().Entries.Bolt.SupportCap = 16.567F;
  desk.Parms().Entries.Bolt.StabFactor = 1.5F;

  EXPECT_THAT(desk.Section(EntryBolts),
              ElementsAre("Roof Bolt Support System Capacity.........................16.6 (tons/ft)",
                          "Roof Bolt Support System Stability Factor.................1.50",
                          "Secondary Reinforcement Density Index (SRDI)..............96.1",
                          "Secondary PRSUP...........................................13.3", ""));
}

TEST(EntryReport, RequiresAFootOfARoofBoltAboveTheRock) {
  EntryDesk desk;
  desk.Parms().Entries.Bolt.Use = 1;
  desk.Parms().Entries.RockLoadHeight = 5;
  desk.Parms().Entries.Bolt.Length = 6;

  const auto anchored = desk.Section(EntryBolts);
  desk.Parms().Entries.Bolt.Length = 5.9999995F;
  const auto loose = desk.Section(EntryBolts);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, IsSupersetOf({"[Warning]", "Secondary roof bolt may not be long enough to achieve",
                                   "adequate anchorage for the assumed rock load height."}));
  EXPECT_EQ(loose.back(), "");
}

TEST(EntryReport, RequiresThirtyPointFiveCentimetresOfAMetricRoofBoltAboveTheRock) {
  EntryDesk desk(Metric);
  desk.Parms().Entries.Bolt.Use = 1;
  desk.Parms().Entries.RockLoadHeight = 1.8F;
  desk.Parms().Entries.Bolt.Length = 2.105F;

  const auto anchored = desk.Section(EntryBolts);
  desk.Parms().Entries.Bolt.Length = 2.1049998F;
  const auto loose = desk.Section(EntryBolts);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, Contains("[Warning]"));
}

TEST(EntryReport, WarnsOfARoofBoltBelowTheASTMMinimum) {
  EntryDesk desk;
  desk.Parms().Entries.Bolt.Use = 1;
  desk.Parms().Entries.RockLoadHeight = 5;
  desk.Parms().Entries.Bolt.DiameterStd = 0.625F;
  desk.Parms().Entries.Bolt.GradeStd = 55;

  const auto rows = desk.Section(EntryBolts);

  ASSERT_EQ(rows.size(), 7U);
  EXPECT_EQ(rows[4], "");
  EXPECT_EQ(rows[5], BelowMinimum);
  EXPECT_EQ(rows[6], "");
}

TEST(EntryReport, HasTrussesAndStandingSupports) {
  EntryDesk desk;
  desk.Parms().Entries.Cable.Use = 0;
  desk.Parms().Entries.Truss.Use = 1;
  desk.Parms().Entries.Standing.Use = 1;
  desk.Parms().Entries.Truss.SupportCap = 10.6066F;
  desk.Parms().Entries.Truss.StabFactor = 0.855F;
  desk.Parms().Entries.Standing.SupportCap = 12.5F;
  desk.Parms().Entries.Standing.StabFactor = 1;

  EXPECT_EQ(desk.Page(),
            "[ORBY CALCULATIONS]\r\n"
            "[SECONDARY ENTRY SUPPORT]\r\n"
            "Rock Load.................................................0.0 (tons/ft)\r\n"
            "\r\n"
            "[SECONDARY ENTRY SUPPORT - TRUSSES]\r\n"
            "Truss System Support Capacity.............................10.6 (tons/ft)\r\n"
            "Truss Stability Factor....................................0.86\r\n"
            "\r\n"
            "[SECONDARY ENTRY SUPPORT - STANDING SUPPORTS]\r\n"
            "Standing Support System Capacity..........................12.5 (tons/ft)\r\n"
            "Standing Support System Stability Factor..................1.00\r\n");
}

TEST(IntersectionReport, ShowsLoadsAsGeneralText) {
  IntersectionDesk desk;
  desk.Parms().Intersections.Cable.Length = 12;
  desk.Parms().Intersections.RockLoad = 12345678;
  desk.Parms().Intersections.Cable.SupportCap = 0.125F;
  desk.Parms().Intersections.Cable.StabFactor = 0.5F;

  EXPECT_EQ(desk.Page(),
            "[ORBY CALCULATIONS]\r\n"
            "[SECONDARY INTERSECTION SUPPORT]\r\n"
            "Rock Load.................................................1.234568E+07 (tons)\r\n"
            "\r\n"
            "[SECONDARY INTERSECTION SUPPORT - CABLE BOLTS]\r\n"
            "Cable Bolt System Support Capacity........................0.125 (tons)\r\n"
            "Cable Bolt System Stability Factor........................0.50\r\n"
            "\r\n");
}

TEST(IntersectionReport, ReportsAHeightThatTheFallAngleDoesNotAllow) {
  IntersectionDesk desk;
  desk.Parms().Intersections.RockFallAngle = 60;

  const std::string page = desk.Page();

  // The limit for a square of 21.213 ft and 60 degrees is 6.124 ft.
  EXPECT_EQ(ValueOf(page, "(*) Rock Load Height adjusted. Maximum possible height"), "6.1 (ft)");
}

TEST(IntersectionReport, HasALimitOf100WithoutFallAngles) {
  IntersectionDesk desk;
  desk.Parms().Intersections.RockFallAngle = 0;
  desk.Parms().Intersections.RockFallAngleXcut = 0;
  desk.Parms().Intersections.RockLoadHeight = 100;

  const std::string possible = desk.Page();
  desk.Parms().Intersections.RockLoadHeight = 101;
  const std::string impossible = desk.Page();

  EXPECT_EQ(ValueOf(possible, "(*) Rock Load Height adjusted. Maximum possible height"), "no such line");
  EXPECT_EQ(ValueOf(impossible, "(*) Rock Load Height adjusted. Maximum possible height"), "100.0 (ft)");
}

TEST(IntersectionReport, FailsForACrosscutAngleWithoutAnEntryAngle) {
  IntersectionDesk desk;
  desk.Parms().Intersections.RockFallAngle = 0;

  EXPECT_EQ(desk.Error(), 11);
}

TEST(IntersectionReport, JudgesCablesByTheRockOfTheIntersection) {
  IntersectionDesk desk;
  desk.Parms().Intersections.Cable.Length = 10;
  desk.Parms().Intersections.RockLoadHeight = 6;
  desk.Parms().Entries.Cable.Length = 1;

  const auto anchored = desk.Section(IntersectionCables);
  desk.Parms().Intersections.RockLoadHeight = 6.5F;
  const auto loose = desk.Section(IntersectionCables);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, Contains("[Warning]"));
}

TEST(IntersectionReport, JudgesRoofBoltsByTheLengthAndTheRockOfTheEntries) {
  IntersectionDesk desk;
  desk.Parms().Intersections.Bolt.Use = 1;
  desk.Parms().Entries.Bolt.Length = 9;
  desk.Parms().Intersections.Bolt.Length = 2;
  desk.Parms().Intersections.RockLoadHeight = 8;

  const auto anchored = desk.Section(IntersectionBolts);
  desk.Parms().Entries.RockLoadHeight = 8.1F;
  desk.Parms().Intersections.Bolt.Length = 30;
  const auto loose = desk.Section(IntersectionBolts);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, IsSupersetOf({"[Warning]", "Secondary roof bolt may not be long enough to achieve",
                                   "adequate anchorage for the assumed rock load height."}));
}

TEST(IntersectionReport, HasNoDensitiesOfRoofBolts) {
  IntersectionDesk desk;
  desk.Parms().Intersections.Cable.Use = 0;
  desk.Parms().Intersections.Bolt.Use = 1;
  desk.Parms().Entries.Bolt.Length = 10;

  EXPECT_THAT(desk.Section(IntersectionBolts),
              ElementsAre("Roof Bolt Support System Capacity.........................0 (tons)",
                          "Roof Bolt Support System Stability Factor.................0.00", ""));
}

TEST(IntersectionReport, ComparesItsOwnBoltWithTheASTMMinimum) {
  IntersectionDesk desk(Metric);
  desk.Parms().Intersections.Bolt.Use = 1;
  desk.Parms().Entries.Bolt.DiameterStd = 12;

  const auto strong = desk.Section(IntersectionBolts);
  desk.Parms().Entries.Bolt.DiameterStd = 20;
  desk.Parms().Intersections.Bolt.DiameterStd = 12;
  const auto weak = desk.Section(IntersectionBolts);

  EXPECT_THAT(strong, Not(Contains(BelowMinimum)));
  EXPECT_THAT(weak, Contains(BelowMinimum));
}

TEST(IntersectionReport, FollowsTheStandingSupportsOfEntriesWithoutAnEmptyLine) {
  SecondaryDesk desk;
  desk.Parms().Entries.Standing.Use = 1;
  desk.Parms().Intersections.Cable.Use = 0;

  EXPECT_NE(desk.Page().find("Standing Support System Stability Factor..................0.00\r\n"
                             "[SECONDARY INTERSECTION SUPPORT]\r\n"),
            std::string::npos);
}

TEST(SecondaryReport, HasASystemOnlyForAFlagOfOne) {
  for (const Integer flag : std::array<Integer, 2>{2, -1}) {
    SecondaryDesk desk;
    UseEverySystem(desk.Parms(), flag);

    EXPECT_EQ(desk.Page(),
              "[ORBY CALCULATIONS]\r\n"
              "[SECONDARY ENTRY SUPPORT]\r\n"
              "Rock Load.................................................0.0 (tons/ft)\r\n"
              "\r\n"
              "[SECONDARY INTERSECTION SUPPORT]\r\n"
              "Rock Load.................................................0 (tons)\r\n"
              "\r\n")
        << flag;
  }
}

TEST(IntersectionReport, HasNoSystemsThatAreNotInUse) {
  IntersectionDesk desk;
  desk.Parms().Intersections.Cable.Use = 0;

  EXPECT_EQ(desk.Page(),
            "[ORBY CALCULATIONS]\r\n"
            "[SECONDARY INTERSECTION SUPPORT]\r\n"
            "Rock Load.................................................0 (tons)\r\n"
            "\r\n");
}

}  // namespace
}  // namespace orby::test
