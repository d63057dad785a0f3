// Starts the program again after an error that ended the run, and passes the restart to the new run.
#pragma once

#include <QString>
#include <optional>

#include "shell/run_end.h"

namespace orby {

// Starts the program at this path as an independent process. Returns false if it cannot be started.
bool StartAgain(const QString& path, const Restart& restart);

// Returns the restart that the previous run passed, or nothing at an ordinary start. Removes it from the environment,
// so that programs started from this one do not see it.
std::optional<Restart> TakeRestart();

}  // namespace orby
