// Keeps unsaved work in a file of the program's temporary folder, for the next start after a run that ended in the
// middle of it.
//
// What the user turns down goes into the backups. What the backups do not take stays beside the file under another
// name, so nothing that the file held is lost.
//
// Programs that run side by side take different files: each marks one of nine as its own for as long as it runs, first
// of all one that a run left behind. Where no file can be had nothing is kept, and nobody is told. A write that failed
// is tried again every second.
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
  // Lets the program put unsaved changes aside for as long as this lives.
  explicit Recovery(Program& program, int keptSlot = 0);
  ~Recovery();
  Recovery(const Recovery&) = delete;
  Recovery& operator=(const Recovery&) = delete;

  // Asks whether to recover what a run left behind, if there is anything, or to open the other file instead, if there
  // is one. Returns true if the open project is the recovered one now. What the user declines goes into the backups.
  bool Ask(const std::string& otherFile);

  // Recovers what a run left behind, in the kept slot if one was named, without asking. Returns true if there was
  // anything.
  bool Recover();

  // An input dialog shows this design, nothing being changed yet.
  void DesignShown(const Design& design);

  // The design as the open input dialog would commit it. It is written a second after the first change that has not
  // been written yet.
  void DesignChanged(const Design& design);

  // Writes at once what has not been written, or could not be.
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
  // What a run left behind, if anything. A file that is damaged goes into the backups.
  std::optional<UnsavedProject> TakeLostProject();
  std::string Question(const UnsavedProject& project) const;
  void KeepDamagedFile();
  // Gives the file another name, which no run takes, and returns that. A file that cannot be renamed keeps its name,
  // and this run takes another slot.
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
  std::string path_;     // empty: no file can be had
  std::string written_;  // what the file holds; empty: there is none of this run
  bool failed_ = false;  // the last changes could not be written
  std::string shown_;    // what the design in the open dialog started from
  std::optional<Design> changed_;
  std::optional<Design> edited_;  // what the open dialog showed last
  // Shared with the act that waits for its second; true while one waits.
  std::shared_ptr<bool> waiting_ = std::make_shared<bool>(false);
};

}  // namespace orby
