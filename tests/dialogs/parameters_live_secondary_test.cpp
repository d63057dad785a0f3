#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;

using Texts = std::vector<std::string>;

struct SecondaryResultsShown : AParametersDialog {
  void OpenWithAllSystems() {
    dialog.Open();
    Do(AllSystems);
  }
  void Entries(std::string_view edits) {
    DoQuietly(edits);
    dialog.ShowEntries();
  }
  void Intersections(std::string_view edits) {
    DoQuietly(edits);
    dialog.ShowIntersections();
  }

  // Load, capacity and factor of a system.
  Texts Entry(std::size_t system) const { return ResultOf(dialog.EntryOutputs, system); }
  Texts Intersection(std::size_t system) const { return ResultOf(dialog.InterOutputs, system); }
  static Texts All(const OutputControls& outputs) {
    Texts all;
    for (std::size_t system = 0; system < SystemCount; ++system) {
      for (const std::string& text : ResultOf(outputs, system)) all.push_back(text);
    }
    return all;
  }

  // Opens the dialog, lets it show every system, and then leaves only this one in use.
  static void UseOnly(ParametersDialog& other, std::array<CheckBox, SystemCount>& boxes, std::size_t system) {
    other.Open();
    Edit(other, AllSystems);
    for (std::size_t i = 0; i < SystemCount; ++i) boxes[i].SetValue(i == system ? 1 : 0);
  }

 private:
  static Texts ResultOf(const OutputControls& outputs, std::size_t system) {
    return {outputs.RockLoad[system].Text(), outputs.SupportCap[system].Text(), outputs.StabFactor[system].Text()};
  }
};

using EntryResults = SecondaryResultsShown;
using IntersectionResults = SecondaryResultsShown;

// ---- entries --------------------------------------------------------------------------------------------------------

TEST_F(EntryResults, OfANewDesignAreThoseOfItsCables) {
  dialog.Open();

  EXPECT_THAT(Entry(0), ElementsAre("10.0", "10.6", "1.06"));
  for (const std::size_t unused : {1U, 2U, 3U}) EXPECT_THAT(Entry(unused), ElementsAre("10.0", "---", "---"));
}

TEST_F(EntryResults, OfEverySystemInEnglishUnits) {
  OpenWithAllSystems();

  EXPECT_THAT(Entry(0), ElementsAre("10.0", "10.6", "1.06"));
  EXPECT_THAT(Entry(1), ElementsAre("10.0", "10.6", "1.06"));
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "8.4", "0.85"));
  EXPECT_THAT(Entry(3), ElementsAre("10.0", "12.5", "1.25"));
}

TEST_F(EntryResults, OfEverySystemInMetricUnits) {
  StartDesign(Metric);

  OpenWithAllSystems();

  EXPECT_THAT(Entry(0), ElementsAre("335.1", "472.0", "1.41"));
  EXPECT_THAT(Entry(1), ElementsAre("335.1", "106.1", "0.32"));
  EXPECT_THAT(Entry(2), ElementsAre("335.1", "251.0", "0.75"));
  EXPECT_THAT(Entry(3), ElementsAre("335.1", "333.3", "0.99"));
}

TEST_F(EntryResults, ShowFactorsWithOneOrTwoDecimals) {
  OpenWithAllSystems();
  Entries("txtUnitWeight=100|txtRockLoadHeight=10|txtRockFallAngle=0|txtNumberSupPerRowSecEntry=4");

  Entries("txtSupportCapSecEntry=30");
  EXPECT_THAT(Entry(3), ElementsAre("10.0", "15.0", "1.5"));
  Entries("txtSupportCapSecEntry=25");
  EXPECT_THAT(Entry(3), ElementsAre("10.0", "12.5", "1.25"));
  Entries("txtSupportCapSecEntry=20");
  EXPECT_THAT(Entry(3), ElementsAre("10.0", "10.0", "1.0"));
}

TEST_F(EntryResults, AreDashesWhereTheFieldsMakeNoSense) {
  for (const std::string_view bad :
       {"txtUnitWeight=99", "txtUnitWeight=", "txtRockLoadHeight=0", "txtRockLoadHeight=-8", "txtRockFallAngle=-1",
        "txtRockFallAngle=90", "txtRockFallAngle=120", "txtEntryWidth=0", "txtEntryWidth=-20"}) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    other.HoldEvents = true;
    Edit(other, bad);
    other.ShowEntries();

    EXPECT_THAT(All(other.EntryOutputs), Each("--")) << bad;
    EXPECT_THAT(All(other.InterOutputs), testing::Contains("183")) << bad;
  }
}

TEST_F(EntryResults, AreGivenUpToTheLimitsOfUnitWeightAndAngle) {
  dialog.Open();

  Entries("txtUnitWeight=100");
  EXPECT_EQ(Entry(0)[0], "6.2");
  Entries("txtUnitWeight=162|txtRockFallAngle=0");
  EXPECT_EQ(Entry(0)[0], "13.0");
  Entries("txtRockFallAngle=89");
  EXPECT_EQ(Entry(0)[0], "0.1");
}

TEST_F(EntryResults, OfAMetricDesignNeedFifteenKilonewtons) {
  StartDesign(Metric);
  dialog.Open();

  Entries("txtUnitWeight=15");
  EXPECT_EQ(Entry(0)[0], "201.1");
  Entries("txtUnitWeight=14.9");
  EXPECT_THAT(All(dialog.EntryOutputs), Each("--"));
}

TEST_F(EntryResults, LimitTheRockToATriangleButNotTheTypedHeight) {
  dialog.Open();

  Do("txtRockLoadHeight=40");

  EXPECT_EQ(Entry(0)[0], "14.0");
  EXPECT_EQ(dialog.txtRockLoadHeight.Text(), "40");
}

TEST_F(EntryResults, OfASystemOutOfUseStayAsTheyWereButForTheLoad) {
  OpenWithAllSystems();
  Do("chkSecEntries_0=0|chkSecEntries_2=0");

  Do("txtUnitWeight=100|txtCableBoltsPerRowSecEntry=4|txtBoltsperRowSecEntry=8|txtSupportCapSecEntry=60");

  EXPECT_THAT(Entry(0), ElementsAre("6.2", "10.6", "1.06"));
  EXPECT_THAT(Entry(2), ElementsAre("6.2", "8.4", "0.85"));
  EXPECT_EQ(Entry(3)[1], "15.0");
}

TEST_F(EntryResults, OfASystemFollowItsOwnBoxAlone) {
  const std::array<Texts, SystemCount> expected{{{"21.1", "10.6", "8.4", "12.5"},
                                                 {"10.6", "21.2", "8.4", "12.5"},
                                                 {"10.6", "10.6", "16.9", "12.5"},
                                                 {"10.6", "10.6", "8.4", "25.0"}}};

  for (std::size_t inUse = 0; inUse < SystemCount; ++inUse) {
    ParametersDialog other(program);
    UseOnly(other, other.chkSecEntries, inUse);

    Edit(other,
         "txtCableBoltsPerRowSecEntry=4|txtTrussCapacitySecEntry=60|"
         "txtBoltsperRowSecEntry=8|txtSupportCapSecEntry=100");

    EXPECT_EQ(TextsOf(other.txtSupportCapEntry), expected[inUse]) << inUse;
  }
}

TEST_F(EntryResults, OfASystemWithoutSpacingOrBoltsStayAsTheyWere) {
  OpenWithAllSystems();

  Do("txtCableRowSpacingSecEntry=0|txtBoltsperRowSecEntry=0|txtSupportRowSpacingSecEntry=0|txtUnitWeight=100");

  EXPECT_THAT(Entry(0), ElementsAre("6.2", "10.6", "1.06"));
  EXPECT_THAT(Entry(2), ElementsAre("6.2", "8.4", "0.85"));
  EXPECT_THAT(Entry(3), ElementsAre("6.2", "12.5", "1.25"));
}

TEST_F(EntryResults, OfTrussesStayAsTheyWereWithoutASpacingOfStandingSupports) {
  OpenWithAllSystems();
  Do("txtSupportRowSpacingSecEntry=0");

  Do("txtTrussCapacitySecEntry=60");
  EXPECT_THAT(Entry(1), ElementsAre("10.0", "10.6", "1.06"));
  Do("txtTrussSpacingSecEntry=0");
  EXPECT_THAT(Entry(1), ElementsAre("10.0", "10.6", "1.06"));
  Do("txtTrussSpacingSecEntry=4|txtSupportRowSpacingSecEntry=8");
  EXPECT_EQ(Entry(1)[1], "21.2");
}

TEST_F(EntryResults, TakeTheCableByDiameterFromTheListOrAsTyped) {
  dialog.Open();

  Do("cmbCableDiamSecEntry=0.7");
  EXPECT_THAT(Entry(0), ElementsAre("10.0", "14.3", "1.43"));
  Do("cmbCableDiamSecEntry=0.65");
  EXPECT_THAT(Entry(0), ElementsAre("10.0", "0.0", "0.0"));
  Do("optCableCapModeSecEntry=1");
  EXPECT_THAT(Entry(0), ElementsAre("10.0", "10.8", "1.08"));
  Do("txtCableCapacitySecEntry=30|optCableCapacitySecEntry=1");
  EXPECT_THAT(Entry(0), ElementsAre("10.0", "12.0", "1.2"));
}

TEST_F(EntryResults, OfAMetricDesignTakeTheCableByDiameterFromTheMetricList) {
  StartDesign(Metric);
  dialog.Open();

  // Metric designs open with the capacity given; the diameter counts as soon as its option is on.
  Do("optCableCapModeSecEntry=0|cmbCableDiamSecEntry=28.6");
  EXPECT_THAT(Entry(0), ElementsAre("335.1", "776.0", "2.32"));
  Do("cmbCableDiamSecEntry=0.6");
  EXPECT_THAT(Entry(0), ElementsAre("335.1", "0.0", "0.0"));
}

TEST_F(EntryResults, TakeTheBoltFromTheTableTheListsOrAsTyped) {
  OpenWithAllSystems();

  Do("VSFlexGridEntry=7");
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "16.6", "1.66"));
  Entries("VSFlexGridEntry=1|optBoltOptionsSecEntry=1");
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "16.6", "1.66"));
  Entries("txtBoltDiameterSecEntry=0.875|txtBoltGradeSecEntry=62.5|optBoltDiameterSecEntry=1");
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "22.5", "2.26"));
  Do("optBoltGradeSecEntry=1");
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "18.8", "1.89"));
  Do("optBoltDiameterSecEntry=0");
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "13.8", "1.39"));
}

TEST_F(EntryResults, OfUltimateGradesAreThoseOfTheirYield) {
  StartDesign(English, StrengthBasis::Ultimate);
  OpenWithAllSystems();
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "3.4", "0.34"));
  Entries("optBoltOptionsSecEntry=1");
  EXPECT_THAT(Entry(2), ElementsAre("10.0", "16.6", "1.66"));

  StartDesign(Metric, StrengthBasis::Ultimate);
  ParametersDialog metric(program);
  metric.Open();
  Edit(metric, AllSystems);
  EXPECT_EQ(metric.txtSupportCapEntry[2].Text(), "101.4");
  Edit(metric, "optBoltOptionsSecEntry=1|optBoltDiameterSecEntry=1");
  EXPECT_EQ(metric.txtSupportCapEntry[2].Text(), "544.5");
  EXPECT_EQ(metric.txtStabFactorEntry[2].Text(), "1.63");
}

// ---- intersections --------------------------------------------------------------------------------------------------

TEST_F(IntersectionResults, OfANewDesignAreThoseOfItsCables) {
  dialog.Open();

  EXPECT_THAT(Intersection(0), ElementsAre("183", "264", "1.44"));
  for (const std::size_t unused : {1U, 2U, 3U}) EXPECT_THAT(Intersection(unused), ElementsAre("183", "---", "---"));
}

TEST_F(IntersectionResults, OfEverySystemInEnglishUnits) {
  OpenWithAllSystems();

  EXPECT_THAT(Intersection(0), ElementsAre("183", "264", "1.44"));
  EXPECT_THAT(Intersection(1), ElementsAre("183", "170", "0.93"));
  EXPECT_THAT(Intersection(2), ElementsAre("183", "84", "0.46"));
  EXPECT_THAT(Intersection(3), ElementsAre("183", "200", "1.09"));
}

TEST_F(IntersectionResults, OfEverySystemInMetricUnits) {
  StartDesign(Metric);

  OpenWithAllSystems();

  EXPECT_THAT(Intersection(0), ElementsAre("2213", "2360", "1.07"));
  EXPECT_THAT(Intersection(1), ElementsAre("2213", "1697", "0.77"));
  EXPECT_THAT(Intersection(2), ElementsAre("2213", "753", "0.34"));
  EXPECT_THAT(Intersection(3), ElementsAre("2213", "2000", "0.9"));
}

TEST_F(IntersectionResults, AreDashesWhereTheFieldsMakeNoSense) {
  for (const std::string_view bad :
       {"txtRockLoadHeightInter=0", "txtRockLoadHeightInter=-8", "txtRockFallAngleEntry=-1", "txtRockFallAngleEntry=90",
        "txtRockFallAngleXcut=-1", "txtRockFallAngleXcut=90", "txtEntryWidth=0", "txtEntryWidth=-20",
        "txtActualSpanDiagonals=20", "txtActualSpanDiagonals="}) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    other.HoldEvents = true;
    Edit(other, bad);
    other.ShowIntersections();

    EXPECT_THAT(All(other.InterOutputs), Each("--")) << bad;
    EXPECT_THAT(All(other.EntryOutputs), testing::Contains("10.0")) << bad;
  }
}

TEST_F(IntersectionResults, OfABadUnitWeightStayAndTheEntriesGoInstead) {
  OpenWithAllSystems();

  Intersections("txtUnitWeight=99");

  EXPECT_THAT(All(dialog.EntryOutputs), Each("--"));
  EXPECT_THAT(All(dialog.InterOutputs), ElementsAre("183", "264", "1.44", "183", "170", "0.93",  //
                                                    "183", "84", "0.46", "183", "200", "1.09"));

  Intersections("txtUnitWeight=100");

  EXPECT_EQ(Intersection(0)[0], "113");
}

TEST_F(IntersectionResults, FollowEachAngleByItself) {
  dialog.Open();

  Do("txtRockFallAngleEntry=20|txtRockFallAngleXcut=40");
  EXPECT_EQ(Intersection(0)[0], "176");
  Do("txtRockFallAngleEntry=0|txtRockFallAngleXcut=0");
  EXPECT_EQ(Intersection(0)[0], "292");
}

TEST_F(IntersectionResults, LimitTheHeightByTheEntryAngle) {
  dialog.Open();

  Do("txtRockLoadHeightInter=40");
  EXPECT_EQ(Intersection(0)[0], "223");
  Do("txtRockFallAngleXcut=10");
  EXPECT_EQ(Intersection(0)[0], "301");
  Do("txtRockFallAngleXcut=0");
  EXPECT_EQ(Intersection(0)[0], "335");
  EXPECT_EQ(dialog.txtRockLoadHeightInter.Text(), "40");
}

TEST_F(IntersectionResults, OfASystemOutOfUseStayAsTheyWereButForTheLoad) {
  OpenWithAllSystems();
  Do("chkSecInter_1=0|chkSecInter_3=0");

  Do("txtUnitWeight=100|txtTrussNumberSecInter=8|txtSupportNumberSecInter=8|txtCableNumberSecInter=5");

  EXPECT_THAT(Intersection(1), ElementsAre("113", "170", "0.93"));
  EXPECT_THAT(Intersection(3), ElementsAre("113", "200", "1.09"));
  EXPECT_EQ(Intersection(0)[1], "132");
}

TEST_F(IntersectionResults, OfASystemFollowItsOwnBoxAlone) {
  const std::array<Texts, SystemCount> expected{{{"528", "170", "84", "200"},
                                                 {"264", "339", "84", "200"},
                                                 {"264", "170", "169", "200"},
                                                 {"264", "170", "84", "400"}}};

  for (std::size_t inUse = 0; inUse < SystemCount; ++inUse) {
    ParametersDialog other(program);
    UseOnly(other, other.chkSecInter, inUse);

    Edit(other,
         "txtCableNumberSecInter=20|txtTrussNumberSecInter=8|txtBoltNumberSecInter=20|txtSupportNumberSecInter=8");

    EXPECT_EQ(TextsOf(other.txtSupportCapInter), expected[inUse]) << inUse;
  }
}

TEST_F(IntersectionResults, NeedNoCountsToBeGiven) {
  OpenWithAllSystems();

  Do("txtCableNumberSecInter=0|txtTrussNumberSecInter=|txtBoltNumberSecInter=0|txtSupportNumberSecInter=0");

  for (std::size_t system = 0; system < SystemCount; ++system) {
    EXPECT_THAT(Intersection(system), ElementsAre("183", "0", "0.0")) << system;
  }
}

TEST_F(IntersectionResults, TakeTheCableByDiameterFromTheListOrAsTyped) {
  dialog.Open();

  Do("cmbCableDiamSecInter=0.7");
  EXPECT_THAT(Intersection(0), ElementsAre("183", "357", "1.95"));
  EXPECT_THAT(Entry(0), ElementsAre("10.0", "10.6", "1.06"));
  Do("optCableCapModeSecInter=1");
  EXPECT_THAT(Intersection(0), ElementsAre("183", "270", "1.48"));
  Do("txtCableCapacitySecInter=30|optCableCapacitySecInter=1");
  EXPECT_THAT(Intersection(0), ElementsAre("183", "300", "1.64"));
}

TEST_F(IntersectionResults, OfAMetricDesignTakeTheCableByDiameterFromTheMetricList) {
  StartDesign(Metric);
  dialog.Open();

  // Metric designs open with the capacity given; the diameter counts as soon as its option is on.
  Do("optCableCapModeSecInter=0|cmbCableDiamSecInter=28.6");
  EXPECT_THAT(Intersection(0), ElementsAre("2213", "3880", "1.75"));
  Do("cmbCableDiamSecInter=0.6");
  EXPECT_THAT(Intersection(0), ElementsAre("2213", "0", "0.0"));
}

TEST_F(IntersectionResults, TakeTheBoltFromTheTableTheListsOrAsTyped) {
  OpenWithAllSystems();

  Do("VSFlexGridInter=7");
  EXPECT_THAT(Intersection(2), ElementsAre("183", "166", "0.91"));
  Intersections("VSFlexGridInter=1|optBoltOptionsSecInter=1");
  EXPECT_THAT(Intersection(2), ElementsAre("183", "166", "0.91"));
  Intersections("txtBoltDiameterSecInter=0.875|txtBoltGradeSecInter=62.5|optBoltDiameterSecInter=1");
  EXPECT_THAT(Intersection(2), ElementsAre("183", "225", "1.23"));
  Do("optBoltGradeSecInter=1");
  EXPECT_THAT(Intersection(2), ElementsAre("183", "188", "1.03"));
  Do("optBoltDiameterSecInter=0");
  EXPECT_THAT(Intersection(2), ElementsAre("183", "138", "0.75"));
}

TEST_F(IntersectionResults, OfUltimateGradesAreThoseOfTheirYield) {
  StartDesign(English, StrengthBasis::Ultimate);
  OpenWithAllSystems();
  EXPECT_THAT(Intersection(2), ElementsAre("183", "34", "0.19"));
  Intersections("optBoltOptionsSecInter=1");
  EXPECT_THAT(Intersection(2), ElementsAre("183", "166", "0.91"));

  StartDesign(Metric, StrengthBasis::Ultimate);
  ParametersDialog metric(program);
  metric.Open();
  Edit(metric, AllSystems);
  EXPECT_EQ(metric.txtSupportCapInter[2].Text(), "304");
  Edit(metric, "optBoltOptionsSecInter=1|optBoltDiameterSecInter=1");
  EXPECT_EQ(metric.txtSupportCapInter[2].Text(), "1634");
  EXPECT_EQ(metric.txtStabFactorInter[2].Text(), "0.74");
}

}  // namespace
}  // namespace orby::test
