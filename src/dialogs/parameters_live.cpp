// The live results of the parameters dialog: from the fields as typed to the outputs.
// A field is read when the rule at hand needs it: what is typed into another one does not matter then.
#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"
#include "base/text.h"
#include "core/shared_texts.h"
#include "dialogs/parameters_dialog.h"
#include "engine/primary_support.h"

namespace orby {
namespace {

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

}  // namespace

// What a refresh has found out about a support system.
struct ParametersDialog::SystemFigures {
  bool Fails = false;                   // it cannot be computed
  std::optional<SupportResult> Result;  // nothing: its outputs keep what they show
};

void ParametersDialog::ShowSystems(const OutputControls& outputs, const std::array<CheckBox, SystemCount>& boxes,
                                   const std::array<SystemRule, SystemCount>& rules, Single rockLoad,
                                   const NumberPattern& pattern) const {
  std::array<SystemFigures, SystemCount> systems;
  for (std::size_t i = 0; i < SystemCount; ++i) {
    if (!boxes[i].Checked()) continue;
    systems[i].Fails = !Succeeds([&] { systems[i].Result = (this->*rules[i])(rockLoad); });
  }
  const std::string load = FormatNumber(rockLoad, pattern);
  for (TextBox& box : outputs.RockLoad) {
    if (box.Text() != load) box.SetText(load);
  }
  for (std::size_t i = 0; i < SystemCount; ++i) {
    if (systems[i].Fails) {
      Show(outputs.SupportCap[i], NoResult);
      Show(outputs.StabFactor[i], NoResult);
    } else if (const auto& result = systems[i].Result) {
      outputs.SupportCap[i].SetText(FormatNumber(result->Capacity, pattern));
      outputs.StabFactor[i].SetText(FormatNumber(result->StabilityFactor, FactorPattern));
    }
  }
}

void ParametersDialog::ShowSuggested() {
  const auto live = OrNothing([this] {
    return SuggestLive({Typed(txtStabilityFactor), Typed(txtCMRR), Typed(txtDepthofCover),
                        Typed(txtActualSpanDiagonals), Typed(txtEntryWidth)},
                       Units());
  });
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
  const auto psup = OrNothing([this] {
    const Bolt bolt = TypedBolt(PrimaryBoltControls);
    return ActualLive({Typed(txtBoltLengthPrimary), Typed(txtBoltsperRowPrimary), bolt.Diameter, bolt.Grade,
                       Typed(txtRowSpacingPrimary), Typed(txtEntryWidth)},
                      Units(), Basis());
  });
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

RockInputs ParametersDialog::TypedIntersectionRock(Single unitWeight) const {
  return {
      unitWeight,           Typed(txtRockLoadHeightInter), Typed(txtRockFallAngleEntry), Typed(txtRockFallAngleXcut),
      Typed(txtEntryWidth), Typed(txtActualSpanDiagonals)};
}

Single ParametersDialog::TypedCableCapacity(const CableControls& cable) const {
  if (GetArrayIndex(cable.CapMode) == 0) {
    return CableCapacityFromDiameter(Typed(cable.Diam), Units(), program_.catalogs);
  }
  return GetArrayIndex(cable.Capacity) == 0 ? Typed(cable.CapacityStd) : Typed(cable.CapacityManual);
}

// ---- entries: a system without a number that decides on it is passed over -----------------------------------------

std::optional<SupportResult> ParametersDialog::CableInEntry(Single rockLoad) const {
  const Single spacing = Typed(txtCableRowSpacingSecEntry);
  if (spacing == 0) return std::nullopt;
  return SupportEntry(
      rockLoad, CountedSystem{TypedCableCapacity(EntryCableControls), Typed(txtCableBoltsPerRowSecEntry), spacing});
}

// The standing supports' spacing decides on the trusses too: at 0 their last figures stay.
std::optional<SupportResult> ParametersDialog::TrussInEntry(Single rockLoad) const {
  if (Typed(txtSupportRowSpacingSecEntry) == 0) return std::nullopt;
  return SupportEntry(rockLoad, TrussSystem{Typed(txtTrussCapacitySecEntry), Typed(txtTrussAngleSecEntry), 0,
                                            Typed(txtTrussSpacingSecEntry)});
}

std::optional<SupportResult> ParametersDialog::RoofBoltInEntry(Single rockLoad) const {
  const Single count = Typed(txtBoltsperRowSecEntry);
  if (count == 0) return std::nullopt;
  return SupportEntry(rockLoad, BoltSystem{TypedBolt(EntryBoltControls), count, Typed(txtRowSpacingSecEntry)}, Units(),
                      Basis());
}

std::optional<SupportResult> ParametersDialog::StandingInEntry(Single rockLoad) const {
  const Single spacing = Typed(txtSupportRowSpacingSecEntry);
  if (spacing == 0) return std::nullopt;
  return SupportEntry(rockLoad,
                      CountedSystem{Typed(txtSupportCapSecEntry), Typed(txtNumberSupPerRowSecEntry), spacing});
}

void ParametersDialog::ShowEntries() {
  const auto rockLoad = OrNothing([this] { return EntryRockLoad(TypedEntryRock(), Units()); });
  if (!rockLoad) return Clear(EntryOutputs);
  using D = ParametersDialog;
  static constexpr std::array<SystemRule, SystemCount> Rules{&D::CableInEntry, &D::TrussInEntry, &D::RoofBoltInEntry,
                                                             &D::StandingInEntry};
  ShowSystems(EntryOutputs, chkSecEntries, Rules, *rockLoad, OneDecimal);
}

// ---- intersections -------------------------------------------------------------------------------------------------

std::optional<SupportResult> ParametersDialog::CableInIntersection(Single rockLoad) const {
  return SupportIntersection(rockLoad,
                             CountedSystem{TypedCableCapacity(InterCableControls), Typed(txtCableNumberSecInter), 0});
}

std::optional<SupportResult> ParametersDialog::TrussInIntersection(Single rockLoad) const {
  return SupportIntersection(rockLoad, TrussSystem{Typed(txtTrussCapacitySecInter), Typed(txtTrussAngleSecInter),
                                                   Typed(txtTrussNumberSecInter), 0});
}

std::optional<SupportResult> ParametersDialog::RoofBoltInIntersection(Single rockLoad) const {
  return SupportIntersection(rockLoad, BoltSystem{TypedBolt(InterBoltControls), Typed(txtBoltNumberSecInter), 0},
                             Units(), Basis());
}

std::optional<SupportResult> ParametersDialog::StandingInIntersection(Single rockLoad) const {
  return SupportIntersection(rockLoad, CountedSystem{Typed(txtSupportCapSecInter), Typed(txtSupportNumberSecInter), 0});
}

void ParametersDialog::ShowIntersections() {
  const auto unitWeight = OrNothing([this] { return std::optional(Typed(txtUnitWeight)); });
  if (!unitWeight) return Clear(InterOutputs);
  // A bad unit weight clears the entries' results and leaves the intersections' as they are.
  if (!UnitWeightIsPlausible(*unitWeight, Units())) return Clear(EntryOutputs);
  const auto rockLoad = OrNothing([&] { return IntersectionRockLoad(TypedIntersectionRock(*unitWeight), Units()); });
  if (!rockLoad) return Clear(InterOutputs);
  using D = ParametersDialog;
  static constexpr std::array<SystemRule, SystemCount> Rules{&D::CableInIntersection, &D::TrussInIntersection,
                                                             &D::RoofBoltInIntersection, &D::StandingInIntersection};
  ShowSystems(InterOutputs, chkSecInter, Rules, *rockLoad, WholeNumber);
}

}  // namespace orby
