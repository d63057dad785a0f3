#include <utility>

#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using R = ProjectRecord;

using SavingParameters = AParametersDialog;

struct SavedNumber {
  std::string_view control;
  std::string_view text;
  Single ProjectRecord::*field;
  Single value;
};

// A value of its own for every number of a design.
const std::vector<SavedNumber> SavedNumbers{
    {"txtDepthofCover", "512.5", &R::DepthofCover, 512.5F},
    {"txtUnitWeight", "158.5", &R::UnitWeight, 158.5F},
    {"txtActualSpanDiagonals", "61.2", &R::ActualSpanDiagonals, 61.2F},
    {"txtEntryWidth", "18.6", &R::EntryWidth, 18.6F},
    {"txtStabilityFactor", "1.15", &R::StabilityFactor, 1.15F},
    {"txtBoltLengthPrimary", "7.5", &R::BoltLengthPrimary, 7.5F},
    {"txtBoltsperRowPrimary", "4.5", &R::BoltsperRowPrimary, 4.5F},
    {"txtRowSpacingPrimary", "4.25", &R::RowSpacingPrimary, 4.25F},
    {"cmbBoltDiameterPrimary", "0.875", &R::BoltDiameterStdPrimary, 0.875F},
    {"txtBoltDiameterPrimary", "0.81", &R::BoltDiameterManualPrimary, 0.81F},
    {"cmbBoltGradePrimary", "90", &R::BoltGradeStdPrimary, 90},
    {"txtBoltGradePrimary", "61", &R::BoltGradeManualPrimary, 61},
    {"txtRockLoadHeight", "7.25", &R::RockLoadHeight, 7.25F},
    {"txtRockFallAngle", "25", &R::RockFallAngle, 25},
    {"txtCableLengthSecEntry", "11", &R::CableLengthSecEntry, 11},
    {"cmbCableDiamSecEntry", "0.7", &R::CableDiamSecEntry, 0.7F},
    {"cmbCableCapacitySecEntry", "35.7", &R::CableCapacityStdSecEntry, 35.7F},
    {"txtCableCapacitySecEntry", "31", &R::CableCapacityManualSecEntry, 31},
    {"txtCableBoltsPerRowSecEntry", "3", &R::CableBoltsPerRowSecEntry, 3},
    {"txtCableRowSpacingSecEntry", "5.5", &R::CableRowSpacingSecEntry, 5.5F},
    {"txtTrussLengthMemberSecEntry", "8.5", &R::TrussLengthMemberSecEntry, 8.5F},
    {"txtTrussAngleSecEntry", "40", &R::TrussAngleSecEntry, 40},
    {"txtTrussCapacitySecEntry", "32", &R::TrussCapacitySecEntry, 32},
    {"txtTrussSpacingSecEntry", "5", &R::TrussSpacingSecEntry, 5},
    {"txtBoltLengthSecEntry", "6.5", &R::BoltLengthSecEntry, 6.5F},
    {"cmbBoltDiameterSecEntry", "0.688", &R::BoltDiameterStdSecEntry, 0.688F},
    {"txtBoltDiameterSecEntry", "0.82", &R::BoltDiameterManualSecEntry, 0.82F},
    {"cmbBoltGradeSecEntry", "60", &R::BoltGradeStdSecEntry, 60},
    {"txtBoltGradeSecEntry", "62", &R::BoltGradeManualSecEntry, 62},
    {"txtBoltsperRowSecEntry", "5.2", &R::BoltsperRowSecEntry, 5.2F},
    {"txtRowSpacingSecEntry", "4.75", &R::RowSpacingSecEntry, 4.75F},
    {"txtSupportCapSecEntry", "52", &R::SupportCapSecEntry, 52},
    {"txtNumberSupPerRowSecEntry", "2.5", &R::NumberSupPerRowSecEntry, 2.5F},
    {"txtSupportRowSpacingSecEntry", "8.75", &R::SupportRowSpacingSecEntry, 8.75F},
    {"txtRockLoadHeightInter", "9.25", &R::RockLoadHeightInter, 9.25F},
    {"txtRockFallAngleEntry", "26", &R::RockFallAngleEntry, 26},
    {"txtRockFallAngleXcut", "27", &R::RockFallAngleXcut, 27},
    {"txtCableLengthSecInter", "12", &R::CableLengthSecInter, 12},
    {"cmbCableCapacitySecInter", "26.4", &R::CableCapacityStdSecInter, 26.4F},
    {"txtCableCapacitySecInter", "33", &R::CableCapacityManualSecInter, 33},
    {"txtCableNumberSecInter", "13", &R::CableNumberSecInter, 13},
    {"txtTrussLengthMemberSecInter", "9", &R::TrussLengthMemberSecInter, 9},
    {"txtTrussAngleSecInter", "41", &R::TrussAngleSecInter, 41},
    {"txtTrussCapacitySecInter", "34", &R::TrussCapacitySecInter, 34},
    {"txtTrussNumberSecInter", "6", &R::TrussNumberSecInter, 6},
    {"txtBoltLengthSecInter", "6.25", &R::BoltLengthSecInter, 6.25F},
    {"txtBoltNumberSecInter", "14", &R::BoltNumberSecInter, 14},
    {"txtSupportCapSecInter", "53", &R::SupportCapSecInter, 53},
    {"txtSupportNumberSecInter", "7", &R::SupportNumberSecInter, 7},
};

// The intersections' own selection, which the entries' takes the place of.
constexpr std::string_view UnsavedSelection =
    "cmbBoltDiameterSecInter=0.804|txtBoltDiameterSecInter=0.83|optBoltDiameterSecInter=1|"
    "cmbBoltGradeSecInter=100|txtBoltGradeSecInter=63|cmbCableDiamSecInter=0.6";

struct SavedFlag {
  std::string_view control;
  Integer ProjectRecord::*field;
};

const std::vector<SavedFlag> SavedFlags{
    {"chkCMRRManual", &R::CMRRManual},
    {"chkPrimSupport", &R::PrimSupport},
    {"chkSecondSupEntries", &R::SecondSupEntries},
    {"chkSecondSupInter", &R::SecondSupInter},
    {"optBoltOptionsPrimary", &R::BoltOptionsPrimary},
    {"optBoltDiameterPrimary", &R::BoltDiameterModePrimary},
    {"optBoltGradePrimary", &R::BoltGradeModePrimary},
    {"chkSecEntries_0", &R::SecEntryUseCable},
    {"chkSecEntries_1", &R::SecEntryUseTruss},
    {"chkSecEntries_2", &R::SecEntryUseBolt},
    {"chkSecEntries_3", &R::SecEntryUseStanding},
    {"optCableCapModeSecEntry", &R::CableCapModeSecEntry},
    {"optCableCapacitySecEntry", &R::CableCapacitySecEntry},
    {"optBoltOptionsSecEntry", &R::BoltOptionsSecEntry},
    {"optSupportTypeSecEntry", &R::SupportTypeModeSecEntry},
    {"chkSecInter_0", &R::SecInterUseCable},
    {"chkSecInter_1", &R::SecInterUseTruss},
    {"chkSecInter_2", &R::SecInterUseBolt},
    {"chkSecInter_3", &R::SecInterUseStanding},
    {"optCableCapModeSecInter", &R::CableCapModeSecInter},
    {"optCableCapacitySecInter", &R::CableCapacitySecInter},
    {"optBoltOptionsSecInter", &R::BoltOptionsSecInter},
    {"optSupportTypeSecInter", &R::SupportTypeModeSecInter},
};

// ---- fields ---------------------------------------------------------------------------------------------------------

TEST_F(SavingParameters, PutsEachNumberIntoItsField) {
  dialog.Open();
  Do(UnsavedSelection);
  for (const SavedNumber& saved : SavedNumbers) SetControl(dialog, saved.control, std::string(saved.text));

  dialog.Command2.Press();

  ASSERT_THAT(platform.boxes.Texts(), IsEmpty());
  for (const SavedNumber& saved : SavedNumbers) {
    EXPECT_EQ(program.WorkParms.*saved.field, saved.value) << saved.control;
  }
}

TEST_F(SavingParameters, ShowsTheSavedNumbersAgain) {
  dialog.Open();
  for (const SavedNumber& saved : SavedNumbers) SetControl(dialog, saved.control, std::string(saved.text));
  dialog.Command2.Press();
  ParametersDialog again(program);

  again.Open();

  for (const SavedNumber& saved : SavedNumbers) EXPECT_EQ(TextOf(again, saved.control), saved.text) << saved.control;
}

TEST_F(SavingParameters, PutsEachChoiceIntoItsFieldAlone) {
  for (const SavedFlag& set : SavedFlags) {
    ParametersDialog other(program);
    other.Open();
    other.HoldEvents = true;
    for (const SavedFlag& clear : SavedFlags) SetControl(other, clear.control, "0");
    SetControl(other, set.control, "1");

    other.SaveWorkParms();

    for (const SavedFlag& saved : SavedFlags) {
      EXPECT_EQ(program.WorkParms.*saved.field, saved.control == set.control ? 1 : 0)
          << saved.control << " after " << set.control;
    }
  }
}

TEST_F(SavingParameters, KeepsTheFieldsOfSystemsOutOfUse) {
  dialog.Open();
  Do("chkSecEntries_0=0|chkSecInter_0=0|txtCableLengthSecEntry=17|txtTrussCapacitySecInter=44");

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.CableLengthSecEntry, 17);
  EXPECT_EQ(program.WorkParms.TrussCapacitySecInter, 44);
  EXPECT_EQ(program.WorkParms.SecEntryUseCable, 0);
}

TEST_F(SavingParameters, LeavesTheCostsAlone) {
  program.WorkParms.CostBoltCost = 3.75F;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.CostBoltCost, 3.75F);
  EXPECT_EQ(program.WorkParms.CostWeeksYear, 50);
}

// ---- the intersections' manual selection ----------------------------------------------------------------------------

TEST_F(SavingParameters, MakesTheIntersectionsManualBoltsAndCableThoseOfTheEntries) {
  dialog.Open();
  Do(UnsavedSelection);
  Do("cmbBoltDiameterSecEntry=0.688|txtBoltDiameterSecEntry=0.82|optBoltGradeSecEntry=1|"
     "cmbBoltGradeSecEntry=60|txtBoltGradeSecEntry=62|cmbCableDiamSecEntry=0.7");

  dialog.Command2.Press();

  const ProjectRecord& record = program.WorkParms;
  EXPECT_EQ(record.BoltDiameterModeSecInter, 0);
  EXPECT_EQ(record.BoltDiameterStdSecInter, 0.688F);
  EXPECT_EQ(record.BoltDiameterManualSecInter, 0.82F);
  EXPECT_EQ(record.BoltGradeModeSecInter, 1);
  EXPECT_EQ(record.BoltGradeStdSecInter, 60);
  EXPECT_EQ(record.BoltGradeManualSecInter, 62);
  EXPECT_EQ(record.CableDiamSecInter, 0.7F);
  EXPECT_EQ(record.BoltDiameterModeSecEntry, 0);
  EXPECT_EQ(record.BoltGradeModeSecEntry, 1);
}

TEST_F(SavingParameters, ForgetsACableDiameterChosenForIntersectionsAlone) {
  dialog.Open();
  Do("cmbCableDiamSecInter=0.7");
  ASSERT_EQ(dialog.txtSupportCapInter[0].Text(), "357");

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.CableDiamSecInter, 0.6F);
  EXPECT_EQ(program.WorkParms.SupportCapInter1, 357);
}

TEST_F(SavingParameters, LoadsTheIntersectionsOwnSelectionAllTheSame) {
  ProjectRecord& record = program.WorkParms;
  record.BoltDiameterModeSecInter = record.BoltGradeModeSecInter = 1;
  record.BoltDiameterStdSecInter = 0.804F;
  record.BoltDiameterManualSecInter = 0.83F;
  record.BoltGradeStdSecInter = 100;
  record.BoltGradeManualSecInter = 63;
  record.CableDiamSecInter = 0.7F;

  dialog.Open();

  EXPECT_EQ(Text("optBoltDiameterSecInter"), "1");
  EXPECT_EQ(Text("optBoltGradeSecInter"), "1");
  EXPECT_EQ(Text("cmbBoltDiameterSecInter"), "0.804");
  EXPECT_EQ(Text("txtBoltDiameterSecInter"), "0.83");
  EXPECT_EQ(Text("cmbBoltGradeSecInter"), "100");
  EXPECT_EQ(Text("txtBoltGradeSecInter"), "63");
  EXPECT_EQ(Text("cmbCableDiamSecInter"), "0.7");
}

// ---- bolts and supports ---------------------------------------------------------------------------------------------

TEST_F(SavingParameters, TakesEachBoltFromItsOwnTable) {
  dialog.Open();
  Do("VSFlexGridPrimary=4|VSFlexGridEntry=9|VSFlexGridInter=7");

  dialog.Command2.Press();

  const ProjectRecord& record = program.WorkParms;
  EXPECT_EQ(record.BoltTableRowPrimary, 3);
  EXPECT_EQ(record.BoltDescPrimary, "#6 special rebar - grade 75");
  EXPECT_EQ(record.BoltTableDiameterPrimary, 0.677F);
  EXPECT_EQ(record.BoltTableGradePrimary, 75);
  EXPECT_EQ(record.BoltTableRowSecEntry, 8);
  EXPECT_EQ(record.BoltDescSecEntry, "#7 rebar - grade 40");
  EXPECT_EQ(record.BoltTableDiameterSecEntry, 0.875F);
  EXPECT_EQ(record.BoltTableGradeSecEntry, 40);
  EXPECT_EQ(record.BoltTableRowSecInter, 6);
  EXPECT_EQ(record.BoltDescSecInter, "#6 smooth - grade 75");
  EXPECT_EQ(record.BoltTableDiameterSecInter, 0.75F);
  EXPECT_EQ(record.BoltTableGradeSecInter, 75);
}

TEST_F(SavingParameters, TakesASupportsNameFromTheListOrFromTheText) {
  dialog.Open();
  Do("cmbSupportTypeSecEntry=CAN (24in)|optSupportTypeSecInter=1|txtSupportTypeSecInter=Stone pack|"
     "txtSupportTypeSecEntry=not this");

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.SupportTypeNameSecEntry, "CAN (24in)");
  EXPECT_EQ(program.WorkParms.SupportCapSecEntry, 95);
  EXPECT_EQ(program.WorkParms.SupportTypeNameSecInter, "Stone pack");
}

TEST_F(SavingParameters, LosesTheNameOfAnIntersectionsSupportThatWasTypedInBetween) {
  dialog.Open();
  Do("optSupportTypeSecInter=1|optSupportTypeSecInter=0");

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.SupportTypeNameSecInter, "");
}

// ---- the rating -----------------------------------------------------------------------------------------------------

TEST_F(SavingParameters, RoundsTheRatingWithTiesToTheEvenNumber) {
  dialog.Open();
  for (const auto& [text, rating] :
       {std::pair{"44.5", 44}, std::pair{"45.5", 46}, std::pair{"45.4", 45}, std::pair{"99.5", 100}}) {
    dialog.txtCMRR.SetText(text);
    dialog.SaveWorkParms();
    EXPECT_EQ(program.WorkParms.CMRR, rating) << text;
  }
}

TEST_F(SavingParameters, RefusesARatingThatIsNoInteger) {
  dialog.Open();
  dialog.txtCMRR.SetText("40000");

  EXPECT_FALSE(dialog.SaveWorkParms());

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("CMRR: Value '40000' is too large"));
  EXPECT_EQ(program.WorkParms.CMRR, 45);
  EXPECT_TRUE(program.FileSaved);
  EXPECT_FALSE(dialog.WasCommitted);
}

TEST_F(SavingParameters, TakesTheRatingsOriginFromTheEstimatorAndNotFromTheHiddenText) {
  dialog.Open();
  program.estimator.EstimatorRegion = 3;
  program.estimator.EstimatorRockType = 5;
  Do("txtRegion=1|txtOption=2");

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.CMRRRegionIndex, 3);
  EXPECT_EQ(program.WorkParms.CMRRRockTypeIndex, 5);
}

// ---- the design as it is being edited -------------------------------------------------------------------------------

TEST_F(SavingParameters, GivesTheDesignThatACommitWouldStoreWithoutCommittingIt) {
  dialog.Open();
  Do("txtDepthofCover=512.5|cmbBoltGradeSecEntry=60|cmbBoltGradeSecInter=100|chkSecEntries_3=1");
  program.estimator.EstimatorRegion = 3;
  program.WorkParms.CostBoltCost = 3.75F;

  ProjectRecord edited = program.WorkParms;
  dialog.ReadEdits(edited);

  EXPECT_EQ(edited.DepthofCover, 512.5F);
  EXPECT_EQ(edited.BoltGradeStdSecInter, 60);
  EXPECT_EQ(edited.SecEntryUseStanding, 1);
  EXPECT_EQ(edited.CMRRRegionIndex, 3);
  EXPECT_EQ(edited.StabFactorEntry1, 1.06F);
  EXPECT_EQ(edited.CostBoltCost, 3.75F);
  EXPECT_EQ(program.WorkParms.DepthofCover, 400);
  EXPECT_EQ(program.WorkParms.StabFactorEntry1, 0);
  EXPECT_TRUE(program.FileSaved);
  EXPECT_TRUE(program.FileEmpty);
  EXPECT_FALSE(dialog.WasCommitted);
}

TEST_F(SavingParameters, GivesTheNumbersThatADesignCanHoldAndLeavesTheOthers) {
  dialog.Open();
  DoQuietly("txtDepthofCover=512.5|txtTrussCapacitySecInter=1E39|txtCMRR=40000");
  ProjectRecord design;
  design.TrussCapacitySecInter = 28;
  design.CMRR = 52;

  dialog.ReadEdits(design);

  EXPECT_EQ(design.DepthofCover, 512.5F);
  EXPECT_EQ(design.TrussCapacitySecInter, 28);
  EXPECT_EQ(design.CMRR, 52);
}

}  // namespace
}  // namespace orby::test
