// The end of a run after a run-time error: the message to the user, and what the next run restores without a question.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/runtime_error.h"
#include "platform/message_boxes.h"

namespace orby {

// What the next run restores without a question.
struct Restart {
  int Slot = 0;      // the recovery slot of the unsaved project, 1..9; 0 for none
  std::string File;  // the file to open if no slot is named; empty for none
};

// Converts a restart to the one line of text that is passed to the next run, and back.
std::string RestartNote(const Restart& restart);
Restart ReadRestartNote(std::string_view note);

// How much of the project's unsaved changes is kept.
enum class KeptWork {
  All,
  Earlier,    // all except the last ones, which could not be written
  Nothing,    // none could be written
  NoneNeeded  // there are no unsaved changes
};

struct RunEnd {
  KeptWork Kept = KeptWork::NoneNeeded;
  Restart Next;
};

// Returns the message for the error. The first button ends the run. The second one starts the program again; it is
// there only if `end` is.
MessageBox RunEndBox(const RuntimeError& error, const std::optional<RunEnd>& end);
inline constexpr BoxResult StartAgainButton = BoxResult::Retry;

}  // namespace orby
