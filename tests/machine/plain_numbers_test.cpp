#include "machine/plain_numbers.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <string>

namespace orby::test {
namespace {

std::string Half() {
  char text[16];
  std::snprintf(text, sizeof text, "%.1f", 0.5);
  return text;
}

// Under the locale of the environment, whatever it is.
TEST(PlainNumbers, HaveAPointWhateverTheLocaleAndOnlyAsLongAsTheyLast) {
  std::setlocale(LC_ALL, "");
  const std::string before = Half();

  {
    const PlainNumbers plain;
    EXPECT_EQ(Half(), "0.5");
  }

  EXPECT_EQ(Half(), before);
}

}  // namespace
}  // namespace orby::test
