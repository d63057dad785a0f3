// The one door to the user and the log: messages, their titles, the history, and what becomes of a run-time error.
#pragma once

#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "core/program.h"

namespace orby {

// Module numbers for SetMessageTitles.
namespace message_module {
inline constexpr int Description = 1;
inline constexpr int Parameters = 2;
inline constexpr int Options = 7;
inline constexpr int Settings = 10;
inline constexpr int GraphOptions = 11;
inline constexpr int TextBrowser = 11;
inline constexpr int Calculator = 12;
inline constexpr int Conversion = 13;
}  // namespace message_module

// Shows a message box after logging it as "title: text" ("Message: text" without a title), and returns the
// button that was pressed. An empty title becomes the program's.
BoxResult ShowMessage(Program& program, const std::string& text, BoxStyle style = {}, const std::string& title = {},
                      const std::string& helpFile = {}, int helpContext = 0);

// The same for a box whose buttons have captions of their own.
BoxResult ShowMessage(Program& program, MessageBox box);

// Sets the titles to the module's prefix and each title's word. Throws RuntimeError 9 outside 1..13.
void SetMessageTitles(Program& program, int moduleIndex);

// Tells how to get help on a field.
void ContextHelpHint(Program& program);

// Appends a numbered line to the history when it is switched on, after cutting a history that has grown too long down
// to its last two lines.
void AddHistoryLine(Program& program, std::string_view text);

namespace error_decision {
inline constexpr int Retry = 0;      // the failed step again
inline constexpr int Continue = 1;   // the step behind it
inline constexpr int Cancelled = 2;  // the user cancelled a dialog
inline constexpr int GiveUp = 3;
inline constexpr int DataBase = 6;  // an error of a data base, unknown here
}  // namespace error_decision

// What is to become of a run-time error caught by a trap; told to the user and logged when showMessage is true.
int ErrorDecision(Program& program, const RuntimeError& error, bool showMessage);

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
      switch (ErrorDecision(program, error, true)) {
        case error_decision::Retry: break;
        case error_decision::Continue: return StepOutcome::PassedOver;
        case error_decision::Cancelled: return StepOutcome::Cancelled;
        default: return StepOutcome::GivenUp;
      }
    }
  }
}

}  // namespace orby
