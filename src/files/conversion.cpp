#include "files/conversion.h"

#include <array>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "core/file_helpers.h"
#include "files/record_field.h"

namespace orby {
namespace {

enum class Kind { Length, UnitWeight, Diameter, Grade, Force, LineLoad };

// Decimals of the result in each system. The small differences between like fields show in converted files.
struct ConversionRow {
  Kind Quantity;
  SingleField Field;
  int MetricDecimals;
  int EnglishDecimals;
};

using R = ProjectRecord;

constexpr auto Conversions = std::to_array<ConversionRow>({
    {Kind::Length, &R::DepthofCover, 2, 1},
    {Kind::Length, &R::EntryWidth, 2, 1},
    {Kind::Length, &R::ActualSpanDiagonals, 2, 1},
    {Kind::Length, &R::BoltLengthPrimary, 2, 2},
    {Kind::Length, &R::BoltLengthSecEntry, 2, 2},
    {Kind::Length, &R::BoltLengthSecInter, 1, 2},
    {Kind::Length, &R::RowSpacingPrimary, 1, 1},
    {Kind::Length, &R::RockLoadHeight, 1, 1},
    {Kind::Length, &R::CableLengthSecEntry, 1, 1},
    {Kind::Length, &R::CableRowSpacingSecEntry, 1, 1},
    {Kind::Length, &R::TrussLengthMemberSecEntry, 1, 1},
    {Kind::Length, &R::TrussSpacingSecEntry, 1, 1},
    {Kind::Length, &R::RowSpacingSecEntry, 1, 1},
    {Kind::Length, &R::SupportRowSpacingSecEntry, 1, 1},
    {Kind::Length, &R::RockLoadHeightInter, 1, 1},
    {Kind::Length, &R::CableLengthSecInter, 1, 1},
    {Kind::Length, &R::TrussLengthMemberSecInter, 1, 1},
    {Kind::UnitWeight, &R::UnitWeight, 2, 2},
    {Kind::Diameter, &R::BoltTableDiameterPrimary, 2, 2},
    {Kind::Diameter, &R::BoltDiameterStdPrimary, 2, 2},
    {Kind::Diameter, &R::BoltDiameterManualPrimary, 2, 2},
    {Kind::Diameter, &R::CableDiamSecEntry, 2, 2},
    {Kind::Diameter, &R::BoltTableDiameterSecEntry, 2, 2},
    {Kind::Diameter, &R::BoltDiameterStdSecEntry, 2, 2},
    {Kind::Diameter, &R::BoltDiameterManualSecEntry, 2, 2},
    {Kind::Diameter, &R::CableDiamSecInter, 2, 2},
    {Kind::Diameter, &R::BoltTableDiameterSecInter, 2, 2},
    {Kind::Diameter, &R::BoltDiameterStdSecInter, 2, 2},
    {Kind::Diameter, &R::BoltDiameterManualSecInter, 2, 2},
    {Kind::Grade, &R::BoltTableGradePrimary, 0, 0},
    {Kind::Grade, &R::BoltGradeStdPrimary, 0, 0},
    {Kind::Grade, &R::BoltGradeManualPrimary, 0, 0},
    {Kind::Grade, &R::BoltTableGradeSecEntry, 0, 0},
    {Kind::Grade, &R::BoltGradeStdSecEntry, 0, 0},
    {Kind::Grade, &R::BoltGradeManualSecEntry, 0, 0},
    {Kind::Grade, &R::BoltTableGradeSecInter, 0, 0},
    {Kind::Grade, &R::BoltGradeStdSecInter, 0, 0},
    {Kind::Grade, &R::BoltGradeManualSecInter, 0, 0},
    {Kind::Force, &R::CableCapacityStdSecEntry, 1, 2},
    {Kind::Force, &R::CableCapacityStdSecInter, 2, 2},
    {Kind::Force, &R::CableCapacityManualSecEntry, 1, 1},
    {Kind::Force, &R::TrussCapacitySecEntry, 1, 1},
    {Kind::Force, &R::SupportCapSecEntry, 1, 1},
    {Kind::Force, &R::RockLoadInter1, 1, 1},
    {Kind::Force, &R::CableCapacityManualSecInter, 1, 1},
    {Kind::Force, &R::SupportCapInter1, 1, 1},
    {Kind::Force, &R::TrussCapacitySecInter, 1, 1},
    {Kind::Force, &R::SupportCapInter2, 1, 1},
    {Kind::Force, &R::SupportCapInter3, 1, 1},
    {Kind::Force, &R::SupportCapSecInter, 1, 1},
    {Kind::Force, &R::SupportCapInter4, 1, 1},
    {Kind::LineLoad, &R::RockLoadEntry1, 1, 1},
    {Kind::LineLoad, &R::SupportCapEntry1, 1, 1},
    {Kind::LineLoad, &R::SupportCapEntry2, 1, 1},
    {Kind::LineLoad, &R::SupportCapEntry3, 1, 1},
    {Kind::LineLoad, &R::SupportCapEntry4, 1, 1},
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

void ConvertProject(Program& program, Integer target) {
  program.FileSaved = false;
  for (const ConversionRow& row : Conversions) {
    Single& field = program.WorkParms.*row.Field;
    const double value = field;
    field = target == Metric ? Rounded(ToMetric(row.Quantity, value), row.MetricDecimals)
                             : Rounded(ToEnglish(row.Quantity, value), row.EnglishDecimals);
  }
  program.CurrentFile =
      (target == Metric ? "Metric_" : "English_") + FileNameFromPath(program, program.CurrentFile, false);
  program.Units = target;
}

}  // namespace orby
