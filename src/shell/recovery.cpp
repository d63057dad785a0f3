#include "shell/recovery.h"

#include "base/attempt.h"
#include "base/number_text.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "files/recovery_file.h"
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

Recovery::Recovery(Program& program) : program_(program) {
  Succeeds([this] { TakeSlot(); });
}

void Recovery::TakeSlot() {
  if (program_.folders.ProgramTemporary.empty()) return;
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
  path_ = SlotPath(program_, number, FileExtension);
  return true;
}

bool Recovery::Ask() {
  if (path_.empty() || !FileExists(program_, path_)) return false;
  std::string bytes;
  if (!Succeeds([&] { bytes = program_.platform.files.ReadFile(path_); })) return false;
  written_ = bytes;
  const std::optional<UnsavedProject> project = ReadRecovery(bytes);
  constexpr auto Question = "Orby ended unexpectedly. Recover the unsaved project?";
  if (!project || ShowMessage(program_, Question, box_style::YesNo | box_style::Question) != box_result::Yes) {
    Discard();
    return false;
  }
  RestoreProject(program_, *project);
  return true;
}

void Recovery::DesignShown(const ProjectRecord& design) {
  changed_.reset();
  shown_ = RecoveryBytes(EditedProject(program_, design));
}

void Recovery::DesignChanged(const ProjectRecord& design) {
  if (path_.empty()) return;
  changed_ = design;
  if (*waiting_) return;
  *waiting_ = true;
  program_.platform.clock.CallLater(WriteDelay, [this, alive = std::weak_ptr<bool>(waiting_)] {
    const auto waiting = alive.lock();
    if (!waiting) return;
    *waiting = false;
    Flush();
  });
}

void Recovery::Flush() {
  if (!changed_) return;
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
  if (written_.empty()) return;
  if (Succeeds([this] { program_.platform.files.RemoveFile(path_); })) written_.clear();
}

void Recovery::Write(const std::string& bytes) {
  if (path_.empty() || bytes == written_) return;
  if (TryWriteWhole(program_.platform.files, path_, bytes)) written_ = bytes;
}

}  // namespace orby
