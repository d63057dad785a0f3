#include "dialogs/cost_dialog.h"

#include <array>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_limits.h"
#include "base/number_text.h"
#include "core/act.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/shared_texts.h"
#include "dialogs/copy_clip.h"
#include "dialogs/fault_texts.h"
#include "dialogs/history_texts.h"
#include "dialogs/results_window.h"
#include "engine/cost.h"
#include "files/shown_design.h"
#include "reports/calculation_report.h"
#include "reports/cost_report.h"
#include "reports/input_echo.h"

namespace orby {
namespace {

struct CostField {
  CostBox CostDialog::*Box;
  Single CostInputs::*Field;
  std::string_view Fault;
};

// In the order of the checks.
constexpr std::array CostFields{
    CostField{&CostDialog::txtBoltCost, &CostInputs::BoltCost, "Invalid cost per bolt"},
    CostField{&CostDialog::txtPlateCost, &CostInputs::PlateCost, "Invalid cost per plate"},
    CostField{&CostDialog::txtResinCost, &CostInputs::ResinCost, "Invalid cost per resin"},
    CostField{&CostDialog::txtBitCost, &CostInputs::BitCost, "Invalid cost per bit"},
    CostField{&CostDialog::txtHeaderCost, &CostInputs::HeaderCost, "Invalid header cost"},
    CostField{&CostDialog::txtStrapCost, &CostInputs::StrapCost, "Invalid strap/mesh cost"},
    CostField{&CostDialog::txtnboltsShift, &CostInputs::NboltsShift, "Invalid number of bolts per shift"},
    CostField{&CostDialog::txtnBoltsRow, &CostInputs::NBoltsRow, fault_text::BoltsPerRow},
    CostField{&CostDialog::txtRowSpacing, &CostInputs::RowSpacing, fault_text::RowSpacing},
    CostField{&CostDialog::txtnOperShift, &CostInputs::NOperShift, "Invalid number of operators per shift"},
    CostField{&CostDialog::txtTotalLabor, &CostInputs::TotalLabor, "Invalid total labor cost per shift"},
    CostField{&CostDialog::txtHoursShift, &CostInputs::HoursShift, "Invalid hours per shift"},
    CostField{&CostDialog::txtMaintainHrs, &CostInputs::MaintainHrs, "Invalid maintenance hours"},
    CostField{&CostDialog::txtMaintainCost, &CostInputs::MaintainCost, "Invalid maintenance cost"},
    CostField{&CostDialog::txtTranspCost, &CostInputs::TranspCost, "Invalid transportation cost"},
    CostField{&CostDialog::txtCapitalCost, &CostInputs::CapitalCost, "Invalid machine capital cost"},
    CostField{&CostDialog::txtYearsDepr, &CostInputs::YearsDepr, "Invalid number of depreciation years"},
    CostField{&CostDialog::txtAdvanceShift, &CostInputs::AdvanceShift, "Invalid advance per shift"},
    CostField{&CostDialog::txtAdvanceRate, &CostInputs::AdvanceRate, "Invalid advance rate"},
    CostField{&CostDialog::txtCleanProduction, &CostInputs::CleanProduction, "Invalid clean production"},
    CostField{&CostDialog::txtShiftsWeek, &CostInputs::ShiftsWeek, "Invalid number of shifts per week"},
    CostField{&CostDialog::txtWeeksYear, &CostInputs::WeeksYear, "Invalid number of weeks per year"},
};

// What the checks accept in every field.
constexpr NumberLimits Costs = AtLeast(0);

template <class Compute>
std::string FigureText(const Compute& compute) {
  const auto figure = OrNothing([&] { return std::optional(compute()); });
  return figure ? NumberText(*figure) : std::string(NoResult);
}

}  // namespace

CostDialog::CostDialog(Program& program)
    : ProgramForm(program, "frmTULKCost", CaptionWithProject("Cost Parameters", program.project)) {
  TieEvents();
  TieCommands();
}

void CostDialog::TieEvents() {
  for (const CostField& row : CostFields) {
    (this->*row.Box).Range = [] { return FieldRange{Costs}; };
  }
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
  cmdresults.Click = [this] {
    if (!ValidateCost()) return;
    While(Act::Report, [this] { BuildReport(); });
    ShowResults(program_);
  };
  Command5.Click = [this] { CopyClip(program_, *this); };
  Command3.Click = [this] { ContextHelpHint(program_); };
}

void CostDialog::OnOpen() {
  program_.windows.DialogOpen = true;
  PrepareForm(program_, MessageModule::Parameters);
  HoldEvents = true;
  CommitOnClose = false;
  WasCommitted = false;
  program_.windows.ReportCaller = InputDialog::Cost;
  FillFields();
  AppendUnits(*this, program_.project.WorkParms.Units);
  CalcAdvance();
  CalcProduction();
  AddHistoryLine(program_, history_text::EditingParameters);
  HoldEvents = false;
  edits_.Start(*this);
  program_.platform.windows.CenterForm(*this);
}

void CostDialog::OnClose() {
  if (CommitOnClose) {
    While(Act::TakeCosts, [this] { SaveWorkParms(); });
    program_.project.UnitsLocked = true;
  }
  AddHistoryLine(program_, WasCommitted ? history_text::ParametersModified : history_text::ParametersNotModified);
  program_.windows.DialogOpen = false;
}

void CostDialog::FillFields() {
  const CostInputs& cost = program_.project.WorkParms.Cost;
  for (const CostField& row : CostFields) (this->*row.Box).SetText(NumberText(cost.*row.Field));
  chkProduction.SetValue(cost.Production);
  chkAdvance.SetValue(cost.Advance);
}

void CostDialog::ReadCost(CostInputs& cost) const {
  for (const CostField& row : CostFields) {
    if (const auto number = FittingNumber((this->*row.Box).Text())) cost.*row.Field = ToSingle(*number);
  }
  cost.Production = chkProduction.Value();
  cost.Advance = chkAdvance.Value();
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
    if (number && Costs.Include(*number)) continue;
    ShowMessage(program_, std::string(row.Fault), BoxIcon::Critical, program_.windows.titles.RangeErrorTitle);
    RequestFocus(box);
    return false;
  }
  return true;
}

void CostDialog::ReadEdits(Design& design) const { ReadCost(design.Cost); }

void CostDialog::SaveWorkParms() {
  ReadEdits(program_.project.WorkParms);
  program_.project.FileSaved = false;
  program_.project.FileEmpty = false;
  WasCommitted = true;
}

void CostDialog::BuildReport() {
  Design& previewed = program_.windows.WorkParmsCopy;
  previewed = program_.project.WorkParms;
  ReadEdits(previewed);
  Design& shown = program_.windows.ResultsShown;
  shown = previewed;
  Succeeds([&] { shown.Support() = AsOpened(program_.project, program_.session.catalogs).Support(); });
  TakeCalculationPage(program_, CostReport(previewed.Cost, previewed.Units));
  program_.windows.ReportCaller = InputDialog::Cost;
  LoadOutBuf0(program_, previewed);
}

}  // namespace orby
