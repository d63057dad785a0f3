// The cost dialog: what one bolting operation consumes and produces, its live figures, its checks and its preview.
#pragma once

#include <string_view>

#include "controls/controls.h"
#include "core/program.h"

namespace orby {

class CostControls : public Form {
 public:
  CostControls() : Form("frmTULKCost", "Cost Parameters") {}

  static constexpr std::string_view UseCalculated = "Use calculated value";

  Frame fraConsumables{*this, "fraConsumables", "Consumables"};
  Label lblBoltCost{*this, "lblBoltCost", "Bolt cost ($/bolt)"};
  TextBox txtBoltCost{*this, "txtBoltCost", TextKind::Number};
  Label lblPlateCost{*this, "lblPlateCost", "Plate cost ($/plate)"};
  TextBox txtPlateCost{*this, "txtPlateCost", TextKind::Number};
  Label lblResinCost{*this, "lblResinCost", "Resin cost ($/bolt)"};
  TextBox txtResinCost{*this, "txtResinCost", TextKind::Number};
  Label lblBitCost{*this, "lblBitCost", "Bit cost ($/shift)"};
  TextBox txtBitCost{*this, "txtBitCost", TextKind::Number};
  Label lblHeaderCost{*this, "lblHeaderCost", "Header cost ($/bolt)"};
  TextBox txtHeaderCost{*this, "txtHeaderCost", TextKind::Number};
  Label lblStrapCost{*this, "lblStrapCost", "Strap/mesh cost ($/row)"};
  TextBox txtStrapCost{*this, "txtStrapCost", TextKind::Number};

  Frame fraOperatingLabor{*this, "fraOperatingLabor", "Operating Labor"};
  Label lblnOperShift{*this, "lblnOperShift", "Number of operators/shift"};
  TextBox txtnOperShift{*this, "txtnOperShift", TextKind::Number};
  Label lblTotalLabor{*this, "lblTotalLabor", "Total labor cost ($/hr)"};
  TextBox txtTotalLabor{*this, "txtTotalLabor", TextKind::Number};
  Label lblHoursShift{*this, "lblHoursShift", "Hours/shift"};
  TextBox txtHoursShift{*this, "txtHoursShift", TextKind::Number};

  Frame fraMaintenance{*this, "fraMaintenance", "Maintenance"};
  Label lblMaintainHrs{*this, "lblMaintainHrs", "Preventative maintenance (labor hrs/day)"};
  TextBox txtMaintainHrs{*this, "txtMaintainHrs", TextKind::Number};
  Label lblMaintainCost{*this, "lblMaintainCost", "Maintenance supply cost ($/yr)"};
  TextBox txtMaintainCost{*this, "txtMaintainCost", TextKind::Number};

  Frame fraTransportation{*this, "fraTransportation", "Transportation"};
  Label lblTranspCost{*this, "lblTranspCost", "Transportation of supplies ($/shift)"};
  TextBox txtTranspCost{*this, "txtTranspCost", TextKind::Number};

  Frame fraMachineOwnership{*this, "fraMachineOwnership", "Machine Ownership"};
  Label lblCapitalCost{*this, "lblCapitalCost", "Capital cost for machine ($)"};
  TextBox txtCapitalCost{*this, "txtCapitalCost", TextKind::Number};
  Label lblYearsDepr{*this, "lblYearsDepr", "Years to depreciate"};
  TextBox txtYearsDepr{*this, "txtYearsDepr", TextKind::Number};

  Frame fraProduction{*this, "fraProduction", "Production"};
  Label lblnboltsShift{*this, "lblnboltsShift", "Number of bolts installed per shift"};
  TextBox txtnboltsShift{*this, "txtnboltsShift", TextKind::Number};
  Label lblnBoltsRow{*this, "lblnBoltsRow", "Number of bolts per row"};
  TextBox txtnBoltsRow{*this, "txtnBoltsRow", TextKind::Number};
  Label lblRowSpacing{*this, "lblRowSpacing", "Spacing between rows", unit_row::Length};
  TextBox txtRowSpacing{*this, "txtRowSpacing", TextKind::Number};
  Label lblAdvanceShiftCalc{*this, "lblAdvanceShiftCalc", "Calculated advance per shift", unit_row::Length};
  TextBox txtAdvanceShiftCalc{*this, "txtAdvanceShiftCalc", TextKind::Output};
  Label lblAdvanceShift{*this, "lblAdvanceShift", "Input: Advance per shift", unit_row::Length};
  TextBox txtAdvanceShift{*this, "txtAdvanceShift", TextKind::Number};
  CheckBox chkAdvance{*this, "chkAdvance", UseCalculated};
  Label lblAdvanceRate{*this, "lblAdvanceRate", "Clean production advance rate", unit_row::ProductionRate};
  TextBox txtAdvanceRate{*this, "txtAdvanceRate", TextKind::Number};
  Label lblCleanProductionCalc{*this, "lblCleanProductionCalc", "Calculated clean production per shift",
                               unit_row::ProductionMass};
  TextBox txtCleanProductionCalc{*this, "txtCleanProductionCalc", TextKind::Output};
  Label lblCleanProduction{*this, "lblCleanProduction", "Input: Clean production per shift", unit_row::ProductionMass};
  TextBox txtCleanProduction{*this, "txtCleanProduction", TextKind::Number};
  CheckBox chkProduction{*this, "chkProduction", UseCalculated};
  Label lblShiftsWeek{*this, "lblShiftsWeek", "Production shifts/week"};
  TextBox txtShiftsWeek{*this, "txtShiftsWeek", TextKind::Number};
  Label lblWeeksYear{*this, "lblWeeksYear", "Production weeks/year"};
  TextBox txtWeeksYear{*this, "txtWeeksYear", TextKind::Number};

  // commands
  Button Command2{*this, "Command2", "OK"};
  Button Command1{*this, "Command1", "Cancel"};
  Button cmdresults{*this, "cmdresults", "Results"};
  Button Command5{*this, "Command5", "&Copy Clip"};
  Button Command3{*this, "Command3", "Help"};
};

class CostDialog : public CostControls {
 public:
  explicit CostDialog(Program& program);

  // The advance per shift out of bolts and row spacing, and the clean production that follows from it. A spacing that
  // is not above 0 leaves both figures as they are. "--" when it cannot be computed.
  void CalcAdvance();

  // The clean production out of the calculated advance and the advance rate. "--" when it, or the advance, cannot be
  // computed.
  void CalcProduction();

  // Refuses numbers below 0 and those that a project cannot hold: tells of the first field with one, and gives it the
  // focus.
  bool ValidateCost();

  // Reads the fields into a design as a commit would. A number that the design cannot hold leaves the one it has there;
  // one that has passed the checks always fits.
  void ReadEdits(Design& design) const;

  // Reads the fields into the committed design.
  void SaveWorkParms();

  // The same into the scratch design, for previews.

  // Builds the report pages of the fields as they stand, without committing or checking them. Throws what a report
  // throws that cannot be computed.
  void BuildReport();

  bool HoldEvents = false;  // holds the live figures back
  bool CommitOnClose = false;
  bool WasCommitted = false;

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void TieEvents();
  void TieCommands();
  void FillFields();
  void ReadCost(CostInputs& cost) const;

  Program& program_;
};

}  // namespace orby
