// Keeps unsaved work in a file of the program's temporary folder, for the next start after a run that ended in the
// middle of it.
//
// Programs that run side by side take different files: each marks one of nine as its own for as long as it runs, first
// of all one that a run left behind. Where no file can be had or written nothing is kept, and nobody is told.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "core/program.h"

namespace orby {

class Recovery {
 public:
  explicit Recovery(Program& program);

  // Asks whether to recover what a run left behind, if there is anything. Yes makes it the open project, unsaved under
  // its old name; No deletes it. Gives whether the open project is another one now.
  bool Ask();

  // An input dialog shows this design, nothing being changed yet.
  void DesignShown(const ProjectRecord& design);

  // The design as the open input dialog would commit it. It is written a second after the first change that has not
  // been written yet.
  void DesignChanged(const ProjectRecord& design);

  // Writes at once what DesignChanged was told and has not been written.
  void Flush();

  // The project is what was committed last, whatever an input dialog showed: it is written at once when it has unsaved
  // changes, and nothing is kept of one that has none.
  void Committed();

  // Nothing is worth keeping any more.
  void Discard();

 private:
  void TakeSlot();
  bool TryTake(int number);
  void Write(const std::string& bytes);

  Program& program_;
  std::unique_ptr<FileMark> mark_;
  std::string path_;     // empty: no file can be had
  std::string written_;  // what the file holds; empty: there is none of this run
  std::string shown_;    // what the design in the open dialog started from
  std::optional<ProjectRecord> changed_;
  // Shared with the act that waits for its second; true while one waits.
  std::shared_ptr<bool> waiting_ = std::make_shared<bool>(false);
};

}  // namespace orby
