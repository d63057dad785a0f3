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

TEST_F(ParameterPreview, UsesThePrimaryTabsManualSelectionForAllBolts) {
  dialog.Open();
  DoQuietly(OwnSelections);

  dialog.CopyToWorkParmsCopy();

  const Design& copy = program.windows.WorkParmsCopy;
  for (const BoltSelection* bolt : copy.BoltSets()) {
    EXPECT_EQ(bolt->DiameterMode, ValueSource::Typed);
    EXPECT_EQ(bolt->DiameterStd, 0.875F);
    EXPECT_EQ(bolt->DiameterManual, 0.81F);
    EXPECT_EQ(bolt->GradeMode, ValueSource::Standard);
    EXPECT_EQ(bolt->GradeStd, 90);
    EXPECT_EQ(bolt->GradeManual, 61);
  }
}

TEST_F(ParameterPreview, UsesTheRestOfEachBoltFromItsOwnTab) {
  dialog.Open();
  DoQuietly(OwnSelections);
  DoQuietly("txtBoltLengthSecEntry=6.5|txtBoltLengthSecInter=6.25");

  dialog.CopyToWorkParmsCopy();

  const Design& copy = program.windows.WorkParmsCopy;
  EXPECT_EQ(copy.Primary.Options, BoltSource::Table);
  EXPECT_EQ(copy.Primary.TableRow, 0);
  EXPECT_EQ(copy.Entries.Bolt.Options, BoltSource::Manual);
  EXPECT_EQ(copy.Entries.Bolt.TableRow, 8);
  EXPECT_EQ(copy.Entries.Bolt.Desc, "#7 rebar - grade 40");
  EXPECT_EQ(copy.Entries.Bolt.TableDiameter, 0.875F);
  EXPECT_EQ(copy.Entries.Bolt.TableGrade, 40);
  EXPECT_EQ(copy.Entries.Bolt.Length, 6.5F);
  EXPECT_EQ(copy.Intersections.Bolt.Options, BoltSource::Manual);
  EXPECT_EQ(copy.Intersections.Bolt.TableRow, 6);
  EXPECT_EQ(copy.Intersections.Bolt.Desc, "#6 smooth - grade 75");
  EXPECT_EQ(copy.Intersections.Bolt.Length, 6.25F);
}

TEST_F(ParameterPreview, UsesTheCableDiameterOfTheEntriesForBothPlaces) {
  dialog.Open();
  DoQuietly(OwnSelections);

  dialog.CopyToWorkParmsCopy();

  EXPECT_EQ(program.windows.WorkParmsCopy.Entries.Cable.Diam, 0.7F);
  EXPECT_EQ(program.windows.WorkParmsCopy.Intersections.Cable.Diam, 0.7F);
}

TEST_F(ParameterPreview, CopiesTheFieldsWithoutCommittingThem) {
  program.windows.WorkParmsCopy.Cost.BoltCost = 9;
  dialog.Open();
  Do("txtCMRR=51.5|txtDepthofCover=512.5|txtSupportNumberSecInter=7|optSupportTypeSecInter=1|"
     "txtSupportTypeSecInter=Stone pack");
  program.windows.estimator.EstimatorRegion = 3;
  program.windows.estimator.EstimatorRockType = 5;

  dialog.CopyToWorkParmsCopy();

  EXPECT_EQ(program.windows.WorkParmsCopy.Place.CMRR, 52);
  EXPECT_EQ(program.windows.WorkParmsCopy.Place.CMRRRegionIndex, 3);
  EXPECT_EQ(program.windows.WorkParmsCopy.Place.CMRRRockTypeIndex, 5);
  EXPECT_EQ(program.windows.WorkParmsCopy.Place.DepthofCover, 512.5F);
  EXPECT_EQ(program.windows.WorkParmsCopy.Intersections.Standing.Number, 7);
  EXPECT_EQ(program.windows.WorkParmsCopy.Intersections.Standing.TypeName, "Stone pack");
  EXPECT_EQ(program.windows.WorkParmsCopy.Entries.Cable.StabFactor, 1.06F);
  EXPECT_EQ(program.windows.WorkParmsCopy.Cost.BoltCost, 9);
  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(dialog.WasCommitted);
}

// ---- Results --------------------------------------------------------------------------------------------------------

TEST_F(ParameterPreview, ShowsTheResultsOfTheFieldsAsTheyAre) {
  dialog.Open();
  Do("txtDepthofCover=512.5|txtStabilityFactor=1.5");
  program.windows.ReportCaller = InputDialog::None;

  dialog.cmdresults.Press();

  EXPECT_EQ(platform.windows.modalForms, 1);
  EXPECT_THAT(program.session.OutBuf[0], HasSubstr("512.5 (ft)"));
  EXPECT_THAT(program.session.OutBuf[1], HasSubstr("[ORBY CALCULATIONS]"));
  EXPECT_EQ(program.windows.ReportCaller, InputDialog::Parameters);
  EXPECT_EQ(program.windows.LastPage, 1);
}

TEST_F(ParameterPreview, RestoresTheDesignBeforeTheResultsAreShown) {
  program.project.WorkParms.Cost.BoltCost = 3.75F;
  dialog.Open();
  Do("txtDepthofCover=512.5|chkPrimSupport=0|optBoltOptionsSecEntry=1|txtTrussCapacitySecInter=44");
  bool shown = false;
  platform.windows.onModal = [&](Form&) {
    shown = true;
    EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
    EXPECT_EQ(program.project.WorkParms.Primary.Analysed, 1);
    EXPECT_EQ(program.project.WorkParms.Entries.Bolt.Options, BoltSource::Table);
    EXPECT_EQ(program.project.WorkParms.Intersections.Truss.Capacity, 30);
    EXPECT_EQ(program.project.WorkParms.Entries.RockLoad, 0);
    EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.75F);
    EXPECT_EQ(program.windows.WorkParmsCopy.Place.DepthofCover, 512.5F);
  };

  dialog.cmdresults.Press();

  EXPECT_TRUE(shown);
}

TEST_F(ParameterPreview, LeavesTheDesignUnchangedIfTheReportFails) {
  dialog.Open();
  DoQuietly("txtDepthofCover=512.5|txtTrussCapacitySecInter=44|txtRockFallAngle=0");

  EXPECT_EQ(ErrorNumberOf([this] { dialog.cmdresults.Press(); }), 11);

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_EQ(program.project.WorkParms.Intersections.Truss.Capacity, 30);
  EXPECT_EQ(program.project.WorkParms.Entries.RockFallAngle, 30);
  EXPECT_EQ(program.windows.WorkParmsCopy.Place.DepthofCover, 512.5F);
  EXPECT_EQ(platform.windows.modalForms, 0);
}

TEST_F(ParameterPreview, GivesTheSameReportTwice) {
  dialog.Open();
  Do(AllSystems);
  Do("txtDepthofCover=512.5");
  dialog.cmdresults.Press();
  const auto first = program.session.OutBuf;

  dialog.cmdresults.Press();

  EXPECT_EQ(program.session.OutBuf, first);
  EXPECT_EQ(platform.windows.modalForms, 2);
}

TEST_F(ParameterPreview, LeavesTheDialogOpenAndTheFileUnchanged) {
  dialog.Open();
  Do("txtDepthofCover=512.5");

  dialog.cmdresults.Press();

  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_FALSE(dialog.CommitOnClose);
  EXPECT_FALSE(dialog.WasCommitted);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(program.project.UnitsLocked);
  EXPECT_EQ(dialog.txtDepthofCover.Text(), "512.5");

  dialog.Command1.Press();

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
}

TEST_F(ParameterPreview, IsRefusedWhileAFieldIsInvalid) {
  dialog.Open();
  Do("txtRockFallAngle=61");
  const auto before = program.session.OutBuf;

  dialog.cmdresults.Press();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid roof fall angle"));
  EXPECT_EQ(platform.windows.modalForms, 0);
  EXPECT_EQ(program.session.OutBuf, before);
  EXPECT_EQ(program.windows.WorkParmsCopy.Entries.RockFallAngle, 0);
}

TEST_F(ParameterPreview, CanBeBuiltWithoutTheChecks) {
  dialog.Open();
  Do("txtRockFallAngle=61");

  dialog.BuildReport();

  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
  EXPECT_THAT(program.session.OutBuf[0], HasSubstr("61 (deg)"));
  EXPECT_EQ(platform.windows.modalForms, 0);
  EXPECT_EQ(program.project.WorkParms.Entries.RockFallAngle, 30);
}

TEST_F(ParameterPreview, OfAMetricDesignHasMetricUnits) {
  StartDesign(Metric);
  dialog.Open();

  dialog.cmdresults.Press();

  ASSERT_THAT(platform.boxes.Texts(), IsEmpty());
  EXPECT_THAT(program.session.OutBuf[0], HasSubstr("150 (m)"));
}

}  // namespace
}  // namespace orby::test
