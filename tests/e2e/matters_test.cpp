// orby-cli matters: what a figure depends on.
#include <gmock/gmock.h>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

using MattersCommand = CompanionTest;

TEST_F(MattersCommand, ListsTheNumbersAndWhereJudgementsChange) {
  const Outcome outcome = Run({"matters", "--change", "30", "suggested-psup", Example("development-entry")});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_THAT(outcome.out, AllOf(StartsWith("Suggested PSUP: "), HasSubstr(" by 30 %:\n"), HasSubstr("\nCMRR "),
                                 HasSubstr("\nDepth of Cover (ft) "), HasSubstr("\nWhere judgements change:\n")));
}

TEST_F(MattersCommand, SpeaksMetricOfAMetricDesign) {
  EXPECT_THAT(Run({"matters", "suggested-span", Example("australian-grade-metric")}).out,
              AllOf(StartsWith("Suggested sum of diagonals (m): "),
                    HasSubstr("\nRoof Bolt Length: Bolt length: holds up to 1.89 m, then to check\n")));
}

TEST_F(MattersCommand, NamesTheFiguresIfThereIsNoSuch) {
  const Outcome outcome = Run({"matters", "no-such-figure", Example("weak-roof")});

  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_THAT(outcome.err,
              AllOf(StartsWith("There is no figure \"no-such-figure\"."), HasSubstr("\nsuggested-psup\n")));
}

TEST_F(MattersCommand, RefusesAChangeThatIsNoPercentage) {
  for (const char* change : {"0", "-5", "101", "ten", "5%", ""}) {
    EXPECT_EQ(Run({"matters", "--change", change, "suggested-psup", Example("weak-roof")}).exitCode, 1) << change;
  }
  EXPECT_EQ(Run({"matters", Example("weak-roof")}).exitCode, 1);
}

}  // namespace
}  // namespace orby::test
