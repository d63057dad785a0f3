// The two views of a drawing: a section across the roof, and a plan of it.
#pragma once

#include <vector>

#include "sketches/drafting.h"
#include "sketches/site.h"

namespace orby {

inline constexpr double SomeWidth = 6;    // metres, of an opening without a width
inline constexpr double DotRadius = 2.4;  // of a bolt seen from below
inline constexpr double HalfPost = 3;     // of a standing support seen from below

// What a section shows, from the surface down to the floor of the opening.
struct SectionView {
  Length Width;           // of the opening
  std::string WidthName;  // "Entry width"
  Length Cover;
  DrawnRock Rock;
  std::vector<DrawnSupport> Supports;
  Length Spacing;             // of the first support across a row
  double SuggestedReach = 0;  // of the primary bolts, metres; 0: none
  bool IsBare = false;        // only the opening, its supports and the rock, without texts
};

// Where a section has drawn the opening.
struct Across {
  double Left = 0;
  double Right = 0;
  double Scale = 0;      // scene units for a metre
  bool IsKnown = false;  // false: the width is none, and the opening has some width

  double Width() const { return Right - Left; }
};

// Returns the places of `count` units spread evenly over the opening, half a spacing from its sides.
double PlaceOf(const Across& across, int unit, int count);

// Returns how far the units of a kind are moved aside, so that those of two kinds at one place both show.
double AsideOf(SupportKind kind);

// Returns how many units of a row are drawn: never closer than can be told apart.
int UnitsAcross(const Across& across, double count);

// The part of a box between the columns of its dimensions.
Box WithoutDimensions(const Box& box);

// A section to scale across an entry or an intersection.
Across DrawSection(Drafting& drafting, const Box& box, const SectionView& view);

// The plan of the roof of an entry below its section, in the scale of the section: the rows of each support.
void DrawRoofPlan(Drafting& drafting, const Box& box, const Across& across, const std::vector<DrawnSupport>& supports);

// What the plan of an intersection shows.
struct CrossingView {
  Length Width;          // of entry and crosscut
  Length Span;           // sum of the diagonals
  Length SuggestedSpan;  // not there if it cannot be computed
  bool ShowsRock = false;
  DrawnRock AlongEntry;  // the rock over the square of the diagonals
  DrawnRock AlongCrosscut;
  std::vector<DrawnSupport> Supports;
};

void DrawCrossingPlan(Drafting& drafting, const Box& box, const CrossingView& view);

}  // namespace orby
