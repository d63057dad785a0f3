// The examples that come with the program.
#pragma once

#include <string>
#include <vector>

#include "core/program.h"
#include "drawings/scene.h"

namespace orby {

struct Example {
  std::string Path;   // the user's copy, or the program's own file if there is no copy
  std::string Title;  // of the project
  Scene Picture;      // a small section of its entry
};

// Returns the examples of the program, sorted by name. A file that cannot be read is left out.
std::vector<Example> FindExamples(Program& program);

}  // namespace orby
