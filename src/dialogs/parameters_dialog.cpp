#include "dialogs/parameters_dialog.h"

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "core/act.h"
#include "core/catalog_choice.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/copy_clip.h"
#include "dialogs/estimator_dialog.h"
#include "dialogs/history_texts.h"
#include "dialogs/project_report.h"
#include "dialogs/results_window.h"
#include "files/shown_design.h"

namespace orby {
namespace {

constexpr int ColumnWidthsOfBolts[] = {300, 2200, 600, 600};
constexpr int GridMargin = 480;

std::vector<ComboItem> NumberItems(const CatalogList& list) {
  std::vector<ComboItem> items;
  items.reserve(list.Count());
  for (std::size_t i = 0; i < list.Count(); ++i) items.push_back({NumberText(list[i])});
  return items;
}

std::vector<ComboItem> SupportItems(const Program& program) {
  const StandingSupports& supports = program.session.catalogs.StandSupports;
  std::vector<ComboItem> items;
  const auto count = static_cast<std::size_t>(supports.HighestIndex + 1);
  items.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    items.push_back({supports.DefaultStandSupportType[i], RoundHalfEven(StandSupportCap(program, i))});
  }
  return items;
}

void FillGrid(Grid& grid, const BoltTable& table) {
  grid.SetSize(static_cast<int>(table.size()) + 1, 4, 1);
  grid.SetColumnWidths({std::begin(ColumnWidthsOfBolts), std::end(ColumnWidthsOfBolts)});
  int width = GridMargin;
  for (const int column : ColumnWidthsOfBolts) width += column;
  grid.SetWidth(width);
  int column = 0;
  for (const auto* title : {"No", "Description", "Dia.", "Grade"}) grid.SetCell(0, column++, title);
  int row = 1;
  for (const auto& bolt : table) {
    grid.SetCell(row, BoltColumn::Number, NumberText(row));
    grid.SetCell(row, BoltColumn::Description, bolt.Name);
    grid.SetCell(row, BoltColumn::Diameter, bolt.Diameter);
    grid.SetCell(row, BoltColumn::Grade, bolt.Grade);
    ++row;
  }
}

}  // namespace

ParametersDialog::ParametersDialog(Program& program) : ParametersControls(program) {
  for (OutputControls* outputs : {&EntryOutputs, &InterOutputs}) {
    for (std::size_t i = 0; i < SystemCount; ++i) {
      for (TextBox* box : {&outputs->RockLoad[i], &outputs->SupportCap[i], &outputs->StabFactor[i]})
        box->SetText("---");
    }
  }
  txtRegion.SetVisible(false);
  txtOption.SetVisible(false);
  txtMessage.SetVisible(false);
  TieOutputs();
  TieEvents();
  TieRanges();
  TieCommands();
  TieDrawings();
}

void ParametersDialog::TieCommands() {
  Command2.Click = [this] {
    if (!ValidateParameters() || !MayCommit()) return;
    CommitOnClose = true;
    Close();
  };
  cmdresults.Click = [this] {
    if (!ValidateParameters() || !While(Act::Report, [this] { return BuildReport(); })) return;
    ShowResults(program_);
  };
  Command5.Click = [this] { CopyClip(program_, *this); };
  Command3.Click = [this] { ContextHelpHint(program_); };
  cmdCMRR.Click = [this] { Estimate(); };
  cmdWouldHold.Click = [this] { Study(); };
  cmdKeepVariant.Click = [this] { KeepAsVariant(); };
  lstVerdicts.Click = [this] { GoToVerdict(static_cast<std::size_t>(lstVerdicts.ListIndex())); };
}

void ParametersDialog::OnOpen() {
  program_.windows.DialogOpen = true;
  PrepareForm(program_, MessageModule::Parameters);
  HoldEvents = true;
  CommitOnClose = false;
  WasCommitted = false;
  program_.windows.ReportCaller = InputDialog::Parameters;
  for (TabSet* tabs : {&SSTab1, &SSTab2, &SSTab3}) {
    tabs->SetTab(0);
    for (int tab = 1; tab < tabs->Count(); ++tab) tabs->SetTabEnabled(tab, false);
  }
  TakeMetricCables(program_.project.WorkParms);
  for (CableControls* cable : {&EntryCableControls, &InterCableControls}) {
    cable->CapMode.SetMemberEnabled(0, Units() != Metric);
  }
  FillLists();
  InitParameters();
  AddHistoryLine(program_, history_text::EditingParameters);
  HoldEvents = false;
  ShowSuggested();
  ShowActualPSUP();
  ShowEntries();
  ShowIntersections();
  OnAct();
  edits_.Start(*this);
  program_.platform.windows.CenterForm(*this);
}

void ParametersDialog::FillLists() {
  const BoltTable& table = LoadBoltTable(program_.project, program_.session.catalogs);
  const auto diameters = NumberItems(BoltDiameters(program_));
  const auto grades = NumberItems(BoltGrades(program_));
  for (BoltControls* bolt : {&PrimaryBoltControls, &EntryBoltControls, &InterBoltControls}) {
    FillGrid(bolt->Table, table);
    bolt->DiameterStd.Fill(diameters);
    bolt->GradeStd.Fill(grades);
    if (program_.project.WorkParms.Basis == StrengthBasis::Ultimate)
      bolt->GradeFrame.SetCaption("Roof Bolt Ultimate Grade");
  }
  const auto cableDiameters = NumberItems(CableDiameters(program_));
  const auto cableCapacities = NumberItems(CableCapacities(program_));
  for (CableControls* cable : {&EntryCableControls, &InterCableControls}) {
    cable->Diam.Fill(cableDiameters);
    cable->CapacityStd.Fill(cableCapacities);
  }
  const auto supports = SupportItems(program_);
  EntryStandingControls.TypeStd.Fill(supports);
  InterStandingControls.TypeStd.Fill(supports);
}

void ParametersDialog::OnClose() {
  if (CommitOnClose && While(Act::TakeParameters, [this] { return SaveWorkParms(); }))
    program_.project.UnitsLocked = true;
  AddHistoryLine(program_, WasCommitted ? history_text::ParametersModified : history_text::ParametersNotModified);
  program_.windows.DialogOpen = false;
}

bool ParametersDialog::BuildReport() {
  if (!CopyToWorkParmsCopy()) return false;
  program_.windows.ReportCaller = InputDialog::Parameters;
  BuildResults(program_, program_.windows.WorkParmsCopy);
  return true;
}

// Before the first estimate the hidden fields are blank, and the project has the region and the rock type.
void ParametersDialog::RestoreEstimate() {
  if (!edits_.IsRestoring()) return;
  const Site& place = program_.project.WorkParms.Place;
  const auto number = [](const TextBox& box, Integer saved) {
    return box.Text().empty() ? saved : ToInteger(box.Value());
  };
  program_.windows.estimator.EstimatorRegion = number(txtRegion, place.CMRRRegionIndex);
  program_.windows.estimator.EstimatorRockType = number(txtOption, place.CMRRRockTypeIndex);
}

void ParametersDialog::Estimate() {
  EstimatorState& estimator = program_.windows.estimator;
  estimator.EstimatedCMRR = 0;
  estimator.CallerCode = EstimatorCaller::ParametersDialog;
  EstimatorDialog dialog(program_);
  ShowForm(program_, dialog);
  if (!dialog.CommitOnClose) return;
  if (!estimator.EstimatorManual && estimator.EstimatedCMRR == 0) return;
  txtRegion.SetText(NumberText(estimator.EstimatorRegion));
  txtOption.SetText(NumberText(estimator.EstimatorRockType));
  if (estimator.EstimatorManual) {
    chkCMRRManual.SetValue(1);
  } else {
    txtCMRR.SetText(NumberText(estimator.EstimatedCMRR));
  }
}

}  // namespace orby
