#include "reports/working_values.h"

#include "base/arithmetic.h"

namespace orby {
namespace {

Bolt WorkingBolt(const Program& program, const BoltSelection& set) {
  const Bolt bolt = SelectedBolt(set);
  if (program.WorkParms.Units != Metric) return bolt;
  return {ToSingle(bolt.Diameter / MillimetresPerInch), ToSingle(bolt.Grade / MPaPerKsi)};
}

// Capacity of one cable in tons. The catalog is asked in the project's units.
Single WorkingCableCapacity(const Program& program, const CableSelection& cable) {
  Single capacity = cable.Capacity == 0 ? cable.CapacityStd : cable.CapacityManual;
  if (cable.CapMode == 0) capacity = CableCapacityFromDiameter(cable.Diam, program.WorkParms.Units, program.catalogs);
  return program.WorkParms.Units == Metric ? ToSingle(capacity / KilonewtonsPerTon) : capacity;
}

}  // namespace

WorkingValues BuildWorkingValues(const Program& program) {
  constexpr double KipsPerTon = 2;
  const Design& design = program.WorkParms;
  const auto feet = [&](Single length) { return InFeet(length, program.WorkParms.Units); };
  WorkingValues working;
  working.Conditions = {design.Primary.StabilityFactor, static_cast<Single>(design.Place.CMRR),
                        feet(design.Place.DepthofCover), feet(design.Place.ActualSpanDiagonals),
                        feet(design.Place.EntryWidth)};

  const Bolt primary = WorkingBolt(program, design.Primary);
  working.Primary = {feet(design.Primary.Length),     design.Primary.BoltsperRow, primary.Diameter, primary.Grade,
                     feet(design.Primary.RowSpacing), working.Conditions.Width};
  const Bolt entry = WorkingBolt(program, design.Entries.Bolt);
  working.EntryBolts = {
      feet(design.Entries.Bolt.Length),     design.Entries.Bolt.BoltsperRow, entry.Diameter, entry.Grade,
      feet(design.Entries.Bolt.RowSpacing), working.Conditions.Width};
  working.IntersectionBolt = WorkingBolt(program, design.Intersections.Bolt);

  working.EntryCables = {feet(design.Entries.Cable.Length), design.Entries.Cable.BoltsPerRow,
                         ToSingle(KipsPerTon * WorkingCableCapacity(program, design.Entries.Cable)),
                         feet(design.Entries.Cable.RowSpacing), 0};
  if (design.Entries.Cable.Use == 1) working.EntryCables.EntryWidth = working.Conditions.Width;
  return working;
}

bool FailsASTM(const Bolt& bolt, UnitSystem units) {
  constexpr Single SmallestTons = 8.45F;
  constexpr Single SmallestKilonewtons = 83.36F;
  return BoltCapacityCheck(bolt.Grade, bolt.Diameter, units) < (units == Metric ? SmallestKilonewtons : SmallestTons);
}

}  // namespace orby
