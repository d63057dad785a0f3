#include <map>
#include <memory>

#include "parameters_faults.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct ParameterChecks : AParametersDialog {
  // Opens a dialog on a valid design with every analysis and every system in use. The refreshes are suspended, because
  // some faults make them fail.
  std::unique_ptr<ParametersDialog> ValidDesign(UnitSystem units) {
    StartDesign(units);
    platform.boxes.shown.clear();
    auto opened = std::make_unique<ParametersDialog>(program);
    opened->Open();
    opened->HoldEvents = true;
    Edit(*opened, AllSystems);
    return opened;
  }

  // Returns the messages about a valid design after these edits.
  std::vector<std::string> Faults(UnitSystem units, std::string_view edits) {
    const auto opened = ValidDesign(units);
    Edit(*opened, edits);
    const bool passed = opened->ValidateParameters();
    EXPECT_EQ(passed, platform.boxes.shown.empty()) << edits;
    return platform.boxes.Texts();
  }
};

std::vector<UnitSystem> UnitsOf(const FieldFault& fault) {
  return fault.units == Both ? std::vector{English, Metric} : std::vector{fault.units};
}

TEST_F(ParameterChecks, AcceptAValidDesign) {
  EXPECT_THAT(Faults(English, ""), IsEmpty());
  EXPECT_THAT(Faults(Metric, ""), IsEmpty());
}

// ---- single faults --------------------------------------------------------------------------------------------------

// Returns the tab that a tab set shows before a fault switches it to another tab, or leaves it.
int TabBefore(int expected) { return expected == Stays ? 1 : (expected + 1) % 4; }

void ExpectTab(const TabSet& tabs, int expected, const std::string& edits) {
  EXPECT_EQ(tabs.Tab(), expected == Stays ? TabBefore(Stays) : expected) << tabs.Name() << ' ' << edits;
}

TEST_F(ParameterChecks, ReportEachFaultOnceAndGoToItsField) {
  int told = 0;
  for (const FaultSection& section : AllFaults()) {
    for (const FieldFault& fault : section.faults) {
      const TabsOnView& tabs = fault.tabs.outer == Stays ? section.tabs : fault.tabs;
      for (const UnitSystem units : UnitsOf(fault)) {
        const auto opened = ValidDesign(units);
        Edit(*opened, fault.edits);
        opened->SSTab1.SetTab(TabBefore(tabs.outer));
        opened->SSTab2.SetTab(TabBefore(tabs.entries));
        opened->SSTab3.SetTab(TabBefore(tabs.intersections));

        EXPECT_FALSE(opened->ValidateParameters()) << fault.edits;

        EXPECT_THAT(platform.boxes.Texts(), ElementsAre(fault.message)) << fault.edits;
        ExpectTab(opened->SSTab1, tabs.outer, fault.edits);
        ExpectTab(opened->SSTab2, tabs.entries, fault.edits);
        ExpectTab(opened->SSTab3, tabs.intersections, fault.edits);
        ASSERT_NE(opened->FocusRequest(), nullptr) << fault.edits;
        EXPECT_EQ(opened->FocusRequest()->Name(), fault.focus) << fault.edits;
        ++told;
      }
    }
  }
  EXPECT_EQ(told, 141);
}

TEST_F(ParameterChecks, ShowEachFaultAsARangeErrorOfTheParameters) {
  Faults(English, "txtCMRR=0|txtStabilityFactor=0");

  ASSERT_EQ(platform.boxes.shown.size(), 2U);
  for (const MessageBox& box : platform.boxes.shown) {
    EXPECT_EQ(box.title, "Project Parameters: Range Error");
    EXPECT_EQ(box.style, BoxIcon::Critical);
  }
}

TEST_F(ParameterChecks, RecordEachFaultInTheHistory) {
  Faults(English, "txtCMRR=0");

  EXPECT_EQ(program.session.history.Text,
            "1. Editing Project Parameters\r\n2. Project Parameters: Range Error: Invalid CMRR\r\n");
}

// ---- order ----------------------------------------------------------------------------------------------------------

std::map<std::string, std::string> EditsOf(std::string_view edits) {
  std::map<std::string, std::string> values;
  while (!edits.empty()) {
    const std::string_view one = edits.substr(0, edits.find('|'));
    values.emplace(one.substr(0, one.find('=')), one.substr(one.find('=') + 1));
    edits.remove_prefix(one.size() == edits.size() ? one.size() : one.size() + 1);
  }
  return values;
}

bool CanBothBe(const FieldFault& first, const FieldFault& second) {
  if (first.units != second.units && first.units != Both && second.units != Both) return false;
  const auto others = EditsOf(second.edits);
  for (const auto& [name, value] : EditsOf(first.edits)) {
    const auto found = others.find(name);
    if (found != others.end() && found->second != value) return false;
  }
  return true;
}

TEST_F(ParameterChecks, ReportOnlyTheFirstFaultOfASection) {
  int pairs = 0;
  for (const FaultSection& section : AllFaults()) {
    for (std::size_t i = 0; i + 1 < section.faults.size(); ++i) {
      const FieldFault& first = section.faults[i];
      const FieldFault& second = section.faults[i + 1];
      if (first.message == second.message || !CanBothBe(first, second)) continue;
      const UnitSystem units = UnitsOf(first.units == Both ? second : first).front();

      EXPECT_THAT(Faults(units, first.edits + "|" + second.edits), ElementsAre(first.message)) << second.edits;
      ++pairs;
    }
  }
  EXPECT_GE(pairs, 30);
}

TEST_F(ParameterChecks, ReportOneFaultOfEverySectionInOrder) {
  std::string edits;
  std::vector<std::string> messages;
  for (const FaultSection& section : AllFaults()) {
    edits += (edits.empty() ? "" : "|") + section.faults.front().edits;
    messages.push_back(section.faults.front().message);
  }

  EXPECT_EQ(Faults(English, edits), messages);
  EXPECT_EQ(messages.size(), 12U);
}

TEST_F(ParameterChecks, LeaveTheLastFaultVisible) {
  const auto opened = ValidDesign(English);
  Edit(*opened, "txtCMRR=100|txtTrussSpacingSecEntry=0");

  EXPECT_FALSE(opened->ValidateParameters());

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid CMRR", "Invalid truss spacing"));
  EXPECT_EQ(opened->SSTab1.Tab(), 2);
  EXPECT_EQ(opened->SSTab2.Tab(), 1);
  EXPECT_EQ(opened->FocusRequest()->Name(), "txtTrussSpacingSecEntry");
}

struct DisabledTab {
  std::string edits;  // disable the tab and cause the fault
  std::string message;
  int outer;
  TabSet ParametersControls::*tabs;
  int tab;
  std::string focus;
};

TEST_F(ParameterChecks, SwitchEvenToADisabledTab) {
  const std::string noSupport = "optSupportTypeSecEntry=0|cmbSupportTypeSecEntry=Stone pack";
  const std::vector<DisabledTab> cases{
      {"chkSecInter_3=0|" + noSupport, "Invalid standing support specification", 2, &ParametersDialog::SSTab3, 3,
       "cmbSupportTypeSecEntry"},
      {"chkSecEntries_0=0|optCableCapModeSecInter=0|cmbCableDiamSecInter=0.65",
       "Cable Diameter not Selected from Available Options", 3, &ParametersDialog::SSTab2, 0, "cmbCableDiamSecInter"},
      {"chkSecEntries_0=0|optCableCapModeSecInter=1|cmbCableCapacitySecInter=31",
       "Cable Capacity not Selected from Available Options", 3, &ParametersDialog::SSTab2, 0,
       "cmbCableCapacitySecInter"}};
  for (const DisabledTab& disabled : cases) {
    const auto opened = ValidDesign(English);
    Edit(*opened, disabled.edits);
    TabSet& tabs = (*opened).*disabled.tabs;
    ASSERT_FALSE(tabs.TabEnabled(disabled.tab)) << disabled.edits;
    tabs.SetTab(1);

    EXPECT_FALSE(opened->ValidateParameters()) << disabled.edits;

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre(disabled.message)) << disabled.edits;
    EXPECT_EQ(opened->SSTab1.Tab(), disabled.outer) << disabled.edits;
    EXPECT_EQ(tabs.Tab(), disabled.tab) << disabled.edits;
    EXPECT_FALSE(tabs.TabEnabled(disabled.tab)) << disabled.edits;
    EXPECT_EQ(opened->FocusRequest()->Name(), disabled.focus) << disabled.edits;
  }
}

// Records what is shown when a box opens.
struct WatchingBoxes : MessageBoxes {
  BoxResult Show(const MessageBox&) override {
    tabs.push_back(watched->SSTab1.Tab());
    focused = focused || watched->FocusRequest() != nullptr;
    return BoxResult::Ok;
  }

  ParametersDialog* watched = nullptr;
  std::vector<int> tabs;
  bool focused = false;
};

TEST_F(ParameterChecks, ReportTheFaultBeforeGoingToIt) {
  WatchingBoxes boxes;
  Program watched{platform.AsPlatformWith(boxes)};
  SetBuiltInCatalogs(watched.session.catalogs);
  FileNew(watched, Keeping::Nothing);
  ParametersDialog opened(watched);
  boxes.watched = &opened;
  opened.Open();
  Edit(opened, "txtStabilityFactor=0");

  EXPECT_FALSE(opened.ValidateParameters());

  EXPECT_THAT(boxes.tabs, ElementsAre(0));
  EXPECT_FALSE(boxes.focused);
  EXPECT_EQ(opened.SSTab1.Tab(), 1);
}

// ---- accepted values ------------------------------------------------------------------------------------------------

TEST_F(ParameterChecks, SkipASectionThatIsSwitchedOff) {
  int passedOver = 0;
  for (const FaultSection& section : AllFaults()) {
    for (const std::string& off : section.off) {
      for (const FieldFault& fault : section.faults) {
        const UnitSystem units = UnitsOf(fault).front();
        EXPECT_THAT(Faults(units, fault.edits + "|" + off), IsEmpty()) << fault.edits << ' ' << off;
        ++passedOver;
      }
    }
  }
  EXPECT_EQ(passedOver, 123);
}

TEST_F(ParameterChecks, AcceptTheLimitsInEnglishUnits) {
  for (const std::string_view limit : {"txtCMRR=99",
                                       "txtCMRR=0.1",
                                       "txtUnitWeight=100",
                                       "txtUnitWeight=200",
                                       "txtDepthofCover=0.1",
                                       "txtEntryWidth=42.42",
                                       "txtActualSpanDiagonals=80",
                                       "txtActualSpanDiagonals=40",
                                       "txtEntryWidth=10.1",
                                       "txtStabilityFactor=0.1",
                                       "txtBoltLengthPrimary=10",
                                       "txtBoltsperRowPrimary=0.5",
                                       "txtRowSpacingPrimary=0.1",
                                       "optBoltDiameterPrimary=1|txtBoltDiameterPrimary=1",
                                       "txtRockLoadHeight=0.1",
                                       "txtRockFallAngle=0",
                                       "txtRockFallAngle=60",
                                       "txtTrussAngleSecEntry=0",
                                       "txtTrussAngleSecEntry=90",
                                       "txtBoltLengthSecEntry=10",
                                       "optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=1",
                                       "txtRockFallAngleEntry=0",
                                       "txtRockFallAngleEntry=60",
                                       "txtRockFallAngleXcut=0",
                                       "txtRockFallAngleXcut=60",
                                       "txtTrussAngleSecInter=0",
                                       "txtTrussAngleSecInter=90",
                                       "txtBoltLengthSecInter=10",
                                       "optBoltDiameterSecInter=1|txtBoltDiameterSecInter=1"}) {
    EXPECT_THAT(Faults(English, limit), IsEmpty()) << limit;
  }
}

TEST_F(ParameterChecks, AcceptTheLimitsInMetricUnits) {
  for (const std::string_view limit :
       {"txtUnitWeight=15", "txtUnitWeight=30", "txtActualSpanDiagonals=13", "txtActualSpanDiagonals=27",
        "txtEntryWidth=3.31", "txtEntryWidth=14.14", "txtBoltLengthPrimary=3.3", "txtBoltLengthSecEntry=3.3",
        "txtBoltLengthSecInter=3.3", "optBoltDiameterPrimary=1|txtBoltDiameterPrimary=25",
        "optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=25",
        "optBoltDiameterSecInter=1|txtBoltDiameterSecInter=25"}) {
    EXPECT_THAT(Faults(Metric, limit), IsEmpty()) << limit;
  }
}

TEST_F(ParameterChecks, RequireASpanThatFitsTheEntryWidth) {
  EXPECT_THAT(Faults(English, "txtActualSpanDiagonals=40|txtEntryWidth=28.28"), IsEmpty());
  EXPECT_THAT(Faults(English, "txtActualSpanDiagonals=40|txtEntryWidth=28.29"),
              ElementsAre("Invalid sum of diagonals at intersection. Should be greater than 1.4 x Entry Width"));
}

TEST_F(ParameterChecks, RequireNoChoiceFromAnUnusedList) {
  for (const std::string_view unused :
       {"cmbBoltDiameterPrimary=0.9|cmbBoltGradePrimary=77", "cmbBoltDiameterSecEntry=0.9|cmbBoltGradeSecEntry=77",
        "cmbBoltDiameterSecInter=0.9|cmbBoltGradeSecInter=77",
        "optBoltOptionsPrimary=1|optBoltDiameterPrimary=1|optBoltGradePrimary=1|cmbBoltDiameterPrimary=0.9|"
        "cmbBoltGradePrimary=77",
        "optBoltOptionsSecEntry=1|optBoltDiameterSecEntry=1|optBoltGradeSecEntry=1|cmbBoltDiameterSecEntry=0.9|"
        "cmbBoltGradeSecEntry=77",
        "optBoltOptionsSecInter=1|optBoltDiameterSecInter=1|optBoltGradeSecInter=1|cmbBoltDiameterSecInter=0.9|"
        "cmbBoltGradeSecInter=77",
        "optCableCapModeSecEntry=1|cmbCableCapacitySecEntry=26.4|cmbCableDiamSecEntry=0.65",
        "optCableCapModeSecEntry=1|optCableCapacitySecEntry=1|cmbCableCapacitySecEntry=31",
        "optCableCapModeSecInter=1|cmbCableCapacitySecInter=26.4|cmbCableDiamSecInter=0.65",
        "optCableCapModeSecInter=1|optCableCapacitySecInter=1|cmbCableCapacitySecInter=31",
        "cmbSupportTypeSecEntry=Stone pack|optSupportTypeSecEntry=1",
        "cmbSupportTypeSecInter=Stone pack|optSupportTypeSecInter=1"}) {
    EXPECT_THAT(Faults(English, unused), IsEmpty()) << unused;
  }
}

TEST_F(ParameterChecks, RequireNoTypedBoltThatIsNotInUse) {
  EXPECT_THAT(Faults(English, "txtBoltDiameterPrimary=9|txtBoltDiameterSecEntry=9|txtBoltDiameterSecInter=9"),
              IsEmpty());
  EXPECT_THAT(Faults(English,
                     "optBoltDiameterPrimary=1|txtBoltDiameterPrimary=0|optBoltGradePrimary=1|txtBoltGradePrimary=0|"
                     "optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=0|optBoltGradeSecEntry=1|"
                     "txtBoltGradeSecEntry=0|optBoltDiameterSecInter=1|txtBoltDiameterSecInter=0|"
                     "optBoltGradeSecInter=1|txtBoltGradeSecInter=0"),
              IsEmpty());
}

TEST_F(ParameterChecks, RefuseTheDefaultMetricBoltIfItIsInUse) {
  EXPECT_THAT(Faults(Metric, "optBoltOptionsPrimary=1"),
              ElementsAre("Roof bolt diameter NOT selected from available options"));
}

TEST_F(ParameterChecks, RefuseTheDefaultEnglishCableIfItIsInUse) {
  EXPECT_THAT(Faults(English, "optCableCapModeSecEntry=1|optCableCapModeSecInter=1"),
              ElementsAre("Cable Capacity not Selected from Available Options",
                          "Cable Capacity not Selected from Available Options"));
}

TEST_F(ParameterChecks, LeaveEveryFieldUnchanged) {
  const auto opened = ValidDesign(English);
  Edit(*opened, "txtCMRR=12x|txtStabilityFactor=|cmbCableDiamSecEntry=wide");

  EXPECT_FALSE(opened->ValidateParameters());

  EXPECT_EQ(opened->txtCMRR.Text(), "12x");
  EXPECT_EQ(opened->txtStabilityFactor.Text(), "");
  EXPECT_EQ(opened->EntryCableControls.Diam.Text(), "wide");
  EXPECT_TRUE(opened->IsOpen());
}

TEST_F(ParameterChecks, TreatAnEmptySupportTypeAsNotChosen) {
  EXPECT_THAT(Faults(English, "optSupportTypeSecInter=1|optSupportTypeSecInter=0"),
              ElementsAre("Invalid standing support specification"));
  EXPECT_THAT(Faults(English, "optSupportTypeSecEntry=1|optSupportTypeSecEntry=0"), IsEmpty())
      << "the entries bring the name of the chosen one back";
}

}  // namespace
}  // namespace orby::test
