// Holds that the locale of the test run takes effect. Otherwise the run under a German locale would prove nothing.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace orby::test {
namespace {

std::string OneAndAHalfByTheCLibrary() {
  char text[8] = {};
  std::snprintf(text, sizeof text, "%.1f", 1.5);
  return text;
}

TEST(LocaleOfTheTests, ReachesTheNumbersOfTheCLibrary) {
  const char* locale = std::getenv("LC_ALL");
  const bool isGerman = locale != nullptr && std::string(locale).starts_with("de_DE");

  EXPECT_EQ(OneAndAHalfByTheCLibrary(), isGerman ? "1,5" : "1.5");
}

}  // namespace
}  // namespace orby::test
