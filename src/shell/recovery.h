// Keeps unsaved work in a file of the program's temporary folder, for the next start after a run that ended in the
// middle of it.
//
// What the user turns down goes into the backups, so nothing that stood in the file is gone.
//
// Programs that run side by side take different files: each marks one of nine as its own for as long as it runs, first
// of all one that a run left behind. Where no file can be had or written nothing is kept, and nobody is told.
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
  // keptSlot: what a run left behind in this slot comes first; 0 where no slot does.
  explicit Recovery(Program& program, int keptSlot = 0);

  // Asks whether to recover what a run left behind, if there is anything, or to open the other file instead, if there
  // is one. Gives whether the open project is the recovered one now; what the user declines goes into the backups.
  bool Ask(const std::string& otherFile);

  // Recovers what a run left behind, in the kept slot if one was named, without asking. Gives whether there was
  // anything.
  bool Recover();

  // An input dialog shows this design, nothing being changed yet.
  void DesignShown(const ProjectRecord& design);

  // The design as the open input dialog would commit it. It is written a second after the first change that has not
  // been written yet.
  void DesignChanged(const ProjectRecord& design);

  // Writes at once what DesignChanged was told and has not been written.
  void Flush();

  // The input dialog is closed: edits that it did not commit go into the backups. Then as Committed.
  void DialogClosed();

  // The project is what was committed last, whatever an input dialog showed: it is written at once when it has unsaved
  // changes, and nothing is kept of one that has none.
  void Committed();

  // Nothing is worth keeping any more.
  void Discard();

  // What is kept of the unsaved changes by now.
  KeptWork Kept() const;
  // The slot that keeps them; 0 when none does.
  int KeptSlot() const { return written_.empty() ? 0 : slot_; }

  // Leaves the slot, with what it keeps, to the next run.
  void Release();

 private:
  // What a run left behind, if anything; a file that cannot be read any more goes into the backups.
  std::optional<UnsavedProject> TakeLostProject();
  std::string Question(const UnsavedProject& project) const;
  void KeepDamagedFile();
  void TakeSlot();
  bool TryTake(int number);
  void Write(const std::string& bytes);

  Program& program_;
  std::unique_ptr<FileMark> mark_;
  int keptSlot_;
  int slot_ = 0;
  std::string path_;     // empty: no file can be had
  std::string written_;  // what the file holds; empty: there is none of this run
  bool failed_ = false;  // the last changes could not be written
  std::string shown_;    // what the design in the open dialog started from
  std::optional<ProjectRecord> changed_;
  std::optional<ProjectRecord> edited_;  // what the open dialog showed last
  // Shared with the act that waits for its second; true while one waits.
  std::shared_ptr<bool> waiting_ = std::make_shared<bool>(false);
};

}  // namespace orby
