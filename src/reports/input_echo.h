// The first page of the report: every input that matters under the options of the design.
#pragma once

#include <string>

#include "core/program.h"

namespace orby {

// What the page tells of the project besides the design.
struct EchoedProject {
  std::string File;
  std::string Title;
  std::string Description;  // normalised
  bool HasModuleHeader = true;
};

// Throws RuntimeError 9 when the design's units are none of the two systems, 6 when a bolt's capacity lies beyond a
// Single.
std::string InputEcho(const Design& design, const EchoedProject& project, const Catalogs& catalogs);

// Puts the page of these inputs into the session, replacing what was there, and makes the page after it the last. The
// description of the project is normalised on the way, in the program's state too. Throws as InputEcho does.
void LoadOutBuf0(Program& program, const Design& design);

}  // namespace orby
