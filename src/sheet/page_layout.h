// The calculation sheet as pages to print: A4 or Letter, in points.
#pragma once

#include <string>
#include <vector>

#include "drawings/scene.h"
#include "sheet/formula_layout.h"
#include "sheet/sheet.h"

namespace orby {

struct PageSize {
  double Width = 0;  // points
  double Height = 0;
};
inline constexpr PageSize A4{595, 842};
inline constexpr PageSize Letter{612, 792};

// An entry of the contents.
struct PageEntry {
  std::string Title;
  std::size_t Page = 0;  // from 0
  double Top = 0;        // of the heading on its page, points
};

struct PagedSheet {
  std::vector<Scene> Pages;
  std::vector<PageEntry> Contents;
};

// What stands at the foot of each page, beside its number.
struct PageFoot {
  std::string Left;  // project
  std::string Date;
};

// Returns the pages. A step or a row of a table stands on one page; a heading stands on the page of what follows it.
PagedSheet PagesOf(const DesignSheet& sheet, const PageSize& size, const PageFoot& foot, const TextWidth& width);

}  // namespace orby
