#include <utility>

#include "design/field.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using SavingParameters = AParametersDialog;

struct SavedNumber {
  std::string_view control;
  std::string_view text;
  SingleField field;
  Single value;
};

// A different value for every number of a design.
const std::vector<SavedNumber> SavedNumbers{
    {"txtDepthofCover", "512.5", [](auto& d) { return &d.Place.DepthofCover; }, 512.5F},
    {"txtUnitWeight", "158.5", [](auto& d) { return &d.Place.UnitWeight; }, 158.5F},
    {"txtActualSpanDiagonals", "61.2", [](auto& d) { return &d.Place.ActualSpanDiagonals; }, 61.2F},
    {"txtEntryWidth", "18.6", [](auto& d) { return &d.Place.EntryWidth; }, 18.6F},
    {"txtStabilityFactor", "1.15", [](auto& d) { return &d.Primary.StabilityFactor; }, 1.15F},
    {"txtBoltLengthPrimary", "7.5", [](auto& d) { return &d.Primary.Length; }, 7.5F},
    {"txtBoltsperRowPrimary", "4.5", [](auto& d) { return &d.Primary.BoltsperRow; }, 4.5F},
    {"txtRowSpacingPrimary", "4.25", [](auto& d) { return &d.Primary.RowSpacing; }, 4.25F},
    {"cmbBoltDiameterPrimary", "0.875", [](auto& d) { return &d.Primary.DiameterStd; }, 0.875F},
    {"txtBoltDiameterPrimary", "0.81", [](auto& d) { return &d.Primary.DiameterManual; }, 0.81F},
    {"cmbBoltGradePrimary", "90", [](auto& d) { return &d.Primary.GradeStd; }, 90},
    {"txtBoltGradePrimary", "61", [](auto& d) { return &d.Primary.GradeManual; }, 61},
    {"txtRockLoadHeight", "7.25", [](auto& d) { return &d.Entries.RockLoadHeight; }, 7.25F},
    {"txtRockFallAngle", "25", [](auto& d) { return &d.Entries.RockFallAngle; }, 25},
    {"txtCableLengthSecEntry", "11", [](auto& d) { return &d.Entries.Cable.Length; }, 11},
    {"cmbCableDiamSecEntry", "0.7", [](auto& d) { return &d.Entries.Cable.Diam; }, 0.7F},
    {"cmbCableCapacitySecEntry", "35.7", [](auto& d) { return &d.Entries.Cable.CapacityStd; }, 35.7F},
    {"txtCableCapacitySecEntry", "31", [](auto& d) { return &d.Entries.Cable.CapacityManual; }, 31},
    {"txtCableBoltsPerRowSecEntry", "3", [](auto& d) { return &d.Entries.Cable.BoltsPerRow; }, 3},
    {"txtCableRowSpacingSecEntry", "5.5", [](auto& d) { return &d.Entries.Cable.RowSpacing; }, 5.5F},
    {"txtTrussLengthMemberSecEntry", "8.5", [](auto& d) { return &d.Entries.Truss.LengthMember; }, 8.5F},
    {"txtTrussAngleSecEntry", "40", [](auto& d) { return &d.Entries.Truss.Angle; }, 40},
    {"txtTrussCapacitySecEntry", "32", [](auto& d) { return &d.Entries.Truss.Capacity; }, 32},
    {"txtTrussSpacingSecEntry", "5", [](auto& d) { return &d.Entries.Truss.Spacing; }, 5},
    {"txtBoltLengthSecEntry", "6.5", [](auto& d) { return &d.Entries.Bolt.Length; }, 6.5F},
    {"cmbBoltDiameterSecEntry", "0.688", [](auto& d) { return &d.Entries.Bolt.DiameterStd; }, 0.688F},
    {"txtBoltDiameterSecEntry", "0.82", [](auto& d) { return &d.Entries.Bolt.DiameterManual; }, 0.82F},
    {"cmbBoltGradeSecEntry", "60", [](auto& d) { return &d.Entries.Bolt.GradeStd; }, 60},
    {"txtBoltGradeSecEntry", "62", [](auto& d) { return &d.Entries.Bolt.GradeManual; }, 62},
    {"txtBoltsperRowSecEntry", "5.2", [](auto& d) { return &d.Entries.Bolt.BoltsperRow; }, 5.2F},
    {"txtRowSpacingSecEntry", "4.75", [](auto& d) { return &d.Entries.Bolt.RowSpacing; }, 4.75F},
    {"txtSupportCapSecEntry", "52", [](auto& d) { return &d.Entries.Standing.Capacity; }, 52},
    {"txtNumberSupPerRowSecEntry", "2.5", [](auto& d) { return &d.Entries.Standing.NumberPerRow; }, 2.5F},
    {"txtSupportRowSpacingSecEntry", "8.75", [](auto& d) { return &d.Entries.Standing.RowSpacing; }, 8.75F},
    {"txtRockLoadHeightInter", "9.25", [](auto& d) { return &d.Intersections.RockLoadHeight; }, 9.25F},
    {"txtRockFallAngleEntry", "26", [](auto& d) { return &d.Intersections.RockFallAngle; }, 26},
    {"txtRockFallAngleXcut", "27", [](auto& d) { return &d.Intersections.RockFallAngleXcut; }, 27},
    {"txtCableLengthSecInter", "12", [](auto& d) { return &d.Intersections.Cable.Length; }, 12},
    {"cmbCableCapacitySecInter", "26.4", [](auto& d) { return &d.Intersections.Cable.CapacityStd; }, 26.4F},
    {"txtCableCapacitySecInter", "33", [](auto& d) { return &d.Intersections.Cable.CapacityManual; }, 33},
    {"txtCableNumberSecInter", "13", [](auto& d) { return &d.Intersections.Cable.Number; }, 13},
    {"txtTrussLengthMemberSecInter", "9", [](auto& d) { return &d.Intersections.Truss.LengthMember; }, 9},
    {"txtTrussAngleSecInter", "41", [](auto& d) { return &d.Intersections.Truss.Angle; }, 41},
    {"txtTrussCapacitySecInter", "34", [](auto& d) { return &d.Intersections.Truss.Capacity; }, 34},
    {"txtTrussNumberSecInter", "6", [](auto& d) { return &d.Intersections.Truss.Number; }, 6},
    {"txtBoltLengthSecInter", "6.25", [](auto& d) { return &d.Intersections.Bolt.Length; }, 6.25F},
    {"txtBoltNumberSecInter", "14", [](auto& d) { return &d.Intersections.Bolt.Number; }, 14},
    {"txtSupportCapSecInter", "53", [](auto& d) { return &d.Intersections.Standing.Capacity; }, 53},
    {"txtSupportNumberSecInter", "7", [](auto& d) { return &d.Intersections.Standing.Number; }, 7},
};

// The intersections' own selection, which the entries' selection replaces.
constexpr std::string_view UnsavedSelection =
    "cmbBoltDiameterSecInter=0.804|txtBoltDiameterSecInter=0.83|optBoltDiameterSecInter=1|"
    "cmbBoltGradeSecInter=100|txtBoltGradeSecInter=63|cmbCableDiamSecInter=0.6";

struct SavedFlag {
  std::string_view control;
  IntegerField field;
};

const std::vector<SavedFlag> SavedFlags{
    {"chkCMRRManual", [](auto& d) { return &d.Place.CMRRManual; }},
    {"chkPrimSupport", [](auto& d) { return &d.Primary.Analysed; }},
    {"chkSecondSupEntries", [](auto& d) { return &d.Entries.Analysed; }},
    {"chkSecondSupInter", [](auto& d) { return &d.Intersections.Analysed; }},
    {"optBoltOptionsPrimary", [](auto& d) { return &d.Primary.Options; }},
    {"optBoltDiameterPrimary", [](auto& d) { return &d.Primary.DiameterMode; }},
    {"optBoltGradePrimary", [](auto& d) { return &d.Primary.GradeMode; }},
    {"chkSecEntries_0", [](auto& d) { return &d.Entries.Cable.Use; }},
    {"chkSecEntries_1", [](auto& d) { return &d.Entries.Truss.Use; }},
    {"chkSecEntries_2", [](auto& d) { return &d.Entries.Bolt.Use; }},
    {"chkSecEntries_3", [](auto& d) { return &d.Entries.Standing.Use; }},
    {"optCableCapModeSecEntry", [](auto& d) { return &d.Entries.Cable.CapMode; }},
    {"optCableCapacitySecEntry", [](auto& d) { return &d.Entries.Cable.Capacity; }},
    {"optBoltOptionsSecEntry", [](auto& d) { return &d.Entries.Bolt.Options; }},
    {"optSupportTypeSecEntry", [](auto& d) { return &d.Entries.Standing.TypeMode; }},
    {"chkSecInter_0", [](auto& d) { return &d.Intersections.Cable.Use; }},
    {"chkSecInter_1", [](auto& d) { return &d.Intersections.Truss.Use; }},
    {"chkSecInter_2", [](auto& d) { return &d.Intersections.Bolt.Use; }},
    {"chkSecInter_3", [](auto& d) { return &d.Intersections.Standing.Use; }},
    {"optCableCapModeSecInter", [](auto& d) { return &d.Intersections.Cable.CapMode; }},
    {"optCableCapacitySecInter", [](auto& d) { return &d.Intersections.Cable.Capacity; }},
    {"optBoltOptionsSecInter", [](auto& d) { return &d.Intersections.Bolt.Options; }},
    {"optSupportTypeSecInter", [](auto& d) { return &d.Intersections.Standing.TypeMode; }},
};

// ---- fields ---------------------------------------------------------------------------------------------------------

TEST_F(SavingParameters, StoresEachNumberInItsField) {
  dialog.Open();
  Do(UnsavedSelection);
  for (const SavedNumber& saved : SavedNumbers) SetControl(dialog, saved.control, std::string(saved.text));

  dialog.Command2.Press();

  ASSERT_THAT(platform.boxes.Texts(), IsEmpty());
  for (const SavedNumber& saved : SavedNumbers) {
    EXPECT_EQ(saved.field.In(program.project.WorkParms), saved.value) << saved.control;
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

TEST_F(SavingParameters, StoresEachChoiceOnlyInItsField) {
  for (const SavedFlag& set : SavedFlags) {
    ParametersDialog other(program);
    other.Open();
    other.HoldEvents = true;
    for (const SavedFlag& clear : SavedFlags) SetControl(other, clear.control, "0");
    SetControl(other, set.control, "1");

    other.SaveWorkParms();

    for (const SavedFlag& saved : SavedFlags) {
      EXPECT_EQ(saved.field.Get(program.project.WorkParms), saved.control == set.control ? 1 : 0)
          << saved.control << " after " << set.control;
    }
  }
}

TEST_F(SavingParameters, KeepsTheFieldsOfUnusedSystems) {
  dialog.Open();
  Do("chkSecEntries_0=0|chkSecInter_0=0|txtCableLengthSecEntry=17|txtTrussCapacitySecInter=44");

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Entries.Cable.Length, 17);
  EXPECT_EQ(program.project.WorkParms.Intersections.Truss.Capacity, 44);
  EXPECT_EQ(program.project.WorkParms.Entries.Cable.Use, 0);
}

TEST_F(SavingParameters, LeavesTheCostsUnchanged) {
  program.project.WorkParms.Cost.BoltCost = 3.75F;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Cost.BoltCost, 3.75F);
  EXPECT_EQ(program.project.WorkParms.Cost.WeeksYear, 50);
}

// ---- the intersections' manual selection ----------------------------------------------------------------------------

TEST_F(SavingParameters, CopiesTheManualBoltsAndCableOfTheEntriesToTheIntersections) {
  dialog.Open();
  Do(UnsavedSelection);
  Do("cmbBoltDiameterSecEntry=0.688|txtBoltDiameterSecEntry=0.82|optBoltGradeSecEntry=1|"
     "cmbBoltGradeSecEntry=60|txtBoltGradeSecEntry=62|cmbCableDiamSecEntry=0.7");

  dialog.Command2.Press();

  const Design& record = program.project.WorkParms;
  EXPECT_EQ(record.Intersections.Bolt.DiameterMode, ValueSource::Standard);
  EXPECT_EQ(record.Intersections.Bolt.DiameterStd, 0.688F);
  EXPECT_EQ(record.Intersections.Bolt.DiameterManual, 0.82F);
  EXPECT_EQ(record.Intersections.Bolt.GradeMode, ValueSource::Typed);
  EXPECT_EQ(record.Intersections.Bolt.GradeStd, 60);
  EXPECT_EQ(record.Intersections.Bolt.GradeManual, 62);
  EXPECT_EQ(record.Intersections.Cable.Diam, 0.7F);
  EXPECT_EQ(record.Entries.Bolt.DiameterMode, ValueSource::Standard);
  EXPECT_EQ(record.Entries.Bolt.GradeMode, ValueSource::Typed);
}

TEST_F(SavingParameters, DiscardsACableDiameterChosenOnlyForIntersections) {
  dialog.Open();
  Do("cmbCableDiamSecInter=0.7");
  ASSERT_EQ(dialog.InterOutputs.SupportCap[0].Text(), "357");

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Intersections.Cable.Diam, 0.6F);
  EXPECT_EQ(program.project.WorkParms.Intersections.Cable.SupportCap, 357);
}

TEST_F(SavingParameters, StillLoadsTheIntersectionsOwnSelection) {
  Design& record = program.project.WorkParms;
  record.Intersections.Bolt.DiameterMode = record.Intersections.Bolt.GradeMode = ValueSource::Typed;
  record.Intersections.Bolt.DiameterStd = 0.804F;
  record.Intersections.Bolt.DiameterManual = 0.83F;
  record.Intersections.Bolt.GradeStd = 100;
  record.Intersections.Bolt.GradeManual = 63;
  record.Intersections.Cable.Diam = 0.7F;

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

TEST_F(SavingParameters, StoresEachBoltFromItsOwnTable) {
  dialog.Open();
  Do("VSFlexGridPrimary=4|VSFlexGridEntry=9|VSFlexGridInter=7");

  dialog.Command2.Press();

  const Design& record = program.project.WorkParms;
  EXPECT_EQ(record.Primary.TableRow, 3);
  EXPECT_EQ(record.Primary.Desc, "#6 special rebar - grade 75");
  EXPECT_EQ(record.Primary.TableDiameter, 0.677F);
  EXPECT_EQ(record.Primary.TableGrade, 75);
  EXPECT_EQ(record.Entries.Bolt.TableRow, 8);
  EXPECT_EQ(record.Entries.Bolt.Desc, "#7 rebar - grade 40");
  EXPECT_EQ(record.Entries.Bolt.TableDiameter, 0.875F);
  EXPECT_EQ(record.Entries.Bolt.TableGrade, 40);
  EXPECT_EQ(record.Intersections.Bolt.TableRow, 6);
  EXPECT_EQ(record.Intersections.Bolt.Desc, "#6 smooth - grade 75");
  EXPECT_EQ(record.Intersections.Bolt.TableDiameter, 0.75F);
  EXPECT_EQ(record.Intersections.Bolt.TableGrade, 75);
}

TEST_F(SavingParameters, StoresASupportsNameFromTheListOrFromTheText) {
  dialog.Open();
  Do("cmbSupportTypeSecEntry=CAN (24in)|optSupportTypeSecInter=1|txtSupportTypeSecInter=Stone pack|"
     "txtSupportTypeSecEntry=not this");

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Entries.Standing.TypeName, "CAN (24in)");
  EXPECT_EQ(program.project.WorkParms.Entries.Standing.Capacity, 95);
  EXPECT_EQ(program.project.WorkParms.Intersections.Standing.TypeName, "Stone pack");
}

TEST_F(SavingParameters, LosesTheNameOfAnIntersectionsSupportTypedInBetween) {
  dialog.Open();
  Do("optSupportTypeSecInter=1|optSupportTypeSecInter=0");

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Intersections.Standing.TypeName, "");
}

// ---- the rating -----------------------------------------------------------------------------------------------------

TEST_F(SavingParameters, RoundsTheRatingWithTiesToTheEvenNumber) {
  dialog.Open();
  for (const auto& [text, rating] :
       {std::pair{"44.5", 44}, std::pair{"45.5", 46}, std::pair{"45.4", 45}, std::pair{"99.5", 100}}) {
    dialog.txtCMRR.SetText(text);
    dialog.SaveWorkParms();
    EXPECT_EQ(program.project.WorkParms.Place.CMRR, rating) << text;
  }
}

TEST_F(SavingParameters, RefusesARatingThatIsNoInteger) {
  dialog.Open();
  dialog.txtCMRR.SetText("40000");

  EXPECT_FALSE(dialog.SaveWorkParms());

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("CMRR: Value '40000' is too large"));
  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 45);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_FALSE(dialog.WasCommitted);
}

TEST_F(SavingParameters, StoresTheRatingsSourceFromTheEstimatorAndNotFromTheHiddenText) {
  dialog.Open();
  program.windows.estimator.EstimatorRegion = 3;
  program.windows.estimator.EstimatorRockType = 5;
  Do("txtRegion=1|txtOption=2");

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Place.CMRRRegionIndex, 3);
  EXPECT_EQ(program.project.WorkParms.Place.CMRRRockTypeIndex, 5);
}

// ---- the edited design ----------------------------------------------------------------------------------------------

TEST_F(SavingParameters, ReadsTheDesignThatACommitWouldStoreWithoutCommittingIt) {
  dialog.Open();
  Do("txtDepthofCover=512.5|cmbBoltGradeSecEntry=60|cmbBoltGradeSecInter=100|chkSecEntries_3=1");
  program.windows.estimator.EstimatorRegion = 3;
  program.project.WorkParms.Cost.BoltCost = 3.75F;

  Design edited = program.project.WorkParms;
  dialog.ReadEdits(edited);

  EXPECT_EQ(edited.Place.DepthofCover, 512.5F);
  EXPECT_EQ(edited.Intersections.Bolt.GradeStd, 60);
  EXPECT_EQ(edited.Entries.Standing.Use, 1);
  EXPECT_EQ(edited.Place.CMRRRegionIndex, 3);
  EXPECT_EQ(edited.Entries.Cable.StabFactor, 1.06F);
  EXPECT_EQ(edited.Cost.BoltCost, 3.75F);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_EQ(program.project.WorkParms.Entries.Cable.StabFactor, 0);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_TRUE(program.project.FileEmpty);
  EXPECT_FALSE(dialog.WasCommitted);
}

TEST_F(SavingParameters, ReadsOnlyTheNumbersThatADesignCanHold) {
  dialog.Open();
  DoQuietly("txtDepthofCover=512.5|txtTrussCapacitySecInter=1E39|txtCMRR=40000");
  Design design;
  design.Intersections.Truss.Capacity = 28;
  design.Place.CMRR = 52;

  dialog.ReadEdits(design);

  EXPECT_EQ(design.Place.DepthofCover, 512.5F);
  EXPECT_EQ(design.Intersections.Truss.Capacity, 28);
  EXPECT_EQ(design.Place.CMRR, 52);
}

}  // namespace
}  // namespace orby::test
