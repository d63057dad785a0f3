// How much a figure depends on each number of a design, and where judgements change.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "sampling/varied_design.h"

namespace orby {

// A number of the design, varied from a low to a high value.
struct VariedRange {
  std::string Name;
  SingleField Field;
  Single Low = 0;
  Single High = 0;
  PrintedSteps Steps = {};  // in which the values are given at which judgements change
};

// Returns the range of a number from its value less this share of it to its value and this share of it: 0.1 for 10 %.
// Its steps are one unit or a decimal part of it, at most a hundredth of the value. Returns nothing for a number that
// is 0, because a share of it is no change.
std::optional<VariedRange> RangeAround(const Design& design, std::string name, const SingleField& field, double share);

// A change of a judgement as an input rises.
struct TurningPoint {
  StudiedVerdict Judged;
  Holding Before{};
  Holding After{};
  Single Last = 0;   // the last printed value with the result before
  Single First = 0;  // the first one with the result after
  bool operator==(const TurningPoint&) const = default;
};

struct SensitivityRow {
  VariedRange Range;
  FigureValue AtLow;
  FigureValue AtHigh;
  std::vector<TurningPoint> Turns;

  // Returns how far apart the two values are, or 0 if one of them is missing.
  double Swing() const;
};

// Varies one input at a time. Between a hundred values of each range, a judgement is taken to change once at most.
std::vector<SensitivityRow> FindSensitivity(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                                            std::span<const VariedRange> ranges);

// Returns the places of the rows, the one with the greatest swing first. Equal ones keep their order.
std::vector<std::size_t> BySwing(std::span<const SensitivityRow> rows);

// Returns the figure at each value of an input, for a line of a spider chart.
std::vector<FigureValue> FigureAlong(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure,
                                     const SingleField& field, std::span<const Single> values);

}  // namespace orby
