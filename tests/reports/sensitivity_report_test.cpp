// What a figure depends on, as a text.
#include "reports/sensitivity_report.h"

#include <gmock/gmock.h>

#include "engine/designs.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

std::string TextFor(const Design& design, std::string_view key, double share) {
  static const Catalogs lists = BuiltInLists();
  return SensitivityText(design, lists, *FigureWithKey(key), share);
}

std::string LineWith(const std::string& text, const std::string& start) {
  const std::size_t at = text.find("\n" + start);
  if (at == std::string::npos) return "no such line";
  return text.substr(at + 1, text.find('\n', at + 1) - at - 1);
}

TEST(SensitivityReport, NamesTheFigureAndTheChange) {
  EXPECT_THAT(TextFor(FullDesign(), "suggested-psup", 0.1),
              AllOf(StartsWith("Suggested PSUP: "), HasSubstr("\nEach number alone, less and more by 10 %:\n")));
}

// Depth enters by its logarithm: 4.95 ln(440 / 360) = 0.993 between both ends, times the ratio of the spans.
TEST(SensitivityReport, ShowsBothEndsOfEachNumber) {
  Design design = FullDesign();
  design.Place.DepthofCover = 400;
  design.Place.CMRR = 45;
  design.Place.ActualSpanDiagonals = 63.2F;  // the suggested one, so that the ratio is 1
  design.Primary.StabilityFactor = 1;

  const std::string line = LineWith(TextFor(design, "suggested-psup", 0.1), "Depth of Cover (ft)");

  EXPECT_THAT(line, MatchesRegex("Depth of Cover \\(ft\\) +400 +360 +440 .* +0\\.993"));
}

TEST(SensitivityReport, ListsTheGreatestEffectFirst) {
  const std::string text = TextFor(FullDesign(), "suggested-psup", 0.1);

  EXPECT_LT(text.find("\nCMRR"), text.find("\nDepth of Cover"));
}

TEST(SensitivityReport, NamesTheNumbersWithoutEffectInOneLine) {
  const std::string text = TextFor(FullDesign(), "suggested-psup", 0.1);

  EXPECT_THAT(text, HasSubstr("\nWithout effect on it: Unit Weight of Rock, Entry Width, "));
  EXPECT_THAT(text, Not(HasSubstr("\nUnit Weight of Rock (pcf)")));
}

TEST(SensitivityReport, LeavesOutNumbersThatAreNone) {
  Design design = FullDesign();
  design.Place.DepthofCover = 0;

  EXPECT_THAT(TextFor(design, "suggested-span", 0.1), Not(HasSubstr("\nDepth of Cover")));
}

TEST(SensitivityReport, TellsWhereAJudgementChanges) {
  const TurningPoint turn{.Judged = {Opening::Primary, Aspect::Psup},
                          .Before = Holding::Holds,
                          .After = Holding::Short,
                          .Last = 712,
                          .First = 713};
  EXPECT_EQ(TurnText(turn, "ft"), "Actual PSUP: holds up to 712 ft, then short");

  const TurningPoint cables{.Judged = {Opening::Entries, Aspect::Cables},
                            .Before = Holding::Short,
                            .After = Holding::Check,
                            .Last = 3,
                            .First = 4};
  EXPECT_EQ(TurnText(cables, "°"), "Cable bolts in entries: short up to 3°, then to check");
  EXPECT_EQ(TurnText(cables, ""), "Cable bolts in entries: short up to 3, then to check");
}

// The suggested span is 0.38 CMRR + 46.1 ft: 60.16 ft at a rating of 37, and 59.78 ft at 36.
TEST(SensitivityReport, FindsTheRatingFromWhichASpanHolds) {
  Design design = FullDesign();
  design.Place.CMRR = 45;
  design.Place.ActualSpanDiagonals = 60;

  EXPECT_THAT(TextFor(design, "suggested-span", 0.5),
              HasSubstr("\nCMRR: Sum of diagonals: short up to 36.5, then holds\n"));
}

}  // namespace
}  // namespace orby::test
