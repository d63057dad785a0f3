#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct AList : testing::Test {
  AList() {
    list.Fill({{"Northern basin", 0}, {"Southern basin", 1}});
    list.Click = [this] { ++clicks; };
  }

  PlainForm form;
  List list{form, "lstRegions"};
  int clicks = 0;
};

TEST_F(AList, SelectsNothingAndFiresNothingWhenItIsFilled) {
  list.Fill({{"Western basin", 2}});

  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(list.Items().at(0).text, "Western basin");
  EXPECT_EQ(list.Items().at(0).data, 2);
  EXPECT_EQ(clicks, 0);
}

TEST_F(AList, FiresClickAlsoForTheSelectedItem) {
  list.ClickItem(1);
  list.ClickItem(1);

  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(clicks, 2);
}

TEST_F(AList, FiresNothingForAnItemThatTheArrowKeysReach) {
  list.PointAt(1);

  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(ErrorNumberOf([this] { list.PointAt(2); }), 9);
}

TEST_F(AList, RefusesAnItemOutsideItsBounds) {
  EXPECT_EQ(ErrorNumberOf([this] { list.ClickItem(2); }), 9);
  EXPECT_EQ(ErrorNumberOf([this] { list.ClickItem(-1); }), 9);
  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(AList, HasNoSelectionAfterItIsFilledAgain) {
  list.ClickItem(0);

  list.Fill({{"Western basin", 2}, {"Eastern basin", 3}});

  EXPECT_EQ(list.ListIndex(), -1);
  EXPECT_EQ(clicks, 1);
}

TEST_F(AList, WithoutAHandlerStillSelectsAnItem) {
  list.Click = nullptr;

  list.ClickItem(0);

  EXPECT_EQ(list.ListIndex(), 0);
}

}  // namespace
}  // namespace orby::test
