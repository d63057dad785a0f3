#include "files/item_reader.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

TEST(ItemReader, ReadsNumbersSeparatedByBlanksCommasAndLineEnds) {
  ItemReader reader("45 0.75,162\r\n6.2\n-3\r7");

  EXPECT_EQ(reader.ReadInteger(), 45);
  EXPECT_EQ(reader.ReadSingle(), 0.75F);
  EXPECT_EQ(reader.ReadInteger(), 162);
  EXPECT_EQ(reader.ReadSingle(), 6.2F);
  EXPECT_EQ(reader.ReadInteger(), -3);
  EXPECT_EQ(reader.ReadInteger(), 7);
}

TEST(ItemReader, SkipsBlanksAndEmptyLinesBeforeANumber) {
  ItemReader reader("  \r\n\r\n \n 400\r\n");

  EXPECT_EQ(reader.ReadSingle(), 400.0F);
}

TEST(ItemReader, SkipsBlanksAndOneLineEndAfterANumber) {
  ItemReader reader(" 1 \r\n\r\nMain east");

  EXPECT_EQ(reader.ReadInteger(), 1);
  EXPECT_EQ(reader.ReadLine(), "");
  EXPECT_EQ(reader.ReadLine(), "Main east");
}

TEST(ItemReader, SkipsOnlyOneCommaAfterANumber) {
  ItemReader reader("8 ,,3");

  EXPECT_EQ(reader.ReadInteger(), 8);
  EXPECT_EQ(reader.ReadInteger(), 0);
  EXPECT_EQ(reader.ReadInteger(), 3);
}

TEST(ItemReader, ReadsACommaAndTheLineEndAfterItAsTwoDelimiters) {
  ItemReader reader("8,\r\nMain east\r\n");

  EXPECT_EQ(reader.ReadInteger(), 8);
  EXPECT_EQ(reader.ReadLine(), "");
  EXPECT_EQ(reader.ReadLine(), "Main east");
}

TEST(ItemReader, ReadsTheNumberAtTheStartOfAnItem) {
  ItemReader reader("shale\n12ft\n&HFF\n1D2\n\"7\"\n");

  EXPECT_EQ(reader.ReadInteger(), 0);
  EXPECT_EQ(reader.ReadSingle(), 12.0F);
  EXPECT_EQ(reader.ReadInteger(), 255);
  EXPECT_EQ(reader.ReadSingle(), 100.0F);
  EXPECT_EQ(reader.ReadInteger(), 0);
}

TEST(ItemReader, RoundsWholeNumbersHalfToEven) {
  ItemReader reader("2.5 3.5 -0.5");

  EXPECT_EQ(reader.ReadInteger(), 2);
  EXPECT_EQ(reader.ReadInteger(), 4);
  EXPECT_EQ(reader.ReadInteger(), 0);
}

TEST(ItemReader, OverflowsForNumbersOutsideTheRangeOfTheirType) {
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("32768").ReadInteger(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("-32769").ReadInteger(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("1E39").ReadSingle(); }), 6);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("1E999").ReadSingle(); }), 6);
  EXPECT_EQ(ItemReader("-32768").ReadInteger(), -32768);
  EXPECT_EQ(ItemReader("3.402823E+38").ReadSingle(), 3.402823E+38F);
}

TEST(ItemReader, SkipsLeadingBlanksOfATextAndKeepsTrailingOnes) {
  ItemReader reader("  Rebar no. 6  \r\nnext");

  EXPECT_EQ(reader.ReadText(), "Rebar no. 6  ");
  EXPECT_EQ(reader.ReadText(), "next");
}

TEST(ItemReader, EndsATextAtAComma) {
  ItemReader reader("Rebar, epoxy,\r\n7");

  EXPECT_EQ(reader.ReadText(), "Rebar");
  EXPECT_EQ(reader.ReadText(), "epoxy");
  EXPECT_EQ(reader.ReadText(), "");
  EXPECT_EQ(reader.ReadInteger(), 7);
}

TEST(ItemReader, ReadsAnEmptyLineAsAnEmptyText) {
  ItemReader reader("\r\n\nsandstone");

  EXPECT_EQ(reader.ReadText(), "");
  EXPECT_EQ(reader.ReadText(), "");
  EXPECT_EQ(reader.ReadText(), "sandstone");
}

TEST(ItemReader, KeepsCommasBlanksAndLineEndsInQuotes) {
  ItemReader reader("  \" Rebar, no. 6\r\nepoxy \"  ,next\r\n");

  EXPECT_EQ(reader.ReadText(), " Rebar, no. 6\r\nepoxy ");
  EXPECT_EQ(reader.ReadText(), "next");
}

TEST(ItemReader, SkipsBlanksAndOneLineEndAfterAClosingQuote) {
  ItemReader reader("\"Rebar\"  \r\n\r\nlast");

  EXPECT_EQ(reader.ReadText(), "Rebar");
  EXPECT_EQ(reader.ReadText(), "");
  EXPECT_EQ(reader.ReadText(), "last");
}

TEST(ItemReader, ReadsTheTextAfterAClosingQuoteAsTheNextItem) {
  ItemReader reader("\"Rebar\" no. 6\r\n");

  EXPECT_EQ(reader.ReadText(), "Rebar");
  EXPECT_EQ(reader.ReadText(), "no. 6");
}

TEST(ItemReader, KeepsAQuoteInsideAText) {
  ItemReader reader("bolt 3/4\" long, 6\r\n");

  EXPECT_EQ(reader.ReadText(), "bolt 3/4\" long");
}

TEST(ItemReader, ReadsAnUnclosedQuoteToTheEndOfTheFile) {
  ItemReader reader("\"Rebar,\r\n6\r\n");

  EXPECT_EQ(reader.ReadText(), "Rebar,\r\n6\r\n");
  EXPECT_EQ(ErrorNumberOf([&] { reader.ReadText(); }), 62);
}

TEST(ItemReader, KeepsBlanksCommasAndQuotesInAWholeLine) {
  ItemReader reader("  \"Crib\", 4-point \rsecond\nthird\r\nfourth");

  EXPECT_EQ(reader.ReadLine(), "  \"Crib\", 4-point ");
  EXPECT_EQ(reader.ReadLine(), "second");
  EXPECT_EQ(reader.ReadLine(), "third");
  EXPECT_EQ(reader.ReadLine(), "fourth");
}

TEST(ItemReader, ReportsTheEndOfTheFileAfterTheLastItem) {
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("").ReadText(); }), 62);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("").ReadLine(); }), 62);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("").ReadInteger(); }), 62);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("").ReadSingle(); }), 62);
}

TEST(ItemReader, ReportsTheEndOfTheFileForBlanksOnly) {
  EXPECT_EQ(ErrorNumberOf([] { ItemReader("   ").ReadText(); }), 62);
  EXPECT_EQ(ErrorNumberOf([] { ItemReader(" \r\n \r\n").ReadSingle(); }), 62);
  EXPECT_EQ(ItemReader("   ").ReadLine(), "   ");
}

TEST(ItemReader, ReadsUtf8) {
  ItemReader reader("Schacht \xC3\x84\r\nT\xC3\xBCr\r\n");

  EXPECT_EQ(reader.ReadLine(), "Schacht \xC3\x84");
  EXPECT_EQ(reader.ReadText(), "T\xC3\xBCr");
}

TEST(ItemReader, ReadsAFileWithOneByteThatIsNotUtf8AsWindows1252) {
  ItemReader reader("\xC3\x84\r\n\x80 5\r\n");

  EXPECT_EQ(reader.ReadLine(), "\xC3\x83\xE2\x80\x9E");  // the characters of the bytes C3 and 84
  EXPECT_EQ(reader.ReadText(), "\xE2\x82\xAC 5");        // the euro sign
}

TEST(ItemReader, HasItsOwnPositionInACopy) {
  ItemReader reader("first,second");
  ItemReader copy = reader;

  EXPECT_EQ(copy.ReadText(), "first");
  EXPECT_EQ(reader.ReadText(), "first");
}

TEST(ItemReader, ReadsTheLongestItemAndIsOutOfMemoryForOneMoreByte) {
  const std::string longest(16777216, '7');
  const std::string longer = longest + "7";

  EXPECT_EQ(ItemReader(longest).ReadLine().size(), 16777216U);
  EXPECT_EQ(ErrorNumberOf([&] { ItemReader(longer).ReadLine(); }), 7);
  EXPECT_EQ(ErrorNumberOf([&] { ItemReader(longer).ReadText(); }), 7);
  EXPECT_EQ(ErrorNumberOf([&] { ItemReader(longer).ReadInteger(); }), 7);
}

}  // namespace
}  // namespace orby::test
