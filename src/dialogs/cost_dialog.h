// The cost dialog: what one bolting operation consumes and produces, its live figures, its checks and its preview.
#pragma once

#include <string_view>

#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class CostDialog : public ProgramForm {
 public:
  static constexpr std::string_view UseCalculated = "Use calculated value";

  Frame fraConsumables{*this, "fraConsumables", "Consumables"};
  LabelledBox txtBoltCost{*this, "txtBoltCost", TextKind::Number, "Bolt cost ($/bolt)"};
  LabelledBox txtPlateCost{*this, "txtPlateCost", TextKind::Number, "Plate cost ($/plate)"};
  LabelledBox txtResinCost{*this, "txtResinCost", TextKind::Number, "Resin cost ($/bolt)"};
  LabelledBox txtBitCost{*this, "txtBitCost", TextKind::Number, "Bit cost ($/shift)"};
  LabelledBox txtHeaderCost{*this, "txtHeaderCost", TextKind::Number, "Header cost ($/bolt)"};
  LabelledBox txtStrapCost{*this, "txtStrapCost", TextKind::Number, "Strap/mesh cost ($/row)"};

  Frame fraOperatingLabor{*this, "fraOperatingLabor", "Operating Labor"};
  LabelledBox txtnOperShift{*this, "txtnOperShift", TextKind::Number, "Number of operators/shift"};
  LabelledBox txtTotalLabor{*this, "txtTotalLabor", TextKind::Number, "Total labor cost ($/hr)"};
  LabelledBox txtHoursShift{*this, "txtHoursShift", TextKind::Number, "Hours/shift"};

  Frame fraMaintenance{*this, "fraMaintenance", "Maintenance"};
  LabelledBox txtMaintainHrs{*this, "txtMaintainHrs", TextKind::Number, "Preventative maintenance (labor hrs/day)"};
  LabelledBox txtMaintainCost{*this, "txtMaintainCost", TextKind::Number, "Maintenance supply cost ($/yr)"};

  Frame fraTransportation{*this, "fraTransportation", "Transportation"};
  LabelledBox txtTranspCost{*this, "txtTranspCost", TextKind::Number, "Transportation of supplies ($/shift)"};

  Frame fraMachineOwnership{*this, "fraMachineOwnership", "Machine Ownership"};
  LabelledBox txtCapitalCost{*this, "txtCapitalCost", TextKind::Number, "Capital cost for machine ($)"};
  LabelledBox txtYearsDepr{*this, "txtYearsDepr", TextKind::Number, "Years to depreciate"};

  Frame fraProduction{*this, "fraProduction", "Production"};
  LabelledBox txtnboltsShift{*this, "txtnboltsShift", TextKind::Number, "Number of bolts installed per shift"};
  LabelledBox txtnBoltsRow{*this, "txtnBoltsRow", TextKind::Number, "Number of bolts per row"};
  LabelledBox txtRowSpacing{*this, "txtRowSpacing", TextKind::Number, "Spacing between rows", UnitSuffix::Length};
  LabelledBox txtAdvanceShiftCalc{*this, "txtAdvanceShiftCalc", TextKind::Output, "Calculated advance per shift",
                                  UnitSuffix::Length};
  LabelledBox txtAdvanceShift{*this, "txtAdvanceShift", TextKind::Number, "Input: Advance per shift",
                              UnitSuffix::Length};
  CheckBox chkAdvance{*this, "chkAdvance", UseCalculated};
  LabelledBox txtAdvanceRate{*this, "txtAdvanceRate", TextKind::Number, "Clean production advance rate",
                             UnitSuffix::ProductionRate};
  LabelledBox txtCleanProductionCalc{*this, "txtCleanProductionCalc", TextKind::Output,
                                     "Calculated clean production per shift", UnitSuffix::ProductionMass};
  LabelledBox txtCleanProduction{*this, "txtCleanProduction", TextKind::Number, "Input: Clean production per shift",
                                 UnitSuffix::ProductionMass};
  CheckBox chkProduction{*this, "chkProduction", UseCalculated};
  LabelledBox txtShiftsWeek{*this, "txtShiftsWeek", TextKind::Number, "Production shifts/week"};
  LabelledBox txtWeeksYear{*this, "txtWeeksYear", TextKind::Number, "Production weeks/year"};

  // commands
  Button Command2{*this, "Command2", "OK"};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button cmdresults{*this, "cmdresults", "Results"};
  Button Command5{*this, "Command5", "&Copy Clip"};
  Button Command3{*this, "Command3", "Help"};

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
};

}  // namespace orby
