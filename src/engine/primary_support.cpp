#include "engine/primary_support.h"

#include "base/arithmetic.h"

namespace orby {

Suggestion SuggestSupport(const WorkingSite& site, UnitSystem units) {
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

std::optional<LiveSuggestion> SuggestLive(const WorkingSite& typed, UnitSystem units) {
  if (typed.StabilityFactor < 1) return std::nullopt;
  if (typed.CMRR < 0 || typed.CMRR > 100) return std::nullopt;
  if (typed.Width <= 0) return std::nullopt;
  if (typed.Span <= typed.Width) return std::nullopt;
  if (typed.Depth < 0) return std::nullopt;

  WorkingSite site = typed;
  site.Depth = InFeet(typed.Depth, units);
  site.Span = InFeet(typed.Span, units);
  site.Width = InFeet(typed.Width, units);
  const Suggestion suggestion = SuggestSupport(site, units);
  if (units == Metric) {
    return LiveSuggestion{ToSingle(suggestion.SuggestedSpan / FeetPerMetre), suggestion.SugPSUP,
                          ToSingle(suggestion.SugLength / FeetPerMetre)};
  }
  return LiveSuggestion{suggestion.SuggestedSpan, suggestion.SugPSUP, suggestion.SugLength,
                        suggestion.SpanIsTooLarge(site), suggestion.SpanAndWidthMismatch(site)};
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
