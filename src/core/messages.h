// The one door to the user and the log: messages, their titles, the history, and what becomes of a run-time error.
#pragma once

#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "core/program.h"

namespace orby {

// Whose titles the messages bear, by their numbers in the table of titles.
enum class MessageModule {
  Description = 1,
  Parameters = 2,
  Options = 7,
  Settings = 10,
  GraphOptions = 11,
  TextBrowser = 11,
  Calculator = 12,
  Conversion = 13,
};

// Shows a message box after logging it as "title: text" ("Message: text" without a title), and returns the
// button that was pressed. An empty title becomes the program's.
BoxResult ShowMessage(Program& program, const std::string& text, BoxStyle style = {}, const std::string& title = {},
                      const std::string& helpFile = {}, int helpContext = 0);

// The same for a box whose buttons have captions of their own.
BoxResult ShowMessage(Program& program, MessageBox box);

// Sets the titles to the module's prefix and each title's word. Throws RuntimeError 9 outside 1..13.
void SetMessageTitles(Program& program, MessageModule module);

// Tells how to get help on a field.
void ContextHelpHint(Program& program);

// Appends a numbered line to the history when it is switched on, after cutting a history that has grown too long down
// to its last two lines.
void AddHistoryLine(Program& program, std::string_view text);

enum class Decision {
  Retry,      // the failed step again
  Continue,   // the step after it
  Cancelled,  // the user cancelled a dialog
  GiveUp,
  DataBase,  // an error of a data base, unknown here
};

// Whether an error is told to the user, and logged.
enum class Telling { Loud, Silent };

// What is to become of a run-time error caught by a trap.
Decision ErrorDecision(Program& program, const RuntimeError& error, Telling telling);

// How a step under a trap ended.
enum class StepOutcome { Done, PassedOver, Cancelled, GivenUp };

// Runs one step of a command under its trap: repeated as long as the decision is to retry. The normal cursor is back
// before anything is asked.
template <class Step>
StepOutcome RunTrapped(Program& program, const Step& step) {
  for (;;) {
    try {
      step();
      return StepOutcome::Done;
    } catch (const RuntimeError& error) {
      program.platform.windows.SetWaitCursor(false);
      switch (ErrorDecision(program, error, Telling::Loud)) {
        case Decision::Retry: break;
        case Decision::Continue: return StepOutcome::PassedOver;
        case Decision::Cancelled: return StepOutcome::Cancelled;
        default: return StepOutcome::GivenUp;
      }
    }
  }
}

}  // namespace orby
