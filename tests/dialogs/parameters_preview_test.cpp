#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using ParameterPreview = AParametersDialog;

constexpr std::string_view OwnSelections =
    "cmbBoltDiameterPrimary=0.875|txtBoltDiameterPrimary=0.81|optBoltDiameterPrimary=1|"
    "cmbBoltGradePrimary=90|txtBoltGradePrimary=61|"
    "cmbBoltDiameterSecEntry=0.688|txtBoltDiameterSecEntry=0.82|optBoltGradeSecEntry=1|"
    "cmbBoltGradeSecEntry=60|txtBoltGradeSecEntry=62|"
    "cmbBoltDiameterSecInter=0.804|txtBoltDiameterSecInter=0.83|cmbBoltGradeSecInter=100|txtBoltGradeSecInter=63|"
    "cmbCableDiamSecEntry=0.7|cmbCableDiamSecInter=0.6|"
    "optBoltOptionsSecEntry=1|optBoltOptionsSecInter=1|VSFlexGridEntry=9|VSFlexGridInter=7";

TEST_F(ParameterPreview, JudgesAllBoltsWithThePrimaryTabsManualSelection) {
  dialog.Open();
  DoQuietly(OwnSelections);

  dialog.CopyToWorkParmsCopy();

  const ProjectRecord& copy = program.WorkParmsCopy;
  for (const BoltFields* bolt : {&PrimaryBolt, &SecEntryBolt, &SecInterBolt}) {
    EXPECT_EQ(copy.*bolt->DiameterMode, 1);
    EXPECT_EQ(copy.*bolt->DiameterStd, 0.875F);
    EXPECT_EQ(copy.*bolt->DiameterManual, 0.81F);
    EXPECT_EQ(copy.*bolt->GradeMode, 0);
    EXPECT_EQ(copy.*bolt->GradeStd, 90);
    EXPECT_EQ(copy.*bolt->GradeManual, 61);
  }
}

TEST_F(ParameterPreview, TakesTheRestOfEachBoltFromItsOwnTab) {
  dialog.Open();
  DoQuietly(OwnSelections);
  DoQuietly("txtBoltLengthSecEntry=6.5|txtBoltLengthSecInter=6.25");

  dialog.CopyToWorkParmsCopy();

  const ProjectRecord& copy = program.WorkParmsCopy;
  EXPECT_EQ(copy.BoltOptionsPrimary, 0);
  EXPECT_EQ(copy.BoltTableRowPrimary, 0);
  EXPECT_EQ(copy.BoltOptionsSecEntry, 1);
  EXPECT_EQ(copy.BoltTableRowSecEntry, 8);
  EXPECT_EQ(copy.BoltDescSecEntry, "#7 rebar - grade 40");
  EXPECT_EQ(copy.BoltTableDiameterSecEntry, 0.875F);
  EXPECT_EQ(copy.BoltTableGradeSecEntry, 40);
  EXPECT_EQ(copy.BoltLengthSecEntry, 6.5F);
  EXPECT_EQ(copy.BoltOptionsSecInter, 1);
  EXPECT_EQ(copy.BoltTableRowSecInter, 6);
  EXPECT_EQ(copy.BoltDescSecInter, "#6 smooth - grade 75");
  EXPECT_EQ(copy.BoltLengthSecInter, 6.25F);
}

TEST_F(ParameterPreview, TakesTheCableDiameterOfBothFromTheEntries) {
  dialog.Open();
  DoQuietly(OwnSelections);

  dialog.CopyToWorkParmsCopy();

  EXPECT_EQ(program.WorkParmsCopy.CableDiamSecEntry, 0.7F);
  EXPECT_EQ(program.WorkParmsCopy.CableDiamSecInter, 0.7F);
}

TEST_F(ParameterPreview, CopiesTheFieldsWithoutCommittingThem) {
  program.WorkParmsCopy.CostBoltCost = 9;
  dialog.Open();
  Do("txtCMRR=51.5|txtDepthofCover=512.5|txtSupportNumberSecInter=7|optSupportTypeSecInter=1|"
     "txtSupportTypeSecInter=Stone pack");
  program.estimator.EstimatorRegion = 3;
  program.estimator.EstimatorRockType = 5;

  dialog.CopyToWorkParmsCopy();

  EXPECT_EQ(program.WorkParmsCopy.CMRR, 52);
  EXPECT_EQ(program.WorkParmsCopy.CMRRRegionIndex, 3);
  EXPECT_EQ(program.WorkParmsCopy.CMRRRockTypeIndex, 5);
  EXPECT_EQ(program.WorkParmsCopy.DepthofCover, 512.5F);
  EXPECT_EQ(program.WorkParmsCopy.SupportNumberSecInter, 7);
  EXPECT_EQ(program.WorkParmsCopy.SupportTypeNameSecInter, "Stone pack");
  EXPECT_EQ(program.WorkParmsCopy.StabFactorEntry1, 1.06F);
  EXPECT_EQ(program.WorkParmsCopy.CostBoltCost, 9);
  EXPECT_EQ(program.WorkParms.CMRR, 45);
  EXPECT_EQ(program.WorkParms.DepthofCover, 400);
  EXPECT_TRUE(program.FileSaved);
  EXPECT_TRUE(program.FileEmpty);
  EXPECT_FALSE(dialog.WasCommitted);
}

// ---- Results --------------------------------------------------------------------------------------------------------

TEST_F(ParameterPreview, ShowsTheResultsOfTheFieldsAsTheyStand) {
  dialog.Open();
  Do("txtDepthofCover=512.5|txtStabilityFactor=1.5");
  program.ReportCaller = report_caller::None;

  dialog.cmdresults.Press();

  EXPECT_EQ(platform.windows.modalForms, 1);
  EXPECT_THAT(program.OutBuf[0], HasSubstr("512.5 (ft)"));
  EXPECT_THAT(program.OutBuf[1], HasSubstr("[ORBY CALCULATIONS]"));
  EXPECT_EQ(program.ReportCaller, 1);
  EXPECT_EQ(program.LastPage, 1);
}

TEST_F(ParameterPreview, HasRestoredTheDesignBeforeTheResultsAreOnView) {
  program.WorkParms.CostBoltCost = 3.75F;
  dialog.Open();
  Do("txtDepthofCover=512.5|chkPrimSupport=0|optBoltOptionsSecEntry=1|txtTrussCapacitySecInter=44");
  bool shown = false;
  platform.windows.onModal = [&](Form&) {
    shown = true;
    EXPECT_EQ(program.WorkParms.DepthofCover, 400);
    EXPECT_EQ(program.WorkParms.PrimSupport, 1);
    EXPECT_EQ(program.WorkParms.BoltOptionsSecEntry, 0);
    EXPECT_EQ(program.WorkParms.TrussCapacitySecInter, 30);
    EXPECT_EQ(program.WorkParms.RockLoadEntry1, 0);
    EXPECT_EQ(program.WorkParms.CostBoltCost, 3.75F);
    EXPECT_EQ(program.WorkParmsCopy.DepthofCover, 512.5F);
  };

  dialog.cmdresults.Press();

  EXPECT_TRUE(shown);
}

TEST_F(ParameterPreview, LeavesTheDesignAsItWasWhenTheReportFails) {
  dialog.Open();
  DoQuietly("txtDepthofCover=512.5|txtTrussCapacitySecInter=44|txtRockFallAngle=0");

  EXPECT_EQ(ErrorNumberOf([this] { dialog.cmdresults.Press(); }), 11);

  EXPECT_EQ(program.WorkParms.DepthofCover, 400);
  EXPECT_EQ(program.WorkParms.TrussCapacitySecInter, 30);
  EXPECT_EQ(program.WorkParms.RockFallAngle, 30);
  EXPECT_EQ(program.WorkParmsCopy.DepthofCover, 512.5F);
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(ParameterPreview, GivesTheSameReportTwice) {
  dialog.Open();
  Do(AllSystems);
  Do("txtDepthofCover=512.5");
  dialog.cmdresults.Press();
  const auto first = program.OutBuf;

  dialog.cmdresults.Press();

  EXPECT_EQ(program.OutBuf, first);
  EXPECT_EQ(platform.windows.modalForms, 2);
}

TEST_F(ParameterPreview, LeavesTheDialogOpenAndTheFileUnchanged) {
  dialog.Open();
  Do("txtDepthofCover=512.5");

  dialog.cmdresults.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_FALSE(dialog.WasCommitted);
  EXPECT_TRUE(program.FileSaved);
  EXPECT_TRUE(program.FileEmpty);
  EXPECT_FALSE(program.UnitsLocked);
  EXPECT_EQ(dialog.txtDepthofCover.Text(), "512.5");

  dialog.Command1.Press();

  EXPECT_EQ(program.WorkParms.DepthofCover, 400);
}

TEST_F(ParameterPreview, IsRefusedWhileAFieldIsWrong) {
  dialog.Open();
  Do("txtRockFallAngle=61");
  const auto before = program.OutBuf;

  dialog.cmdresults.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid roof fall angle"));
  EXPECT_EQ(platform.windows.modalForms, 0);
  EXPECT_EQ(program.OutBuf, before);
  EXPECT_EQ(program.WorkParmsCopy.RockFallAngle, 0);
}

TEST_F(ParameterPreview, CanBeBuiltWithoutTheChecks) {
  dialog.Open();
  Do("txtRockFallAngle=61");

  dialog.BuildReport();

  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
  EXPECT_THAT(program.OutBuf[0], HasSubstr("61 (deg)"));
  EXPECT_EQ(platform.windows.modalForms, 0);
  EXPECT_EQ(program.WorkParms.RockFallAngle, 30);
}

TEST_F(ParameterPreview, OfAMetricDesignIsInItsUnits) {
  StartDesign(Metric);
  dialog.Open();

  dialog.cmdresults.Press();

  ASSERT_THAT(platform.boxes.Texts(), IsEmpty());
  EXPECT_THAT(program.OutBuf[0], HasSubstr("150 (m)"));
}

}  // namespace
}  // namespace orby::test
