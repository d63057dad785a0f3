// The live results of the parameters dialog: from the typed fields to the outputs.
#include "base/text.h"
#include "core/shared_texts.h"
#include "dialogs/parameters_dialog.h"
#include "dialogs/shown_design.h"

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
void Show(OutputControls& outputs, const SupportFigures& figures, const NumberPattern& pattern) {
  const std::optional<Single> rockLoad = figures.RockLoad.ValueOr({});
  if (!rockLoad) return Clear(outputs);
  const std::string load = FormatNumber(*rockLoad, pattern);
  for (TextBox& box : outputs.RockLoad) {
    if (box.Text() != load) box.SetText(load);
  }
  for (std::size_t i = 0; i < SystemCount; ++i) {
    if (!figures.Systems[i].IsThere()) {
      Show(outputs.SupportCap[i], NoResult);
      Show(outputs.StabFactor[i], NoResult);
    } else if (const auto& result = figures.Systems[i].Value()) {
      outputs.SupportCap[i].SetText(FormatNumber(result->Capacity, pattern));
      outputs.StabFactor[i].SetText(FormatNumber(result->StabilityFactor, FactorPattern));
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
  }
  Show(txtSugSumDiagonals, FormatNumber(figures->SuggestedSpan, OneDecimal));
  Show(txtSuggestBoltLength, FormatNumber(figures->SugLength, OneDecimal));
  Show(txtSugPSUP, FormatNumber(figures->SugPSUP, OneDecimal));
}

void ParametersDialog::ShowActualPSUP() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Primary);
  ReadPart(DesignPart::PrimaryBolt);
  const std::optional<Single> psup = LivePSUP(typed_, program_.session.catalogs).ValueOr({});
  Show(txtActualPSUP, psup ? FormatNumber(*psup, OneDecimal) : NoResult);
}

void ParametersDialog::ShowEntries() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Entries);
  Show(EntryOutputs, EntryFigures(typed_, program_.session.catalogs), EntryPattern);
}

void ParametersDialog::ShowIntersections() {
  ReadPart(DesignPart::Place);
  ReadPart(DesignPart::Intersections);
  const Single unitWeight = typed_.Place.UnitWeight;
  // A bad unit weight clears the entries' results and leaves the intersections' unchanged.
  if (!IsUnfit(unitWeight) && !UnitWeightIsPlausible(unitWeight, Units())) return Clear(EntryOutputs);
  Show(InterOutputs, IntersectionFigures(typed_, program_.session.catalogs), IntersectionPattern);
}

}  // namespace orby
