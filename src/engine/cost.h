// Cost of roof bolting: per bolt, per foot (metre) of advance, per shift and per ton of clean coal.
#pragma once

#include <array>

#include "design/design.h"

namespace orby {

inline constexpr std::size_t CostHeads = 5;  // consumables, operating labor, maintenance, transportation, ownership

// $/bolt, $/ft, $/shift, $/ton.
using CostRow = std::array<Single, 4>;

struct CostTable {
  std::array<CostRow, CostHeads> Heads{};
  CostRow Totals{};
};

// Computes the cost table. A cell whose divisor is 0 or less is 0. Throws RuntimeError 6 when a figure is outside the
// range of a Single.
CostTable AnalyseCost(const CostInputs& inputs);

// Returns the advance per shift in the unit of the row spacing: boltsPerRow / rowSpacing * boltsPerShift. Throws
// RuntimeError 11 when the spacing is 0, and 6 when the result is outside the range of a Double.
double AdvancePerShift(double boltsPerRow, double rowSpacing, double boltsPerShift);

// Returns the tons of clean coal per shift: advance * advanceRate, the rate in tons per unit of advance. Throws
// RuntimeError 6 when the result is outside the range of a Double.
double CleanProductionPerShift(double advance, double advanceRate);

}  // namespace orby
