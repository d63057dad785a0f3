// What patterns cost, and which have no cost.
#include "studies/pattern_cost.h"

#include "engine/cost.h"
#include "studies/study_designs.h"

namespace orby::test {
namespace {

TEST(PatternCost, OfPrimaryBoltsIsTheTotalOfTheCostDialogWithThisBoltAndPattern) {
  Design design = FullDesign();
  design.Cost = UsualCosts();
  design.Primary.Options = BoltSource::Table;
  TakeTableRow(design.Primary, Lists().BoltTableENG, 5);
  design.Primary.Length = 6;
  design.Primary.BoltsperRow = 5;
  design.Primary.RowSpacing = 4.5F;
  const PriceList prices{.BoltLengths = {6}, .Prices = {{PricedSupport::Bolt, "#6 rebar - grade 60", 6, 7.5F}}};

  CostInputs inputs = UsualCosts();
  inputs.BoltCost = 7.5F;
  inputs.NBoltsRow = 5;
  inputs.RowSpacing = 4.5F;
  const PatternCost cost = CostOf(design, Lists(), prices, PrimaryBolts);

  ASSERT_TRUE(cost.Dollars);
  EXPECT_EQ(*cost.Dollars, AnalyseCost(inputs).Totals[1]);
  EXPECT_GT(*cost.Dollars, 5 * 7.5 / 4.5);
}

TEST(PatternCost, OfOthersIsThePriceOfThePiecesPerFoot) {
  const Pattern pattern{.Item = 0, .Number = 3, .Spacing = 6};

  EXPECT_EQ(CostOf({}, EntryCables, pattern, 40).Dollars, 20);
  EXPECT_EQ(CostOf({}, EntryStanding, pattern, 100).Dollars, 50);
  EXPECT_EQ(CostOf({}, EntryTrusses, pattern, 180).Dollars, 30) << "one truss in each row";
  EXPECT_EQ(CostOf({}, CrossingBolts, pattern, 12).Dollars, 36) << "in the whole intersection";
}

TEST(PatternCost, IsMissingWithoutAPriceOrForATypedBolt) {
  Design design = FullDesign();
  design.Cost = UsualCosts();
  EXPECT_EQ(CostOf(design, Lists(), AllPrices(English), PrimaryBolts).Gap, CostGap::Price) << "the bolt is typed";

  design.Primary.Options = BoltSource::Table;
  TakeTableRow(design.Primary, Lists().BoltTableENG, 5);
  EXPECT_TRUE(CostOf(design, Lists(), AllPrices(English), PrimaryBolts).Dollars);
  design.Primary.Length = 6.5F;
  EXPECT_EQ(CostOf(design, Lists(), AllPrices(English), PrimaryBolts).Gap, CostGap::Price)
      << "the length is not stocked";
}

TEST(PatternCost, IsNotZeroWhereTheCostDialogHasNoBoltsPerShift) {
  CostInputs inputs = UsualCosts();
  inputs.NboltsShift = 0;
  const Pattern pattern{.Item = 0, .Length = 6, .Number = 4, .Spacing = 4};

  EXPECT_EQ(CostOf(inputs, PrimaryBolts, pattern, 5), (PatternCost{.Dollars = {}, .Gap = CostGap::Uncomputed}));
}

TEST(PatternCost, IsMissingForAPatternWithoutRowSpacing) {
  const Pattern pattern{.Item = 0, .Length = 6, .Number = 4, .Spacing = 0};

  EXPECT_EQ(CostOf(UsualCosts(), PrimaryBolts, pattern, 5).Gap, CostGap::Uncomputed);
  EXPECT_EQ(CostOf(UsualCosts(), EntryCables, pattern, 5).Gap, CostGap::Uncomputed);
}

TEST(PatternCost, OfACableIsByItsDiameterInBothWaysToChooseIt) {
  Design design = FullDesign();
  PriceList prices;
  prices.Prices = {{PricedSupport::Cable, "0.7", 0, 50}};
  CableSelection& cable = design.Entries.Cable;
  cable.BoltsPerRow = 2;
  cable.RowSpacing = 5;

  cable.CapMode = CapacityMode::ByDiameter;
  cable.Diam = 0.7F;
  EXPECT_EQ(CostOf(design, Lists(), prices, EntryCables).Dollars, 20);

  cable.CapMode = CapacityMode::Given;
  cable.Capacity = ValueSource::Standard;
  cable.CapacityStd = 35.7F;
  EXPECT_EQ(CostOf(design, Lists(), prices, EntryCables).Dollars, 20);

  cable.CapacityStd = 26.4F;
  EXPECT_EQ(CostOf(design, Lists(), prices, EntryCables).Gap, CostGap::Price);
}

}  // namespace
}  // namespace orby::test
