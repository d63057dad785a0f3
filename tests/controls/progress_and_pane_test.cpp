#include <gmock/gmock.h>

#include "controls/controls.h"
#include "controls/plain_form.h"

namespace orby::test {
namespace {

TEST(AProgressBar, StaysBetween0And100) {
  PlainForm form;
  ProgressBar bar{form, "ProgressBar1"};

  bar.SetValue(140);
  EXPECT_EQ(bar.Value(), 100);

  bar.SetValue(-3);
  EXPECT_EQ(bar.Value(), 0);
}

TEST(ATextPane, AppendsPartsUntilItIsCleared) {
  PlainForm form;
  TextPane pane{form, "RichTextBox1"};

  pane.Append("roof bolt");
  pane.Append("s\r\n");
  EXPECT_EQ(pane.Bytes(), "roof bolts\r\n");

  pane.Clear();
  EXPECT_EQ(pane.Bytes(), "");
}

TEST(ASlider, StaysWithinItsRange) {
  PlainForm form;
  Slider slider(form, "hsbSize", 2, 10);

  slider.SetValue(11);
  EXPECT_EQ(slider.Value(), 10);
  slider.SetValue(-3);
  EXPECT_EQ(slider.Value(), 2);
}

}  // namespace
}  // namespace orby::test
