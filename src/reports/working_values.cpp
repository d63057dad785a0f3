#include "reports/working_values.h"

#include "base/arithmetic.h"

namespace orby {
namespace {

Bolt WorkingBolt(const Program& program, const BoltFields& set) {
  const Bolt bolt = SelectedBolt(program.WorkParms, set);
  if (program.Units != Metric) return bolt;
  return {ToSingle(bolt.Diameter / MillimetresPerInch), ToSingle(bolt.Grade / MPaPerKsi)};
}

// Capacity of one cable in tons. The catalog is asked in the project's units.
Single WorkingCableCapacity(const Program& program, const CableFields& cable) {
  const ProjectRecord& record = program.WorkParms;
  Single capacity = record.*cable.Capacity == 0 ? record.*cable.CapacityStd : record.*cable.CapacityManual;
  if (record.*cable.CapMode == 0) {
    capacity = CableCapacityFromDiameter(record.*cable.Diam, program.Units, program.catalogs);
  }
  return program.Units == Metric ? ToSingle(capacity / KilonewtonsPerTon) : capacity;
}

}  // namespace

WorkingValues BuildWorkingValues(const Program& program) {
  constexpr double KipsPerTon = 2;
  const ProjectRecord& record = program.WorkParms;
  const auto feet = [&](Single length) { return InFeet(length, program.Units); };
  WorkingValues working;
  working.Conditions = {record.StabilityFactor, static_cast<Single>(record.CMRR), feet(record.DepthofCover),
                        feet(record.ActualSpanDiagonals), feet(record.EntryWidth)};

  const Bolt primary = WorkingBolt(program, PrimaryBolt);
  working.Primary = {feet(record.BoltLengthPrimary), record.BoltsperRowPrimary, primary.Diameter, primary.Grade,
                     feet(record.RowSpacingPrimary), working.Conditions.Width};
  const Bolt entry = WorkingBolt(program, SecEntryBolt);
  working.EntryBolts = {feet(record.BoltLengthSecEntry), record.BoltsperRowSecEntry, entry.Diameter, entry.Grade,
                        feet(record.RowSpacingSecEntry), working.Conditions.Width};
  working.IntersectionBolt = WorkingBolt(program, SecInterBolt);

  working.EntryCables = {feet(record.CableLengthSecEntry), record.CableBoltsPerRowSecEntry,
                         ToSingle(KipsPerTon * WorkingCableCapacity(program, SecEntryCable)),
                         feet(record.CableRowSpacingSecEntry), 0};
  if (record.SecEntryUseCable == 1) working.EntryCables.EntryWidth = working.Conditions.Width;
  return working;
}

bool FailsASTM(const Bolt& bolt, Integer units) {
  constexpr Single SmallestTons = 8.45F;
  constexpr Single SmallestKilonewtons = 83.36F;
  return BoltCapacityCheck(bolt.Grade, bolt.Diameter, units) < (units == Metric ? SmallestKilonewtons : SmallestTons);
}

}  // namespace orby
