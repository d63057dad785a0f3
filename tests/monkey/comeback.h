// Checks that the project is restored after an error has ended a run, by comparing the windows before and after.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "monkey/ledger.h"

namespace orby::monkey {

// Records the parts of the project on the screen. Call it before each action, so that the action that ends the run is
// not included.
void NoteShown(ShownProject& shown);

// Records at the end of the run what the main window and the recovery file say of the project.
// refused: a file was refused in this run. The project has that file's name, and the caption still shows the previous
// one.
// half: a refused file was read in part and not edited since. The next run begins with a new project.
void NoteEndedProject(ShownProject& shown, bool refused, bool half);

// Looks for the project in a new run, step by step, as a user would.
class Comeback {
 public:
  using Find = std::function<void(const std::string& kind, const std::string& text)>;

  // byItself: the program has started itself again, so it asks nothing.
  Comeback(ShownProject& shown, bool byItself, Find find)
      : shown_(shown), byItself_(byItself), find_(std::move(find)) {}

  // Does one step, between the events of the program. Passes every difference to `find`. After the last step the
  // project is no longer awaited.
  void Step();

 private:
  enum class Stage { Starting, Field, Title };

  bool AnswerQuestion(QWidget& window);
  void CompareCaption(const QWidget& mainWindow);
  void LookAtFields(QWidget& mainWindow);
  void LookAtTitle(QWidget& mainWindow);
  void End() { shown_.awaited = false; }

  ShownProject& shown_;
  bool byItself_;
  Find find_;
  Stage stage_ = Stage::Starting;
  int steps_ = 0;
  int patience_ = 0;
  bool asked_ = false;
};

}  // namespace orby::monkey
