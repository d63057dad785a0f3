#include "engine/curves.h"

#include <array>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "core/messages.h"
#include "engine/primary_support.h"

namespace orby {
namespace {

// The design in English working units; the swept value is overwritten at each point.
struct WorkingValues {
  Single CMRR;
  Single Depth;
  Single StabilityFactor;
  Single Span;
  Single Width;
  Single Height;
  Single Angle;
  Single UnitWeight;
  Single SuggestedSpan;  // of the design, fixed during the sweep
};

struct Range {
  Single lower;
  Single upper;
  Single step;
};

// What a number of the curve measures, for its conversion to Metric.
enum class Measure { Plain, Length, LineLoad, Force };

constexpr Single FineStep = 0.5F;

Single OrOne(double step) {
  const Single rounded = ToSingle(step);
  return rounded == 0 ? 1 : rounded;
}

Range Around(Single value, double lower, double upper, Single step) {
  return {ToSingle(lower * value), ToSingle(upper * value), step};
}

Range CmrrRange(Program& program, WorkingValues& values) {
  Range range{values.CMRR - 10, values.CMRR + 10, 2};
  if (range.lower < 35) range.lower = 35;
  if (range.upper > 100) range.upper = 100;
  const Single limit = ToSingle(11.5 * Log10(values.Depth) + 21.6);
  if (limit < range.upper) {
    range.upper = limit;
    // The words say 51 whatever the limit is; at 400 ft it is about 51.5.
    ShowMessage(program, "Upper limit for CMRR trimmed to 51");
  }
  return range;
}

Range DepthRange(Program&, WorkingValues& values) { return Around(values.Depth, 0.5, 1.5, OrOne(0.1 * values.Depth)); }

Range StabilityRange(Program&, WorkingValues& values) {
  return Around(values.StabilityFactor, 0.5, 1.5, OrOne(0.1 * values.StabilityFactor));
}

Range SpanRange(Program& program, WorkingValues& values) {
  Range range{ToSingle(values.Span - 10.0), ToSingle(values.Span + 10.0), 0};
  if (values.Span < 0) {
    ShowMessage(program, "Lower limit for IntersectionSpan adjusted > 0");
    values.Span = 3;
  }
  range.step = OrOne(0.1 * values.Span);
  return range;
}

Range EntryHeightRange(Program&, WorkingValues& values) {
  return {2, MaxRockHeightEntry(values.Width, values.Angle), FineStep};
}

Range WidthRange(Program&, WorkingValues& values) { return Around(values.Width, 0.7, 1.3, FineStep); }

Range AngleRange(Program&, WorkingValues& values) { return Around(values.Angle, 0.5, 1.5, FineStep); }

// The entry width stands in for the height to be limited, so the sweep ends there at most.
Range IntersectionHeightRange(Program&, WorkingValues& values) {
  return {2, MaxRockHeightIntersection(values.Width, values.Span, values.Angle, values.Angle), FineStep};
}

Range FixedSpanRange(Program&, WorkingValues&) { return {40, 80, FineStep}; }

Single Psup(WorkingValues& values) {
  return SuggestedPSUP(values.StabilityFactor, values.SuggestedSpan, values.Span, values.Depth, values.CMRR);
}

// A height that is limited stays so for the points that follow, unless the height is what is swept.
Single EntryLoad(WorkingValues& values) {
  return RockLoadEntry(values.Angle, values.Width, values.UnitWeight, values.Height);
}

Single IntersectionLoad(WorkingValues& values) {
  return RockLoadIntersection(values.Angle, values.Span, values.UnitWeight, values.Height);
}

struct CurveRule {
  Range (*range)(Program& program, WorkingValues& values);
  Single WorkingValues::*swept;
  Measure sweptMeasure;
  Single (*result)(WorkingValues& values);
  Measure resultMeasure;
};

constexpr std::array<CurveRule, CurveCount> Rules{{
    {CmrrRange, &WorkingValues::CMRR, Measure::Plain, Psup, Measure::Plain},
    {DepthRange, &WorkingValues::Depth, Measure::Length, Psup, Measure::Plain},
    {StabilityRange, &WorkingValues::StabilityFactor, Measure::Plain, Psup, Measure::Plain},
    {SpanRange, &WorkingValues::Span, Measure::Length, Psup, Measure::Plain},
    {EntryHeightRange, &WorkingValues::Height, Measure::Length, EntryLoad, Measure::LineLoad},
    {WidthRange, &WorkingValues::Width, Measure::Length, EntryLoad, Measure::LineLoad},
    {AngleRange, &WorkingValues::Angle, Measure::Plain, EntryLoad, Measure::LineLoad},
    {IntersectionHeightRange, &WorkingValues::Height, Measure::Length, IntersectionLoad, Measure::Force},
    {FixedSpanRange, &WorkingValues::Span, Measure::Length, IntersectionLoad, Measure::Force},
    {AngleRange, &WorkingValues::Angle, Measure::Plain, IntersectionLoad, Measure::Force},
}};

WorkingValues WorkingValuesOf(const Design& design, UnitSystem units) {
  const double weightFactor = units == Metric ? PcfPerKilonewtonCubicMetre : 1;
  return {static_cast<Single>(design.Place.CMRR),
          InFeet(design.Place.DepthofCover, units),
          design.Primary.StabilityFactor,
          InFeet(design.Place.ActualSpanDiagonals, units),
          InFeet(design.Place.EntryWidth, units),
          InFeet(design.Entries.RockLoadHeight, units),
          design.Entries.RockFallAngle,
          ToSingle(design.Place.UnitWeight * weightFactor),
          SuggestedSumDiagonals(design.Place.CMRR)};
}

Single InProjectUnits(Single value, Measure measure, UnitSystem units) {
  if (units != Metric) return value;
  switch (measure) {
    case Measure::Length: return ToSingle(value / FeetPerMetre);
    case Measure::LineLoad: return ToSingle(value * KilonewtonsPerTon * FeetPerMetre);
    case Measure::Force: return ToSingle(value * KilonewtonsPerTon);
    case Measure::Plain: break;
  }
  return value;
}

}  // namespace

void GenerateCurve(Program& program, Integer index) {
  if (index < 0 || index >= CurveCount) throw RuntimeError(error_number::Subscript);
  const CurveRule& rule = Rules[static_cast<std::size_t>(index)];
  WorkingValues values = WorkingValuesOf(program.WorkParmsCopy, program.WorkParms.Units);
  const Range range = rule.range(program, values);
  const Integer columns = ToInteger(Divide(static_cast<double>(range.upper) - range.lower, range.step) + 2);
  if (columns < 1) throw RuntimeError(error_number::Subscript);

  // A sweep that fails leaves the curve before it.
  std::array<std::vector<Single>, 2> points;
  Integer count = 0;
  auto& [xs, ys] = points;
  xs.assign(static_cast<std::size_t>(columns), 0);
  ys.assign(static_cast<std::size_t>(columns), 0);
  const auto isInside = [&](Single x) { return range.step > 0 ? x <= range.upper : x >= range.upper; };
  for (Single x = range.lower; isInside(x); x += range.step) {
    if (count >= columns) throw RuntimeError(error_number::Subscript);
    const auto column = static_cast<std::size_t>(count++);
    values.*rule.swept = x;
    xs[column] = InProjectUnits(x, rule.sweptMeasure, program.WorkParms.Units);
    ys[column] = InProjectUnits(rule.result(values), rule.resultMeasure, program.WorkParms.Units);
  }
  program.curve.CurvePoints = std::move(points);
  program.curve.CurvePointCount = count;
  program.curve.CurveIndex = index;
}

}  // namespace orby
