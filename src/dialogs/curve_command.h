// Computes the curve that the user chose.
#pragma once

#include "core/program.h"

namespace orby {

// Returns what the user is told about a sweep.
std::string_view NoticeText(CurveNotice notice);

// Returns what the curve of this index is compared with for the design. Throws RuntimeError 9 for an index outside
// 0..9.
std::vector<CurveReference> ReferencesFor(const Design& design, const Catalogs& catalogs, Integer index);

// Computes the curve of this index for the design, shows its notices, and stores its points for the windows, with the
// point of the design itself and what the curve is compared with. Throws the RuntimeError of a curve that cannot be
// computed, and then leaves the previous curve.
void TakeCurve(Program& program, const Design& design, Integer index);

}  // namespace orby
