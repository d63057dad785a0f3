// Printing and preview from the File menu and the tool bar.

#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

struct Printing : MainWindowTest {
  void Choose(FileItem item) { window.mnuFileItem.ClickItem(item); }

  std::string Printed() const {
    std::string text;
    for (const std::string& page : platform.printer.pages) text += page;
    return text;
  }
};

TEST_F(Printing, AsksFirstIfTheProjectIsEmpty) {
  platform.boxes.answers = {BoxResult::No};

  Choose(FileItem::Print);

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown.front().text, "Current file is empty. Continue?");
  EXPECT_EQ(platform.boxes.shown.front().style, BoxStyle(BoxButtons::YesNo, BoxIcon::None, BoxDefault::SecondButton));
  EXPECT_EQ(platform.printer.chosen, 0);
}

TEST_F(Printing, PrintsAnEmptyProjectOnYes) {
  platform.boxes.answers = {BoxResult::Yes};

  Choose(FileItem::Print);

  EXPECT_EQ(platform.printer.chosen, 1);
  EXPECT_THAT(Printed(), HasSubstr("[ORBY CALCULATIONS]\r\n"));
}

TEST_F(Printing, PrintsTheInputAndTheResultsOfTheProject) {
  OpenByDialog(Panel3);

  Choose(FileItem::Print);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(platform.printer.chosen, 1);
  EXPECT_THAT(Printed(), HasSubstr("725"));
  EXPECT_THAT(Printed(), HasSubstr("[ORBY CALCULATIONS]\r\n"));
}

TEST_F(Printing, IsCancelledWithThePrinterDialog) {
  OpenByDialog(Panel3);
  platform.printer.error = error_number::Cancelled;

  Choose(FileItem::Print);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_THAT(platform.printer.pages, IsEmpty());
}

TEST_F(Printing, FromTheToolBarAsksForNoPrinter) {
  OpenByDialog(Panel3);

  window.Toolbar1.ClickItem(ToolButton::Print);

  EXPECT_EQ(platform.printer.chosen, 0);
  EXPECT_THAT(Printed(), HasSubstr("725"));
}

TEST_F(Printing, FromTheToolBarNamesItsFileAfterTheProject) {
  OpenByDialog(Panel3);

  window.Toolbar1.ClickItem(ToolButton::Print);

  EXPECT_EQ(platform.printer.nameOfUnasked, "panel3");
}

TEST_F(Printing, FromTheToolBarRecordsTheFileInTheHistory) {
  OpenByDialog(Panel3);
  platform.printer.file = "/designs/panel3 (2).pdf";

  window.Toolbar1.ClickItem(ToolButton::Print);

  EXPECT_THAT(program.session.history.Text, testing::EndsWith("Report printed to /designs/panel3 (2).pdf\r\n"));
}

TEST_F(Printing, SuggestsTheProjectsNameForTheFile) {
  OpenByDialog(Panel3);

  Choose(FileItem::Print);

  EXPECT_EQ(platform.printer.proposedName, "panel3");
  EXPECT_THAT(program.session.history.Text, testing::Not(HasSubstr("printed")));
}

TEST_F(Printing, FromTheToolBarAsksFirstIfTheProjectIsEmpty) {
  platform.boxes.answers = {BoxResult::No};

  window.Toolbar1.ClickItem(ToolButton::Print);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Current file is empty. Continue?"));
  EXPECT_THAT(platform.printer.pages, IsEmpty());
}

TEST_F(Printing, ReportsThatThereIsNoPrinterAndEnds) {
  OpenByDialog(Panel3);
  platform.printer.error = error_number::Printer;
  platform.boxes.answers = {BoxResult::Cancel};

  window.Toolbar1.ClickItem(ToolButton::Print);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Error occurred: Printer error (482)"));
}

TEST_F(Printing, ContinuesAfterAPrinterDialogThatFailed) {
  OpenByDialog(Panel3);
  platform.printer.error = error_number::Printer;
  platform.boxes.answers = {BoxResult::Cancel, BoxResult::Cancel};

  Choose(FileItem::Print);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Error occurred: Printer error (482)", "Error occurred: Printer error (482)"));
}

TEST_F(Printing, OpensThePrinterSetUp) {
  Choose(FileItem::PrinterSetup);

  EXPECT_EQ(platform.printer.setUp, 1);
}

TEST_F(Printing, OnlyRecordsAPrinterSetUpThatIsCancelled) {
  platform.printer.error = error_number::Cancelled;

  Choose(FileItem::PrinterSetup);

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.session.history.Text, "2. Cancel was selected.\r\n");
}

TEST_F(Printing, ShowsThePreviewPageByPage) {
  OpenByDialog(Panel3);
  std::vector<std::string> pages;
  platform.windows.onModal = [&](Form& form) {
    const auto& text = dynamic_cast<TextBox&>(*form.Find("RichTextBox1"));
    pages.push_back(text.Text());
    dynamic_cast<Button&>(*form.Find("Command4")).Press();
    pages.push_back(text.Text());
    EXPECT_FALSE(form.Find("Command4")->Enabled());
  };

  Choose(FileItem::Preview);

  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0], program.session.OutBuf[0]);
  EXPECT_THAT(pages[0], HasSubstr("725"));
  EXPECT_THAT(pages[1], StartsWith("[ORBY CALCULATIONS]\r\n"));
}

TEST_F(Printing, AsksFirstIfThePreviewedProjectIsEmpty) {
  platform.boxes.answers = {BoxResult::No};

  Choose(FileItem::Preview);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Current file is empty. Continue?"));
  EXPECT_EQ(platform.windows.modalForms, 0);
}

}  // namespace
}  // namespace orby::test
