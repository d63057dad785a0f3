// What roof bolting costs: per bolt, per foot (metre) of advance, per shift and per ton of clean coal.
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

// A cell whose divisor is not above 0 stays 0. Throws RuntimeError 6 when a figure lies beyond a Single.
CostTable AnalyseCost(const CostInputs& inputs);

// Advance per shift, in the unit of the row spacing: bolts per row over row spacing, times bolts per shift.
// Throws RuntimeError 11 when the spacing is 0, 6 when the result is beyond a Double.
double AdvancePerShift(double boltsPerRow, double rowSpacing, double boltsPerShift);

// Tons of clean coal per shift: the advance times the tons per unit of it. Throws RuntimeError 6 beyond a Double.
double CleanProductionPerShift(double advance, double advanceRate);

}  // namespace orby
