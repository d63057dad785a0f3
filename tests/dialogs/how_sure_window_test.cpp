// The window "How Sure": its inputs, its settings and their file, the run, and its results.
#include "dialogs/how_sure_window.h"

#include <thread>

#include "dialogs/parameters_fixture.h"
#include "dialogs/study_editing.h"
#include "files/study_file.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

const std::string ProjectPath = "/home/user/panel 3.ORB";
const std::string SettingsPath = "/home/user/panel 3.study.json";

std::vector<std::string> CellsOf(const Grid& grid, int row) {
  std::vector<std::string> cells;
  for (int column = 0; column < grid.Columns(); ++column) cells.push_back(grid.Cell(row, column));
  return cells;
}

std::string AllCells(const Grid& grid) {
  std::string text;
  for (int row = 0; row < grid.Rows(); ++row) {
    for (const std::string& cell : CellsOf(grid, row)) text += cell + "|";
    text += "\n";
  }
  return text;
}

struct AHowSureWindow : AParametersDialog {
  AHowSureWindow() {
    program.project.CurrentFile = ProjectPath;
    platform.files.files[ProjectPath] = "the project";
    Design& design = program.project.WorkParms;
    design.Place.CMRR = 45;
    design.Place.DepthofCover = 600;
    design.Entries.Analysed = 0;
    design.Intersections.Analysed = 0;
  }

  HowSureWindow& Open() {
    window.emplace(program, unsaved);
    window->Open();
    return *window;
  }
  void Leave() {
    window->Close();
    window.reset();
  }
  // Fills the fields of an input, and adds it.
  void AddNormal(std::string_view name, const std::string& mean, const std::string& deviation) {
    window->cmbInput.SetText(std::string(name));
    window->cmbLaw.SetText("normal");
    window->First.Field.SetText(mean);
    window->Second.Field.SetText(deviation);
    window->cmdAdd.Press();
  }
  void AddRatingAndDepth() {
    AddNormal("roof rating", "45", "6");
    AddNormal("depth of cover (ft)", "600", "80");
  }
  // Lets the study run until it ends.
  void RunToEnd() {
    window->cmdRun.Press();
    while (window->cmdStop.Enabled()) {
      platform.clock.Pass();
      std::this_thread::yield();
    }
  }
  std::string LastMessage() const { return platform.boxes.shown.empty() ? "" : platform.boxes.shown.back().text; }
  std::string ChartWords(std::string_view chart) {
    window->cmbChart.SetText(std::string(chart));
    return window->picChart.Words();
  }

  UnsavedStudy unsaved;
  std::optional<HowSureWindow> window;
};

// ---- inputs --------------------------------------------------------------------------------------------------------

TEST_F(AHowSureWindow, BeginsWithoutInputs) {
  Open();

  EXPECT_EQ(window->grdInputs.Rows(), 1);
  EXPECT_FALSE(window->cmdChange.Enabled());
  EXPECT_FALSE(window->cmdRemove.Enabled());
  EXPECT_FALSE(window->cmdSetRank.Enabled());
  EXPECT_EQ(window->lblDone.Caption(), "Press Run to sample the design.");
}

TEST_F(AHowSureWindow, OffersTheNumbersOfTheDesignWithTheirUnits) {
  Open();

  EXPECT_THAT(ItemTexts(window->cmbInput),
              AllOf(Contains("roof rating"), Contains("depth of cover (ft)"), Contains("unit weight (pcf)"),
                    Contains("primary typed bolt grade (ksi)"), Contains("entry truss capacity (tons)"),
                    Not(Contains("labor cost"))));
}

TEST_F(AHowSureWindow, BeginsWithTheNumberOfTheDesign) {
  Open();

  window->cmbInput.SetText("depth of cover (ft)");
  EXPECT_EQ(window->First.Field.Text(), "600");
  EXPECT_EQ(window->Second.Field.Text(), "");

  window->cmbLaw.SetText("triangular");
  EXPECT_EQ(window->First.Field.Text(), "");
  EXPECT_EQ(window->Second.Field.Text(), "600");
}

TEST_F(AHowSureWindow, ShowsTheParametersOfTheDistribution) {
  Open();

  window->cmbLaw.SetText("beta");
  EXPECT_EQ(window->First.Caption.Caption(), "Alpha");
  EXPECT_EQ(window->Fourth.Caption.Caption(), "Greatest");
  EXPECT_TRUE(window->Fourth.Field.Visible());
  EXPECT_FALSE(window->txtValues.Enabled());

  window->cmbLaw.SetText("measured values");
  EXPECT_FALSE(window->First.Field.Visible());
  EXPECT_TRUE(window->txtValues.Enabled());
  EXPECT_TRUE(window->cmdReadFile.Enabled());
}

TEST_F(AHowSureWindow, AddsChangesAndRemovesInputs) {
  Open();

  AddRatingAndDepth();
  EXPECT_THAT(CellsOf(window->grdInputs, 1), ElementsAre("roof rating", "45", "normal", "mean 45, deviation 6", ""));
  EXPECT_THAT(CellsOf(window->grdInputs, 2),
              ElementsAre("depth of cover (ft)", "600", "normal", "mean 600, deviation 80", ""));

  window->grdInputs.ClickRow(1);
  EXPECT_EQ(window->cmbInput.Text(), "roof rating");
  EXPECT_EQ(window->Second.Field.Text(), "6");
  window->cmbLaw.SetText("uniform");
  window->First.Field.SetText("40");
  window->Second.Field.SetText("52.5");
  window->txtHighest.SetText("50");
  window->cmdChange.Press();
  EXPECT_THAT(CellsOf(window->grdInputs, 1),
              ElementsAre("roof rating", "45", "uniform", "least 40, greatest 52.5", "above 50"));

  window->cmdRemove.Press();
  EXPECT_EQ(window->grdInputs.Rows(), 2);
  EXPECT_EQ(window->cmbInput.Text(), "depth of cover (ft)");
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(AHowSureWindow, SaysWhatIsWrongWithAnInput) {
  Open();

  AddNormal("roof rating", "45", "");
  EXPECT_EQ(LastMessage(), "Deviation: type a number.");
  EXPECT_EQ(window->FocusRequest(), &window->Second.Field);

  AddNormal("roof rating", "4x5", "6");
  EXPECT_EQ(LastMessage(), "Mean: \"4x5\" is not a number.");

  AddNormal("roof rating", "45", "-6");
  EXPECT_EQ(LastMessage(), "roof rating: the deviation must be above 0.");

  window->txtLowest.SetText("low");
  AddNormal("roof rating", "45", "6");
  EXPECT_EQ(LastMessage(), "Cut off below: \"low\" is not a number.");
  EXPECT_EQ(window->FocusRequest(), &window->txtLowest);
  window->txtLowest.SetText("");
  EXPECT_EQ(window->grdInputs.Rows(), 1);

  AddNormal("roof rating", "45", "6");
  AddNormal("roof rating", "46", "6");
  EXPECT_THAT(LastMessage(), StartsWith("roof rating: this input is there already."));
  EXPECT_EQ(window->grdInputs.Rows(), 2);
}

TEST_F(AHowSureWindow, TakesMeasuredValuesAsTheyArePasted) {
  Open();
  window->cmbInput.SetText("roof rating");
  window->cmbLaw.SetText("measured values");

  window->txtValues.SetText("CMRR\r\n38\t41; 42\r\n42 45.5\r\n");
  EXPECT_EQ(window->lblRead.Caption(), "5 values, mean 41.7, from 38 to 45.5");
  window->cmdAdd.Press();

  EXPECT_THAT(CellsOf(window->grdInputs, 1),
              ElementsAre("roof rating", "45", "measured values", "5 values, mean 41.7, from 38 to 45.5", ""));
}

TEST_F(AHowSureWindow, RefusesMeasuredValuesThatAreNoNumbers) {
  Open();
  window->cmbInput.SetText("roof rating");
  window->cmbLaw.SetText("measured values");

  window->cmdAdd.Press();
  EXPECT_EQ(LastMessage(), "There are no measured values.");
  window->txtValues.SetText("38 weak 42");
  EXPECT_EQ(window->lblRead.Caption(), "Measured values: \"weak\" is not a number.");
  window->cmdAdd.Press();
  EXPECT_EQ(LastMessage(), "Measured values: \"weak\" is not a number.");
  window->txtValues.SetText("38,5;41,0");
  window->cmdAdd.Press();
  EXPECT_EQ(LastMessage(), "The measured values have commas and semicolons. Write their decimals with a point.");
  EXPECT_EQ(window->grdInputs.Rows(), 1);
}

TEST_F(AHowSureWindow, ReadsMeasuredValuesFromAFile) {
  Open();
  window->cmbInput.SetText("roof rating");
  window->cmbLaw.SetText("measured values");
  platform.files.files["/home/user/ratings.csv"] = "\xEF\xBB\xBFrating,\n38,\n41,\n47.5,\n";
  platform.fileDialogs.answers.push_back("/home/user/ratings.csv");

  window->cmdReadFile.Press();

  EXPECT_EQ(window->txtValues.Text(), "38\r\n41\r\n47.5\r\n");
  EXPECT_EQ(window->lblRead.Caption(), "3 values, mean 42.167, from 38 to 47.5");
}

TEST_F(AHowSureWindow, SaysWhyAFileHasNoMeasuredValues) {
  Open();
  window->cmbLaw.SetText("measured values");
  window->txtValues.SetText("40");
  platform.files.files["/home/user/notes.txt"] = "No numbers\nhere\n";
  platform.fileDialogs.answers.push_back("/home/user/notes.txt");

  window->cmdReadFile.Press();
  EXPECT_EQ(LastMessage(), "/home/user/notes.txt: Measured values: \"here\" is not a number.");

  window->cmdReadFile.Press();
  EXPECT_THAT(platform.boxes.shown, SizeIs(1)) << "the file dialog was cancelled";
  EXPECT_EQ(window->txtValues.Text(), "40");
}

TEST_F(AHowSureWindow, SetsTheRankCorrelationOfTwoInputs) {
  Open();
  AddRatingAndDepth();
  AddNormal("entry width (ft)", "18", "1");

  window->cmbOne.SetText("roof rating");
  window->cmbOther.SetText("depth of cover");
  window->txtRank.SetText("-0.3");
  window->cmdSetRank.Press();

  EXPECT_EQ(AllCells(window->grdRanks), "Input|With|Correlation|\nroof rating|depth of cover|-0.3|\n");

  window->txtRank.SetText("0");
  window->cmdSetRank.Press();
  EXPECT_EQ(window->grdRanks.Rows(), 1);
}

TEST_F(AHowSureWindow, RefusesRankCorrelationsThatCannotBe) {
  Open();
  AddRatingAndDepth();

  window->cmbOther.SetText("roof rating");
  window->txtRank.SetText("0.5");
  window->cmdSetRank.Press();
  EXPECT_EQ(LastMessage(), "Choose two different inputs.");

  window->cmbOther.SetText("depth of cover");
  window->txtRank.SetText("1.5");
  window->cmdSetRank.Press();
  EXPECT_EQ(LastMessage(), "The rank correlation of roof rating with depth of cover must be between -1 and 1.");
  window->txtRank.SetText("");
  window->cmdSetRank.Press();
  EXPECT_EQ(LastMessage(), "Rank correlation: type a number.");
  EXPECT_EQ(window->grdRanks.Rows(), 1);
}

TEST_F(AHowSureWindow, KeepsTheCorrelationsOfTheInputsThatStay) {
  Open();
  AddNormal("entry width (ft)", "18", "1");
  AddRatingAndDepth();
  window->cmbOne.SetText("roof rating");
  window->cmbOther.SetText("depth of cover");
  window->txtRank.SetText("0.4");
  window->cmdSetRank.Press();

  window->grdInputs.ClickRow(1);
  window->cmdRemove.Press();
  EXPECT_EQ(AllCells(window->grdRanks), "Input|With|Correlation|\nroof rating|depth of cover|0.4|\n");

  window->grdInputs.ClickRow(1);
  window->cmbInput.SetText("entry width (ft)");
  window->cmdChange.Press();
  EXPECT_EQ(window->grdRanks.Rows(), 1) << "another input has no correlation yet";
}

// ---- settings ------------------------------------------------------------------------------------------------------

TEST_F(AHowSureWindow, KeepsTheSettingsInAFileBesideTheProject) {
  Open();
  EXPECT_EQ(window->lblKept.Caption(), "The settings are kept in " + SettingsPath + ".");
  AddRatingAndDepth();
  window->cmbScheme.SetText("sobol");
  window->txtSamples.SetText("20000");
  window->txtSeed.SetText("18446744073709551615");
  window->txtBatch.SetText("2000");
  window->txtConfidence.SetText("99");
  window->txtStopWidth.SetText("0.5");
  Leave();

  const LoadedStudy kept = LoadStudy(platform.files, ProjectPath, English, DamagedStudy::Leave);
  ASSERT_TRUE(kept.Stored);
  const Study& study = kept.Stored->Settings;
  EXPECT_THAT(study.Inputs, SizeIs(2));
  EXPECT_EQ(study.Sampling, Scheme::Sobol);
  EXPECT_EQ(study.Samples, 20'000U);
  EXPECT_EQ(study.Seed, 18446744073709551615U);
  EXPECT_EQ(study.BatchSize, 2000U);
  EXPECT_EQ(study.Confidence, 0.99);
  EXPECT_EQ(study.StopWidth, 0.005);

  Open();
  EXPECT_EQ(window->grdInputs.Rows(), 3);
  EXPECT_EQ(window->txtSeed.Text(), "18446744073709551615");
  EXPECT_EQ(window->cmbScheme.Text(), "sobol");
  EXPECT_EQ(window->txtConfidence.Text(), "99");
  EXPECT_EQ(window->txtStopWidth.Text(), "0.5");
}

TEST_F(AHowSureWindow, WritesNoFileWithoutAChange) {
  Open();
  Leave();

  EXPECT_FALSE(platform.files.FindsFile(SettingsPath));
}

TEST_F(AHowSureWindow, KeepsUnknownMembersOfTheFile) {
  platform.files.files[SettingsPath] = R"({"format": 1, "inputs": [], "author": "T. Okonjo"})";
  Open();
  window->txtSeed.SetText("7");
  Leave();

  EXPECT_THAT(platform.files.files[SettingsPath], AllOf(HasSubstr("T. Okonjo"), HasSubstr("\"seed\": 7")));
}

TEST_F(AHowSureWindow, PutsADamagedFileAside) {
  platform.files.files[SettingsPath] = "not a study";
  Open();

  EXPECT_THAT(LastMessage(), AllOf(StartsWith("The study " + SettingsPath + " cannot be used."),
                                   HasSubstr("It is kept in " + SettingsPath + ".kept.")));
  EXPECT_EQ(platform.files.files[SettingsPath + ".kept"], "not a study");
  window->txtSeed.SetText("7");
  Leave();
  EXPECT_TRUE(platform.files.FindsFile(SettingsPath));
}

TEST_F(AHowSureWindow, LeavesTheFileOfALaterVersion) {
  const std::string later = R"({"format": 2, "inputs": []})";
  platform.files.files[SettingsPath] = later;
  Open();

  EXPECT_THAT(LastMessage(), HasSubstr("The settings of this window are not kept"));
  AddRatingAndDepth();
  Leave();
  EXPECT_EQ(platform.files.files[SettingsPath], later);
}

TEST_F(AHowSureWindow, KeepsTheSettingsOfAProjectWithoutAFileUntilTheProgramEnds) {
  program.project.CurrentFile = "Untitled";
  Open();
  EXPECT_THAT(window->lblKept.Caption(), StartsWith("The project has no file yet."));
  AddRatingAndDepth();
  Leave();

  Open();
  EXPECT_EQ(window->grdInputs.Rows(), 3);
  Leave();
  for (const auto& [path, bytes] : platform.files.files) EXPECT_THAT(path, Not(HasSubstr("study.json")));
}

TEST_F(AHowSureWindow, SaysThatTheSettingsCannotBeWritten) {
  Open();
  AddRatingAndDepth();
  platform.files.FailFrom(error_number::PermissionDenied, 0);
  Leave();

  EXPECT_THAT(LastMessage(), HasSubstr("Permission denied"));
}

TEST_F(AHowSureWindow, LeavesAFileThatItCannotRead) {
  platform.files.files[SettingsPath] = R"({"format": 1, "inputs": []})";
  platform.files.Fail(MemoryFiles::Step::Read, error_number::PermissionDenied);
  Open();
  EXPECT_THAT(LastMessage(), HasSubstr("Permission denied"));
  platform.files.Mend();
  AddRatingAndDepth();
  Leave();

  EXPECT_EQ(platform.files.files[SettingsPath], R"({"format": 1, "inputs": []})");
}

TEST_F(AHowSureWindow, DoesNotTakeTheNumbersOfAnUnsavedProjectInOtherUnits) {
  program.project.CurrentFile = "Untitled";
  Open();
  AddRatingAndDepth();
  Leave();
  program.project.WorkParms.Units = Metric;

  Open();
  EXPECT_EQ(window->grdInputs.Rows(), 1);
}

TEST_F(AHowSureWindow, SaysWhatIsWrongWithASetting) {
  Open();
  window->cmdRun.Press();
  EXPECT_EQ(LastMessage(), "No input of the study varies. Add an input on the tab Inputs.");

  AddRatingAndDepth();
  window->txtSeed.SetText("-1");
  window->cmdRun.Press();
  EXPECT_EQ(LastMessage(), "Seed: \"-1\" is not a whole number.");
  EXPECT_EQ(window->tabSure.Tab(), sure_page::Sampling);
  EXPECT_EQ(window->FocusRequest(), &window->txtSeed);

  window->txtSeed.SetText("1");
  window->txtConfidence.SetText("sure");
  window->cmdRun.Press();
  EXPECT_EQ(LastMessage(), "Confidence (%): \"sure\" is not a number.");

  window->txtConfidence.SetText("95");
  window->txtSamples.SetText("10");
  window->cmdRun.Press();
  EXPECT_EQ(LastMessage(), "The number of samples must be between 1,000 and 10,000,000.");
  EXPECT_TRUE(window->cmdRun.Enabled());
}

// ---- results -------------------------------------------------------------------------------------------------------

TEST_F(AHowSureWindow, ShowsHowProbablyEachJudgementFallsShort) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("20000");
  RunToEnd();

  EXPECT_EQ(window->tabSure.Tab(), sure_page::Results);
  EXPECT_EQ(window->lblDone.Caption(), "20,000 samples, seed 1.");
  EXPECT_EQ(window->prgRun.Value(), 100);
  EXPECT_THAT(CellsOf(window->grdJudgements, 0),
              ElementsAre("Judgement", "Design", "Falls short (%)", "95 % from", "to"));
  const std::string judgements = AllCells(window->grdJudgements);
  EXPECT_THAT(judgements, AllOf(HasSubstr("\nActual PSUP|"), HasSubstr("\nBolt length|")));
  EXPECT_THAT(CellsOf(window->grdFigures, 0),
              ElementsAre("Figure", "Design", "Mean", "Deviation", "5 %", "50 %", "95 %"));
  EXPECT_THAT(AllCells(window->grdFigures), HasSubstr("\nSuggested PSUP|"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(AHowSureWindow, ShowsTheSameTextsForTheSameSeed) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("10000");
  RunToEnd();
  const std::string first = AllCells(window->grdJudgements) + AllCells(window->grdFigures);

  RunToEnd();
  EXPECT_EQ(AllCells(window->grdJudgements) + AllCells(window->grdFigures), first);

  window->txtSeed.SetText("2");
  RunToEnd();
  EXPECT_NE(AllCells(window->grdJudgements) + AllCells(window->grdFigures), first);
}

TEST_F(AHowSureWindow, SaysThatTheResultsAreOfEarlierSettings) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("2000");
  RunToEnd();

  window->txtSeed.SetText("5");
  window->EndAct();
  EXPECT_THAT(window->lblDone.Caption(), HasSubstr("Inputs or settings have changed since."));

  window->txtSeed.SetText("1");
  window->EndAct();
  EXPECT_EQ(window->lblDone.Caption(), "2,000 samples, seed 1.");
}

TEST_F(AHowSureWindow, StopsWithWhatWasSampledSoFar) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("10000000");
  window->cmdRun.Press();
  EXPECT_FALSE(window->cmdRun.Enabled());
  EXPECT_THAT(window->lblDone.Caption(), testing::EndsWith(" of 10,000,000 samples"));

  window->cmdStop.Press();
  while (window->cmdStop.Enabled()) platform.clock.Pass();

  EXPECT_THAT(window->lblDone.Caption(), HasSubstr("Stopped before the end."));
  EXPECT_GT(window->grdJudgements.Rows(), 1);
  EXPECT_TRUE(window->cmdRun.Enabled());
}

TEST_F(AHowSureWindow, MayBeClosedWhileItRuns) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("10000000");
  window->cmdRun.Press();

  Leave();
  platform.clock.Pass();

  EXPECT_TRUE(platform.files.FindsFile(SettingsPath));
}

TEST_F(AHowSureWindow, EndsEarlyWhenTheIntervalsAreNarrowEnough) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("10000000");
  window->txtStopWidth.SetText("20");
  RunToEnd();

  EXPECT_THAT(window->lblDone.Caption(), HasSubstr("The intervals are narrow enough."));
}

TEST_F(AHowSureWindow, ShowsChartsOfTheChosenFigure) {
  Open();
  EXPECT_EQ(ChartWords("Histogram"), "Press Run to sample the design.");
  AddRatingAndDepth();
  window->txtSamples.SetText("5000");
  RunToEnd();

  for (int row = 1; row < window->grdFigures.Rows(); ++row) {
    if (window->grdFigures.Cell(row, 0) == "Suggested PSUP") window->grdFigures.ClickRow(row);
  }
  EXPECT_THAT(ChartWords("Histogram"), AllOf(StartsWith("Histogram of Suggested PSUP"), HasSubstr("The design has ")));
  EXPECT_THAT(ChartWords("Cumulative curve"), StartsWith("Cumulative curve of Suggested PSUP"));
  EXPECT_THAT(
      ChartWords("Rank correlations"),
      AllOf(StartsWith("Rank correlations of Suggested PSUP. roof rating -0.9"), HasSubstr("depth of cover 0.")));
  EXPECT_THAT(ChartWords("Convergence"), StartsWith("Convergence: "));
}

TEST_F(AHowSureWindow, SaysThatAFigureIsTheSameInAllSamples) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("2000");
  RunToEnd();

  for (int row = 1; row < window->grdFigures.Rows(); ++row) {
    if (window->grdFigures.Cell(row, 0) == "Actual PSUP") window->grdFigures.ClickRow(row);
  }
  const std::string design = window->grdFigures.Cell(window->grdFigures.Row(), 1);
  EXPECT_EQ(ChartWords("Histogram"), "Actual PSUP is " + design + " in all samples.");
}

TEST_F(AHowSureWindow, ShowsTheScatterOfAnyPair) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("5000");
  RunToEnd();
  EXPECT_FALSE(window->cmbAcross.Enabled());

  window->cmbChart.SetText("Scatter");
  EXPECT_TRUE(window->cmbAcross.Enabled());
  window->cmbAcross.SetText("depth of cover (ft)");
  window->cmbUp.SetText("roof rating");

  EXPECT_EQ(window->picChart.Words(), "Scatter of roof rating over depth of cover (ft). 1500 samples");
}

TEST_F(AHowSureWindow, CopiesAndSavesTheChart) {
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("2000");
  RunToEnd();

  window->picChart.Command(DrawingCommand::Copy);
  EXPECT_EQ(platform.clipboard.scene, window->picChart.Picture());
  platform.fileDialogs.answers.push_back("/home/user/sure.svg");
  window->picChart.Command(DrawingCommand::SaveSvg);
  EXPECT_THAT(platform.files.files["/home/user/sure.svg"], HasSubstr("<svg"));
}

TEST_F(AHowSureWindow, ChangesNothingInTheProject) {
  const Design before = program.project.WorkParms;
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("2000");
  RunToEnd();
  Leave();

  EXPECT_EQ(program.project.WorkParms, before);
  EXPECT_EQ(platform.files.files[ProjectPath], "the project");
}

}  // namespace
}  // namespace orby::test
