#include "machine/program.h"

#include <gmock/gmock.h>

#include "base/paths.h"
#include "machine/disk_files.h"

namespace orby::test {
namespace {

TEST(TheProgram, KnowsTheFolderThatItLiesIn) {
  DiskFiles files(ProgramFolder());

  EXPECT_FALSE(EndsInSeparator(files.ProgramFolder()));
  EXPECT_EQ(files.AbsolutePath(files.ProgramFolder()), files.ProgramFolder());
  EXPECT_THAT(files.FilesIn(files.ProgramFolder()), testing::Contains(testing::HasSubstr("test_machine")));
}

}  // namespace
}  // namespace orby::test
