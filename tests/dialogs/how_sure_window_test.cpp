// The window "How Sure": its settings and their file, the run, and its results.
#include "dialogs/how_sure_fixture.h"
#include "files/study_file.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

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

TEST_F(AHowSureWindow, HasNothingToJudgeWhereNothingIsAnalysed) {
  program.project.WorkParms.Primary.Analysed = 0;
  Open();
  AddRatingAndDepth();
  window->txtSamples.SetText("2000");

  RunToEnd();

  EXPECT_EQ(window->grdJudgements.Rows(), 1) << "only the heads";
  EXPECT_EQ(window->grdFigures.Rows(), 1) << "only the heads";
  EXPECT_EQ(LastMessage(), "");
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
