#include "core/catalog_choice.h"

#include "design/catalogs.h"
#include "design/choices.h"

namespace orby {

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
  return OfferedBoltDiameters(program.session.catalogs, program.project.WorkParms.Units);
}

const CatalogList& BoltGrades(const Program& program) {
  const Design& design = program.project.WorkParms;
  return OfferedBoltGrades(program.session.catalogs, design.Units, design.Basis);
}

const CatalogList& CableDiameters(const Program& program) {
  return OfferedCableDiameters(program.session.catalogs, program.project.WorkParms.Units);
}

const CatalogList& CableCapacities(const Program& program) {
  return OfferedCableCapacities(program.session.catalogs, program.project.WorkParms.Units);
}

Single StandSupportCap(const Program& program, std::size_t index) {
  return StandingCapacity(program.session.catalogs, program.project.WorkParms.Units, index);
}

}  // namespace orby
