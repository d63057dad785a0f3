#include "files/conversion.h"

#include <algorithm>
#include <array>

#include "base/arithmetic.h"
#include "core/file_helpers.h"
#include "design/field.h"

namespace orby {
namespace {

enum class Kind { Length, UnitWeight, Diameter, Grade, Force, LineLoad };

// The decimals of the result in each system. Similar fields differ slightly; this is visible in converted files.
struct ConversionRow {
  Kind Quantity;
  SingleField Field;
  int MetricDecimals;
  int EnglishDecimals;
};

constexpr auto Conversions = std::to_array<ConversionRow>({
    {Kind::Length, [](auto& d) { return &d.Place.DepthofCover; }, 2, 1},
    {Kind::Length, [](auto& d) { return &d.Place.EntryWidth; }, 2, 1},
    {Kind::Length, [](auto& d) { return &d.Place.ActualSpanDiagonals; }, 2, 1},
    {Kind::Length, [](auto& d) { return &d.Primary.Length; }, 2, 2},
    {Kind::Length, [](auto& d) { return &d.Entries.Bolt.Length; }, 2, 2},
    {Kind::Length, [](auto& d) { return &d.Intersections.Bolt.Length; }, 1, 2},
    {Kind::Length, [](auto& d) { return &d.Primary.RowSpacing; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.RockLoadHeight; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.Cable.Length; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.Cable.RowSpacing; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.Truss.LengthMember; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.Truss.Spacing; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.Bolt.RowSpacing; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Entries.Standing.RowSpacing; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Intersections.RockLoadHeight; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Intersections.Cable.Length; }, 1, 1},
    {Kind::Length, [](auto& d) { return &d.Intersections.Truss.LengthMember; }, 1, 1},
    {Kind::UnitWeight, [](auto& d) { return &d.Place.UnitWeight; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Primary.TableDiameter; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Primary.DiameterStd; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Primary.DiameterManual; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Entries.Cable.Diam; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Entries.Bolt.TableDiameter; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Entries.Bolt.DiameterStd; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Entries.Bolt.DiameterManual; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Intersections.Cable.Diam; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Intersections.Bolt.TableDiameter; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Intersections.Bolt.DiameterStd; }, 2, 2},
    {Kind::Diameter, [](auto& d) { return &d.Intersections.Bolt.DiameterManual; }, 2, 2},
    {Kind::Grade, [](auto& d) { return &d.Primary.TableGrade; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Primary.GradeStd; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Primary.GradeManual; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Entries.Bolt.TableGrade; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Entries.Bolt.GradeStd; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Entries.Bolt.GradeManual; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Intersections.Bolt.TableGrade; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Intersections.Bolt.GradeStd; }, 0, 0},
    {Kind::Grade, [](auto& d) { return &d.Intersections.Bolt.GradeManual; }, 0, 0},
    {Kind::Force, [](auto& d) { return &d.Entries.Cable.CapacityStd; }, 1, 2},
    {Kind::Force, [](auto& d) { return &d.Intersections.Cable.CapacityStd; }, 2, 2},
    {Kind::Force, [](auto& d) { return &d.Entries.Cable.CapacityManual; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Entries.Truss.Capacity; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Entries.Standing.Capacity; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.RockLoad; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Cable.CapacityManual; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Cable.SupportCap; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Truss.Capacity; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Truss.SupportCap; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Bolt.SupportCap; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Standing.Capacity; }, 1, 1},
    {Kind::Force, [](auto& d) { return &d.Intersections.Standing.SupportCap; }, 1, 1},
    {Kind::LineLoad, [](auto& d) { return &d.Entries.RockLoad; }, 1, 1},
    {Kind::LineLoad, [](auto& d) { return &d.Entries.Cable.SupportCap; }, 1, 1},
    {Kind::LineLoad, [](auto& d) { return &d.Entries.Truss.SupportCap; }, 1, 1},
    {Kind::LineLoad, [](auto& d) { return &d.Entries.Bolt.SupportCap; }, 1, 1},
    {Kind::LineLoad, [](auto& d) { return &d.Entries.Standing.SupportCap; }, 1, 1},
});

double ToMetric(Kind quantity, double value) {
  switch (quantity) {
    case Kind::Length: return value / FeetPerMetre;
    case Kind::UnitWeight: return value / PcfPerKilonewtonCubicMetre;
    case Kind::Diameter: return value * MillimetresPerInch;
    case Kind::Grade: return value * 6894.757293 / 1000000 * 1000;
    case Kind::Force: return value * KilonewtonsPerTon;
    case Kind::LineLoad: return value * KilonewtonsPerTon * FeetPerMetre;
  }
  return value;
}

double ToEnglish(Kind quantity, double value) {
  constexpr double KilonewtonsPerMetreOfTonPerFoot = 29.187805118110234;
  switch (quantity) {
    case Kind::Length: return value * FeetPerMetre;
    case Kind::UnitWeight: return value * PcfPerKilonewtonCubicMetre;
    case Kind::Diameter: return value / MillimetresPerInch;
    case Kind::Grade: return value / MPaPerKsi;
    case Kind::Force: return value / KilonewtonsPerTon;
    case Kind::LineLoad: return value / KilonewtonsPerMetreOfTonPerFoot;
  }
  return value;
}

Single Rounded(double value, int decimals) {
  constexpr std::array Scales{1.0, 10.0, 100.0};
  const double scale = Scales[static_cast<std::size_t>(decimals)];
  return ToSingle(RoundHalfEven(value * scale) / scale);
}

}  // namespace

void ConvertProject(Program& program, UnitSystem target) {
  program.project.FileSaved = false;
  for (const ConversionRow& row : Conversions) {
    Single& field = row.Field.In(program.project.WorkParms);
    const double value = field;
    field = target == Metric ? Rounded(ToMetric(row.Quantity, value), row.MetricDecimals)
                             : Rounded(ToEnglish(row.Quantity, value), row.EnglishDecimals);
  }
  program.project.CurrentFile = (target == Metric ? "Metric_" : "English_") +
                                FileNameFromPath(program, program.project.CurrentFile, FileNameForm::Whole);
  program.project.WorkParms.Units = target;
}

UnitSuffix QuantityOf(const SingleField& field) {
  const auto row = std::ranges::find(Conversions, field, &ConversionRow::Field);
  if (row == Conversions.end()) return UnitSuffix::None;
  switch (row->Quantity) {
    case Kind::Length: return UnitSuffix::Length;
    case Kind::UnitWeight: return UnitSuffix::UnitWeight;
    case Kind::Diameter: return UnitSuffix::Diameter;
    case Kind::Grade: return UnitSuffix::Grade;
    case Kind::Force: return UnitSuffix::Force;
    case Kind::LineLoad: return UnitSuffix::LineLoad;
  }
  return UnitSuffix::None;
}

}  // namespace orby
