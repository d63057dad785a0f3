#include "dialogs/catalog_choice.h"

#include "design/catalogs.h"

namespace orby {
namespace {

const CatalogList& ByUnits(const Program& program, const CatalogList& english, const CatalogList& metric) {
  return program.WorkParms.Units == Metric ? metric : english;
}

}  // namespace

const BoltTable& LoadBoltTable(Program& program) {
  if (program.WorkParms.Units != Metric) return program.catalogs.BoltTableENG;
  if (UsesAustralianTable(program)) {
    SetBoltTableAUS(program.catalogs);
  } else {
    SetBoltTableMET(program.catalogs);
  }
  return program.catalogs.BoltTableMET;
}

const CatalogList& BoltDiameters(const Program& program) {
  return ByUnits(program, program.catalogs.DefaultBoltDiamArrayENG, program.catalogs.DefaultBoltDiamArrayMET);
}

const CatalogList& BoltGrades(const Program& program) {
  const Catalogs& lists = program.catalogs;
  return program.WorkParms.Basis == StrengthBasis::Yield
             ? ByUnits(program, lists.DefaultBoltGradeArrayENG, lists.DefaultBoltGradeArrayMET)
             : ByUnits(program, lists.DefaultBoltUTSArrayENG, lists.DefaultBoltUTSArrayMET);
}

const CatalogList& CableDiameters(const Program& program) {
  return ByUnits(program, program.catalogs.DefaultCableDiamArrayENG, program.catalogs.DefaultCableDiamArrayMET);
}

const CatalogList& CableCapacities(const Program& program) {
  return ByUnits(program, program.catalogs.DefaultCableCapArrayENG, program.catalogs.DefaultCableCapArrayMET);
}

Single StandSupportCap(const Program& program, std::size_t index) {
  const auto& [tons, kilonewtons] = program.catalogs.StandSupports.DefaultStandSupportCap[index];
  return program.WorkParms.Units == Metric ? kilonewtons : tons;
}

}  // namespace orby
