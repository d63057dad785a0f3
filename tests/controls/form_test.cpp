#include "controls/form.h"

#include <gmock/gmock.h>

#include "controls/controls.h"
#include "controls/plain_form.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

struct DepthForm : PlainForm {
  TextBox txtDepth{*this, "txtDepth", TextKind::Number};
  CheckBox chkLimit{*this, "chkLimit", "Limited height"};
  TextBox txtHeight{*this, "txtHeight", TextKind::Number};
};

TEST(Form, FindsEachControlByItsName) {
  DepthForm form;

  EXPECT_EQ(form.Find("txtDepth"), &form.txtDepth);
  EXPECT_EQ(form.Find("chkLimit"), &form.chkLimit);
  EXPECT_EQ(form.Find("txtHeight"), &form.txtHeight);
}

TEST(Form, FindsNothingUnderAnotherName) {
  const DepthForm form;

  EXPECT_EQ(form.Find("txtdepth"), nullptr);
  EXPECT_EQ(form.Find(""), nullptr);
}

TEST(Form, HasItsControlsInTheOrderOfTheTabKey) {
  DepthForm form;

  EXPECT_THAT(form.Controls(), ElementsAre(&form.txtDepth, &form.chkLimit, &form.txtHeight));
}

TEST(Form, OwnsItsControls) {
  DepthForm form;

  EXPECT_EQ(&form.txtDepth.Owner(), &form);
  EXPECT_EQ(form.txtDepth.Name(), "txtDepth");
  EXPECT_TRUE(form.txtDepth.Enabled());
  EXPECT_TRUE(form.txtDepth.Visible());
}

TEST(Form, HasANameAndACaption) {
  DepthForm form;
  EXPECT_EQ(form.Name(), "frmPlain");
  EXPECT_EQ(form.Caption(), "Plain");

  form.SetCaption("Depth: North mains");

  EXPECT_EQ(form.Caption(), "Depth: North mains");
}

TEST(Form, OpensAndClosesOnce) {
  DepthForm form;
  EXPECT_FALSE(form.IsOpen());

  form.Open();
  form.Open();
  EXPECT_TRUE(form.IsOpen());
  EXPECT_EQ(form.opened, 1);

  form.Close();
  form.Close();
  EXPECT_FALSE(form.IsOpen());
  EXPECT_EQ(form.closed, 1);
}

TEST(Form, ThatIsNotOpenIgnoresClosing) {
  DepthForm form;

  form.Close();

  EXPECT_EQ(form.closed, 0);
}

TEST(Form, CanBeOpenedAgainAfterItWasClosed) {
  DepthForm form;
  form.Open();
  form.Close();

  form.Open();
  form.Close();

  EXPECT_EQ(form.opened, 2);
  EXPECT_EQ(form.closed, 2);
}

TEST(Form, IsNotOpenWhileItRunsOnClose) {
  struct : PlainForm {
    void OnClose() override { wasOpen = IsOpen(); }
    bool wasOpen = true;
  } form;
  form.Open();

  form.Close();

  EXPECT_FALSE(form.wasOpen);
}

TEST(Form, NotifiesTheViewOfChangesInOnCloseBeforeItCloses) {
  struct : DepthForm {
    void OnClose() override { txtDepth.SetText("400"); }
  } form;
  RecordingView view(form);
  form.Open();

  form.Close();

  EXPECT_THAT(view.told, ElementsAre("txtDepth", "closed"));
}

TEST(Form, RemembersTheFocusForAControlThatIsHiddenOrDisabled) {
  DepthForm form;
  EXPECT_EQ(form.FocusRequest(), nullptr);
  form.txtHeight.SetVisible(false);
  form.txtDepth.SetEnabled(false);

  form.RequestFocus(form.txtHeight);
  EXPECT_EQ(form.FocusRequest(), &form.txtHeight);

  form.RequestFocus(form.txtDepth);
  EXPECT_EQ(form.FocusRequest(), &form.txtDepth);
}

TEST(SelectAllText, SelectsAllTextOfTheFieldWithTheFocus) {
  DepthForm form;
  form.txtDepth.SetText("400.5");
  form.txtHeight.SetText("12");
  form.RequestFocus(form.txtDepth);

  SelectAllText(form);

  EXPECT_EQ(form.txtDepth.SelectionStart(), 0U);
  EXPECT_EQ(form.txtDepth.SelectionLength(), 5U);
  EXPECT_EQ(form.txtHeight.SelectionLength(), 0U);
}

TEST(SelectAllText, ReplacesASelectionOfAPart) {
  DepthForm form;
  form.txtDepth.SetText("400");
  form.txtDepth.Select(1, 1);
  form.RequestFocus(form.txtDepth);

  SelectAllText(form);

  EXPECT_EQ(form.txtDepth.SelectionStart(), 0U);
  EXPECT_EQ(form.txtDepth.SelectionLength(), 3U);
}

TEST(SelectAllText, CountsCharactersAndNotBytes) {
  DepthForm form;
  form.txtDepth.SetText("\xC3\xA9tan\xC3\xA7on");
  form.RequestFocus(form.txtDepth);

  SelectAllText(form);

  EXPECT_EQ(form.txtDepth.SelectionLength(), 7U);
}

TEST(SelectAllText, DoesNothingWhenNoFieldHasTheFocus) {
  DepthForm form;
  form.txtDepth.SetText("400");

  SelectAllText(form);
  form.RequestFocus(form.chkLimit);
  SelectAllText(form);

  EXPECT_EQ(form.txtDepth.SelectionLength(), 0U);
}

}  // namespace
}  // namespace orby::test
