// A field of the project record as an entry of a table.
#pragma once

#include <string>
#include <variant>

#include "core/project_record.h"

namespace orby {

using IntegerField = Integer ProjectRecord::*;
using SingleField = Single ProjectRecord::*;
using TextField = std::string ProjectRecord::*;

using NumberField = std::variant<IntegerField, SingleField>;
using RecordField = std::variant<IntegerField, SingleField, TextField>;

}  // namespace orby
