// The report that is signed and filed: title block, judgements, drawings, inputs, results with their limits, curves,
// cost, remarks, fields for signatures, and the calculation sheet as an appendix.
#pragma once

#include <string>
#include <vector>

#include "core/settings.h"
#include "drawings/scene.h"
#include "sheet/page_layout.h"
#include "sheet/sheet.h"

namespace orby {

struct ReportPicture {
  std::string Caption;
  Scene Picture;
  std::string Failure;  // why there is no picture
};

struct SignedReport {
  TitleBlock Titles;
  std::string Date;
  DesignSheet Sheet;
  std::vector<ReportPicture> Drawings;
  std::vector<ReportPicture> Curves;
  std::string Remarks;    // lines
  bool HasCost = true;    // shows the cost of bolting and its inputs
  bool HasSheet = false;  // has the calculation sheet as an appendix
};

// Returns the pages. A row, a picture and the fields for signatures are never broken; a heading stands on the page of
// what follows it; a part without content is left out.
PagedSheet PagesOf(const SignedReport& report, const PageSize& size, const TextWidth& width);

}  // namespace orby
