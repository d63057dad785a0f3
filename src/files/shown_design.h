// The steps from a stored design to the one that the parameters dialog shows, and back.
//
// Reports and curves use the design that a dialog would show, so their results do not depend on whether one was open.
#pragma once

#include "core/figure_patterns.h"
#include "core/program.h"

namespace orby {

// Returns true if every choice that the dialog shows is one of its options.
bool HasKnownChoices(const Design& design);

// Returns the design with each number rounded to the seven digits that a field or a file shows.
Design InSevenDigits(Design design);

// Makes Metric designs select cables by capacity, which is all that the dialog offers for them.
void TakeMetricCables(Design& design);

// Returns the design that the fields of a dialog hold after it has opened on `design`.
//
// Numbers have seven digits, and the rating is whole. A bolt row that the table lacks becomes the first row, and the
// set takes that row's texts. Metric cables are selected by capacity. Rock loads, capacities and stability factors have
// the rounded values of the outputs, or 0 if an output shows no number.
//
// Throws RuntimeError 9 for a choice that is not an option, and 6 for a rating that no 16-bit integer holds.
Design AsShown(const Design& design, const BoltTable& table, const Catalogs& catalogs);

// Returns the design that Results and the curves use: all secondary bolts take the primary tab's manual selection.
Design AsPreviewed(Design typed);

// Returns the design that OK commits: the intersections' bolts take the manual selection of the entries tab.
Design AsCommitted(Design typed);

// Returns true if every figure of AsCommitted(typed) is that of `typed`.
bool CommitKeepsFigures(const Design& typed);

// Returns the design that the fields of a dialog newly opened on the project hold. Throws as AsShown does.
Design AsOpened(const Project& project, const Catalogs& catalogs);

// Returns the design that Results shows in a dialog newly opened on the committed project. Throws as AsShown does.
Design AsReported(const Project& project, const Catalogs& catalogs);

}  // namespace orby
