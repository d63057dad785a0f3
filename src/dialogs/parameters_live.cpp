// The live results of the parameters dialog: from the fields as typed to the outputs.
#include "base/arithmetic.h"
#include "base/number_text.h"
#include "base/text.h"
#include "dialogs/parameters_dialog.h"
#include "engine/primary_support.h"

namespace orby {
namespace {

constexpr std::string_view NoResult = "--";
constexpr NumberPattern OneDecimal{"0.0"};
constexpr NumberPattern WholeNumber{"0"};
constexpr NumberPattern FactorPattern{"0.#0"};

Single Typed(const TextBox& box) { return ToSingle(box.Value()); }
Single Typed(const Combo& combo) { return ToSingle(combo.Value()); }
Single Typed(const std::string& cell) { return ToSingle(TextValue(cell)); }

void Show(TextBox& output, std::string_view text) { output.SetText(std::string(text)); }

Bolt TypedBolt(const BoltControls& bolt) {
  if (GetArrayIndex(bolt.Options) == 0) {
    const int row = bolt.Table.Row();
    return {Typed(bolt.Table.Cell(row, BoltColumn::Diameter)), Typed(bolt.Table.Cell(row, BoltColumn::Grade))};
  }
  const bool standardDiameter = GetArrayIndex(bolt.DiameterMode) == 0;
  const bool standardGrade = GetArrayIndex(bolt.GradeMode) == 0;
  return {standardDiameter ? Typed(bolt.DiameterStd) : Typed(bolt.DiameterManual),
          standardGrade ? Typed(bolt.GradeStd) : Typed(bolt.GradeManual)};
}

void Clear(const OutputControls& outputs) {
  for (std::size_t i = 0; i < SystemCount; ++i) {
    Show(outputs.RockLoad[i], NoResult);
    Show(outputs.SupportCap[i], NoResult);
    Show(outputs.StabFactor[i], NoResult);
  }
}

// A system that was not computed keeps what its outputs show.
void Write(const OutputControls& outputs, const SecondaryResults& results, const NumberPattern& pattern) {
  const std::string rockLoad = FormatNumber(results.RockLoad, pattern);
  for (TextBox& box : outputs.RockLoad) box.SetText(rockLoad);
  for (std::size_t i = 0; i < SystemCount; ++i) {
    const auto& system = results.Systems[i];
    if (!system) continue;
    outputs.SupportCap[i].SetText(FormatNumber(system->Capacity, pattern));
    outputs.StabFactor[i].SetText(FormatNumber(system->StabilityFactor, FactorPattern));
  }
}

}  // namespace

void ParametersDialog::ShowSuggested() {
  const auto live = SuggestLive({Typed(txtStabilityFactor), Typed(txtCMRR), Typed(txtDepthofCover),
                                 Typed(txtActualSpanDiagonals), Typed(txtEntryWidth)},
                                Units());
  if (!live) return Show(txtSugPSUP, NoResult);
  // Metric designs have no live span warnings; the box stays as it is.
  if (Units() == English) {
    std::string warnings("WARNINGS:");
    warnings += LineEnd;
    if (live->SpanIsTooLarge) {
      warnings += SpanExceedsSuggested;
      warnings += LineEnd;
    }
    if (live->SpanAndWidthMismatch) {
      warnings += SpanAndWidthMayNotMatch;
      warnings += LineEnd;
    }
    txtMessage.SetText(std::move(warnings));
    txtMessage.SetVisible(live->SpanIsTooLarge || live->SpanAndWidthMismatch);
  }
  Show(txtSugSumDiagonals, FormatNumber(live->SuggestedSpan, OneDecimal));
  Show(txtSuggestBoltLength, FormatNumber(live->SugLength, OneDecimal));
  Show(txtSugPSUP, FormatNumber(live->SugPSUP, OneDecimal));
}

void ParametersDialog::ShowActualPSUP() {
  const Bolt bolt = TypedBolt(PrimaryBoltControls);
  const auto psup = ActualLive({Typed(txtBoltLengthPrimary), Typed(txtBoltsperRowPrimary), bolt.Diameter, bolt.Grade,
                                Typed(txtRowSpacingPrimary), Typed(txtEntryWidth)},
                               Units(), Basis());
  Show(txtActualPSUP, psup ? FormatNumber(*psup, OneDecimal) : NoResult);
}

RockInputs ParametersDialog::TypedEntryRock() const {
  RockInputs rock;
  rock.UnitWeight = Typed(txtUnitWeight);
  rock.Height = Typed(txtRockLoadHeight);
  rock.EntryAngle = Typed(txtRockFallAngle);
  rock.Width = Typed(txtEntryWidth);
  return rock;
}

RockInputs ParametersDialog::TypedIntersectionRock() const {
  return {Typed(txtUnitWeight),        Typed(txtRockLoadHeightInter), Typed(txtRockFallAngleEntry),
          Typed(txtRockFallAngleXcut), Typed(txtEntryWidth),          Typed(txtActualSpanDiagonals)};
}

Single ParametersDialog::TypedCableCapacity(const CableControls& cable) const {
  if (GetArrayIndex(cable.CapMode) == 0) {
    return CableCapacityFromDiameter(Typed(cable.Diam), Units(), program_.catalogs);
  }
  return GetArrayIndex(cable.Capacity) == 0 ? Typed(cable.CapacityStd) : Typed(cable.CapacityManual);
}

SupportSystems ParametersDialog::TypedEntrySystems() const {
  SupportSystems systems;
  if (chkSecEntries[0].Checked()) {
    systems.Cable = {TypedCableCapacity(EntryCableControls), Typed(txtCableBoltsPerRowSecEntry),
                     Typed(txtCableRowSpacingSecEntry)};
  }
  if (chkSecEntries[1].Checked()) {
    systems.Truss = {Typed(txtTrussCapacitySecEntry), Typed(txtTrussAngleSecEntry), 0, Typed(txtTrussSpacingSecEntry)};
  }
  if (chkSecEntries[2].Checked()) {
    systems.RoofBolt = {TypedBolt(EntryBoltControls), Typed(txtBoltsperRowSecEntry), Typed(txtRowSpacingSecEntry)};
  }
  systems.StandingSpacing = Typed(txtSupportRowSpacingSecEntry);
  if (chkSecEntries[3].Checked()) {
    systems.Standing = {Typed(txtSupportCapSecEntry), Typed(txtNumberSupPerRowSecEntry), systems.StandingSpacing};
  }
  return systems;
}

SupportSystems ParametersDialog::TypedIntersectionSystems() const {
  SupportSystems systems;
  if (chkSecInter[0].Checked()) {
    systems.Cable = {TypedCableCapacity(InterCableControls), Typed(txtCableNumberSecInter), 0};
  }
  if (chkSecInter[1].Checked()) {
    systems.Truss = {Typed(txtTrussCapacitySecInter), Typed(txtTrussAngleSecInter), Typed(txtTrussNumberSecInter), 0};
  }
  if (chkSecInter[2].Checked()) {
    systems.RoofBolt = {TypedBolt(InterBoltControls), Typed(txtBoltNumberSecInter), 0};
  }
  if (chkSecInter[3].Checked()) {
    systems.Standing = {Typed(txtSupportCapSecInter), Typed(txtSupportNumberSecInter), 0};
  }
  return systems;
}

void ParametersDialog::ShowEntries() {
  const auto rockLoad = EntryRockLoad(TypedEntryRock(), Units());
  if (!rockLoad) return Clear(EntryOutputs);
  Write(EntryOutputs, SupportEntry(*rockLoad, TypedEntrySystems(), Units(), Basis()), OneDecimal);
}

void ParametersDialog::ShowIntersections() {
  const RockInputs rock = TypedIntersectionRock();
  // A bad unit weight clears the entries' results and leaves the intersections' as they are.
  if (!UnitWeightIsPlausible(rock.UnitWeight, Units())) return Clear(EntryOutputs);
  const auto rockLoad = IntersectionRockLoad(rock, Units());
  if (!rockLoad) return Clear(InterOutputs);
  Write(InterOutputs, SupportIntersection(*rockLoad, TypedIntersectionSystems(), Units(), Basis()), WholeNumber);
}

}  // namespace orby
