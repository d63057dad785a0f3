// The figures and judgements of a design that a study can follow, by name.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "base/unit_suffix.h"
#include "engine/verdicts.h"

namespace orby {

// The value of a figure. It is a NaN if there is none: `Error` is then the number of the run-time error, or 0 if an
// input that the figure needs is missing.
struct FigureValue {
  Single Value = 0;
  int Error = 0;

  bool IsThere() const { return Value == Value; }
};

struct StudiedFigure {
  std::string_view Key;   // in files: "suggested-psup". It never changes.
  std::string_view Name;  // "Suggested PSUP"
  UnitSuffix Unit = UnitSuffix::None;
  FigureValue (*Of)(const Figures& figures) noexcept;
  bool (*IsUsed)(const RoofSupport& design);  // true if the design analyses the support of the figure and uses it
};

// Returns all figures in the order of the reports.
std::span<const StudiedFigure> StudiedFigures();

// Returns those of what the design analyses and uses.
std::vector<const StudiedFigure*> FiguresInUse(const RoofSupport& design);

// Returns the figure with this key, or null.
const StudiedFigure* FigureWithKey(std::string_view key);

// A judgement by what is judged and where.
struct StudiedVerdict {
  Opening Where{};
  Aspect What{};
  bool operator==(const StudiedVerdict&) const = default;
};

}  // namespace orby
