// The window with the calculation sheet.
#include "dialogs/sheet_window.h"

#include "dialogs/parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

struct ASheetWindow : AParametersDialog {
  ASheetWindow() { window.Open(); }

  int RowOf(std::string_view title) const {
    const auto& items = window.lstContents.Items();
    const auto found =
        std::ranges::find_if(items, [&](const ComboItem& item) { return item.text.find(title) != std::string::npos; });
    return static_cast<int>(found - items.begin());
  }
  std::string FoundText() const {
    const auto& marked = window.picPages.Marked();
    return marked ? window.picPages.Pages().at(marked->Page).Labels.at(marked->Label).Text : "";
  }

  SheetWindow window{program, SheetOfProject(program)};
};

TEST_F(ASheetWindow, ShowsItsFirstPageWithItsNumber) {
  EXPECT_EQ(window.lblPage.Caption(), "Page 1 of " + std::to_string(window.picPages.Pages().size()));
  EXPECT_THAT(window.picPages.Words(), StartsWith("Calculation sheet "));
}

TEST_F(ASheetWindow, GoesToTheSectionThatIsChosen) {
  window.lstContents.ClickItem(RowOf("Suggested PSUP"));

  EXPECT_THAT(window.picPages.Words(), HasSubstr("Suggested PSUP"));
  EXPECT_EQ(window.lblPage.Caption(), "Page " + std::to_string(window.picPages.Place().Page + 1) + " of " +
                                          std::to_string(window.picPages.Pages().size()));
}

TEST_F(ASheetWindow, GoesToTheSameSectionAgainAfterScrolling) {
  window.lstContents.ClickItem(RowOf("Suggested PSUP"));
  const int moves = window.picPages.Moves();
  window.picPages.TellPage(0);
  EXPECT_THAT(window.lblPage.Caption(), StartsWith("Page 1 of"));

  window.lstContents.ClickItem(RowOf("Suggested PSUP"));

  EXPECT_GT(window.picPages.Moves(), moves);
}

TEST_F(ASheetWindow, FindsATextFromPlaceToPlaceAndAroundTheEnd) {
  window.txtFind.SetText("sHa-256");
  window.cmdFind.Press();
  EXPECT_EQ(FoundText(), "SHA-256");
  const auto first = window.picPages.Marked();

  window.cmdFind.Press();
  EXPECT_EQ(window.picPages.Marked(), first) << "the only place";
  EXPECT_EQ(window.lblFound.Caption(), "");

  window.txtFind.SetText("Entry Width");
  window.cmdFind.Press();
  const auto one = window.picPages.Marked();
  window.cmdFind.Press();
  EXPECT_NE(window.picPages.Marked(), one);
  EXPECT_THAT(FoundText(), HasSubstr("ntry width"));
}

TEST_F(ASheetWindow, SaysSoIfATextIsNowhere) {
  window.txtFind.SetText("no such text");
  window.cmdFind.Press();

  EXPECT_EQ(window.lblFound.Caption(), "Not found");
  EXPECT_FALSE(window.picPages.Marked());

  window.txtFind.SetText("");
  EXPECT_EQ(window.lblFound.Caption(), "");
  window.cmdFind.Press();
  EXPECT_EQ(window.FocusRequest(), &window.txtFind);
}

TEST_F(ASheetWindow, SavesTheFormatThatTheNameEndsIn) {
  const auto saved = [&](const std::string& name) {
    platform.fileDialogs.answers.push_back(name);
    window.cmdSaveAs.Press();
    return platform.files.files[name].substr(0, 20);
  };

  EXPECT_THAT(saved("/home/user/sheet.html"), StartsWith("<!DOCTYPE html>"));
  EXPECT_THAT(saved("/home/user/sheet.md"), StartsWith("# "));
  EXPECT_THAT(saved("/home/user/sheet.txt"), StartsWith("Calculation sheet"));
  EXPECT_THAT(saved("/home/user/sheet.json"), StartsWith("{\n"));
}

TEST_F(ASheetWindow, CopiesItsText) {
  window.cmdCopy.Press();

  EXPECT_THAT(platform.clipboard.text, StartsWith("Calculation sheet"));
}

TEST_F(ASheetWindow, PrintsAllItsPages) {
  window.cmdPrint.Press();

  EXPECT_EQ(platform.printer.scenes, window.picPages.Pages());
}

TEST_F(ASheetWindow, PrintsNothingWhenThePrinterIsNotChosen) {
  platform.printer.error = error_number::Cancelled;
  window.cmdPrint.Press();

  EXPECT_THAT(platform.printer.scenes, SizeIs(0));
}

}  // namespace
}  // namespace orby::test
