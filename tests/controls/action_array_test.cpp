#include <gmock/gmock.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct AMenu : testing::Test {
  AMenu() {
    menu.Click = [this](Integer item) { chosen.push_back(item); };
  }

  PlainForm form;
  ActionArray menu{form, "mnuItem", {"&Open", ActionArray::Separator, "&Save"}};
  std::vector<Integer> chosen;
};

TEST_F(AMenu, FiresClickWithTheNumberOfTheChosenEntry) {
  menu.ClickItem(2);
  menu.ClickItem(0);
  menu.ClickItem(0);

  EXPECT_THAT(chosen, ElementsAre(2, 0, 0));
}

TEST_F(AMenu, FiresNothingForADisabledEntry) {
  menu.SetItemEnabled(2, false);

  menu.ClickItem(2);

  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AMenu, FiresNothingForAHiddenEntry) {
  menu.SetItemVisible(2, false);

  menu.ClickItem(2);

  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AMenu, FiresNothingWhileItIsDisabledAsAWhole) {
  menu.SetEnabled(false);

  menu.ClickItem(0);

  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AMenu, WithoutAHandlerIgnoresAChoice) {
  menu.Click = nullptr;

  menu.ClickItem(0);

  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(AMenu, RefusesAnEntryOutsideItsBounds) {
  EXPECT_EQ(menu.Count(), 3);
  EXPECT_EQ(ErrorNumberOf([this] { menu.ClickItem(3); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { menu.ClickItem(-1); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { menu.SetItemChecked(3, true); }), 9);
}

}  // namespace
}  // namespace orby::test
