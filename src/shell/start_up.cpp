#include "shell/start_up.h"

#include "catalogs/catalogs.h"
#include "config/catalog_sections.h"
#include "core/dialog_helpers.h"
#include "files/new_project.h"

namespace orby {

void StartProgram(Program& program, const IniText* configuration) {
  FixDecimalSeparator(program);
  SetBuiltInCatalogs(program.catalogs);
  if (configuration != nullptr) {
    ReadCatalogSection(program, *configuration, catalog_section::Defaults);
    ReadCatalogSection(program, *configuration, catalog_section::BoltParams);
  }
  FileNew(program, true, true);
}

}  // namespace orby
