#include "base/text_excerpt.h"

#include <gmock/gmock.h>

#include <string>

namespace orby::test {
namespace {

std::string Excerpt(std::string_view bytes, std::size_t first, std::size_t last) {
  TextExcerpt excerpt(first, last);
  std::string text;
  while (!excerpt.IsOver()) text += excerpt.Next(bytes, 4);
  return text;
}

TEST(TextExcerpt, HasLineFeedsForAllLineEnds) {
  const std::string_view text = "cover\r\nspan\rwidth\n\nsafety\n";

  EXPECT_EQ(Excerpt(text, 0, text.size()), "cover\nspan\nwidth\n\nsafety\n");
}

TEST(TextExcerpt, CanBeginAndEndWithinALine) {
  EXPECT_EQ(Excerpt("cover 400\nspan 60", 6, 14), "400\nspan");
  EXPECT_EQ(Excerpt("cover 400", 2, 5), "ver");
}

TEST(TextExcerpt, ReadsEachLineInItsOwnEncoding) {
  const std::string_view text = "45\xB0 dip\n45\u00B0 dip";

  EXPECT_EQ(Excerpt(text, 0, text.size()), "45\u00B0 dip\n45\u00B0 dip");
}

TEST(TextExcerpt, CanBeReadInParts) {
  TextExcerpt excerpt(0, 12);
  const std::string_view text = "one\ntwo\nfour";

  EXPECT_EQ(excerpt.Next(text, 2), "one\n");
  EXPECT_EQ(excerpt.Left(), 8U);
  EXPECT_EQ(excerpt.Next(text, 5), "two\nfour");
  EXPECT_TRUE(excerpt.IsOver());
}

TEST(TextExcerpt, EndsAtTheEndOfTheText) { EXPECT_EQ(Excerpt("one\ntwo", 4, 900), "two"); }

}  // namespace
}  // namespace orby::test
