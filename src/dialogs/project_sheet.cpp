#include "dialogs/project_sheet.h"

#include "base/sha256.h"
#include "core/description.h"
#include "dialogs/shown_design.h"
#include "files/kept_project.h"

namespace orby {

DesignSheet SheetOfProject(const Program& program) {
  const Project& project = program.project;
  const Catalogs& catalogs = program.session.catalogs;
  const Design shown = AsOpened(project, catalogs);
  const Design previewed = AsPreviewed(shown);
  return CalculationSheet({.Shown = shown, .Previewed = previewed},
                          {.File = project.CurrentFile,
                           .Title = TitleToShow(project),
                           .Description = project.ProjectDescription,
                           .Sum = Sha256(BytesOfSave(program))},
                          catalogs);
}

}  // namespace orby
