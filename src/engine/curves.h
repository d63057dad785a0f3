// The ten parametric curves: one input of the design swept around its value.
#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "base/runtime_error.h"
#include "design/design.h"

namespace orby {

inline constexpr Integer CurveCount = 10;

// What a number of a curve measures.
enum class Measure { Plain, Degrees, Length, LineLoad, Force };

// The figure that is drawn over the swept input.
enum class CurveFigure { Support, EntryLoad, IntersectionLoad };

struct CurveSubject {
  std::string_view Name;         // as the list of curves has it
  std::string_view Independent;  // the input that is swept
  Measure IndependentMeasure;
  CurveFigure Figure;
};

// Throws RuntimeError 9 for an index outside 0..9.
const CurveSubject& SubjectOfCurve(Integer index);

// What the user is told of a sweep.
enum class CurveNotice { RatingLimitTrimmed, SpanAdjusted };

struct Curve {
  // Row 0 holds x, row 1 y, in the design's units; as many columns as the sweep was sized for, empty ones at the end
  // staying 0.
  std::array<std::vector<Single>, 2> CurvePoints;
  Integer CurvePointCount = 0;  // filled columns
};

struct CurveSweep {
  Curve Points;
  std::optional<CurveNotice> Notice;
  std::optional<RuntimeError> Failure;  // why there are no points
};

// Sweeps the curve of this index over the design. A sweep without any column fails with RuntimeError 9, one whose
// numbers the relations refuse with theirs. Throws RuntimeError 9 for an index outside 0..9.
CurveSweep GenerateCurve(const RoofSupport& design, Integer index);

}  // namespace orby
