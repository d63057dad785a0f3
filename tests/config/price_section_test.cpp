// The price lists in the configuration file.
#include "config/price_section.h"

#include <gmock/gmock.h>

#include <string>

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

PriceLists SomePrices() {
  return {PriceList{{5, 6.5F},
                    {{PricedSupport::Bolt, "#6 rebar - grade 60", 6.5F, 8.25F},
                     {PricedSupport::Standing, " \"Big\" crib, 8 x 8 ", 0, 410},
                     {PricedSupport::Truss, "", 0, 140}}},
          PriceList{{2.1F}, {{PricedSupport::Cable, "15.2", 0, 95}}}};
}

constexpr const char* SomePricesText =
    "[ORBYPrices]\r\n"
    "BoltLengthsENG=5, 6.5\r\n"
    "PriceCountENG=3\r\n"
    "PriceENG1=Bolt 6.5 8.25 \"#6 rebar - grade 60\"\r\n"
    "PriceENG2=Standing 0 410 \" \"Big\" crib, 8 x 8 \"\r\n"
    "PriceENG3=Truss 0 140 \"\"\r\n"
    "BoltLengthsMET=2.1\r\n"
    "PriceCountMET=1\r\n"
    "PriceMET1=Cable 0 95 \"15.2\"\r\n";

PriceLists Read(const std::string& text, PriceLists lists = BuiltInPrices()) {
  ReadPrices(lists, IniText(text));
  return lists;
}

TEST(PriceSectionOfTheFile, HasALineForEachPrice) {
  IniText ini;

  WritePrices(SomePrices(), ini);

  EXPECT_EQ(ini.Text(), SomePricesText);
}

TEST(PriceSectionOfTheFile, IsReadBackAsItWasWritten) { EXPECT_EQ(Read(SomePricesText), SomePrices()); }

TEST(PriceSectionOfTheFile, MayBeMissing) { EXPECT_EQ(Read("[Settings]\r\n"), BuiltInPrices()); }

TEST(PriceSectionOfTheFile, DropsThePricesThatWereRemoved) {
  IniText ini{std::string(SomePricesText)};
  PriceLists fewer = SomePrices();
  fewer[0].Prices.resize(1);

  WritePrices(fewer, ini);

  EXPECT_EQ(Read(ini.Text(), SomePrices()), fewer);
}

TEST(PriceSectionOfTheFile, KeepsTheLengthsOfTheListIfItsOwnAreUnusable) {
  for (const char* lengths : {"", "none", "0, -4", "1e99"}) {
    const auto lists =
        Read(std::string("[ORBYPrices]\r\nBoltLengthsMET=") + lengths + "\r\nBoltLengthsENG=9, x, 3\r\n");

    EXPECT_THAT(lists[0].BoltLengths, ElementsAre(3, 9)) << lengths;
    EXPECT_EQ(lists[1].BoltLengths, BuiltInPrices()[1].BoltLengths) << lengths;
  }
}

TEST(PriceSectionOfTheFile, LeavesOutDamagedPrices) {
  for (const char* line : {"", "Bolt", "Bolt 6", "Bolt 6 8.25", "Bolt 6 8.25 name", "Bolt 6 8.25 \"",
                           "Bolt -6 8.25 \"a\"", "Bolt 6 0 \"a\"", "Bolt 6 -1 \"a\"", "Bolt six 8 \"a\"",
                           "Bolt 6 1e99 \"a\"", "Bolt 6 8,25 \"a\"", "Wedge 6 8 \"a\"", "bolt  6 8 \"a\""}) {
    const auto lists = Read("[ORBYPrices]\r\nPriceCountENG=2\r\nPriceENG1=" + std::string(line) +
                            "\r\nPriceENG2=Truss 0 140 \"\"\r\n");

    EXPECT_THAT(lists[0].Prices, ElementsAre(Price{PricedSupport::Truss, "", 0, 140})) << line;
  }
}

TEST(PriceSectionOfTheFile, TakesNoMorePricesThanItCounts) {
  const std::string prices = "PriceENG1=Truss 0 140 \"\"\r\nPriceENG2=Cable 0 90 \"0.6\"\r\n";
  const auto count = [&prices](const std::string& number) {
    return Read("[ORBYPrices]\r\nPriceCountENG=" + number + "\r\n" + prices)[0].Prices.size();
  };

  EXPECT_EQ(count("1"), 1U);
  EXPECT_EQ(count("40"), 2U);
  EXPECT_EQ(count("0"), 0U);
  EXPECT_EQ(count("-3"), 0U);
  EXPECT_EQ(count("many"), 0U);
}

TEST(PriceSectionOfTheFile, IsOneForBothUnitSystems) {
  const auto lists = Read("[ORBYPrices]\r\nPriceCountMET=1\r\nPriceMET1=Truss 0 1200 \"\"\r\n");

  EXPECT_THAT(lists[0].Prices, IsEmpty());
  EXPECT_EQ(lists[1].Find(PricedSupport::Truss, ""), 1200);
}

}  // namespace
}  // namespace orby::test
