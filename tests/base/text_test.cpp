#include "base/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace orby {
namespace {

using testing::ElementsAre;

TEST(Characters, AnUmlautCountsOnce) {
  EXPECT_EQ(CharacterCount("Förderstrecke Süd"), 17U);
  EXPECT_EQ(CharacterCount("€ 北"), 3U);
  EXPECT_EQ(CharacterCount(""), 0U);
  EXPECT_EQ(CharacterCount("Querschlag"), 10U);
  EXPECT_EQ(CharacterCount("1234567ä90€"), 11U);  // a character that crosses the eighth byte
  EXPECT_EQ(CharacterCount("北北北北北北北"), 7U);
}

TEST(Characters, AnOffsetIsTheFirstByteOfACharacter) {
  EXPECT_EQ(CharacterOffset("Süd", 0), 0U);
  EXPECT_EQ(CharacterOffset("Süd", 1), 1U);
  EXPECT_EQ(CharacterOffset("Süd", 2), 3U);
  EXPECT_EQ(CharacterOffset("Süd", 3), 4U);
  EXPECT_EQ(CharacterOffset("Süd", 99), 4U);
}

TEST(Characters, TheLastCharactersAreCountedFromTheEnd) {
  EXPECT_EQ(LastCharacters("Strebgrößen", 5), "rößen");
  EXPECT_EQ(LastCharacters("Süd", 3), "Süd");
  EXPECT_EQ(LastCharacters("Süd", 9), "Süd");
  EXPECT_EQ(LastCharacters("Süd", 0), "");
}

TEST(Trim, RemovesOnlyBlanksAtBothEnds) {
  EXPECT_EQ(Trim("  roof bolt "), "roof bolt");
  EXPECT_EQ(Trim("roof"), "roof");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim(" \troof\t "), "\troof\t");
}

TEST(UpperCase, ChangesPlainLettersOnly) { EXPECT_EQ(UpperCase("az-Strebgröße 1"), "AZ-STREBGRößE 1"); }

TEST(Capitalised, ChangesOnlyTheFirstLetter) {
  EXPECT_EQ(Capitalised("secondary support of entries"), "Secondary support of entries");
  EXPECT_EQ(Capitalised("CMRR and depth"), "CMRR and depth");
  EXPECT_EQ(Capitalised("4 bolts"), "4 bolts");
  EXPECT_EQ(Capitalised(""), "");
}

TEST(SameWithoutCase, ComparesPlainLettersWithoutCase) {
  EXPECT_TRUE(SameWithoutCase("North.orb", "NORTH.ORB"));
  EXPECT_TRUE(SameWithoutCase("", ""));
  EXPECT_FALSE(SameWithoutCase("North", "North.ORB"));
  EXPECT_FALSE(SameWithoutCase("@", "`"));
}

TEST(ContainsWithoutCase, FindsAPartWithoutTheCaseOfPlainLetters) {
  EXPECT_TRUE(ContainsWithoutCase("North panel 3.ORB", "PANEL"));
  EXPECT_TRUE(ContainsWithoutCase("North", ""));
  EXPECT_TRUE(ContainsWithoutCase("", ""));
  EXPECT_FALSE(ContainsWithoutCase("North", "North panel"));
  EXPECT_FALSE(ContainsWithoutCase("a@b", "`"));
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) lines.push_back(TakeLine(text));
  return lines;
}

TEST(TakeLine, EndsALineAtCrLfAtLfAndAtCr) {
  EXPECT_THAT(LinesOf("one\r\ntwo\nthree\rfour"), ElementsAre("one", "two", "three", "four"));
}

TEST(TakeLine, ALineFeedBeforeACarriageReturnEndsTwoLines) {
  EXPECT_THAT(LinesOf("one\n\rtwo"), ElementsAre("one", "", "two"));
}

TEST(TakeLine, ALineEndAtTheEndOfTheTextBeginsNoLine) {
  EXPECT_THAT(LinesOf("one\r\n"), ElementsAre("one"));
  EXPECT_THAT(LinesOf("one\r\n\r\n"), ElementsAre("one", ""));
}

TEST(TakeLine, RemovesTheLineFromTheRest) {
  std::string_view rest = "one\r\n two";

  EXPECT_EQ(TakeLine(rest), "one");
  EXPECT_EQ(rest, " two");
}

TEST(Padding, DotsFillUpToTheWidth) {
  EXPECT_EQ(PadDots("Depth", 8), "Depth...");
  EXPECT_EQ(PadDots("Größe", 8), "Größe...");
  EXPECT_EQ(PadDots("Depth", 5), "Depth");
  EXPECT_EQ(PadDots("Depth of cover", 5), "Depth of cover");
}

TEST(Padding, LeaderDotsStandBetweenLabelAndValue) {
  EXPECT_EQ(DotLeader("Depth", "400", 12), "Depth....400");
  EXPECT_EQ(DotLeader("Größe", "5", 8), "Größe..5");
}

TEST(Padding, LabelAndValueThatFillTheWidthAreJoinedWithoutDots) {
  EXPECT_EQ(DotLeader("Depth", "400", 8), "Depth400");
  EXPECT_EQ(DotLeader("Depth", "400", 7), "Depth400");
  EXPECT_EQ(DotLeader("Depth", "400", 9), "Depth.400");
}

TEST(Padding, BlanksFollowOrLeadAValue) {
  EXPECT_EQ(PadSpaces("6.5", 6), "6.5   ");
  EXPECT_EQ(PadSpaces("6.5", 2), "6.5");
  EXPECT_EQ(AlignRight("6.5", 6), "   6.5");
  EXPECT_EQ(AlignRight("ö", 3), "  ö");
  EXPECT_EQ(AlignRight("6.5", 2), "6.5");
}

TEST(YesNoText, OnlyOneIsYes) {
  EXPECT_EQ(YesNoText(1), "YES");
  EXPECT_EQ(YesNoText(0), "NO");
  EXPECT_EQ(YesNoText(-1), "NO");
  EXPECT_EQ(YesNoText(2), "NO");
}

}  // namespace
}  // namespace orby
