// The calculation sheet of a project.
#pragma once

#include "controls/controls.h"
#include "core/program.h"
#include "sheet/page_layout.h"
#include "sheet/sheet.h"

namespace orby {

// Returns the sheet of the project as the parameters dialog opens on it. Throws as AsOpened does, for a project that no
// dialog can show.
DesignSheet SheetOfProject(const Program& program);

// Returns the sheet of the design that the results window shows. If its inputs are not those of the project, the sheet
// says so and has no checksum.
DesignSheet SheetOfResults(const Program& program);

struct SheetPaper {
  PageSize Size = A4;
  std::string Date;
};

// Returns the size that the user or the locale prefers, and today's date.
SheetPaper PaperOf(const Program& program);

// Writes the choices for signed reports to the configuration file.
void KeepSignedReport(Program& program);

// Shows the size in the options "A4" and "Letter" of a window.
void ShowPaper(Program& program, OptionArray& options);

// Keeps the size that the user chose for this run and in the configuration file.
void TakePaper(Program& program, const OptionArray& options);

// Returns the widths of texts in files of pictures.
TextWidth WidthsOf(const Program& program);

// Returns pages of one size as a PDF file with bookmarks. Throws RuntimeError 7 if they cannot be made.
std::string PagesAsPdf(const Program& program, const PagedSheet& paged, const std::string& title);

// Prints the pages on a printer that the user chooses, after a line in the history. Shows a message for an error; never
// throws.
void PrintPages(Program& program, const std::vector<Scene>& pages, const std::string& name,
                std::string_view historyLine);

// Returns the pages of the sheet, with the project at their feet.
PagedSheet PagesOfSheet(const Program& program, const DesignSheet& sheet, const SheetPaper& paper);

// Returns the sheet as a PDF file with bookmarks. Throws RuntimeError 7 if the pages cannot be made.
std::string SheetAsPdf(const Program& program, const DesignSheet& sheet, const SheetPaper& paper);

}  // namespace orby
