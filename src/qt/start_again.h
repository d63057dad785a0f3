// Starts the program again after a run that ended by an error, and tells the new run what it brings back.
#pragma once

#include <QString>
#include <optional>

#include "shell/run_end.h"

namespace orby {

// Starts the program at this path, which outlives this run. Returns false if it cannot be started.
bool StartAgain(const QString& path, const Restart& restart);

// What the run before this one told; nothing when this run is an ordinary start. Programs that this one starts are not
// told.
std::optional<Restart> TakeRestart();

}  // namespace orby
