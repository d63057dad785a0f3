// The study that is measured.
#pragma once

#include "design/catalog_lists.h"
#include "sampling/study_run.h"

namespace orby {

// Runs a study of a million samples of the design. Ten inputs vary by all kinds of distributions, two of them
// correlated.
StudyResult RunMeasuredStudy(const Design& design, const Catalogs& catalogs);

}  // namespace orby
