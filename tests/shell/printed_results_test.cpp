// Printing from the main window gives the results of the project, whatever was shown before.

#include "dialogs/cost_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// The suggested PSUP of the project (725 ft), of another design (900 ft), and of a new design (400 ft).
const std::string Psup725 = "Suggested PSUP for this location..........................10.3\r\n";
const std::string Psup900 = "Suggested PSUP for this location..........................11.2\r\n";
const std::string Psup400 = "Suggested PSUP for this location..........................7.6\r\n";

class PrintedResults : public MainWindowTest {
 protected:
  PrintedResults() { OpenByDialog(Panel3); }

  // Prints from the File menu and returns all sheets.
  std::string Printed() {
    platform.printer.pages.clear();
    window.mnuFileItem.ClickItem(FileItem::Print);
    std::string text;
    for (const std::string& page : platform.printer.pages) text += page;
    return text;
  }

  // Opens the parameters dialog and plays the user in it.
  void InParameters(const std::function<void(ParametersDialog&)>& user) {
    platform.windows.onModal = [&](Form& form) {
      if (auto* dialog = dynamic_cast<ParametersDialog*>(&form)) user(*dialog);
    };
    window.mnuEditItem.ClickItem(EditItem::Parameters);
  }

  // Presses Results in the unchanged parameters dialog and returns the results page.
  std::string PageOfResults() {
    InParameters([](ParametersDialog& dialog) { dialog.cmdresults.Press(); });
    return program.session.OutBuf[1];
  }
};

TEST_F(PrintedResults, AreThoseOfTheProjectEvenIfNeverShown) {
  const std::string text = Printed();

  EXPECT_THAT(text, HasSubstr("Depth of Cover............................................725 (ft)\r\n"));
  EXPECT_THAT(text, HasSubstr(Psup725));
  EXPECT_THAT(text, HasSubstr("Cable Bolt System Stability Factor........................1.06\r\n"));
}

TEST_F(PrintedResults, AreTheSameAsInTheResultsWindow) {
  const std::string shown = PageOfResults();

  Printed();

  EXPECT_THAT(shown, HasSubstr(Psup725));
  EXPECT_EQ(program.session.OutBuf[1], shown);
}

// A design that no dialog has accepted yet has no row of the bolt table, so the first row is shown.
TEST_F(PrintedResults, FollowTheInputsFromWhichTheyWereComputed) {
  PageOfResults();
  const std::string inputs = program.session.OutBuf[0];

  Printed();

  EXPECT_THAT(inputs, HasSubstr("Roof Bolt Yield Capacity..................................8.4 (tons)\r\n"));
  EXPECT_EQ(program.session.OutBuf[0], inputs);
  EXPECT_EQ(program.project.WorkParms.Primary.TableDiameter, 0);
}

TEST_F(PrintedResults, ExcludeCancelledEdits) {
  InParameters([](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("900");
    dialog.cmdresults.Press();
    dialog.Command1.Press();
  });
  ASSERT_THAT(program.session.OutBuf[1], HasSubstr(Psup900));

  const std::string text = Printed();

  EXPECT_THAT(text, HasSubstr(Psup725));
  EXPECT_THAT(text, Not(HasSubstr(Psup900)));
}

TEST_F(PrintedResults, IncludeAcceptedEdits) {
  InParameters([](ParametersDialog& dialog) {
    dialog.cmdresults.Press();
    dialog.txtDepthofCover.SetText("900");
    dialog.Command2.Press();
  });

  EXPECT_THAT(Printed(), HasSubstr(Psup900));
}

// The intersections' rock load does not follow the entry width, so Results shows the one for the old width. The print
// agrees with what the user saw and accepted.
TEST_F(PrintedResults, AreTheSameAsInTheResultsWindowAfterTheDesignIsAccepted) {
  std::string shown;
  InParameters([&](ParametersDialog& dialog) {
    dialog.InterCableControls.Diam.SetText("0.7");
    dialog.txtEntryWidth.SetText("19");
    dialog.cmdresults.Press();
    shown = program.session.OutBuf[1];
    dialog.Command2.Press();
  });

  Printed();

  EXPECT_THAT(shown, Not(HasSubstr("Cable Bolt System Stability Factor........................1.44\r\n")));
  EXPECT_EQ(program.session.OutBuf[1], shown);
}

TEST_F(PrintedResults, AreTheSameAsInTheResultsWindowAfterTheCostTableWasShown) {
  std::string shown;
  InParameters([&](ParametersDialog& dialog) {
    dialog.InterCableControls.Diam.SetText("0.7");
    dialog.cmdresults.Press();
    shown = program.session.OutBuf[1];
    dialog.Command2.Press();
  });
  platform.windows.onModal = [](Form& form) {
    if (auto* dialog = dynamic_cast<CostDialog*>(&form)) dialog->cmdresults.Press();
  };
  window.mnuEditItem.ClickItem(EditItem::Cost);
  ASSERT_THAT(program.session.OutBuf[1], HasSubstr("TOTAL COST"));

  Printed();

  EXPECT_EQ(program.session.OutBuf[1], shown);
}

TEST_F(PrintedResults, AreNotThoseOfThePreviousProject) {
  PageOfResults();

  window.mnuFileItem.ClickItem(FileItem::New);

  EXPECT_THAT(Printed(), IsEmpty());  // the question about an empty project is answered No
  platform.boxes.answers = {BoxResult::Yes};
  EXPECT_THAT(Printed(), HasSubstr(Psup400));
}

TEST_F(PrintedResults, ReplaceTheCostTable) {
  platform.windows.onModal = [](Form& form) {
    if (auto* dialog = dynamic_cast<CostDialog*>(&form)) dialog->cmdresults.Press();
  };
  window.mnuEditItem.ClickItem(EditItem::Cost);
  ASSERT_THAT(program.session.OutBuf[1], StartsWith("[TULK COST CALCULATIONS]"));

  const std::string text = Printed();

  EXPECT_THAT(text, HasSubstr(Psup725));
  EXPECT_THAT(text, Not(HasSubstr("TOTAL COST")));
}

TEST_F(PrintedResults, FollowTheBasisOfTheBoltStrength) {
  PageOfResults();
  program.project.WorkParms.Basis = StrengthBasis::Ultimate;

  EXPECT_THAT(Printed(), HasSubstr("Actual Roof Bolt Ultimate Capacity"));
}

TEST_F(PrintedResults, FollowTheUnits) {
  PageOfResults();
  program.project.WorkParms.Units = Metric;

  EXPECT_THAT(Printed(), HasSubstr("Actual Sum of Diagonals...................................60.0 (m)\r\n"));
}

TEST_F(PrintedResults, FollowTheListOfCables) {
  ASSERT_THAT(PageOfResults(), HasSubstr("Cable Bolt System Support Capacity........................10.6 (tons/ft)"));
  for (Single& capacity : program.session.catalogs.DefaultCableCapArrayENG.Values) capacity *= 2;

  EXPECT_THAT(Printed(), HasSubstr("Cable Bolt System Support Capacity........................21.1 (tons/ft)"));
}

TEST_F(PrintedResults, FollowTheTableOfBolts) {
  program.project.WorkParms.Units = Metric;
  program.project.WorkParms.Primary.TableRow = 1;
  const std::string before = PageOfResults();
  program.project.UseAUSStandardTable = 1;

  Printed();

  EXPECT_THAT(program.session.OutBuf[1], Not(testing::Eq(before)));
}

TEST_F(PrintedResults, SayInALineThatTheyCannotBeComputed) {
  PageOfResults();
  program.project.WorkParms.Primary.RowSpacing = 0;

  const std::string text = Printed();

  EXPECT_THAT(text, HasSubstr("Roof Bolt Row Spacing.....................................0 (ft)\r\n"));
  EXPECT_EQ(program.session.OutBuf[1], "[ORBY CALCULATIONS]\r\nThe results cannot be computed from these inputs.\r\n");
  EXPECT_THAT(text, HasSubstr(program.session.OutBuf[1]));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(PrintedResults, SayInALineThatTheDesignCannotBeShown) {
  program.project.WorkParms.Primary.Options = BoltSource{7};  // not a valid option

  EXPECT_THAT(Printed(), HasSubstr("The results cannot be computed from these inputs.\r\n"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(PrintedResults, ListCablesByCapacityEvenIfAMetricProjectCannotBeShown) {
  Design& design = program.project.WorkParms;
  design.Units = Metric;
  design.Entries.Cable.CapMode = design.Intersections.Cable.CapMode = CapacityMode::ByDiameter;
  design.Primary.Options = BoltSource{7};  // not a valid option

  const std::string text = Printed();

  EXPECT_THAT(text, HasSubstr("Cable Bolt Capacity"));
  EXPECT_THAT(text, Not(HasSubstr("Cable Bolt Diameter")));
}

TEST_F(PrintedResults, LeaveTheProjectUnchanged) {
  program.project.WorkParms.Entries.Cable.SupportCap = 3;  // from the file; the dialog computes another one
  program.windows.WorkParmsCopy.Place.DepthofCover = 900;
  program.windows.estimator.EstimatorRegion = 4;
  program.windows.ReportCaller = InputDialog::Cost;
  program.session.history.Text.clear();

  Printed();

  EXPECT_EQ(program.project.WorkParms.Entries.Cable.SupportCap, 3);
  EXPECT_EQ(program.windows.WorkParmsCopy.Place.DepthofCover, 900);
  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 4);
  EXPECT_EQ(program.windows.ReportCaller, InputDialog::Cost);
  EXPECT_FALSE(program.windows.DialogOpen);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(program.session.history.Text, "");
}

TEST_F(PrintedResults, AreShownInThePreview) {
  InParameters([](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("900");
    dialog.cmdresults.Press();
    dialog.Command1.Press();
  });
  std::string second;
  platform.windows.onModal = [&](Form& form) {
    dynamic_cast<Button&>(*form.Find("Command4")).Press();
    second = dynamic_cast<TextBox&>(*form.Find("RichTextBox1")).Text();
  };

  window.mnuFileItem.ClickItem(FileItem::Preview);

  EXPECT_THAT(second, HasSubstr(Psup725));
}

TEST_F(PrintedResults, AreTheSameFromTheToolBar) {
  InParameters([](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("900");
    dialog.cmdresults.Press();
    dialog.Command1.Press();
  });

  window.Toolbar1.ClickItem(ToolButton::Print);

  EXPECT_THAT(platform.printer.pages.at(1), HasSubstr(Psup725));
}

}  // namespace
}  // namespace orby::test
