// The copy of a setup file where files have modes, there are pipes and the cache folder can be elsewhere.
#include <sys/stat.h>

#include "gui/private_copy_bench.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

mode_t ModeOf(const std::string& path) {
  struct stat facts {};
  stat(path.c_str(), &facts);
  return facts.st_mode & 0777;
}

TEST_F(APrivateCopy, IsNotAccessibleToOtherUsers) {
  const auto copy = Copy();

  ASSERT_TRUE(copy);
  const std::string own = copy->substr(0, copy->rfind('/'));
  EXPECT_EQ(ModeOf(*copy), 0500U);
  EXPECT_EQ(ModeOf(own), 0700U);
  EXPECT_EQ(ModeOf(own.substr(0, own.rfind('/'))), 0700U);
}

TEST_F(APrivateCopy, FailsIfNoFolderCanBeCreated) {
  folder.Store("cache", "a file");

  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(Copy()); }), 75);
}

TEST_F(APrivateCopy, FailsForAPipe) {
  ASSERT_EQ(mkfifo(folder.At("pipe").c_str(), 0600), 0);

  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(PrivateCopy(folder.At("pipe"), SumOf("x"))); }), 75);
  EXPECT_TRUE(Kept().isEmpty());
}

}  // namespace
}  // namespace orby::test
