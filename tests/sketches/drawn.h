// Finds the parts of a drawing by their colours, for the tests of this folder.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "design/catalogs.h"
#include "design/design.h"
#include "engine/designs.h"
#include "sketches/sketches.h"

namespace orby::test {

inline constexpr SheetSize Paper{400, 420};
inline constexpr double Exactly = 0.01;

// An entry of 20 ft with four bolts of 6 ft in rows of 4 ft, and numbers for every system, of which none is in use.
inline Design EnglishPlace() {
  Design design = FullDesign();
  for (BoltSelection* set : design.BoltSets()) set->Number = 9;
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (SupportSystem* system : support->Systems()) system->Use = 0;
    support->Cable.Length = 12;
    support->Cable.RowSpacing = 8;
    support->Cable.Number = 4;
    support->Truss.LengthMember = 8;
  }
  return design;
}

// Returns the same place in metres.
inline Design InMetres(Design design) {
  design.Units = Metric;
  const auto convert = [](Single& length) { length = static_cast<Single>(length / FeetPerMetre); };
  design.Place.UnitWeight = 25.4F;
  for (Single* length : {&design.Place.DepthofCover, &design.Place.ActualSpanDiagonals, &design.Place.EntryWidth}) {
    convert(*length);
  }
  for (BoltSelection* set : design.BoltSets()) {
    convert(set->Length);
    convert(set->RowSpacing);
  }
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    for (Single* length : {&support->RockLoadHeight, &support->Cable.Length, &support->Cable.RowSpacing,
                           &support->Truss.LengthMember, &support->Truss.Spacing, &support->Standing.RowSpacing}) {
      convert(*length);
    }
  }
  return design;
}

inline SketchFigures FiguresOf(const Design& design) {
  Catalogs lists;
  SetBuiltInCatalogs(lists);
  return SketchFiguresOf(design, lists);
}

inline Sketch PrimaryOf(const Design& design) { return PrimarySketch(design, FiguresOf(design), Paper); }
inline Sketch EntryOf(const Design& design) { return EntrySketch(design, FiguresOf(design), Paper); }
inline Sketch DiagonalsOf(const Design& design) { return DiagonalsSketch(design, FiguresOf(design), Paper); }
inline Sketch IntersectionOf(const Design& design) { return IntersectionSketch(design, FiguresOf(design), Paper); }

// A straight line of an outline.
struct Stroke {
  ScenePoint From;
  ScenePoint To;

  double Length() const { return std::hypot(To.X - From.X, To.Y - From.Y); }
};

// Returns the first outline with lines of this colour and width, or an empty one.
inline SceneOutline OutlineOf(const Sketch& sketch, Ink colour, double width) {
  const auto found = std::ranges::find_if(sketch.Picture.Outlines, [&](const SceneOutline& outline) {
    return outline.Line.Colour == colour && outline.Line.Width == width;
  });
  return found == sketch.Picture.Outlines.end() ? SceneOutline() : *found;
}

inline std::vector<Stroke> StrokesOf(const SceneOutline& outline) {
  std::vector<Stroke> strokes;
  ScenePoint at;
  for (const PathStep& step : outline.Steps) {
    if (step.What == PathStep::Kind::Line) strokes.push_back({at, step.To});
    at = step.To;
  }
  return strokes;
}

// Returns how many separate parts an outline has.
inline int PartsOf(const SceneOutline& outline) {
  using enum PathStep::Kind;
  return static_cast<int>(std::ranges::count_if(
      outline.Steps, [](const PathStep& step) { return step.What == Move || step.What == Circle; }));
}

inline constexpr double RodWidth = 2.2;

// Returns the rods of bolts or the members of trusses in the section.
inline std::vector<Stroke> RodsOf(const Sketch& sketch, Ink colour) {
  return StrokesOf(OutlineOf(sketch, colour, RodWidth));
}

inline bool Shows(const Sketch& sketch, const std::string& text) {
  return std::ranges::any_of(sketch.Picture.Labels, [&](const SceneLabel& label) { return label.Text == text; });
}

}  // namespace orby::test
