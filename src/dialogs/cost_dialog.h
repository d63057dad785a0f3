// The cost dialog: the inputs of one bolting operation, its live figures, its checks and its preview.
#pragma once

#include <string_view>

#include "controls/controls.h"
#include "controls/edit_history.h"
#include "core/program_form.h"
#include "reports/cost_input_rows.h"

namespace orby {

class CostBox : public LabelledBox {
 public:
  CostBox(Form& form, std::string_view name, const CostInputRow& row)
      : LabelledBox(form, name, TextKind::Number, row.Label, row.Unit) {}
};

class CostDialog : public ProgramForm {
 public:
  static constexpr std::string_view UseCalculated = "Use calculated value";

  Frame fraConsumables{*this, "fraConsumables", "Consumables"};
  CostBox txtBoltCost{*this, "txtBoltCost", CostRowOf(&CostInputs::BoltCost)};
  CostBox txtPlateCost{*this, "txtPlateCost", CostRowOf(&CostInputs::PlateCost)};
  CostBox txtResinCost{*this, "txtResinCost", CostRowOf(&CostInputs::ResinCost)};
  CostBox txtBitCost{*this, "txtBitCost", CostRowOf(&CostInputs::BitCost)};
  CostBox txtHeaderCost{*this, "txtHeaderCost", CostRowOf(&CostInputs::HeaderCost)};
  CostBox txtStrapCost{*this, "txtStrapCost", CostRowOf(&CostInputs::StrapCost)};

  Frame fraOperatingLabor{*this, "fraOperatingLabor", "Operating Labor"};
  CostBox txtnOperShift{*this, "txtnOperShift", CostRowOf(&CostInputs::NOperShift)};
  CostBox txtTotalLabor{*this, "txtTotalLabor", CostRowOf(&CostInputs::TotalLabor)};
  CostBox txtHoursShift{*this, "txtHoursShift", CostRowOf(&CostInputs::HoursShift)};

  Frame fraMaintenance{*this, "fraMaintenance", "Maintenance"};
  CostBox txtMaintainHrs{*this, "txtMaintainHrs", CostRowOf(&CostInputs::MaintainHrs)};
  CostBox txtMaintainCost{*this, "txtMaintainCost", CostRowOf(&CostInputs::MaintainCost)};

  Frame fraTransportation{*this, "fraTransportation", "Transportation"};
  CostBox txtTranspCost{*this, "txtTranspCost", CostRowOf(&CostInputs::TranspCost)};

  Frame fraMachineOwnership{*this, "fraMachineOwnership", "Machine Ownership"};
  CostBox txtCapitalCost{*this, "txtCapitalCost", CostRowOf(&CostInputs::CapitalCost)};
  CostBox txtYearsDepr{*this, "txtYearsDepr", CostRowOf(&CostInputs::YearsDepr)};

  Frame fraProduction{*this, "fraProduction", "Production"};
  CostBox txtnboltsShift{*this, "txtnboltsShift", CostRowOf(&CostInputs::NboltsShift)};
  CostBox txtnBoltsRow{*this, "txtnBoltsRow", CostRowOf(&CostInputs::NBoltsRow)};
  CostBox txtRowSpacing{*this, "txtRowSpacing", CostRowOf(&CostInputs::RowSpacing)};
  LabelledBox txtAdvanceShiftCalc{*this, "txtAdvanceShiftCalc", TextKind::Output, "Calculated advance per shift",
                                  UnitSuffix::Length};
  CostBox txtAdvanceShift{*this, "txtAdvanceShift", AdvanceShiftRow};
  CheckBox chkAdvance{*this, "chkAdvance", UseCalculated};
  CostBox txtAdvanceRate{*this, "txtAdvanceRate", CostRowOf(&CostInputs::AdvanceRate)};
  LabelledBox txtCleanProductionCalc{*this, "txtCleanProductionCalc", TextKind::Output,
                                     "Calculated clean production per shift", UnitSuffix::ProductionMass};
  CostBox txtCleanProduction{*this, "txtCleanProduction", CostRowOf(&CostInputs::CleanProduction)};
  CheckBox chkProduction{*this, "chkProduction", UseCalculated};
  CostBox txtShiftsWeek{*this, "txtShiftsWeek", CostRowOf(&CostInputs::ShiftsWeek)};
  CostBox txtWeeksYear{*this, "txtWeeksYear", CostRowOf(&CostInputs::WeeksYear)};

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
