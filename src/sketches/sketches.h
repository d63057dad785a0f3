// Drawings to scale of a design as it is typed: lengths of either unit system are drawn in the same scale for the same
// place. Numbers that cannot be drawn leave their part of the drawing out or dashed, and show in its texts.
#pragma once

#include "design/design.h"
#include "engine/analysis.h"
#include "sketches/drafting.h"

namespace orby {

// The figures that the drawings show beside the design.
struct SketchFigures {
  std::optional<SuggestedFigures> Suggested;
  bool HasEntryRock = false;  // whether the rock load can be computed
  bool HasIntersectionRock = false;
};

// Figures of a design for its drawings.
SketchFigures SketchFiguresOf(const RoofSupport& design, const Catalogs& catalogs) noexcept;

// Smaller sheets are drawn in this size.
inline constexpr SheetSize SmallestSheet{280, 260};

// Section of an entry with its primary bolts above the plan of its roof.
Sketch PrimarySketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);

// The same with the secondary support of entries.
Sketch EntrySketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);

// The section of an entry with all of its supports, without texts, for small pictures. The sheet may have any size.
Scene EntryMiniature(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);

// Plan of an intersection with its diagonals.
Sketch DiagonalsSketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);

// Section of an intersection along the entry above its plan, with the secondary support and the rock that may fall.
Sketch IntersectionSketch(const RoofSupport& design, const SketchFigures& figures, const SheetSize& sheet);

}  // namespace orby
