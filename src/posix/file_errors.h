// What the system's file calls report, as run-time errors.
#pragma once

#include <string>

#include "base/runtime_error.h"

namespace orby {

// The run-time error that fits a system error met on this path.
RuntimeError FileError(int systemError, const std::string& path);

// Throws RuntimeError 52 for an empty name and for one with a NUL in it: the system would take such a name only up to
// its NUL, and so meet another file than the one that was named.
void CheckName(const std::string& path);

}  // namespace orby
