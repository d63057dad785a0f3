#include "reports/verdict_text.h"

#include <array>
#include <cmath>

#include "base/number_text.h"

namespace orby {
namespace {

// How a judgement is worded. The figures come as "5.6 of the suggested 11.8".
struct Wording {
  std::string_view Key;  // in files
  std::string_view Subject;
  std::string_view Relation;  // between the supply and the demand
  UnitSuffix Unit;            // in entries; a system in intersections has forces
  std::string_view Short;     // before the percentage
  std::string_view Check;     // what to look at
};

constexpr std::string_view ShortBy = "short by";

constexpr std::array<Wording, 12> Wordings{{
    {"span", "Sum of diagonals", "with at most", UnitSuffix::Length, "over by", ""},
    {"span-and-width", "Sum of diagonals", "for a width that needs", UnitSuffix::Length, "",
     "span and width may not match"},
    {"bolt-length", "Bolt length", "of the suggested", UnitSuffix::Length, ShortBy, "longer than needed"},
    {"bolt-capacity", "Bolt capacity", "of at least", UnitSuffix::Force, ShortBy, ""},
    {"psup", "Actual PSUP", "of the suggested", UnitSuffix::None, ShortBy, ""},
    {"supplement", "Suggested PSUP", "with at most", UnitSuffix::None, "", "consider supplemental support"},
    {"cables", "Cable bolts", "for a rock load of", UnitSuffix::LineLoad, ShortBy, ""},
    {"trusses", "Trusses", "for a rock load of", UnitSuffix::LineLoad, ShortBy, ""},
    {"bolts", "Roof bolts", "for a rock load of", UnitSuffix::LineLoad, ShortBy, ""},
    {"standing", "Standing supports", "for a rock load of", UnitSuffix::LineLoad, ShortBy, ""},
    {"cable-anchorage", "Cable bolt length", "for a rock load height and anchorage of", UnitSuffix::Length, ShortBy,
     ""},
    {"bolt-anchorage", "Roof bolt length", "for a rock load height and anchorage of", UnitSuffix::Length, ShortBy, ""},
}};

const Wording& WordingOf(const Verdict& verdict) { return Wordings.at(static_cast<std::size_t>(verdict.What)); }

bool IsSystem(Aspect what) { return what >= Aspect::Cables && what <= Aspect::Standing; }

std::string_view UnitText(const Verdict& verdict, UnitSystem units) {
  const UnitSuffix unit = VerdictUnit(verdict.What, verdict.Where);
  return unit == UnitSuffix::None ? std::string_view() : UnitName(unit, units);
}

// Appends all parts to a text. Judgements are worded after each key, so no part becomes a text of its own.
template <class... Parts>
void Append(std::string& text, const Parts&... parts) {
  (text.append(parts), ...);
}

// Returns true if equal numbers are written alike and others in two ways.
bool TellsApart(NumberPattern pattern, Single a, Single b) {
  // So far apart, everyday numbers differ in their first decimal. Most numbers need not be written to see it.
  constexpr double FarApart = 0.2;
  constexpr double Everyday = 100000;
  if (std::abs(static_cast<double>(a) - b) > FarApart && std::abs(a) < Everyday && std::abs(b) < Everyday) return true;
  return a == b || FormatNumber(a, pattern) != FormatNumber(b, pattern);
}

std::string PercentText(double share) {
  const double percent = std::round(share * 100);
  return (percent < 1 ? std::string(LessThanOne) : FormatNumber(percent, "0")) + " %";
}

std::string_view ReasonText(const Verdict& verdict) {
  switch (verdict.Reason) {
    case Missing::Site: return "roof rating, depth, span or entry width are missing";
    case Missing::Pattern: return "length, number, spacing, diameter or grade of the bolts are missing";
    case Missing::RockLoad: return "there is no rock load for this unit weight, height, width and fall angle";
    case Missing::Spacing: return "the row spacing or the number in a row is missing";
    default: return ErrorDescription(verdict.Error);
  }
}

// Appends the remark on the figures, each part of it after a comma.
void AppendRemark(std::string& text, const Verdict& verdict) {
  const Wording& wording = WordingOf(verdict);
  if (IsSystem(verdict.What)) Append(text, ", stability factor ", FormatNumber(verdict.Factor, "0.00"));
  if (verdict.Result == Holding::Short) {
    Append(text, ", ", wording.Short, " ", PercentText(ShareMissing(verdict)));
  } else if (verdict.Result == Holding::Check && !wording.Check.empty()) {
    Append(text, ", ", wording.Check);
  } else if (verdict.Result == Holding::Check) {
    Append(text, ", below the ", FormatNumber(verdict.WantedFactor, "0.00"), " of the project");
  } else if (verdict.What == Aspect::Psup && verdict.Supply < verdict.Demand) {
    text += ", skin control or suspension";
  }
  if (verdict.ReportDiffers) text += "; the report judges the bolts of the entries";
}

void AppendFigures(std::string& text, const Verdict& verdict, UnitSystem units) {
  if (verdict.Result == Holding::Uncomputed) return Append(text, ReasonText(verdict));
  const NumberPattern pattern = VerdictPattern(verdict);
  Append(text, FormatNumber(verdict.Supply, pattern), " ", WordingOf(verdict).Relation, " ",
         FormatNumber(verdict.Demand, pattern));
  if (const std::string_view unit = UnitText(verdict, units); !unit.empty()) Append(text, " ", unit);
  AppendRemark(text, verdict);
}

}  // namespace

std::string_view PlaceText(Opening where) {
  constexpr std::array<std::string_view, 3> Places{"", " in entries", " in intersections"};
  return Places.at(static_cast<std::size_t>(where));
}

std::string_view AspectKey(Aspect what) { return Wordings.at(static_cast<std::size_t>(what)).Key; }

std::string_view OpeningKey(Opening where) {
  constexpr std::array<std::string_view, OpeningCount> Keys{"primary", "entries", "intersections"};
  return Keys.at(static_cast<std::size_t>(where));
}

std::string_view HoldingKey(Holding result) {
  constexpr std::array<std::string_view, 4> Keys{"holds", "check", "uncomputed", "short"};
  return Keys.at(static_cast<std::size_t>(result));
}

// In a line the figures tell the two judgements on the sum of diagonals apart.
std::string_view AspectName(Aspect what) {
  if (what == Aspect::SpanAndWidth) return "Sum of diagonals for the entry width";
  return Wordings.at(static_cast<std::size_t>(what)).Subject;
}

std::string_view HoldingWord(Holding result) {
  constexpr std::array<std::string_view, 4> Words{"Holds", "Check", "Cannot be computed", "Short"};
  return Words.at(static_cast<std::size_t>(result));
}

UnitSuffix VerdictUnit(Aspect what, Opening where) {
  const UnitSuffix unit = Wordings.at(static_cast<std::size_t>(what)).Unit;
  return unit == UnitSuffix::LineLoad && where == Opening::Intersections ? UnitSuffix::Force : unit;
}

NumberPattern VerdictPattern(const Verdict& verdict) {
  const auto tellsApart = [&](NumberPattern pattern) { return TellsApart(pattern, verdict.Supply, verdict.Demand); };
  // The limit of the standard has two decimals.
  if (verdict.What != Aspect::BoltCapacity && tellsApart(OneDecimal)) return OneDecimal;
  return tellsApart("0.00") ? NumberPattern("0.00") : NumberPattern("0.000");
}

std::string VerdictFigures(const Verdict& verdict, UnitSystem units) {
  std::string text;
  AppendFigures(text, verdict, units);
  return text;
}

std::string VerdictLine(const Verdict& verdict, UnitSystem units) {
  constexpr std::size_t Usual = 120;
  std::string line;
  line.reserve(Usual);
  Append(line, HoldingWord(verdict.Result), ": ", WordingOf(verdict).Subject, PlaceText(verdict.Where), " ",
         verdict.Result == Holding::Uncomputed ? "- " : "");
  AppendFigures(line, verdict, units);
  return line;
}

VerdictCells CellsOf(const Verdict& verdict, UnitSystem units) {
  VerdictCells cells{.Subject = std::string(WordingOf(verdict).Subject).append(PlaceText(verdict.Where)),
                     .Supply = {},
                     .Limit = {},
                     .Result = std::string(HoldingWord(verdict.Result))};
  if (verdict.Result == Holding::Uncomputed) {
    Append(cells.Result, ": ", ReasonText(verdict));
    return cells;
  }
  const NumberPattern pattern = VerdictPattern(verdict);
  std::string unit(UnitText(verdict, units));
  if (!unit.empty()) unit.insert(0, " ");
  cells.Supply = FormatNumber(verdict.Supply, pattern) + unit;
  cells.Limit = (IsUpperLimit(verdict.What) ? "at most " : "at least ") + FormatNumber(verdict.Demand, pattern) + unit;
  AppendRemark(cells.Result, verdict);
  return cells;
}

std::string VerdictCounts(const Verdicts& verdicts) {
  struct Counted {
    Holding Result;
    std::string_view Words;
  };
  constexpr std::array<Counted, 4> Order{{{Holding::Short, " short"},
                                          {Holding::Uncomputed, " not computed"},
                                          {Holding::Check, " to check"},
                                          {Holding::Holds, " holding"}}};
  std::string text;
  for (const Counted& counted : Order) {
    const std::size_t count = verdicts.Count(counted.Result);
    if (count == 0) continue;
    if (!text.empty()) text += ", ";
    text += NumberText(static_cast<double>(count)) + std::string(counted.Words);
  }
  return text.empty() ? "Nothing is analysed" : text;
}

}  // namespace orby
