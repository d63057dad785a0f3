#include <gtest/gtest.h>

#include "controls/controls.h"
#include "controls/plain_form.h"

namespace orby::test {
namespace {

TEST(Button, FiresClickForEveryPress) {
  PlainForm form;
  Button results(form, "cmdResults", "Results");
  int presses = 0;
  results.Click = [&] { ++presses; };

  results.Press();
  results.Press();

  EXPECT_EQ(results.Caption(), "Results");
  EXPECT_EQ(presses, 2);
}

TEST(Button, FiresNothingWhileItIsDisabled) {
  PlainForm form;
  Button results(form, "cmdResults", "Results");
  int presses = 0;
  results.Click = [&] { ++presses; };

  results.SetEnabled(false);
  results.Press();
  EXPECT_EQ(presses, 0);

  results.SetEnabled(true);
  results.Press();
  EXPECT_EQ(presses, 1);
}

TEST(Button, WithoutAHandlerIgnoresAPress) {
  PlainForm form;
  const Button spare(form, "cmdSpare", "Spare");

  EXPECT_NO_THROW(spare.Press());
}

TEST(Label, HasACaptionAndAUnit) {
  PlainForm form;
  Label depth(form, "lblDepth", "Depth of cover", UnitSuffix::Length);
  const Label rating(form, "lblRating", "Roof rating");

  depth.SetCaption("Depth");

  EXPECT_EQ(depth.Caption(), "Depth");
  EXPECT_EQ(depth.Suffix(), UnitSuffix::Length);
  EXPECT_EQ(rating.Caption(), "Roof rating");
  EXPECT_EQ(rating.Suffix(), UnitSuffix::None);
}

TEST(Frame, HasACaptionAndAUnitLikeALabel) {
  PlainForm form;
  const Frame diameter(form, "fraDiameter", "Diameter", UnitSuffix::Diameter);

  EXPECT_EQ(diameter.Caption(), "Diameter");
  EXPECT_EQ(diameter.Suffix(), UnitSuffix::Diameter);
}

TEST(Picture, CanBeHiddenAndShown) {
  PlainForm form;
  Picture layout(form, "imgLayout");

  EXPECT_TRUE(layout.Visible());
  layout.SetVisible(false);
  EXPECT_FALSE(layout.Visible());
}

}  // namespace
}  // namespace orby::test
