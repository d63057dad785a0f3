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

Measure MeasureOf(CurveFigure figure);

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

struct CurvePoint {
  Single X = 0;
  Single Y = 0;
};

// A value of the design that a curve is compared with.
enum class ReferenceKind { ActualPSUP, SuggestedSpan, Cables, Trusses, Bolts, StandingSupports };

struct CurveReference {
  ReferenceKind What = ReferenceKind::ActualPSUP;
  bool IsOfX = false;  // compared with the swept input, not with the figure
  Single Value = 0;
};

// Computes a curve of the design. A sweep without columns fails with RuntimeError 9. An error of a relation becomes the
// failure of the sweep. Throws RuntimeError 9 for an index outside 0..9.
CurveSweep GenerateCurve(const RoofSupport& design, Integer index);

// Returns the point of the design itself, in its units: its value of the swept input, and the figure of the curve for
// it. A height that the fall angle limits is returned as limited. Returns nothing if the figure cannot be computed.
// Throws RuntimeError 9 for an index outside 0..9.
std::optional<CurvePoint> DesignPoint(const RoofSupport& design, Integer index);

// Returns what the curve is compared with, in the units of the design: the actual PSUP, the suggested sum of diagonals,
// and the capacity of each system in use, as the report shows it. Leaves out what is not analysed or has no value.
// `actualPSUP` is empty if it cannot be computed. Throws RuntimeError 9 for an index outside 0..9.
std::vector<CurveReference> ReferencesOf(const RoofSupport& design, std::optional<Single> actualPSUP, Integer index);

}  // namespace orby
