#include "base/text_search.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using enum TextSearch::Direction;

// Returns the place of the first match, or -1 when there is none.
int Find(std::string_view wanted, std::string_view bytes, std::size_t from = 0,
         TextSearch::Direction direction = Forward) {
  TextSearch search(wanted, bytes.size(), from, direction);
  const auto match = search.Next(bytes, bytes.size());
  return match ? static_cast<int>(match->place) : -1;
}

TEST(TextSearch, FindsTheFirstMatchFromItsStart) {
  const std::string_view text = "bolt row, bolt length, bolt";

  EXPECT_EQ(Find("bolt", text), 0);
  EXPECT_EQ(Find("bolt", text, 1), 10);
  EXPECT_EQ(Find("bolt", text, 11), 23);
}

TEST(TextSearch, FindsAMatchAtTheLastCharacter) { EXPECT_EQ(Find("t", "a bolt"), 5); }

TEST(TextSearch, ContinuesAtTheTopAfterTheEnd) { EXPECT_EQ(Find("bolt", "bolt row, cable", 5), 0); }

TEST(TextSearch, FindsTheMatchAroundItsStartLast) { EXPECT_EQ(Find("bolt", "a bolt", 3), 2); }

TEST(TextSearch, SearchesBackward) {
  const std::string_view text = "bolt row, bolt length, bolt";

  EXPECT_EQ(Find("bolt", text, 23, Backward), 10);
  EXPECT_EQ(Find("bolt", text, 10, Backward), 0);
  EXPECT_EQ(Find("bolt", text, 0, Backward), 23);
}

TEST(TextSearch, IgnoresTheCaseOfLetters) {
  EXPECT_EQ(Find("CAbLe", "a cable"), 2);
  EXPECT_EQ(Find("cable", "a CABLE"), 2);
  EXPECT_EQ(Find("[c", "a {C"), -1);
}

TEST(TextSearch, FindsAccentedLettersInBothEncodings) {
  EXPECT_EQ(Find("r\u00FCcken", "a R\u00DCCKEN"), 2);
  EXPECT_EQ(Find("R\u00DCcken", "a r\xFC\x63ken"), 2);
  EXPECT_EQ(Find("\u00D7", "a \u00F7"), -1);
}

TEST(TextSearch, ReturnsTheLengthOfTheMatchInBytes) {
  const std::string text = "45\xB0 dip";
  TextSearch search("5\u00B0", text.size(), 0, Forward);

  const auto match = search.Next(text, text.size());

  ASSERT_TRUE(match.has_value());
  EXPECT_EQ(match->place, 1U);
  EXPECT_EQ(match->length, 2U);
}

TEST(TextSearch, CanBeDoneInParts) {
  const std::string text = std::string(5000, 'x') + "bolt";
  TextSearch search("bolt", text.size(), 0, Forward);

  EXPECT_FALSE(search.Next(text, 3000).has_value());
  EXPECT_FALSE(search.IsOver());
  EXPECT_EQ(search.Left(), 2004U);
  const auto match = search.Next(text, 3000);

  ASSERT_TRUE(match.has_value());
  EXPECT_EQ(match->place, 5000U);
}

TEST(TextSearch, EndsAfterEveryPlaceHasBeenExamined) {
  const std::string text(5000, 'x');
  TextSearch search("bolt", text.size(), 4000, Backward);

  EXPECT_FALSE(search.Next(text, 9000).has_value());
  EXPECT_TRUE(search.IsOver());
}

TEST(TextSearch, FindsNothingInAnEmptyText) {
  EXPECT_EQ(Find("bolt", ""), -1);
  EXPECT_EQ(Find("", "bolt"), -1);
  EXPECT_EQ(Find("bolts", "bolt"), -1);
}

}  // namespace
}  // namespace orby::test
