#include <algorithm>
#include <map>

#include "parameters_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAreArray;

using ParameterControls = AParametersDialog;

struct ControlCase {
  std::string name;
  std::string kind;
  std::string caption;  // members of an option array and tabs of a tab set are separated by "|"
  std::string unit;     // of the caption; those of members are separated by "|"
};

const std::map<std::string, std::array<std::string, 2>> UnitSuffixes{
    {"", {"", ""}},
    {"length", {" (ft)", " (m)"}},
    {"unit weight", {" (pcf)", " (kN/m3)"}},
    {"diameter", {" (in)", " (mm)"}},
    {"grade", {" (ksi)", " (MPa)"}},
    {"line load", {" (tons/ft)", " (kN/m)"}},
    {"force", {" (tons)", " (kN)"}},
};

const std::vector<ControlCase> GeneralControls{
    {"SSTab1", "tabs",
     "General|Primary Support: Roof Bolts|Secondary Support: Entries|Secondary Support: Intersections", ""},
    {"SSTab2", "tabs", "Cable Bolts|Truss Bolts|Roof Bolts|Standing Supports", ""},
    {"SSTab3", "tabs", "Cable Bolts|Truss Bolts|Roof Bolts|Standing Supports", ""},
    {"fraGeology", "frame", "Geology", ""},
    {"fraCMRR", "frame", "Coal Mine Roof Rating", ""},
    {"lblCMRR", "label", "CMRR", ""},
    {"txtCMRR", "number", "", ""},
    {"chkCMRRManual", "check box", "CMRR manual setting ", ""},
    {"cmdCMRR", "button", "CMRR Estimator", ""},
    {"txtRegion", "text", "", ""},
    {"txtOption", "text", "", ""},
    {"lblDepthofCover", "label", "Depth of Cover", "length"},
    {"txtDepthofCover", "number", "", ""},
    {"lblUnitWeight", "label", "Unit Weight of Rock", "unit weight"},
    {"txtUnitWeight", "number", "", ""},
    {"fraMiningFactors", "frame", "Mining Factors", ""},
    {"lblActualSpanDiagonals", "label", "Sum of the Diagonals", "length"},
    {"txtActualSpanDiagonals", "number", "", ""},
    {"lblEntryWidth", "label", "Entry Width", "length"},
    {"txtEntryWidth", "number", "", ""},
    {"fraAnalysisOptions", "frame", "Analysis Options", ""},
    {"chkPrimSupport", "check box", "Analysis of Primary Roof Bolts", ""},
    {"chkSecondSupEntries", "check box", "Analysis of Secondary Support: Entries", ""},
    {"chkSecondSupInter", "check box", "Analysis of Secondary Support: Intersections", ""},
    {"txtMessage", "output", "", ""},
    {"Picture1", "drawing", "", ""},
    {"Command2", "button", "OK", ""},
    {"Command1", "button", "Cancel", ""},
    {"cmdresults", "button", "Results", ""},
    {"cmdView", "button", "&View", ""},
    {"Command5", "button", "&Copy Clip", ""},
    {"Command3", "button", "Help", ""},
};

const std::vector<ControlCase> PrimaryControls{
    {"fraPrimarySupport", "frame", "Primary Support Parameters", ""},
    {"lblStabilityFactor", "label", "Stability Factor", ""},
    {"txtStabilityFactor", "number", "", ""},
    {"lblBoltLengthPrimary", "label", "Actual Bolt Length", "length"},
    {"txtBoltLengthPrimary", "text", "", ""},
    {"lblBoltsperRowPrimary", "label", "Number of Roof Bolts per Row", ""},
    {"txtBoltsperRowPrimary", "text", "", ""},
    {"lblRowSpacingPrimary", "label", "Roof Bolt Row Spacing", "length"},
    {"txtRowSpacingPrimary", "text", "", ""},
    {"fraOutput", "frame", "Output", ""},
    {"lblSugTULK", "label", "Suggested PSUP", ""},
    {"txtSugPSUP", "output", "", ""},
    {"lblActualPENV", "label", "Actual PSUP", ""},
    {"txtActualPSUP", "output", "", ""},
    {"lblSuggestBoltLength", "label", "Suggested Minimum Roof Bolt Length", "length"},
    {"txtSuggestBoltLength", "output", "", ""},
    {"lblSugSumDiagonals", "label", "Suggested Intersection Sum of the diagonals", "length"},
    {"txtSugSumDiagonals", "output", "", ""},
    {"Image1", "drawing", "", ""},
};

const std::vector<ControlCase> EntryControls{
    {"fraRockLoadEntry", "frame", "Rock Load Parameters", ""},
    {"lblRockLoadHeight", "label", "Rock Load Height", "length"},
    {"txtRockLoadHeight", "text", "", ""},
    {"lblRockFallAngle", "label", "Roof Fall Angle (deg)", ""},
    {"txtRockFallAngle", "text", "", ""},
    {"fraSupportSystemEntry", "frame", "Support System", ""},
    {"chkSecEntries_0", "check box", "Cable Bolts", ""},
    {"chkSecEntries_1", "check box", "Truss Bolts", ""},
    {"chkSecEntries_2", "check box", "Roof Bolts", ""},
    {"chkSecEntries_3", "check box", "Standing Supports", ""},
    {"fraCableDetEntry", "frame", "Capacity Determination", ""},
    {"fraCableSpecEntry", "frame", "Capacity Specification", ""},
    {"lblCableBoltsPerRowSecEntry", "label", "Number of Bolts per Row", ""},
    {"txtCableBoltsPerRowSecEntry", "text", "", ""},
    {"lblCableRowSpacingSecEntry", "label", "Cable Bolt Row Spacing", "length"},
    {"txtCableRowSpacingSecEntry", "text", "", ""},
    {"lblTrussSpacingSecEntry", "label", "Truss Spacing", "length"},
    {"txtTrussSpacingSecEntry", "text", "", ""},
    {"lblBoltsperRowSecEntry", "label", "Number of Bolts per Row", ""},
    {"txtBoltsperRowSecEntry", "text", "", ""},
    {"lblRowSpacingSecEntry", "label", "Roof Bolt Row Spacing", "length"},
    {"txtRowSpacingSecEntry", "text", "", ""},
    {"fraSupportSelectionEntry", "frame", "Support Selection", ""},
    {"fraSupportTypeEntry", "frame", "Support Type", ""},
    {"lblNumberSupPerRowSecEntry", "label", "Number of Supports Per Row", ""},
    {"txtNumberSupPerRowSecEntry", "text", "", ""},
    {"lblSupportRowSpacingSecEntry", "label", "Row Spacing", "length"},
    {"txtSupportRowSpacingSecEntry", "text", "", ""},
    {"picEntries", "drawing", "", ""},
};

const std::vector<ControlCase> IntersectionControls{
    {"fraRockLoadInter", "frame", "Rock Load Parameters", ""},
    {"lblRockLoadHeightInter", "label", "Rock Load Height", "length"},
    {"txtRockLoadHeightInter", "text", "", ""},
    {"lblRockFallAngleEntry", "label", "Roof Fall Angle Entry (deg)", ""},
    {"txtRockFallAngleEntry", "text", "", ""},
    {"lblRockFallAngleXcut", "label", "Roof Fall Angle Crosscut (deg)", ""},
    {"txtRockFallAngleXcut", "text", "", ""},
    {"fraSupportSystemInter", "frame", "Support System", ""},
    {"chkSecInter_0", "check box", "Cable Bolts", ""},
    {"chkSecInter_1", "check box", "Truss Bolts", ""},
    {"chkSecInter_2", "check box", "Roof Bolts", ""},
    {"chkSecInter_3", "check box", "Standing Supports", ""},
    {"fraCableDetInter", "frame", "Capacity Determination", ""},
    {"fraCableSpecInter", "frame", "Capacity Specification", ""},
    {"lblCableNumberSecInter", "label", "Number of Cable Bolts", ""},
    {"txtCableNumberSecInter", "text", "", ""},
    {"lblTrussNumberSecInter", "label", "Number of Trusses", ""},
    {"txtTrussNumberSecInter", "text", "", ""},
    {"lblBoltNumberSecInter", "label", "Number of Roof Bolts", ""},
    {"txtBoltNumberSecInter", "text", "", ""},
    {"fraSupportSelectionInter", "frame", "Support Selection", ""},
    {"fraSupportTypeInter", "frame", "Support Type", ""},
    {"lblSupportNumberSecInter", "label", "Number of Supports", ""},
    {"txtSupportNumberSecInter", "text", "", ""},
    {"picIntersections", "drawing", "", ""},
};

// The bolt tables, each with its own names: * stands for Primary, SecEntry or SecInter.
const std::vector<ControlCase> BoltSetControls{
    {"optBoltOptions*", "option array", "Select from Standard Table|Manual Selection", "|"},
    {"fraBoltOptions*1", "frame", "Roof Bolt Standard Table Selection", ""},
    {"fraBoltOptions*0", "frame", "Roof Bolt Manual Selection", ""},
    {"fraBoltDiameter*", "frame", "Roof Bolt Diameter", "diameter"},
    {"optBoltDiameter*", "option array", "Standard Selection|Manual Input", "|"},
    {"cmbBoltDiameter*", "combo", "", ""},
    {"txtBoltDiameter*", "text", "", ""},
    {"fraBoltGrade*", "frame", "Roof Bolt Yield Grade", "grade"},
    {"optBoltGrade*", "option array", "Standard Selection|Manual Input", "|"},
    {"cmbBoltGrade*", "combo", "", ""},
    {"txtBoltGrade*", "text", "", ""},
};

// The fields that entries and intersections share: * stands for Entry or Inter.
const std::vector<ControlCase> SecondaryControls{
    {"lblCableLengthSec*", "label", "Cable Bolt Length", "length"},
    {"txtCableLengthSec*", "text", "", ""},
    {"optCableCapModeSec*", "option array", "Cable Diameter|Cable Capacity", "diameter|force"},
    {"optCableCapacitySec*", "option array", "Standard Selection|Manual Input", "|"},
    {"cmbCableDiamSec*", "combo", "", ""},
    {"cmbCableCapacitySec*", "combo", "", ""},
    {"txtCableCapacitySec*", "text", "", ""},
    {"lblTrussLengthMemberSec*", "label", "Length of Angled Member", "length"},
    {"txtTrussLengthMemberSec*", "text", "", ""},
    {"lblTrussAngleSec*", "label", "Truss Angle (deg)", ""},
    {"txtTrussAngleSec*", "text", "", ""},
    {"lblTrussCapacitySec*", "label", "Truss Capacity", "force"},
    {"txtTrussCapacitySec*", "text", "", ""},
    {"lblBoltLengthSec*", "label", "Roof Bolt Length", "length"},
    {"txtBoltLengthSec*", "text", "", ""},
    {"optSupportTypeSec*", "option array", "Standard Selection|Manual Input", "|"},
    {"cmbSupportTypeSec*", "combo", "", ""},
    {"txtSupportTypeSec*", "text", "", ""},
    {"lblSupportCapSec*", "label", "Support Capacity", "force"},
    {"txtSupportCapSec*", "text", "", ""},
};

std::string Named(const std::string& pattern, const std::string& word) {
  const std::size_t star = pattern.find('*');
  return star == std::string::npos ? pattern : pattern.substr(0, star) + word + pattern.substr(star + 1);
}

std::vector<ControlCase> AllControls() {
  std::vector<ControlCase> all;
  const auto add = [&all](const std::vector<ControlCase>& cases, const std::string& word) {
    for (const ControlCase& row : cases) all.push_back({Named(row.name, word), row.kind, row.caption, row.unit});
  };
  for (const auto* cases : {&GeneralControls, &PrimaryControls, &EntryControls, &IntersectionControls}) add(*cases, "");
  for (const auto* set : {"Primary", "SecEntry", "SecInter"}) add(BoltSetControls, set);
  for (const auto* place : {"Entry", "Inter"}) {
    add(SecondaryControls, place);
    const std::string load = place == std::string("Entry") ? "line load" : "force";
    for (const auto* system : {"1", "2", "3", "4"}) {
      const std::string output = std::string(place) + system;
      add({{"lblRockLoad*", "label", "Rock Load", load},
           {"txtRockLoad*", "output", "", ""},
           {"lblSupportCap*", "label", "Support Capacity", load},
           {"txtSupportCap*", "output", "", ""},
           {"lblStabFactor*", "label", "Stability Factor", ""},
           {"txtStabFactor*", "output", "", ""}},
          output);
    }
  }
  for (const auto* grid : {"Primary", "Entry", "Inter"}) add({{"VSFlexGrid*", "grid", "", ""}}, grid);
  return all;
}

std::vector<std::string> Split(const std::string& text) {
  std::vector<std::string> parts{""};
  for (const char c : text) {
    if (c == '|') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::vector<std::string> ExpectedCaptions(const ControlCase& row, UnitSystem units) {
  std::vector<std::string> captions = Split(row.caption);
  if (row.kind == "tabs") return captions;
  const std::vector<std::string> suffixes = Split(row.unit);
  for (std::size_t i = 0; i < captions.size(); ++i) {
    captions[i] += UnitSuffixes.at(suffixes.at(i))[static_cast<std::size_t>(units)];
  }
  return captions;
}

std::string KindOf(const Control* control) {
  if (const auto* box = dynamic_cast<const TextBox*>(control)) {
    if (box->Kind() == TextKind::Output) return "output";
    return box->Kind() == TextKind::Number ? "number" : "text";
  }
  if (dynamic_cast<const Combo*>(control) != nullptr) return "combo";
  if (dynamic_cast<const Grid*>(control) != nullptr) return "grid";
  if (dynamic_cast<const CheckBox*>(control) != nullptr) return "check box";
  if (dynamic_cast<const OptionArray*>(control) != nullptr) return "option array";
  if (dynamic_cast<const Button*>(control) != nullptr) return "button";
  if (dynamic_cast<const TabSet*>(control) != nullptr) return "tabs";
  if (dynamic_cast<const Drawing*>(control) != nullptr) return "drawing";
  if (dynamic_cast<const Frame*>(control) != nullptr) return "frame";
  return dynamic_cast<const Label*>(control) != nullptr ? "label" : "something else";
}

std::vector<std::string> CaptionsOf(const Control* control) {
  if (const auto* label = dynamic_cast<const Label*>(control)) return {label->Caption()};
  if (const auto* button = dynamic_cast<const Button*>(control)) return {button->Caption()};
  if (const auto* check = dynamic_cast<const CheckBox*>(control)) return {check->Caption()};
  std::vector<std::string> captions;
  if (const auto* options = dynamic_cast<const OptionArray*>(control)) {
    for (std::size_t i = 0; i < options->Count(); ++i) captions.push_back(options->Caption(i));
  } else if (const auto* tabs = dynamic_cast<const TabSet*>(control)) {
    for (int tab = 0; tab < tabs->Count(); ++tab) captions.push_back(tabs->Caption(tab));
  } else {
    captions.emplace_back();
  }
  return captions;
}

TEST_F(ParameterControls, AreAllThereExactlyOnce) {
  std::vector<std::string> expected{"lblVerdicts", "lstVerdicts",  // whose texts are those of the design
                                    "cmdWouldHold", "cmdKeepVariant"};
  for (const ControlCase& row : AllControls()) expected.push_back(row.name);
  std::vector<std::string> names;
  for (const Control* control : dialog.Controls()) names.emplace_back(control->Name());
  std::sort(expected.begin(), expected.end());
  std::sort(names.begin(), names.end());

  EXPECT_EQ(dialog.Name(), "frmPENVParm");
  EXPECT_EQ(dialog.Caption(), "Parameters - Untitled");
  EXPECT_THAT(names, ElementsAreArray(expected));
}

TEST_F(ParameterControls, HaveTheirTypeCaptionAndUnit) {
  for (const UnitSystem units : {English, Metric}) {
    StartDesign(units);
    ParametersDialog other(program);
    other.Open();
    for (const ControlCase& row : AllControls()) {
      const Control* control = other.Find(row.name);
      ASSERT_NE(control, nullptr) << row.name;
      EXPECT_EQ(KindOf(control), row.kind) << row.name;
      EXPECT_THAT(CaptionsOf(control), ElementsAreArray(ExpectedCaptions(row, units))) << row.name;
    }
  }
}

TEST_F(ParameterControls, CallTheGradeUltimateIfStrengthsAreUltimate) {
  const std::array<std::string, 2> captions{"Roof Bolt Ultimate Grade (ksi)", "Roof Bolt Ultimate Grade (MPa)"};
  for (const UnitSystem units : {English, Metric}) {
    StartDesign(units, StrengthBasis::Ultimate);
    ParametersDialog other(program);
    other.Open();
    for (const Frame* frame : {&other.PrimaryBoltControls.GradeFrame, &other.EntryBoltControls.GradeFrame,
                               &other.InterBoltControls.GradeFrame}) {
      EXPECT_EQ(frame->Caption(), captions[static_cast<std::size_t>(units)]) << frame->Name();
    }
  }
}

TEST_F(ParameterControls, HideTheEstimatorsNotesAndShowDashesBeforeTheFirstResults) {
  EXPECT_FALSE(dialog.txtRegion.Visible());
  EXPECT_FALSE(dialog.txtOption.Visible());
  EXPECT_FALSE(dialog.txtMessage.Visible());
  for (const OutputControls* outputs : {&dialog.EntryOutputs, &dialog.InterOutputs}) {
    for (const auto* boxes : {&outputs->RockLoad, &outputs->SupportCap, &outputs->StabFactor}) {
      EXPECT_THAT(TextsOf(*boxes), testing::Each("---"));
    }
  }
}

}  // namespace
}  // namespace orby::test
