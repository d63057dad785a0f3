// A design as its drawings need it: lengths in metres, counts that can be drawn, and the texts of the typed numbers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "design/design.h"
#include "drawings/scene.h"

namespace orby {

// A typed length. Metres is 0 if nothing can be drawn: for 0, a negative number, and one that is not a number.
struct Length {
  double Metres = 0;
  std::string Text;  // with its unit: "6 ft"

  bool IsThere() const { return Metres > 0; }
};

Length LengthOf(Single typed, UnitSystem units);

// Returns a computed length. Its text has one decimal, as in the outputs of the dialog.
Length ComputedLength(Single length, UnitSystem units);

// Returns the text of a number with at most two decimals, or "--" if it is not a number.
std::string PlainText(Single typed);

// Returns "30°".
std::string AngleText(Single degrees);

enum class SupportKind { PrimaryBolts, Cables, Trusses, Bolts, Standing };

// One kind of support over an entry or in an intersection.
struct DrawnSupport {
  SupportKind Kind = SupportKind::PrimaryBolts;
  Ink Colour = Ink::Bolt;
  double Count = 0;            // of a row in an entry, of all in an intersection; 0 if it cannot be drawn
  Length Reach;                // above the roof; of a truss: of an angled member
  std::optional<double> Tilt;  // of a truss member, radians from the vertical; nothing outside 0 to 90 degrees
  Length Spacing;              // of rows along an entry
  std::string Words;           // "4 roof bolts per row, 6 ft, every 4 ft"
};

// The rock that may come down over an opening, which is `Base` wide.
struct DrawnRock {
  Length Height;
  double Limited = 0;  // the height in metres that the fall angle allows
  double Top = 0;      // width in metres at that height
  bool IsComputed = false;
  std::string Angle;
};

// The rock over an opening of this width in metres.
DrawnRock RockOver(double base, const Length& height, Single degrees, bool isComputed);

// Returns the bolts of the primary pattern, in this colour.
DrawnSupport PrimaryBolts(const RoofSupport& design, Ink colour);

// Return the systems in use.
std::vector<DrawnSupport> EntrySystems(const RoofSupport& design);
std::vector<DrawnSupport> IntersectionSystems(const RoofSupport& design);

// Returns the whole number of units that is drawn for a count, at most `most`. A positive count has at least one.
int DrawnCount(double count, double most);

}  // namespace orby
