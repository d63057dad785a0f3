#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;

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

  // Returns load, capacity and factor of a system.
  Texts Entry(std::size_t system) const { return ResultOf(dialog.EntryOutputs, system); }
  Texts Intersection(std::size_t system) const { return ResultOf(dialog.InterOutputs, system); }
  static Texts ResultOf(const OutputControls& outputs, std::size_t system) {
    return {outputs.RockLoad[system].Text(), outputs.SupportCap[system].Text(), outputs.StabFactor[system].Text()};
  }
  static Texts All(const OutputControls& outputs) {
    Texts all;
    for (std::size_t system = 0; system < SystemCount; ++system) {
      for (const std::string& text : ResultOf(outputs, system)) all.push_back(text);
    }
    return all;
  }
};

using EntryResults = SecondaryResultsShown;
using IntersectionResults = SecondaryResultsShown;

// ---- entries and intersections -------------------------------------------------------------------------------------

enum class Place { Entries, Intersections };

std::string NameOf(Place place) { return place == Place::Entries ? "Entries" : "Intersections"; }
void PrintTo(Place place, std::ostream* out) { *out << NameOf(place); }

// Tests one place at a time. In edits, "@" stands for the word in the names of its controls.
struct SecondaryResults : SecondaryResultsShown, testing::WithParamInterface<Place> {
  static bool IsEntries() { return GetParam() == Place::Entries; }
  // Returns the value for the tested place.
  template <class Value>
  static Value Of(Value entries, Value intersections) {
    return IsEntries() ? entries : intersections;
  }

  static std::string Named(std::string_view edits) {
    std::string named(edits);
    for (std::size_t at = named.find('@'); at != std::string::npos; at = named.find('@')) {
      named.replace(at, 1, Of("Entry", "Inter"));
    }
    return named;
  }
  void Do(std::string_view edits) { AParametersDialog::Do(Named(edits)); }
  // Makes edits with a single refresh at the end.
  void DoAtOnce(std::string_view edits) { IsEntries() ? Entries(Named(edits)) : Intersections(Named(edits)); }

  Texts Result(std::size_t system) const { return IsEntries() ? Entry(system) : Intersection(system); }
  static const OutputControls& Outputs(const ParametersDialog& shown) {
    return IsEntries() ? shown.EntryOutputs : shown.InterOutputs;
  }
  static const OutputControls& OtherOutputs(const ParametersDialog& shown) {
    return IsEntries() ? shown.InterOutputs : shown.EntryOutputs;
  }
  static auto Shows(const Texts& entries, const Texts& intersections) {
    return ElementsAreArray(Of(entries, intersections));
  }
};

constexpr std::size_t Cables = 0;
constexpr std::size_t Bolts = 2;

TEST_P(SecondaryResults, OfANewDesignShowItsCables) {
  dialog.Open();

  EXPECT_THAT(Result(Cables), Shows({"10.0", "10.6", "1.06"}, {"183", "264", "1.44"}));
  for (const std::size_t unused : {1U, 2U, 3U}) {
    EXPECT_THAT(Result(unused), Shows({"10.0", "---", "---"}, {"183", "---", "---"}));
  }
}

TEST_P(SecondaryResults, AreShownForEverySystemInEnglishUnits) {
  OpenWithAllSystems();

  EXPECT_THAT(Result(0), Shows({"10.0", "10.6", "1.06"}, {"183", "264", "1.44"}));
  EXPECT_THAT(Result(1), Shows({"10.0", "10.6", "1.06"}, {"183", "170", "0.93"}));
  EXPECT_THAT(Result(2), Shows({"10.0", "8.4", "0.85"}, {"183", "84", "0.46"}));
  EXPECT_THAT(Result(3), Shows({"10.0", "12.5", "1.25"}, {"183", "200", "1.09"}));
}

TEST_P(SecondaryResults, AreShownForEverySystemInMetricUnits) {
  StartDesign(Metric);

  OpenWithAllSystems();

  EXPECT_THAT(Result(0), Shows({"335.1", "472.0", "1.41"}, {"2213", "2360", "1.07"}));
  EXPECT_THAT(Result(1), Shows({"335.1", "106.1", "0.32"}, {"2213", "1697", "0.77"}));
  EXPECT_THAT(Result(2), Shows({"335.1", "251.0", "0.75"}, {"2213", "753", "0.34"}));
  EXPECT_THAT(Result(3), Shows({"335.1", "333.3", "0.99"}, {"2213", "2000", "0.9"}));
}

TEST_P(SecondaryResults, AreDashesIfTheFieldsAreInvalid) {
  const Texts entries{"txtUnitWeight=99",     "txtUnitWeight=",      "txtRockLoadHeight=0",
                      "txtRockLoadHeight=-8", "txtRockFallAngle=-1", "txtRockFallAngle=90",
                      "txtRockFallAngle=120", "txtEntryWidth=0",     "txtEntryWidth=-20"};
  const Texts intersections{"txtRockLoadHeightInter=0", "txtRockLoadHeightInter=-8", "txtRockFallAngleEntry=-1",
                            "txtRockFallAngleEntry=90", "txtRockFallAngleXcut=-1",   "txtRockFallAngleXcut=90",
                            "txtEntryWidth=0",          "txtEntryWidth=-20",         "txtActualSpanDiagonals=20",
                            "txtActualSpanDiagonals="};
  for (const std::string& bad : Of(entries, intersections)) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);

    other.HoldEvents = true;
    Edit(other, bad);
    IsEntries() ? other.ShowEntries() : other.ShowIntersections();

    EXPECT_THAT(All(Outputs(other)), Each("--")) << bad;
    EXPECT_THAT(All(OtherOutputs(other)), testing::Contains(Of("183", "10.0"))) << bad;
  }
}

TEST_P(SecondaryResults, OfASystemFollowOnlyItsOwnCheckBox) {
  const std::array<Texts, SystemCount> entries{{{"21.1", "10.6", "8.4", "12.5"},
                                                {"10.6", "21.2", "8.4", "12.5"},
                                                {"10.6", "10.6", "16.9", "12.5"},
                                                {"10.6", "10.6", "8.4", "25.0"}}};
  const std::array<Texts, SystemCount> intersections{{{"528", "170", "84", "200"},
                                                      {"264", "339", "84", "200"},
                                                      {"264", "170", "169", "200"},
                                                      {"264", "170", "84", "400"}}};
  for (std::size_t inUse = 0; inUse < SystemCount; ++inUse) {
    ParametersDialog other(program);
    other.Open();
    Edit(other, AllSystems);
    auto& boxes = IsEntries() ? other.chkSecEntries : other.chkSecInter;
    for (std::size_t i = 0; i < SystemCount; ++i) boxes[i].SetValue(i == inUse ? 1 : 0);

    Edit(other,
         Of("txtCableBoltsPerRowSecEntry=4|txtTrussCapacitySecEntry=60|txtBoltsperRowSecEntry=8|"
            "txtSupportCapSecEntry=100",
            "txtCableNumberSecInter=20|txtTrussNumberSecInter=8|txtBoltNumberSecInter=20|txtSupportNumberSecInter=8"));

    EXPECT_EQ(TextsOf(Outputs(other).SupportCap), Of(entries, intersections)[inUse]) << inUse;
  }
}

TEST_P(SecondaryResults, UseTheCableDiameterFromTheListOrAsTyped) {
  dialog.Open();
  const Texts otherPlace = All(OtherOutputs(dialog));

  Do("cmbCableDiamSec@=0.7");
  EXPECT_THAT(Result(Cables), Shows({"10.0", "14.3", "1.43"}, {"183", "357", "1.95"}));
  Do("cmbCableDiamSec@=0.65");
  EXPECT_THAT(Result(Cables), Shows({"10.0", "0.0", "0.0"}, {"183", "0", "0.0"}));
  Do("optCableCapModeSec@=1");
  EXPECT_THAT(Result(Cables), Shows({"10.0", "10.8", "1.08"}, {"183", "270", "1.48"}));
  Do("txtCableCapacitySec@=30|optCableCapacitySec@=1");
  EXPECT_THAT(Result(Cables), Shows({"10.0", "12.0", "1.2"}, {"183", "300", "1.64"}));
  EXPECT_EQ(All(OtherOutputs(dialog)), otherPlace);
}

TEST_P(SecondaryResults, OfAMetricDesignUseTheCableDiameterFromTheMetricList) {
  StartDesign(Metric);
  dialog.Open();

  // Metric designs open with a given capacity. The diameter counts as soon as its option is chosen.
  Do("optCableCapModeSec@=0|cmbCableDiamSec@=28.6");
  EXPECT_THAT(Result(Cables), Shows({"335.1", "776.0", "2.32"}, {"2213", "3880", "1.75"}));
  Do("cmbCableDiamSec@=0.6");
  EXPECT_THAT(Result(Cables), Shows({"335.1", "0.0", "0.0"}, {"2213", "0", "0.0"}));
}

TEST_P(SecondaryResults, UseTheBoltFromTheTableTheListsOrAsTyped) {
  OpenWithAllSystems();

  Do("VSFlexGrid@=7");
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "16.6", "1.66"}, {"183", "166", "0.91"}));
  DoAtOnce("VSFlexGrid@=1|optBoltOptionsSec@=1");
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "16.6", "1.66"}, {"183", "166", "0.91"}));
  DoAtOnce("txtBoltDiameterSec@=0.875|txtBoltGradeSec@=62.5|optBoltDiameterSec@=1");
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "22.5", "2.26"}, {"183", "225", "1.23"}));
  Do("optBoltGradeSec@=1");
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "18.8", "1.89"}, {"183", "188", "1.03"}));
  Do("optBoltDiameterSec@=0");
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "13.8", "1.39"}, {"183", "138", "0.75"}));
}

TEST_P(SecondaryResults, OfUltimateGradesUseTheirYieldStrength) {
  StartDesign(English, StrengthBasis::Ultimate);
  OpenWithAllSystems();
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "3.4", "0.34"}, {"183", "34", "0.19"}));
  DoAtOnce("optBoltOptionsSec@=1");
  EXPECT_THAT(Result(Bolts), Shows({"10.0", "16.6", "1.66"}, {"183", "166", "0.91"}));

  StartDesign(Metric, StrengthBasis::Ultimate);
  ParametersDialog metric(program);
  metric.Open();
  Edit(metric, AllSystems);
  EXPECT_EQ(Outputs(metric).SupportCap[Bolts].Text(), Of("101.4", "304"));
  Edit(metric, Named("optBoltOptionsSec@=1|optBoltDiameterSec@=1"));
  EXPECT_THAT(ResultOf(Outputs(metric), Bolts), Shows({"335.1", "544.5", "1.63"}, {"2213", "1634", "0.74"}));
}

INSTANTIATE_TEST_SUITE_P(Of, SecondaryResults, testing::Values(Place::Entries, Place::Intersections),
                         [](const auto& place) { return NameOf(place.param); });

// ---- entries --------------------------------------------------------------------------------------------------------

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

TEST_F(EntryResults, AreComputedUpToTheLimitsOfUnitWeightAndAngle) {
  dialog.Open();

  Entries("txtUnitWeight=100");
  EXPECT_EQ(Entry(0)[0], "6.2");
  Entries("txtUnitWeight=162|txtRockFallAngle=0");
  EXPECT_EQ(Entry(0)[0], "13.0");
  Entries("txtRockFallAngle=89");
  EXPECT_EQ(Entry(0)[0], "0.1");
}

TEST_F(EntryResults, OfAMetricDesignRequireFifteenKilonewtons) {
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

TEST_F(EntryResults, OfAnUnusedSystemKeepAllButTheLoad) {
  OpenWithAllSystems();
  Do("chkSecEntries_0=0|chkSecEntries_2=0");

  Do("txtUnitWeight=100|txtCableBoltsPerRowSecEntry=4|txtBoltsperRowSecEntry=8|txtSupportCapSecEntry=60");

  EXPECT_THAT(Entry(0), ElementsAre("6.2", "10.6", "1.06"));
  EXPECT_THAT(Entry(2), ElementsAre("6.2", "8.4", "0.85"));
  EXPECT_EQ(Entry(3)[1], "15.0");
}

TEST_F(EntryResults, OfASystemWithoutSpacingOrBoltsDoNotChange) {
  OpenWithAllSystems();

  Do("txtCableRowSpacingSecEntry=0|txtBoltsperRowSecEntry=0|txtSupportRowSpacingSecEntry=0|txtUnitWeight=100");

  EXPECT_THAT(Entry(0), ElementsAre("6.2", "10.6", "1.06"));
  EXPECT_THAT(Entry(2), ElementsAre("6.2", "8.4", "0.85"));
  EXPECT_THAT(Entry(3), ElementsAre("6.2", "12.5", "1.25"));
}

TEST_F(EntryResults, OfTrussesDoNotChangeWithoutASpacingOfStandingSupports) {
  OpenWithAllSystems();
  Do("txtSupportRowSpacingSecEntry=0");

  Do("txtTrussCapacitySecEntry=60");
  EXPECT_THAT(Entry(1), ElementsAre("10.0", "10.6", "1.06"));
  Do("txtTrussSpacingSecEntry=0");
  EXPECT_THAT(Entry(1), ElementsAre("10.0", "10.6", "1.06"));
  Do("txtTrussSpacingSecEntry=4|txtSupportRowSpacingSecEntry=8");
  EXPECT_EQ(Entry(1)[1], "21.2");
}

// ---- intersections --------------------------------------------------------------------------------------------------

TEST_F(IntersectionResults, AreKeptUnderABadUnitWeightWhileTheEntriesAreCleared) {
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

TEST_F(IntersectionResults, OfAnUnusedSystemKeepAllButTheLoad) {
  OpenWithAllSystems();
  Do("chkSecInter_1=0|chkSecInter_3=0");

  Do("txtUnitWeight=100|txtTrussNumberSecInter=8|txtSupportNumberSecInter=8|txtCableNumberSecInter=5");

  EXPECT_THAT(Intersection(1), ElementsAre("113", "170", "0.93"));
  EXPECT_THAT(Intersection(3), ElementsAre("113", "200", "1.09"));
  EXPECT_EQ(Intersection(0)[1], "132");
}

TEST_F(IntersectionResults, RequireNoCounts) {
  OpenWithAllSystems();

  Do("txtCableNumberSecInter=0|txtTrussNumberSecInter=|txtBoltNumberSecInter=0|txtSupportNumberSecInter=0");

  for (std::size_t system = 0; system < SystemCount; ++system) {
    EXPECT_THAT(Intersection(system), ElementsAre("183", "0", "0.0")) << system;
  }
}

}  // namespace
}  // namespace orby::test
