// Primary support: suggested span, PSUP and bolt length of a site, and what a roof bolt pattern gives.
// The dialog judges while one types and guards its input; the report takes what passed validation and has no guards.
#pragma once

#include <optional>
#include <string_view>

#include "design/design.h"
#include "design/units.h"
#include "engine/formulas.h"

namespace orby {

// What the suggestions depend on, as typed: in the design's units.
struct SiteInputs {
  Single StabilityFactor = 0;
  Single CMRR = 0;
  Single Depth = 0;
  Single Span = 0;   // actual sum of the intersection diagonals
  Single Width = 0;  // entry width
};

// A pattern of roof bolts over an entry, as typed: in the design's units.
struct PatternInputs {
  Single Length = 0;
  Single BoltsPerRow = 0;
  Single Diameter = 0;
  Single Grade = 0;
  Single RowSpacing = 0;
  Single EntryWidth = 0;
};

struct Suggestion {
  Feet SuggestedSpan{};
  Feet MinSpan{};
  Single SugPSUP = 0;
  Feet SugLength{};

  bool SpanIsTooLarge(const WorkingSite& site) const { return site.Span.Value > SuggestedSpan.Value; }
  bool SpanAndWidthMismatch(const WorkingSite& site) const { return site.Span.Value < MinSpan.Value; }
};

// The two span warnings, in the dialog and in the report.
inline constexpr std::string_view SpanExceedsSuggested = "Actual sum of diagonals exceeds suggested sum of diagonals.";
inline constexpr std::string_view SpanAndWidthMayNotMatch = "Intersection diagonals and entry width may not match.";

Suggestion SuggestSupport(const WorkingSite& site, UnitSystem units);

// The suggestions in the design's units, and the two warnings of the span.
struct SuggestedFigures {
  Single SuggestedSpan = 0;
  Single SugPSUP = 0;
  Single SugLength = 0;
  bool SpanIsTooLarge = false;
  bool SpanAndWidthMismatch = false;
};

SuggestedFigures Suggest(const SiteInputs& site, UnitSystem units);

// A figure of a design and the one that is suggested for it.
struct Comparison {
  Single Actual = 0;
  Single Suggested = 0;
};

enum class LengthVerdict { TooShort, Fine, TooLong };

// Bolt lengths in the design's units.
LengthVerdict JudgeLength(const Comparison& length, UnitSystem units);

// The least PSUP that a roof is bolted for.
inline constexpr Single SmallestPsup = 3;

enum class PsupVerdict { SkinControl, TooLow, Fine };

// A suggestion below 3 needs no bolts but to hold the skin.
PsupVerdict JudgePsup(const Comparison& psup);

struct WorkingBolt {
  Inches Diameter{};
  Ksi Grade{};
};

// Whether the bolt falls short of the ASTM minimum of the design's units.
bool FailsASTM(const WorkingBolt& bolt, UnitSystem units);

// A bolt from the project's units.
WorkingBolt InEnglishUnits(const Bolt& bolt, UnitSystem units);

// A length from the project's units.
Feet InFeet(Single length, UnitSystem units);

// ---- live in the dialog: values as typed, in the project's units --------------------------------------------------

// Whether the dialog suggests support for the site: not when the stability factor is below 1, the rating outside
// 0..100, the width not above 0, the span not above the width, or the depth negative.
bool IsPlausible(const SiteInputs& typed);

// Returns the suggestions with the warnings that the dialog shows: the two of the span are for English designs only.
SuggestedFigures WithLiveWarnings(SuggestedFigures figures, UnitSystem units);

// What the dialog suggests for the site; nothing when it is not plausible.
std::optional<SuggestedFigures> SuggestLive(const SiteInputs& typed, UnitSystem units);

// PSUP of the pattern as typed. Nothing when there are no bolts or more than 10 in a row, the bolt is not above 0.5 in
// or above 1.25 in thick, or the length, grade, row spacing or width is not above 0.
std::optional<Single> ActualLive(const PatternInputs& typed, UnitSystem units, const GradeBasis& basis);

}  // namespace orby
