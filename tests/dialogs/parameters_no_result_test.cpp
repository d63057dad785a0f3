// The parameters dialog when a result cannot be computed or a number is too large.
#include "parameters_faults.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

struct NoResultShown : AParametersDialog {
  void OpenWithAllSystems() {
    dialog.Open();
    Do(AllSystems);
  }

  static Texts Systems(const OutputControls& outputs) {
    Texts texts = TextsOf(outputs.SupportCap);
    for (const std::string& factor : TextsOf(outputs.StabFactor)) texts.push_back(factor);
    return texts;
  }
  Texts Entries() const { return Systems(dialog.EntryOutputs); }
  Texts Intersections() const { return Systems(dialog.InterOutputs); }
};

// The effect of each field on the capacities and factors of cable, trusses, roof bolts and standing supports.
struct FailingSystem {
  std::string_view edit;
  Texts shown;
};

TEST_F(NoResultShown, OfAnEntryReplacesOnlyTheFailingSystem) {
  const FailingSystem cases[] = {
      {"txtTrussSpacingSecEntry=0", {"10.6", "--", "16.6", "12.5", "1.06", "--", "1.66", "1.25"}},
      {"txtTrussSpacingSecEntry=", {"10.6", "--", "16.6", "12.5", "1.06", "--", "1.66", "1.25"}},
      {"txtTrussCapacitySecEntry=1E40", {"10.6", "--", "16.6", "12.5", "1.06", "--", "1.66", "1.25"}},
      {"txtTrussAngleSecEntry=1E400", {"10.6", "--", "16.6", "12.5", "1.06", "--", "1.66", "1.25"}},
      {"txtRowSpacingSecEntry=0", {"10.6", "10.6", "--", "12.5", "1.06", "1.06", "--", "1.25"}},
      {"txtBoltsperRowSecEntry=1E400", {"10.6", "10.6", "--", "12.5", "1.06", "1.06", "--", "1.25"}},
      {"txtCableRowSpacingSecEntry=1E40", {"--", "10.6", "16.6", "12.5", "--", "1.06", "1.66", "1.25"}},
      {"txtCableBoltsPerRowSecEntry=1E38", {"--", "10.6", "16.6", "12.5", "--", "1.06", "1.66", "1.25"}},
      {"cmbCableDiamSecEntry=1E40", {"--", "10.6", "16.6", "12.5", "--", "1.06", "1.66", "1.25"}},
      {"txtSupportCapSecEntry=1E400", {"10.6", "10.6", "16.6", "--", "1.06", "1.06", "1.66", "--"}},
      // The trusses also need the spacing of the standing supports.
      {"txtSupportRowSpacingSecEntry=1E40", {"10.6", "--", "16.6", "--", "1.06", "--", "1.66", "--"}},
  };
  program.project.WorkParms.Entries.Bolt.TableRow = 6;
  for (const FailingSystem& failing : cases) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    Edit(other, failing.edit);

    EXPECT_EQ(Systems(other.EntryOutputs), failing.shown) << failing.edit;
    EXPECT_THAT(TextsOf(other.EntryOutputs.RockLoad), Each("10.0")) << failing.edit;
  }
}

TEST_F(NoResultShown, OfAnIntersectionReplacesOnlyTheFailingSystem) {
  const FailingSystem cases[] = {
      {"txtCableNumberSecInter=1E40", {"--", "170", "166", "200", "--", "0.93", "0.91", "1.09"}},
      {"txtTrussCapacitySecInter=1E39", {"264", "--", "166", "200", "1.44", "--", "0.91", "1.09"}},
      {"txtTrussNumberSecInter=1E38", {"264", "--", "166", "200", "1.44", "--", "0.91", "1.09"}},
      {"txtBoltNumberSecInter=-1E400", {"264", "170", "--", "200", "1.44", "0.93", "--", "1.09"}},
      {"txtSupportNumberSecInter=1E400", {"264", "170", "166", "--", "1.44", "0.93", "0.91", "--"}},
  };
  program.project.WorkParms.Intersections.Bolt.TableRow = 6;
  for (const FailingSystem& failing : cases) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    Edit(other, failing.edit);

    EXPECT_EQ(Systems(other.InterOutputs), failing.shown) << failing.edit;
    EXPECT_THAT(TextsOf(other.InterOutputs.RockLoad), Each("183")) << failing.edit;
  }
}

TEST_F(NoResultShown, OfAnEntryReplacesEverythingWithoutARockLoad) {
  for (const std::string_view bad : {"txtUnitWeight=1E40", "txtRockLoadHeight=1E400", "txtRockFallAngle=1E40",
                                     "txtEntryWidth=1E400", "txtRockLoadHeight=3E38|txtRockFallAngle=0"}) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    Edit(other, bad);

    EXPECT_THAT(Systems(other.EntryOutputs), Each("--")) << bad;
    EXPECT_THAT(TextsOf(other.EntryOutputs.RockLoad), Each("--")) << bad;
  }
}

TEST_F(NoResultShown, OfAnIntersectionReplacesEverythingWithoutARockLoad) {
  // A limited height requires an angle of the entry.
  for (const std::string_view bad :
       {"txtUnitWeight=1E40", "txtRockLoadHeightInter=1E400", "txtRockFallAngleEntry=1E40", "txtRockFallAngleXcut=1E40",
        "txtActualSpanDiagonals=1E400", "txtRockLoadHeightInter=40|txtRockFallAngleEntry=0"}) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    Edit(other, bad);

    EXPECT_THAT(Systems(other.InterOutputs), Each("--")) << bad;
    EXPECT_THAT(TextsOf(other.InterOutputs.RockLoad), Each("--")) << bad;
  }
}

TEST_F(NoResultShown, DoesNotComeFromFieldsOfUnusedSystems) {
  dialog.Open();

  Do("txtTrussCapacitySecEntry=1E40|txtSupportRowSpacingSecEntry=1E400|txtBoltsperRowSecEntry=1E40|"
     "txtTrussNumberSecInter=1E40|txtBoltNumberSecInter=1E400|txtSupportNumberSecInter=1E40");

  EXPECT_THAT(Entries(), ElementsAre("10.6", "---", "---", "---", "1.06", "---", "---", "---"));
  EXPECT_THAT(Intersections(), ElementsAre("264", "---", "---", "---", "1.44", "---", "---", "---"));
}

TEST_F(NoResultShown, DoesNotComeFromUnneededFieldsOfASkippedSystem) {
  OpenWithAllSystems();
  const Texts before = Entries();

  Do("txtCableRowSpacingSecEntry=0|txtCableBoltsPerRowSecEntry=1E40|txtBoltsperRowSecEntry=0|"
     "txtRowSpacingSecEntry=1E40|txtSupportRowSpacingSecEntry=0|txtTrussCapacitySecEntry=1E40|"
     "txtSupportCapSecEntry=1E400");

  EXPECT_EQ(Entries(), before);
}

TEST_F(NoResultShown, DoesNotComeFromATypedBoltIfTheTableIsUsed) {
  dialog.Open();

  Do("txtBoltDiameterPrimary=1E40|txtBoltGradePrimary=1E400|txtBoltLengthPrimary=6.5");

  EXPECT_EQ(dialog.txtActualPSUP.Text(), "5.5");
}

TEST_F(NoResultShown, OfTheActualSupportIsADash) {
  for (const std::string_view bad :
       {"txtBoltLengthPrimary=1E40", "txtRowSpacingPrimary=1E400", "txtEntryWidth=-1E400", "txtBoltsperRowPrimary=1E40",
        "optBoltOptionsPrimary=1|cmbBoltGradePrimary=1E40", "txtBoltLengthPrimary=3E38|txtBoltsperRowPrimary=9"}) {
    ParametersDialog other(program);
    other.Open();

    Edit(other, bad);
    other.ShowActualPSUP();

    EXPECT_EQ(other.txtActualPSUP.Text(), "--") << bad;
    EXPECT_EQ(other.txtSugPSUP.Text(), "7.6") << bad;
  }
}

TEST_F(NoResultShown, ClearsTheEntriesUnderABadUnitWeightWhateverElseIsTyped) {
  OpenWithAllSystems();
  const Texts before = Intersections();
  DoQuietly("txtUnitWeight=50|txtRockLoadHeightInter=1E400");

  dialog.ShowIntersections();

  EXPECT_EQ(Intersections(), before);
  EXPECT_THAT(Entries(), Each("--"));
}

TEST_F(NoResultShown, IsStoredAsZero) {
  OpenWithAllSystems();
  Do("txtTrussSpacingSecEntry=0");

  EXPECT_TRUE(dialog.SaveWorkParms());

  EXPECT_EQ(program.project.WorkParms.Entries.Truss.SupportCap, 0);
  EXPECT_EQ(program.project.WorkParms.Entries.Truss.StabFactor, 0);
  EXPECT_EQ(program.project.WorkParms.Entries.Cable.StabFactor, 1.06F);
}

// ---- numbers too large to store -------------------------------------------------------------------------------------

struct NumbersTooLargeToStore : AParametersDialog {
  Texts Told(std::string_view edits) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, edits);
    platform.boxes.shown.clear();
    EXPECT_FALSE(other.ValidateParameters()) << edits;
    return platform.boxes.Texts();
  }
};

TEST_F(NumbersTooLargeToStore, FailEveryCheck) {
  for (const std::string number : {"1E39", "-1E39", "1E400", "-1E400"}) {
    EXPECT_THAT(Told("txtCMRR=" + number), ElementsAre("Invalid CMRR"));
    EXPECT_THAT(Told("txtUnitWeight=" + number),
                ElementsAre("Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf"));
    EXPECT_THAT(Told("txtDepthofCover=" + number), ElementsAre("Invalid depth of cover"));
    EXPECT_THAT(Told("chkPrimSupport=1|txtRowSpacingPrimary=" + number), ElementsAre("Invalid roof bolt row spacing"));
    EXPECT_THAT(Told("chkSecondSupEntries=1|txtRockFallAngle=" + number), ElementsAre("Invalid roof fall angle"));
    EXPECT_THAT(Told("chkSecondSupInter=1|txtCableCapacitySecInter=" + number), ElementsAre("Invalid cable capacity"));
  }
}

TEST_F(NumbersTooLargeToStore, DoNotMatterToAnUnusedCheck) {
  dialog.Open();
  Do("chkPrimSupport=0|chkSecondSupEntries=0");
  Do("txtRowSpacingPrimary=1E400|txtRockFallAngle=1E40");

  EXPECT_TRUE(dialog.ValidateParameters());
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

struct RefusedField {
  std::string_view field;
  std::string_view caption;
  int outerTab;
  int entryTab;
  int interTab;
};

TEST_F(NumbersTooLargeToStore, AreRefusedWithTheNameOfTheirField) {
  const RefusedField cases[] = {
      {"txtRowSpacingPrimary", "Roof Bolt Row Spacing (ft)", 1, 0, 0},
      {"txtBoltDiameterPrimary", "Roof Bolt Diameter (in)", 1, 0, 0},
      {"txtRockLoadHeight", "Rock Load Height (ft)", 2, 0, 0},
      {"txtTrussSpacingSecEntry", "Truss Spacing (ft)", 2, 1, 0},
      {"txtBoltLengthSecEntry", "Roof Bolt Length (ft)", 2, 2, 0},
      {"txtSupportCapSecEntry", "Support Capacity (tons)", 2, 3, 0},
      {"txtRockFallAngleXcut", "Roof Fall Angle Crosscut (deg)", 3, 0, 0},
      {"txtCableLengthSecInter", "Cable Bolt Length (ft)", 3, 0, 0},
      {"txtTrussNumberSecInter", "Number of Trusses", 3, 0, 1},
      {"txtBoltNumberSecInter", "Number of Roof Bolts", 3, 0, 2},
      {"txtSupportNumberSecInter", "Number of Supports", 3, 0, 3},
  };
  program.project.WorkParms.Primary.Analysed = 0;
  program.project.WorkParms.Entries.Analysed = 0;
  program.project.WorkParms.Intersections.Analysed = 0;
  for (const RefusedField& refused : cases) {
    for (Button ParametersDialog::*command : {&ParametersDialog::Command2, &ParametersDialog::cmdresults}) {
      ParametersDialog other(program);
      other.Open();
      Edit(other, "txtDepthofCover=512|optBoltDiameterPrimary=0|" + std::string(refused.field) + "= 1E39");
      const Single before = program.windows.WorkParmsCopy.Place.DepthofCover;
      platform.boxes.shown.clear();

      (other.*command).Press();

      ASSERT_THAT(platform.boxes.Texts(), ElementsAre(std::string(refused.caption) + ": Value '1E39' is too large"));
      EXPECT_EQ(platform.boxes.shown[0].title, program.windows.titles.RangeErrorTitle);
      EXPECT_EQ(platform.boxes.shown[0].style, BoxIcon::Critical);
      EXPECT_EQ(other.SSTab1.Tab(), refused.outerTab) << refused.field;
      EXPECT_EQ(other.SSTab2.Tab(), refused.entryTab) << refused.field;
      EXPECT_EQ(other.SSTab3.Tab(), refused.interTab) << refused.field;
      EXPECT_EQ(other.FocusRequest(), other.Find(refused.field));
      EXPECT_TRUE(other.IsOpen());
      EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
      EXPECT_EQ(program.windows.WorkParmsCopy.Place.DepthofCover, before);
      EXPECT_TRUE(program.project.FileSaved);
      EXPECT_EQ(platform.windows.modalForms, 0);
    }
  }
}

TEST_F(NumbersTooLargeToStore, OfATableRowAreRefusedWithTheNameOfTheTable) {
  dialog.Open();
  dialog.PrimaryBoltControls.Table.SetCell(2, BoltColumn::Grade, "1E39");
  Do("VSFlexGridPrimary=2");

  dialog.Command2.Press();

  EXPECT_EQ(dialog.txtActualPSUP.Text(), "--");
  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("Roof Bolt Standard Table Selection: A value in the selected row is too large"));
  EXPECT_EQ(dialog.FocusRequest(), &dialog.PrimaryBoltControls.Table);
  EXPECT_TRUE(dialog.IsOpen());
}

}  // namespace
}  // namespace orby::test
