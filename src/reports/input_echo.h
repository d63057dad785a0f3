// The first page of the report: all inputs that have an effect under the options of the design.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

// The data of the project that the page shows in addition to the design.
struct EchoedProject {
  std::string File;
  std::string Title;
  std::string Description;  // normalised
  bool HasModuleHeader = true;
};

// Returns the page. Throws RuntimeError 9 when the units are neither of the two systems, and 6 when the capacity of a
// bolt is outside the range of a Single.
std::string InputEcho(const Design& design, const EchoedProject& project, const Catalogs& catalogs);

// Replaces the page in the session and makes the page after it the last one. Normalises the description of the project.
// Throws the same errors as InputEcho.
void LoadOutBuf0(Program& program, const Design& design);

}  // namespace orby
