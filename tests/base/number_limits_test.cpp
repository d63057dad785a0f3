#include "base/number_limits.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace orby::test {
namespace {

TEST(NumberLimits, IncludeTheirEndsOnlyIfTheySaySo) {
  EXPECT_TRUE(Between(100, 200).Include(100));
  EXPECT_TRUE(Between(100, 200).Include(200));
  EXPECT_FALSE(Between(100, 200).Include(200.1));
  EXPECT_FALSE(Above(0).Include(0));
  EXPECT_TRUE(Above(0).Include(1e-9));
  EXPECT_TRUE(AtLeast(0).Include(0));
  EXPECT_FALSE(AtLeast(0).Include(-1));
}

TEST(NumberLimits, OfTwoRulesAreTheNarrowerOnes) {
  EXPECT_EQ(Above(0).And(Between(40, 80)), Between(40, 80));
  EXPECT_EQ(Between(40, 80).And(Above(42)), (NumberLimits{.least = 42, .most = 80, .withLeast = false}));
  EXPECT_EQ(Between(40, 80).And(Above(40)), (NumberLimits{.least = 40, .most = 80, .withLeast = false}));
  EXPECT_EQ(Above(40).And(Between(40, 80)), (NumberLimits{.least = 40, .most = 80, .withLeast = false}));
  EXPECT_EQ(NumberLimits{}.And({.most = 10}), NumberLimits{.most = 10});
}

TEST(NumberLimits, ReadAsAnEngineerWritesThem) {
  EXPECT_EQ(LimitsText(Above(0), ""), "above 0");
  EXPECT_EQ(LimitsText(AtLeast(0), ""), "at least 0");
  EXPECT_EQ(LimitsText(Between(100, 200), "pcf"), "100 to 200 pcf");
  EXPECT_EQ(LimitsText(Above(0).And({.most = 3.3}), "m"), "above 0, at most 3.3 m");
  EXPECT_EQ(LimitsText({.least = 0, .most = 100, .withLeast = false, .withMost = false}, ""), "above 0, below 100");
  EXPECT_EQ(LimitsText({.most = 1}, "in"), "at most 1 in");
  EXPECT_EQ(LimitsText({}, "ft"), "");
}

struct Reading {
  const char* text;
  double value;
  bool isWhole;
};

TEST(LeadingNumbers, TellWhetherTheyAreTheWholeText) {
  const Reading readings[] = {{"5", 5, true},        {" 5 ", 5, true},
                              {"1 000", 1000, true}, {"-4.5", -4.5, true},
                              {"1E3", 1000, true},   {"&H1F", 31, true},
                              {".5", 0.5, true},     {"5.", 5, true},
                              {"1E-400", 0, true},   {"1,5", 1, false},
                              {"5-", 5, false},      {"5 ft", 5, false},
                              {"1E", 1, false},      {"1E+", 1, false},
                              {"4..2", 4, false},    {"", 0, false},
                              {" ", 0, false},       {"none", 0, false},
                              {"-", 0, false},       {".", 0, false},
                              {"&H", 0, false},      {"&H1G", 1, false},
                              {"&O78", 7, false},    {"&", 0, false},
                              {"$5", 0, false},      {"123456789012345678", 123456789012345678.0, true}};
  for (const auto& [text, value, isWhole] : readings) {
    const LeadingNumber number = ReadNumber(text);
    EXPECT_EQ(number.value, value) << text;
    EXPECT_EQ(number.isWholeText, isWhole) << text;
  }
}

TEST(LeadingNumbers, BeyondTheRangeOfADoubleAreAnOverflow) {
  EXPECT_THROW(static_cast<void>(ReadNumber("1E999")), RuntimeError);
}

}  // namespace
}  // namespace orby::test
