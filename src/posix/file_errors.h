// Run-time errors for the errors of the system's file calls.
#pragma once

#include <string>

#include "base/runtime_error.h"

namespace orby {

// Returns the run-time error for a system error on this path.
RuntimeError FileError(int systemError, const std::string& path);

// Throws RuntimeError 52 for an empty name and for one that contains a NUL. The system would read the name only up to
// the NUL, and so access another file.
void CheckName(const std::string& path);

}  // namespace orby
