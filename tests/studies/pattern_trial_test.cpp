// A changed pattern has the judgements that its whole design has.
#include <rapidcheck/gtest.h>

#include <bit>
#include <cstring>
#include <limits>

#include "studies/study_designs.h"
#include "studies/trial.h"

namespace orby::test {
namespace {

// Compares numbers by their bits, so that a number that is none is equal to itself.
bool IsSame(const Verdict& a, const Verdict& b) {
  const auto bits = [](const Verdict& v) {
    return std::array{std::bit_cast<std::uint32_t>(v.Demand), std::bit_cast<std::uint32_t>(v.Supply),
                      std::bit_cast<std::uint32_t>(v.Factor), std::bit_cast<std::uint32_t>(v.WantedFactor)};
  };
  return a.What == b.What && a.Where == b.Where && a.Result == b.Result && a.Reason == b.Reason && a.Error == b.Error &&
         a.ReportDiffers == b.ReportDiffers && bits(a) == bits(b);
}

bool AreSame(const Assessment& judged, const std::vector<Verdict>& whole) {
  return std::ranges::equal(judged.Found.All(), whole, IsSame);
}

Pattern AnyPattern(AnyDesigns& any, const Design& design, const StudiedSupport& support) {
  Pattern pattern{.Length = static_cast<Single>(any.Whole(1, 120) / 10.0),
                  .Number = static_cast<Single>(any.Whole(1, 12)),
                  .Spacing = static_cast<Single>(any.Whole(1, 90) / 10.0)};
  const auto items = static_cast<int>(ItemCount(Lists(), design.Units, support));
  if (items > 0 && any.Flip()) pattern.Item = static_cast<std::size_t>(any.Whole(0, items - 1));
  return pattern;
}

TEST(TriedPattern, HasTheJudgementsOfTheWholeDesignToTheLastBit) {
  AnyDesigns any(23);
  int holding = 0;
  for (int i = 0; i < 400; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : AllSupports) {
      Trial trial(design, Lists(), support);
      for (int k = 0; k < 4; ++k) {
        SetPattern(trial.Tried(), Lists(), support, AnyPattern(any, design, support));
        const Assessment judged = trial.Judge();

        ASSERT_TRUE(AreSame(judged, JudgedWhole(trial.Tried(), support)));
        ASSERT_EQ(judged.Holds(), HoldsWhole(trial.Tried(), support));
        holding += judged.Holds() ? 1 : 0;
      }
    }
  }
  EXPECT_GT(holding, 1000);
}

rc::Gen<Single> OddNumber() {
  constexpr Single Infinite = std::numeric_limits<Single>::infinity();
  return rc::gen::element(0.0F, -0.0F, -6.0F, 3.4e38F, -3.4e38F, 1e-38F, 1e30F, Infinite, Unfit, 4.0F, 0.5F);
}

// Also with numbers that no pattern of the search has, and where computations end with an error.
RC_GTEST_PROP(TriedPatternProperty, HasTheJudgementsOfTheWholeDesignForAnyNumbers, ()) {
  AnyDesigns any(static_cast<unsigned>(*rc::gen::inRange(0, 100000)));
  Design design = any.Next();
  for (Single* number :
       {&design.Place.CMRR, &design.Place.DepthofCover, &design.Place.EntryWidth, &design.Entries.RockLoadHeight,
        &design.Entries.Standing.RowSpacing, &design.Intersections.RockFallAngle, &design.Entries.Cable.Length}) {
    if (*rc::gen::inRange(0, 5) == 0) *number = *OddNumber();
  }
  for (const StudiedSupport& support : AllSupports) {
    Trial trial(design, Lists(), support);
    for (int i = 0; i < 2; ++i) {
      Pattern pattern = AnyPattern(any, design, support);
      for (Single* number : {&pattern.Length, &pattern.Number, &pattern.Spacing}) {
        if (*rc::gen::inRange(0, 3) == 0) *number = *OddNumber();
      }
      SetPattern(trial.Tried(), Lists(), support, pattern);

      RC_ASSERT(AreSame(trial.Judge(), JudgedWhole(trial.Tried(), support)));
      RC_ASSERT(AreSame(Assess(trial.Tried(), Lists(), support), JudgedWhole(trial.Tried(), support)));
    }
  }
}

}  // namespace
}  // namespace orby::test
