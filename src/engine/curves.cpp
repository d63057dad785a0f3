#include "engine/curves.h"

#include <array>

#include "base/arithmetic.h"
#include "engine/primary_support.h"

namespace orby {
namespace {

// The design in English working units. The swept value is replaced at each point.
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
  std::optional<CurveNotice> notice = {};
};

constexpr Single FineStep = 0.5F;

Single OrOne(double step) {
  const Single rounded = ToSingle(step);
  return rounded == 0 ? 1 : rounded;
}

Range Around(Single value, double lower, double upper, Single step) {
  return {ToSingle(lower * value), ToSingle(upper * value), step};
}

Range CmrrRange(WorkingValues& values) {
  Range range{values.CMRR - 10, values.CMRR + 10, 2};
  if (range.lower < 35) range.lower = 35;
  if (range.upper > 100) range.upper = 100;
  const Single limit = ToSingle(11.5 * Log10(values.Depth) + 21.6);
  if (limit < range.upper) {
    range.upper = limit;
    range.notice = CurveNotice::RatingLimitTrimmed;
  }
  return range;
}

Range DepthRange(WorkingValues& values) { return Around(values.Depth, 0.5, 1.5, OrOne(0.1 * values.Depth)); }

Range StabilityRange(WorkingValues& values) {
  return Around(values.StabilityFactor, 0.5, 1.5, OrOne(0.1 * values.StabilityFactor));
}

Range SpanRange(WorkingValues& values) {
  Range range{ToSingle(values.Span - 10.0), ToSingle(values.Span + 10.0), 0};
  if (values.Span < 0) {
    range.notice = CurveNotice::SpanAdjusted;
    values.Span = 3;
  }
  range.step = OrOne(0.1 * values.Span);
  return range;
}

Range EntryHeightRange(WorkingValues& values) {
  return {2, MaxRockHeightEntry(values.Width, FallAngle(values.Angle)), FineStep};
}

Range WidthRange(WorkingValues& values) { return Around(values.Width, 0.7, 1.3, FineStep); }

Range AngleRange(WorkingValues& values) { return Around(values.Angle, 0.5, 1.5, FineStep); }

// The entry width takes the place of the rock height, so that the sweep ends at that value at the latest.
Range IntersectionHeightRange(WorkingValues& values) {
  const FallAngle angle(values.Angle);
  const RockAtCrossing rock{.Height = values.Width, .Span = values.Span, .EntryAngle = angle, .CrosscutAngle = angle};
  return {2, MaxRockHeightIntersection(rock), FineStep};
}

Range FixedSpanRange(WorkingValues&) { return {40, 80, FineStep}; }

Single SupportOf(WorkingValues& values) {
  const WorkingSite site{.StabilityFactor = values.StabilityFactor,
                         .CMRR = values.CMRR,
                         .Depth = Feet(values.Depth),
                         .Span = Feet(values.Span)};
  return SuggestedPSUP(site, Feet(values.SuggestedSpan));
}

WorkingRock RockOf(const WorkingValues& values) {
  return {.UnitWeight = Pcf(values.UnitWeight),
          .Height = Feet(values.Height),
          .Angle = FallAngle(values.Angle),
          .Width = Feet(values.Width),
          .Span = Feet(values.Span)};
}

// A height that was limited stays limited for the following points, unless the height is the swept value.
Single EntryLoadOf(WorkingValues& values) {
  const LimitedLoad entry = RockLoadEntry(RockOf(values));
  values.Height = entry.Height.Value;
  return entry.Load;
}

Single IntersectionLoadOf(WorkingValues& values) { return RockLoadIntersection(RockOf(values)); }

struct FigureRule {
  Single (*result)(WorkingValues& values);
  Measure measure;
};

// In the order of CurveFigure.
constexpr std::array<FigureRule, 3> FigureRules{
    {{SupportOf, Measure::Plain}, {EntryLoadOf, Measure::LineLoad}, {IntersectionLoadOf, Measure::Force}}};

struct CurveRule {
  CurveSubject subject;
  Single WorkingValues::*swept;
  Range (*range)(WorkingValues& values);
};

using V = WorkingValues;
using enum CurveFigure;
using enum Measure;

constexpr std::array<CurveRule, CurveCount> Rules{{
    {{"Suggested PSUP vs CMRR", "CMRR", Plain, Support}, &V::CMRR, CmrrRange},
    {{"Suggested PSUP vs Depth of Cover", "Depth of Cover", Length, Support}, &V::Depth, DepthRange},
    {{"Suggested PSUP vs Stability Factor", "Stability Factor", Plain, Support}, &V::StabilityFactor, StabilityRange},
    {{"Suggested PSUP vs Sum of Diagonals", "Sum of Diagonals", Length, Support}, &V::Span, SpanRange},
    {{"Rock Load vs Rock Load Height (Entries)", "Rock Load Height", Length, EntryLoad}, &V::Height, EntryHeightRange},
    {{"Rock Load vs Entry Width (Entries)", "Entry Width", Length, EntryLoad}, &V::Width, WidthRange},
    {{"Rock Load vs Roof Fall Angle (Entries)", "Roof Fall Angle", Degrees, EntryLoad}, &V::Angle, AngleRange},
    {{"Rock Load vs Rock Load Height (Intersections)", "Rock Load Height", Length, IntersectionLoad},
     &V::Height,
     IntersectionHeightRange},
    {{"Rock Load vs Sum of Diagonals (Intersections)", "Sum of Diagonals", Length, IntersectionLoad},
     &V::Span,
     FixedSpanRange},
    {{"Rock Load vs Roof Fall Angle (Intersections)", "Roof Fall Angle", Degrees, IntersectionLoad},
     &V::Angle,
     AngleRange},
}};

const CurveRule& RuleOf(Integer index) {
  if (index < 0 || index >= CurveCount) throw RuntimeError(error_number::Subscript);
  return Rules[static_cast<std::size_t>(index)];
}

WorkingValues WorkingValuesOf(const RoofSupport& design) {
  const UnitSystem units = design.Units;
  const double weightFactor = units == Metric ? PcfPerKilonewtonCubicMetre : 1;
  return {static_cast<Single>(design.Place.CMRR),
          InFeet(design.Place.DepthofCover, units).Value,
          design.Primary.StabilityFactor,
          InFeet(design.Place.ActualSpanDiagonals, units).Value,
          InFeet(design.Place.EntryWidth, units).Value,
          InFeet(design.Entries.RockLoadHeight, units).Value,
          design.Entries.RockFallAngle,
          ToSingle(design.Place.UnitWeight * weightFactor),
          SuggestedSumDiagonals(design.Place.CMRR).Value};
}

Single InProjectUnits(Single value, Measure measure, UnitSystem units) {
  if (units != Metric) return value;
  switch (measure) {
    case Length: return ToSingle(value / FeetPerMetre);
    case LineLoad: return ToSingle(value * KilonewtonsPerTon * FeetPerMetre);
    case Force: return ToSingle(value * KilonewtonsPerTon);
    case Plain:
    case Degrees: break;
  }
  return value;
}

bool IsInside(const Range& range, Single x) { return range.step > 0 ? x <= range.upper : x >= range.upper; }

Curve PointsOf(const CurveRule& rule, const Range& range, WorkingValues& values, UnitSystem units) {
  const Integer columns = ToInteger(Divide(static_cast<double>(range.upper) - range.lower, range.step) + 2);
  if (columns < 1) throw RuntimeError(error_number::Subscript);
  const FigureRule& figure = FigureRules[static_cast<std::size_t>(rule.subject.Figure)];
  Curve curve;
  auto& [xs, ys] = curve.CurvePoints;
  xs.assign(static_cast<std::size_t>(columns), 0);
  ys.assign(static_cast<std::size_t>(columns), 0);
  for (Single x = range.lower; IsInside(range, x); x += range.step) {
    if (curve.CurvePointCount >= columns) throw RuntimeError(error_number::Subscript);
    const auto column = static_cast<std::size_t>(curve.CurvePointCount++);
    values.*rule.swept = x;
    xs[column] = InProjectUnits(x, rule.subject.IndependentMeasure, units);
    ys[column] = InProjectUnits(figure.result(values), figure.measure, units);
  }
  return curve;
}

void AddSystems(const SecondarySupport& support, std::vector<CurveReference>& references) {
  constexpr std::array Kinds{ReferenceKind::Cables, ReferenceKind::Trusses, ReferenceKind::Bolts,
                             ReferenceKind::StandingSupports};
  if (support.Analysed != 1) return;
  const auto systems = support.Systems();
  for (std::size_t i = 0; i < systems.size(); ++i) {
    if (systems[i]->Use == 1 && systems[i]->SupportCap > 0)
      references.push_back({Kinds[i], false, systems[i]->SupportCap});
  }
}

}  // namespace

Measure MeasureOf(CurveFigure figure) { return FigureRules[static_cast<std::size_t>(figure)].measure; }

const CurveSubject& SubjectOfCurve(Integer index) { return RuleOf(index).subject; }

CurveSweep GenerateCurve(const RoofSupport& design, Integer index) {
  const CurveRule& rule = RuleOf(index);
  CurveSweep sweep;
  try {
    WorkingValues values = WorkingValuesOf(design);
    const Range range = rule.range(values);
    sweep.Notice = range.notice;
    sweep.Points = PointsOf(rule, range, values, design.Units);
  } catch (const RuntimeError& error) {
    sweep.Failure = error;
  }
  return sweep;
}

std::optional<CurvePoint> DesignPoint(const RoofSupport& design, Integer index) {
  const CurveRule& rule = RuleOf(index);
  const FigureRule& figure = FigureRules[static_cast<std::size_t>(rule.subject.Figure)];
  try {
    WorkingValues values = WorkingValuesOf(design);
    const Single result = figure.result(values);
    return CurvePoint{InProjectUnits(values.*rule.swept, rule.subject.IndependentMeasure, design.Units),
                      InProjectUnits(result, figure.measure, design.Units)};
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

std::vector<CurveReference> ReferencesOf(const RoofSupport& design, std::optional<Single> actualPSUP, Integer index) {
  const CurveRule& rule = RuleOf(index);
  std::vector<CurveReference> references;
  switch (rule.subject.Figure) {
    case Support:
      if (design.Primary.Analysed == 1 && actualPSUP) {
        references.push_back({ReferenceKind::ActualPSUP, false, *actualPSUP});
      }
      break;
    case EntryLoad: AddSystems(design.Entries, references); break;
    case IntersectionLoad: AddSystems(design.Intersections, references); break;
  }
  if (rule.swept == &V::Span) {
    const Single suggested = SuggestedSumDiagonals(design.Place.CMRR).Value;
    references.push_back({ReferenceKind::SuggestedSpan, true, InProjectUnits(suggested, Length, design.Units)});
  }
  return references;
}

}  // namespace orby
