#include "dialogs/estimator_dialog.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::IsEmpty;

// The parameters dialog and a user at its estimator.
struct RatingEstimate : AParametersDialog {
  RatingEstimate() {
    program.project.WorkParms.Place.CMRRRegionIndex = 1;
    program.project.WorkParms.Place.CMRRRockTypeIndex = 2;
    dialog.Open();
  }

  // Opens the estimator, chooses a row and presses the button. A null button stands for closing the window.
  void Choose(int region, int row, Button EstimatorDialog::*button) {
    platform.windows.onModal = [=](Form& form) {
      auto& estimator = dynamic_cast<EstimatorDialog&>(form);
      estimator.optLocation.SetValue(region, true);
      estimator.VSFlexGrid1.ClickRow(row);
      if (button != nullptr) (estimator.*button).Press();
    };
    dialog.cmdCMRR.Press();
  }
};

constexpr auto Ok = &EstimatorDialog::Command2;
constexpr auto Cancel = &EstimatorDialog::Command1;
constexpr Button EstimatorDialog::*WindowsClose = nullptr;

TEST_F(RatingEstimate, StartsFromTheDesignsRockForTheParametersDialog) {
  program.windows.estimator.EstimatedCMRR = 77;
  bool asked = false;
  platform.windows.onModal = [&](Form& form) {
    asked = true;
    auto& estimator = dynamic_cast<EstimatorDialog&>(form);
    EXPECT_EQ(program.windows.estimator.EstimatedCMRR, 0);
    EXPECT_EQ(program.windows.estimator.CallerCode, EstimatorCaller::ParametersDialog);
    EXPECT_EQ(GetArrayIndex(estimator.optLocation), 1);
    EXPECT_EQ(estimator.VSFlexGrid1.Row(), 2);
  };

  dialog.cmdCMRR.Press();

  EXPECT_TRUE(asked);
  EXPECT_EQ(program.windows.ReportCaller, InputDialog::Parameters);
}

TEST_F(RatingEstimate, BecomesTheRatingAndRefreshesTheSuggestions) {
  Choose(2, 5, Ok);

  EXPECT_EQ(dialog.txtCMRR.Text(), "65");
  EXPECT_EQ(dialog.txtRegion.Text(), "2");
  EXPECT_EQ(dialog.txtOption.Text(), "5");
  EXPECT_EQ(dialog.txtSugSumDiagonals.Text(), "70.8");
  EXPECT_FALSE(dialog.chkCMRRManual.Checked());
  EXPECT_FALSE(dialog.txtCMRR.Enabled());
}

TEST_F(RatingEstimate, OfTheManualRowEnablesTyping) {
  Choose(3, 7, Ok);

  EXPECT_TRUE(dialog.chkCMRRManual.Checked());
  EXPECT_TRUE(dialog.txtCMRR.Enabled());
  EXPECT_FALSE(dialog.cmdCMRR.Enabled());
  EXPECT_EQ(dialog.txtCMRR.Text(), "45");
  EXPECT_EQ(dialog.txtRegion.Text(), "3");
  EXPECT_EQ(dialog.txtOption.Text(), "7");
}

TEST_F(RatingEstimate, IsDiscardedIfTheEstimatorIsCancelledOrClosed) {
  for (const auto button : {Cancel, WindowsClose}) {
    for (const int row : {5, 7}) {
      Choose(2, row, button);

      EXPECT_EQ(program.windows.estimator.EstimatedCMRR, 0) << row;
      EXPECT_EQ(dialog.txtCMRR.Text(), "45") << row;
      EXPECT_EQ(dialog.txtRegion.Text(), "") << row;
      EXPECT_EQ(dialog.txtOption.Text(), "") << row;
      EXPECT_FALSE(dialog.chkCMRRManual.Checked()) << row;
      EXPECT_EQ(program.windows.estimator.EstimatorRegion, 1) << row;
      EXPECT_EQ(program.windows.estimator.EstimatorRockType, 2) << row;
    }
  }
}

TEST_F(RatingEstimate, IsNotTakenIfTheEstimatorShowsNone) {
  platform.windows.onModal = [](Form& form) {
    auto& estimator = dynamic_cast<EstimatorDialog&>(form);
    estimator.VSFlexGrid1.ClickRow(5);
    estimator.txtCMRR.SetText("");
    estimator.Command2.Press();
  };

  dialog.cmdCMRR.Press();

  EXPECT_EQ(dialog.txtCMRR.Text(), "45");
  EXPECT_EQ(dialog.txtRegion.Text(), "");
  EXPECT_EQ(dialog.txtOption.Text(), "");
}

TEST_F(RatingEstimate, IsStoredWithItsSourceOnOk) {
  Choose(2, 5, Ok);

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 65);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRegionIndex, 2);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRockTypeIndex, 5);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRManual, 0);
}

TEST_F(RatingEstimate, IsNotStoredIfTheParametersAreCancelled) {
  Choose(2, 5, Ok);

  dialog.Command1.Press();

  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRegionIndex, 1);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRockTypeIndex, 2);
}

TEST_F(RatingEstimate, IsNotOfferedWhileTheRatingIsManual) {
  Do("chkCMRRManual=1");

  dialog.cmdCMRR.Press();

  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(RatingEstimate, LeavesItsMessageTitlesToTheChecksThatFollow) {
  Choose(2, 5, Cancel);
  ASSERT_THAT(platform.boxes.shown, IsEmpty());
  Do("txtDepthofCover=-1");

  dialog.Command2.Press();

  ASSERT_EQ(platform.boxes.shown.size(), 1U);
  EXPECT_EQ(platform.boxes.shown[0].text, "Invalid depth of cover");
  EXPECT_EQ(platform.boxes.shown[0].title, "Project Description: Range Error");
}

}  // namespace
}  // namespace orby::test
