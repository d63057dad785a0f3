#include "dialogs/about.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(About, ShowsVersionRevisionAndCredits) {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};

  ShowAbout(program);

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  const MessageBox& box = platform.boxes.shown.front();
  EXPECT_EQ(box.title, "About the Orby Roof Support Workbench Program");
  EXPECT_EQ(box.style, BoxButtons::Ok);
  EXPECT_THAT(box.text, StartsWith("Version: 1.0.00\r\nRevision Date: 07-May-2023\r\n"));
  EXPECT_THAT(box.text, HasSubstr("\r\nWritten by the Orby project.\r\n"));
  EXPECT_THAT(box.text, HasSubstr("GNU General Public License, version 3 or later"));
}

}  // namespace
}  // namespace orby::test
