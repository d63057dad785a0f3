// The settings of a study of a project without a file.
#pragma once

#include <string>

#include "design/units.h"
#include "files/study_json.h"

namespace orby {

struct UnsavedStudy {
  std::string Project;  // its name
  UnitSystem Units{};   // those of its numbers
  StoredStudy Stored;
};

}  // namespace orby
