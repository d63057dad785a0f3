#include "dialogs/resource_files.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ResourceTest : testing::Test {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  ResourceFiles dialog{program};
};

TEST_F(ResourceTest, AreOfferedByTheirTitles) {
  EXPECT_EQ(dialog.Name(), "frmResource");
  EXPECT_EQ(dialog.Caption(), "Resource Files");
  EXPECT_EQ(dialog.cmdView[0].Caption(), "Resource 1");
  EXPECT_EQ(dialog.cmdView[7].Caption(), "Resource 8");

  dialog.Open();

  std::vector<std::string> captions;
  for (const Button& button : dialog.cmdView) captions.push_back(button.Caption());
  EXPECT_THAT(captions, ElementsAre("Designing a Roof Bolt Pattern", "Pull Tests on Roof Bolts",
                                    "Screening Coal Mine Roof", "How Roof Bolting Developed", "Working under Weak Roof",
                                    "Supporting Intersections", "Standing Supports", "Reading the Curves"));
}

TEST_F(ResourceTest, OpenInTheProgramOfTheDesktop) {
  const char* const files[] = {"bolt-design", "pull-tests",    "roof-screening",    "bolting-history",
                               "weak-ground", "intersections", "standing-supports", "reading-curves"};
  dialog.Open();

  for (std::size_t i = 0; i < 8; ++i) {
    const std::string path = "/program/resources/" + std::string(files[i]) + ".pdf";
    platform.files.files[path] = "%PDF";
    dialog.cmdView[i].Press();

    EXPECT_EQ(platform.documents.opened.back(), path);
  }
  EXPECT_EQ(platform.documents.opened.size(), 8U);
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_TRUE(dialog.IsOpen());
}

TEST_F(ResourceTest, AreNamedIfTheyAreMissing) {
  dialog.Open();

  dialog.cmdView[1].Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Resource file (pull-tests.pdf) not available"));
  EXPECT_THAT(platform.documents.opened, IsEmpty());
}

TEST_F(ResourceTest, AreReportedIfTheyDoNotOpen) {
  platform.files.files["/program/resources/weak-ground.pdf"] = "%PDF";
  platform.documents.opens = false;
  dialog.Open();

  dialog.cmdView[4].Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Operation Failed"));
}

TEST_F(ResourceTest, CloseWithTheirButton) {
  dialog.Open();

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
}

}  // namespace
}  // namespace orby::test
