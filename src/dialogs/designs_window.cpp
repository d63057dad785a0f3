#include "dialogs/designs_window.h"

#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "config/designs_section.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/designs_arranging.h"
#include "reports/study_report.h"

namespace orby {
namespace {

constexpr int MillisecondsBetweenLooks = 20;

// By RowState.
constexpr std::array<std::string_view, 6> StateNames{"All designs", "Falls short",     "Cannot be computed",
                                                     "To check",    "All of it holds", "File cannot be read"};
constexpr std::array<std::string_view, 3> UnitsNames{"As the designs", "English", "Metric"};

}  // namespace

DesignsWindow::DesignsWindow(Program& program) : DesignsControls(program) {
  cmdBrowse.Click = [this] { Browse(); };
  cmdRead.Click = [this] { ReadByUser(); };
  cmdStop.Click = [this] { Stop(); };
  cmdOpen.Click = [this] { OpenCurrent(); };
  cmdCompare.Click = [this] { Compare(); };
  cmdCopy.Click = [this] { Copy(); };
  cmdSaveAs.Click = [this] { SaveAs(); };
  for (CheckBox* box : {&chkOverview, &chkInputs, &chkReport, &chkLive, &chkCost, &chkVerdicts}) {
    box->Click = [this] { ShowColumns(); };
  }
  cmbUnits.Change = [this] { ShowColumns(); };
  txtContaining.Change = [this] { Arrange(); };
  cmbState.Change = [this] { Arrange(); };
  cmbSort.Change = [this] { ShowSorting(); };
  chkDescending.Click = [this] { ShowSorting(); };
  tblDesigns.CellAt = [this](int row, int column) { return CellAt(row, column); };
  tblDesigns.HeadClick = [this](int column) { SortByHead(column); };
  tblDesigns.Change = [this] { TakeMarks(); };
  tblDesigns.Open = [this] { OpenCurrent(); };
  tblDesigns.Copy = [this] { Copy(); };
}

DesignsWindow::~DesignsWindow() = default;

void DesignsWindow::OnOpen() {
  life_ = std::make_shared<int>();
  isWaiting_ = false;
  FillLists();
  chkOverview.SetValue(1);
  ShowCounts();
  ShowProgress();
  const std::string& last = program_.session.designsFolder;
  txtFolder.SetText(last.empty() ? program_.session.settings.DataPath : last);
  if (!Read(txtFolder.Text())) lblDone.SetCaption("Choose a folder with projects.");
  RequestFocus(txtFolder);
  program_.platform.windows.CenterForm(*this);
}

void DesignsWindow::FillLists() {
  isShowing_ = true;
  cmbState.Fill(ItemsNamed(StateNames));
  cmbUnits.Fill(ItemsNamed(UnitsNames));
  for (Combo* list : {&cmbState, &cmbUnits}) list->SetListIndex(0);
  isShowing_ = false;
}

void DesignsWindow::OnClose() {
  life_.reset();
  reader_.reset();
  arranging_.reset();
  output_.reset();
  if (folder_.empty() || folder_ == program_.session.designsFolder) return;
  program_.session.designsFolder = folder_;
  EditIniFile(program_, program_.session.IniFilePath, [this](IniText& ini) { WriteDesignsFolder(folder_, ini); });
}

// ---- reading -------------------------------------------------------------------------------------------------------

void DesignsWindow::Browse() {
  std::string folder;
  const auto asked = RunTrapped(
      program_, [&] { folder = program_.platform.fileDialogs.AskFolder("Folder with Projects", txtFolder.Text()); });
  if (asked != StepOutcome::Done) return;
  txtFolder.SetText(folder);
  ReadByUser();
}

void DesignsWindow::ReadByUser() {
  const std::string folder(Trim(txtFolder.Text()));
  if (Read(folder)) return RequestFocus(tblDesigns);
  ShowMessage(program_, folder.empty() ? std::string("Choose a folder first.") : "There is no folder " + folder + ".",
              BoxIcon::Exclamation, Caption());
  RequestFocus(txtFolder);
}

bool DesignsWindow::Read(const std::string& folder) {
  FileSystem& files = program_.platform.files;
  std::string path;
  const auto found = RunTrapped(program_, [&] {
    if (!folder.empty() && files.Find(folder) == Found::Folder) path = files.AbsolutePath(folder);
  });
  if (found != StepOutcome::Done || path.empty()) return false;
  folder_ = WithSeparator(path);
  reader_.reset();
  rows_.clear();
  marked_.clear();
  current_.reset();
  hasMarked_ = false;
  unread_ = 0;
  english_ = 0;
  ShowRows({});
  ShowColumns();
  reader_ = std::make_unique<FolderReader>(RowMaker(program_), files, path);
  ShowProgress();
  Follow();
  return true;
}

void DesignsWindow::Stop() {
  if (reader_) reader_->Cancel();
  if (output_) output_->Cancel();
}

void DesignsWindow::Follow() {
  if (std::exchange(isWaiting_, true)) return;
  program_.platform.clock.CallLater(MillisecondsBetweenLooks, [this, life = std::weak_ptr(life_)] {
    if (life.expired()) return;
    isWaiting_ = false;
    if (reader_) TakeRead();
    if (arranging_) TakeArranged();
    if (output_) TakeOutput();
    if (IsBusy()) Follow();
  });
}

void DesignsWindow::TakeRead() {
  const bool hasEnded = reader_->HasEnded();
  const UnitSystem units = Units();
  std::vector<RowPointer> rows = reader_->TakeRows();
  for (const RowPointer& row : rows) {
    if (!row->IsRead()) {
      ++unread_;
    } else if (row->Shown.Units != Metric) {
      ++english_;
    }
  }
  const bool hasMore = !rows.empty();
  rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
  if (Units() != units) {
    ShowColumns();
  } else if (hasMore) {
    Arrange();
  }
  ShowProgress();
  if (!hasEnded) return;
  const auto ended = std::exchange(reader_, nullptr);
  ShowProgress();
  lblDone.SetCaption(ended->IsCancelled() ? "Stopped after " + CountWithCommas(ended->Read()) + " of " +
                                                CountWithCommas(ended->Found()) + " files"
                                          : "Read " + CountWithCommas(ended->Read()) + " files");
  RunTrapped(program_, [&] { ended->Finish(); });
}

void DesignsWindow::ShowProgress() {
  const auto show = [this](std::string_view act, std::size_t done, std::size_t all) {
    prgDone.SetValue(all == 0 ? 0 : static_cast<int>(ProgressBar::Whole * done / all));
    lblDone.SetCaption(std::string(act) + CountWithCommas(done) + " of " + CountWithCommas(all));
  };
  if (output_) {
    show("Writing row ", output_->Done(), output_->Rows());
  } else if (reader_ && reader_->HasFoundAll()) {
    show("Reading file ", reader_->Read(), reader_->Found());
  } else if (reader_) {
    prgDone.SetValue(0);
    lblDone.SetCaption("Looking for projects: " + CountWithCommas(reader_->Found()));
  } else {
    prgDone.SetValue(rows_.empty() ? 0 : ProgressBar::Whole);
  }
  cmdStop.SetEnabled(reader_ != nullptr || output_ != nullptr);
  ShowCounts();
}

}  // namespace orby
