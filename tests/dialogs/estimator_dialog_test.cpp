#include "dialogs/estimator_dialog.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct AnEstimator : testing::Test {
  void OpenOn(Integer region, Integer rockType) {
    program.windows.estimator.EstimatorRegion = region;
    program.windows.estimator.EstimatorRockType = rockType;
    dialog.Open();
  }

  std::vector<std::string> Column(int column) const {
    std::vector<std::string> texts;
    for (int row = 0; row < dialog.VSFlexGrid1.Rows(); ++row) texts.push_back(dialog.VSFlexGrid1.Cell(row, column));
    return texts;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  EstimatorDialog dialog{program};
};

// ---- the coalfields -------------------------------------------------------------------------------------------------

struct Rock {
  std::string name;
  std::string rating;
};

const std::vector<std::vector<Rock>> Coalfields{{{"Claystone", "35"},
                                                 {"Coal/Claystone", "38"},
                                                 {"Shale", "40"},
                                                 {"Siltstone", "45"},
                                                 {"Sandstone", "55"},
                                                 {"Limestone", "55"},
                                                 {"Unknown", "38"},
                                                 {"Manual Setting", "38"}},
                                                {{"Thick Claystone", "40"},
                                                 {"Thick Shale", "45"},
                                                 {"Stackrock (laminated sandstone/shale)", "45"},
                                                 {"Siltstone", "50"},
                                                 {"Bedded Sandstone", "55"},
                                                 {"Massive Sandstone", "65"},
                                                 {"Unknown", "45"},
                                                 {"Manual Setting", "45"}},
                                                {{"Thick Claystone", "40"},
                                                 {"Shale/Coal", "45"},
                                                 {"Shale", "50"},
                                                 {"Siltstone", "50"},
                                                 {"Bedded Sandstone", "55"},
                                                 {"Massive Sandstone", "65"},
                                                 {"Unknown", "45"},
                                                 {"Manual Setting", "45"}},
                                                {{"Thick Claystone", "35"},
                                                 {"Gray Shale", "38"},
                                                 {"Black Shale", "40"},
                                                 {"Siltstone/Sandstone", "45"},
                                                 {"Thin Limestone (1-2ft)", "50"},
                                                 {"Thick Limestone (>4 ft)", "65"},
                                                 {"Unknown", "35"},
                                                 {"Manual Setting", "35"}},
                                                {{"Carbonaceous Mudstone", "40"},
                                                 {"Thick Shale", "45"},
                                                 {"Siltstone", "55"},
                                                 {"Bedded Sandstone", "55"},
                                                 {"Massive Sandstone", "65"},
                                                 {"Unknown", "45"},
                                                 {"Manual Setting", "45"}},
                                                {{"Mudstone/Claystone", "35"},
                                                 {"Thick Shale", "45"},
                                                 {"Siltstone", "55"},
                                                 {"Bedded Sandstone", "55"},
                                                 {"Massive Sandstone", "65"},
                                                 {"Unknown", "35"},
                                                 {"Manual Setting", "35"}}};

TEST_F(AnEstimator, RatesEveryRockTypeOfEveryCoalfield) {
  OpenOn(0, 0);

  int rated = 0;
  for (int region = 5; region >= 0; --region) {
    dialog.optLocation.SetValue(region, true);
    const auto& rocks = Coalfields[static_cast<std::size_t>(region)];
    ASSERT_EQ(dialog.VSFlexGrid1.Rows(), static_cast<int>(rocks.size())) << region;
    int row = 0;
    for (const Rock& rock : rocks) {
      dialog.VSFlexGrid1.ClickRow(row);
      EXPECT_EQ(dialog.VSFlexGrid1.Cell(row, 1), rock.name) << region;
      EXPECT_EQ(dialog.VSFlexGrid1.Cell(row, 2), rock.rating) << region << ' ' << rock.name;
      EXPECT_EQ(dialog.txtCMRR.Text(), rock.rating) << region << ' ' << rock.name;
      ++row;
      ++rated;
    }
  }
  EXPECT_EQ(rated, 46);
}

TEST_F(AnEstimator, NotesOnlyTheLastRowOfEveryCoalfieldAsManual) {
  OpenOn(0, 0);

  const std::vector<int> manualRows{7, 7, 7, 7, 6, 6};
  for (int region = 5; region >= 0; --region) {
    dialog.optLocation.SetValue(region, true);
    const int manualRow = manualRows[static_cast<std::size_t>(region)];
    for (int row = 0; row < manualRow; ++row) {
      dialog.VSFlexGrid1.ClickRow(row);
      EXPECT_FALSE(program.windows.estimator.EstimatorManual) << region << ' ' << row;
    }
    dialog.VSFlexGrid1.ClickRow(manualRow);
    EXPECT_TRUE(program.windows.estimator.EstimatorManual) << region;
  }
}

TEST_F(AnEstimator, ListsTheRockTypesUnderNumbersWithoutAHeader) {
  OpenOn(5, 0);

  EXPECT_EQ(dialog.VSFlexGrid1.Columns(), 3);
  EXPECT_EQ(dialog.VSFlexGrid1.FixedRows(), 0);
  EXPECT_THAT(dialog.VSFlexGrid1.ColumnWidths(), ElementsAre(360, 2950, 360));
  EXPECT_THAT(Column(0), ElementsAre("1", "2", "3", "4", "5", "6", "7"));
}

TEST_F(AnEstimator, ShowsOnlyThePictureOfItsCoalfield) {
  OpenOn(3, 0);

  for (int region = 5; region >= 0; --region) {
    dialog.optLocation.SetValue(region, true);
    for (int picture = 0; picture < 6; ++picture) {
      EXPECT_EQ(dialog.Picture1[static_cast<std::size_t>(picture)].Visible(), picture == region) << region;
    }
  }
}

TEST_F(AnEstimator, HasItsCaptions) {
  EXPECT_EQ(dialog.Name(), "frmCMRREst");
  EXPECT_EQ(dialog.Caption(), "The Coal Mine Roof Rating (CMRR) Estimator for HAMB");
  EXPECT_EQ(dialog.fraLocation.Caption(), "Coalfield Location");
  ASSERT_EQ(dialog.optLocation.Count(), 6U);
  EXPECT_EQ(dialog.optLocation.Caption(0), "Northern Appalachia");
  EXPECT_EQ(dialog.optLocation.Caption(1), "Central Appalachia");
  EXPECT_EQ(dialog.optLocation.Caption(2), "Southern Appalachia");
  EXPECT_EQ(dialog.optLocation.Caption(3), "Illinois Basin");
  EXPECT_EQ(dialog.optLocation.Caption(4), "Utah");
  EXPECT_EQ(dialog.optLocation.Caption(5), "Other Western");
  EXPECT_EQ(dialog.Command2.Caption(), "OK");
  EXPECT_EQ(dialog.Command1.Caption(), "Cancel");
  EXPECT_EQ(dialog.Command3.Caption(), "Help");
  EXPECT_EQ(dialog.Find("Picture1_5"), &dialog.Picture1[5]);
}

TEST_F(AnEstimator, ShowsAStoredManualRatingOnlyInTheLastRow) {
  program.windows.estimator.EstimatorManualValue = 52;
  OpenOn(4, 6);

  EXPECT_THAT(Column(2), ElementsAre("40", "45", "55", "55", "65", "45", "52"));
  EXPECT_EQ(dialog.txtCMRR.Text(), "52");
}

// ---- opening --------------------------------------------------------------------------------------------------------

TEST_F(AnEstimator, OpensOnTheRockTypeChosenLast) {
  OpenOn(2, 5);

  EXPECT_EQ(GetArrayIndex(dialog.optLocation), 2);
  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 5);
  EXPECT_EQ(dialog.txtCMRR.Text(), "65");
  EXPECT_FALSE(program.windows.estimator.EstimatorManual);
  EXPECT_FALSE(dialog.HoldEvents);
}

TEST_F(AnEstimator, OpensOnTheManualRowIfThatWasChosenLast) {
  OpenOn(0, 7);

  EXPECT_EQ(dialog.txtCMRR.Text(), "38");
  EXPECT_TRUE(program.windows.estimator.EstimatorManual);
}

TEST_F(AnEstimator, IgnoresTheManualRowOfAnotherDesignWhenItOpens) {
  program.windows.estimator.EstimatorManual = true;

  OpenOn(0, 2);

  EXPECT_FALSE(program.windows.estimator.EstimatorManual);
}

TEST_F(AnEstimator, RecordsInTheHistoryThatItOpensAndClearsTheCursor) {
  program.platform.windows.SetWaitCursor(true);

  OpenOn(0, 0);

  EXPECT_EQ(program.session.history.Text, "1. Editing Project Description\r\n");
  EXPECT_EQ(program.windows.titles.RangeErrorTitle, "Project Description: Range Error");
  EXPECT_EQ(platform.windows.centered, 1);
  EXPECT_FALSE(platform.windows.waitCursor);
}

TEST_F(AnEstimator, OpensOnTheFirstRowIfTheStoredOneIsNotInTheGrid) {
  for (const Integer rockType : {Integer{7}, Integer{8}, Integer{-1}, Integer{32767}}) {
    EstimatorDialog other(program);
    program.windows.estimator.EstimatorRegion = 5;
    program.windows.estimator.EstimatorRockType = rockType;

    other.Open();

    EXPECT_EQ(other.VSFlexGrid1.Row(), 0) << rockType;
    EXPECT_EQ(other.txtCMRR.Text(), "35") << rockType;
    EXPECT_FALSE(program.windows.estimator.EstimatorManual) << rockType;
  }
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(AnEstimator, ReportsACoalfieldThatDoesNotExistAndFails) {
  for (const Integer region : {Integer{6}, Integer{-1}}) {
    EstimatorDialog other(program);
    platform.boxes.shown.clear();
    program.windows.estimator.EstimatorRegion = region;

    EXPECT_EQ(ErrorNumberOf([&other] { other.Open(); }), 9) << region;

    ASSERT_EQ(platform.boxes.shown.size(), 1U) << region;
    EXPECT_EQ(platform.boxes.shown[0].text, "Internal Error: SetArrayIndex. Check input/form data.");
    EXPECT_EQ(platform.boxes.shown[0].title, "Project Description: Range Error");
  }
}

// ---- choosing -------------------------------------------------------------------------------------------------------

TEST_F(AnEstimator, GoesToTheRockOfTheSameNameInAnotherCoalfield) {
  OpenOn(2, 4);  // bedded sandstone

  dialog.optLocation.SetValue(4, true);
  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 3);
  EXPECT_EQ(dialog.txtCMRR.Text(), "55");
  EXPECT_FALSE(program.windows.estimator.EstimatorManual);

  dialog.optLocation.SetValue(1, true);
  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 4);
  EXPECT_EQ(dialog.txtCMRR.Text(), "55");
}

TEST_F(AnEstimator, GoesToTheUnknownRoofIfTheCoalfieldLacksTheRock) {
  OpenOn(0, 5);  // limestone

  dialog.optLocation.SetValue(5, true);
  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 5);
  EXPECT_EQ(dialog.txtCMRR.Text(), "35");
  EXPECT_FALSE(program.windows.estimator.EstimatorManual);

  dialog.optLocation.SetValue(1, true);
  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 6) << "unknown stays unknown";
  EXPECT_EQ(dialog.txtCMRR.Text(), "45");
}

TEST_F(AnEstimator, KeepsTheManualSettingInAnotherCoalfield) {
  OpenOn(0, 7);

  dialog.optLocation.SetValue(4, true);
  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 6);
  EXPECT_EQ(dialog.txtCMRR.Text(), "45");
  EXPECT_TRUE(program.windows.estimator.EstimatorManual);

  dialog.optLocation.SetValue(3, true);
  dialog.Command2.Press();

  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 3);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 7);
  EXPECT_EQ(program.windows.estimator.EstimatedCMRR, 35);
  EXPECT_TRUE(program.windows.estimator.EstimatorManual);
}

TEST_F(AnEstimator, RatesTheSameRowAgainInAnotherCoalfield) {
  OpenOn(0, 6);

  dialog.optLocation.SetValue(3, true);

  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 6);
  EXPECT_EQ(dialog.txtCMRR.Text(), "35");
}

TEST_F(AnEstimator, FollowsARowThatIsReachedWithoutAClick) {
  OpenOn(1, 0);

  dialog.VSFlexGrid1.SetRow(5);

  EXPECT_EQ(dialog.txtCMRR.Text(), "65");
}

TEST_F(AnEstimator, RefusesAClickOutsideItsRows) {
  OpenOn(4, 2);

  EXPECT_EQ(ErrorNumberOf([this] { dialog.VSFlexGrid1.ClickRow(7); }), 9);

  EXPECT_EQ(dialog.VSFlexGrid1.Row(), 2);
  EXPECT_EQ(dialog.txtCMRR.Text(), "55");
}

// ---- OK and Cancel --------------------------------------------------------------------------------------------------

TEST_F(AnEstimator, ReturnsRatingCoalfieldAndRockTypeOnOk) {
  program.project.FileSaved = true;
  program.project.FileEmpty = true;
  OpenOn(0, 0);
  dialog.optLocation.SetValue(3, true);
  dialog.VSFlexGrid1.ClickRow(4);

  dialog.Command2.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_TRUE(dialog.CommitOnClose);
  EXPECT_EQ(program.windows.estimator.EstimatedCMRR, 50);
  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 3);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 4);
  EXPECT_FALSE(program.windows.estimator.EstimatorManual);
  EXPECT_FALSE(program.project.FileSaved);
  EXPECT_FALSE(program.project.FileEmpty);
  EXPECT_EQ(program.session.history.Text, "1. Editing Project Description\r\n2. CMRR Form Modified\r\n");
}

TEST_F(AnEstimator, LeavesTheDesignToTheDialogThatOpenedIt) {
  program.project.WorkParms.Place.CMRR = 42;
  program.project.WorkParms.Place.CMRRRegionIndex = 1;
  program.project.WorkParms.Place.CMRRRockTypeIndex = 2;
  OpenOn(1, 2);
  dialog.VSFlexGrid1.ClickRow(5);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 42);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRegionIndex, 1);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRockTypeIndex, 2);
}

TEST_F(AnEstimator, KeepsTheOldEstimateOnCancel) {
  program.project.FileSaved = true;
  program.project.FileEmpty = true;
  OpenOn(1, 1);
  dialog.optLocation.SetValue(3, true);
  dialog.VSFlexGrid1.ClickRow(5);

  dialog.Command1.Press();

  EXPECT_FALSE(dialog.IsOpen());
  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_EQ(program.windows.estimator.EstimatedCMRR, 0);
  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 1);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 1);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
}

TEST_F(AnEstimator, IsLoggedAsModifiedEvenOnCancel) {
  OpenOn(0, 0);

  dialog.Command1.Press();

  EXPECT_EQ(program.session.history.Text, "1. Editing Project Description\r\n2. CMRR Form Modified\r\n");
}

TEST_F(AnEstimator, TreatsTheWindowsCloseAsCancel) {
  OpenOn(0, 0);
  dialog.VSFlexGrid1.ClickRow(4);

  dialog.Close();

  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_EQ(program.windows.estimator.EstimatedCMRR, 0);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 0);
}

TEST_F(AnEstimator, OpensTheHelp) {
  platform.files.files["/program/ORBY.CHM"] = "help";
  dialog.Open();

  dialog.Command3.Press();

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmCMRREst"));
}

}  // namespace
}  // namespace orby::test
