// The end of a run by a run-time error: what the user is told, and what the next run brings back by itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "platform/message_boxes.h"

namespace orby {

// What the next run brings back without a question.
struct Restart {
  int Slot = 0;      // the recovery slot with the unsaved project, 1..9; 0: none
  std::string File;  // the file that is opened where no project is unsaved; empty: none
};

// A restart as one line of text, which hands it from run to run.
std::string RestartNote(const Restart& restart);
Restart ReadRestartNote(std::string_view note);

// What is kept of the project's unsaved changes.
enum class KeptWork {
  All,
  Earlier,    // all but the last ones, which could not be written
  Nothing,    // none could be written
  NoneNeeded  // there are none
};

struct RunEnd {
  KeptWork Kept = KeptWork::NoneNeeded;
  Restart Next;
};

// The box that tells the error. Its first button ends the run. Its second one, which is there where something has been
// begun, starts the program again.
MessageBox RunEndBox(const RuntimeError& error, const std::optional<RunEnd>& end);
inline constexpr BoxResult StartAgainButton = BoxResult::Retry;

}  // namespace orby
