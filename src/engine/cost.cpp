#include "engine/cost.h"

#include "base/arithmetic.h"

namespace orby {
namespace {

// Cost of one bolt under each head.
std::array<Single, CostHeads> CostPerBolt(const CostGroup& in, Single shiftsPerYear) {
  std::array<Single, CostHeads> cost{};
  if (in.CostNBoltsRow <= 0 || in.CostNboltsShift <= 0) return cost;
  const double perShift = in.CostNboltsShift;
  const double labor = in.CostTotalLabor;
  const double bolt = in.CostBoltCost;
  auto& [consumables, operating, maintenance, transportation, ownership] = cost;

  consumables = ToSingle(bolt + in.CostPlateCost + in.CostResinCost + in.CostHeaderCost + in.CostBitCost / perShift +
                         in.CostStrapCost / static_cast<double>(in.CostNBoltsRow));
  operating = ToSingle(labor * in.CostNOperShift * in.CostHoursShift / perShift);
  transportation = ToSingle(in.CostTranspCost / perShift);
  if (shiftsPerYear > 0) {
    maintenance =
        ToSingle((labor * in.CostMaintainHrs * in.CostWeeksYear + in.CostMaintainCost) / shiftsPerYear / perShift);
    if (in.CostYearsDepr > 0) {
      const double perYear = static_cast<double>(in.CostCapitalCost) / in.CostYearsDepr;
      ownership = ToSingle(perYear / shiftsPerYear / perShift);
    }
  }
  return cost;
}

// Tons of clean coal per shift that the cost is spread over; 0 or less for none. The calculated ones must be numbers
// even when those that were typed count.
Single ProductionPerShift(const CostGroup& in) {
  Single calculated = 0;
  if (in.CostRowSpacing > 0) {
    const Single advance = ToSingle(AdvancePerShift(in.CostNBoltsRow, in.CostRowSpacing, in.CostNboltsShift));
    calculated = ToSingle(CleanProductionPerShift(advance, in.CostAdvanceRate));
  }
  return in.CostProduction == 1 ? calculated : in.CostCleanProduction;
}

}  // namespace

double AdvancePerShift(double boltsPerRow, double rowSpacing, double boltsPerShift) {
  return Multiply(Divide(boltsPerRow, rowSpacing), boltsPerShift);
}

double CleanProductionPerShift(double advance, double advanceRate) { return Multiply(advance, advanceRate); }

CostTable AnalyseCost(const CostGroup& inputs) {
  const Single shiftsPerYear = ToSingle(static_cast<double>(inputs.CostShiftsWeek) * inputs.CostWeeksYear);
  const auto perBolt = CostPerBolt(inputs, shiftsPerYear);
  const Single production = ProductionPerShift(inputs);

  CostTable table;
  for (std::size_t head = 0; head < CostHeads; ++head) {
    auto& [bolt, advance, shift, ton] = table.Heads[head];
    bolt = perBolt[head];
    if (inputs.CostRowSpacing > 0) {
      advance = ToSingle(static_cast<double>(inputs.CostNBoltsRow) * bolt / inputs.CostRowSpacing);
    }
    shift = ToSingle(static_cast<double>(inputs.CostNboltsShift) * bolt);
    if (production > 0) ton = ToSingle(static_cast<double>(shift) / production);
  }
  for (std::size_t column = 0; column < table.Totals.size(); ++column) {
    double total = 0;
    for (const auto& head : table.Heads) total += head[column];
    table.Totals[column] = ToSingle(total);
  }
  return table;
}

}  // namespace orby
