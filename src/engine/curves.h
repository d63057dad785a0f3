// The ten parametric curves. Each sweeps one input of the design around its value.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "base/runtime_error.h"
#include "design/design.h"

namespace orby {

inline constexpr Integer CurveCount = 10;

// The quantity of a number of a curve.
enum class Measure { Plain, Degrees, Length, LineLoad, Force };

// The figure that a curve plots.
enum class CurveFigure { Support, EntryLoad, IntersectionLoad };

struct CurveSubject {
  std::string_view Name;         // in the list of curves
  std::string_view Independent;  // the swept input
  Measure IndependentMeasure;
  CurveFigure Figure;
};

// Returns the subject of a curve. Throws RuntimeError 9 for an index outside 0..9.
const CurveSubject& SubjectOfCurve(Integer index);

// Notices about a sweep for the user.
enum class CurveNotice { RatingLimitTrimmed, SpanAdjusted };

struct Curve {
  // Row 0 contains x and row 1 contains y, in the units of the design. The number of columns is computed before the
  // sweep. Unused columns at the end are 0.
  std::array<std::vector<Single>, 2> CurvePoints;
  Integer CurvePointCount = 0;  // filled columns
};

struct CurveSweep {
  Curve Points;
  std::optional<CurveNotice> Notice;
  std::optional<RuntimeError> Failure;  // why there are no points
};

// Computes a curve of the design. A sweep without columns fails with RuntimeError 9. An error of a relation becomes the
// failure of the sweep. Throws RuntimeError 9 for an index outside 0..9.
CurveSweep GenerateCurve(const RoofSupport& design, Integer index);

}  // namespace orby
