// What the parameters dialog makes of a design: the steps between what is stored, what is shown, and what is taken
// back.
//
// A report and a curve take the design that a dialog shows, so they come out alike with a dialog and without one.
#pragma once

#include "base/number_text.h"
#include "core/program.h"

namespace orby {

// How the outputs of secondary support are shown: figures of entries, of intersections, stability factors.
inline constexpr NumberPattern EntryPattern{"0.0"};
inline constexpr NumberPattern IntersectionPattern{"0"};
inline constexpr NumberPattern FactorPattern{"0.#0"};

// Whether each choice of the design that the dialog shows is one that its options have.
bool HasKnownChoices(const Design& design);

// Returns the design with each number as its text in a field or a file says, with seven digits.
Design InSevenDigits(Design design);

// Lets the cables of a Metric design go by their capacity, the only way that the dialog has for them.
void TakeMetricCables(Design& design);

// Returns the design that the fields of a dialog hold once it has opened on this one. Its numbers have seven digits,
// and the rating is whole. A row that the bolt table lacks becomes its first one, and the set takes over the row's
// texts. Metric cables go by their capacity. Rock loads, capacities and stability factors are those of the outputs, as
// rounded there, and 0 where an output shows no number. Throws RuntimeError 9 for a choice that its options lack, 6 for
// a rating that no whole number of 16 bits holds.
Design AsShown(const Design& design, const BoltTable& table, const Catalogs& catalogs);

// Returns what Results and the curves take of the fields: all secondary bolts go by the primary tab's manual selection.
Design AsPreviewed(Design typed);

// Returns what OK takes of the fields: the intersections' manual bolts are those of the entries tab.
Design AsCommitted(Design typed);

// Returns the design that Results shows of a committed project, in a dialog that has just been opened on it.
// Throws as AsShown does.
Design AsReported(const Project& project, const Catalogs& catalogs);

}  // namespace orby
