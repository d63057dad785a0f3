#include "sketches/site.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "design/units.h"
#include "engine/formulas.h"

namespace orby {
namespace {

constexpr double Farthest = 1e30;  // of what is drawn, so that no product overflows
constexpr double RadiansPerDegree = 3.14159265358979323846 / 180;

// Returns the number if it is above 0 and can be drawn, else 0.
double Drawable(double number) { return number > 0 ? std::min(number, Farthest) : 0; }

std::optional<double> TiltOf(Single degrees) {
  if (!(degrees >= 0 && degrees <= 90)) return std::nullopt;
  return degrees * RadiansPerDegree;
}

struct Systems {
  const CableSelection& Cable;
  const TrussSelection& Truss;
  const SecondaryBolts& Bolt;
  const StandingSelection& Standing;
};
Systems OneByOne(const SecondarySupport& support) {
  return {support.Cable, support.Truss, support.Bolt, support.Standing};
}

// The numbers of one kind of support as typed. Supports without rows are those of an intersection.
struct TypedSupport {
  SupportKind Kind;
  Ink Colour;
  std::string_view Names;
  Single Count;
  std::optional<Single> Reach;
  std::optional<Single> RowSpacing;
};

DrawnSupport Drawn(const TypedSupport& typed, UnitSystem units) {
  DrawnSupport drawn;
  drawn.Kind = typed.Kind;
  drawn.Colour = typed.Colour;
  drawn.Count = Drawable(typed.Count);
  drawn.Words = PlainText(typed.Count) + " " + std::string(typed.Names);
  if (typed.RowSpacing) drawn.Words += " per row";
  if (typed.Reach) {
    drawn.Reach = LengthOf(*typed.Reach, units);
    drawn.Words += ", " + drawn.Reach.Text;
  }
  if (typed.RowSpacing) {
    drawn.Spacing = LengthOf(*typed.RowSpacing, units);
    drawn.Words += ", every " + drawn.Spacing.Text;
  }
  return drawn;
}

DrawnSupport DrawnTrusses(const TrussSelection& truss, bool areInRows, UnitSystem units) {
  DrawnSupport drawn;
  drawn.Kind = SupportKind::Trusses;
  drawn.Colour = Ink::Truss;
  drawn.Count = areInRows ? 1 : Drawable(truss.Number);
  drawn.Reach = LengthOf(truss.LengthMember, units);
  drawn.Tilt = TiltOf(truss.Angle);
  const std::string members = "members " + drawn.Reach.Text + " at " + AngleText(truss.Angle);
  if (areInRows) {
    drawn.Spacing = LengthOf(truss.Spacing, units);
    drawn.Words = "Trusses, " + members + ", every " + drawn.Spacing.Text;
  } else {
    drawn.Words = PlainText(truss.Number) + " trusses, " + members;
  }
  return drawn;
}

}  // namespace

std::string PlainText(Single typed) {
  constexpr Single Largest = 1E6F;
  if (!std::isfinite(typed)) return "--";
  if (std::abs(typed) >= Largest) return NumberText(typed);
  constexpr NumberPattern Hundredths{"0.##"};
  std::string text = FormatNumber(typed, Hundredths);
  if (text.ends_with('.')) text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string AngleText(Single degrees) { return PlainText(degrees) + "°"; }

Length LengthOf(Single typed, UnitSystem units) {
  const bool isMetric = units == Metric;
  return {Drawable(isMetric ? typed : typed / FeetPerMetre), PlainText(typed) + (isMetric ? " m" : " ft")};
}

Length ComputedLength(Single length, UnitSystem units) {
  Length computed = LengthOf(length, units);
  if (computed.IsThere()) computed.Text = FormatNumber(length, OneDecimal) + (units == Metric ? " m" : " ft");
  return computed;
}

DrawnRock RockOver(double base, const Length& height, Single degrees, bool isComputed) {
  DrawnRock rock{.Height = height, .IsComputed = isComputed, .Angle = AngleText(degrees)};
  const std::optional<double> tilt = TiltOf(degrees);
  if (!tilt || !height.IsThere()) return rock;
  const double slope = std::tan(*tilt);
  rock.Limited = slope > 0 ? std::min(height.Metres, base / 2 / slope) : height.Metres;
  rock.Top = std::max(0.0, base - 2 * rock.Limited * slope);
  return rock;
}

DrawnSupport PrimaryBolts(const RoofSupport& design, Ink colour) {
  const PrimarySupport& bolts = design.Primary;
  return Drawn({SupportKind::PrimaryBolts, colour, "primary bolts", bolts.BoltsperRow, bolts.Length, bolts.RowSpacing},
               design.Units);
}

std::vector<DrawnSupport> EntrySystems(const RoofSupport& design) {
  std::vector<DrawnSupport> systems;
  const auto& [cable, truss, bolts, standing] = OneByOne(design.Entries);
  const auto add = [&](const TypedSupport& typed) { systems.push_back(Drawn(typed, design.Units)); };
  if (cable.Use == 1) {
    add({SupportKind::Cables, Ink::Cable, "cable bolts", cable.BoltsPerRow, cable.Length, cable.RowSpacing});
  }
  if (truss.Use == 1) systems.push_back(DrawnTrusses(truss, true, design.Units));
  if (bolts.Use == 1) {
    add({SupportKind::Bolts, Ink::Bolt, "secondary bolts", bolts.BoltsperRow, bolts.Length, bolts.RowSpacing});
  }
  if (standing.Use == 1) {
    add({SupportKind::Standing, Ink::Standing, "standing supports", standing.NumberPerRow, {}, standing.RowSpacing});
  }
  return systems;
}

std::vector<DrawnSupport> IntersectionSystems(const RoofSupport& design) {
  std::vector<DrawnSupport> systems;
  const auto& [cable, truss, bolts, standing] = OneByOne(design.Intersections);
  const auto add = [&](const TypedSupport& typed) { systems.push_back(Drawn(typed, design.Units)); };
  if (cable.Use == 1) add({SupportKind::Cables, Ink::Cable, "cable bolts", cable.Number, cable.Length, {}});
  if (truss.Use == 1) systems.push_back(DrawnTrusses(truss, false, design.Units));
  if (bolts.Use == 1) add({SupportKind::Bolts, Ink::Bolt, "secondary bolts", bolts.Number, bolts.Length, {}});
  if (standing.Use == 1) add({SupportKind::Standing, Ink::Standing, "standing supports", standing.Number, {}, {}});
  return systems;
}

int DrawnCount(double count, double most) {
  if (!(count > 0) || !(most >= 1)) return 0;
  return static_cast<int>(std::clamp(std::round(count), 1.0, std::floor(most)));
}

}  // namespace orby
