#include "dialogs/catalog_choice.h"

#include "design/catalogs.h"

namespace orby {
namespace {

const CatalogList& ByUnits(const Program& program, const CatalogList& english, const CatalogList& metric) {
  return program.project.WorkParms.Units == Metric ? metric : english;
}

}  // namespace

const BoltTable& LoadBoltTable(const Project& project, Catalogs& catalogs) {
  if (project.WorkParms.Units != Metric) return catalogs.BoltTableENG;
  if (UsesAustralianTable(project)) {
    SetBoltTableAUS(catalogs);
  } else {
    SetBoltTableMET(catalogs);
  }
  return catalogs.BoltTableMET;
}

const CatalogList& BoltDiameters(const Program& program) {
  return ByUnits(program, program.session.catalogs.DefaultBoltDiamArrayENG,
                 program.session.catalogs.DefaultBoltDiamArrayMET);
}

const CatalogList& BoltGrades(const Program& program) {
  const Catalogs& lists = program.session.catalogs;
  return program.project.WorkParms.Basis == StrengthBasis::Yield
             ? ByUnits(program, lists.DefaultBoltGradeArrayENG, lists.DefaultBoltGradeArrayMET)
             : ByUnits(program, lists.DefaultBoltUTSArrayENG, lists.DefaultBoltUTSArrayMET);
}

const CatalogList& CableDiameters(const Program& program) {
  return ByUnits(program, program.session.catalogs.DefaultCableDiamArrayENG,
                 program.session.catalogs.DefaultCableDiamArrayMET);
}

const CatalogList& CableCapacities(const Program& program) {
  return ByUnits(program, program.session.catalogs.DefaultCableCapArrayENG,
                 program.session.catalogs.DefaultCableCapArrayMET);
}

Single StandSupportCap(const Program& program, std::size_t index) {
  const auto& [tons, kilonewtons] = program.session.catalogs.StandSupports.DefaultStandSupportCap[index];
  return program.project.WorkParms.Units == Metric ? kilonewtons : tons;
}

}  // namespace orby
