// Drawings and curves of designs side by side.
#pragma once

#include <string>
#include <vector>

#include "design/catalog_lists.h"
#include "sketches/drafting.h"
#include "tables/comparison.h"

namespace orby {

// Returns the section of an entry of the design with all of its supports, without texts. Empty for a design that could
// not be read.
Scene SectionOf(const ComparedDesign& design, const Catalogs& catalogs, const SheetSize& sheet);

// Returns the sections of all designs in equal shares of the sheet, each below its name.
Sketch SectionsSketch(const std::vector<ComparedDesign>& designs, const std::vector<std::string>& names,
                      const Catalogs& catalogs, const SheetSize& sheet);

// Returns one chart with the curve of this index of each design, numbered in their order, and the point of each design
// on it. The legend names them, and says why a curve cannot be computed. Throws RuntimeError 9 for an index outside
// 0..9.
Sketch CurvesSketch(const std::vector<ComparedDesign>& designs, const std::vector<std::string>& names, Integer index,
                    UnitSystem units, const SheetSize& sheet);

}  // namespace orby
