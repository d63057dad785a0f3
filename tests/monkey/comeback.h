// Whether the project is back after an error has ended a run: what the windows showed before it and show after it.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>

#include "monkey/ledger.h"

namespace orby::monkey {

// What is on the screen now, as far as it is the project's. To be asked before each act, so that the act that ends the
// run is not in it.
void NoteShown(ShownProject& shown);

// The run ends: what the main window and the file of unsaved work say of the project.
// refused: a file was refused in this run. The project has its name; the caption still shows the name before.
// half: nothing of what was read of that file has been edited. The next run begins with a new project.
void NoteEndedProject(ShownProject& shown, bool refused, bool half);

// Looks for the project in a new run, step by step, as a user would.
class Comeback {
 public:
  using Find = std::function<void(const std::string& kind, const std::string& text)>;

  // byItself: the program has started itself again, so it has nothing to ask.
  Comeback(ShownProject& shown, bool byItself, Find find)
      : shown_(shown), byItself_(byItself), find_(std::move(find)) {}

  // One step, between the events of the program. What is not as it was is told to `find`; after the last step the
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
