// Word wrapping of report texts and the fixed wrap of description lines.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"

namespace orby {
namespace {

using testing::ElementsAre;

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) lines.emplace_back(TakeLine(text));
  return lines;
}

TEST(WordWrapText, AWidthOfTwentyDoesNotWrapALongText) {
  const std::string text = std::string(99, 'a') + "  " + std::string(99, 'b');
  ASSERT_EQ(text.size(), 200U);

  EXPECT_EQ(WordWrapText(text, 20), text);
  EXPECT_EQ(WordWrapText(text, 0), text);
}

TEST(WordWrapText, AWidthOfTwentyOneWraps) {
  EXPECT_EQ(WordWrapText("The roof rating is below the range.", 21), "The roof rating is\r\nbelow the range.\r\n");
}

TEST(WordWrapText, AShortTextGetsItsLineBreakToo) {
  EXPECT_EQ(WordWrapText("Roof rating", 21), "Roof rating\r\n");
  EXPECT_EQ(WordWrapText("", 21), "\r\n");
}

TEST(WordWrapText, ATextAsLongAsTheWidthStaysOnOneLine) {
  EXPECT_EQ(WordWrapText("twenty one characters", 21), "twenty one characters\r\n");
}

TEST(WordWrapText, ABlankAtTheWidthBreaksThere) {
  EXPECT_EQ(WordWrapText("exactly twenty chars and more", 21), "exactly twenty chars\r\nand more\r\n");
}

TEST(WordWrapText, AWordThatFillsTheWidthMovesToTheNextLine) {
  EXPECT_EQ(WordWrapText("a word of twenty-1 ch behind", 21), "a word of twenty-1\r\nch behind\r\n");
}

TEST(WordWrapText, BlanksAtABreakAreDropped) {
  EXPECT_EQ(WordWrapText("Suggested bolt       length in feet   ", 21), "Suggested bolt      \r\nlength in feet\r\n");
}

TEST(WordWrapText, ATextWithoutABlankBecomesDotsAndItsEnd) {
  EXPECT_EQ(WordWrapText("abcdefghijklmnopqrstuvwxyz", 21), "...ijklmnopqrstuvwxyz\r\n");
}

TEST(WordWrapText, ARemainderWithoutABlankBecomesDotsAndItsEnd) {
  EXPECT_EQ(WordWrapText("File: /projects/north/belt/entry-04.ORB", 21), "File:\r\n.../belt/entry-04.ORB\r\n");
}

TEST(WordWrapText, ABlankAtTheStartBreaksOffAnEmptyLine) {
  EXPECT_EQ(WordWrapText(" abcdefghijklmnopqrstu", 21), "\r\nabcdefghijklmnopqrstu\r\n");
}

TEST(WordWrapText, CountsCharactersNotBytes) {
  EXPECT_EQ(WordWrapText("Förderstrecke für Süd", 21), "Förderstrecke für Süd\r\n");
  EXPECT_EQ(WordWrapText("Förderstrecke für Süds", 21), "Förderstrecke für\r\nSüds\r\n");
  EXPECT_EQ(WordWrapText("ääääääääääääääääääääää", 21), "...ääääääääääääääääää\r\n");
}

int WrappedLine(std::string_view line, std::vector<std::string>& pieces) {
  const auto [text, count] = WrapDescriptionLine(line);
  pieces = LinesOf(text);
  return count;
}

TEST(WrapDescriptionLine, SixtyOneCharactersWithNoBlankAfterPosition39AreCutAt60) {
  const std::string line = std::string(38, 'a') + " " + std::string(22, 'b');
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(line, pieces), 3);

  EXPECT_THAT(pieces, ElementsAre(std::string(38, 'a') + " " + std::string(21, 'b'), "b"));
}

TEST(WrapDescriptionLine, ABlankAtPosition40Counts) {
  const std::string line = std::string(39, 'a') + " " + std::string(21, 'b');
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(line, pieces), 3);

  EXPECT_THAT(pieces, ElementsAre(std::string(39, 'a') + " ", std::string(21, 'b')));
}

TEST(WrapDescriptionLine, ABlankAtPosition45IsTheEndOfItsPiece) {
  const std::string line = std::string(44, 'a') + " " + std::string(16, 'b');
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(line, pieces), 3);

  EXPECT_THAT(pieces, ElementsAre(std::string(44, 'a') + " ", std::string(16, 'b')));
}

TEST(WrapDescriptionLine, ABlankAtPosition60IsTakenBeforeAnyOther) {
  const std::string line = std::string(44, 'a') + " " + std::string(14, 'b') + " " + std::string(5, 'c');
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(line, pieces), 3);

  EXPECT_THAT(pieces, ElementsAre(std::string(44, 'a') + " " + std::string(14, 'b') + " ", "ccccc"));
}

TEST(WrapDescriptionLine, ARemainderThatWouldFitIsCutToo) {
  const std::string rest = std::string(41, 'b') + " " + std::string(5, 'c');
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(std::string(60, 'a') + rest, pieces), 4);

  EXPECT_THAT(pieces, ElementsAre(std::string(60, 'a'), std::string(41, 'b') + " ", "ccccc"));
}

TEST(WrapDescriptionLine, ARemainderWithItsLastBlankBeforePosition40StaysWhole) {
  const std::string rest = std::string(38, 'b') + " " + std::string(20, 'c');
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(std::string(60, 'a') + rest, pieces), 3);

  EXPECT_THAT(pieces, ElementsAre(std::string(60, 'a'), rest));
}

TEST(WrapDescriptionLine, TheCountIsOneMoreThanThePieces) {
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine("", pieces), 1);
  EXPECT_EQ(WrappedLine("short", pieces), 2);
  EXPECT_EQ(WrappedLine(std::string(180, 'a'), pieces), 4);
}

TEST(WrapDescriptionLine, CountsCharactersNotBytes) {
  std::string line;
  for (int i = 0; i < 61; ++i) line += "ö";
  std::vector<std::string> pieces;

  EXPECT_EQ(WrappedLine(line, pieces), 3);

  EXPECT_EQ(CharacterCount(pieces.at(0)), 60U);
  EXPECT_EQ(pieces.at(1), "ö");
}

// A word of a report text. Some of its letters have two bytes.
rc::Gen<std::string> Word(int longest) {
  return rc::gen::mapcat(rc::gen::inRange(1, longest + 1), [](int length) {
    const auto letter = rc::gen::element<std::string>("a", "k", "7", ",", "ö", "ß");
    return rc::gen::map(rc::gen::container<std::vector<std::string>>(static_cast<std::size_t>(length), letter),
                        [](const std::vector<std::string>& letters) {
                          std::string word;
                          for (const auto& one : letters) word += one;
                          return word;
                        });
  });
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const auto& word : words) {
    if (!text.empty()) text += ' ';
    text += word;
  }
  return text;
}

RC_GTEST_PROP(WordWrapProperty, NoLineIsLongerThanTheWidth, ()) {
  const std::string text = Joined(*rc::gen::container<std::vector<std::string>>(Word(60)));
  const auto width = *rc::gen::inRange<std::size_t>(21, 100);

  const std::string wrapped = WordWrapText(text, width);

  RC_ASSERT(wrapped.ends_with(LineEnd));
  for (const std::string& line : LinesOf(wrapped)) RC_ASSERT(CharacterCount(line) <= width);
}

RC_GTEST_PROP(WordWrapProperty, WordsThatFitAreAllKeptInTheirOrder, ()) {
  const auto words = *rc::gen::container<std::vector<std::string>>(Word(20));
  const auto width = *rc::gen::inRange<std::size_t>(21, 100);

  const std::string wrapped = WordWrapText(Joined(words), width);

  RC_ASSERT(Joined(LinesOf(wrapped)) == Joined(words));
}

RC_GTEST_PROP(WrapDescriptionProperty, PiecesHoldSixtyCharactersAtMostAndLoseNothing, ()) {
  const std::string text = Joined(*rc::gen::container<std::vector<std::string>>(Word(70)));
  std::vector<std::string> pieces;

  const int count = WrappedLine(text, pieces);

  std::string together;
  for (const std::string& piece : pieces) {
    RC_ASSERT(CharacterCount(piece) <= 60U);
    together += piece;
  }
  RC_ASSERT(together == text);
  RC_ASSERT(count == static_cast<int>(pieces.size()) + 1);
}

}  // namespace
}  // namespace orby
