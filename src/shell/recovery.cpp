#include "shell/recovery.h"

#include "base/attempt.h"
#include "base/number_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/dates.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "files/backups.h"
#include "platform/whole_file.h"

namespace orby {
namespace {

constexpr int Slots = 9;
constexpr int WriteDelay = 1000;  // milliseconds

std::string SlotPath(const Program& program, int number, std::string_view extension) {
  return program.session.folders.ProgramTemporary + "~recover" + NumberText(number) + std::string(extension);
}

constexpr std::string_view FileExtension = ".tmp";
constexpr std::string_view MarkExtension = ".lck";

// Returns the first free name of "PATH.kept", "PATH.kept2" and so on.
std::string FreeNameBeside(Program& program, const std::string& path) {
  const std::string first = path + ".kept";
  std::string name = first;
  for (int number = 2; FileExists(program, name); ++number) name = first + NumberText(number);
  return name;
}

}  // namespace

Recovery::Recovery(Program& program, int keptSlot) : program_(program), keptSlot_(keptSlot) {
  Succeeds([this] { TakeSlot(); });
  program_.KeepAside = [this](const std::string& bytes) {
    Write(bytes);
    return written_.empty() ? std::string() : PutAside();
  };
}

Recovery::~Recovery() { program_.KeepAside = nullptr; }

void Recovery::TakeSlot() {
  if (program_.session.folders.ProgramTemporary.empty()) return;
  if (keptSlot_ != 0 && TryTake(keptSlot_)) return;
  for (int number = 1; number <= Slots; ++number) {
    if (FileExists(program_, SlotPath(program_, number, FileExtension)) && TryTake(number)) return;
  }
  for (int number = 1; number <= Slots; ++number) {
    if (TryTake(number)) return;
  }
}

void Recovery::TakeEmptySlot() {
  mark_.reset();
  slot_ = 0;
  path_.clear();
  for (int number = 1; number <= Slots; ++number) {
    if (!FileExists(program_, SlotPath(program_, number, FileExtension)) && TryTake(number)) return;
  }
}

bool Recovery::TryTake(int number) {
  mark_ = program_.platform.files.TryMark(SlotPath(program_, number, MarkExtension));
  if (!mark_) return false;
  slot_ = number;
  path_ = SlotPath(program_, number, FileExtension);
  return true;
}

std::optional<UnsavedProject> Recovery::TakeLostProject() {
  if (path_.empty() || !FileExists(program_, path_)) return std::nullopt;
  std::string bytes;
  if (!Succeeds([&] { bytes = program_.platform.files.ReadFile(path_); })) {
    ShowMessage(program_, "The unsaved work of an earlier run could not be read. It is kept in " + PutAside() + ".",
                BoxIcon::Exclamation);
    return std::nullopt;
  }
  written_ = bytes;
  std::optional<UnsavedProject> project = ReadRecovery(bytes);
  if (!project) KeepDamagedFile();
  return project;
}

void Recovery::KeepDamagedFile() {
  if (!BackupFolder(program_.session).empty()) {
    const auto kept = KeepDamaged(program_, written_);
    if (!kept) {
      ShowMessage(program_, "A damaged recovery file could not be kept in Backups: " + PutAside(),
                  BoxIcon::Exclamation);
      return;
    }
    AddHistoryLine(program_, "Damaged recovery file kept in Backups: " + *kept);
  }
  Discard();
}

std::string Recovery::PutAside() {
  std::string present = path_;
  std::string aside = FreeNameBeside(program_, present);
  written_.clear();
  failed_ = false;
  if (Succeeds([&] { program_.platform.files.RenameFile(present, aside); })) return aside;
  // The file keeps its name, so the next start finds it.
  Succeeds([this] { TakeEmptySlot(); });
  return present;
}

std::string Recovery::Question(const UnsavedProject& project) const {
  std::string text = "Orby ended unexpectedly. Recover the unsaved project?";
  text.append(LineEnd).append(LineEnd).append(project.CurrentFile);
  const auto written = program_.platform.files.WrittenAt(path_);
  if (written) text.append(" of ").append(MomentText(*written));
  return text;
}

bool Recovery::Ask(const std::string& otherFile) {
  const std::optional<UnsavedProject> project = TakeLostProject();
  if (!project) return false;
  MessageBox box;
  box.text = Question(*project);
  box.style = {BoxButtons::YesNo, BoxIcon::Question};
  if (!otherFile.empty()) {
    box.captions = {"Recover", "Open " + ShortenedPath(NameAfterSeparator(otherFile)) + " instead"};
  }
  if (ShowMessage(program_, box) == BoxResult::Yes) {
    RestoreProject(program_.project, *project);
    return true;
  }
  KeepChanges(program_, *project, BackupReason::Declined);
  Discard();
  return false;
}

bool Recovery::Recover() {
  if (keptSlot_ != 0 && slot_ != keptSlot_) return false;
  const std::optional<UnsavedProject> project = TakeLostProject();
  if (!project) return false;
  RestoreProject(program_.project, *project);
  AddHistoryLine(program_, "Recovered: " + program_.project.CurrentFile + ", with its unsaved changes");
  return true;
}

void Recovery::DesignShown(const Design& design) {
  changed_.reset();
  edited_.reset();
  shown_ = RecoveryBytes(EditedProject(program_.project, design));
}

void Recovery::DialogClosed() {
  if (edited_) {
    const UnsavedProject edited = EditedProject(program_.project, *edited_);
    const std::string bytes = RecoveryBytes(edited);
    const bool isCommitted = bytes == RecoveryBytes(EditedProject(program_.project, program_.project.WorkParms));
    if (bytes != shown_ && !isCommitted) KeepChanges(program_, edited);
    edited_.reset();
  }
  Committed();
}

void Recovery::DesignChanged(const Design& design) {
  edited_ = design;
  changed_ = design;
  FlushLater();
}

void Recovery::FlushLater() {
  if (path_.empty() || *waiting_) return;
  *waiting_ = true;
  program_.platform.clock.CallLater(WriteDelay, [this, alive = std::weak_ptr<bool>(waiting_)] {
    const auto waiting = alive.lock();
    if (!waiting) return;
    *waiting = false;
    Flush();
  });
}

void Recovery::Flush() {
  if (!changed_ && failed_) changed_ = edited_;
  if (!changed_) {
    if (!program_.project.FileSaved && (written_.empty() || failed_)) Committed();
    return;
  }
  const std::string bytes = RecoveryBytes(EditedProject(program_.project, *changed_));
  if (bytes == shown_) {
    Committed();
  } else {
    changed_.reset();
    Write(bytes);
  }
}

void Recovery::Committed() {
  changed_.reset();
  if (program_.project.FileSaved) {
    Discard();
  } else {
    Write(RecoveryBytes(program_.project));
  }
}

void Recovery::Discard() {
  changed_.reset();
  failed_ = false;
  if (written_.empty()) return;
  if (Succeeds([this] { program_.platform.files.RemoveFile(path_); })) written_.clear();
}

void Recovery::Write(const std::string& bytes) {
  failed_ = bytes != written_ && (path_.empty() || !TryWriteWhole(program_.platform.files, path_, bytes));
  if (failed_) {
    FlushLater();
  } else {
    written_ = bytes;
  }
}

KeptWork Recovery::Kept() const {
  if (failed_) return written_.empty() ? KeptWork::Nothing : KeptWork::Earlier;
  if (!written_.empty()) return KeptWork::All;
  return program_.project.FileSaved ? KeptWork::NoneNeeded : KeptWork::Nothing;
}

void Recovery::Release() { mark_.reset(); }

}  // namespace orby
