#include "engine/primary_support.h"

#include "base/arithmetic.h"

namespace orby {

Suggestion SuggestSupport(const WorkingSite& site, UnitSystem units) {
  Suggestion suggestion;
  suggestion.SuggestedSpan = SuggestedSumDiagonals(site.CMRR);
  suggestion.MinSpan = MinimumSumDiagonals(site.Width, units);
  suggestion.SugPSUP = SuggestedPSUP(site, suggestion.SuggestedSpan);
  suggestion.SugLength = SuggestedBoltLength(site);
  return suggestion;
}

WorkingBolt InEnglishUnits(const Bolt& bolt, UnitSystem units) {
  if (units != Metric) return {Inches(bolt.Diameter), Ksi(bolt.Grade)};
  return {Inches(ToSingle(bolt.Diameter / MillimetresPerInch)),
          Ksi(ToSingle(bolt.Grade * 1000000.0 / 6894.757293 / 1000))};
}

Feet InFeet(Single length, UnitSystem units) {
  return Feet(units == Metric ? ToSingle(length * FeetPerMetre) : length);
}

SuggestedFigures Suggest(const SiteInputs& site, UnitSystem units) {
  const WorkingSite working{.StabilityFactor = site.StabilityFactor,
                            .CMRR = site.CMRR,
                            .Depth = InFeet(site.Depth, units),
                            .Span = InFeet(site.Span, units),
                            .Width = InFeet(site.Width, units)};
  const Suggestion suggestion = SuggestSupport(working, units);
  const auto shown = [units](Feet feet) { return units == Metric ? ToSingle(feet.Value / FeetPerMetre) : feet.Value; };
  return {shown(suggestion.SuggestedSpan), suggestion.SugPSUP, shown(suggestion.SugLength),
          suggestion.SpanIsTooLarge(working), suggestion.SpanAndWidthMismatch(working)};
}

LengthVerdict JudgeLength(const Comparison& length, UnitSystem units) {
  constexpr Single MostFeet = 2;
  constexpr Single MostMetres = 0.6F;
  if (length.Actual < length.Suggested) return LengthVerdict::TooShort;
  const double difference = static_cast<double>(length.Actual) - length.Suggested;
  return difference > (units == Metric ? MostMetres : MostFeet) ? LengthVerdict::TooLong : LengthVerdict::Fine;
}

PsupVerdict JudgePsup(const Comparison& psup) {
  if (psup.Suggested < SmallestPsup) return PsupVerdict::SkinControl;
  return psup.Actual < psup.Suggested ? PsupVerdict::TooLow : PsupVerdict::Fine;
}

bool FailsASTM(const WorkingBolt& bolt, UnitSystem units) {
  return BoltCapacityCheck(bolt.Grade, bolt.Diameter, units) < SmallestCapacity(units);
}

bool IsPlausible(const SiteInputs& typed) {
  return typed.StabilityFactor >= 1 && typed.CMRR >= 0 && typed.CMRR <= 100 && typed.Width > 0 &&
         typed.Span > typed.Width && typed.Depth >= 0;
}

SuggestedFigures WithLiveWarnings(SuggestedFigures figures, UnitSystem units) {
  if (units == Metric) figures.SpanIsTooLarge = figures.SpanAndWidthMismatch = false;
  return figures;
}

std::optional<SuggestedFigures> SuggestLive(const SiteInputs& typed, UnitSystem units) {
  if (!IsPlausible(typed)) return std::nullopt;
  return WithLiveWarnings(Suggest(typed, units), units);
}

std::optional<Single> ActualLive(const PatternInputs& typed, UnitSystem units, const GradeBasis& basis) {
  constexpr double ThinnestRefused = 0.5;
  constexpr double ThickestTaken = 1.25;
  constexpr Single MostPerRow = 10;
  if (typed.BoltsPerRow <= 0 || typed.BoltsPerRow > MostPerRow) return std::nullopt;
  if (typed.Length <= 0) return std::nullopt;
  const WorkingBolt bolt = InEnglishUnits({.Diameter = typed.Diameter, .Grade = typed.Grade}, units);
  if (bolt.Diameter.Value <= ThinnestRefused || bolt.Diameter.Value > ThickestTaken) return std::nullopt;
  if (bolt.Grade.Value <= 0) return std::nullopt;
  if (typed.RowSpacing <= 0 || typed.EntryWidth <= 0) return std::nullopt;

  return ActualPSUP({.Length = InFeet(typed.Length, units),
                     .BoltsPerRow = typed.BoltsPerRow,
                     .Diameter = bolt.Diameter,
                     .Grade = bolt.Grade,
                     .RowSpacing = InFeet(typed.RowSpacing, units),
                     .EntryWidth = InFeet(typed.EntryWidth, units)},
                    basis);
}

}  // namespace orby
