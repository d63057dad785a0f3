#include "dialogs/preview_window.h"

#include <gmock/gmock.h>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

// A report of two pages.
struct APreview : testing::Test {
  APreview() {
    program.session.OutBuf = {"inputs\r\n", "calculations\r\n", "", "", ""};
    program.windows.LastPage = 1;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  PreviewWindow window{program};
};

TEST_F(APreview, HasItsCaptions) {
  EXPECT_EQ(window.Name(), "frmPreview");
  EXPECT_EQ(window.Caption(), "Print Preview");
  EXPECT_EQ(window.Command5.Caption(), "P&revious Page");
  EXPECT_EQ(window.Command4.Caption(), "&Next Page");
  EXPECT_EQ(window.Command2.Caption(), "&Copy Page");
  EXPECT_EQ(window.Command1.Caption(), "Close");
  EXPECT_EQ(window.RichTextBox1.Kind(), TextKind::Output);
}

TEST_F(APreview, OpensOnTheFirstPageInAMonospacedFont) {
  window.Open();

  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
  EXPECT_EQ(window.RichTextBox1.Font(), (FontChoice{"Courier New", 10}));
  EXPECT_FALSE(window.Command5.Enabled());
  EXPECT_TRUE(window.Command4.Enabled());
  EXPECT_EQ(platform.windows.centered, 1);
  EXPECT_TRUE(platform.windows.mainWindowShown);
}

TEST_F(APreview, PagesToTheLastPageAndBack) {
  window.Open();

  window.Command4.Press();
  EXPECT_EQ(window.RichTextBox1.Text(), "calculations\r\n");
  EXPECT_FALSE(window.Command4.Enabled());
  EXPECT_TRUE(window.Command5.Enabled());

  window.Command5.Press();
  EXPECT_EQ(window.RichTextBox1.Text(), "inputs\r\n");
  EXPECT_TRUE(window.Command4.Enabled());
  EXPECT_FALSE(window.Command5.Enabled());
}

TEST_F(APreview, CopiesTheShownPage) {
  window.Open();
  window.Command4.Press();

  window.Command2.Press();

  EXPECT_EQ(platform.clipboard.text, "calculations\r\n");
  EXPECT_EQ(program.session.history.Text, "1. Page 1 copied to clipboard\r\n");
}

TEST_F(APreview, IsShownUntilItIsClosed) {
  platform.windows.onModal = [](Form& form) {
    auto& shown = dynamic_cast<PreviewWindow&>(form);
    EXPECT_EQ(shown.RichTextBox1.Text(), "inputs\r\n");
    shown.Command1.Press();
    EXPECT_FALSE(shown.IsOpen());
  };

  ShowPreview(program);

  EXPECT_EQ(platform.windows.modalForms, 1);
}

}  // namespace
}  // namespace orby::test
