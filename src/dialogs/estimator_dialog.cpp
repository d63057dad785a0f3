#include "dialogs/estimator_dialog.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/history_texts.h"

namespace orby {
namespace {

enum Column : int { NumberColumn, NameColumn, RatingColumn, ColumnCount };

// Returns the row of the rock type of this name, or of the unknown roof, which is above the manual row.
int RowOf(std::span<const RockType> types, std::string_view name) {
  const auto found = std::ranges::find(types, name, &RockType::Name);
  const auto unknown = std::prev(types.end(), 2);
  return static_cast<int>((found == types.end() ? unknown : found) - types.begin());
}

}  // namespace

EstimatorDialog::EstimatorDialog(Program& program)
    : ProgramForm(program, "frmCMRREst", "The Coal Mine Roof Rating (CMRR) Estimator for HAMB") {
  optLocation.Click = [this](Integer region) { ShowRegion(region); };
  VSFlexGrid1.Change = [this] {
    if (!HoldEvents) ShowEstimate();
  };
  VSFlexGrid1.Click = [this] { ShowEstimate(); };
  Command2.Click = [this] {
    CommitOnClose = true;
    Close();
  };
}

void EstimatorDialog::OnOpen() {
  PrepareForm(program_, MessageModule::Description);
  AddHistoryLine(program_, history_text::EditingDescription);
  HoldEvents = true;
  CommitOnClose = false;
  const EstimatorState& estimator = program_.windows.estimator;
  SetArrayIndex(program_, optLocation, estimator.EstimatorRegion);
  // A project file can hold any number here. If the grid has no such row, the first row stays selected.
  const int row = estimator.EstimatorRockType;
  if (row >= 0 && row < VSFlexGrid1.Rows()) VSFlexGrid1.SetRow(row);
  ShowEstimate();
  HoldEvents = false;
  program_.platform.windows.CenterForm(*this);
}

void EstimatorDialog::OnClose() {
  if (CommitOnClose) {
    EstimatorState& estimator = program_.windows.estimator;
    estimator.EstimatedCMRR = ToInteger(txtCMRR.Value());
    estimator.EstimatorRegion = GetArrayIndex(optLocation);
    estimator.EstimatorRockType = static_cast<Integer>(VSFlexGrid1.Row());
    program_.project.FileSaved = false;
    program_.project.FileEmpty = false;
  }
  AddHistoryLine(program_, "CMRR Form Modified");
}

// Keeps region, rock type and rating consistent: selects the rock type of the same name in the new region, or the
// unknown roof, and refreshes the rating. While the dialog opens, OnOpen sets row and rating afterwards.
void EstimatorDialog::ShowRegion(Integer region) {
  for (Picture& picture : Picture1) picture.SetVisible(false);
  Picture1[static_cast<std::size_t>(region)].SetVisible(true);

  const std::string chosen = VSFlexGrid1.Rows() > 0 ? VSFlexGrid1.Cell(VSFlexGrid1.Row(), NameColumn) : std::string();
  const auto types = RockTypes(region);
  VSFlexGrid1.SetSize(static_cast<int>(types.size()), ColumnCount, 0);
  VSFlexGrid1.SetColumnWidths({360, 2950, 360});
  int row = 0;
  for (const RockType& type : types) {
    VSFlexGrid1.SetCell(row, NumberColumn, NumberText(row + 1));
    VSFlexGrid1.SetCell(row, NameColumn, std::string(type.Name));
    VSFlexGrid1.SetCell(row, RatingColumn, std::string(type.CMRR));
    ++row;
  }
  const Integer manualValue = program_.windows.estimator.EstimatorManualValue;
  if (manualValue != 0) VSFlexGrid1.SetCell(row - 1, RatingColumn, NumberText(manualValue));
  if (HoldEvents) return;
  VSFlexGrid1.SetRow(RowOf(types, chosen));
  ShowEstimate();
}

void EstimatorDialog::ShowEstimate() {
  const int row = VSFlexGrid1.Row();
  txtCMRR.SetText(VSFlexGrid1.Cell(row, RatingColumn));
  program_.windows.estimator.EstimatorManual = row == VSFlexGrid1.Rows() - 1;
}

}  // namespace orby
