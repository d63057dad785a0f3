// Messages to the user, their titles, the history, and the handling of run-time errors.
#pragma once

#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "core/program.h"

namespace orby {

// Parts of the program with message titles of their own, by their numbers in the table of titles.
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

// Adds "title: text" to the history, or "Message: text" without a title. Then shows a message box and returns the
// button that was pressed. An empty title becomes that of the program.
BoxResult ShowMessage(Program& program, const std::string& text, BoxStyle style = {}, const std::string& title = {},
                      const std::string& helpFile = {}, int helpContext = 0);

// Does the same for a box whose buttons have captions of their own.
BoxResult ShowMessage(Program& program, MessageBox box);

// Sets each title to the prefix of the module and the words of the title. Throws RuntimeError 9 outside 1..13.
void SetMessageTitles(Program& program, MessageModule module);

// Shows how to get help on a field.
void ContextHelpHint(Program& program);

// Appends a numbered line to the history if it is switched on. A history that is too long is first reduced to its last
// two lines.
void AddHistoryLine(Program& program, std::string_view text);

enum class Decision {
  Retry,      // repeat the failed step
  Continue,   // go on with the next step
  Cancelled,  // the user has cancelled a dialog
  GiveUp,
  DataBase,  // an error of a data base, which this program does not use
};

// Whether an error is shown to the user and added to the history.
enum class Reporting { Loud, Silent };

// Returns how a command continues after a run-time error. Unless `reporting` is Silent, adds the error to the history
// and shows it, and asks whether to retry where that can help.
Decision ErrorDecision(Program& program, const RuntimeError& error, Reporting reporting);

// How a step ended.
enum class StepOutcome { Done, PassedOver, Cancelled, GivenUp };

// Runs one step of a command. When it throws a RuntimeError, repeats it as long as the decision is to retry. Restores
// the normal cursor before the user is asked.
template <class Step>
StepOutcome RunTrapped(Program& program, const Step& step) {
  for (;;) {
    try {
      step();
      return StepOutcome::Done;
    } catch (const RuntimeError& error) {
      program.platform.windows.SetWaitCursor(false);
      switch (ErrorDecision(program, error, Reporting::Loud)) {
        case Decision::Retry: break;
        case Decision::Continue: return StepOutcome::PassedOver;
        case Decision::Cancelled: return StepOutcome::Cancelled;
        default: return StepOutcome::GivenUp;
      }
    }
  }
}

}  // namespace orby
