#include "dialogs/project_sheet.h"

#include "base/paths.h"
#include "base/sha256.h"
#include "core/description.h"
#include "files/kept_project.h"
#include "files/new_project.h"
#include "files/shown_design.h"
#include "sheet/pdf_bookmarks.h"

namespace orby {
namespace {

// Returns the title of the project, or the name of its file.
std::string NameOf(const DesignSheet& sheet) {
  return sheet.Project.Title.empty() ? std::string(NameAfterSeparator(sheet.Project.File)) : sheet.Project.Title;
}

}  // namespace

DesignSheet SheetOfProject(const Program& program) {
  const Project& project = program.project;
  const Catalogs& catalogs = program.session.catalogs;
  const Design shown = AsOpened(project, catalogs);
  const Design previewed = AsPreviewed(shown);
  Design fresh = shown;
  FillNewValues(fresh, program.session.defaults, catalogs);
  return CalculationSheet({.Shown = shown, .Previewed = previewed, .New = fresh},
                          {.File = project.CurrentFile,
                           .Title = TitleToShow(project),
                           .Description = project.ProjectDescription,
                           .Sum = Sha256(BytesOfSave(program))},
                          catalogs);
}

PagedSheet PagesOfSheet(const Program& program, const DesignSheet& sheet, const SheetPaper& paper) {
  PictureFiles& pictures = program.platform.pictures;
  const auto width = [&](const std::string& text, const TextStyle& style) { return pictures.WidthOf(text, style); };
  return PagesOf(sheet, paper.Size, {.Left = NameOf(sheet), .Date = paper.Date}, width);
}

std::string SheetAsPdf(const Program& program, const DesignSheet& sheet, const SheetPaper& paper) {
  const PagedSheet paged = PagesOfSheet(program, sheet, paper);
  const std::string pdf = program.platform.pictures.PagesAsPdf(paged.Pages, "Calculation sheet: " + NameOf(sheet));
  return WithBookmarks(pdf, paged.Contents, paper.Size);
}

}  // namespace orby
