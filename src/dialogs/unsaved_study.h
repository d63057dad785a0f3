// The settings of a study of a project without a file.
#pragma once

#include <string>

#include "files/study_json.h"

namespace orby {

struct UnsavedStudy {
  std::string Project;  // its name
  StoredStudy Stored;
};

}  // namespace orby
