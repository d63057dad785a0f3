#include <gtest/gtest.h>

#include "base/runtime_error.h"
#include "controls/controls.h"
#include "controls/plain_form.h"
#include "support/recording_platform.h"

namespace orby::test {
namespace {

struct ATextBox : testing::Test {
  void Watch(TextBox& box) {
    box.Change = [this] { ++changes; };
  }

  PlainForm form;
  int changes = 0;
};

TEST_F(ATextBox, StartsEmptyAndWithoutASelection) {
  const TextBox depth(form, "txtDepth");

  EXPECT_EQ(depth.Text(), "");
  EXPECT_EQ(depth.Kind(), TextKind::Free);
  EXPECT_EQ(depth.SelectionStart(), 0U);
  EXPECT_EQ(depth.SelectionLength(), 0U);
}

TEST_F(ATextBox, FiresChangeOnceForANewText) {
  TextBox depth(form, "txtDepth", TextKind::Number);
  Watch(depth);

  depth.SetText("400");

  EXPECT_EQ(depth.Text(), "400");
  EXPECT_EQ(changes, 1);
}

TEST_F(ATextBox, FiresNothingWhenTheSameTextIsSetAgain) {
  TextBox depth(form, "txtDepth", TextKind::Number);
  depth.SetText("400");
  Watch(depth);

  depth.SetText("400");

  EXPECT_EQ(changes, 0);
}

TEST_F(ATextBox, ThatIsEmptyFiresNothingWhenItIsCleared) {
  TextBox depth(form, "txtDepth", TextKind::Number);
  Watch(depth);

  depth.SetText("");

  EXPECT_EQ(changes, 0);
}

TEST_F(ATextBox, FiresChangeForAnotherTextOfTheSameNumber) {
  TextBox depth(form, "txtDepth", TextKind::Number);
  depth.SetText("400");
  Watch(depth);

  depth.SetText("400.0");

  EXPECT_EQ(changes, 1);
}

TEST_F(ATextBox, HasTheNewTextBeforeItFiresChange) {
  TextBox depth(form, "txtDepth", TextKind::Number);
  std::string seen;
  depth.Change = [&] { seen = depth.Text(); };

  depth.SetText("150");

  EXPECT_EQ(seen, "150");
}

TEST_F(ATextBox, WithoutAHandlerStillChangesItsText) {
  TextBox title(form, "txtTitle");

  title.SetText("North mains");

  EXPECT_EQ(title.Text(), "North mains");
}

TEST_F(ATextBox, ForOutputFiresNothing) {
  TextBox factor(form, "txtStabFactor", TextKind::Output);
  Watch(factor);

  factor.SetText("1.06");
  factor.SetText("--");

  EXPECT_EQ(factor.Text(), "--");
  EXPECT_EQ(changes, 0);
}

TEST_F(ATextBox, HasTheNumberAtTheStartOfItsText) {
  TextBox spacing(form, "txtRowSpacing", TextKind::Number);

  spacing.SetText("1,5");
  EXPECT_EQ(spacing.Value(), 1.0);

  spacing.SetText(" 4.25 ft");
  EXPECT_EQ(spacing.Value(), 4.25);

  spacing.SetText("none");
  EXPECT_EQ(spacing.Value(), 0.0);
}

TEST_F(ATextBox, ReportsAnOverflowWhenATooLargeNumberIsRead) {
  TextBox spacing(form, "txtRowSpacing", TextKind::Number);
  spacing.SetText("1E999");

  EXPECT_EQ(ErrorNumberOf([&] { static_cast<void>(spacing.Value()); }), 6);
}

TEST_F(ATextBox, ForNumbersRefusesLetters) {
  const TextBox depth(form, "txtDepth", TextKind::Number);

  EXPECT_EQ(depth.KeyPress('x'), 0);
}

TEST_F(ATextBox, ForNumbersRefusesAMinusAtTheStartButAcceptsItAfterADigit) {
  TextBox depth(form, "txtDepth", TextKind::Number);

  EXPECT_EQ(depth.KeyPress('-'), 0);
  depth.SetText("4");
  EXPECT_EQ(depth.KeyPress('-'), '-');
}

TEST_F(ATextBox, ForNumbersAcceptsDigitsPointsAndEditingKeys) {
  TextBox depth(form, "txtDepth", TextKind::Number);
  depth.SetText("4.");

  EXPECT_EQ(depth.KeyPress('7'), '7');
  EXPECT_EQ(depth.KeyPress('.'), '.');
  EXPECT_EQ(depth.KeyPress(8), 8);
}

TEST_F(ATextBox, ForAnyTextAcceptsEveryKey) {
  const TextBox title(form, "txtTitle");

  EXPECT_EQ(title.KeyPress('x'), 'x');
  EXPECT_EQ(title.KeyPress('-'), '-');
}

TEST_F(ATextBox, ForOutputAcceptsEveryKey) {
  const TextBox factor(form, "txtStabFactor", TextKind::Output);

  EXPECT_EQ(factor.KeyPress('x'), 'x');
}

TEST_F(ATextBox, HasTheSelectionThatWasSet) {
  TextBox title(form, "txtTitle");
  title.SetText("North mains");

  title.Select(6, 5);

  EXPECT_EQ(title.SelectionStart(), 6U);
  EXPECT_EQ(title.SelectionLength(), 5U);
}

}  // namespace
}  // namespace orby::test
