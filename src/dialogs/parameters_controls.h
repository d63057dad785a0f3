// The controls of the parameters dialog, in tab order, and the groups of controls that share rules.
#pragma once

#include <array>
#include <string_view>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/dialog_helpers.h"
#include "core/program_form.h"
#include "core/shared_texts.h"
#include "design/design.h"
#include "design/units.h"
#include "dialogs/drawing.h"
#include "engine/secondary_support.h"

namespace orby {

using Names4 = std::array<std::string_view, SystemCount>;

inline constexpr Names4 SupportTabCaptions{"Cable Bolts", "Truss Bolts", "Roof Bolts", "Standing Supports"};

inline constexpr std::string_view StandardSelection = "Standard Selection";
inline constexpr std::string_view ManualInput = "Manual Input";

// Controls that the dialog has more than once are made from their names, in the order of the controls.

// The choice of a bolt: a table row, or a diameter and a grade. The table shows only on its own tab.
struct BoltControls {
  Form& Dialog;
  std::array<std::string_view, 12> Names;
  TabSet& Tabs;
  int Tab;

  OptionArray Options{Dialog, Names[0], {{TableSelection}, {ManualSelection}}};
  Frame TableFrame{Dialog, Names[1], "Roof Bolt Standard Table Selection"};
  Grid Table{Dialog, Names[2]};
  Frame ManualFrame{Dialog, Names[3], "Roof Bolt Manual Selection"};
  Frame DiameterFrame{Dialog, Names[4], "Roof Bolt Diameter", UnitSuffix::Diameter};
  OptionArray DiameterMode{Dialog, Names[5], {{StandardSelection}, {ManualInput}}};
  Combo DiameterStd{Dialog, Names[6], UnitSuffix::Diameter};
  TextBox DiameterManual{Dialog, Names[7], TextKind::Free, UnitSuffix::Diameter};
  Frame GradeFrame{Dialog, Names[8], "Roof Bolt Yield Grade", UnitSuffix::Grade};
  OptionArray GradeMode{Dialog, Names[9], {{StandardSelection}, {ManualInput}}};
  Combo GradeStd{Dialog, Names[10], UnitSuffix::Grade};
  TextBox GradeManual{Dialog, Names[11], TextKind::Free, UnitSuffix::Grade};
};

// The choice of a cable: by diameter or by capacity.
struct CableControls {
  Form& Dialog;
  std::array<std::string_view, 7> Names;

  Frame ModeFrame{Dialog, Names[0], "Capacity Determination"};
  OptionArray CapMode{
      Dialog, Names[1], {{"Cable Diameter", UnitSuffix::Diameter}, {"Cable Capacity", UnitSuffix::Force}}};
  Combo Diam{Dialog, Names[2], UnitSuffix::Diameter};
  Frame SpecificationFrame{Dialog, Names[3], "Capacity Specification"};
  OptionArray Capacity{Dialog, Names[4], {{StandardSelection}, {ManualInput}}};
  Combo CapacityStd{Dialog, Names[5], UnitSuffix::Force};
  TextBox CapacityManual{Dialog, Names[6], TextKind::Free, UnitSuffix::Force};
};

// The choice of a standing support: from the catalog, or by name and capacity.
struct StandingControls {
  Form& Dialog;
  std::array<std::string_view, 6> Names;
  bool RestoresText;  // choosing from the catalog restores the selected name

  Frame ModeFrame{Dialog, Names[0], "Support Selection"};
  OptionArray TypeMode{Dialog, Names[1], {{StandardSelection}, {ManualInput}}};
  Frame TypeFrame{Dialog, Names[2], "Support Type"};
  Combo TypeStd{Dialog, Names[3]};
  TextBox TypeManual{Dialog, Names[4]};
  LabelledBox Capacity{Dialog, Names[5], "Support Capacity", UnitSuffix::Force};
};

// The outputs of the four support systems.
struct OutputControls {
  using Boxes = std::array<LabelledBox, SystemCount>;

  Form& Dialog;
  std::array<Names4, 3> Names;
  UnitSuffix Suffix;  // of the rock load and the capacities

  Boxes RockLoad = FourOf(Names[0], "Rock Load", Suffix);
  Boxes SupportCap = FourOf(Names[1], "Support Capacity", Suffix);
  Boxes StabFactor = FourOf(Names[2], "Stability Factor", UnitSuffix::None);

  Boxes FourOf(const Names4& names, std::string_view caption, UnitSuffix suffix) const {
    const auto box = [&](std::size_t i) { return LabelledBox(Dialog, names[i], TextKind::Output, caption, suffix); };
    return {box(0), box(1), box(2), box(3)};
  }
};

class ParametersControls : public ProgramForm {
 public:
  explicit ParametersControls(Program& program)
      : ProgramForm(program, "frmPENVParm", CaptionWithProject("Parameters", program.project)) {}

  TabSet SSTab1{
      *this,
      "SSTab1",
      {"General", "Primary Support: Roof Bolts", "Secondary Support: Entries", "Secondary Support: Intersections"}};

  // general
  Frame fraGeology{*this, "fraGeology", "Geology"};
  Frame fraCMRR{*this, "fraCMRR", "Coal Mine Roof Rating"};
  LabelledBox txtCMRR{*this, "txtCMRR", TextKind::Number, "CMRR"};
  CheckBox chkCMRRManual{*this, "chkCMRRManual", "CMRR manual setting "};
  Button cmdCMRR{*this, "cmdCMRR", "CMRR Estimator"};
  TextBox txtRegion{*this, "txtRegion"};
  TextBox txtOption{*this, "txtOption"};
  LabelledBox txtDepthofCover{*this, "txtDepthofCover", TextKind::Number, "Depth of Cover", UnitSuffix::Length};
  LabelledBox txtUnitWeight{*this, "txtUnitWeight", TextKind::Number, "Unit Weight of Rock", UnitSuffix::UnitWeight};
  Frame fraMiningFactors{*this, "fraMiningFactors", "Mining Factors"};
  LabelledBox txtActualSpanDiagonals{*this, "txtActualSpanDiagonals", TextKind::Number, "Sum of the Diagonals",
                                     UnitSuffix::Length};
  LabelledBox txtEntryWidth{*this, "txtEntryWidth", TextKind::Number, "Entry Width", UnitSuffix::Length};
  Frame fraAnalysisOptions{*this, "fraAnalysisOptions", "Analysis Options"};
  CheckBox chkPrimSupport{*this, "chkPrimSupport", "Analysis of Primary Roof Bolts"};
  CheckBox chkSecondSupEntries{*this, "chkSecondSupEntries", "Analysis of Secondary Support: Entries"};
  CheckBox chkSecondSupInter{*this, "chkSecondSupInter", "Analysis of Secondary Support: Intersections"};
  Drawing Picture1{*this, "Picture1", "Diagonals of an intersection"};
  TextBox txtMessage{*this, "txtMessage", TextKind::Output};

  // primary support
  Frame fraPrimarySupport{*this, "fraPrimarySupport", "Primary Support Parameters"};
  LabelledBox txtStabilityFactor{*this, "txtStabilityFactor", TextKind::Number, "Stability Factor"};
  LabelledBox txtBoltLengthPrimary{*this, "txtBoltLengthPrimary", "Actual Bolt Length", UnitSuffix::Length};
  LabelledBox txtBoltsperRowPrimary{*this, "txtBoltsperRowPrimary", "Number of Roof Bolts per Row"};
  LabelledBox txtRowSpacingPrimary{*this, "txtRowSpacingPrimary", "Roof Bolt Row Spacing", UnitSuffix::Length};
  BoltControls PrimaryBoltControls{
      *this,
      {"optBoltOptionsPrimary", "fraBoltOptionsPrimary1", "VSFlexGridPrimary", "fraBoltOptionsPrimary0",
       "fraBoltDiameterPrimary", "optBoltDiameterPrimary", "cmbBoltDiameterPrimary", "txtBoltDiameterPrimary",
       "fraBoltGradePrimary", "optBoltGradePrimary", "cmbBoltGradePrimary", "txtBoltGradePrimary"},
      SSTab1,
      1};
  Drawing Image1{*this, "Image1", "Primary support of an entry"};
  Frame fraOutput{*this, "fraOutput", "Output"};
  Label lblSugTULK{*this, "lblSugTULK", "Suggested PSUP"};
  TextBox txtSugPSUP{*this, "txtSugPSUP", TextKind::Output};
  Label lblActualPENV{*this, "lblActualPENV", "Actual PSUP"};
  TextBox txtActualPSUP{*this, "txtActualPSUP", TextKind::Output};
  LabelledBox txtSuggestBoltLength{*this, "txtSuggestBoltLength", TextKind::Output,
                                   "Suggested Minimum Roof Bolt Length", UnitSuffix::Length};
  LabelledBox txtSugSumDiagonals{*this, "txtSugSumDiagonals", TextKind::Output,
                                 "Suggested Intersection Sum of the diagonals", UnitSuffix::Length};

  // secondary support: entries
  Frame fraRockLoadEntry{*this, "fraRockLoadEntry", "Rock Load Parameters"};
  LabelledBox txtRockLoadHeight{*this, "txtRockLoadHeight", "Rock Load Height", UnitSuffix::Length};
  LabelledBox txtRockFallAngle{*this, "txtRockFallAngle", "Roof Fall Angle (deg)"};
  Frame fraSupportSystemEntry{*this, "fraSupportSystemEntry", "Support System"};
  std::array<CheckBox, SystemCount> chkSecEntries{CheckBox(*this, "chkSecEntries_0", SupportTabCaptions[0]),
                                                  CheckBox(*this, "chkSecEntries_1", SupportTabCaptions[1]),
                                                  CheckBox(*this, "chkSecEntries_2", SupportTabCaptions[2]),
                                                  CheckBox(*this, "chkSecEntries_3", SupportTabCaptions[3])};
  TabSet SSTab2{
      *this, "SSTab2", {SupportTabCaptions[0], SupportTabCaptions[1], SupportTabCaptions[2], SupportTabCaptions[3]}};

  // entries: cable bolts
  LabelledBox txtCableLengthSecEntry{*this, "txtCableLengthSecEntry", "Cable Bolt Length", UnitSuffix::Length};
  CableControls EntryCableControls{
      *this,
      {"fraCableDetEntry", "optCableCapModeSecEntry", "cmbCableDiamSecEntry", "fraCableSpecEntry",
       "optCableCapacitySecEntry", "cmbCableCapacitySecEntry", "txtCableCapacitySecEntry"}};
  LabelledBox txtCableBoltsPerRowSecEntry{*this, "txtCableBoltsPerRowSecEntry", "Number of Bolts per Row"};
  LabelledBox txtCableRowSpacingSecEntry{*this, "txtCableRowSpacingSecEntry", "Cable Bolt Row Spacing",
                                         UnitSuffix::Length};

  // entries: trusses
  LabelledBox txtTrussLengthMemberSecEntry{*this, "txtTrussLengthMemberSecEntry", "Length of Angled Member",
                                           UnitSuffix::Length};
  LabelledBox txtTrussAngleSecEntry{*this, "txtTrussAngleSecEntry", "Truss Angle (deg)"};
  LabelledBox txtTrussCapacitySecEntry{*this, "txtTrussCapacitySecEntry", "Truss Capacity", UnitSuffix::Force};
  LabelledBox txtTrussSpacingSecEntry{*this, "txtTrussSpacingSecEntry", "Truss Spacing", UnitSuffix::Length};

  // entries: roof bolts
  LabelledBox txtBoltLengthSecEntry{*this, "txtBoltLengthSecEntry", "Roof Bolt Length", UnitSuffix::Length};
  LabelledBox txtBoltsperRowSecEntry{*this, "txtBoltsperRowSecEntry", "Number of Bolts per Row"};
  LabelledBox txtRowSpacingSecEntry{*this, "txtRowSpacingSecEntry", "Roof Bolt Row Spacing", UnitSuffix::Length};
  BoltControls EntryBoltControls{
      *this,
      {"optBoltOptionsSecEntry", "fraBoltOptionsSecEntry1", "VSFlexGridEntry", "fraBoltOptionsSecEntry0",
       "fraBoltDiameterSecEntry", "optBoltDiameterSecEntry", "cmbBoltDiameterSecEntry", "txtBoltDiameterSecEntry",
       "fraBoltGradeSecEntry", "optBoltGradeSecEntry", "cmbBoltGradeSecEntry", "txtBoltGradeSecEntry"},
      SSTab2,
      2};

  // entries: standing supports
  StandingControls EntryStandingControls{
      .Dialog = *this,
      .Names = {"fraSupportSelectionEntry", "optSupportTypeSecEntry", "fraSupportTypeEntry", "cmbSupportTypeSecEntry",
                "txtSupportTypeSecEntry", "txtSupportCapSecEntry"},
      .RestoresText = true};
  LabelledBox txtNumberSupPerRowSecEntry{*this, "txtNumberSupPerRowSecEntry", "Number of Supports Per Row"};
  LabelledBox txtSupportRowSpacingSecEntry{*this, "txtSupportRowSpacingSecEntry", "Row Spacing", UnitSuffix::Length};

  // entries: outputs of the four support systems
  OutputControls EntryOutputs{
      *this,
      {{{"txtRockLoadEntry1", "txtRockLoadEntry2", "txtRockLoadEntry3", "txtRockLoadEntry4"},
        {"txtSupportCapEntry1", "txtSupportCapEntry2", "txtSupportCapEntry3", "txtSupportCapEntry4"},
        {"txtStabFactorEntry1", "txtStabFactorEntry2", "txtStabFactorEntry3", "txtStabFactorEntry4"}}},
      UnitSuffix::LineLoad};
  Drawing picEntries{*this, "picEntries", "Secondary support of an entry"};

  // secondary support: intersections
  Frame fraRockLoadInter{*this, "fraRockLoadInter", "Rock Load Parameters"};
  LabelledBox txtRockLoadHeightInter{*this, "txtRockLoadHeightInter", "Rock Load Height", UnitSuffix::Length};
  LabelledBox txtRockFallAngleEntry{*this, "txtRockFallAngleEntry", "Roof Fall Angle Entry (deg)"};
  LabelledBox txtRockFallAngleXcut{*this, "txtRockFallAngleXcut", "Roof Fall Angle Crosscut (deg)"};
  Frame fraSupportSystemInter{*this, "fraSupportSystemInter", "Support System"};
  std::array<CheckBox, SystemCount> chkSecInter{
      CheckBox(*this, "chkSecInter_0", SupportTabCaptions[0]), CheckBox(*this, "chkSecInter_1", SupportTabCaptions[1]),
      CheckBox(*this, "chkSecInter_2", SupportTabCaptions[2]), CheckBox(*this, "chkSecInter_3", SupportTabCaptions[3])};
  TabSet SSTab3{
      *this, "SSTab3", {SupportTabCaptions[0], SupportTabCaptions[1], SupportTabCaptions[2], SupportTabCaptions[3]}};

  // intersections: cable bolts
  LabelledBox txtCableLengthSecInter{*this, "txtCableLengthSecInter", "Cable Bolt Length", UnitSuffix::Length};
  CableControls InterCableControls{
      *this,
      {"fraCableDetInter", "optCableCapModeSecInter", "cmbCableDiamSecInter", "fraCableSpecInter",
       "optCableCapacitySecInter", "cmbCableCapacitySecInter", "txtCableCapacitySecInter"}};
  LabelledBox txtCableNumberSecInter{*this, "txtCableNumberSecInter", "Number of Cable Bolts"};

  // intersections: trusses
  LabelledBox txtTrussLengthMemberSecInter{*this, "txtTrussLengthMemberSecInter", "Length of Angled Member",
                                           UnitSuffix::Length};
  LabelledBox txtTrussAngleSecInter{*this, "txtTrussAngleSecInter", "Truss Angle (deg)"};
  LabelledBox txtTrussCapacitySecInter{*this, "txtTrussCapacitySecInter", "Truss Capacity", UnitSuffix::Force};
  LabelledBox txtTrussNumberSecInter{*this, "txtTrussNumberSecInter", "Number of Trusses"};

  // intersections: roof bolts
  LabelledBox txtBoltLengthSecInter{*this, "txtBoltLengthSecInter", "Roof Bolt Length", UnitSuffix::Length};
  LabelledBox txtBoltNumberSecInter{*this, "txtBoltNumberSecInter", "Number of Roof Bolts"};
  BoltControls InterBoltControls{
      *this,
      {"optBoltOptionsSecInter", "fraBoltOptionsSecInter1", "VSFlexGridInter", "fraBoltOptionsSecInter0",
       "fraBoltDiameterSecInter", "optBoltDiameterSecInter", "cmbBoltDiameterSecInter", "txtBoltDiameterSecInter",
       "fraBoltGradeSecInter", "optBoltGradeSecInter", "cmbBoltGradeSecInter", "txtBoltGradeSecInter"},
      SSTab3,
      2};

  // intersections: standing supports
  StandingControls InterStandingControls{
      .Dialog = *this,
      .Names = {"fraSupportSelectionInter", "optSupportTypeSecInter", "fraSupportTypeInter", "cmbSupportTypeSecInter",
                "txtSupportTypeSecInter", "txtSupportCapSecInter"},
      .RestoresText = false};
  LabelledBox txtSupportNumberSecInter{*this, "txtSupportNumberSecInter", "Number of Supports"};

  // intersections: outputs of the four support systems
  OutputControls InterOutputs{
      *this,
      {{{"txtRockLoadInter1", "txtRockLoadInter2", "txtRockLoadInter3", "txtRockLoadInter4"},
        {"txtSupportCapInter1", "txtSupportCapInter2", "txtSupportCapInter3", "txtSupportCapInter4"},
        {"txtStabFactorInter1", "txtStabFactorInter2", "txtStabFactorInter3", "txtStabFactorInter4"}}},
      UnitSuffix::Force};
  Drawing picIntersections{*this, "picIntersections", "Secondary support of an intersection"};

  // the judgements, on view from every tab
  Label lblVerdicts{*this, "lblVerdicts", "Judgements"};
  List lstVerdicts{*this, "lstVerdicts"};
  Button cmdWouldHold{*this, "cmdWouldHold", "What Would &Hold..."};
  Button cmdKeepVariant{*this, "cmdKeepVariant", "&Keep as Variant"};

  // commands
  Button Command2{*this, "Command2", "OK"};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button cmdresults{*this, "cmdresults", "Results"};
  Button cmdView{*this, "cmdView", "&View"};
  Button Command5{*this, "Command5", "&Copy Clip"};
  Button Command3{*this, "Command3", "Help"};
};

// Columns of a bolt grid.
namespace BoltColumn {
inline constexpr int Number = 0;
inline constexpr int Description = 1;
inline constexpr int Diameter = 2;
inline constexpr int Grade = 3;
}  // namespace BoltColumn

}  // namespace orby
