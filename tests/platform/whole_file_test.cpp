#include "platform/whole_file.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::Pair;
using Step = MemoryFiles::Step;

constexpr const char* Configuration = "/home/user/ORBY.INI";

class SmallFile : public testing::Test {
 protected:
  SmallFile() { files.files[Configuration] = "[Settings]\r\n"; }

  MemoryFiles files;
};

TEST_F(SmallFile, HoldsTheNewBytesAfterwards) {
  EXPECT_TRUE(TryWriteWhole(files, Configuration, "[Settings]\r\nUnits=1\r\n"));

  EXPECT_THAT(files.files, ElementsAre(Pair(Configuration, "[Settings]\r\nUnits=1\r\n")));
}

TEST_F(SmallFile, IsMadeWhenItIsMissing) {
  files.files.clear();

  EXPECT_TRUE(TryWriteWhole(files, Configuration, "[Settings]\r\n"));

  EXPECT_THAT(files.files, ElementsAre(Pair(Configuration, "[Settings]\r\n")));
}

class FailedStep : public SmallFile, public testing::WithParamInterface<Step> {};

TEST_P(FailedStep, LeavesTheOldBytesAndNoTemporaryFile) {
  files.Fail(GetParam(), 61);

  EXPECT_FALSE(TryWriteWhole(files, Configuration, "[Settings]\r\nUnits=1\r\n"));

  EXPECT_THAT(files.files, ElementsAre(Pair(Configuration, "[Settings]\r\n")));
}

INSTANTIATE_TEST_SUITE_P(OfAWrite, FailedStep, testing::Values(Step::Create, Step::Write, Step::Flush, Step::Close),
                         [](const auto& step) { return "Step" + std::to_string(step.index); });

}  // namespace
}  // namespace orby::test
