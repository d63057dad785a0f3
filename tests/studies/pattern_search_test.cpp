// The search through all patterns of a support.
#include "studies/pattern_search.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "studies/study_designs.h"

namespace orby::test {
namespace {

constexpr std::size_t All = 100'000'000;

// A small space of patterns around usual ones.
PatternLimits FewPatterns(const Design& design, const StudiedSupport& support) {
  PatternLimits limits = UsualLimits(design, support);
  const bool isMetric = design.Units == Metric;
  limits.Spacing = isMetric ? LeverRange{1.2F, 1.5F} : LeverRange{4, 4.7F};
  limits.Number = support.Where == Opening::Intersections ? LeverRange{10, 16} : LeverRange{3, 5};
  if (support.What == PricedSupport::Cable) limits.Length = isMetric ? LeverRange{4, 5} : LeverRange{12, 14};
  return limits;
}

FoundPatterns SearchIn(const Design& design, const PriceList& prices, const StudiedSupport& support,
                       const PatternLimits& limits, std::size_t mostKept = 1000) {
  PatternSearch search(design, Lists(), prices, support, limits, mostKept);
  EXPECT_TRUE(search.Step(All));
  EXPECT_EQ(search.Done(), search.Total());
  return search.Found();
}

// Tries every pattern on a copy of the design, one by one, by the analysis of the whole design.
std::vector<FoundPattern> TriedOneByOne(const Design& design, const PriceList& prices, const StudiedSupport& support,
                                        const PatternLimits& limits) {
  std::vector<FoundPattern> found;
  const auto steps = [&](Lever lever, const LeverRange& range) {
    if (std::ranges::count(LeversOf(design, support), lever) == 0) return std::vector<Single>{0};
    std::vector<Single> values;
    if (lever == Lever::Length && support.What == PricedSupport::Bolt) {
      for (const Single length : prices.BoltLengths) {
        if (length >= range.From && length <= range.To) values.push_back(length);
      }
      return values;
    }
    for (int hundredths = 0; hundredths <= 10000; hundredths += 5) {
      const auto value = static_cast<Single>(hundredths / 100.0);
      const int step = lever == Lever::Spacing  ? (design.Units == Metric ? 5 : 10)
                       : lever == Lever::Number ? 100
                                                : (design.Units == Metric ? 50 : 100);
      if (hundredths % step == 0 && value >= range.From && value <= range.To) values.push_back(value);
    }
    return values;
  };
  const std::size_t items = ItemCount(Lists(), design.Units, support);
  for (std::size_t item = 0; item < std::max<std::size_t>(items, 1); ++item) {
    for (const Single length : steps(Lever::Length, limits.Length)) {
      for (const Single number : steps(Lever::Number, limits.Number)) {
        for (const Single spacing : steps(Lever::Spacing, limits.Spacing)) {
          Pattern pattern{.Item = {}, .Length = length, .Number = number, .Spacing = spacing};
          if (items > 0) pattern.Item = item;
          Design tried = design;
          SetPattern(tried, Lists(), support, pattern);
          if (!HoldsWhole(tried, support)) continue;
          double margin = 1e300;
          for (const Verdict& verdict : JudgedWhole(tried, support)) {
            margin = std::min(margin, static_cast<double>(verdict.Supply) / verdict.Demand - 1);
          }
          found.push_back({.Values = pattern,
                           .Cost = CostOf(tried, Lists(), prices, support),
                           .Margin = margin,
                           .Pieces = PiecesPerAdvance(support, pattern)});
        }
      }
    }
  }
  return found;
}

// Returns what sets a pattern apart. The cost of equal cables with another name may differ.
auto Identity(const FoundPattern& pattern) {
  return std::tuple(pattern.Values.Item.value_or(99), pattern.Values.Length, pattern.Values.Number,
                    pattern.Values.Spacing, pattern.Margin);
}

TEST(PatternSearch, LeavesOutNoPatternThatHolds) {
  AnyDesigns any(31);
  std::size_t holding = 0;
  for (int i = 0; i < 12; ++i) {
    const Design design = any.Next();
    const PriceList prices = AllPrices(design.Units);
    for (const StudiedSupport& support : AllSupports) {
      const PatternLimits limits = FewPatterns(design, support);
      const auto tried = TriedOneByOne(design, prices, support, limits);
      const FoundPatterns found = SearchIn(design, prices, support, limits, 100000);

      EXPECT_EQ(found.HoldingPriced, tried.size());
      std::set<decltype(Identity(tried[0]))> left;
      for (const FoundPattern& pattern : tried) left.insert(Identity(pattern));
      for (const FoundPattern& pattern : found.Ranked) EXPECT_EQ(left.erase(Identity(pattern)), 1U);
      EXPECT_TRUE(left.empty());
      if (!tried.empty()) {
        const auto cost = [](const FoundPattern& p) { return *p.Cost.Dollars; };
        EXPECT_EQ(*found.Ranked.front().Cost.Dollars, cost(*std::ranges::min_element(tried, {}, cost)));
      }
      holding += tried.size();
    }
  }
  EXPECT_GT(holding, 5000U);
}

// A design whose primary bolts hold with many patterns.
Design EasyDesign() {
  Design design = FullDesign();
  design.Cost = UsualCosts();
  design.Place.CMRR = 55;
  return design;
}

TEST(PatternSearch, RanksByCostThenMarginThenFewerPieces) {
  const Design design = EasyDesign();
  const FoundPatterns found =
      SearchIn(design, AllPrices(English), PrimaryBolts, UsualLimits(design, PrimaryBolts), 100000);

  ASSERT_GT(found.Ranked.size(), 1000U);
  const auto rank = [](const FoundPattern& p) { return std::tuple(*p.Cost.Dollars, -p.Margin, p.Pieces); };
  EXPECT_TRUE(std::ranges::is_sorted(found.Ranked, {}, rank));
}

TEST(PatternSearch, NotesTheBoltsThatAreLongerThanNeeded) {
  const Design design = EasyDesign();  // the suggested length is 4 ft, and 2 ft more are usual
  const FoundPatterns found =
      SearchIn(design, AllPrices(English), PrimaryBolts, UsualLimits(design, PrimaryBolts), 100000);

  for (const FoundPattern& pattern : found.Ranked) {
    ASSERT_EQ(pattern.IsLongerThanNeeded, pattern.Values.Length > 6);
  }
  EXPECT_GT(std::ranges::count(found.Ranked, true, &FoundPattern::IsLongerThanNeeded), 0);
}

TEST(PatternSearch, PutsTheGreaterMarginFirstAtEqualCost) {
  Design design = EasyDesign();
  PriceList prices;
  for (const std::string& name : Lists().StandSupports.DefaultStandSupportType) {
    if (!name.empty()) prices.Prices.push_back({PricedSupport::Standing, name, 0, 60});
  }
  const FoundPatterns found =
      SearchIn(design, prices, EntryStanding, {.Length = {}, .Number = {2, 2}, .Spacing = {5, 5}});

  ASSERT_GT(found.Ranked.size(), 2U);
  EXPECT_EQ(ItemName(Lists(), English, EntryStanding, found.Ranked[0].Values.Item), "Concrete Crib (24in x 24in)");
  EXPECT_EQ(ItemName(Lists(), English, EntryStanding, found.Ranked[1].Values.Item), "Pumpable Crib (30in)");
  EXPECT_TRUE(found.Ranked[0].IsOnFront);
  EXPECT_FALSE(found.Ranked[1].IsOnFront);
}

TEST(PatternSearch, ListsPatternsWithoutAPriceApart) {
  const Design design = EasyDesign();
  PriceList prices = AllPrices(English);
  std::erase_if(prices.Prices, [](const Price& price) { return price.Name == "#6 rebar - grade 60"; });
  const FoundPatterns found = SearchIn(design, prices, PrimaryBolts, UsualLimits(design, PrimaryBolts), 100000);

  EXPECT_GT(found.HoldingNotPriced, 0U);
  EXPECT_EQ(found.NotPriced.size(), found.HoldingNotPriced);
  for (const FoundPattern& pattern : found.NotPriced) {
    EXPECT_EQ(ItemName(Lists(), English, PrimaryBolts, pattern.Values.Item), "#6 rebar - grade 60");
    EXPECT_EQ(pattern.Cost.Gap, CostGap::Price);
    EXPECT_FALSE(pattern.IsOnFront);
  }
  for (const FoundPattern& pattern : found.Ranked) EXPECT_TRUE(pattern.Cost.Dollars);
}

TEST(PatternSearch, MarksThePatternsThatNoOtherExcels) {
  AnyDesigns any(8);
  int marked = 0;
  for (int i = 0; i < 10; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : AllSupports) {
      const FoundPatterns found =
          SearchIn(design, AllPrices(design.Units), support, FewPatterns(design, support), 100000);
      for (const FoundPattern& pattern : found.Ranked) {
        const bool isExcelled = std::ranges::any_of(found.Ranked, [&](const FoundPattern& other) {
          const bool isNoWorse = *other.Cost.Dollars <= *pattern.Cost.Dollars && other.Margin >= pattern.Margin;
          const bool isEqual = *other.Cost.Dollars == *pattern.Cost.Dollars && other.Margin == pattern.Margin;
          return isNoWorse && (!isEqual || &other < &pattern);
        });
        ASSERT_EQ(pattern.IsOnFront, !isExcelled);
        marked += pattern.IsOnFront ? 1 : 0;
      }
    }
  }
  EXPECT_GT(marked, 50);
}

TEST(PatternSearch, KeepsTheCheapestAndTheWholeFront) {
  const Design design = EasyDesign();
  const PatternLimits limits = UsualLimits(design, PrimaryBolts);
  const FoundPatterns all = SearchIn(design, AllPrices(English), PrimaryBolts, limits, 100000);
  const FoundPatterns few = SearchIn(design, AllPrices(English), PrimaryBolts, limits, 5);

  std::vector<FoundPattern> expected;
  for (std::size_t i = 0; i < all.Ranked.size(); ++i) {
    if (i < 5 || all.Ranked[i].IsOnFront) expected.push_back(all.Ranked[i]);
  }
  EXPECT_EQ(few.Ranked, expected);
  EXPECT_GT(expected.size(), 7U);
  EXPECT_EQ(few.HoldingPriced, all.Ranked.size());

  const FoundPatterns none = SearchIn(design, {.BoltLengths = {6}, .Prices = {}}, PrimaryBolts, limits, 5);
  EXPECT_EQ(none.NotPriced.size(), 5U);
  EXPECT_GT(none.HoldingNotPriced, 5U);
}

TEST(PatternSearch, FindsTheSameInPiecesAsInOneGo) {
  AnyDesigns any(77);
  for (int i = 0; i < 10; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : AllSupports) {
      const PatternLimits limits = FewPatterns(design, support);
      const PriceList prices = AllPrices(design.Units);
      const FoundPatterns whole = SearchIn(design, prices, support, limits, 20);

      PatternSearch search(design, Lists(), prices, support, limits, 20);
      std::size_t done = 0;
      while (!search.Step(static_cast<std::size_t>(any.Whole(1, 40)))) {
        EXPECT_GT(search.Done(), done);
        EXPECT_LT(search.Done(), search.Total());
        done = search.Done();
      }

      EXPECT_EQ(search.Found().Ranked, whole.Ranked);
      EXPECT_EQ(search.Found().HoldingPriced, whole.HoldingPriced);
    }
  }
}

TEST(PatternSearch, ShowsWhatItHasFoundSoFar) {
  const Design design = EasyDesign();
  PatternSearch search(design, Lists(), AllPrices(English), PrimaryBolts, UsualLimits(design, PrimaryBolts));
  EXPECT_EQ(search.Found().Ranked.size(), 0U);

  // 10 bolts, 6 lengths, 3 to 8 in a row, 2 to 6 ft in tenths.
  EXPECT_EQ(search.Total(), 10U * 6 * 6 * 41);
  EXPECT_FALSE(search.Step(search.Total() / 2));
  const std::size_t half = search.Found().HoldingPriced;
  EXPECT_GT(half, 0U);
  EXPECT_TRUE(search.Step(search.Total()));
  EXPECT_GT(search.Found().HoldingPriced, half);
}

TEST(PatternSearch, HasNothingToDoWithLimitsThatHaveAFault) {
  const Design design = EasyDesign();
  PatternSearch search(design, Lists(), AllPrices(English), PrimaryBolts, {});

  EXPECT_EQ(search.Total(), 0U);
  EXPECT_TRUE(search.Step(1));
  EXPECT_TRUE(search.Found().Ranked.empty());
}

}  // namespace
}  // namespace orby::test
