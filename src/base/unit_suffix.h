// Quantities whose unit is the suffix of a caption or of a report line.
#pragma once

namespace orby {

// The rows of the table of UnitLabel, and two values that are not in the table.
enum class UnitSuffix {
  Degrees = -2,  // in reports; the same in both unit systems
  None = -1,
  Length = 0,
  Stress = 1,
  UnitWeight = 2,
  ProductionMass = 6,
  Grade = 8,
  ProductionRate = 10,
  Diameter = 11,
  Force = 12,
  LineLoad = 13,
};

}  // namespace orby
