// The study that is measured.
#pragma once

#include "design/catalog_lists.h"
#include "sampling/study_run.h"

namespace orby {

// Runs a study of a million samples of the design. Ten inputs vary by all kinds of distributions, two of them
// correlated.
StudyResult RunMeasuredStudy(const Design& design, const Catalogs& catalogs);

// Returns how far the probability that the span is too large is from the normal integral, when only the span of the
// design varies: by a normal distribution, in a Latin hypercube of ten million samples.
double ErrorOfIntegral(const Design& design, const Catalogs& catalogs);

// Returns the seconds of a chart of 200 x 200 points over depth and rating: the suggested PSUP, or the greatest row
// spacing whose PSUP is enough.
double SecondsOfFigureChart(const Design& design, const Catalogs& catalogs);
double SecondsOfSpacingChart(const Design& design, const Catalogs& catalogs);

}  // namespace orby
