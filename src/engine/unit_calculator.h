// Conversion of a number into the other units of its kind, in double precision and by the calculator's own factors,
// which are not those of a project's conversion.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

namespace orby {

// The kinds and their units in order; each unit is reached from the first one by its factors one after the other.
enum class UnitGroup {
  Length,          // in, ft, cm, m                      12 in/ft, 2.54 cm/in, 100 cm/m
  Load,            // lbsF, tonsF (short), kN, MN, kips  2000, 0.004448220489393218 kN/lbsF, 1000, 1000
  LoadGradient,    // lbsF/in, lbsF/ft, kN/m, MN/m       0.08333333333333333, 0.014593899243416069 (kN/m)/(lbsF/ft)
  Stress,          // psi, ksi, psf, Pa, MPa             1000, 0.006944444444444444, 6894.757293 Pa/psi, 1000000
  StressGradient,  // psi/in, psi/ft, Pa/m, MPa/m        0.08333333333333333, 271447.137519685 (Pa/m)/(psi/in)
};

// The value, given in one unit of the group, in each of its units. In its own unit it stays as it is. Nothing for a
// unit in which it is beyond a Double, and for those reached from there.
std::vector<std::optional<double>> ConvertUnits(UnitGroup group, double value, std::size_t unit);

}  // namespace orby
