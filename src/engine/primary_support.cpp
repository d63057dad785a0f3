#include "engine/primary_support.h"

#include "base/arithmetic.h"

namespace orby {

Suggestion SuggestSupport(const SiteInputs& site, UnitSystem units) {
  Suggestion suggestion;
  suggestion.SuggestedSpan = SuggestedSumDiagonals(site.CMRR);
  suggestion.MinSpan = MinimumSumDiagonals(site.Width, units);
  suggestion.SugPSUP = SuggestedPSUP(site.StabilityFactor, suggestion.SuggestedSpan, site.Span, site.Depth, site.CMRR);
  suggestion.SugLength = SuggestedBoltLength(site.Span, site.Depth, site.CMRR);
  return suggestion;
}

Bolt InEnglishUnits(const Bolt& bolt, UnitSystem units) {
  if (units != Metric) return bolt;
  return {ToSingle(bolt.Diameter / MillimetresPerInch), ToSingle(bolt.Grade * 1000000.0 / 6894.757293 / 1000)};
}

Single InFeet(Single length, UnitSystem units) { return units == Metric ? ToSingle(length * FeetPerMetre) : length; }

SuggestedFigures Suggest(const SiteInputs& site, UnitSystem units) {
  SiteInputs working = site;
  working.Depth = InFeet(site.Depth, units);
  working.Span = InFeet(site.Span, units);
  working.Width = InFeet(site.Width, units);
  const Suggestion suggestion = SuggestSupport(working, units);
  const auto shown = [units](Single feet) { return units == Metric ? ToSingle(feet / FeetPerMetre) : feet; };
  return {shown(suggestion.SuggestedSpan), suggestion.SugPSUP, shown(suggestion.SugLength),
          suggestion.SpanIsTooLarge(working), suggestion.SpanAndWidthMismatch(working)};
}

LengthVerdict JudgeLength(Single actual, Single suggested, UnitSystem units) {
  constexpr Single MostFeet = 2;
  constexpr Single MostMetres = 0.6F;
  if (actual < suggested) return LengthVerdict::TooShort;
  const double difference = static_cast<double>(actual) - suggested;
  return difference > (units == Metric ? MostMetres : MostFeet) ? LengthVerdict::TooLong : LengthVerdict::Fine;
}

PsupVerdict JudgePsup(Single suggested, Single actual) {
  if (suggested < SmallestPsup) return PsupVerdict::SkinControl;
  return actual < suggested ? PsupVerdict::TooLow : PsupVerdict::Fine;
}

bool FailsASTM(const Bolt& bolt, UnitSystem units) {
  constexpr Single SmallestTons = 8.45F;
  constexpr Single SmallestKilonewtons = 83.36F;
  return BoltCapacityCheck(bolt.Grade, bolt.Diameter, units) < (units == Metric ? SmallestKilonewtons : SmallestTons);
}

bool IsPlausible(const SiteInputs& typed) {
  return typed.StabilityFactor >= 1 && typed.CMRR >= 0 && typed.CMRR <= 100 && typed.Width > 0 &&
         typed.Span > typed.Width && typed.Depth >= 0;
}

SuggestedFigures AsShown(SuggestedFigures figures, UnitSystem units) {
  if (units == Metric) figures.SpanIsTooLarge = figures.SpanAndWidthMismatch = false;
  return figures;
}

std::optional<SuggestedFigures> SuggestLive(const SiteInputs& typed, UnitSystem units) {
  if (!IsPlausible(typed)) return std::nullopt;
  return AsShown(Suggest(typed, units), units);
}

std::optional<Single> ActualLive(const BoltPattern& typed, UnitSystem units, const GradeBasis& basis) {
  constexpr double ThinnestRefused = 0.5;
  constexpr double ThickestTaken = 1.25;
  constexpr Single MostPerRow = 10;
  if (typed.BoltsPerRow <= 0 || typed.BoltsPerRow > MostPerRow) return std::nullopt;
  if (typed.Length <= 0) return std::nullopt;
  const Bolt bolt = InEnglishUnits({typed.Diameter, typed.Grade}, units);
  if (bolt.Diameter <= ThinnestRefused || bolt.Diameter > ThickestTaken) return std::nullopt;
  if (bolt.Grade <= 0) return std::nullopt;
  if (typed.RowSpacing <= 0 || typed.EntryWidth <= 0) return std::nullopt;

  return ActualPSUP({InFeet(typed.Length, units), typed.BoltsPerRow, bolt.Diameter, bolt.Grade,
                     InFeet(typed.RowSpacing, units), InFeet(typed.EntryWidth, units)},
                    basis);
}

}  // namespace orby
