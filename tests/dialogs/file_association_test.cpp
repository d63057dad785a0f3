#include "dialogs/file_association.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct FileAssociation : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
};

TEST_F(FileAssociation, AsksFirst) {
  AssociateFileExtension(program);

  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_EQ(platform.boxes.shown[0].text,
            "This operation may break an existing association of file extension ORB with other programs on this "
            "computer. Proceed?");
  EXPECT_EQ(platform.boxes.shown[0].style, BoxButtons::YesNo);
  EXPECT_EQ(platform.boxes.shown[0].title, "Orby Roof Support Workbench");
}

TEST_F(FileAssociation, ChangesNothingOnNo) {
  platform.boxes.answers = {BoxResult::No};

  AssociateFileExtension(program);

  EXPECT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_THAT(platform.fileTypes.associated, IsEmpty());
}

TEST_F(FileAssociation, PassesTheExtensionToTheDesktopAsTyped) {
  program.session.settings.FileExtension = "Orb";
  platform.boxes.answers = {BoxResult::Yes};

  AssociateFileExtension(program);

  EXPECT_THAT(platform.fileTypes.associated, ElementsAre("Orb with Orby Roof Support Workbench"));
  EXPECT_THAT(platform.boxes.Texts().back(), HasSubstr("The Orb file extensions"));
}

TEST_F(FileAssociation, SaysWhatItHasDone) {
  platform.boxes.answers = {BoxResult::Yes};

  AssociateFileExtension(program);

  EXPECT_EQ(platform.boxes.Texts().back(),
            "The ORB file extensions has been associated to /program/\r\n\r\nNote: if order for this function to be "
            "successfully completed the user needs to have access to the registry");
  EXPECT_THAT(program.session.history.Text, HasSubstr("The ORB file extensions has been associated to /program/\r\n"));
}

TEST_F(FileAssociation, ShowsTheWaitCursorUntilItIsDone) {
  struct SlowFileTypes : FileTypes {
    explicit SlowFileTypes(RecordingWindows& windowsGiven) : windows(windowsGiven) {}
    void Associate(const std::string&, const std::string&) override { waited = windows.waitCursor; }

    RecordingWindows& windows;
    bool waited = false;
  } slow(platform.windows);
  Program other(platform.AsPlatformWith(slow));
  platform.boxes.answers = {BoxResult::Yes};

  AssociateFileExtension(other);

  EXPECT_TRUE(slow.waited);
  EXPECT_FALSE(platform.windows.waitCursor);
}

}  // namespace
}  // namespace orby::test
