#include "reports/primary_report.h"

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

// A new design with the default bolt and only primary support.
struct PrimaryDesk : Desk {
  explicit PrimaryDesk(UnitSystem units = English) : Desk(units) {
    if (units == Metric) {
      PickBolt(Parms(), 20, 520);
    } else {
      PickBolt(Parms(), 0.75F, 75);
    }
    Parms().Entries.Analysed = 0;
    Parms().Intersections.Analysed = 0;
  }
  Design& Parms() { return program.project.WorkParms; }
  std::string Page() { return CalculationReport(Parms(), program.session.catalogs); }
  std::vector<std::string> Span() { return SectionOf(Page(), "[INTERSECTION SPAN INFORMATION]"); }
  std::vector<std::string> Bolts() { return SectionOf(Page(), "[PRIMARY SUPPORT - ROOF BOLTS]"); }
  std::vector<std::string> Judgement() { return SectionOf(Page(), "[ORBY DESIGN]"); }
};

TEST(CalculationReport, ReplacesTheOldPageAndIsTheLastPage) {
  Desk desk;
  desk.program.session.OutBuf[0] = "the inputs";
  desk.program.session.OutBuf[1] = "a cost table";
  desk.program.windows.LastPage = 4;

  TakeCalculationPage(desk.program, "calculations");

  EXPECT_EQ(desk.program.session.OutBuf[1], "calculations");
  EXPECT_EQ(desk.program.session.OutBuf[0], "the inputs");
  EXPECT_EQ(desk.program.windows.LastPage, 1);
}

TEST(CalculationReport, HasOnlyItsHeadingWithAllAnalysesOff) {
  PrimaryDesk desk;
  desk.Parms().Primary.Analysed = 0;

  EXPECT_EQ(desk.Page(), "[ORBY CALCULATIONS]\r\n");
}

TEST(CalculationReport, HasAnAnalysisOnlyForAFlagOfOne) {
  PrimaryDesk desk;
  desk.Parms().Primary.Analysed = 2;
  desk.Parms().Entries.Analysed = -1;
  desk.Parms().Intersections.Analysed = 2;

  EXPECT_EQ(desk.Page(), "[ORBY CALCULATIONS]\r\n");
}

TEST(CalculationReport, JudgesTheCommittedDesign) {
  PrimaryDesk desk;
  desk.program.windows.WorkParmsCopy.Place.ActualSpanDiagonals = 90;

  EXPECT_EQ(ValueOf(desk.Page(), "Actual Sum of Diagonals"), "60.0 (ft)");
}

TEST(SpanReport, AcceptsASpanWithinItsLimits) {
  PrimaryDesk desk;

  EXPECT_THAT(desk.Span(), ElementsAre("Suggested Sum of Diagonals................................63.2 (ft)",
                                       "Actual Sum of Diagonals...................................60.0 (ft)",
                                       "Intersection Span: OK.", ""));
}

TEST(SpanReport, AcceptsTheSuggestedSpan) {
  PrimaryDesk desk;
  desk.Parms().Place.ActualSpanDiagonals = 63.2F;

  EXPECT_THAT(desk.Span(), Contains("Intersection Span: OK."));
}

TEST(SpanReport, HasAnEmptyLineAfterTheWarningOfATooLargeSpan) {
  PrimaryDesk desk;
  desk.Parms().Place.ActualSpanDiagonals = 64;

  EXPECT_THAT(desk.Span(),
              ElementsAre("Suggested Sum of Diagonals................................63.2 (ft)",
                          "Actual Sum of Diagonals...................................64.0 (ft)", "[Warning]",
                          "Actual sum of diagonals exceeds suggested sum of diagonals.", "", ""));
}

TEST(SpanReport, HasAWarningWithoutAMessageForAMismatch) {
  PrimaryDesk desk;
  desk.Parms().Place.ActualSpanDiagonals = 32;

  EXPECT_THAT(desk.Span(),
              ElementsAre("Suggested Sum of Diagonals................................63.2 (ft)",
                          "Actual Sum of Diagonals...................................32.0 (ft)", "[Warning]", ""));
}

TEST(SpanReport, HasBothWarningsForATooLargeSpanWithAMismatch) {
  PrimaryDesk desk;
  desk.Parms().Place.ActualSpanDiagonals = 64;
  desk.Parms().Place.EntryWidth = 43;

  EXPECT_THAT(desk.Span(), ElementsAre("Suggested Sum of Diagonals................................63.2 (ft)",
                                       "Actual Sum of Diagonals...................................64.0 (ft)",
                                       "[Warnings]", "Actual sum of diagonals exceeds suggested sum of diagonals.",
                                       "Intersection diagonals and entry width may not match.", ""));
}

TEST(SpanReport, JudgesAMetricSpanWithAMarginOfFourMetres) {
  PrimaryDesk desk(Metric);
  desk.Parms().Place.ActualSpanDiagonals = 12.7F;

  const auto narrow = desk.Span();
  desk.Parms().Place.ActualSpanDiagonals = 12.8F;
  const auto wide = desk.Span();

  // sqrt(2) x 6.2 m + 4 m = 12.77 m
  EXPECT_THAT(narrow, Contains("[Warning]"));
  EXPECT_THAT(wide, Contains("Intersection Span: OK."));
}

TEST(SpanReport, HasNoZeroBeforeThePointOfALengthBelowOne) {
  PrimaryDesk desk;
  desk.Parms().Place.ActualSpanDiagonals = 0.5F;

  EXPECT_EQ(ValueOf(desk.Page(), "Actual Sum of Diagonals"), ".5 (ft)");
}

TEST(SpanReport, ShowsALengthOfZeroAsAPointAndAZero) {
  PrimaryDesk desk;
  desk.Parms().Primary.Length = 0;

  EXPECT_EQ(ValueOf(desk.Page(), "Actual Roof Bolt Length"), ".0 (ft)");
}

TEST(BoltReport, AcceptsALengthFromTheSuggestedOneToTwoFeetMore) {
  PrimaryDesk desk;

  EXPECT_THAT(desk.Bolts(), ElementsAre("Actual Roof Bolt Yield Capacity...........................16.6 (tons)",
                                        "Actual Roof Bolt Length...................................6.0 (ft)",
                                        "Suggested Minimum Roof Bolt Length........................4.9 (ft)",
                                        "Roof Bolt Length OK.", ""));
}

TEST(BoltReport, WarnsOfABoltShorterThanSuggested) {
  PrimaryDesk desk;
  desk.Parms().Primary.Length = 4.8F;

  EXPECT_THAT(desk.Bolts(),
              ElementsAre("Actual Roof Bolt Yield Capacity...........................16.6 (tons)",
                          "Actual Roof Bolt Length...................................4.8 (ft)",
                          "Suggested Minimum Roof Bolt Length........................4.9 (ft)", "[Warning]",
                          "The actual roof bolt length is shorter than the suggested length", ""));
}

TEST(BoltReport, WarnsOfABoltMoreThanTwoFeetTooLong) {
  PrimaryDesk desk;
  desk.Parms().Place.CMRR = 80;  // the smallest suggestion, 4 ft
  desk.Parms().Primary.Length = 6;

  const auto atLimit = desk.Bolts();
  desk.Parms().Primary.Length = 6.083F;
  const auto beyond = desk.Bolts();

  EXPECT_THAT(atLimit, Contains("Roof Bolt Length OK."));
  EXPECT_THAT(beyond, IsSupersetOf({"[Warning]", "The actual roof bolt length is longer than the suggested",
                                    "length by more than 2 feet"}));
  EXPECT_THAT(beyond, Not(Contains("Roof Bolt Length OK.")));
}

TEST(BoltReport, WarnsOfAMetricBoltMoreThanSixtyCentimetresTooLong) {
  PrimaryDesk desk(Metric);
  desk.Parms().Primary.Length = 2.2F;  // 1.689 m are suggested

  const auto within = desk.Bolts();
  desk.Parms().Primary.Length = 2.3F;
  const auto beyond = desk.Bolts();

  EXPECT_THAT(within, Contains("Roof Bolt Length OK."));
  EXPECT_THAT(beyond, IsSupersetOf({"[Warning]", "The actual roof bolt length is longer than the suggested",
                                    "length by more than 60 cm"}));
}

TEST(BoltReport, ComparesALengthWithSixtyCentimetresInSinglePrecision) {
  EXPECT_EQ(JudgeLength({.Actual = 0.85F, .Suggested = 0.25F}, Metric), LengthVerdict::Fine);  // 0.60000002 m more
  EXPECT_EQ(JudgeLength({.Actual = 2.1F, .Suggested = 1.5F}, Metric), LengthVerdict::Fine);    // 0.5999999 m more
  EXPECT_EQ(JudgeLength({.Actual = 2.1000001F, .Suggested = 1.5F}, Metric), LengthVerdict::TooLong);
}

TEST(BoltReport, ComparesLengthsExactly) {
  EXPECT_EQ(JudgeLength({.Actual = 6, .Suggested = 4}, English), LengthVerdict::Fine);
  EXPECT_EQ(JudgeLength({.Actual = 6.0000005F, .Suggested = 4}, English), LengthVerdict::TooLong);
  EXPECT_EQ(JudgeLength({.Actual = 4, .Suggested = 4}, English), LengthVerdict::Fine);
  EXPECT_EQ(JudgeLength({.Actual = 3.9999998F, .Suggested = 4}, English), LengthVerdict::TooShort);
}

TEST(BoltReport, WarnsOfABoltBelowTheASTMMinimum) {
  PrimaryDesk desk;
  PickBolt(desk.Parms(), 0.625F, 55);

  EXPECT_THAT(desk.Bolts(),
              ElementsAre("Actual Roof Bolt Yield Capacity...........................8.4 (tons)",
                          "Actual Roof Bolt Length...................................6.0 (ft)",
                          "Suggested Minimum Roof Bolt Length........................4.9 (ft)", "[Warning]",
                          "Bolt capacity may not meet ASTM minimum standards for roof support", ""));
}

TEST(BoltReport, LabelsTheCapacityAsUltimateUnlessTheGradeIsAYieldStrength) {
  for (const StrengthBasis basis : {StrengthBasis::Ultimate, StrengthBasis{2}}) {
    PrimaryDesk desk;
    PickBolt(desk.Parms(), 0.75F, 100);
    desk.program.project.WorkParms.Basis = basis;

    const std::string page = desk.Page();

    // The number is the yield capacity nevertheless: 75 x 0.44179 / 2
    EXPECT_EQ(ValueOf(page, "Actual Roof Bolt Yield Capacity"), "no such line") << NumberOf(basis);
    EXPECT_EQ(ValueOf(page, "Actual Roof Bolt Ultimate Capacity"), "16.6 (tons)") << NumberOf(basis);
    EXPECT_EQ(ValueOf(page, "Actual PSUP for this design"), "9.9") << NumberOf(basis);
    EXPECT_EQ(ValueOf(page, "PRSUP"), "13.3") << NumberOf(basis);
  }
}

TEST(BoltReport, HasTwoWarningsForAShortAndWeakBolt) {
  PrimaryDesk desk;
  PickBolt(desk.Parms(), 0.625F, 55);
  desk.Parms().Primary.Length = 4;

  EXPECT_THAT(desk.Bolts(),
              ElementsAre("Actual Roof Bolt Yield Capacity...........................8.4 (tons)",
                          "Actual Roof Bolt Length...................................4.0 (ft)",
                          "Suggested Minimum Roof Bolt Length........................4.9 (ft)", "[Warnings]",
                          "The actual roof bolt length is shorter than the suggested length",
                          "Bolt capacity may not meet ASTM minimum standards for roof support", ""));
}

TEST(BoltReport, ComparesCapacitiesWithTheASTMMinimaInSinglePrecision) {
  EXPECT_FALSE(FailsASTM({Inches(0.75F), Ksi(38.253773F)}, English));  // 8.45 tons as a Single, which is less than 8.45
  EXPECT_TRUE(FailsASTM({Inches(0.75F), Ksi(38.253769F)}, English));
  EXPECT_FALSE(FailsASTM({Inches(0.75F), Ksi(42.418861F)}, Metric));  // 83.36 kN
  EXPECT_TRUE(FailsASTM({Inches(0.75F), Ksi(42.418858F)}, Metric));
}

TEST(DesignReport, AcceptsEnoughSupport) {
  PrimaryDesk desk;

  EXPECT_THAT(desk.Judgement(),
              ElementsAre("Suggested PSUP for this location..........................7.6",
                          "Actual PSUP for this design...............................9.9", "Actual PSUP OK", "",
                          "Reinforcement Density Index (RDI).........................192.2",
                          "PRSUP.....................................................13.3", ""));
}

TEST(DesignReport, WarnsOfTooLittleSupport) {
  PrimaryDesk desk;
  desk.Parms().Primary.BoltsperRow = 3;

  EXPECT_THAT(desk.Judgement(),
              ElementsAre("Suggested PSUP for this location..........................7.6",
                          "Actual PSUP for this design...............................7.5", "[Warning]",
                          "The actual PSUP for this design is less than the suggested",
                          "PSUP. Try changing the roof bolt length, bolt diameter, bolt grade", "or row spacing.", "",
                          "Reinforcement Density Index (RDI).........................144.1",
                          "PRSUP.....................................................9.9", ""));
}

TEST(DesignReport, SuggestsSupplementalSupportAboveTwelveOnly) {
  PrimaryDesk desk;
  desk.Parms().Primary.StabilityFactor = 1.5775279F;

  const auto twelve = desk.Judgement();
  desk.Parms().Primary.StabilityFactor = 1.577528F;  // 12.000001
  const auto more = desk.Judgement();

  EXPECT_THAT(twelve, Contains("Suggested PSUP for this location..........................12.0"));
  EXPECT_THAT(twelve, Not(Contains("Consider using supplemental support for roof control")));
  EXPECT_THAT(more, ElementsAre("Suggested PSUP for this location..........................12.0",
                                "Actual PSUP for this design...............................9.9", "[Warning]",
                                "The actual PSUP for this design is less than the suggested",
                                "PSUP. Try changing the roof bolt length, bolt diameter, bolt grade", "or row spacing.",
                                "", "Consider using supplemental support for roof control", "",
                                "Reinforcement Density Index (RDI).........................192.2",
                                "PRSUP.....................................................13.3", ""));
}

TEST(DesignReport, SuggestsThreeForTheWeakestRoof) {
  PrimaryDesk desk;
  desk.Parms().Place.CMRR = 20;

  EXPECT_THAT(desk.Judgement(),
              IsSupersetOf({"Suggested PSUP for this location..........................3.0", "Actual PSUP OK"}));
}

TEST(DesignReport, ReportsSkinControlForASuggestionBelowThree) {
  EXPECT_EQ(JudgePsup({.Actual = 9, .Suggested = 2.9999998F}), PsupVerdict::SkinControl);
  EXPECT_EQ(JudgePsup({.Actual = 0, .Suggested = 0}), PsupVerdict::SkinControl);
  EXPECT_EQ(JudgePsup({.Actual = 2.9F, .Suggested = 3}), PsupVerdict::TooLow);
  EXPECT_EQ(JudgePsup({.Actual = 3, .Suggested = 3}), PsupVerdict::Fine);
  EXPECT_EQ(PsupMessage(PsupVerdict::SkinControl), "Bolt reinforcement mechanism is skin control or suspension.");
}

TEST(DesignReport, FailsWithoutADepth) {
  PrimaryDesk desk;
  desk.Parms().Place.DepthofCover = 0;

  EXPECT_EQ(ErrorNumberOf([&] { desk.Page(); }), 5);
}

TEST(DesignReport, FailsWithoutARowSpacing) {
  PrimaryDesk desk;
  desk.Parms().Primary.RowSpacing = 0;

  EXPECT_EQ(ErrorNumberOf([&] { desk.Page(); }), 11);
}

}  // namespace
}  // namespace orby::test
