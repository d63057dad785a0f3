#include "dialogs/backups_window.h"

#include <algorithm>
#include <utility>

#include "base/attempt.h"
#include "base/number_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/dates.h"
#include "core/messages.h"
#include "core/shared_texts.h"
#include "engine/analysis.h"
#include "files/kept_project.h"
#include "files/overwritten_file.h"
#include "files/project_save.h"
#include "files/save_command.h"
#include "files/texts_in_file.h"

namespace orby {
namespace {

constexpr int HeaderRows = 1;
constexpr std::array<std::string_view, 4> Headers{"Project", "Time", "Why it was kept", "Size"};

// Returns a size such as "812 bytes" or "4.2 KB".
std::string SizeText(std::uint64_t bytes) {
  constexpr double Kilobyte = 1024;
  const auto size = static_cast<double>(bytes);
  if (size < Kilobyte) return NumberText(size) + " bytes";
  if (size < Kilobyte * Kilobyte) return FormatNumber(size / Kilobyte, OneDecimal) + " KB";
  return FormatNumber(size / Kilobyte / Kilobyte, OneDecimal) + " MB";
}

std::string Named(const Backup& entry) {
  return std::string(NameAfterSeparator(entry.Project)) + " of " + MomentText(entry.Time);
}

// Returns the figure with one decimal, or "--" if there is none or it cannot be computed.
std::string FigureText(std::optional<Single> figure) {
  return figure ? FormatNumber(*figure, OneDecimal) : std::string(NoResult);
}

// Returns the title as the user typed it. Opening a file shifts the title and description lines.
std::string TypedTitle(const UnsavedProject& project) {
  const auto typed = TextsBeforeTheShift({project.ProjectTitle, project.ProjectDescription});
  return typed ? typed->Title : project.ProjectTitle;
}

// Returns the project's path. If the entry does not know the folder, assumes the data folder.
std::string PathOf(const Program& program, const Backup& entry) {
  const bool hasFolder = NameAfterSeparator(entry.Project).size() < entry.Project.size();
  return hasFolder ? entry.Project : WithSeparator(program.session.settings.DataPath) + entry.Project;
}

}  // namespace

BackupsWindow::BackupsWindow(Program& program) : ProgramForm(program, "frmBackups", "Backups") {
  for (TextBox* box : {&txtProject, &txtTitle, &txtUnits}) box->SetShowsText();
  grdBackups.SetStretchedColumn(0);
  grdBackups.Change = [this] { ShowSelected(); };
  cmdOpen.Click = [this] {
    Chosen = project_;
    Close();
  };
}

void BackupsWindow::OnOpen() {
  List();
  program_.platform.windows.CenterForm(*this);
}

void BackupsWindow::List() {
  const Backup* selected = Selected();
  const std::string path = selected == nullptr ? std::string() : selected->Path;
  entries_ = ListBackups(program_);
  std::vector<std::vector<std::string>> rows{{Headers.begin(), Headers.end()}};
  for (const Backup& entry : entries_) {
    rows.push_back({std::string(NameAfterSeparator(entry.Project)), MomentText(entry.Time),
                    std::string(entry.Reason ? ReasonText(*entry.Reason) : "Not known"), SizeText(entry.Bytes)});
  }
  grdBackups.SetRows(std::move(rows), HeaderRows);
  const auto again = std::ranges::find(entries_, path, &Backup::Path);
  if (again != entries_.end()) grdBackups.SetRow(HeaderRows + static_cast<int>(again - entries_.begin()));
  ShowSelected();
}

const Backup* BackupsWindow::Selected() const {
  const int entry = grdBackups.Row() - HeaderRows;
  return entry >= 0 && entry < static_cast<int>(entries_.size()) ? &entries_[static_cast<std::size_t>(entry)] : nullptr;
}

void BackupsWindow::ShowSelected() {
  const Backup* entry = Selected();
  project_.reset();
  std::string bytes;
  if (entry != nullptr && Succeeds([&] { bytes = program_.platform.files.ReadFile(entry->Path); })) {
    project_ = ReadKeptProject(program_, bytes, PathOf(program_, *entry));
  }
  lblState.SetCaption(entry == nullptr ? "There are no backups."
                      : project_       ? ""
                                       : "This backup is damaged. Its file is still in the folder.");
  lblState.SetVisible(!project_);
  txtProject.SetText(entry == nullptr ? std::string() : entry->Project);
  if (project_) {
    ShowProject(*project_);
  } else {
    ClearProject();
  }
  cmdOpen.SetEnabled(project_.has_value());
  cmdSaveAs.SetEnabled(project_.has_value());
  cmdDelete.SetEnabled(entry != nullptr);
}

void BackupsWindow::ShowProject(const UnsavedProject& project) {
  const Design& design = project.WorkParms;
  const std::string length(UnitLabel(UnitSuffix::Length, project.WorkParms.Units));
  txtTitle.SetText(TypedTitle(project));
  txtUnits.SetText(std::string(UnitSummary(project.WorkParms.Units)));
  txtCMRR.SetText(NumberText(design.Place.CMRR));
  txtDepthofCover.SetText(NumberText(design.Place.DepthofCover) + length);
  txtEntryWidth.SetText(NumberText(design.Place.EntryWidth) + length);
  const std::optional<SuggestedFigures> suggested = LiveSuggestion(design).ValueOr({});
  txtSugPSUP.SetText(FigureText(suggested ? std::optional(suggested->SugPSUP) : std::nullopt));
  txtActualPSUP.SetText(FigureText(LivePSUP(design, program_.session.catalogs).ValueOr({})));
}

void BackupsWindow::ClearProject() {
  for (TextBox* box : {&txtTitle, &txtUnits, &txtCMRR, &txtDepthofCover, &txtEntryWidth, &txtSugPSUP, &txtActualPSUP}) {
    box->SetText({});
  }
}

// Like every save, backs up a file that is already there. The saved file is separate from the open project, even if it
// has the same name, so the project's record of its own file is restored. There are two exceptions: the record keeps
// the old bytes of a file that a failed save has damaged, for the next save; and a file that now holds the backup no
// longer counts as damaged.
void BackupsWindow::SaveAs() {
  const FileOnDisk last = program_.project.LastFile;
  SaveOutcome save;
  RunTrapped(program_, [&] {
    save = {};
    const Backup entry = *Selected();
    FileSystem& files = program_.platform.files;
    const auto bytes = KeptProjectAsFile(program_, files.ReadFile(entry.Path));
    if (!bytes) return;
    const FileQuestion question = ProjectFileQuestion(program_, entry.Project);
    const std::string path = program_.platform.fileDialogs.AskSaveName(question);
    save = OverwrittenFile(program_, path).Overwrite(*bytes);
    if (save.Failure) throw RuntimeError(*save.Failure);
    AddHistoryLine(program_, "Backup saved as: " + path);
    List();
  });
  const FileOnDisk& now = program_.project.LastFile;
  const bool isHeld = now.IsSpoilt && (now.Path != last.Path || !last.IsSpoilt);
  const bool isMended = last.IsSpoilt && now.Path == last.Path && !now.IsSpoilt;
  if (!isHeld) program_.project.LastFile = last;
  if (isMended) program_.project.LastFile.IsSpoilt = false;
  ShowRemarks(program_, save);
}

void BackupsWindow::Delete() {
  const Backup entry = *Selected();
  std::string question = "Delete this backup for good?";
  question.append(LineEnd).append(LineEnd).append(Named(entry));
  if (ShowMessage(program_, question, {BoxButtons::YesNo, BoxIcon::Question, BoxDefault::SecondButton}) !=
      BoxResult::Yes) {
    return;
  }
  if (!RemoveBackup(program_, entry)) {
    ShowMessage(program_, "The backup could not be deleted: " + entry.Path, BoxIcon::Exclamation);
    return;
  }
  const int row = grdBackups.Row();
  entries_.erase(entries_.begin() + (row - HeaderRows));
  grdBackups.RemoveRow(row);
  ShowSelected();
}

void BackupsWindow::OpenFolder() {
  const std::string folder = BackupFolder(program_.session);
  if (folder.empty()) return;
  MakeBackupFolder(program_);
  if (program_.platform.documents.Open(std::string(WithoutSeparator(folder)))) return;
  ShowMessage(program_, "The folder could not be opened: " + folder, BoxIcon::Exclamation);
}

}  // namespace orby
