// The price lists, and the stocked lengths as a text.
#include "design/prices.h"

#include <gmock/gmock.h>

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Prices, BeginWithUsualLengthsAndNoPrice) {
  const PriceLists lists = BuiltInPrices();

  EXPECT_THAT(lists[0].BoltLengths, ElementsAre(4, 5, 6, 7, 8, 10, 12));
  EXPECT_THAT(lists[1].BoltLengths, ElementsAre(1.2F, 1.5F, 1.8F, 2.1F, 2.4F, 3.0F, 3.6F));
  for (const PriceList& list : lists) EXPECT_THAT(list.Prices, IsEmpty());
}

TEST(Prices, AreFoundByTheWholeDescriptionOfTheSupport) {
  const PriceList list{{6, 8},
                       {{PricedSupport::Bolt, "#6 rebar - grade 60", 6, 8.5F},
                        {PricedSupport::Bolt, "#6 rebar - grade 60", 8, 11},
                        {PricedSupport::Truss, "", 0, 140}}};

  EXPECT_EQ(list.Find(PricedSupport::Bolt, "#6 rebar - grade 60", 8), 11);
  EXPECT_EQ(list.Find(PricedSupport::Truss, ""), 140);
  EXPECT_EQ(list.Find(PricedSupport::Bolt, "#6 rebar - grade 60", 7), std::nullopt);
  EXPECT_EQ(list.Find(PricedSupport::Cable, "#6 rebar - grade 60", 8), std::nullopt);
}

TEST(StockedLengths, AreReadInAscendingOrderAndOnce) {
  EXPECT_THAT(LengthsFrom("8, 4,6 10;5 6"), ElementsAre(4, 5, 6, 8, 10));
  EXPECT_THAT(LengthsFrom(" 1.8,  2.1 "), ElementsAre(1.8F, 2.1F));
}

TEST(StockedLengths, LeaveOutWhatIsNoLength) {
  EXPECT_THAT(LengthsFrom("4, six, 0, -5, 6ft, 1e99, 8"), ElementsAre(4, 8));
  EXPECT_THAT(LengthsFrom(""), IsEmpty());
  EXPECT_THAT(LengthsFrom(" , ;"), IsEmpty());
}

TEST(StockedLengths, AreTwentyAtMost) {
  std::string text;
  for (int length = 1; length <= 30; ++length) text += std::to_string(length) + ",";

  const auto lengths = LengthsFrom(text);

  EXPECT_EQ(lengths.size(), 20U);
  EXPECT_EQ(lengths.back(), 20);
}

TEST(StockedLengths, AreReadBackFromTheirText) {
  EXPECT_EQ(LengthsText({4, 5.5F, 10}), "4, 5.5, 10");
  EXPECT_EQ(LengthsText({}), "");
  EXPECT_EQ(LengthsFrom(LengthsText({1.2F, 3.6F})), (std::vector<Single>{1.2F, 3.6F}));
}

}  // namespace
}  // namespace orby::test
