#include "dialogs/cost_dialog.h"

#include <array>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"
#include "core/act.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/shared_texts.h"
#include "dialogs/copy_clip.h"
#include "dialogs/fault_texts.h"
#include "dialogs/history_texts.h"
#include "dialogs/preview.h"
#include "dialogs/results_window.h"
#include "engine/cost.h"
#include "reports/cost_report.h"
#include "reports/input_echo.h"

namespace orby {
namespace {

struct CostField {
  TextBox CostControls::*Box;
  Single CostGroup::*Field;
  std::string_view Fault;
};

// In the order in which they are checked.
constexpr std::array CostFields{
    CostField{&CostControls::txtBoltCost, &CostGroup::CostBoltCost, "Invalid cost per bolt"},
    CostField{&CostControls::txtPlateCost, &CostGroup::CostPlateCost, "Invalid cost per plate"},
    CostField{&CostControls::txtResinCost, &CostGroup::CostResinCost, "Invalid cost per resin"},
    CostField{&CostControls::txtBitCost, &CostGroup::CostBitCost, "Invalid cost per bit"},
    CostField{&CostControls::txtHeaderCost, &CostGroup::CostHeaderCost, "Invalid header cost"},
    CostField{&CostControls::txtStrapCost, &CostGroup::CostStrapCost, "Invalid strap/mesh cost"},
    CostField{&CostControls::txtnboltsShift, &CostGroup::CostNboltsShift, "Invalid number of bolts per shift"},
    CostField{&CostControls::txtnBoltsRow, &CostGroup::CostNBoltsRow, fault_text::BoltsPerRow},
    CostField{&CostControls::txtRowSpacing, &CostGroup::CostRowSpacing, fault_text::RowSpacing},
    CostField{&CostControls::txtnOperShift, &CostGroup::CostNOperShift, "Invalid number of operators per shift"},
    CostField{&CostControls::txtTotalLabor, &CostGroup::CostTotalLabor, "Invalid total labor cost per shift"},
    CostField{&CostControls::txtHoursShift, &CostGroup::CostHoursShift, "Invalid hours per shift"},
    CostField{&CostControls::txtMaintainHrs, &CostGroup::CostMaintainHrs, "Invalid maintenance hours"},
    CostField{&CostControls::txtMaintainCost, &CostGroup::CostMaintainCost, "Invalid maintenance cost"},
    CostField{&CostControls::txtTranspCost, &CostGroup::CostTranspCost, "Invalid transportation cost"},
    CostField{&CostControls::txtCapitalCost, &CostGroup::CostCapitalCost, "Invalid machine capital cost"},
    CostField{&CostControls::txtYearsDepr, &CostGroup::CostYearsDepr, "Invalid number of depreciation years"},
    CostField{&CostControls::txtAdvanceShift, &CostGroup::CostAdvanceShift, "Invalid advance per shift"},
    CostField{&CostControls::txtAdvanceRate, &CostGroup::CostAdvanceRate, "Invalid advance rate"},
    CostField{&CostControls::txtCleanProduction, &CostGroup::CostCleanProduction, "Invalid clean production"},
    CostField{&CostControls::txtShiftsWeek, &CostGroup::CostShiftsWeek, "Invalid number of shifts per week"},
    CostField{&CostControls::txtWeeksYear, &CostGroup::CostWeeksYear, "Invalid number of weeks per year"},
};

template <class Compute>
std::string FigureText(const Compute& compute) {
  const auto figure = OrNothing([&] { return std::optional(compute()); });
  return figure ? NumberText(*figure) : std::string(NoResult);
}

}  // namespace

CostDialog::CostDialog(Program& program) : program_(program) {
  TieEvents();
  TieCommands();
}

void CostDialog::TieEvents() {
  for (TextBox* box : {&txtnboltsShift, &txtnBoltsRow, &txtRowSpacing}) {
    box->Change = [this] {
      if (!HoldEvents) CalcAdvance();
    };
  }
  for (TextBox* box : {&txtAdvanceRate, &txtAdvanceShift}) {
    box->Change = [this] {
      if (!HoldEvents) CalcProduction();
    };
  }
}

void CostDialog::TieCommands() {
  Command2.Click = [this] {
    if (!ValidateCost()) return;
    CommitOnClose = true;
    Close();
  };
  Command1.Click = [this] { Close(); };
  cmdresults.Click = [this] {
    if (!ValidateCost() || !While(Act::Report, [this] { return BuildReport(); })) return;
    ShowResults(program_);
  };
  Command5.Click = [this] { CopyClip(program_, *this); };
  Command3.Click = [this] { ContextHelpHint(program_); };
}

void CostDialog::OnOpen() {
  program_.DialogOpen = true;
  PrepareForm(program_, message_module::Parameters);
  HoldEvents = true;
  CommitOnClose = false;
  WasCommitted = false;
  program_.ReportCaller = report_caller::Cost;
  FillFields();
  AppendUnits(*this, program_.Units);
  CalcAdvance();
  CalcProduction();
  AddHistoryLine(program_, history_text::EditingParameters);
  HoldEvents = false;
  program_.platform.windows.CenterForm(*this);
}

void CostDialog::OnClose() {
  if (CommitOnClose) {
    While(Act::TakeCosts, [this] { SaveWorkParms(); });
    program_.UnitsLocked = true;
  }
  AddHistoryLine(program_, WasCommitted ? history_text::ParametersModified : history_text::ParametersNotModified);
  program_.DialogOpen = false;
}

void CostDialog::FillFields() {
  const CostGroup& cost = program_.WorkParms.Cost();
  for (const CostField& row : CostFields) (this->*row.Box).SetText(NumberText(cost.*row.Field));
  chkProduction.SetValue(cost.CostProduction);
  chkAdvance.SetValue(cost.CostAdvance);
}

void CostDialog::ReadCost(CostGroup& cost) const {
  for (const CostField& row : CostFields) {
    if (const auto number = FittingNumber((this->*row.Box).Text())) cost.*row.Field = ToSingle(*number);
  }
  cost.CostProduction = chkProduction.Value();
  cost.CostAdvance = chkAdvance.Value();
}

void CostDialog::CalcAdvance() {
  const auto rowSpacing = OrNothing([this] { return std::optional(txtRowSpacing.Value()); });
  if (rowSpacing && !(*rowSpacing > 0)) return;
  std::string advance = FigureText(
      [this] { return AdvancePerShift(txtnBoltsRow.Value(), txtRowSpacing.Value(), txtnboltsShift.Value()); });
  if (advance == txtAdvanceShiftCalc.Text()) return;
  txtAdvanceShiftCalc.SetText(std::move(advance));
  if (!HoldEvents) CalcProduction();
}

void CostDialog::CalcProduction() {
  if (txtAdvanceShiftCalc.Text() == NoResult) return txtCleanProductionCalc.SetText(std::string(NoResult));
  txtCleanProductionCalc.SetText(
      FigureText([this] { return CleanProductionPerShift(txtAdvanceShiftCalc.Value(), txtAdvanceRate.Value()); }));
}

bool CostDialog::ValidateCost() {
  for (const CostField& row : CostFields) {
    TextBox& box = this->*row.Box;
    const auto number = FittingNumber(box.Text());
    if (number && *number >= 0) continue;
    ShowMessage(program_, std::string(row.Fault), box_style::Critical, program_.titles.RangeErrorTitle);
    RequestFocus(box);
    return false;
  }
  return true;
}

void CostDialog::ReadEdits(ProjectRecord& design) const { ReadCost(design.Cost()); }

void CostDialog::SaveWorkParms() {
  ReadEdits(program_.WorkParms);
  program_.FileSaved = false;
  program_.FileEmpty = false;
  WasCommitted = true;
}

void CostDialog::CopyCostToWorkParmsCopy() { ReadCost(program_.WorkParmsCopy.Cost()); }

bool CostDialog::BuildReport() {
  CopyCostToWorkParmsCopy();
  // The curves of the results window are those of the project, not of a design that was shown before.
  program_.WorkParmsCopy.Design() = program_.WorkParms.Design();
  if (!CostReport(program_)) return false;
  const Preview preview(program_.WorkParms.Cost(), program_.WorkParmsCopy.Cost());
  program_.ReportCaller = report_caller::Cost;
  LoadOutBuf0(program_);
  return true;
}

}  // namespace orby
