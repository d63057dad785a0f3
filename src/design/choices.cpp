#include "design/choices.h"

#include <cmath>

#include "base/arithmetic.h"
#include "base/number_text.h"

namespace orby {
namespace {

Single NumberOfText(std::string_view text) { return ToSingle(TextValue(text)); }

}  // namespace

const BoltTable& OfferedBolts(const Catalogs& catalogs, UnitSystem units) {
  return units == Metric ? catalogs.BoltTableMET : catalogs.BoltTableENG;
}

const CatalogList& OfferedBoltDiameters(const Catalogs& catalogs, UnitSystem units) {
  return units == Metric ? catalogs.DefaultBoltDiamArrayMET : catalogs.DefaultBoltDiamArrayENG;
}

const CatalogList& OfferedBoltGrades(const Catalogs& catalogs, UnitSystem units, StrengthBasis basis) {
  if (basis == StrengthBasis::Yield) {
    return units == Metric ? catalogs.DefaultBoltGradeArrayMET : catalogs.DefaultBoltGradeArrayENG;
  }
  return units == Metric ? catalogs.DefaultBoltUTSArrayMET : catalogs.DefaultBoltUTSArrayENG;
}

const CatalogList& OfferedCableDiameters(const Catalogs& catalogs, UnitSystem units) {
  return units == Metric ? catalogs.DefaultCableDiamArrayMET : catalogs.DefaultCableDiamArrayENG;
}

const CatalogList& OfferedCableCapacities(const Catalogs& catalogs, UnitSystem units) {
  return units == Metric ? catalogs.DefaultCableCapArrayMET : catalogs.DefaultCableCapArrayENG;
}

Single StandingCapacity(const Catalogs& catalogs, UnitSystem units, std::size_t index) {
  const auto& [tons, kilonewtons] = catalogs.StandSupports.DefaultStandSupportCap[index];
  return units == Metric ? kilonewtons : tons;
}

Single InSevenDigits(Single number) {
  // A number of at most six digits is that of its text. Nearly all numbers that are typed are of this kind, and most of
  // them have three decimals at most.
  constexpr double Thousand = 1000;
  constexpr double FirstOfSevenDigits = 1e6;
  const double thousandths = std::nearbyint(static_cast<double>(number) * Thousand);
  if (std::abs(thousandths) < FirstOfSevenDigits && static_cast<Single>(thousandths / Thousand) == number) {
    return number + 0.0F;  // the text of -0 is that of 0
  }
  return NumberOfText(NumberText(number));
}

void TakeTableRow(BoltSelection& set, const BoltTable& table, Integer row) {
  const BoltTableRow& bolt = table[static_cast<std::size_t>(row)];
  set.TableRow = row;
  set.Desc = bolt.Name;
  set.TableDiameter = NumberOfText(bolt.Diameter);
  set.TableGrade = NumberOfText(bolt.Grade);
}

void TakeStandingSupport(StandingSelection& standing, const Catalogs& catalogs, UnitSystem units, std::size_t index) {
  standing.TypeMode = ValueSource::Standard;
  standing.TypeName = catalogs.StandSupports.DefaultStandSupportType[index];
  // The list of the dialog has whole capacities.
  standing.Capacity = ToSingle(RoundHalfEven(StandingCapacity(catalogs, units, index)));
}

}  // namespace orby
