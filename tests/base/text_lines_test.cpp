#include "base/text_lines.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesOf(const LineIndex& index, std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < index.Count(); ++i) lines.emplace_back(index.Line(text, i));
  return lines;
}

// Returns the lines of a text that arrives in these pieces.
std::vector<std::string> LinesOf(std::initializer_list<std::string_view> pieces) {
  LineIndex index;
  std::string text;
  for (const auto piece : pieces) {
    text += piece;
    index.Extend(text);
  }
  return LinesOf(index, text);
}

TEST(LineIndex, EndsALineAtCrLfAtLfAndAtCr) {
  EXPECT_THAT(LinesOf({"cover 400 ft\r\nspan 60 ft\nwidth 20 ft\rsafety 1.5"}),
              ElementsAre("cover 400 ft", "span 60 ft", "width 20 ft", "safety 1.5"));
}

TEST(LineIndex, HasNoLineForAnEmptyText) { EXPECT_THAT(LinesOf({""}), IsEmpty()); }

TEST(LineIndex, HasNoLineAfterTheLastLineEnd) {
  EXPECT_THAT(LinesOf({"bolts\r\n"}), ElementsAre("bolts"));
  EXPECT_THAT(LinesOf({"bolts\n\n"}), ElementsAre("bolts", ""));
  EXPECT_THAT(LinesOf({"\r\r\n\n"}), ElementsAre("", "", ""));
}

TEST(LineIndex, AcceptsATextInPiecesCutAnywhere) {
  EXPECT_THAT(LinesOf({"cov", "er\r", "\nspan\r", "width", "\n", "x"}), ElementsAre("cover", "span", "width", "x"));
}

TEST(LineIndex, ExtendsALastLineThatWasNotComplete) {
  LineIndex index;
  index.Extend("roof bo");
  EXPECT_EQ(index.Line("roof bo", 0), "roof bo");

  index.Extend("roof bolt\n");

  EXPECT_EQ(index.Count(), 1U);
  EXPECT_EQ(index.Line("roof bolt\n", 0), "roof bolt");
}

TEST(LineIndex, FindsALineFarInsideALongText) {
  std::string text;
  for (int i = 0; i < 100'000; ++i) text += "line " + std::to_string(i) + "\r\n";
  LineIndex index;

  index.Extend(text);

  EXPECT_EQ(index.Count(), 100'000U);
  EXPECT_EQ(index.Line(text, 0), "line 0");
  EXPECT_EQ(index.Line(text, 4'095), "line 4095");
  EXPECT_EQ(index.Line(text, 73'218), "line 73218");
  EXPECT_EQ(index.Line(text, 99'999), "line 99999");
}

TEST(LineIndex, FindsTheLineAfterAVeryLongLine) {
  const std::string longLine(50'000, 'x');
  const std::string text = "head\n" + longLine + "\ntail";
  LineIndex index;

  index.Extend(text);

  EXPECT_THAT(LinesOf(index, text), ElementsAre("head", longLine, "tail"));
}

TEST(LineIndex, ReturnsAnEmptyLineForANumberBeyondTheLastLine) {
  LineIndex index;
  index.Extend("one\n");

  EXPECT_EQ(index.Line("one\n", 1), "");
  EXPECT_EQ(index.Line("one\n", 500), "");
}

TEST(LineIndex, SkipsTheByteOrderMarkAtTheStartOfTheText) {
  EXPECT_THAT(LinesOf({"\xEF\xBB\xBFtitle\r\ntext"}), ElementsAre("title", "text"));
}

TEST(LineIndex, KeepsAByteOrderMarkAtTheStartOfALaterLine) {
  EXPECT_THAT(LinesOf({"title\r\n\xEF\xBB\xBFtext"}), ElementsAre("title", "\xEF\xBB\xBFtext"));
}

TEST(LineIndex, ClearRemovesTheLinesOfTheOldText) {
  LineIndex index;
  index.Extend("one\ntwo\nthree");

  index.Clear();
  index.Extend("alone");

  EXPECT_EQ(index.Count(), 1U);
  EXPECT_EQ(index.Length(), 5U);
  EXPECT_EQ(index.Line("alone", 0), "alone");
}

TEST(LineIndex, FindsALineByAnyOfItsBytes) {
  std::string text;
  for (int i = 0; i < 10'000; ++i) text += "line " + std::to_string(i) + "\r\n";
  LineIndex index;
  index.Extend(text);

  EXPECT_EQ(index.LineAt(text, 0), 0U);
  EXPECT_EQ(index.LineAt(text, text.find("line 1\r")), 1U);
  EXPECT_EQ(index.LineAt(text, text.find("line 1\r") - 1), 0U);
  EXPECT_EQ(index.LineAt(text, text.find("line 7312") + 4), 7312U);
  EXPECT_EQ(index.LineAt(text, text.find("line 7312") + 10), 7312U);
  EXPECT_EQ(index.LineAt(text, text.size()), 9999U);
  EXPECT_EQ(LineIndex().LineAt("", 5), 0U);
}

TEST(ShownLine, HasAPlaceInTheFileForEachCharacter) {
  EXPECT_THAT(ShownPlaces("a\tb"), ElementsAre(0, 1, 1, 1, 1, 1, 1, 1, 2, 3));
  EXPECT_THAT(ShownPlaces("5\u00B0 x"), ElementsAre(0, 1, 3, 4, 5));
  EXPECT_THAT(ShownPlaces("5\xB0 x"), ElementsAre(0, 1, 2, 3, 4));
  EXPECT_THAT(ShownPlaces(""), ElementsAre(0));
}

TEST(ShownLine, PlacesItsEllipsisWhereTheLineIsCut) {
  const std::vector<std::size_t> places = ShownPlaces(std::string(9000, 'x'));

  ASSERT_EQ(places.size(), 4002U);
  EXPECT_EQ(places[3999], 3999U);
  EXPECT_EQ(places[4000], 4000U);
  EXPECT_EQ(places[4001], 9000U);
}

TEST(ShownLine, IsReadAsUtf8WhenItIsValid) { EXPECT_EQ(ShownLine("45\xC2\xB0 dip"), "45\u00B0 dip"); }

TEST(ShownLine, IsReadAsWindows1252WhenItIsNotValidUtf8) {
  EXPECT_EQ(ShownLine("45\xB0 dip \x80 5"), "45\u00B0 dip \u20AC 5");
}

TEST(ShownLine, ExpandsTabsToEightColumns) {
  EXPECT_EQ(ShownLine("a\tb"), "a       b");
  EXPECT_EQ(ShownLine("\tb"), "        b");
  EXPECT_EQ(ShownLine("12345678\tb"), "12345678        b");
  EXPECT_EQ(ShownLine("\u00B0\tb"), "\u00B0       b");
}

TEST(ShownLine, ShowsControlCharactersAsBlanks) {
  EXPECT_EQ(ShownLine(std::string_view("page\fend\0.\x7F", 11)), "page end . ");
}

TEST(ShownLine, Of4000CharactersIsShownWhole) {
  const std::string line(4000, 'x');

  EXPECT_EQ(ShownLine(line), line);
}

TEST(ShownLine, OfMoreThan4000CharactersEndsInAnEllipsis) {
  EXPECT_EQ(ShownLine(std::string(4001, 'x')), std::string(4000, 'x') + "\u2026");
  EXPECT_EQ(ShownLine(std::string(3996, 'x') + "\tend"), std::string(3996, 'x') + "    \u2026");
}

TEST(ShownLine, IsNotCutWithinACharacter) {
  std::string line;
  for (int i = 0; i < 20'000; ++i) line += "\u20AC";
  std::string shown;
  for (int i = 0; i < 4000; ++i) shown += "\u20AC";

  EXPECT_EQ(ShownLine(line), shown + "\u2026");
  EXPECT_EQ(ShownLine("x" + line), "x" + shown.substr(3) + "\u2026");
}

TEST(LineText, KeepsTabsAndAllCharacters) {
  const std::string line = "a\tb" + std::string(9000, 'x');

  EXPECT_EQ(LineText(line), line);
  EXPECT_EQ(LineText("45\xB0"), "45\u00B0");
}

}  // namespace
}  // namespace orby::test
