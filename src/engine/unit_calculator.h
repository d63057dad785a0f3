// Conversion of a number to the other units of its kind, in double precision. The factors are those of the calculator
// and differ from those of a project.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace orby {

// The kinds with their units in order. The factors convert from the first unit, or from the unit before.
enum class UnitGroup {
  Length,          // in, ft, cm, m                      12 in/ft, 2.54 cm/in, 100 cm/m
  Load,            // lbsF, tonsF (short), kN, MN, kips  2000, 0.004448220489393218 kN/lbsF, 1000, 1000
  LoadGradient,    // lbsF/in, lbsF/ft, kN/m, MN/m       0.08333333333333333, 0.014593899243416069 (kN/m)/(lbsF/ft)
  Stress,          // psi, ksi, psf, Pa, MPa             1000, 0.006944444444444444, 6894.757293 Pa/psi, 1000000
  StressGradient,  // psi/in, psi/ft, Pa/m, MPa/m        0.08333333333333333, 271447.137519685 (Pa/m)/(psi/in)
};

// Converts a value from one unit of the group to all of its units. The value in its own unit is unchanged. Returns
// nothing for a unit in which the value is outside the range of a Double, and for the units that are computed from that
// unit.
std::vector<std::optional<double>> ConvertUnits(UnitGroup group, double value, std::size_t unit);

}  // namespace orby
