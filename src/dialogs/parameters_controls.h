// The controls of the parameters dialog, in the order of the tab key, and the descriptors of those that share rules.
#pragma once

#include <array>
#include <string_view>

#include "controls/controls.h"
#include "controls/grid.h"
#include "core/shared_texts.h"
#include "design/design.h"
#include "design/units.h"
#include "engine/secondary_support.h"

namespace orby {

using Names4 = std::array<std::string_view, SystemCount>;

// Four controls of a kind, made alike but for their names.
template <class T, class... Args>
std::array<T, SystemCount> FourOf(Form& form, const Names4& names, const Args&... args) {
  return {T(form, names[0], args...), T(form, names[1], args...), T(form, names[2], args...),
          T(form, names[3], args...)};
}

inline constexpr Names4 SupportTabCaptions{"Cable Bolts", "Truss Bolts", "Roof Bolts", "Standing Supports"};

class ParametersControls : public Form {
 public:
  ParametersControls() : Form("frmPENVParm", "Parameters") {}

  TabSet SSTab1{
      *this,
      "SSTab1",
      {"General", "Primary Support: Roof Bolts", "Secondary Support: Entries", "Secondary Support: Intersections"}};

  // general
  Frame fraGeology{*this, "fraGeology", "Geology"};
  Frame fraCMRR{*this, "fraCMRR", "Coal Mine Roof Rating"};
  Label lblCMRR{*this, "lblCMRR", "CMRR"};
  TextBox txtCMRR{*this, "txtCMRR", TextKind::Number};
  CheckBox chkCMRRManual{*this, "chkCMRRManual", "CMRR manual setting "};
  Button cmdCMRR{*this, "cmdCMRR", "CMRR Estimator"};
  TextBox txtRegion{*this, "txtRegion"};
  TextBox txtOption{*this, "txtOption"};
  Label lblDepthofCover{*this, "lblDepthofCover", "Depth of Cover", unit_row::Length};
  TextBox txtDepthofCover{*this, "txtDepthofCover", TextKind::Number};
  Label lblUnitWeight{*this, "lblUnitWeight", "Unit Weight of Rock", unit_row::UnitWeight};
  TextBox txtUnitWeight{*this, "txtUnitWeight", TextKind::Number};
  Frame fraMiningFactors{*this, "fraMiningFactors", "Mining Factors"};
  Label lblActualSpanDiagonals{*this, "lblActualSpanDiagonals", "Sum of the Diagonals", unit_row::Length};
  TextBox txtActualSpanDiagonals{*this, "txtActualSpanDiagonals", TextKind::Number};
  Label lblEntryWidth{*this, "lblEntryWidth", "Entry Width", unit_row::Length};
  TextBox txtEntryWidth{*this, "txtEntryWidth", TextKind::Number};
  Frame fraAnalysisOptions{*this, "fraAnalysisOptions", "Analysis Options"};
  CheckBox chkPrimSupport{*this, "chkPrimSupport", "Analysis of Primary Roof Bolts"};
  CheckBox chkSecondSupEntries{*this, "chkSecondSupEntries", "Analysis of Secondary Support: Entries"};
  CheckBox chkSecondSupInter{*this, "chkSecondSupInter", "Analysis of Secondary Support: Intersections"};
  TextBox txtMessage{*this, "txtMessage", TextKind::Output};
  Picture Picture1{*this, "Picture1"};

  // primary support
  Frame fraPrimarySupport{*this, "fraPrimarySupport", "Primary Support Parameters"};
  Label lblStabilityFactor{*this, "lblStabilityFactor", "Stability Factor"};
  TextBox txtStabilityFactor{*this, "txtStabilityFactor", TextKind::Number};
  Label lblBoltLengthPrimary{*this, "lblBoltLengthPrimary", "Actual Bolt Length", unit_row::Length};
  TextBox txtBoltLengthPrimary{*this, "txtBoltLengthPrimary"};
  Label lblBoltsperRowPrimary{*this, "lblBoltsperRowPrimary", "Number of Roof Bolts per Row"};
  TextBox txtBoltsperRowPrimary{*this, "txtBoltsperRowPrimary"};
  Label lblRowSpacingPrimary{*this, "lblRowSpacingPrimary", "Roof Bolt Row Spacing", unit_row::Length};
  TextBox txtRowSpacingPrimary{*this, "txtRowSpacingPrimary"};
  OptionArray optBoltOptionsPrimary{*this, "optBoltOptionsPrimary", {{TableSelection}, {ManualSelection}}};
  Frame fraBoltOptionsPrimary1{*this, "fraBoltOptionsPrimary1", "Roof Bolt Standard Table Selection"};
  Grid VSFlexGridPrimary{*this, "VSFlexGridPrimary"};
  Frame fraBoltOptionsPrimary0{*this, "fraBoltOptionsPrimary0", "Roof Bolt Manual Selection"};
  Frame fraBoltDiameterPrimary{*this, "fraBoltDiameterPrimary", "Roof Bolt Diameter", unit_row::Diameter};
  OptionArray optBoltDiameterPrimary{*this, "optBoltDiameterPrimary", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbBoltDiameterPrimary{*this, "cmbBoltDiameterPrimary"};
  TextBox txtBoltDiameterPrimary{*this, "txtBoltDiameterPrimary"};
  Frame fraBoltGradePrimary{*this, "fraBoltGradePrimary", "Roof Bolt Yield Grade", unit_row::Grade};
  OptionArray optBoltGradePrimary{*this, "optBoltGradePrimary", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbBoltGradePrimary{*this, "cmbBoltGradePrimary"};
  TextBox txtBoltGradePrimary{*this, "txtBoltGradePrimary"};
  Frame fraOutput{*this, "fraOutput", "Output"};
  Label lblSugTULK{*this, "lblSugTULK", "Suggested PSUP"};
  TextBox txtSugPSUP{*this, "txtSugPSUP", TextKind::Output};
  Label lblActualPENV{*this, "lblActualPENV", "Actual PSUP"};
  TextBox txtActualPSUP{*this, "txtActualPSUP", TextKind::Output};
  Label lblSuggestBoltLength{*this, "lblSuggestBoltLength", "Suggested Minimum Roof Bolt Length", unit_row::Length};
  TextBox txtSuggestBoltLength{*this, "txtSuggestBoltLength", TextKind::Output};
  Label lblSugSumDiagonals{*this, "lblSugSumDiagonals", "Suggested Intersection Sum of the diagonals",
                           unit_row::Length};
  TextBox txtSugSumDiagonals{*this, "txtSugSumDiagonals", TextKind::Output};
  Picture Image1{*this, "Image1"};

  // secondary support: entries
  Frame fraRockLoadEntry{*this, "fraRockLoadEntry", "Rock Load Parameters"};
  Label lblRockLoadHeight{*this, "lblRockLoadHeight", "Rock Load Height", unit_row::Length};
  TextBox txtRockLoadHeight{*this, "txtRockLoadHeight"};
  Label lblRockFallAngle{*this, "lblRockFallAngle", "Roof Fall Angle (deg)"};
  TextBox txtRockFallAngle{*this, "txtRockFallAngle"};
  Frame fraSupportSystemEntry{*this, "fraSupportSystemEntry", "Support System"};
  std::array<CheckBox, SystemCount> chkSecEntries{CheckBox(*this, "chkSecEntries_0", SupportTabCaptions[0]),
                                                  CheckBox(*this, "chkSecEntries_1", SupportTabCaptions[1]),
                                                  CheckBox(*this, "chkSecEntries_2", SupportTabCaptions[2]),
                                                  CheckBox(*this, "chkSecEntries_3", SupportTabCaptions[3])};
  TabSet SSTab2{
      *this, "SSTab2", {SupportTabCaptions[0], SupportTabCaptions[1], SupportTabCaptions[2], SupportTabCaptions[3]}};

  // entries: cable bolts
  Label lblCableLengthSecEntry{*this, "lblCableLengthSecEntry", "Cable Bolt Length", unit_row::Length};
  TextBox txtCableLengthSecEntry{*this, "txtCableLengthSecEntry"};
  Frame fraCableDetEntry{*this, "fraCableDetEntry", "Capacity Determination"};
  OptionArray optCableCapModeSecEntry{
      *this, "optCableCapModeSecEntry", {{"Cable Diameter", unit_row::Diameter}, {"Cable Capacity", unit_row::Force}}};
  Combo cmbCableDiamSecEntry{*this, "cmbCableDiamSecEntry"};
  Frame fraCableSpecEntry{*this, "fraCableSpecEntry", "Capacity Specification"};
  OptionArray optCableCapacitySecEntry{*this, "optCableCapacitySecEntry", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbCableCapacitySecEntry{*this, "cmbCableCapacitySecEntry"};
  TextBox txtCableCapacitySecEntry{*this, "txtCableCapacitySecEntry"};
  Label lblCableBoltsPerRowSecEntry{*this, "lblCableBoltsPerRowSecEntry", "Number of Bolts per Row"};
  TextBox txtCableBoltsPerRowSecEntry{*this, "txtCableBoltsPerRowSecEntry"};
  Label lblCableRowSpacingSecEntry{*this, "lblCableRowSpacingSecEntry", "Cable Bolt Row Spacing", unit_row::Length};
  TextBox txtCableRowSpacingSecEntry{*this, "txtCableRowSpacingSecEntry"};

  // entries: trusses
  Label lblTrussLengthMemberSecEntry{*this, "lblTrussLengthMemberSecEntry", "Length of Angled Member",
                                     unit_row::Length};
  TextBox txtTrussLengthMemberSecEntry{*this, "txtTrussLengthMemberSecEntry"};
  Label lblTrussAngleSecEntry{*this, "lblTrussAngleSecEntry", "Truss Angle (deg)"};
  TextBox txtTrussAngleSecEntry{*this, "txtTrussAngleSecEntry"};
  Label lblTrussCapacitySecEntry{*this, "lblTrussCapacitySecEntry", "Truss Capacity", unit_row::Force};
  TextBox txtTrussCapacitySecEntry{*this, "txtTrussCapacitySecEntry"};
  Label lblTrussSpacingSecEntry{*this, "lblTrussSpacingSecEntry", "Truss Spacing", unit_row::Length};
  TextBox txtTrussSpacingSecEntry{*this, "txtTrussSpacingSecEntry"};

  // entries: roof bolts
  Label lblBoltLengthSecEntry{*this, "lblBoltLengthSecEntry", "Roof Bolt Length", unit_row::Length};
  TextBox txtBoltLengthSecEntry{*this, "txtBoltLengthSecEntry"};
  Label lblBoltsperRowSecEntry{*this, "lblBoltsperRowSecEntry", "Number of Bolts per Row"};
  TextBox txtBoltsperRowSecEntry{*this, "txtBoltsperRowSecEntry"};
  Label lblRowSpacingSecEntry{*this, "lblRowSpacingSecEntry", "Roof Bolt Row Spacing", unit_row::Length};
  TextBox txtRowSpacingSecEntry{*this, "txtRowSpacingSecEntry"};
  OptionArray optBoltOptionsSecEntry{*this, "optBoltOptionsSecEntry", {{TableSelection}, {ManualSelection}}};
  Frame fraBoltOptionsSecEntry1{*this, "fraBoltOptionsSecEntry1", "Roof Bolt Standard Table Selection"};
  Grid VSFlexGridEntry{*this, "VSFlexGridEntry"};
  Frame fraBoltOptionsSecEntry0{*this, "fraBoltOptionsSecEntry0", "Roof Bolt Manual Selection"};
  Frame fraBoltDiameterSecEntry{*this, "fraBoltDiameterSecEntry", "Roof Bolt Diameter", unit_row::Diameter};
  OptionArray optBoltDiameterSecEntry{*this, "optBoltDiameterSecEntry", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbBoltDiameterSecEntry{*this, "cmbBoltDiameterSecEntry"};
  TextBox txtBoltDiameterSecEntry{*this, "txtBoltDiameterSecEntry"};
  Frame fraBoltGradeSecEntry{*this, "fraBoltGradeSecEntry", "Roof Bolt Yield Grade", unit_row::Grade};
  OptionArray optBoltGradeSecEntry{*this, "optBoltGradeSecEntry", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbBoltGradeSecEntry{*this, "cmbBoltGradeSecEntry"};
  TextBox txtBoltGradeSecEntry{*this, "txtBoltGradeSecEntry"};

  // entries: standing supports
  Frame fraSupportSelectionEntry{*this, "fraSupportSelectionEntry", "Support Selection"};
  OptionArray optSupportTypeSecEntry{*this, "optSupportTypeSecEntry", {{"Standard Selection"}, {"Manual Input"}}};
  Frame fraSupportTypeEntry{*this, "fraSupportTypeEntry", "Support Type"};
  Combo cmbSupportTypeSecEntry{*this, "cmbSupportTypeSecEntry"};
  TextBox txtSupportTypeSecEntry{*this, "txtSupportTypeSecEntry"};
  Label lblSupportCapSecEntry{*this, "lblSupportCapSecEntry", "Support Capacity", unit_row::Force};
  TextBox txtSupportCapSecEntry{*this, "txtSupportCapSecEntry"};
  Label lblNumberSupPerRowSecEntry{*this, "lblNumberSupPerRowSecEntry", "Number of Supports Per Row"};
  TextBox txtNumberSupPerRowSecEntry{*this, "txtNumberSupPerRowSecEntry"};
  Label lblSupportRowSpacingSecEntry{*this, "lblSupportRowSpacingSecEntry", "Row Spacing", unit_row::Length};
  TextBox txtSupportRowSpacingSecEntry{*this, "txtSupportRowSpacingSecEntry"};

  // entries: outputs of the four support systems
  std::array<Label, SystemCount> lblRockLoadEntry =
      FourOf<Label>(*this, {"lblRockLoadEntry1", "lblRockLoadEntry2", "lblRockLoadEntry3", "lblRockLoadEntry4"},
                    "Rock Load", unit_row::LineLoad);
  std::array<TextBox, SystemCount> txtRockLoadEntry = FourOf<TextBox>(
      *this, {"txtRockLoadEntry1", "txtRockLoadEntry2", "txtRockLoadEntry3", "txtRockLoadEntry4"}, TextKind::Output);
  std::array<Label, SystemCount> lblSupportCapEntry =
      FourOf<Label>(*this, {"lblSupportCapEntry1", "lblSupportCapEntry2", "lblSupportCapEntry3", "lblSupportCapEntry4"},
                    "Support Capacity", unit_row::LineLoad);
  std::array<TextBox, SystemCount> txtSupportCapEntry = FourOf<TextBox>(
      *this, {"txtSupportCapEntry1", "txtSupportCapEntry2", "txtSupportCapEntry3", "txtSupportCapEntry4"},
      TextKind::Output);
  std::array<Label, SystemCount> lblStabFactorEntry =
      FourOf<Label>(*this, {"lblStabFactorEntry1", "lblStabFactorEntry2", "lblStabFactorEntry3", "lblStabFactorEntry4"},
                    "Stability Factor", NoUnit);
  std::array<TextBox, SystemCount> txtStabFactorEntry = FourOf<TextBox>(
      *this, {"txtStabFactorEntry1", "txtStabFactorEntry2", "txtStabFactorEntry3", "txtStabFactorEntry4"},
      TextKind::Output);

  // secondary support: intersections
  Frame fraRockLoadInter{*this, "fraRockLoadInter", "Rock Load Parameters"};
  Label lblRockLoadHeightInter{*this, "lblRockLoadHeightInter", "Rock Load Height", unit_row::Length};
  TextBox txtRockLoadHeightInter{*this, "txtRockLoadHeightInter"};
  Label lblRockFallAngleEntry{*this, "lblRockFallAngleEntry", "Roof Fall Angle Entry (deg)"};
  TextBox txtRockFallAngleEntry{*this, "txtRockFallAngleEntry"};
  Label lblRockFallAngleXcut{*this, "lblRockFallAngleXcut", "Roof Fall Angle Crosscut (deg)"};
  TextBox txtRockFallAngleXcut{*this, "txtRockFallAngleXcut"};
  Frame fraSupportSystemInter{*this, "fraSupportSystemInter", "Support System"};
  std::array<CheckBox, SystemCount> chkSecInter{
      CheckBox(*this, "chkSecInter_0", SupportTabCaptions[0]), CheckBox(*this, "chkSecInter_1", SupportTabCaptions[1]),
      CheckBox(*this, "chkSecInter_2", SupportTabCaptions[2]), CheckBox(*this, "chkSecInter_3", SupportTabCaptions[3])};
  TabSet SSTab3{
      *this, "SSTab3", {SupportTabCaptions[0], SupportTabCaptions[1], SupportTabCaptions[2], SupportTabCaptions[3]}};

  // intersections: cable bolts
  Label lblCableLengthSecInter{*this, "lblCableLengthSecInter", "Cable Bolt Length", unit_row::Length};
  TextBox txtCableLengthSecInter{*this, "txtCableLengthSecInter"};
  Frame fraCableDetInter{*this, "fraCableDetInter", "Capacity Determination"};
  OptionArray optCableCapModeSecInter{
      *this, "optCableCapModeSecInter", {{"Cable Diameter", unit_row::Diameter}, {"Cable Capacity", unit_row::Force}}};
  Combo cmbCableDiamSecInter{*this, "cmbCableDiamSecInter"};
  Frame fraCableSpecInter{*this, "fraCableSpecInter", "Capacity Specification"};
  OptionArray optCableCapacitySecInter{*this, "optCableCapacitySecInter", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbCableCapacitySecInter{*this, "cmbCableCapacitySecInter"};
  TextBox txtCableCapacitySecInter{*this, "txtCableCapacitySecInter"};
  Label lblCableNumberSecInter{*this, "lblCableNumberSecInter", "Number of Cable Bolts"};
  TextBox txtCableNumberSecInter{*this, "txtCableNumberSecInter"};

  // intersections: trusses
  Label lblTrussLengthMemberSecInter{*this, "lblTrussLengthMemberSecInter", "Length of Angled Member",
                                     unit_row::Length};
  TextBox txtTrussLengthMemberSecInter{*this, "txtTrussLengthMemberSecInter"};
  Label lblTrussAngleSecInter{*this, "lblTrussAngleSecInter", "Truss Angle (deg)"};
  TextBox txtTrussAngleSecInter{*this, "txtTrussAngleSecInter"};
  Label lblTrussCapacitySecInter{*this, "lblTrussCapacitySecInter", "Truss Capacity", unit_row::Force};
  TextBox txtTrussCapacitySecInter{*this, "txtTrussCapacitySecInter"};
  Label lblTrussNumberSecInter{*this, "lblTrussNumberSecInter", "Number of Trusses"};
  TextBox txtTrussNumberSecInter{*this, "txtTrussNumberSecInter"};

  // intersections: roof bolts
  Label lblBoltLengthSecInter{*this, "lblBoltLengthSecInter", "Roof Bolt Length", unit_row::Length};
  TextBox txtBoltLengthSecInter{*this, "txtBoltLengthSecInter"};
  Label lblBoltNumberSecInter{*this, "lblBoltNumberSecInter", "Number of Roof Bolts"};
  TextBox txtBoltNumberSecInter{*this, "txtBoltNumberSecInter"};
  OptionArray optBoltOptionsSecInter{*this, "optBoltOptionsSecInter", {{TableSelection}, {ManualSelection}}};
  Frame fraBoltOptionsSecInter1{*this, "fraBoltOptionsSecInter1", "Roof Bolt Standard Table Selection"};
  Grid VSFlexGridInter{*this, "VSFlexGridInter"};
  Frame fraBoltOptionsSecInter0{*this, "fraBoltOptionsSecInter0", "Roof Bolt Manual Selection"};
  Frame fraBoltDiameterSecInter{*this, "fraBoltDiameterSecInter", "Roof Bolt Diameter", unit_row::Diameter};
  OptionArray optBoltDiameterSecInter{*this, "optBoltDiameterSecInter", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbBoltDiameterSecInter{*this, "cmbBoltDiameterSecInter"};
  TextBox txtBoltDiameterSecInter{*this, "txtBoltDiameterSecInter"};
  Frame fraBoltGradeSecInter{*this, "fraBoltGradeSecInter", "Roof Bolt Yield Grade", unit_row::Grade};
  OptionArray optBoltGradeSecInter{*this, "optBoltGradeSecInter", {{"Standard Selection"}, {"Manual Input"}}};
  Combo cmbBoltGradeSecInter{*this, "cmbBoltGradeSecInter"};
  TextBox txtBoltGradeSecInter{*this, "txtBoltGradeSecInter"};

  // intersections: standing supports
  Frame fraSupportSelectionInter{*this, "fraSupportSelectionInter", "Support Selection"};
  OptionArray optSupportTypeSecInter{*this, "optSupportTypeSecInter", {{"Standard Selection"}, {"Manual Input"}}};
  Frame fraSupportTypeInter{*this, "fraSupportTypeInter", "Support Type"};
  Combo cmbSupportTypeSecInter{*this, "cmbSupportTypeSecInter"};
  TextBox txtSupportTypeSecInter{*this, "txtSupportTypeSecInter"};
  Label lblSupportCapSecInter{*this, "lblSupportCapSecInter", "Support Capacity", unit_row::Force};
  TextBox txtSupportCapSecInter{*this, "txtSupportCapSecInter"};
  Label lblSupportNumberSecInter{*this, "lblSupportNumberSecInter", "Number of Supports"};
  TextBox txtSupportNumberSecInter{*this, "txtSupportNumberSecInter"};

  // intersections: outputs of the four support systems
  std::array<Label, SystemCount> lblRockLoadInter =
      FourOf<Label>(*this, {"lblRockLoadInter1", "lblRockLoadInter2", "lblRockLoadInter3", "lblRockLoadInter4"},
                    "Rock Load", unit_row::Force);
  std::array<TextBox, SystemCount> txtRockLoadInter = FourOf<TextBox>(
      *this, {"txtRockLoadInter1", "txtRockLoadInter2", "txtRockLoadInter3", "txtRockLoadInter4"}, TextKind::Output);
  std::array<Label, SystemCount> lblSupportCapInter =
      FourOf<Label>(*this, {"lblSupportCapInter1", "lblSupportCapInter2", "lblSupportCapInter3", "lblSupportCapInter4"},
                    "Support Capacity", unit_row::Force);
  std::array<TextBox, SystemCount> txtSupportCapInter = FourOf<TextBox>(
      *this, {"txtSupportCapInter1", "txtSupportCapInter2", "txtSupportCapInter3", "txtSupportCapInter4"},
      TextKind::Output);
  std::array<Label, SystemCount> lblStabFactorInter =
      FourOf<Label>(*this, {"lblStabFactorInter1", "lblStabFactorInter2", "lblStabFactorInter3", "lblStabFactorInter4"},
                    "Stability Factor", NoUnit);
  std::array<TextBox, SystemCount> txtStabFactorInter = FourOf<TextBox>(
      *this, {"txtStabFactorInter1", "txtStabFactorInter2", "txtStabFactorInter3", "txtStabFactorInter4"},
      TextKind::Output);

  // commands
  Button Command2{*this, "Command2", "OK"};
  Button Command1{*this, "Command1", "Cancel"};
  Button cmdresults{*this, "cmdresults", "Results"};
  Button cmdView{*this, "cmdView", "&View"};
  Button Command5{*this, "Command5", "&Copy Clip"};
  Button Command3{*this, "Command3", "Help"};
};

// The controls of one bolt set. The grid shows on its own tab only.
struct BoltControls {
  OptionArray& Options;
  Grid& Table;
  Frame& TableFrame;
  Frame& ManualFrame;
  OptionArray& DiameterMode;
  Combo& DiameterStd;
  TextBox& DiameterManual;
  OptionArray& GradeMode;
  Combo& GradeStd;
  TextBox& GradeManual;
  Frame& GradeFrame;
  TabSet& Tabs;
  int Tab;
};

// The controls of one cable selection.
struct CableControls {
  SecondarySupport RoofSupport::*Support;
  OptionArray& CapMode;
  OptionArray& Capacity;
  Frame& SpecificationFrame;
  Combo& Diam;
  Combo& CapacityStd;
  TextBox& CapacityManual;
};

// The controls of one standing support.
struct StandingControls {
  OptionArray& TypeMode;
  Combo& TypeStd;
  TextBox& TypeManual;
  TextBox& Capacity;
  bool RestoresText;  // choosing from the catalog brings the selected name back
};

// Columns of a bolt grid.
namespace BoltColumn {
inline constexpr int Number = 0;
inline constexpr int Description = 1;
inline constexpr int Diameter = 2;
inline constexpr int Grade = 3;
}  // namespace BoltColumn

// The outputs of four support systems.
struct OutputControls {
  std::array<TextBox, SystemCount>& RockLoad;
  std::array<TextBox, SystemCount>& SupportCap;
  std::array<TextBox, SystemCount>& StabFactor;
};

}  // namespace orby
