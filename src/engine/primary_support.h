// Primary support: suggested span, PSUP and bolt length of a site, and what a roof bolt pattern gives.
// The dialog judges while one types and guards its input; the report takes what passed validation and has no guards.
#pragma once

#include <optional>
#include <string_view>

#include "design/design.h"
#include "design/units.h"
#include "engine/formulas.h"

namespace orby {

// What the suggestions depend on.
struct SiteInputs {
  Single StabilityFactor = 0;
  Single CMRR = 0;
  Single Depth = 0;
  Single Span = 0;   // actual sum of the intersection diagonals
  Single Width = 0;  // entry width
};

struct Suggestion {
  Single SuggestedSpan = 0;  // ft
  Single MinSpan = 0;        // ft
  Single SugPSUP = 0;
  Single SugLength = 0;  // ft

  bool SpanIsTooLarge(const SiteInputs& site) const { return site.Span > SuggestedSpan; }
  bool SpanAndWidthMismatch(const SiteInputs& site) const { return site.Span < MinSpan; }
};

// The two span warnings, in the dialog and in the report.
inline constexpr std::string_view SpanExceedsSuggested = "Actual sum of diagonals exceeds suggested sum of diagonals.";
inline constexpr std::string_view SpanAndWidthMayNotMatch = "Intersection diagonals and entry width may not match.";

// site: lengths in ft.
Suggestion SuggestSupport(const SiteInputs& site, UnitSystem units);

// The suggestions in the design's units, and the two warnings of the span.
struct SuggestedFigures {
  Single SuggestedSpan = 0;
  Single SugPSUP = 0;
  Single SugLength = 0;
  bool SpanIsTooLarge = false;
  bool SpanAndWidthMismatch = false;
};

// site: in the design's units.
SuggestedFigures Suggest(const SiteInputs& site, UnitSystem units);

enum class LengthVerdict { TooShort, Fine, TooLong };

// A bolt length against the suggested one, both in the design's units.
LengthVerdict JudgeLength(Single actual, Single suggested, UnitSystem units);

// The least PSUP that a roof is bolted for.
inline constexpr Single SmallestPsup = 3;

enum class PsupVerdict { SkinControl, TooLow, Fine };

// The PSUP of a design against the suggested one. A suggestion below 3 needs no bolts but to hold the skin.
PsupVerdict JudgePsup(Single suggested, Single actual);

// Whether the bolt, in English units, falls short of the ASTM minimum of the design's units.
bool FailsASTM(const Bolt& bolt, UnitSystem units);

// A grade in ksi and a diameter in inches, from the project's units.
Bolt InEnglishUnits(const Bolt& bolt, UnitSystem units);

// A length in feet, from the project's units.
Single InFeet(Single length, UnitSystem units);

// ---- live in the dialog: values as typed, in the project's units --------------------------------------------------

// Whether the dialog suggests support for the site: not when the stability factor is below 1, the rating outside
// 0..100, the width not above 0, the span not above the width, or the depth negative.
bool IsPlausible(const SiteInputs& typed);

// The suggestions as the dialog shows them: the two span warnings are for English designs only.
SuggestedFigures AsShown(SuggestedFigures figures, UnitSystem units);

// What the dialog suggests for the site; nothing when it is not plausible.
std::optional<SuggestedFigures> SuggestLive(const SiteInputs& typed, UnitSystem units);

// PSUP of the pattern as typed. Nothing when there are no bolts or more than 10 in a row, the bolt is not above 0.5 in
// or above 1.25 in thick, or the length, grade, row spacing or width is not above 0.
std::optional<Single> ActualLive(const BoltPattern& typed, UnitSystem units, const GradeBasis& basis);

}  // namespace orby
