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
  return program.folders.ProgramTemporary + "~recover" + NumberText(number) + std::string(extension);
}

constexpr std::string_view FileExtension = ".tmp";
constexpr std::string_view MarkExtension = ".lck";

}  // namespace

Recovery::Recovery(Program& program, int keptSlot) : program_(program), keptSlot_(keptSlot) {
  Succeeds([this] { TakeSlot(); });
}

void Recovery::TakeSlot() {
  if (program_.folders.ProgramTemporary.empty()) return;
  if (keptSlot_ != 0 && TryTake(keptSlot_)) return;
  for (int number = 1; number <= Slots; ++number) {
    if (FileExists(program_, SlotPath(program_, number, FileExtension)) && TryTake(number)) return;
  }
  for (int number = 1; number <= Slots; ++number) {
    if (TryTake(number)) return;
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
  if (!Succeeds([&] { bytes = program_.platform.files.ReadFile(path_); })) return std::nullopt;
  written_ = bytes;
  std::optional<UnsavedProject> project = ReadRecovery(bytes);
  if (!project) KeepDamagedFile();
  return project;
}

// A file that the backups do not take stays where it is until this run has something to write.
void Recovery::KeepDamagedFile() {
  if (!BackupFolder(program_).empty()) {
    const auto kept = KeepDamaged(program_, written_);
    if (!kept) {
      ShowMessage(program_, "A damaged recovery file could not be kept in Backups: " + path_, box_style::Exclamation);
      return;
    }
    AddHistoryLine(program_, "Damaged recovery file kept in Backups: " + *kept);
  }
  Discard();
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
  box.style = box_style::YesNo | box_style::Question;
  if (!otherFile.empty()) {
    box.captions = {"Recover", "Open " + std::string(NameBehindSeparator(otherFile)) + " instead"};
  }
  if (ShowMessage(program_, box) == box_result::Yes) {
    RestoreProject(program_, *project);
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
  RestoreProject(program_, *project);
  AddHistoryLine(program_, "Recovered: " + program_.CurrentFile + ", with its unsaved changes");
  return true;
}

void Recovery::DesignShown(const ProjectRecord& design) {
  changed_.reset();
  edited_.reset();
  shown_ = RecoveryBytes(EditedProject(program_, design));
}

void Recovery::DialogClosed() {
  if (edited_) {
    const UnsavedProject edited = EditedProject(program_, *edited_);
    const std::string bytes = RecoveryBytes(edited);
    const bool isCommitted = bytes == RecoveryBytes(EditedProject(program_, program_.WorkParms));
    if (bytes != shown_ && !isCommitted) KeepChanges(program_, edited);
    edited_.reset();
  }
  Committed();
}

void Recovery::DesignChanged(const ProjectRecord& design) {
  edited_ = design;
  changed_ = design;
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
  if (!changed_) {
    if (!program_.FileSaved && written_.empty()) Committed();
    return;
  }
  const std::string bytes = RecoveryBytes(EditedProject(program_, *changed_));
  if (bytes == shown_) {
    Committed();
  } else {
    changed_.reset();
    Write(bytes);
  }
}

void Recovery::Committed() {
  changed_.reset();
  if (program_.FileSaved) {
    Discard();
  } else {
    Write(RecoveryBytes(CommittedProject(program_)));
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
  if (!failed_) written_ = bytes;
}

KeptWork Recovery::Kept() const {
  if (failed_) return written_.empty() ? KeptWork::Nothing : KeptWork::Earlier;
  if (!written_.empty()) return KeptWork::All;
  return program_.FileSaved ? KeptWork::NoneNeeded : KeptWork::Nothing;
}

void Recovery::Release() { mark_.reset(); }

}  // namespace orby
