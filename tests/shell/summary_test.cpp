// The summary of the project in the main window, and what the window offers without a project.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "dialogs/convert_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/results_window.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::vector<std::string> LinesOf(const List& list) {
  std::vector<std::string> lines;
  for (const ComboItem& item : list.Items()) lines.push_back(item.text);
  return lines;
}

// Returns each line with its mark.
std::vector<std::string> MarkedLinesOf(const List& list) {
  std::vector<std::string> lines;
  for (const ComboItem& item : list.Items()) lines.push_back(std::string(item.mark) + " " + item.text);
  return lines;
}

class Summary : public MainWindowTest {
 protected:
  Summary() { program.session.settings.DataPath = "/data/"; }

  SummaryPane& Opened() {
    window.Summary().Open();
    return window.Summary();
  }
  std::vector<std::string> OnView() {
    std::vector<std::string> names;
    for (const Control* control : window.Summary().Controls()) {
      if (control->Visible()) names.emplace_back(control->Name());
    }
    return names;
  }
  // Plays the user in the next parameters dialog.
  void InParameters(std::function<void(ParametersDialog&)> user) {
    platform.windows.onModal = [user = std::move(user)](Form& form) {
      if (auto* dialog = dynamic_cast<ParametersDialog*>(&form)) user(*dialog);
    };
  }
  void AddExample(const std::string& name, const std::string& title) {
    Program other(platform.AsPlatform());
    StartApart(other, nullptr);
    other.project.ProjectTitle = title;
    platform.files.files["/program/examples/" + name] = ProjectFileBytes(other.project);
  }
};

// ---- without a project ----------------------------------------------------------------------------------------------

TEST_F(Summary, OffersABeginningAsLongAsNothingIsOpenOrEntered) {
  Opened();

  EXPECT_THAT(OnView(), ElementsAre("lblBegin", "cmdNew", "cmdOpen"));
}

TEST_F(Summary, ReadsAndComputesNothingBeforeItOpens) {
  AddExample("weak-roof.ORB", "Cinder Hollow");
  window.mnuFileItem.ClickItem(FileItem::New);
  const bool isEmpty = window.Summary().Examples().empty();

  Opened();

  EXPECT_TRUE(isEmpty);
  EXPECT_FALSE(window.Summary().Examples().empty());
}

TEST_F(Summary, OffersTheExamplesWithTheirTitles) {
  AddExample("weak-roof.ORB", "Cinder Hollow, fault zone");
  AddExample("belt-entry.ORB", "");
  platform.files.files["/program/examples/notes.txt"] = "no project";

  EXPECT_THAT(LinesOf(Opened().lstExamples), ElementsAre("belt-entry", "weak-roof: Cinder Hollow, fault zone"));
}

TEST_F(Summary, DrawsEachExample) {
  AddExample("weak-roof.ORB", "Cinder Hollow, fault zone");

  const auto& examples = Opened().Examples();

  ASSERT_THAT(examples, testing::SizeIs(1));
  const auto& outlines = examples[0].Picture.Outlines;
  EXPECT_TRUE(std::ranges::any_of(outlines, [](const auto& outline) { return outline.Line.Colour == Ink::Bolt; }));
  EXPECT_THAT(examples[0].Picture.Labels, IsEmpty());
}

TEST_F(Summary, LeavesOutAnExampleThatCannotBeRead) {
  AddExample("weak-roof.ORB", "Cinder Hollow");
  const std::string whole = platform.files.files["/program/examples/weak-roof.ORB"];
  platform.files.files["/program/examples/cut.ORB"] = whole.substr(0, whole.size() / 2);
  platform.files.files["/program/examples/empty.ORB"] = "";
  platform.files.files["/program/examples/other.ORB"] = "no project";

  EXPECT_THAT(LinesOf(Opened().lstExamples), ElementsAre("weak-roof: Cinder Hollow"));
}

TEST_F(Summary, OpensTheUsersCopyOfAnExample) {
  AddExample("weak-roof.ORB", "Cinder Hollow");
  platform.files.files["/data/weak-roof.ORB"] = platform.files.files["/program/examples/weak-roof.ORB"];

  Opened().lstExamples.ClickItem(0);

  EXPECT_EQ(program.project.CurrentFile, "/data/weak-roof.ORB");
  EXPECT_EQ(window.Summary().lblProject.Caption(), "Cinder Hollow");
}

TEST_F(Summary, OpensTheProgramsOwnExampleIfThereIsNoCopy) {
  AddExample("weak-roof.ORB", "Cinder Hollow");

  Opened().lstExamples.ClickItem(0);

  EXPECT_EQ(program.project.CurrentFile, "/program/examples/weak-roof.ORB");
}

TEST_F(Summary, OffersTheRecentFilesAsTheMenuDoes) {
  OpenByDialog(Panel3);
  OpenByDialog(Panel4);
  window.mnuFileItem.ClickItem(FileItem::New);

  EXPECT_THAT(LinesOf(Opened().lstRecent), ElementsAre(Panel4, Panel3));
}

TEST_F(Summary, OpensARecentFile) {
  OpenByDialog(Panel3);
  OpenByDialog(Panel4);
  window.mnuFileItem.ClickItem(FileItem::New);

  Opened().lstRecent.ClickItem(1);

  EXPECT_EQ(program.project.CurrentFile, Panel3);
}

TEST_F(Summary, BeginsAndOpensAsTheFileMenuDoes) {
  program.session.options.ShowInputScreenOnLoad = 1;
  Opened().cmdNew.Press();
  const int dialogs = platform.windows.modalForms;
  platform.fileDialogs.answers.push_back(Panel3);
  window.Summary().cmdOpen.Press();

  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(program.project.CurrentFile, Panel3);
}

TEST_F(Summary, OffersABeginningAgainAfterAFileIsRefused) {
  OpenByDialog(Panel3);
  Opened();
  platform.files.files["/designs/other.orb"] = "no project";

  OpenByDialog("/designs/other.orb");

  EXPECT_THAT(OnView(), Contains("cmdNew"));
  EXPECT_THAT(OnView(), Not(Contains("cmdParameters")));
}

// ---- the open project -----------------------------------------------------------------------------------------------

TEST_F(Summary, ShowsTheOpenProject) {
  OpenByDialog(Panel3);

  const SummaryPane& summary = Opened();

  EXPECT_THAT(OnView(), ElementsAre("lblProject", "lblFile", "lblUnits", "cmdParameters", "cmdResults", "cmdStudy",
                                    "picDesign", "lblVerdicts", "lstVerdicts"));
  EXPECT_EQ(summary.lblProject.Caption(), "panel3.orb");
  EXPECT_EQ(summary.lblFile.Caption(), "File: /designs/panel3.orb");
  EXPECT_EQ(summary.lblUnits.Caption(), "Units: English");
}

TEST_F(Summary, ShowsTheTitleThatADescriptionGives) {
  OpenByDialog(Panel3);
  Opened();
  platform.windows.onModal = [](Form& form) {
    auto& dialog = dynamic_cast<DescriptionDialog&>(form);
    dialog.Text1.SetText("North mains");
    dialog.Command2.Press();
  };

  window.mnuEditItem.ClickItem(EditItem::Description);

  EXPECT_EQ(window.Summary().lblProject.Caption(), "North mains");
  EXPECT_EQ(window.Summary().lblFile.Caption(), "File: /designs/panel3.orb*");
}

TEST_F(Summary, FollowsTheParametersThatAreAccepted) {
  OpenByDialog(Panel3);
  const std::vector<std::string> before = LinesOf(Opened().lstVerdicts);
  InParameters([](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("1200");
    dialog.Command2.Press();
  });

  window.Summary().cmdParameters.Press();

  EXPECT_THAT(before, Contains(HasSubstr("of the suggested 10.3")));
  EXPECT_THAT(LinesOf(window.Summary().lstVerdicts), Not(Contains(HasSubstr("of the suggested 10.3"))));
}

TEST_F(Summary, IgnoresCancelledParameters) {
  OpenByDialog(Panel3);
  const std::vector<std::string> before = MarkedLinesOf(Opened().lstVerdicts);
  InParameters([](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("1200");
    dialog.Close();
  });

  window.Summary().cmdParameters.Press();

  EXPECT_THAT(MarkedLinesOf(window.Summary().lstVerdicts), ElementsAreArray(before));
}

TEST_F(Summary, FollowsAConversion) {
  OpenByDialog(Panel3);
  Opened();
  platform.windows.onModal = [](Form& form) { dynamic_cast<ConvertDialog&>(form).Command2.Press(); };

  window.mnuUtilItem.ClickItem(UtilityItem::FileConversion);

  EXPECT_EQ(window.Summary().lblUnits.Caption(), "Units: Metric");
  EXPECT_EQ(window.Summary().lblFile.Caption(), "File: Metric_panel3.orb*");
}

TEST_F(Summary, NamesTheAustralianTable) {
  OpenByDialog(Panel3);
  program.project.WorkParms.Units = Metric;
  program.project.UseAUSStandardTable = 1;

  EXPECT_EQ(Opened().lblUnits.Caption(), "Units: Metric, AUS standard table");
}

TEST_F(Summary, SaysThatADamagedProjectCannotBeShown) {
  OpenByDialog(Panel3);
  program.project.WorkParms.Primary.Options = static_cast<BoltSource>(7);

  const SummaryPane& summary = Opened();

  EXPECT_EQ(summary.lblVerdicts.Caption(), "The parameters of this project cannot be shown.");
  EXPECT_FALSE(summary.picDesign.Visible());
  EXPECT_FALSE(summary.lstVerdicts.Visible());
}

TEST_F(Summary, SaysSoIfNothingIsAnalysed) {
  OpenByDialog(Panel3);
  program.project.WorkParms.Primary.Analysed = 0;
  program.project.WorkParms.Entries.Analysed = 0;
  program.project.WorkParms.Intersections.Analysed = 0;

  const SummaryPane& summary = Opened();

  EXPECT_EQ(summary.lblVerdicts.Caption(), "&Judgements: Nothing is analysed");
  EXPECT_FALSE(summary.lstVerdicts.Visible());
}

TEST_F(Summary, ClosesWithTheWindow) {
  OpenByDialog(Panel3);
  Opened();

  window.Close();

  EXPECT_FALSE(window.Summary().IsOpen());
}

// ---- its results ----------------------------------------------------------------------------------------------------

TEST_F(Summary, ShowsTheResultsOfTheProjectAsParametersDoes) {
  OpenByDialog(Panel3);
  InParameters([](ParametersDialog& dialog) { dialog.cmdresults.Press(); });
  window.mnuEditItem.ClickItem(EditItem::Parameters);
  const auto pages = program.session.OutBuf;
  const RoofSupport previewed = program.windows.WorkParmsCopy.Support();
  program.session.OutBuf = {};
  program.session.LastResults.reset();
  program.windows.WorkParmsCopy = {};
  std::vector<std::string> shown;
  bool mainOnView = true;
  platform.windows.onModal = [&](Form& form) {
    shown.emplace_back(form.Name());
    mainOnView = platform.windows.mainWindowShown;
  };

  Opened().cmdResults.Press();

  EXPECT_THAT(shown, ElementsAre("frmResTxtPlt"));
  EXPECT_FALSE(mainOnView);
  EXPECT_TRUE(platform.windows.mainWindowShown);
  EXPECT_EQ(program.session.OutBuf[1], pages[1]);
  EXPECT_EQ(program.session.OutBuf[0], pages[0]);
  EXPECT_TRUE(program.windows.WorkParmsCopy.Support() == previewed);
}

TEST_F(Summary, GoesToTheFieldThatDecidesTheJudgementClicked) {
  OpenByDialog(Panel3);
  const List& judgements = Opened().lstVerdicts;
  const auto length = std::ranges::find_if(
      judgements.Items(), [](const ComboItem& item) { return item.text.find("Bolt length") != std::string::npos; });
  ASSERT_NE(length, judgements.Items().end());
  int opened = 0;
  InParameters([&](ParametersDialog& dialog) {
    ++opened;
    platform.clock.Pass();
    EXPECT_EQ(dialog.FocusRequest(), &dialog.txtBoltLengthPrimary);
    EXPECT_EQ(dialog.lstVerdicts.Items()[static_cast<std::size_t>(dialog.lstVerdicts.ListIndex())].text, length->text);
  });

  window.Summary().lstVerdicts.ClickItem(static_cast<int>(length - judgements.Items().begin()));

  EXPECT_EQ(opened, 1);
}

TEST_F(Summary, StudiesWhatWouldHoldOverTheParameters) {
  OpenByDialog(Panel3);
  std::vector<std::string> shown;
  platform.windows.onModal = [&](Form& form) {
    shown.emplace_back(form.Name());
    if (form.Name() == "frmPENVParm") platform.clock.Pass();
  };

  Opened().cmdStudy.Press();

  EXPECT_THAT(shown, ElementsAre("frmPENVParm", "frmWouldHold"));
}

TEST_F(Summary, LetsTheInputOfItsResultsBeChanged) {
  OpenByDialog(Panel3);
  std::vector<std::string> shown;
  platform.windows.onModal = [&](Form& form) {
    shown.emplace_back(form.Name());
    if (auto* results = dynamic_cast<ResultsWindow*>(&form)) results->cmdChangeInput.Press();
  };

  Opened().cmdResults.Press();

  EXPECT_THAT(shown, ElementsAre("frmResTxtPlt", "frmPENVParm"));
  EXPECT_TRUE(platform.windows.mainWindowShown);
}

TEST_F(Summary, ShowsTheInputsOfAProjectThatCannotBeComputed) {
  OpenByDialog(Panel3);
  program.project.WorkParms.Primary.Options = static_cast<BoltSource>(7);

  Opened().cmdResults.Press();

  EXPECT_THAT(program.session.OutBuf[0], HasSubstr("725 (ft)"));
  EXPECT_EQ(platform.windows.modalForms, 1);
}

// ---- the examples of the program ------------------------------------------------------------------------------------

class SummaryOfAnExample : public Summary, public testing::WithParamInterface<std::string> {};

TEST_P(SummaryOfAnExample, JudgesAsTheParametersDialogDoes) {
  std::ifstream file(std::string(EXAMPLES_DIR) + "/" + GetParam() + ".ORB", std::ios::binary);
  platform.files.files[Panel4] = std::string(std::istreambuf_iterator<char>(file), {});
  OpenByDialog(Panel4);
  std::vector<std::string> strip;
  std::string counts;
  InParameters([&](ParametersDialog& dialog) {
    strip = MarkedLinesOf(dialog.lstVerdicts);
    counts = dialog.lblVerdicts.Caption();
  });
  window.mnuEditItem.ClickItem(EditItem::Parameters);

  const SummaryPane& summary = Opened();

  EXPECT_THAT(strip, Not(IsEmpty()));
  // The dialog also says what would be judged after OK.
  const auto shown = MarkedLinesOf(summary.lstVerdicts);
  ASSERT_EQ(shown.size(), strip.size());
  for (std::size_t i = 0; i < strip.size(); ++i) EXPECT_THAT(strip[i], StartsWith(shown[i]));
  EXPECT_EQ(summary.lblVerdicts.Caption(), "&" + counts);
}

INSTANTIATE_TEST_SUITE_P(Of, SummaryOfAnExample,
                         testing::Values("australian-grade-metric", "belt-entry-trusses", "development-entry",
                                         "gateroad-standing-supports", "intersection-secondary-bolts", "weak-roof"),
                         [](const auto& example) {
                           std::string name = example.param;
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

}  // namespace
}  // namespace orby::test
