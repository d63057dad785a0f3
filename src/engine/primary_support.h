// Primary support: suggested span, PSUP and bolt length of a site, and what a roof bolt pattern gives.
// The dialog judges while one types and guards its input; the report takes what passed validation and has no guards.
#pragma once

#include <optional>
#include <string_view>

#include "design/design.h"
#include "design/units.h"
#include "engine/formulas.h"

namespace orby {

// The site in English working units.
struct WorkingSite {
  Single StabilityFactor = 0;
  Single CMRR = 0;
  Single Depth = 0;  // ft
  Single Span = 0;   // actual sum of the intersection diagonals, ft
  Single Width = 0;  // entry width, ft
};

struct Suggestion {
  Single SuggestedSpan = 0;  // ft
  Single MinSpan = 0;        // ft
  Single SugPSUP = 0;
  Single SugLength = 0;  // ft

  bool SpanIsTooLarge(const WorkingSite& site) const { return site.Span > SuggestedSpan; }
  bool SpanAndWidthMismatch(const WorkingSite& site) const { return site.Span < MinSpan; }
};

// The two span warnings, in the dialog and in the report.
inline constexpr std::string_view SpanExceedsSuggested = "Actual sum of diagonals exceeds suggested sum of diagonals.";
inline constexpr std::string_view SpanAndWidthMayNotMatch = "Intersection diagonals and entry width may not match.";

Suggestion SuggestSupport(const WorkingSite& site, UnitSystem units);

// A grade in ksi and a diameter in inches, from the project's units.
Bolt InEnglishUnits(const Bolt& bolt, UnitSystem units);

// A length in feet, from the project's units.
Single InFeet(Single length, UnitSystem units);

// ---- live in the dialog: values as typed, in the project's units --------------------------------------------------

struct LiveSuggestion {
  Single SuggestedSpan = 0;  // project units
  Single SugPSUP = 0;
  Single SugLength = 0;  // project units
  bool SpanIsTooLarge = false;
  bool SpanAndWidthMismatch = false;
};

// Nothing when the stability factor is below 1, the rating outside 0..100, the width not above 0, the span not above
// the width, or the depth negative. The two span warnings are for English designs only.
std::optional<LiveSuggestion> SuggestLive(const WorkingSite& typed, UnitSystem units);

// PSUP of the pattern as typed. Nothing when there are no bolts or more than 10 in a row, the bolt is not above 0.5 in
// or above 1.25 in thick, or the length, grade, row spacing or width is not above 0.
std::optional<Single> ActualLive(const BoltPattern& typed, UnitSystem units, const GradeBasis& basis);

}  // namespace orby
