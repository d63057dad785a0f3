// The inputs of the window "How Sure": their distributions, measured values and correlations.
#include "dialogs/how_sure_fixture.h"
#include "dialogs/study_editing.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

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

}  // namespace
}  // namespace orby::test
