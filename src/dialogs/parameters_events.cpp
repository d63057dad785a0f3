// The event rules of the parameters dialog: what a click enables, shows and hides, and which results a change
// refreshes.
#include "base/number_text.h"
#include "dialogs/parameters_dialog.h"

namespace orby {
namespace {

// The table is visible only on its own tab.
void ShowBoltFrames(BoltControls& bolt) {
  const bool manual = Chosen<BoltSource>(bolt.Options) == BoltSource::Manual;
  bolt.TableFrame.SetVisible(!manual && bolt.Tabs.Tab() == bolt.Tab);
  bolt.ManualFrame.SetVisible(manual);
}

void ShowListOrText(ValueSource source, Combo& list, TextBox& text) {
  list.SetVisible(source == ValueSource::Standard);
  text.SetVisible(source == ValueSource::Typed);
}

void ApplyCableRule(CableControls& cable) {
  const bool byCapacity = Chosen<CapacityMode>(cable.CapMode) == CapacityMode::Given;
  const bool typed = Chosen<ValueSource>(cable.Capacity) == ValueSource::Typed;
  cable.Diam.SetEnabled(!byCapacity);
  cable.SpecificationFrame.SetEnabled(byCapacity);
  cable.Capacity.SetAllEnabled(byCapacity);
  cable.CapacityStd.SetVisible(byCapacity && !typed);
  cable.CapacityManual.SetVisible(byCapacity && typed);
}

void ApplyStandingRule(StandingControls& standing, ValueSource source) {
  const bool typed = source == ValueSource::Typed;
  standing.TypeStd.SetEnabled(!typed);
  standing.TypeManual.SetEnabled(typed);
  standing.Capacity.SetEnabled(typed);
  if (typed) {
    standing.TypeStd.BlankText();
  } else if (standing.RestoresText && standing.TypeStd.HasSelection()) {
    standing.TypeStd.SetListIndex(standing.TypeStd.ListIndex());
  }
}

void TakeCapacity(StandingControls& standing) {
  if (!standing.TypeStd.HasSelection()) return;
  const auto index = static_cast<std::size_t>(standing.TypeStd.ListIndex());
  standing.Capacity.SetText(NumberText(standing.TypeStd.Items()[index].data));
}

}  // namespace

// Some changes refresh less than one would expect, and users know that: the entry width refreshes neither the
// suggestions nor the intersections, and the lengths of secondary bolts and truss members refresh nothing.
struct ParametersDialog::RefreshTable {
  using D = ParametersDialog;
  static constexpr Refreshes Nothing{};
  static constexpr Refreshes Suggested{&D::ShowSuggested};
  static constexpr Refreshes Span{&D::ShowSuggested, &D::ShowIntersections};
  static constexpr Refreshes StabilityFactor{&D::ShowSuggested, &D::ShowActualPSUP};
  static constexpr Refreshes EntryWidth{&D::ShowEntries, &D::ShowActualPSUP};
  static constexpr Refreshes UnitWeight{&D::ShowEntries, &D::ShowIntersections};
  static constexpr Refreshes Actual{&D::ShowActualPSUP};
  static constexpr Refreshes Entries{&D::ShowEntries};
  static constexpr Refreshes Intersections{&D::ShowIntersections};
};

void ParametersDialog::Run(const Refreshes& refreshes) {
  if (HoldEvents) return;
  if (refreshes.first != nullptr) (this->*refreshes.first)();
  if (refreshes.second != nullptr) (this->*refreshes.second)();
}

void ParametersDialog::Tie(const Refreshes& refreshes, std::initializer_list<Event*> events) {
  for (Event* event : events) *event = [this, &refreshes] { Run(refreshes); };
}

void ParametersDialog::TieEvents() {
  TieFields();
  TieGeneral();
  TieBolt(PrimaryBoltControls, RefreshTable::Nothing);
  TieBolt(EntryBoltControls, RefreshTable::Entries);
  TieBolt(InterBoltControls, RefreshTable::Intersections);
  TieCable(EntryCableControls, RefreshTable::Entries);
  TieCable(InterCableControls, RefreshTable::Intersections);
  TieStanding(EntryStandingControls, RefreshTable::Entries);
  TieStanding(InterStandingControls, RefreshTable::Intersections);
  TieSystems(chkSecEntries, SSTab2, RefreshTable::Entries);
  TieSystems(chkSecInter, SSTab3, RefreshTable::Intersections);
}

void ParametersDialog::TieFields() {
  using R = RefreshTable;
  Tie(R::Suggested, {&txtCMRR.Change, &txtDepthofCover.Change});
  Tie(R::Span, {&txtActualSpanDiagonals.Change});
  Tie(R::StabilityFactor, {&txtStabilityFactor.Change});
  Tie(R::EntryWidth, {&txtEntryWidth.Change});
  Tie(R::UnitWeight, {&txtUnitWeight.Change});
  Tie(R::Actual, {&txtBoltLengthPrimary.Change, &txtBoltsperRowPrimary.Change, &txtRowSpacingPrimary.Change,
                  &PrimaryBoltControls.DiameterManual.Change, &PrimaryBoltControls.GradeManual.Change,
                  &PrimaryBoltControls.DiameterStd.Change, &PrimaryBoltControls.GradeStd.Change,
                  &PrimaryBoltControls.Table.Change});
  Tie(R::Entries, {&txtRockLoadHeight.Change,
                   &txtRockFallAngle.Change,
                   &txtCableLengthSecEntry.Change,
                   &EntryCableControls.CapacityManual.Change,
                   &txtCableBoltsPerRowSecEntry.Change,
                   &txtCableRowSpacingSecEntry.Change,
                   &txtTrussAngleSecEntry.Change,
                   &txtTrussCapacitySecEntry.Change,
                   &txtTrussSpacingSecEntry.Change,
                   &EntryBoltControls.DiameterManual.Change,
                   &EntryBoltControls.GradeManual.Change,
                   &txtBoltsperRowSecEntry.Change,
                   &txtRowSpacingSecEntry.Change,
                   &EntryStandingControls.Capacity.Change,
                   &txtNumberSupPerRowSecEntry.Change,
                   &txtSupportRowSpacingSecEntry.Change,
                   &EntryBoltControls.DiameterStd.Change,
                   &EntryBoltControls.GradeStd.Change,
                   &EntryCableControls.Diam.Change,
                   &EntryCableControls.CapacityStd.Change,
                   &EntryBoltControls.Table.Change});
  Tie(R::Intersections,
      {&txtRockLoadHeightInter.Change, &txtRockFallAngleEntry.Change, &txtRockFallAngleXcut.Change,
       &txtCableLengthSecInter.Change, &InterCableControls.CapacityManual.Change, &txtCableNumberSecInter.Change,
       &txtTrussAngleSecInter.Change, &txtTrussCapacitySecInter.Change, &txtTrussNumberSecInter.Change,
       &InterBoltControls.DiameterManual.Change, &InterBoltControls.GradeManual.Change, &txtBoltNumberSecInter.Change,
       &InterStandingControls.Capacity.Change, &txtSupportNumberSecInter.Change, &InterBoltControls.DiameterStd.Change,
       &InterBoltControls.GradeStd.Change, &InterCableControls.Diam.Change, &InterCableControls.CapacityStd.Change,
       &InterBoltControls.Table.Change});
}

void ParametersDialog::ApplyManualRating() {
  txtCMRR.SetEnabled(chkCMRRManual.Checked());
  cmdCMRR.SetEnabled(!chkCMRRManual.Checked());
}

void ParametersDialog::TieGeneral() {
  for (TextBox* box : {&txtRegion, &txtOption}) box->Change = [this] { RestoreEstimate(); };
  chkCMRRManual.Click = [this] { ApplyManualRating(); };
  chkPrimSupport.Click = [this] { SSTab1.SetTabEnabled(1, chkPrimSupport.Checked()); };
  chkSecondSupEntries.Click = [this] { SSTab1.SetTabEnabled(2, chkSecondSupEntries.Checked()); };
  chkSecondSupInter.Click = [this] { SSTab1.SetTabEnabled(3, chkSecondSupInter.Checked()); };
}

void ParametersDialog::TieBolt(BoltControls& bolt, const Refreshes& refreshes) {
  bolt.Options.Click = [&bolt](Integer) { ShowBoltFrames(bolt); };
  bolt.Tabs.Click = [&bolt] { ShowBoltFrames(bolt); };
  bolt.DiameterMode.Click = [this, &bolt, &refreshes](Integer mode) {
    ShowListOrText(ValueSource{mode}, bolt.DiameterStd, bolt.DiameterManual);
    Run(refreshes);
  };
  bolt.GradeMode.Click = [this, &bolt, &refreshes](Integer mode) {
    ShowListOrText(ValueSource{mode}, bolt.GradeStd, bolt.GradeManual);
    Run(refreshes);
  };
}

void ParametersDialog::TieCable(CableControls& cable, const Refreshes& refreshes) {
  for (OptionArray* options : {&cable.CapMode, &cable.Capacity}) {
    options->Click = [this, &cable, &refreshes](Integer) {
      ApplyCableRule(cable);
      Run(refreshes);
    };
  }
}

void ParametersDialog::TieStanding(StandingControls& standing, const Refreshes& refreshes) {
  standing.TypeMode.Click = [this, &standing, &refreshes](Integer mode) {
    ApplyStandingRule(standing, ValueSource{mode});
    Run(refreshes);
  };
  standing.TypeStd.Change = [&standing] { TakeCapacity(standing); };
}

void ParametersDialog::TieSystems(std::array<CheckBox, SystemCount>& boxes, TabSet& tabs, const Refreshes& refreshes) {
  int tab = 0;
  for (CheckBox& box : boxes) {
    box.Click = [this, &box, &tabs, &refreshes, tab] {
      tabs.SetTabEnabled(tab, box.Checked());
      Run(refreshes);
    };
    ++tab;
  }
}

}  // namespace orby
