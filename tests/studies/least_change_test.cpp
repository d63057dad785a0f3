// The least change of one lever: it makes the support hold, and one step less does not.
#include "studies/least_change.h"

#include <cmath>
#include <map>

#include "base/number_text.h"
#include "studies/study_designs.h"

namespace orby::test {
namespace {

// The numbers that can be built, written as an engineer would list them.
std::vector<Single> BuiltNumbers(const Design& design, const StudiedSupport& support, Lever lever) {
  std::vector<Single> numbers;
  const bool isMetric = design.Units == Metric;
  if (lever == Lever::Length && support.What == PricedSupport::Bolt) return AllPrices(design.Units).BoltLengths;
  if (lever == Lever::Length) {
    if (isMetric) {
      for (int halves = 2; halves <= 36; ++halves) numbers.push_back(static_cast<Single>(halves) / 2);
    } else {
      for (int feet = 4; feet <= 60; ++feet) numbers.push_back(static_cast<Single>(feet));
    }
  } else if (lever == Lever::Number) {
    const int most = support.Where == Opening::Intersections ? 100 : 10;
    for (int number = 1; number <= most; ++number) numbers.push_back(static_cast<Single>(number));
  } else if (isMetric) {
    for (int centimetres = 30; centimetres <= 600; centimetres += 5) {
      numbers.push_back(static_cast<Single>(centimetres / 100.0));
    }
  } else {
    for (int tenths = 10; tenths <= 200; ++tenths) numbers.push_back(static_cast<Single>(tenths / 10.0));
  }
  return numbers;
}

// Checks a change of a number against all numbers that can be built.
void CheckNumber(const Design& design, const StudiedSupport& support, Lever lever, const LeverChange& change) {
  Design tried = design;
  Single& number = NumberAt(tried, support, lever);
  const Single present = number;
  const double distance = std::abs(static_cast<double>(change.Value) - present);
  bool isBuilt = false;
  for (const Single built : BuiltNumbers(design, support, lever)) {
    number = built;
    const bool isNearer = std::abs(static_cast<double>(built) - present) < distance;
    if (change.Outcome == LeverOutcome::NoHelp || isNearer) {
      EXPECT_FALSE(HoldsWhole(tried, support));
    }
    isBuilt = isBuilt || built == change.Value;
  }
  if (change.Outcome != LeverOutcome::Changed) return;
  EXPECT_TRUE(isBuilt);
  EXPECT_TRUE(HoldsWhole(change.After, support));
  number = change.Value;
  EXPECT_EQ(tried.Support(), change.After.Support());
}

TEST(LeastChange, OfANumberHoldsAndOneStepLessDoesNot) {
  AnyDesigns any(5);
  std::map<LeverOutcome, int> outcomes;
  for (std::size_t i = 0; i < 2500; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : {AllSupports[i % 9], AllSupports[(i + 4) % 9]}) {
      for (const Lever lever : LeversOf(design, support)) {
        if (lever > Lever::Length) continue;
        const LeverChange change = LeastChange(design, Lists(), AllPrices(design.Units), support, lever);
        ++outcomes[change.Outcome];
        ASSERT_EQ(change.Outcome == LeverOutcome::Holds, HoldsWhole(design, support));
        if (change.Outcome != LeverOutcome::Holds) CheckNumber(design, support, lever, change);
        if (testing::Test::HasFailure()) return;
      }
    }
  }
  EXPECT_GT(outcomes[LeverOutcome::Changed], 1500);
  EXPECT_GT(outcomes[LeverOutcome::NoHelp], 500);
  EXPECT_GT(outcomes[LeverOutcome::Holds], 500);
}

// Returns the strength by which items are compared, from the catalogs alone.
double StrengthOfItem(const Design& design, const StudiedSupport& support, std::size_t item) {
  if (support.What == PricedSupport::Bolt) {
    const BoltTableRow& row = OfferedBolts(Lists(), design.Units)[item];
    return TextValue(row.Grade) * TextValue(row.Diameter) * TextValue(row.Diameter);
  }
  if (support.What == PricedSupport::Standing) return StandingCapacity(Lists(), design.Units, item);
  return OfferedCableCapacities(Lists(), design.Units)[item];
}

double PresentStrength(Design design, const StudiedSupport& support) {
  if (support.What == PricedSupport::Bolt) {
    const Bolt bolt = SelectedBolt(BoltSet(design, support));
    return static_cast<double>(bolt.Grade) * bolt.Diameter * bolt.Diameter;
  }
  if (support.What == PricedSupport::Standing) return Secondary(design, support).Standing.Capacity;
  const CableSelection& cable = Secondary(design, support).Cable;
  if (cable.CapMode == CapacityMode::ByDiameter) return CableCapacityFromDiameter(cable.Diam, design.Units, Lists());
  return cable.Capacity == ValueSource::Standard ? cable.CapacityStd : cable.CapacityManual;
}

TEST(LeastChange, OfTheItemIsTheOneOfTheNearestStrengthThatHolds) {
  AnyDesigns any(6);
  std::map<LeverOutcome, int> outcomes;
  for (int i = 0; i < 300; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : AllSupports) {
      if (support.What == PricedSupport::Truss) continue;
      const LeverChange change = LeastChange(design, Lists(), AllPrices(design.Units), support, Lever::Item);
      ++outcomes[change.Outcome];
      if (change.Outcome == LeverOutcome::Holds) continue;

      const double present = PresentStrength(design, support);
      const auto taken = static_cast<std::size_t>(change.Value);
      const double distance = std::abs(StrengthOfItem(design, support, taken) - present);
      for (std::size_t item = 0; item < ItemCount(Lists(), design.Units, support); ++item) {
        Design tried = design;
        Pattern pattern = PatternOf(design, Lists(), support);
        pattern.Item = item;
        SetPattern(tried, Lists(), support, pattern);
        const bool isNearer = std::abs(StrengthOfItem(design, support, item) - present) < distance * 0.999;
        if (change.Outcome == LeverOutcome::NoHelp || isNearer) {
          ASSERT_FALSE(HoldsWhole(tried, support));
        }
      }
      if (change.Outcome != LeverOutcome::Changed) continue;
      ASSERT_TRUE(HoldsWhole(change.After, support));
      ASSERT_EQ(change.NewPattern, PatternOf(change.After, Lists(), support));
      ASSERT_NEAR(PresentStrength(change.After, support), StrengthOfItem(design, support, taken), 0.5);
    }
  }
  EXPECT_GT(outcomes[LeverOutcome::Changed], 200);
  EXPECT_GT(outcomes[LeverOutcome::NoHelp], 200);
}

// Primary bolts of which only the PSUP is short: 6.4 of the suggested 7.6.
Design ShortOfPsup() {
  Design design = FullDesign();
  design.Cost = UsualCosts();
  design.Primary.DiameterStd = 0.75F;
  design.Primary.GradeStd = 60;
  design.Primary.Length = 6;
  design.Primary.BoltsperRow = 4;
  design.Primary.RowSpacing = 5;
  return design;
}

LeverChange Least(const Design& design, const StudiedSupport& support, Lever lever) {
  return LeastChange(design, Lists(), AllPrices(design.Units), support, lever);
}

TEST(LeastChange, TakesTheNextStrongerGradeOrDiameterOfTheCatalogAndKeepsTheOther) {
  Design design = ShortOfPsup();

  const LeverChange diameter = Least(design, PrimaryBolts, Lever::Diameter);
  ASSERT_EQ(diameter.Outcome, LeverOutcome::Changed);
  EXPECT_EQ(diameter.Value, 0.875F) << "0.804 in has a PSUP of 7.3";
  EXPECT_EQ(diameter.After.Primary.DiameterStd, 0.875F);
  EXPECT_EQ(diameter.After.Primary.GradeStd, 60);

  design.Primary.RowSpacing = 6;
  design.Primary.GradeStd = 40;
  const LeverChange grade = Least(design, PrimaryBolts, Lever::Grade);
  ASSERT_EQ(grade.Outcome, LeverOutcome::Changed);
  EXPECT_EQ(grade.Value, 90) << "a grade of 75 has a PSUP of 6.6";
  EXPECT_EQ(grade.After.Primary.GradeStd, 90);
  EXPECT_EQ(grade.After.Primary.DiameterStd, 0.75F);
  EXPECT_EQ(Least(design, PrimaryBolts, Lever::Diameter).Outcome, LeverOutcome::NoHelp) << "the grade is too weak";
}

TEST(LeastChange, OfDiameterAndGradeIsOnlyForAManualSelectionThatOkKeeps) {
  Design design = ShortOfPsup();
  EXPECT_THAT(LeversOf(design, EntryBolts), testing::Contains(Lever::Diameter));
  EXPECT_THAT(LeversOf(design, CrossingBolts), testing::Not(testing::Contains(Lever::Diameter)));

  design.Primary.Options = BoltSource::Table;
  EXPECT_EQ(Least(design, PrimaryBolts, Lever::Grade).Outcome, LeverOutcome::NoLever);
  EXPECT_EQ(Least(design, EntryTrusses, Lever::Number).Outcome, LeverOutcome::NoLever);
}

TEST(LeastChange, NamesWhatTheLeverCannotMend) {
  Design design = ShortOfPsup();
  design.Primary.Length = 2;

  const LeverChange change = Least(design, PrimaryBolts, Lever::Spacing);

  ASSERT_EQ(change.Outcome, LeverOutcome::NoHelp);
  EXPECT_EQ(change.After.Support(), design.Support());
  ASSERT_TRUE(change.Obstacle);
  EXPECT_EQ(change.Obstacle->What, Aspect::BoltLength);
  EXPECT_EQ(change.Obstacle->Supply, 2);
}

TEST(LeastChange, OfTrussesFindsNothingWithoutSpacingOfTheStandingSupports) {
  Design design = ShortOfPsup();
  design.Entries.Standing.RowSpacing = 0;

  const LeverChange change = Least(design, EntryTrusses, Lever::Spacing);

  EXPECT_EQ(change.Outcome, LeverOutcome::NoHelp);
  ASSERT_TRUE(change.Obstacle);
  EXPECT_EQ(change.Obstacle->Reason, Missing::Spacing);
  EXPECT_TRUE(LacksStandingSpacing(design, EntryTrusses));
}

TEST(LeastChange, StartsFromNothingIfThePresentNumberIsNone) {
  Design design = ShortOfPsup();
  design.Intersections.Truss.Number = Unfit;

  const LeverChange change = Least(design, CrossingTrusses, Lever::Number);

  ASSERT_EQ(change.Outcome, LeverOutcome::Changed);
  EXPECT_TRUE(HoldsWhole(change.After, CrossingTrusses));
  design.Intersections.Truss.Number = change.Value - 1;
  EXPECT_FALSE(HoldsWhole(design, CrossingTrusses));
}

TEST(LeastChange, HasTheCostOfTheNewPattern) {
  Design design = ShortOfPsup();
  design.Entries.Standing.TypeName = "Wood Post (6in)";
  design.Entries.Standing.Capacity = 22;
  design.Entries.Standing.NumberPerRow = 1;
  design.Entries.Standing.RowSpacing = 8;
  PriceList prices;
  prices.Prices = {{PricedSupport::Standing, "Wood Post (6in)", 0, 30}};

  const LeverChange priced = LeastChange(design, Lists(), prices, EntryStanding, Lever::Number);
  ASSERT_EQ(priced.Outcome, LeverOutcome::Changed);
  ASSERT_TRUE(priced.Cost.Dollars);
  EXPECT_DOUBLE_EQ(*priced.Cost.Dollars, 30 * static_cast<double>(priced.Value) / 8);

  EXPECT_EQ(LeastChange(design, Lists(), {}, EntryStanding, Lever::Number).Cost.Gap, CostGap::Price);
}

TEST(LeastChange, UsesTheLengthsThatAreStocked) {
  Design design = ShortOfPsup();
  design.Primary.Length = 3;
  design.Primary.RowSpacing = 2;
  PriceList prices;
  prices.BoltLengths = {2, 3, 7.25F};

  const LeverChange change = LeastChange(design, Lists(), prices, PrimaryBolts, Lever::Length);

  ASSERT_EQ(change.Outcome, LeverOutcome::Changed);
  EXPECT_EQ(change.Value, 7.25F);
  EXPECT_EQ(LeastChange(design, Lists(), {}, PrimaryBolts, Lever::Length).Outcome, LeverOutcome::NoHelp);
}

}  // namespace
}  // namespace orby::test
