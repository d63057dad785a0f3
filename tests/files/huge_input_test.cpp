// Huge files that are not projects end in an error quickly and with little memory.

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

class HugeFileWithoutALabel : public testing::TestWithParam<std::string> {};

TEST_P(HugeFileWithoutALabel, IsRefusedAfterItsFirstBytes) {
  TestProject project;
  project.File() = GetParam();

  EXPECT_FALSE(project.Open());

  EXPECT_THAT(project.platform.boxes.Texts(),
              testing::ElementsAre("Invalid ORBY file format. File can not be opened."));
  EXPECT_LE(project.platform.files.bytesRead, 64U * 1024);
}

INSTANTIATE_TEST_SUITE_P(Kinds, HugeFileWithoutALabel,
                         testing::Values(std::string(Huge, 'x'), std::string(Huge, '\0'),
                                         "\"" + std::string(Huge, '\n'), "a letter\n" + std::string(Huge, 'x')));

TEST(HugeFile, IsNotReadBeyondTheLongestProject) {
  constexpr std::size_t Longest = std::size_t{256} * 1024 * 1024;
  TestProject project;
  ASSERT_TRUE(project.Save());
  project.File().resize(Longest + Huge);

  EXPECT_TRUE(project.Open());

  EXPECT_LE(project.platform.files.bytesRead, Longest + 1024 * 1024);
}

TEST(HugeFile, WithAHugeTitleIsOutOfMemory) { EXPECT_EQ(OpenError("ORBY_104\n0\n0\n" + std::string(Huge, 'x')), 7); }

TEST(HugeFile, WithAHugeNumberIsOutOfMemory) { EXPECT_EQ(OpenError("ORBY_104\n" + std::string(Huge, '1')), 7); }

TEST(HugeFile, OfBlanksIsAnEndOfFileError) { EXPECT_EQ(OpenError(std::string(Huge, ' ')), 62); }

TEST(HugeFile, WithAMillionLinesOfDescriptionOverflows) {
  std::string bytes = "ORBY_104\n0\n0\nPanel 3\n##StartDesc##\n";
  for (int i = 0; i < 1'000'000; ++i) bytes += "shale\n";

  EXPECT_EQ(OpenError(bytes), 6);
}

TEST(HugeFile, WithAMillionBlankLinesOfDescriptionIsAnEndOfFileError) {
  EXPECT_EQ(OpenError("ORBY_104\n0\n0\nPanel 3\n##StartDesc##\n" + std::string(1'000'000, '\n')), 62);
}

TEST(HugeFile, WithADescriptionOfManyLongLinesIsOutOfMemory) {
  std::string bytes = "ORBY_104\n0\n0\nPanel 3\n##StartDesc##\n";
  for (int i = 0; i < 20; ++i) bytes += std::string(1024 * 1024, 'x') + "\n";

  EXPECT_EQ(OpenError(bytes + "##EndDesc##\n"), 7);
}

}  // namespace
}  // namespace orby::test
