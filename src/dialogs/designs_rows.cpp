// The rows and columns of the window "Designs in a Folder": which are shown, in which order, and which are marked.
#include <algorithm>
#include <array>
#include <utility>

#include "base/text.h"
#include "dialogs/designs_arranging.h"
#include "reports/study_report.h"
#include "tables/comparison.h"

namespace orby {
namespace {

// By the list of units.
constexpr int OwnUnits = 0;
constexpr int MetricUnits = 2;

std::string Counted(std::size_t count, std::string_view thing) {
  return CountWithCommas(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

// Returns each column once, at its first place.
Columns Unique(const Columns& columns) {
  Columns unique;
  unique.reserve(columns.size());
  for (const Column* column : columns) {
    if (std::ranges::count(unique, column) == 0) unique.push_back(column);
  }
  return unique;
}

// Returns how many runs of neighbours the ascending numbers have.
std::size_t RunsOf(const std::vector<int>& numbers) {
  std::size_t runs = 0;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (i == 0 || numbers[i] != numbers[i - 1] + 1) ++runs;
  }
  return runs;
}

}  // namespace

UnitSystem DesignsWindow::Units() const {
  if (cmbUnits.ListIndex() > OwnUnits) return cmbUnits.ListIndex() == MetricUnits ? Metric : English;
  return english_ == 0 && rows_.size() > unread_ ? Metric : English;
}

RowState DesignsWindow::State() const { return static_cast<RowState>(std::max(cmbState.ListIndex(), 0)); }

void DesignsWindow::ShowColumns() {
  if (isShowing_) return;
  const std::array<std::pair<const CheckBox*, std::string_view>, 6> groups{{{&chkOverview, "overview"},
                                                                            {&chkInputs, "inputs"},
                                                                            {&chkReport, "report"},
                                                                            {&chkLive, "live"},
                                                                            {&chkCost, "cost"},
                                                                            {&chkVerdicts, "verdicts"}}};
  std::string list = "file";
  for (const auto& [box, name] : groups) {
    if (box->Checked()) list.append(",").append(name);
  }
  std::string unknown;
  Columns shown = Unique(ChosenColumns(list, unknown).value_or(Columns{}));
  std::vector<std::string> heads;
  heads.reserve(shown.size());
  for (const Column* column : shown) heads.push_back(HeadText(*column, Units()));
  if (shown != shown_) ShowSortingList(std::move(shown));
  tblDesigns.SetHeads(std::move(heads));
  Arrange();
}

// Rows that were sorted by a column that is gone are sorted by the file again.
void DesignsWindow::ShowSortingList(Columns shown) {
  const int sorted = cmbSort.ListIndex();
  const Column* by = sorted < 0 ? nullptr : shown_[static_cast<std::size_t>(sorted)];
  shown_ = std::move(shown);
  isShowing_ = true;
  cmbSort.Fill(ItemsNamed(shown_, &Column::Head));
  const auto found = std::ranges::find(shown_, by);
  cmbSort.SetListIndex(found == shown_.end() ? 0 : static_cast<int>(found - shown_.begin()));
  isShowing_ = false;
  tblDesigns.SetSorting(cmbSort.ListIndex(), chkDescending.Checked());
}

void DesignsWindow::ShowSorting() {
  if (isShowing_ || !cmbSort.HasSelection()) return;
  tblDesigns.SetSorting(cmbSort.ListIndex(), chkDescending.Checked());
  Arrange();
}

// The head of the sorted column turns the order around.
void DesignsWindow::SortByHead(int column) {
  const bool isSorted = column == cmbSort.ListIndex();
  isShowing_ = true;
  chkDescending.SetValue(isSorted && !chkDescending.Checked() ? 1 : 0);
  cmbSort.SetListIndex(column);
  isShowing_ = false;
  ShowSorting();
}

void DesignsWindow::Arrange() {
  if (isShowing_) return;
  mustArrange_ = true;
  if (arranging_) {
    // Rows that are read meanwhile do not keep the others from coming on view.
    if (!reader_) arranging_->Work.Cancel();
    return;
  }
  mustArrange_ = false;
  RowChoice choice;
  choice.Shown = shown_;
  choice.Units = Units();
  choice.Folder = folder_;
  choice.Containing = Trim(txtContaining.Text());
  choice.State = State();
  if (cmbSort.HasSelection()) choice.SortedBy = shown_[static_cast<std::size_t>(cmbSort.ListIndex())];
  choice.IsDescending = chkDescending.Checked();
  arranging_ = std::make_unique<Arranging>(rows_, std::move(choice));
  Follow();
}

void DesignsWindow::TakeArranged() {
  if (!arranging_->Work.HasEnded()) return;
  const auto ended = std::exchange(arranging_, nullptr);
  ended->Work.Finish();
  // Rows of a folder that is no longer shown have no places.
  const bool isOfThese = ended->Rows.empty() || (!rows_.empty() && ended->Rows.front() == rows_.front());
  if (!ended->Work.IsCancelled() && isOfThese) ShowRows(std::move(ended->Order));
  if (mustArrange_) Arrange();
}

void DesignsWindow::ShowRows(std::vector<std::size_t> order) {
  // The view takes long to mark many rows apart from each other.
  constexpr std::size_t MostRuns = 500;
  order_ = std::move(order);
  std::vector<int> places(rows_.size(), RowTable::Nothing);
  for (std::size_t i = 0; i < order_.size(); ++i) places[order_[i]] = static_cast<int>(i);
  std::vector<int> marks;
  marks.reserve(marked_.size());
  for (const std::size_t row : marked_) {
    if (hasMarked_ && places[row] != RowTable::Nothing) marks.push_back(places[row]);
  }
  std::ranges::sort(marks);
  if (RunsOf(marks) > MostRuns) marks.clear();
  int current = hasMarked_ && current_ ? places[*current_] : RowTable::Nothing;
  if (current == RowTable::Nothing && !order_.empty()) current = marks.empty() ? 0 : marks.front();
  if (marks.empty() && current != RowTable::Nothing) marks = {current};
  tblDesigns.SetRows(static_cast<int>(order_.size()), std::move(marks), current);
  KeepMarks();
}

RowTableCell DesignsWindow::CellAt(int row, int column) const {
  const Column& shown = *shown_.at(static_cast<std::size_t>(column));
  const TableRow& design = RowAt(row);
  return {.Text = TextInFolder(shown, design, Units(), folder_), .IsNumber = CellOf(shown, design, Units()).IsNumber()};
}

void DesignsWindow::TakeMarks() {
  hasMarked_ = true;
  KeepMarks();
}

void DesignsWindow::KeepMarks() {
  marked_.clear();
  marked_.reserve(tblDesigns.Marked().size());
  for (const int row : tblDesigns.Marked()) marked_.push_back(order_[static_cast<std::size_t>(row)]);
  current_.reset();
  if (tblDesigns.Current() != RowTable::Nothing) current_ = order_[static_cast<std::size_t>(tblDesigns.Current())];
  ShowCounts();
}

void DesignsWindow::ShowCounts() {
  std::string text = Counted(rows_.size() - unread_, "design");
  if (unread_ > 0) text.append(", ").append(Counted(unread_, "file")).append(" that cannot be read");
  text.append(". Rows shown: ").append(CountWithCommas(order_.size()));
  text.append(", marked: ").append(CountWithCommas(marked_.size())).append(".");
  lblShown.SetCaption(text);
  cmdOpen.SetEnabled(current_.has_value());
  cmdCompare.SetEnabled(marked_.size() <= MostCompared && SelectedFiles().size() >= FewestCompared);
  cmdCopy.SetEnabled(!marked_.empty() && output_ == nullptr);
  cmdSaveAs.SetEnabled(!order_.empty() && output_ == nullptr && reader_ == nullptr);
}

}  // namespace orby
