#include "dialogs/live_texts.h"

#include "files/shown_design.h"

namespace orby {
namespace {

std::array<FigureText, SystemCount> FourTexts(NumberPattern pattern) {
  const FigureText text(pattern);
  return {text, text, text, text};
}

}  // namespace

const std::string& FigureText::Of(std::optional<Single> figure) {
  if (figure == figure_) return text_;
  text_ = figure ? FormatNumber(*figure, pattern_) : std::string(NoResult);
  figure_ = figure;
  return text_;
}

SupportTexts::SupportTexts(NumberPattern pattern)
    : RockLoad(pattern), Capacities(FourTexts(pattern)), Factors(FourTexts(FactorPattern)) {}

void SupportTexts::Take(const SupportFigures& figures) {
  RockLoad.Of(figures.RockLoad.ValueOr({}));
  for (std::size_t i = 0; i < SystemCount; ++i) {
    const std::optional<SupportResult> result = figures.Systems[i].ValueOr({});
    Capacities[i].Of(result ? std::optional(result->Capacity) : std::nullopt);
    Factors[i].Of(result ? std::optional(result->StabilityFactor) : std::nullopt);
  }
}

LiveTexts::LiveTexts()
    : SugPSUP(OneDecimal),
      SugLength(OneDecimal),
      SuggestedSpan(OneDecimal),
      ActualPSUP(OneDecimal),
      Entries(EntryPattern),
      Intersections(IntersectionPattern) {}

void LiveTexts::Take(const Figures& figures) {
  const std::optional<SuggestedFigures> suggested = figures.LiveSuggestion.ValueOr({});
  const auto part = [&](Single SuggestedFigures::*member) {
    return suggested ? std::optional((*suggested).*member) : std::nullopt;
  };
  SugPSUP.Of(part(&SuggestedFigures::SugPSUP));
  SugLength.Of(part(&SuggestedFigures::SugLength));
  SuggestedSpan.Of(part(&SuggestedFigures::SuggestedSpan));
  ActualPSUP.Of(figures.LivePSUP.ValueOr({}));
  Entries.Take(figures.Entries);
  Intersections.Take(figures.Intersections);
}

}  // namespace orby
