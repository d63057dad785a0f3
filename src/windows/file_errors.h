// Run-time errors for the errors of Windows' file functions.
#pragma once

#include <string>

#include "base/runtime_error.h"

namespace orby {

// Returns the run-time error for an error of the system, as GetLastError gives it, on this path.
RuntimeError FileError(unsigned long systemError, const std::string& path);

// Returns that of the last call of this thread.
RuntimeError LastFileError(const std::string& path);

}  // namespace orby
