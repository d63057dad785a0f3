#include "dialogs/project_sheet.h"

#include "base/attempt.h"
#include "base/paths.h"
#include "base/sha256.h"
#include "config/signed_report_section.h"
#include "core/dates.h"
#include "core/description.h"
#include "core/messages.h"
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

struct Origin {
  std::string File;
  std::string Sum;
};

DesignSheet SheetOf(const Program& program, const Design& shown, Origin origin) {
  Design fresh = shown;
  FillNewValues(fresh, program.session.defaults, program.session.catalogs);
  return CalculationSheet({.Shown = shown, .Previewed = AsPreviewed(shown), .New = fresh},
                          {.File = std::move(origin.File),
                           .Title = TitleToShow(program.project),
                           .Description = program.project.ProjectDescription,
                           .Sum = std::move(origin.Sum)},
                          program.session.catalogs);
}

}  // namespace

DesignSheet SheetOfProject(const Program& program) {
  const Design shown = AsOpened(program.project, program.session.catalogs);
  return SheetOf(program, shown, {.File = program.project.CurrentFile, .Sum = Sha256(BytesOfSave(program))});
}

DesignSheet SheetOfResults(const Program& program) {
  const Design& shown = program.windows.ResultsShown;
  const bool isProject = OrNothing([&]() -> std::optional<bool> {
                           return AsOpened(program.project, program.session.catalogs) == shown;
                         }).value_or(false);
  if (isProject) return SheetOfProject(program);
  return SheetOf(program, shown,
                 {.File = program.project.CurrentFile + " (with inputs that are not committed)", .Sum = {}});
}

SheetPaper PaperOf(const Program& program) {
  const PaperChoice choice = program.session.signedReport.Paper;
  const bool isLetter =
      choice == PaperChoice::AlwaysLetter || (choice == PaperChoice::ByLocale && program.platform.locale.UsesLetter());
  return {.Size = isLetter ? Letter : A4, .Date = DateText(program.platform.clock.Today())};
}

void KeepSignedReport(Program& program) {
  EditIniFile(program, program.session.IniFilePath,
              [&](IniText& ini) { WriteSignedReport(program.session.signedReport, ini); });
}

void ShowPaper(Program& program, OptionArray& options) {
  options.SetValue(PaperOf(program).Size.Width == A4.Width ? 0 : 1, true);
}

// The size of the locale is no choice of the user, and is not kept.
void TakePaper(Program& program, const OptionArray& options) {
  const bool isLetter = options.Value(1);
  if (isLetter == (PaperOf(program).Size.Width == Letter.Width)) return;
  program.session.signedReport.Paper = isLetter ? PaperChoice::AlwaysLetter : PaperChoice::AlwaysA4;
  KeepSignedReport(program);
}

TextWidth WidthsOf(const Program& program) {
  PictureFiles& pictures = program.platform.pictures;
  return [&pictures](const std::string& text, const TextStyle& style) { return pictures.WidthOf(text, style); };
}

std::string PagesAsPdf(const Program& program, const PagedSheet& paged, const std::string& title) {
  const Scene& first = paged.Pages.front();
  return WithBookmarks(program.platform.pictures.PagesAsPdf(paged.Pages, title), paged.Contents,
                       {first.Width, first.Height});
}

void PrintPages(Program& program, const std::vector<Scene>& pages, const std::string& name,
                std::string_view historyLine) {
  const auto chosen = RunTrapped(program, [&] { program.platform.printer.Choose(name); });
  if (chosen != StepOutcome::Done) return;
  AddHistoryLine(program, historyLine);
  RunTrapped(program, [&] { program.platform.printer.PrintScenes(pages, name); });
}

PagedSheet PagesOfSheet(const Program& program, const DesignSheet& sheet, const SheetPaper& paper) {
  return PagesOf(sheet, paper.Size, {.Left = NameOf(sheet), .Date = paper.Date}, WidthsOf(program));
}

std::string SheetAsPdf(const Program& program, const DesignSheet& sheet, const SheetPaper& paper) {
  return PagesAsPdf(program, PagesOfSheet(program, sheet, paper), "Calculation sheet: " + NameOf(sheet));
}

}  // namespace orby
