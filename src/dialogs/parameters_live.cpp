// The live results of the parameters dialog: from the typed fields to the outputs.
#include "base/text.h"
#include "core/shared_texts.h"
#include "dialogs/parameters_dialog.h"
#include "files/shown_design.h"

namespace orby {
namespace {

void Show(TextBox& output, std::string_view text) { output.SetText(std::string(text)); }

void Clear(OutputControls& outputs) {
  for (std::size_t i = 0; i < SystemCount; ++i) {
    Show(outputs.RockLoad[i], NoResult);
    Show(outputs.SupportCap[i], NoResult);
    Show(outputs.StabFactor[i], NoResult);
  }
}

// Shows the rock load and the results of each system in use. A system without a result keeps its old outputs.
void Show(OutputControls& outputs, const SupportFigures& figures, SupportTexts& texts) {
  const std::optional<Single> rockLoad = figures.RockLoad.ValueOr({});
  if (!rockLoad) return Clear(outputs);
  for (TextBox& box : outputs.RockLoad) Show(box, texts.RockLoad.Of(rockLoad));
  for (std::size_t i = 0; i < SystemCount; ++i) {
    if (!figures.Systems[i].IsThere()) {
      Show(outputs.SupportCap[i], NoResult);
      Show(outputs.StabFactor[i], NoResult);
    } else if (const auto& result = figures.Systems[i].Value()) {
      Show(outputs.SupportCap[i], texts.Capacities[i].Of(result->Capacity));
      Show(outputs.StabFactor[i], texts.Factors[i].Of(result->StabilityFactor));
    }
  }
}

}  // namespace

void ParametersDialog::ShowSuggested() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Primary);
  const std::optional<SuggestedFigures> figures = LiveSuggestion(typed_).ValueOr({});
  if (!figures) return Show(txtSugPSUP, NoResult);
  // Metric designs have no live span warnings. The box keeps its text.
  if (Units() == English) {
    std::string warnings("WARNINGS:");
    warnings += LineEnd;
    if (figures->SpanIsTooLarge) {
      warnings += SpanExceedsSuggested;
      warnings += LineEnd;
    }
    if (figures->SpanAndWidthMismatch) {
      warnings += SpanAndWidthMayNotMatch;
      warnings += LineEnd;
    }
    txtMessage.SetText(std::move(warnings));
    txtMessage.SetVisible(figures->SpanIsTooLarge || figures->SpanAndWidthMismatch);
    warned_ = {figures->SpanIsTooLarge, figures->SpanAndWidthMismatch};
  }
  Show(txtSugSumDiagonals, texts_.SuggestedSpan.Of(figures->SuggestedSpan));
  Show(txtSuggestBoltLength, texts_.SugLength.Of(figures->SugLength));
  Show(txtSugPSUP, texts_.SugPSUP.Of(figures->SugPSUP));
}

void ParametersDialog::ShowActualPSUP() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Primary);
  ReadPart(DesignPart::PrimaryBolt);
  Show(txtActualPSUP, texts_.ActualPSUP.Of(LivePSUP(typed_, program_.session.catalogs).ValueOr({})));
}

void ParametersDialog::ShowEntries() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Entries);
  Show(EntryOutputs, EntryFigures(typed_, program_.session.catalogs), texts_.Entries);
}

void ParametersDialog::ShowIntersections() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Intersections);
  const Single unitWeight = typed_.Place.UnitWeight;
  // A bad unit weight clears the entries' results and leaves the intersections' unchanged.
  if (!IsUnfit(unitWeight) && !UnitWeightIsPlausible(unitWeight, Units())) return Clear(EntryOutputs);
  Show(InterOutputs, IntersectionFigures(typed_, program_.session.catalogs), texts_.Intersections);
}

}  // namespace orby
