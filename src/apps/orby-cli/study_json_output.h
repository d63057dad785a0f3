// The result of a study as JSON; docs/study-format.md describes it.
#pragma once

#include <string>

#include "sampling/study_run.h"

namespace orby::cli {

std::string StudyJson(const StudyResult& result, const Study& study, UnitSystem units);

}  // namespace orby::cli
