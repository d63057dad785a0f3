#include "reports/sensitivity_report.h"

#include <array>

#include "base/number_text.h"
#include "reports/design_numbers.h"
#include "reports/text_table.h"
#include "sampling/sensitivity.h"

namespace orby {
namespace {

constexpr NumberPattern EffectPattern{"0.000"};
constexpr std::string_view NoEffectText = "--";

std::string ValueText(const FigureValue& value) {
  return value.IsThere() ? FormatNumber(value.Value, EffectPattern) : std::string(NoEffectText);
}

std::string WithUnitOf(std::string name, UnitSuffix unit, UnitSystem units) {
  if (unit != UnitSuffix::None) name.append(" (").append(UnitOf(unit, units)).append(")");
  return name;
}

std::string_view StateText(Holding result) {
  constexpr std::array<std::string_view, 4> States{"holds", "to check", "cannot be computed", "short"};
  return States.at(static_cast<std::size_t>(result));
}

std::string_view OpeningText(Opening where) {
  constexpr std::array<std::string_view, OpeningCount> Places{"", " in entries", " in intersections"};
  return Places.at(static_cast<std::size_t>(where));
}

std::vector<VariedRange> RangesOf(const Design& design, double share, std::vector<const DesignNumber*>& numbers) {
  std::vector<VariedRange> ranges;
  for (const DesignNumber* number : NumbersInUse(design)) {
    if (auto range = RangeAround(design, NameOf(*number), number->Field, share)) {
      ranges.push_back(std::move(*range));
      numbers.push_back(number);
    }
  }
  return ranges;
}

// The rows of the table and the lines below it.
class SensitivityLines {
 public:
  SensitivityLines(const Design& design, const std::vector<const DesignNumber*>& numbers)
      : design_(design), numbers_(numbers) {}

  void Add(const SensitivityRow& row, std::size_t place) {
    const DesignNumber& number = *numbers_[place];
    for (const TurningPoint& turn : row.Turns) {
      turns_ += row.Range.Name + ": " + TurnText(turn, UnitOf(number.Unit, design_.Units)) + "\n";
    }
    if (row.Swing() == 0 && row.AtLow.IsThere() && row.AtHigh.IsThere()) {
      without_.append(without_.empty() ? "\nWithout effect on it: " : ", ").append(row.Range.Name);
      return;
    }
    table_.Add({WithUnitOf(row.Range.Name, number.Unit, design_.Units), NumberText(number.Field.In(design_)),
                NumberText(row.Range.Low), NumberText(row.Range.High), ValueText(row.AtLow), ValueText(row.AtHigh),
                FormatNumber(row.Swing(), EffectPattern)});
  }

  std::string Text() const {
    std::string text = table_.Text() + without_;
    if (!without_.empty()) text += ".\n";
    return turns_.empty() ? text : text + "\nWhere judgements change:\n\n" + turns_;
  }

 private:
  const Design& design_;
  const std::vector<const DesignNumber*>& numbers_;
  TextTable table_{{"Number", "value", "low", "high", "at low", "at high", "swing"}};
  std::string without_;
  std::string turns_;
};

}  // namespace

std::string TurnText(const TurningPoint& turn, std::string_view unit) {
  std::string text(AspectName(turn.Judged.What));
  text.append(OpeningText(turn.Judged.Where)).append(": ").append(StateText(turn.Before)).append(" up to ");
  text.append(NumberText(turn.Last));
  if (!unit.empty()) text.append(unit == "°" ? "" : " ").append(unit);
  return text.append(", then ").append(StateText(turn.After));
}

std::string SensitivityText(const Design& design, const Catalogs& catalogs, const StudiedFigure& figure, double share) {
  VariedDesign present(design, catalogs);
  present.Refresh();
  std::string text = WithUnitOf(std::string(figure.Name), figure.Unit, design.Units) + ": ";
  text += ValueText(figure.Of(present.Analysed())) + "\n";
  text += "Each number alone, less and more by " + NumberText(ToSingle(share * 100)) + " %:\n\n";
  std::vector<const DesignNumber*> numbers;
  const std::vector<SensitivityRow> rows = FindSensitivity(design, catalogs, figure, RangesOf(design, share, numbers));
  SensitivityLines lines(design, numbers);
  for (const std::size_t place : BySwing(rows)) lines.Add(rows[place], place);
  return text + lines.Text();
}

}  // namespace orby
