// The window with the signed report of the project.
#include "dialogs/signed_report_window.h"

#include "dialogs/parameters_fixture.h"
#include "dialogs/project_sheet.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

struct ASignedReportWindow : AParametersDialog {
  ASignedReportWindow() {
    program.project.CurrentFile = "/home/user/panel 3.ORB";
    window.Open();
  }

  std::string Words(const SignedReportWindow& shown) const {
    std::string words;
    for (const Scene& page : shown.picPages.Pages()) {
      for (const SceneLabel& label : page.Labels) words += label.Text + '\n';
    }
    return words;
  }
  std::string Words() const { return Words(window); }

  SignedReportWindow window{program};
};

TEST_F(ASignedReportWindow, ShowsItsPagesTwice) {
  EXPECT_THAT(window.picPages.Pages(), Not(SizeIs(0)));
  EXPECT_EQ(window.picSmall.Pages(), window.picPages.Pages());
  EXPECT_EQ(window.lblPage.Caption(), "Page 1 of " + std::to_string(window.picPages.Pages().size()));
}

TEST_F(ASignedReportWindow, FollowsTheTextsOfTheTitleBlock) {
  window.txtCompany.SetText("Brannock Coal");
  window.txtMine.SetText("Cinder Hollow");
  window.txtSection.SetText("3 East");
  window.txtAuthor.SetText("M. Delacroix");
  window.txtChecker.SetText("T. Okonjo");
  window.txtRevision.SetText("C2");
  window.txtRemarks.SetText("Probe holes.");

  EXPECT_THAT(Words(), AllOf(HasSubstr("\nBrannock Coal\n"), HasSubstr("\nCinder Hollow\n"), HasSubstr("\n3 East\n"),
                             HasSubstr("\nM. Delacroix\n"), HasSubstr("\nT. Okonjo\n"), HasSubstr(", revision C2, "),
                             HasSubstr("\nProbe holes.\n")));
  EXPECT_EQ(window.picSmall.Pages(), window.picPages.Pages());
}

TEST_F(ASignedReportWindow, StaysOnThePageOnViewWhileTheUserTypes) {
  window.picPages.TellPage(2);
  const int moves = window.picPages.Moves();

  window.txtRemarks.SetText("Probe holes every second break.");

  EXPECT_EQ(window.picPages.PageOnView(), 2U);
  EXPECT_EQ(window.picPages.Moves(), moves);
}

TEST_F(ASignedReportWindow, HasThePartsThatAreChosen) {
  EXPECT_THAT(Words(), AllOf(HasSubstr("  Drawings\n"), HasSubstr("  Cost of bolting\n"), Not(HasSubstr("Appendix"))));

  window.chkDrawings.SetValue(0);
  window.chkCost.SetValue(0);
  window.chkSheet.SetValue(1);
  window.chkCurves[1].SetValue(1);

  EXPECT_THAT(Words(),
              AllOf(Not(HasSubstr("  Drawings\n")), HasSubstr("Appendix: calculation sheet\n"),
                    HasSubstr("  Curves\nSuggested PSUP vs Depth of Cover\n"), HasSubstr("Depth of Cover (ft)\n")));
}

TEST_F(ASignedReportWindow, GoesToThePageThatIsClicked) {
  window.picSmall.Choose(3);

  EXPECT_EQ(window.picPages.Place(), (PagePlace{3, 0}));
  EXPECT_THAT(window.lblPage.Caption(), StartsWith("Page 4 of "));

  window.picSmall.Choose(1000);
  EXPECT_EQ(window.picPages.Place(), (PagePlace{3, 0})) << "there is no such page";
}

TEST_F(ASignedReportWindow, MarksThePageThatTheUserScrollsTo) {
  window.picPages.TellPage(2);

  EXPECT_EQ(window.picSmall.PageOnView(), 2U);
}

TEST_F(ASignedReportWindow, HasTheTextsAgainTheNextTime) {
  window.txtCompany.SetText("Brannock Coal");
  window.txtRemarks.SetText("Probe holes.");
  window.chkCurves[4].SetValue(1);
  window.Close();

  SignedReportWindow next(program);
  next.Open();

  EXPECT_EQ(next.txtCompany.Text(), "Brannock Coal");
  EXPECT_EQ(next.txtRemarks.Text(), "Probe holes.");
  EXPECT_TRUE(next.chkCurves[4].Checked());
  EXPECT_THAT(platform.files.files[program.session.IniFilePath], HasSubstr("Company=\"Brannock Coal\""));
}

TEST_F(ASignedReportWindow, ShowsNoRemarksOfAnotherProject) {
  window.txtRemarks.SetText("Probe holes.");
  window.Close();
  program.project.CurrentFile = "/home/user/other.ORB";

  SignedReportWindow next(program);
  next.Open();

  EXPECT_EQ(next.txtRemarks.Text(), "");
  EXPECT_THAT(Words(next), Not(HasSubstr("Probe holes")));
}

TEST_F(ASignedReportWindow, TakesThePaperOfTheLocaleUntilTheUserChooses) {
  EXPECT_EQ(window.picPages.Pages().front().Width, 595);
  window.Close();
  platform.locale.usesLetter = true;

  SignedReportWindow next(program);
  next.Open();
  EXPECT_EQ(next.picPages.Pages().front().Width, 612);
  EXPECT_EQ(program.session.signedReport.Paper, PaperChoice::ByLocale);

  next.optPaper.SetValue(0, true);
  EXPECT_EQ(next.picPages.Pages().front().Width, 595);
  EXPECT_EQ(PaperOf(program).Size.Width, 595);
  EXPECT_THAT(platform.files.files[program.session.IniFilePath], HasSubstr("Paper=A4"));
}

TEST_F(ASignedReportWindow, PrintsAllItsPages) {
  window.cmdPrint.Press();

  EXPECT_EQ(platform.printer.scenes, window.picPages.Pages());
  EXPECT_THAT(program.session.history.Text, HasSubstr("Printing Signed Report"));
}

TEST_F(ASignedReportWindow, PrintsNothingWhenThePrinterIsNotChosen) {
  platform.printer.error = error_number::Cancelled;
  window.cmdPrint.Press();

  EXPECT_THAT(platform.printer.scenes, SizeIs(0));
}

TEST_F(ASignedReportWindow, ChangesNothingOfTheProject) {
  const Design before = program.project.WorkParms;
  const bool wasSaved = program.project.FileSaved;

  window.txtCompany.SetText("Brannock Coal");
  window.chkSheet.SetValue(1);
  window.Close();

  EXPECT_EQ(program.project.WorkParms, before);
  EXPECT_EQ(program.project.FileSaved, wasSaved);
}

TEST_F(ASignedReportWindow, SaysThatACurveIsTrimmed) {
  window.Close();
  program.project.WorkParms.Place.CMRR = 45;
  program.project.WorkParms.Place.DepthofCover = 400;
  SignedReportWindow next(program);
  next.Open();

  next.chkCurves[0].SetValue(1);

  EXPECT_THAT(Words(next), HasSubstr("\nSuggested PSUP vs CMRR: Upper limit for CMRR trimmed to 51\n"));
}

TEST_F(ASignedReportWindow, SaysWhyACurveCannotBeComputed) {
  window.Close();
  program.project.WorkParms.Place.CMRR = 70;  // above the limit of the curve, so that nothing is left of it
  SignedReportWindow next(program);
  next.Open();

  next.chkCurves[0].SetValue(1);

  EXPECT_THAT(Words(next), HasSubstr("\nSuggested PSUP vs CMRR\nThis curve cannot be computed for this design: "));
}

}  // namespace
}  // namespace orby::test
