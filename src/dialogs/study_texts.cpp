#include "dialogs/study_texts.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/number_text.h"
#include "reports/verdict_text.h"

namespace orby {
namespace {

// By the number of PricedSupport.
struct SupportWords {
  std::string_view Kind;
  std::string_view Item;
  std::string_view PerRow;
  std::string_view Number;  // in an intersection
  std::string_view Spacing;
  std::string_view Length;
};

constexpr std::array<SupportWords, 4> WordsOfSupports{{
    {"roof bolts", "Bolt", "Bolts per row", "Number of bolts", "Row spacing", "Bolt length"},
    {"cable bolts", "Cable bolt", "Cable bolts per row", "Number of cable bolts", "Row spacing", "Cable bolt length"},
    {"trusses", "", "", "Number of trusses", "Truss spacing", ""},
    {"standing supports", "Standing support", "Supports per row", "Number of supports", "Row spacing", ""},
}};

constexpr std::array<std::string_view, 3> WordsOfPlaces{"Primary ", "Entries: ", "Intersections: "};

const SupportWords& WordsOf(const StudiedSupport& support) {
  return WordsOfSupports.at(static_cast<std::size_t>(support.What));
}

std::string WithUnit(Single number, UnitSuffix suffix, UnitSystem units) {
  if (IsUnfit(number)) return {};
  return NumberText(number) + (suffix == UnitSuffix::None ? "" : " " + std::string(UnitName(suffix, units)));
}

Bolt BoltOf(const RoofSupport& design, const StudiedSupport& support) {
  return SelectedBolt(*design.BoltSets().at(static_cast<std::size_t>(support.Where)));
}

// A support that is not from the catalogs.
std::string TypedItemText(const RoofSupport& design, const StudiedSupport& support) {
  if (support.What != PricedSupport::Bolt) return "typed";
  const Bolt bolt = BoltOf(design, support);
  return WithUnit(bolt.Diameter, UnitSuffix::Diameter, design.Units) + ", " +
         WithUnit(bolt.Grade, UnitSuffix::Grade, design.Units);
}

// Returns how much of the demand a judgement leaves over. The least of them decides.
double Leeway(const Verdict& verdict) {
  if (verdict.Result == Holding::Uncomputed || verdict.Demand == 0) return std::numeric_limits<double>::infinity();
  return static_cast<double>(verdict.Supply) / verdict.Demand;
}

bool DecidesMore(const Verdict& a, const Verdict& b) {
  if (LetsHold(a) != LetsHold(b)) return LetsHold(b);
  if (!LetsHold(a) && a.Result != b.Result) return a.Result > b.Result;
  return Leeway(a) < Leeway(b);
}

}  // namespace

std::string SupportText(const StudiedSupport& support) {
  return std::string(WordsOfPlaces.at(static_cast<std::size_t>(support.Where))).append(WordsOf(support).Kind);
}

std::string_view LeverText(const StudiedSupport& support, Lever lever) {
  const SupportWords& words = WordsOf(support);
  switch (lever) {
    case Lever::Spacing: return words.Spacing;
    case Lever::Number: return support.Where == Opening::Intersections ? words.Number : words.PerRow;
    case Lever::Length: return words.Length;
    case Lever::Item: return words.Item;
    case Lever::Diameter: return "Bolt diameter";
    case Lever::Grade: return "Bolt grade";
  }
  return {};
}

std::string LeverHead(const StudiedSupport& support, Lever lever, UnitSystem units) {
  const std::string unit(UnitLabel(UnitSuffix::Length, units));
  switch (lever) {
    case Lever::Spacing: return "Spacing" + unit;
    case Lever::Length: return "Length" + unit;
    case Lever::Number: return support.Where == Opening::Intersections ? "Number" : "Per row";
    default: return std::string(LeverText(support, lever));
  }
}

UnitSuffix SuffixOf(Lever lever) {
  switch (lever) {
    case Lever::Spacing:
    case Lever::Length: return UnitSuffix::Length;
    case Lever::Diameter: return UnitSuffix::Diameter;
    case Lever::Grade: return UnitSuffix::Grade;
    default: return UnitSuffix::None;
  }
}

std::string LeverValueText(const Design& design, const Catalogs& catalogs, const StudiedSupport& support, Lever lever) {
  const Pattern pattern = PatternOf(design, catalogs, support);
  const auto text = [&](Single number) { return WithUnit(number, SuffixOf(lever), design.Units); };
  switch (lever) {
    case Lever::Spacing: return text(pattern.Spacing);
    case Lever::Number: return text(pattern.Number);
    case Lever::Length: return text(pattern.Length);
    case Lever::Diameter: return text(BoltOf(design, support).Diameter);
    case Lever::Grade: return text(BoltOf(design, support).Grade);
    case Lever::Item: break;
  }
  return pattern.Item ? ItemText(catalogs, design.Units, support, pattern.Item) : TypedItemText(design, support);
}

std::string ItemText(const Catalogs& catalogs, UnitSystem units, const StudiedSupport& support,
                     std::optional<std::size_t> item) {
  std::string name = ItemName(catalogs, units, support, item);
  if (support.What != PricedSupport::Cable || name.empty()) return name;
  return name + " " + std::string(UnitName(UnitSuffix::Diameter, units));
}

std::string CostUnit(const StudiedSupport& support, UnitSystem units) {
  if (support.Where == Opening::Intersections) return " ($ per intersection)";
  return " ($/" + std::string(UnitName(UnitSuffix::Length, units)) + ")";
}

std::string CostText(const PatternCost& cost) {
  if (cost.Dollars) return FormatNumber(*cost.Dollars, "0.00");
  return cost.Gap == CostGap::Price ? "not priced" : "not computed";
}

std::string DecidingText(const Assessment& judged, UnitSystem units) {
  const auto all = judged.Found.All();
  const auto decides = std::ranges::min_element(all, DecidesMore);
  return decides == all.end() ? std::string() : VerdictLine(*decides, units);
}

}  // namespace orby
