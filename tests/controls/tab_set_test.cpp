#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct ATabSet : testing::Test {
  ATabSet() {
    tabs.Click = [this] { ++clicks; };
  }

  PlainForm form;
  TabSet tabs{form, "SSTab1", {"Geology", "Primary", "Entries"}};
  int clicks = 0;
};

TEST_F(ATabSet, OpensOnItsFirstTabWithEveryTabEnabled) {
  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_EQ(tabs.Count(), 3);
  EXPECT_EQ(tabs.Caption(2), "Entries");
  EXPECT_TRUE(tabs.TabEnabled(0) && tabs.TabEnabled(1) && tabs.TabEnabled(2));
}

TEST_F(ATabSet, FiresClickForAnotherTab) {
  tabs.SetTab(2);

  EXPECT_EQ(tabs.Tab(), 2);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ATabSet, FiresNothingForTheTabThatIsShown) {
  tabs.SetTab(0);
  tabs.ClickTab(0);

  EXPECT_EQ(clicks, 0);
}

TEST_F(ATabSet, ShowsTheTabThatTheUserClicks) {
  tabs.ClickTab(1);

  EXPECT_EQ(tabs.Tab(), 1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ATabSet, LetsCodeShowADisabledTab) {
  tabs.SetTabEnabled(2, false);

  tabs.SetTab(2);

  EXPECT_EQ(tabs.Tab(), 2);
  EXPECT_EQ(clicks, 1);
}

TEST_F(ATabSet, IgnoresTheUsersClickOnADisabledTab) {
  tabs.SetTabEnabled(2, false);

  tabs.ClickTab(2);

  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ATabSet, StaysOnATabThatIsDisabledWhileItIsShown) {
  tabs.SetTab(1);
  clicks = 0;

  tabs.SetTabEnabled(1, false);

  EXPECT_EQ(tabs.Tab(), 1);
  EXPECT_FALSE(tabs.TabEnabled(1));
  EXPECT_EQ(clicks, 0);
}

TEST_F(ATabSet, RefusesATabOutsideItsBounds) {
  EXPECT_EQ(ErrorNumberOf([this] { tabs.SetTab(3); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { tabs.SetTab(-1); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { tabs.ClickTab(3); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { tabs.SetTabEnabled(3, false); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { static_cast<void>(tabs.Caption(3)); }), 9);
  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ATabSet, WithoutAHandlerStillChangesItsTab) {
  tabs.Click = nullptr;

  tabs.ClickTab(1);

  EXPECT_EQ(tabs.Tab(), 1);
}

}  // namespace
}  // namespace orby::test
