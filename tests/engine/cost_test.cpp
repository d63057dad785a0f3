#include "engine/cost.h"

#include <gtest/gtest.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

CostInputs EnglishCosts() {
  CostInputs costs;
  costs.BoltCost = 3;
  costs.PlateCost = 1;
  costs.ResinCost = 1.5F;
  costs.BitCost = 67;
  costs.NboltsShift = 300;
  costs.NBoltsRow = 4;
  costs.RowSpacing = 4;
  costs.NOperShift = 2;
  costs.TotalLabor = 35;
  costs.HoursShift = 8;
  costs.MaintainHrs = 2;
  costs.MaintainCost = 30000;
  costs.TranspCost = 100;
  costs.CapitalCost = 1000000;
  costs.YearsDepr = 5;
  costs.AdvanceShift = 300;
  costs.Advance = 1;
  costs.AdvanceRate = 4;
  costs.CleanProduction = 1200;
  costs.Production = 1;
  costs.ShiftsWeek = 12;
  costs.WeeksYear = 50;
  return costs;
}

template <class Value>
CostInputs With(Value CostInputs::*member, Value value) {
  CostInputs costs = EnglishCosts();
  costs.*member = value;
  return costs;
}

using Rows = std::array<CostRow, 6>;

void ExpectTable(const CostInputs& costs, const Rows& expected) {
  const CostTable table = AnalyseCost(costs);
  for (std::size_t head = 0; head < CostHeads; ++head) EXPECT_EQ(table.Heads[head], expected[head]) << "head " << head;
  EXPECT_EQ(table.Totals, expected[5]) << "totals";
}

constexpr CostRow Consumables{5.72333336F, 5.72333336F, 1717, 1.43083334F};
constexpr CostRow Labor{1.86666667F, 1.86666667F, 560, 0.466666669F};
constexpr CostRow Maintenance{0.186111107F, 0.186111107F, 55.8333321F, 0.046527777F};
constexpr CostRow Transportation{0.333333343F, 0.333333343F, 100, 0.0833333358F};
constexpr CostRow Ownership{1.11111116F, 1.11111116F, 333.333344F, 0.277777791F};
constexpr CostRow None{};

TEST(Cost, IsComputedForTheEnglishDefaults) {
  ExpectTable(EnglishCosts(), {{Consumables,
                                Labor,
                                Maintenance,
                                Transportation,
                                Ownership,
                                {9.22055531F, 9.22055531F, 2766.16675F, 2.30513883F}}});
}

TEST(Cost, IsComputedForTheMetricDefaults) {
  CostInputs costs = EnglishCosts();
  costs.RowSpacing = 1.2F;
  costs.AdvanceRate = 12;

  ExpectTable(costs, {{{5.72333336F, 19.0777779F, 1717, 0.143083349F},
                       {1.86666667F, 6.22222185F, 560, 0.0466666706F},
                       {0.186111107F, 0.620370328F, 55.8333321F, 0.00465277815F},
                       {0.333333343F, 1.11111104F, 100, 0.00833333377F},
                       {1.11111116F, 3.70370364F, 333.333344F, 0.0277777817F},
                       {9.22055531F, 30.7351856F, 2766.16675F, 0.230513915F}}});
}

TEST(Cost, DividesHeadersByBoltsAndStrapsByRows) {
  CostInputs costs = EnglishCosts();
  costs.HeaderCost = 0.25F;
  costs.StrapCost = 2.5F;
  costs.RowSpacing = 3.5F;
  costs.NBoltsRow = 5;
  costs.NboltsShift = 280;
  costs.Production = 0;

  ExpectTable(costs, {{{6.48928595F, 9.27040863F, 1817.00012F, 1.51416671F},
                       {2, 2.8571429F, 560, 0.466666669F},
                       {0.199404761F, 0.284863949F, 55.8333321F, 0.046527777F},
                       {0.357142866F, 0.510204077F, 100, 0.0833333358F},
                       {1.19047618F, 1.70068026F, 333.333344F, 0.277777791F},
                       {10.2363100F, 14.6232996F, 2866.16675F, 2.38847232F}}});
}

TEST(Cost, IsZeroForEmptyInputs) { ExpectTable(CostInputs{}, {}); }

TEST(Cost, WithoutARowSpacingHasNoCostPerAdvanceOrPerCalculatedTon) {
  ExpectTable(With(&CostInputs::RowSpacing, 0.0F), {{{5.72333336F, 0, 1717, 0},
                                                     {1.86666667F, 0, 560, 0},
                                                     {0.186111107F, 0, 55.8333321F, 0},
                                                     {0.333333343F, 0, 100, 0},
                                                     {1.11111116F, 0, 333.333344F, 0},
                                                     {9.22055531F, 0, 2766.16675F, 0}}});
}

TEST(Cost, WithoutARowSpacingHasACostPerTypedTon) {
  CostInputs costs = With(&CostInputs::RowSpacing, 0.0F);
  costs.Production = 0;

  const CostTable table = AnalyseCost(costs);

  EXPECT_EQ(table.Totals, (CostRow{9.22055531F, 0, 2766.16675F, 2.30513883F}));
}

TEST(Cost, IsDividedByAnAdvanceWithARowSpacingBelowOne) {
  const CostTable table = AnalyseCost(With(&CostInputs::RowSpacing, 0.5F));

  EXPECT_EQ(table.Totals, (CostRow{9.22055531F, 73.7644424F, 2766.16675F, 0.288142353F}));
}

TEST(Cost, IsDividedByAProductionBelowOneTon) {
  CostInputs costs = With(&CostInputs::CleanProduction, 0.5F);
  costs.Production = 0;

  EXPECT_EQ(AnalyseCost(costs).Totals, (CostRow{9.22055531F, 9.22055531F, 2766.16675F, 5532.3335F}));
}

TEST(Cost, WithANegativeRowSpacingHasNoCostPerAdvance) {
  const CostTable table = AnalyseCost(With(&CostInputs::RowSpacing, -4.0F));

  EXPECT_EQ(table.Totals, (CostRow{9.22055531F, 0, 2766.16675F, 0}));
}

TEST(Cost, WithoutShiftsHasNeitherMaintenanceNorOwnership) {
  const Rows expected{{Consumables, Labor, None, Transportation, None, {7.92333317F, 7.92333317F, 2377, 1.98083329F}}};

  ExpectTable(With(&CostInputs::ShiftsWeek, 0.0F), expected);
  ExpectTable(With(&CostInputs::WeeksYear, 0.0F), expected);
}

TEST(Cost, WithoutYearsOfDepreciationHasNoOwnership) {
  ExpectTable(
      With(&CostInputs::YearsDepr, 0.0F),
      {{Consumables, Labor, Maintenance, Transportation, None, {8.10944462F, 8.10944462F, 2432.83325F, 2.02736115F}}});
}

TEST(Cost, HasTenTimesTheOwnershipForHalfAYearInsteadOfFiveYears) {
  const CostTable table = AnalyseCost(With(&CostInputs::YearsDepr, 0.5F));

  EXPECT_EQ(table.Heads[4], (CostRow{11.1111107F, 11.1111107F, 3333.33325F, 2.77777767F}));
}

TEST(Cost, IsZeroWithoutBolts) {
  ExpectTable(With(&CostInputs::NBoltsRow, 0.0F), {});
  ExpectTable(With(&CostInputs::NboltsShift, 0.0F), {});
  ExpectTable(With(&CostInputs::NBoltsRow, -4.0F), {});
  ExpectTable(With(&CostInputs::NboltsShift, -300.0F), {});
}

TEST(Cost, PerTonIsZeroWithoutAProduction) {
  CostInputs costs = With(&CostInputs::CleanProduction, 0.0F);
  costs.Production = 0;

  EXPECT_EQ(AnalyseCost(costs).Totals, (CostRow{9.22055531F, 9.22055531F, 2766.16675F, 0}));
  EXPECT_EQ(AnalyseCost(With(&CostInputs::AdvanceRate, 0.0F)).Totals,
            (CostRow{9.22055531F, 9.22055531F, 2766.16675F, 0}));
}

TEST(Cost, UsesTheCalculatedProductionOnlyForAFlagOfOne) {
  CostInputs costs = With<Integer>(&CostInputs::Production, 2);
  costs.CleanProduction = 2400;

  EXPECT_EQ(AnalyseCost(costs).Totals, (CostRow{9.22055531F, 9.22055531F, 2766.16675F, 1.15256941F}));
}

TEST(Cost, DoesNotDependOnTheAdvanceFields) {
  CostInputs costs = EnglishCosts();
  costs.Advance = 0;
  costs.AdvanceShift = 12;

  const CostTable table = AnalyseCost(costs);

  EXPECT_EQ(table.Heads[0], Consumables);
  EXPECT_EQ(table.Totals, (CostRow{9.22055531F, 9.22055531F, 2766.16675F, 2.30513883F}));
}

TEST(Cost, BeyondTheRangeOfASingleFails) {
  CostInputs costs = With(&CostInputs::TotalLabor, 3E38F);
  costs.HoursShift = 1000;

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(AnalyseCost(costs)); }), 6);
}

TEST(Cost, FailsWhenTheCalculatedProductionIsTooLargeEvenIfNotUsed) {
  CostInputs costs = With(&CostInputs::AdvanceRate, 1E38F);
  costs.Production = 0;

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(AnalyseCost(costs)); }), 6);
}

TEST(Advance, IsBoltsPerRowDividedBySpacingTimesBoltsPerShift) {
  EXPECT_DOUBLE_EQ(AdvancePerShift(4, 4, 300), 300);
  EXPECT_DOUBLE_EQ(AdvancePerShift(4, 1.2, 300), 1000);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(AdvancePerShift(4, 0, 300)); }), 11);
  EXPECT_EQ(ErrorNumberOf([] { static_cast<void>(AdvancePerShift(1E200, 1, 1E200)); }), 6);
}

}  // namespace
}  // namespace orby::test
