#include "sheet/sheet.h"

#include "sheet/sheet_parts.h"

namespace orby {

DesignSheet CalculationSheet(const SheetDesigns& designs, const SheetProject& project, const Catalogs& catalogs) {
  DesignSheet sheet{.Project = project, .Units = designs.Shown.Units, .Basis = designs.Shown.Basis, .Sections = {}};
  SheetContext context{.Designs = designs,
                       .catalogs = catalogs,
                       .Live = Analyze(designs.Shown, catalogs),
                       .Reported = Analyze(designs.Previewed, catalogs),
                       .Judged = {}};
  context.Judged = Judge(designs.Shown, context.Live);
  AddInputs(sheet, context);
  AddRoofRating(sheet, context);
  AddPrimarySupport(sheet, context);
  AddEntrySupport(sheet, context);
  AddIntersectionSupport(sheet, context);
  AddCost(sheet, context);
  return sheet;
}

}  // namespace orby
