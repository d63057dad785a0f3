#include "engine/cost.h"

#include "base/arithmetic.h"

namespace orby {
namespace {

// Returns the cost of one bolt for each head.
std::array<Single, CostHeads> CostPerBolt(const CostInputs& in, Single shiftsPerYear) {
  std::array<Single, CostHeads> cost{};
  if (in.NBoltsRow <= 0 || in.NboltsShift <= 0) return cost;
  const double perShift = in.NboltsShift;
  const double labor = in.TotalLabor;
  const double bolt = in.BoltCost;
  auto& [consumables, operating, maintenance, transportation, ownership] = cost;

  consumables = ToSingle(bolt + in.PlateCost + in.ResinCost + in.HeaderCost + in.BitCost / perShift +
                         in.StrapCost / static_cast<double>(in.NBoltsRow));
  operating = ToSingle(labor * in.NOperShift * in.HoursShift / perShift);
  transportation = ToSingle(in.TranspCost / perShift);
  if (shiftsPerYear > 0) {
    maintenance = ToSingle((labor * in.MaintainHrs * in.WeeksYear + in.MaintainCost) / shiftsPerYear / perShift);
    if (in.YearsDepr > 0) {
      const double perYear = static_cast<double>(in.CapitalCost) / in.YearsDepr;
      ownership = ToSingle(perYear / shiftsPerYear / perShift);
    }
  }
  return cost;
}

// Returns the tons of clean coal per shift by which the cost is divided. 0 or less means no production. The calculated
// production must be a valid number even when the typed one is used.
Single ProductionPerShift(const CostInputs& in) {
  Single calculated = 0;
  if (in.RowSpacing > 0) {
    const Single advance = ToSingle(AdvancePerShift(in.NBoltsRow, in.RowSpacing, in.NboltsShift));
    calculated = ToSingle(CleanProductionPerShift(advance, in.AdvanceRate));
  }
  return in.Production == 1 ? calculated : in.CleanProduction;
}

}  // namespace

double AdvancePerShift(double boltsPerRow, double rowSpacing, double boltsPerShift) {
  return Multiply(Divide(boltsPerRow, rowSpacing), boltsPerShift);
}

double CleanProductionPerShift(double advance, double advanceRate) { return Multiply(advance, advanceRate); }

CostTable AnalyseCost(const CostInputs& inputs) {
  const Single shiftsPerYear = ToSingle(static_cast<double>(inputs.ShiftsWeek) * inputs.WeeksYear);
  const auto perBolt = CostPerBolt(inputs, shiftsPerYear);
  const Single production = ProductionPerShift(inputs);

  CostTable table;
  for (std::size_t head = 0; head < CostHeads; ++head) {
    auto& [bolt, advance, shift, ton] = table.Heads[head];
    bolt = perBolt[head];
    if (inputs.RowSpacing > 0) {
      advance = ToSingle(static_cast<double>(inputs.NBoltsRow) * bolt / inputs.RowSpacing);
    }
    shift = ToSingle(static_cast<double>(inputs.NboltsShift) * bolt);
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
