// The calculation sheet of a project.
#pragma once

#include "core/program.h"
#include "sheet/page_layout.h"
#include "sheet/sheet.h"

namespace orby {

// Returns the sheet of the project as the parameters dialog opens on it. Throws as AsOpened does, for a project that no
// dialog can show.
DesignSheet SheetOfProject(const Program& program);

struct SheetPaper {
  PageSize Size = A4;
  std::string Date;
};

// Returns the pages of the sheet, with the project at their feet.
PagedSheet PagesOfSheet(const Program& program, const DesignSheet& sheet, const SheetPaper& paper);

// Returns the sheet as a PDF file with bookmarks. Throws RuntimeError 7 if the pages cannot be made.
std::string SheetAsPdf(const Program& program, const DesignSheet& sheet, const SheetPaper& paper);

}  // namespace orby
