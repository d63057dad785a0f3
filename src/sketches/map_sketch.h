// A map of a figure over two numbers: bands of colour, contour lines with their values, and the line along which a
// judgement turns.
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "sketches/contours.h"
#include "sketches/drafting.h"

namespace orby {

struct MapAxis {
  std::string Title;
  double From = 0;  // the first and the last point of the grid
  double To = 1;
};

// The line along which something turns, and words for both of its sides.
struct MapTurn {
  std::vector<ContourLine> Lines;
  std::string Text;  // of the legend; without one there is no entry
  std::string Left;  // where the grid has what is on the left of the lines
  std::string Right;
};

struct DesignMap {
  std::string Title;
  MapAxis Across;
  MapAxis Up;
  std::string Figure;                                     // heads the legend
  ContourGrid Grid;                                       // at even distances
  double Most = std::numeric_limits<double>::infinity();  // greater values mean no more than this one
  bool IsCounted = false;                                 // contour lines stand at whole numbers only
  std::string Blank;                                      // why points may be blank; used if some are
  MapTurn Turn;
  std::optional<ScenePoint> Own;  // the design, in points of the grid
};

// The point that is read out, in points of the grid, and what is read.
struct MapReading {
  ScenePoint At;
  std::string Text;
};

// Traces the contours once, and draws them on sheets of any size.
class MapSketch {
 public:
  explicit MapSketch(DesignMap map);

  const DesignMap& Map() const { return map_; }
  // The values at which contour lines stand.
  const std::vector<double>& Levels() const { return levels_; }

  Sketch On(const SheetSize& sheet, const std::optional<MapReading>& reading = std::nullopt) const;
  // Returns the place on a sheet in points of the grid, or nothing outside the map.
  std::optional<ScenePoint> PointAt(const ScenePoint& place, const SheetSize& sheet) const;

 private:
  friend class MapDrafting;

  DesignMap map_;
  double least_ = 0;
  double greatest_ = 0;
  bool hasValues_ = false;
  bool hasBlanks_ = false;
  std::vector<double> levels_;
  std::vector<ContourLine> whole_;                 // where the grid has values
  std::vector<std::vector<ContourLine>> regions_;  // by level
  std::vector<std::vector<ContourLine>> lines_;    // by level
};

}  // namespace orby
