#include "reports/sensitivity_report.h"

#include "base/number_text.h"
#include "reports/text_table.h"
#include "reports/verdict_text.h"

namespace orby {
namespace {

constexpr NumberPattern EffectPattern{"0.000"};
constexpr std::string_view NoEffectText = "--";

// Returns the range with other ends. Its steps stay, unless it is narrower than some of them.
VariedRange Between(VariedRange range, Single low, Single high) {
  constexpr int Finest = 100'000;
  range.Low = low;
  range.High = high;
  const double width = static_cast<double>(high) - low;
  while (range.Steps.PerUnit < Finest && width * range.Steps.PerUnit < 20) range.Steps.PerUnit *= 10;
  return range;
}

std::vector<VariedRange> RangesOf(const Design& design, double share, const GivenRanges& given,
                                  std::vector<NumberEffect>& effects) {
  std::vector<VariedRange> ranges;
  for (const DesignNumber* number : NumbersInUse(design)) {
    std::optional<VariedRange> range = RangeAround(design, NameOf(*number), number->Field, share);
    if (const auto found = given.find(number); found != given.end()) {
      if (!range) range = VariedRange{.Name = NameOf(*number), .Field = number->Field};
      range = Between(std::move(*range), found->second.first, found->second.second);
    }
    if (!range) continue;
    ranges.push_back(std::move(*range));
    effects.push_back({.Number = number, .Row = {.Range = ranges.back(), .AtLow = {}, .AtHigh = {}, .Turns = {}}});
  }
  return ranges;
}

}  // namespace

std::string_view StateText(Holding result) {
  constexpr std::array<std::string_view, 4> States{"holds", "to check", "cannot be computed", "short"};
  return States.at(static_cast<std::size_t>(result));
}

FigureEffects EffectsOn(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure, double share,
                        const GivenRanges& ranges) {
  VariedDesign present(design, catalogs);
  present.Refresh();
  FigureEffects effects{.AtDesign = figure.Of(present.Analysed()), .Numbers = {}};
  std::vector<SensitivityRow> rows =
      FindSensitivity(design, catalogs, figure, RangesOf(design, share, ranges, effects.Numbers));
  for (std::size_t i = 0; i < rows.size(); ++i) effects.Numbers[i].Row = std::move(rows[i]);
  return effects;
}

std::vector<std::size_t> GreatestFirst(const std::vector<NumberEffect>& effects) {
  std::vector<SensitivityRow> rows;
  rows.reserve(effects.size());
  for (const NumberEffect& effect : effects) rows.push_back(effect.Row);
  return BySwing(rows);
}

bool HasNoEffect(const NumberEffect& effect) {
  return effect.Row.AtLow.IsThere() && effect.Row.AtHigh.IsThere() && effect.Row.Swing() == 0;
}

std::vector<std::string> CellsOf(const NumberEffect& effect, const Design& design) {
  const SensitivityRow& row = effect.Row;
  return {WithUnitOf(row.Range.Name, effect.Number->Unit, design.Units),
          NumberText(row.Range.Field.In(design)),
          NumberText(row.Range.Low),
          NumberText(row.Range.High),
          EffectText(row.AtLow),
          EffectText(row.AtHigh),
          FormatNumber(row.Swing(), EffectPattern)};
}

std::string EffectText(const FigureValue& value) {
  return value.IsThere() ? FormatNumber(value.Value, EffectPattern) : std::string(NoEffectText);
}

std::string NameOf(const StudiedFigure& figure, UnitSystem units) {
  return WithUnitOf(figure.Name, figure.Unit, units);
}

std::vector<std::string> TurnLines(const NumberEffect& effect, UnitSystem units) {
  std::vector<std::string> lines;
  for (const TurningPoint& turn : effect.Row.Turns) {
    lines.push_back(effect.Row.Range.Name + ": " + TurnText(turn, UnitOf(effect.Number->Unit, units)));
  }
  return lines;
}

std::string TurnText(const TurningPoint& turn, std::string_view unit) {
  std::string text(AspectName(turn.Judged.What));
  text.append(PlaceText(turn.Judged.Where)).append(": ").append(StateText(turn.Before)).append(" up to ");
  text.append(NumberText(turn.Last));
  if (!unit.empty()) text.append(unit == "°" ? "" : " ").append(unit);
  return text.append(", then ").append(StateText(turn.After));
}

std::string SensitivityText(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure, double share) {
  const FigureEffects effects = EffectsOn(design, catalogs, figure, share);
  std::string text = NameOf(figure, design.Units) + ": " + EffectText(effects.AtDesign) + "\n";
  text += "Each number alone, less and more by " + NumberText(ToSingle(share * 100)) + " %:\n\n";
  TextTable table({EffectHeads.begin(), EffectHeads.end()});
  std::string without;
  std::string turns;
  for (const std::size_t place : GreatestFirst(effects.Numbers)) {
    const NumberEffect& effect = effects.Numbers[place];
    for (const std::string& line : TurnLines(effect, design.Units)) turns += line + "\n";
    if (HasNoEffect(effect)) {
      without.append(without.empty() ? "\nWithout effect on it: " : ", ").append(effect.Row.Range.Name);
    } else {
      table.Add(CellsOf(effect, design));
    }
  }
  text += table.Text() + without;
  if (!without.empty()) text += ".\n";
  return turns.empty() ? text : text + "\nWhere judgements change:\n\n" + turns;
}

}  // namespace orby
