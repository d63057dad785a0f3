#include "base/text_search.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using enum TextSearch::Direction;

// The place of the first match; -1 when there is none.
int Find(std::string_view wanted, std::string_view bytes, std::size_t from = 0,
         TextSearch::Direction direction = Forward) {
  TextSearch search(wanted, bytes.size(), from, direction);
  const auto match = search.Next(bytes, bytes.size());
  return match ? static_cast<int>(match->place) : -1;
}

TEST(FindingAText, GivesTheFirstPlaceFromWhereItStarts) {
  const std::string_view text = "bolt row, bolt length, bolt";

  EXPECT_EQ(Find("bolt", text), 0);
  EXPECT_EQ(Find("bolt", text, 1), 10);
  EXPECT_EQ(Find("bolt", text, 11), 23);
}

TEST(FindingAText, LooksAtTheLastCharacterToo) { EXPECT_EQ(Find("t", "a bolt"), 5); }

TEST(FindingAText, GoesOnFromTheTopAtTheEnd) { EXPECT_EQ(Find("bolt", "bolt row, cable", 5), 0); }

TEST(FindingAText, FindsTheOneThatItStartsOnLast) { EXPECT_EQ(Find("bolt", "a bolt", 3), 2); }

TEST(FindingAText, GoesBackwards) {
  const std::string_view text = "bolt row, bolt length, bolt";

  EXPECT_EQ(Find("bolt", text, 23, Backward), 10);
  EXPECT_EQ(Find("bolt", text, 10, Backward), 0);
  EXPECT_EQ(Find("bolt", text, 0, Backward), 23);
}

TEST(FindingAText, TakesCapitalAndSmallLettersForTheSame) {
  EXPECT_EQ(Find("CAbLe", "a cable"), 2);
  EXPECT_EQ(Find("cable", "a CABLE"), 2);
  EXPECT_EQ(Find("[c", "a {C"), -1);
}

TEST(FindingAText, FindsAccentedLettersInBothEncodings) {
  EXPECT_EQ(Find("r\u00FCcken", "a R\u00DCCKEN"), 2);
  EXPECT_EQ(Find("R\u00DCcken", "a r\xFC\x63ken"), 2);
  EXPECT_EQ(Find("\u00D7", "a \u00F7"), -1);
}

TEST(FindingAText, GivesTheLengthInTheBytesThatWereFound) {
  const std::string text = "45\xB0 dip";
  TextSearch search("5\u00B0", text.size(), 0, Forward);

  const auto match = search.Next(text, text.size());

  ASSERT_TRUE(match.has_value());
  EXPECT_EQ(match->place, 1U);
  EXPECT_EQ(match->length, 2U);
}

TEST(FindingAText, IsDoneAPartAtATime) {
  const std::string text = std::string(5000, 'x') + "bolt";
  TextSearch search("bolt", text.size(), 0, Forward);

  EXPECT_FALSE(search.Next(text, 3000).has_value());
  EXPECT_FALSE(search.IsOver());
  EXPECT_EQ(search.Left(), 2004U);
  const auto match = search.Next(text, 3000);

  ASSERT_TRUE(match.has_value());
  EXPECT_EQ(match->place, 5000U);
}

TEST(FindingAText, EndsWhenEveryPlaceHasBeenLookedAt) {
  const std::string text(5000, 'x');
  TextSearch search("bolt", text.size(), 4000, Backward);

  EXPECT_FALSE(search.Next(text, 9000).has_value());
  EXPECT_TRUE(search.IsOver());
}

TEST(FindingAText, FindsNothingInNothing) {
  EXPECT_EQ(Find("bolt", ""), -1);
  EXPECT_EQ(Find("", "bolt"), -1);
  EXPECT_EQ(Find("bolts", "bolt"), -1);
}

}  // namespace
}  // namespace orby::test
