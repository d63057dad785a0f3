// Files that no user made must end in their error quickly and with little memory.

#include <gmock/gmock.h>

#include "project_fixture.h"

namespace orby::test {
namespace {

constexpr std::size_t Huge = std::size_t{17} * 1024 * 1024;

int OpenError(const std::string& bytes) {
  TestProject project;
  project.File() = bytes;
  return ErrorNumberOf([&] { project.Open(); });
}

TEST(HugeInput, OneEndlessLine) { EXPECT_EQ(OpenError(std::string(Huge, 'x')), 7); }

TEST(HugeInput, AnUnclosedQuote) { EXPECT_EQ(OpenError("\"" + std::string(Huge, '\n')), 7); }

TEST(HugeInput, AnEndlessTitle) { EXPECT_EQ(OpenError("ORBY_104\n0\n0\n" + std::string(Huge, 'x')), 7); }

TEST(HugeInput, AnEndlessNumber) { EXPECT_EQ(OpenError("ORBY_104\n" + std::string(Huge, '1')), 7); }

TEST(HugeInput, NothingButBlanks) { EXPECT_EQ(OpenError(std::string(Huge, ' ')), 62); }

TEST(HugeInput, AMillionLinesOfDescription) {
  std::string bytes = "ORBY_104\n0\n0\nPanel 3\n##StartDesc##\n";
  for (int i = 0; i < 1'000'000; ++i) bytes += "shale\n";

  EXPECT_EQ(OpenError(bytes), 6);
}

TEST(HugeInput, AMillionBlankLinesOfDescription) {
  EXPECT_EQ(OpenError("ORBY_104\n0\n0\nPanel 3\n##StartDesc##\n" + std::string(1'000'000, '\n')), 62);
}

TEST(HugeInput, ADescriptionOfManyLongLines) {
  std::string bytes = "ORBY_104\n0\n0\nPanel 3\n##StartDesc##\n";
  for (int i = 0; i < 20; ++i) bytes += std::string(1024 * 1024, 'x') + "\n";

  EXPECT_EQ(OpenError(bytes + "##EndDesc##\n"), 7);
}

}  // namespace
}  // namespace orby::test
