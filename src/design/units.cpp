#include "design/units.h"

#include <array>

#include "base/runtime_error.h"

namespace orby {
namespace {

struct LabelRow {
  std::string_view english;
  std::string_view metric;
};

// The two units of rows 3, 6, 7 and 9 differ in size. A number must be converted to the unit of its row before it is
// printed.
constexpr auto Labels = std::to_array<LabelRow>({
    {" (ft)", " (m)"},
    {" (psi)", " (MPa)"},
    {" (pcf)", " (kN/m3)"},
    {" (in)", " (cm)"},
    {" (psf)", " (kPa)"},
    {" (lbs)", " (kN)"},
    {" (tons)", " (tn)"},
    {" (ft)", " (cm)"},
    {" (ksi)", " (MPa)"},
    {" (tons)", " (MN)"},
    {" (tons/ft)", " (MN/m)"},
    {" (in)", " (mm)"},
    {" (tons)", " (kN)"},
    {" (tons/ft)", " (kN/m)"},
    {" (million psi)", " (GPa)"},
    {" (kips/ft)", " (kN/m)"},
    {" (kip-ft/ft^2)", " (kN-m/m^2)"},
    {" (ton-ft/ft^2)", " (kN-m/m^2)"},
});

}  // namespace

std::string_view UnitLabel(UnitSuffix suffix, UnitSystem units) {
  const auto row = static_cast<std::size_t>(suffix);
  if (row >= Labels.size() || (units != English && units != Metric)) throw RuntimeError(error_number::Subscript);
  const LabelRow& labels = Labels[row];
  return units == English ? labels.english : labels.metric;
}

std::string_view UnitName(UnitSuffix suffix, UnitSystem units) {
  constexpr std::size_t Opening = 2;  // the blank and the bracket
  const std::string_view label = UnitLabel(suffix, units);
  return label.substr(Opening, label.size() - Opening - 1);
}

double MetricPerEnglish(UnitSuffix suffix) {
  constexpr double TonnesPerTon = 0.90718474;
  constexpr double KilonewtonsPerMeganewton = 1000;
  switch (suffix) {
    case UnitSuffix::Length: return 1 / FeetPerMetre;
    case UnitSuffix::Stress: return MPaPerKsi / 1000;
    case UnitSuffix::UnitWeight: return 1 / PcfPerKilonewtonCubicMetre;
    case UnitSuffix::ProductionMass: return TonnesPerTon;
    case UnitSuffix::Grade: return MPaPerKsi;
    case UnitSuffix::ProductionRate: return KilonewtonsPerTon * FeetPerMetre / KilonewtonsPerMeganewton;
    case UnitSuffix::Diameter: return MillimetresPerInch;
    case UnitSuffix::Force: return KilonewtonsPerTon;
    case UnitSuffix::LineLoad: return KilonewtonsPerTon * FeetPerMetre;
    case UnitSuffix::None:
    case UnitSuffix::Degrees: break;
  }
  throw RuntimeError(error_number::Subscript);
}

std::string_view UnitSummary(UnitSystem units) {
  return units == English ? "ft, in, lbs, psi, pcf" : "m, cm, kN, MPa, kN/m3";
}

}  // namespace orby
