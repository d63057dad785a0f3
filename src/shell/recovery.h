// Keeps unsaved work in a recovery file, so that the next start can offer it after a run that ended unexpectedly.
//
// Work that the user declines goes to the backups. A file that the backups cannot take is renamed and stays in its
// folder, so nothing is lost.
//
// Several programs may run at once. Each locks one of nine slots while it runs, preferably a slot with a file that an
// earlier run left. Without a free slot nothing is kept and no message is shown. A write that failed is repeated every
// second.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/program.h"
#include "files/recovery_file.h"
#include "shell/run_end.h"

namespace orby {

class Recovery {
 public:
  // Lets the program set unsaved changes aside through this object until it is destroyed.
  // keptSlot: the slot to restore first, 1..9; 0 for none.
  explicit Recovery(Program& program, int keptSlot = 0);
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  // Asks whether to recover the work that an earlier run left, if there is any. The question offers `otherFile` as the
  // alternative unless it is empty. Work that the user declines goes to the backups. Returns true if the work was
  // recovered.
  bool Ask(const std::string& otherFile);

  // Recovers the work that an earlier run left, without a question. If the constructor got a slot, only that slot
  // counts. Returns true if there was any.
  bool Recover();

  // Notes the design that an input dialog shows when it opens.
  void DesignShown(const Design& design);

  // Notes the design that the open input dialog would commit now. A change is written within a second.
  void DesignChanged(const Design& design);

  // Writes at once any change that is not written yet or could not be written.
  void Flush();

  // Backs up the edits that the closed input dialog did not commit. Then does what Committed does.
  void DialogClosed();

  // Writes the committed project at once if it has unsaved changes, and removes the file if it has none. Edits in a
  // dialog no longer count.
  void Committed();

  // Removes the file.
  void Discard();

  // Returns how much of the unsaved changes is in the file.
  KeptWork Kept() const;
  // Returns the slot that holds the unsaved changes, or 0 if none does.
  int KeptSlot() const { return written_.empty() ? 0 : slot_; }

  // Unlocks the slot for the next run. The file stays.
  void Release();

 private:
  // Returns the work that an earlier run left in the slot, if any. A damaged file goes to the backups.
  std::optional<UnsavedProject> TakeLostProject();
  std::string Question(const UnsavedProject& project) const;
  void KeepDamagedFile();
  // Renames the file so that no run takes it, and returns its new path. If it cannot be renamed, returns the present
  // path and takes another slot.
  std::string PutAside();
  void TakeSlot();
  void TakeEmptySlot();
  bool TryTake(int number);
  void FlushLater();
  void Write(const std::string& bytes);

  Program& program_;
  std::unique_ptr<FileMark> mark_;
  int keptSlot_;
  int slot_ = 0;
  std::string path_;     // empty if no slot could be taken
  std::string written_;  // the contents of the file; empty if this run has none
  bool failed_ = false;  // the last changes could not be written
  std::string shown_;    // the bytes of the design with which the open dialog started
  std::optional<Design> changed_;
  std::optional<Design> edited_;  // the latest design of the open dialog
  // True while a write is scheduled. The scheduled call does nothing after this object is gone.
  std::shared_ptr<bool> waiting_ = std::make_shared<bool>(false);
};

}  // namespace orby
