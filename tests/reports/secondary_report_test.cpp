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

// A new design with the bolt that its defaults name, secondary support alone.
struct SecondaryDesk : Desk {
  explicit SecondaryDesk(Integer units = English) : Desk(units) {
    if (units == Metric) {
      PickBolt(Parms(), 20, 520);
    } else {
      PickBolt(Parms(), 0.75F, 75);
    }
    Parms().PrimSupport = 0;
  }
  ProjectRecord& Parms() { return program.WorkParms; }
  std::string Page() {
    CalculationReport(program);
    return program.OutBuf[1];
  }
  std::vector<std::string> Section(std::string_view heading) { return SectionOf(Page(), heading); }
  int Error() {
    return ErrorNumberOf([&] { CalculationReport(program); });
  }
};

// A desk with intersections alone, or with entries alone.
struct IntersectionDesk : SecondaryDesk {
  explicit IntersectionDesk(Integer units = English) : SecondaryDesk(units) { Parms().SecondSupEntries = 0; }
};
struct EntryDesk : SecondaryDesk {
  explicit EntryDesk(Integer units = English) : SecondaryDesk(units) { Parms().SecondSupInter = 0; }
};

TEST(EntryReport, CablesWithEnoughAnchorage) {
  EntryDesk desk;
  desk.Parms().CableLengthSecEntry = 12;
  desk.Parms().RockLoadEntry1 = 9.967F;
  desk.Parms().SupportCapEntry1 = 10.56F;
  desk.Parms().StabFactorEntry1 = 1.0595F;

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

TEST(EntryReport, ARockLoadHigherThanTheFallAngleAllowsIsTold) {
  EntryDesk desk;
  desk.Parms().EntryWidth = 20;
  desk.Parms().RockFallAngle = 45;
  desk.Parms().RockLoadHeight = 10;

  const auto possible = desk.Section("[SECONDARY ENTRY SUPPORT]");
  desk.Parms().RockLoadHeight = 10.1F;
  const auto impossible = desk.Section("[SECONDARY ENTRY SUPPORT]");

  EXPECT_THAT(possible, ElementsAre("Rock Load.................................................0.0 (tons/ft)", ""));
  EXPECT_THAT(impossible, ElementsAre("Rock Load.................................................0.0 (tons/ft)",
                                      "(*) Rock Load Height adjusted. Maximum possible height....10.0 (ft)", ""));
}

TEST(EntryReport, AFallAngleOfZeroEndsTheReport) {
  EntryDesk desk;
  desk.Parms().RockFallAngle = 0;

  EXPECT_EQ(desk.Error(), 11);
}

TEST(EntryReport, ACableHoldsWhenFourFeetOfItReachAboveTheRock) {
  EntryDesk desk;
  desk.Parms().RockLoadHeight = 8;
  desk.Parms().CableLengthSecEntry = 12;

  const auto anchored = desk.Section(EntryCables);
  desk.Parms().CableLengthSecEntry = 11.999999F;
  const auto loose = desk.Section(EntryCables);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, IsSupersetOf({"[Warning]", "Cable bolt may not be long enough to achieve adequate",
                                   "anchorage for the assumed rock load height."}));
  EXPECT_EQ(loose.back(), "");
}

TEST(EntryReport, AMetricCableHoldsWhenOnePointThreeMetresOfItReachAboveTheRock) {
  EntryDesk desk(Metric);
  desk.Parms().RockLoadHeight = 3;
  desk.Parms().CableLengthSecEntry = 4.3F;

  const auto anchored = desk.Section(EntryCables);
  desk.Parms().CableLengthSecEntry = 4.2999997F;
  const auto loose = desk.Section(EntryCables);
  desk.Parms().CableLengthSecEntry = 3.3F;  // 3.29999995 m
  desk.Parms().RockLoadHeight = 2;
  const auto shortByARounding = desk.Section(EntryCables);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, Contains("[Warning]"));
  EXPECT_THAT(shortByARounding, Contains("[Warning]"));
}

TEST(EntryReport, TheCapacityOfACableGoesByItsDiameterUnlessItIsGiven) {
  EntryDesk desk;
  constexpr auto Srdi = "Secondary Reinforcement Density Index (SRDI)";

  const std::string byDiameter = ValueOf(desk.Page(), Srdi);  // 26.4 tons
  desk.Parms().CableDiamSecEntry = 0.65F;
  const std::string unknownDiameter = ValueOf(desk.Page(), Srdi);
  desk.Parms().CableCapModeSecEntry = 1;
  desk.Parms().CableCapacityManualSecEntry = 31.5F;
  const std::string standard = ValueOf(desk.Page(), Srdi);  // 27 tons
  desk.Parms().CableCapacitySecEntry = 1;
  const std::string typed = ValueOf(desk.Page(), Srdi);  // 31.5 tons

  EXPECT_EQ(byDiameter, "148.1");
  EXPECT_EQ(unknownDiameter, "0.0");
  EXPECT_EQ(standard, "151.4");
  EXPECT_EQ(typed, "176.7");
}

TEST(EntryReport, TheCapacityOfACableIsGivenAndTypedInByAnyFlagButZero) {
  EntryDesk desk;
  constexpr auto Srdi = "Secondary Reinforcement Density Index (SRDI)";
  desk.Parms().CableCapacityManualSecEntry = 31.5F;

  desk.Parms().CableCapModeSecEntry = 2;
  const std::string standard = ValueOf(desk.Page(), Srdi);  // 27 tons
  desk.Parms().CableCapacitySecEntry = 2;
  const std::string typed = ValueOf(desk.Page(), Srdi);  // 31.5 tons

  EXPECT_EQ(standard, "151.4");
  EXPECT_EQ(typed, "176.7");
}

TEST(EntryReport, TheCapacityOfAMetricCableIsTakenInTons) {
  EntryDesk desk(Metric);
  constexpr auto Srdi = "Secondary Reinforcement Density Index (SRDI)";

  const std::string byDiameter = ValueOf(desk.Page(), Srdi);  // 590 kN
  desk.Parms().CableCapModeSecEntry = 1;
  desk.Parms().CableCapacityStdSecEntry = 635;
  const std::string standard = ValueOf(desk.Page(), Srdi);

  EXPECT_EQ(byDiameter, "219.3");
  EXPECT_EQ(standard, "236.0");
}

TEST(EntryReport, TheSecondaryPRSUPOfCablesGoesByTheLengthOfThePrimaryBolts) {
  EntryDesk desk;
  desk.Parms().BoltLengthPrimary = 12;
  desk.Parms().CableLengthSecEntry = 20;

  // 12 x 2 x 52.8 / (5 x 20)
  EXPECT_EQ(ValueOf(desk.Page(), "Secondary PRSUP"), "12.7");
}

TEST(EntryReport, RoofBoltsWithoutCableBoltsEndTheReport) {
  for (const Integer noCables : std::array<Integer, 3>{0, 2, -1}) {
    EntryDesk desk;
    desk.Parms().SecEntryUseCable = noCables;
    desk.Parms().SecEntryUseBolt = 1;

    EXPECT_EQ(desk.Error(), 11) << noCables;
  }
}

TEST(EntryReport, RoofBoltsBesideCableBolts) {
  EntryDesk desk;
  desk.Parms().SecEntryUseBolt = 1;
  desk.Parms().RockLoadHeight = 5;
  desk.Parms().SupportCapEntry3 = 16.567F;
  desk.Parms().StabFactorEntry3 = 1.5F;

  EXPECT_THAT(desk.Section(EntryBolts),
              ElementsAre("Roof Bolt Support System Capacity.........................16.6 (tons/ft)",
                          "Roof Bolt Support System Stability Factor.................1.50",
                          "Secondary Reinforcement Density Index (SRDI)..............96.1",
                          "Secondary PRSUP...........................................13.3", ""));
}

TEST(EntryReport, ARoofBoltHoldsWhenAFootOfItReachesAboveTheRock) {
  EntryDesk desk;
  desk.Parms().SecEntryUseBolt = 1;
  desk.Parms().RockLoadHeight = 5;
  desk.Parms().BoltLengthSecEntry = 6;

  const auto anchored = desk.Section(EntryBolts);
  desk.Parms().BoltLengthSecEntry = 5.9999995F;
  const auto loose = desk.Section(EntryBolts);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, IsSupersetOf({"[Warning]", "Secondary roof bolt may not be long enough to achieve",
                                   "adequate anchorage for the assumed rock load height."}));
  EXPECT_EQ(loose.back(), "");
}

TEST(EntryReport, AMetricRoofBoltHoldsWhenThirtyPointFiveCentimetresOfItReachAboveTheRock) {
  EntryDesk desk(Metric);
  desk.Parms().SecEntryUseBolt = 1;
  desk.Parms().RockLoadHeight = 1.8F;
  desk.Parms().BoltLengthSecEntry = 2.105F;

  const auto anchored = desk.Section(EntryBolts);
  desk.Parms().BoltLengthSecEntry = 2.1049998F;
  const auto loose = desk.Section(EntryBolts);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, Contains("[Warning]"));
}

TEST(EntryReport, ARoofBoltBelowTheASTMMinimumIsWarnedOf) {
  EntryDesk desk;
  desk.Parms().SecEntryUseBolt = 1;
  desk.Parms().RockLoadHeight = 5;
  desk.Parms().BoltDiameterStdSecEntry = 0.625F;
  desk.Parms().BoltGradeStdSecEntry = 55;

  const auto rows = desk.Section(EntryBolts);

  ASSERT_EQ(rows.size(), 7U);
  EXPECT_EQ(rows[4], "");
  EXPECT_EQ(rows[5], BelowMinimum);
  EXPECT_EQ(rows[6], "");
}

TEST(EntryReport, TrussesAndStandingSupports) {
  EntryDesk desk;
  desk.Parms().SecEntryUseCable = 0;
  desk.Parms().SecEntryUseTruss = 1;
  desk.Parms().SecEntryUseStanding = 1;
  desk.Parms().SupportCapEntry2 = 10.6066F;
  desk.Parms().StabFactorEntry2 = 0.855F;
  desk.Parms().SupportCapEntry4 = 12.5F;
  desk.Parms().StabFactorEntry4 = 1;

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

TEST(IntersectionReport, LoadsKeepTheirGeneralForm) {
  IntersectionDesk desk;
  desk.Parms().CableLengthSecInter = 12;
  desk.Parms().RockLoadInter1 = 12345678;
  desk.Parms().SupportCapInter1 = 0.125F;
  desk.Parms().StabFactorInter1 = 0.5F;

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

TEST(IntersectionReport, ARockLoadHigherThanTheFallAngleAllowsIsTold) {
  IntersectionDesk desk;
  desk.Parms().RockFallAngleEntry = 60;

  const std::string page = desk.Page();

  // A square of 21.213 ft under 60 degrees carries 6.124 ft.
  EXPECT_EQ(ValueOf(page, "(*) Rock Load Height adjusted. Maximum possible height"), "6.1 (ft)");
}

TEST(IntersectionReport, WithoutFallAnglesAHundredIsTheLimit) {
  IntersectionDesk desk;
  desk.Parms().RockFallAngleEntry = 0;
  desk.Parms().RockFallAngleXcut = 0;
  desk.Parms().RockLoadHeightInter = 100;

  const std::string possible = desk.Page();
  desk.Parms().RockLoadHeightInter = 101;
  const std::string impossible = desk.Page();

  EXPECT_EQ(ValueOf(possible, "(*) Rock Load Height adjusted. Maximum possible height"), "no such line");
  EXPECT_EQ(ValueOf(impossible, "(*) Rock Load Height adjusted. Maximum possible height"), "100.0 (ft)");
}

TEST(IntersectionReport, ACrosscutAngleWithoutAnEntryAngleEndsTheReport) {
  IntersectionDesk desk;
  desk.Parms().RockFallAngleEntry = 0;

  EXPECT_EQ(desk.Error(), 11);
}

TEST(IntersectionReport, CablesAreJudgedByTheRockOfTheIntersection) {
  IntersectionDesk desk;
  desk.Parms().CableLengthSecInter = 10;
  desk.Parms().RockLoadHeightInter = 6;
  desk.Parms().CableLengthSecEntry = 1;

  const auto anchored = desk.Section(IntersectionCables);
  desk.Parms().RockLoadHeightInter = 6.5F;
  const auto loose = desk.Section(IntersectionCables);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, Contains("[Warning]"));
}

TEST(IntersectionReport, RoofBoltsAreJudgedByTheLengthAndTheRockOfTheEntries) {
  IntersectionDesk desk;
  desk.Parms().SecInterUseBolt = 1;
  desk.Parms().BoltLengthSecEntry = 9;
  desk.Parms().BoltLengthSecInter = 2;
  desk.Parms().RockLoadHeightInter = 8;

  const auto anchored = desk.Section(IntersectionBolts);
  desk.Parms().RockLoadHeight = 8.1F;
  desk.Parms().BoltLengthSecInter = 30;
  const auto loose = desk.Section(IntersectionBolts);

  EXPECT_THAT(anchored, Not(Contains("[Warning]")));
  EXPECT_THAT(loose, IsSupersetOf({"[Warning]", "Secondary roof bolt may not be long enough to achieve",
                                   "adequate anchorage for the assumed rock load height."}));
}

TEST(IntersectionReport, RoofBoltsNeedNoCableBoltsAndHaveNoDensities) {
  IntersectionDesk desk;
  desk.Parms().SecInterUseCable = 0;
  desk.Parms().SecInterUseBolt = 1;
  desk.Parms().BoltLengthSecEntry = 10;

  EXPECT_THAT(desk.Section(IntersectionBolts),
              ElementsAre("Roof Bolt Support System Capacity.........................0 (tons)",
                          "Roof Bolt Support System Stability Factor.................0.00", ""));
}

TEST(IntersectionReport, TheASTMMinimumIsAskedOfTheIntersectionsOwnBolt) {
  IntersectionDesk desk(Metric);
  desk.Parms().SecInterUseBolt = 1;
  desk.Parms().BoltDiameterStdSecEntry = 12;

  const auto strong = desk.Section(IntersectionBolts);
  desk.Parms().BoltDiameterStdSecEntry = 20;
  desk.Parms().BoltDiameterStdSecInter = 12;
  const auto weak = desk.Section(IntersectionBolts);

  EXPECT_THAT(strong, Not(Contains(BelowMinimum)));
  EXPECT_THAT(weak, Contains(BelowMinimum));
}

TEST(IntersectionReport, FollowsStandingSupportsOfTheEntriesWithoutAnEmptyLine) {
  SecondaryDesk desk;
  desk.Parms().SecEntryUseStanding = 1;
  desk.Parms().SecInterUseCable = 0;

  EXPECT_NE(desk.Page().find("Standing Support System Stability Factor..................0.00\r\n"
                             "[SECONDARY INTERSECTION SUPPORT]\r\n"),
            std::string::npos);
}

TEST(SecondaryReport, ASystemIsUsedWhenItsFlagIsOneAndNothingElse) {
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

TEST(IntersectionReport, SystemsThatAreNotUsedAreLeftOut) {
  IntersectionDesk desk;
  desk.Parms().SecInterUseCable = 0;

  EXPECT_EQ(desk.Page(),
            "[ORBY CALCULATIONS]\r\n"
            "[SECONDARY INTERSECTION SUPPORT]\r\n"
            "Rock Load.................................................0 (tons)\r\n"
            "\r\n");
}

}  // namespace
}  // namespace orby::test
