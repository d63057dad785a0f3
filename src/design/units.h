// The two unit systems: conversion factors, and the suffixes of captions and report lines.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/types.h"
#include "base/unit_suffix.h"

namespace orby {

enum class UnitSystem : Integer { English, Metric };
using enum UnitSystem;

// Returns the index of a unit system in a pair of values.
constexpr std::size_t PlaceOf(UnitSystem units) { return static_cast<std::size_t>(units); }

// What the grade of a roof bolt means. A project file may contain another number, which is kept.
enum class StrengthBasis : Integer { Yield, Ultimate };

inline constexpr double FeetPerMetre = 3.280839895013123;
inline constexpr double MillimetresPerInch = 25.4;
inline constexpr double MPaPerKsi = 6894.757293 / 1000000 * 1000;
inline constexpr double PoundsPerTon = 2000;
inline constexpr double KilonewtonsPerTon = 8.896443;
inline constexpr double KilonewtonsPerPound = 0.004448220489393218;
inline constexpr double PcfPerKilonewtonCubicMetre = 6.3663022639200495;

// Returns the suffix of a row in a unit system, with a leading blank: " (ft)". Throws RuntimeError 9 outside the table.
std::string_view UnitLabel(UnitSuffix suffix, UnitSystem units);

// Returns the unit of a row: "ft". Throws RuntimeError 9 outside the table.
std::string_view UnitName(UnitSuffix suffix, UnitSystem units);

// Returns the factor from the English to the Metric unit of a suffix. Throws RuntimeError 9 for None and Degrees.
double MetricPerEnglish(UnitSuffix suffix);

// Returns the units of the system: "ft, in, lbs, psi, pcf".
std::string_view UnitSummary(UnitSystem units);

}  // namespace orby
