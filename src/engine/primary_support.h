// Primary support: suggested span, PSUP and bolt length of a site, and the PSUP of a roof bolt pattern.
// The dialog computes while the user types, so it checks its input. The report uses validated input without checks.
#pragma once

#include <optional>
#include <string_view>

#include "design/design.h"
#include "design/units.h"
#include "engine/formulas.h"

namespace orby {

// The inputs of the suggestions as typed, in the units of the design.
struct SiteInputs {
  Single StabilityFactor = 0;
  Single CMRR = 0;
  Single Depth = 0;
  Single Span = 0;   // actual sum of the intersection diagonals
  Single Width = 0;  // entry width
};

// A pattern of roof bolts over an entry as typed, in the units of the design.
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

// The suggestions in the units of the design, and the two warnings about the span.
struct SuggestedFigures {
  Single SuggestedSpan = 0;
  Single SugPSUP = 0;
  Single SugLength = 0;
  bool SpanIsTooLarge = false;
  bool SpanAndWidthMismatch = false;
};

SuggestedFigures Suggest(const SiteInputs& site, UnitSystem units);

// A figure of a design and its suggested value.
struct Comparison {
  Single Actual = 0;
  Single Suggested = 0;
};

enum class LengthVerdict { TooShort, Fine, TooLong };

// Judges bolt lengths in the units of the design. A bolt is too long when it exceeds the suggestion by more than 2 ft
// (0.6 m).
LengthVerdict JudgeLength(const Comparison& length, UnitSystem units);

// The smallest suggested PSUP for which bolts carry load.
inline constexpr Single SmallestPsup = 3;

// The greatest suggested PSUP that primary bolts alone are meant for.
inline constexpr Single MostWithoutSupplement = 12;

enum class PsupVerdict { SkinControl, TooLow, Fine };

// Judges the PSUP. A suggestion below 3 needs bolts only for skin control.
PsupVerdict JudgePsup(const Comparison& psup);

struct WorkingBolt {
  Inches Diameter{};
  Ksi Grade{};
};

// The smallest capacity of one bolt by the ASTM, in tons (kN).
constexpr Single SmallestCapacity(UnitSystem units) { return units == Metric ? 83.36F : 8.45F; }

// Returns true if the capacity of the bolt is below the ASTM minimum for the units.
bool FailsASTM(const WorkingBolt& bolt, UnitSystem units);

// Converts a bolt from the units of the project.
WorkingBolt InEnglishUnits(const Bolt& bolt, UnitSystem units);

// Converts a length from the units of the project.
Feet InFeet(Single length, UnitSystem units);

// ---- live in the dialog: values as typed, in the project's units --------------------------------------------------

// Returns true if the dialog suggests support for the site. Requires a stability factor of at least 1, a rating in
// 0..100, a width above 0, a span above the width and a depth of 0 or more.
bool IsPlausible(const SiteInputs& typed);

// Returns the suggestions with only the warnings that the dialog shows. It shows the two warnings about the span in
// English designs only.
SuggestedFigures WithLiveWarnings(SuggestedFigures figures, UnitSystem units);

// Returns the suggestions of the dialog for the site, or nothing when it is not plausible.
std::optional<SuggestedFigures> SuggestLive(const SiteInputs& typed, UnitSystem units);

// Returns the PSUP of the pattern as typed. Returns nothing unless there are more than 0 and at most 10 bolts in a row,
// the diameter is above 0.5 in and at most 1.25 in, and length, grade, row spacing and width are above 0.
std::optional<Single> ActualLive(const PatternInputs& typed, UnitSystem units, const GradeBasis& basis);

}  // namespace orby
