// The cost dialog: the inputs of one bolting operation, its live figures, its checks and its preview.
#pragma once

#include <string_view>

#include "controls/controls.h"
#include "controls/edit_history.h"
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

  // Shows the advance per shift, computed from the bolts and the row spacing, and refreshes the clean production if it
  // changed. Shows "--" if it cannot be computed. Does nothing if the row spacing is 0 or less.
  void CalcAdvance();

  // Shows the clean production, computed from the calculated advance and the advance rate. Shows "--" if it or the
  // advance cannot be computed.
  void CalcProduction();

  // Returns true if every number is 0 or more and fits a project. Otherwise shows an error for the first field that
  // fails, and moves the focus to it.
  bool ValidateCost();

  // Reads the fields into a design as a commit would. A number that the design cannot hold leaves the design's own one
  // unchanged; numbers that pass the checks always fit.
  void ReadEdits(Design& design) const;

  // Reads the fields into the committed design.
  void SaveWorkParms();

  // Builds the report pages of the fields as they are, without committing or checking them. Throws the RuntimeError of
  // a report that cannot be computed.
  void BuildReport();

  EditHistory* Edits() override { return &edits_; }

  bool HoldEvents = false;  // suspends the live figures
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

  EditHistory edits_;
};

}  // namespace orby
