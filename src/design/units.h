// The two unit systems: conversion factors and the suffixes that captions and report lines end in.
#pragma once

#include <cstddef>
#include <string_view>

#include "base/types.h"
#include "base/unit_suffix.h"

namespace orby {

enum class UnitSystem : Integer { English, Metric };
using enum UnitSystem;

// The place of a unit system in a pair of values, one for each.
constexpr std::size_t PlaceOf(UnitSystem units) { return static_cast<std::size_t>(units); }

// How the grades of roof bolts are meant. A project file may hold another number, which stays.
enum class StrengthBasis : Integer { Yield, Ultimate };

inline constexpr double FeetPerMetre = 3.280839895013123;
inline constexpr double MillimetresPerInch = 25.4;
inline constexpr double MPaPerKsi = 6894.757293 / 1000000 * 1000;
inline constexpr double PoundsPerTon = 2000;
inline constexpr double KilonewtonsPerTon = 8.896443;
inline constexpr double KilonewtonsPerPound = 0.004448220489393218;
inline constexpr double PcfPerKilonewtonCubicMetre = 6.3663022639200495;

// The suffix of a row in a unit system, starting with a blank: " (ft)". Throws RuntimeError 9 outside the table.
std::string_view UnitLabel(UnitSuffix suffix, UnitSystem units);

// The system in a few words: "ft, in, lbs, psi, pcf".
std::string_view UnitSummary(UnitSystem units);

}  // namespace orby
