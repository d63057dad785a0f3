// The checks behind OK and Results of the parameters dialog: twelve sections of rules, each a table.
// Within a section the first fault ends it; every section runs, so one press can tell up to twelve faults.
#include <cmath>
#include <span>

#include "base/attempt.h"
#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "dialogs/fault_texts.h"
#include "dialogs/parameters_dialog.h"

namespace orby {
namespace {

using D = ParametersDialog;
using Box = TextBox ParametersControls::*;
using List = Combo ParametersControls::*;
using Options = OptionArray ParametersControls::*;

struct InnerTab {
  TabSet ParametersControls::*tabs = nullptr;
  int tab = 0;
};

struct Rule {
  bool (*fails)(const D&);
  std::string_view message;
  Control& (*focus)(D&);
  std::string (*suffix)(const D&) = nullptr;  // appended to the message
  InnerTab inner = {};                        // instead of the section's
};

struct Section {
  bool (*applies)(const D&);
  int outerTab;
  InnerTab inner;
  std::span<const Rule> rules;
};

// ---- limits --------------------------------------------------------------------------------------------------------

constexpr double MaxBoltLength[] = {10, 3.3};  // ft, m
constexpr double MaxBoltDiameter[] = {1, 25};  // in, mm

double LongestBolt(const D& d) { return MaxBoltLength[d.Units() == Metric]; }
double ThickestBolt(const D& d) { return MaxBoltDiameter[d.Units() == Metric]; }

std::string LongestBoltText(const D& d) {
  return NumberText(LongestBolt(d)) + std::string(UnitLabel(unit_row::Length, d.Units()));
}
std::string ThickestBoltText(const D& d) { return NumberText(ThickestBolt(d)); }

// ---- messages that several sections share --------------------------------------------------------------------------

constexpr std::string_view BadBoltLength = "Invalid actual bolt length. Maximum length allowed is ";
constexpr std::string_view NoDiameterSelected = "Roof bolt diameter NOT selected from available options";
constexpr std::string_view NoGradeSelected = "Roof bolt grade NOT selected from available options";
constexpr std::string_view BadSecondaryDiameter = "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm";
constexpr std::string_view BadSecondaryGrade = "Invalid roof bolt grade";
constexpr std::string_view BadHeight = "Invalid rock load height";
constexpr std::string_view BadCableLength = "Invalid cable length";
constexpr std::string_view BadCableCapacity = "Invalid cable capacity";
constexpr std::string_view NoCableDiameter = "Cable Diameter not Selected from Available Options";
constexpr std::string_view NoCableCapacity = "Cable Capacity not Selected from Available Options";
constexpr std::string_view BadTrussLength = "Invalid truss member length";
constexpr std::string_view BadTrussAngle = "Invalid truss member angle";
constexpr std::string_view BadTrussCapacity = "Invalid truss capacity";
constexpr std::string_view BadTrussSpacing = "Invalid truss spacing";
constexpr std::string_view BadStandingType = "Invalid standing support specification";
constexpr std::string_view BadStandingCapacity = "Invalid standing support capacity";

// ---- tests ---------------------------------------------------------------------------------------------------------

template <auto member>
Control& At(D& d) {
  return d.*member;
}

// Throws RuntimeError 6 when no Single holds the number: the rule that asks for it fails then.
template <Box box>
double Value(const D& d) {
  const auto value = FittingNumber((d.*box).Text());
  if (!value) throw RuntimeError(error_number::Overflow);
  return *value;
}

template <Options options>
bool Is(const D& d, Integer index) {
  return GetArrayIndex(d.*options) == index;
}

template <Box box>
bool NotAboveZero(const D& d) {
  return Value<box>(d) <= 0;
}

template <Box box, int highest>
bool OutsideZeroTo(const D& d) {
  return Value<box>(d) < 0 || Value<box>(d) > highest;
}

template <Box box>
bool LengthOutOfRange(const D& d) {
  return Value<box>(d) <= 0 || Value<box>(d) > LongestBolt(d);
}

// From a list that is to be chosen from, nothing is.
template <Options source, Options mode, List list>
bool NothingSelected(const D& d) {
  return Is<source>(d, 1) && Is<mode>(d, 0) && !(d.*list).HasSelection();
}

template <Options mode, List list>
bool NothingSelected(const D& d) {
  return Is<mode>(d, 0) && !(d.*list).HasSelection();
}

// A blanked list keeps its selection, but shows nothing to go by.
template <Options mode, List list>
bool NothingShown(const D& d) {
  return NothingSelected<mode, list>(d) || (Is<mode>(d, 0) && (d.*list).Text().empty());
}

// The upper limit counts with the table as source too: a stale typed diameter stops a design from the table.
template <Options source, Options mode, Box typed>
bool BadTypedDiameter(const D& d) {
  if (!Is<mode>(d, 1)) return false;
  return (Is<source>(d, 1) && Value<typed>(d) <= 0) || Value<typed>(d) > ThickestBolt(d);
}

template <Options source, Options mode, Box typed>
bool BadTypedGrade(const D& d) {
  return Is<mode>(d, 1) && Is<source>(d, 1) && Value<typed>(d) <= 0;
}

// ---- rules ---------------------------------------------------------------------------------------------------------

template <Box box>
constexpr Rule AboveZero(std::string_view message) {
  return {NotAboveZero<box>, message, At<box>};
}

template <Box box>
constexpr Rule BoltLength() {
  return {LengthOutOfRange<box>, BadBoltLength, At<box>, LongestBoltText};
}

constexpr Rule GeneralRules[] = {
    {[](const D& d) { return Value<&D::txtCMRR>(d) <= 0 || Value<&D::txtCMRR>(d) >= 100; }, "Invalid CMRR",
     At<&D::txtCMRR>},
    {[](const D& d) {
       return d.Units() == English && (Value<&D::txtUnitWeight>(d) < 100 || Value<&D::txtUnitWeight>(d) > 200);
     },
     "Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf", At<&D::txtUnitWeight>},
    {[](const D& d) {
       return d.Units() == Metric && (Value<&D::txtUnitWeight>(d) < 15 || Value<&D::txtUnitWeight>(d) > 30);
     },
     "Invalid Unit Weight for Rock. Valid range 15-30 kN/m3", At<&D::txtUnitWeight>},
    AboveZero<&D::txtDepthofCover>("Invalid depth of cover"),
    {[](const D& d) { return Value<&D::txtEntryWidth>(d) * std::sqrt(2.0) >= Value<&D::txtActualSpanDiagonals>(d); },
     "Invalid sum of diagonals at intersection. Should be greater than 1.4 x Entry Width",
     At<&D::txtActualSpanDiagonals>},
    {[](const D& d) {
       return d.Units() == English &&
              (Value<&D::txtActualSpanDiagonals>(d) < 40 || Value<&D::txtActualSpanDiagonals>(d) > 80);
     },
     "Invalid sum of diagonals at intersection. Should be between 40 and 80 feet", At<&D::txtActualSpanDiagonals>},
    {[](const D& d) {
       return d.Units() == Metric &&
              (Value<&D::txtActualSpanDiagonals>(d) < 13 || Value<&D::txtActualSpanDiagonals>(d) > 27);
     },
     "Invalid sum of diagonals at intersection. Should be between 13 and 27 m", At<&D::txtActualSpanDiagonals>},
    {[](const D& d) { return d.Units() == English && Value<&D::txtEntryWidth>(d) <= 10; },
     "Invalid entry width. Should be greater than 10 ft", At<&D::txtEntryWidth>},
    // The limit is in metres although the words say feet.
    {[](const D& d) { return d.Units() == Metric && Value<&D::txtEntryWidth>(d) <= 3.3; },
     "Invalid entry width. Should be greater than 3.3 ft", At<&D::txtEntryWidth>},
};

constexpr Rule PrimaryRules[] = {
    AboveZero<&D::txtStabilityFactor>("Invalid stability factor"),
    BoltLength<&D::txtBoltLengthPrimary>(),
    AboveZero<&D::txtBoltsperRowPrimary>(fault_text::BoltsPerRow),
    AboveZero<&D::txtRowSpacingPrimary>(fault_text::RowSpacing),
    {NothingSelected<&D::optBoltOptionsPrimary, &D::optBoltDiameterPrimary, &D::cmbBoltDiameterPrimary>,
     NoDiameterSelected, At<&D::cmbBoltDiameterPrimary>},
    {NothingSelected<&D::optBoltOptionsPrimary, &D::optBoltGradePrimary, &D::cmbBoltGradePrimary>, NoGradeSelected,
     At<&D::cmbBoltGradePrimary>},
    {BadTypedDiameter<&D::optBoltOptionsPrimary, &D::optBoltDiameterPrimary, &D::txtBoltDiameterPrimary>,
     "Invalid bolt diameter. Maximum value = ", At<&D::txtBoltDiameterPrimary>, ThickestBoltText},
    {BadTypedGrade<&D::optBoltOptionsPrimary, &D::optBoltGradePrimary, &D::txtBoltGradePrimary>, "Invalid bolt grade",
     At<&D::txtBoltGradePrimary>},
};

constexpr Rule EntryRockRules[] = {
    AboveZero<&D::txtRockLoadHeight>(BadHeight),
    {OutsideZeroTo<&D::txtRockFallAngle, 60>, "Invalid roof fall angle", At<&D::txtRockFallAngle>},
};

constexpr Rule EntryCableRules[] = {
    AboveZero<&D::txtCableLengthSecEntry>(BadCableLength),
    AboveZero<&D::txtCableCapacitySecEntry>(BadCableCapacity),
    AboveZero<&D::txtCableBoltsPerRowSecEntry>("Invalid cable bolts per row"),
    AboveZero<&D::txtCableRowSpacingSecEntry>("Invalid cable bolt row spacing"),
    {NothingSelected<&D::optCableCapModeSecEntry, &D::cmbCableDiamSecEntry>, NoCableDiameter,
     At<&D::cmbCableDiamSecEntry>},
    {NothingSelected<&D::optCableCapModeSecEntry, &D::optCableCapacitySecEntry, &D::cmbCableCapacitySecEntry>,
     NoCableCapacity, At<&D::cmbCableCapacitySecEntry>},
};

// A bad angle takes the user to the cable capacity of the entries, on another tab: in both truss sections.
constexpr Rule EntryTrussRules[] = {
    AboveZero<&D::txtTrussLengthMemberSecEntry>(BadTrussLength),
    {OutsideZeroTo<&D::txtTrussAngleSecEntry, 90>, BadTrussAngle, At<&D::txtCableCapacitySecEntry>},
    AboveZero<&D::txtTrussCapacitySecEntry>(BadTrussCapacity),
    AboveZero<&D::txtTrussSpacingSecEntry>(BadTrussSpacing),
};

constexpr Rule EntryBoltRules[] = {
    BoltLength<&D::txtBoltLengthSecEntry>(),
    AboveZero<&D::txtBoltsperRowSecEntry>("Invalid number of roof bolts per row"),
    AboveZero<&D::txtRowSpacingSecEntry>(fault_text::RowSpacing),
    {NothingSelected<&D::optBoltOptionsSecEntry, &D::optBoltDiameterSecEntry, &D::cmbBoltDiameterSecEntry>,
     NoDiameterSelected, At<&D::cmbBoltDiameterSecEntry>},
    {NothingSelected<&D::optBoltOptionsSecEntry, &D::optBoltGradeSecEntry, &D::cmbBoltGradeSecEntry>, NoGradeSelected,
     At<&D::cmbBoltGradeSecEntry>},
    {BadTypedDiameter<&D::optBoltOptionsSecEntry, &D::optBoltDiameterSecEntry, &D::txtBoltDiameterSecEntry>,
     BadSecondaryDiameter, At<&D::txtBoltDiameterSecEntry>},
    {BadTypedGrade<&D::optBoltOptionsSecEntry, &D::optBoltGradeSecEntry, &D::txtBoltGradeSecEntry>, BadSecondaryGrade,
     At<&D::txtBoltGradeSecEntry>},
};

constexpr Rule EntryStandingRules[] = {
    // A missing choice turns the intersections' inner tabs instead of the entries'.
    {NothingShown<&D::optSupportTypeSecEntry, &D::cmbSupportTypeSecEntry>,
     BadStandingType,
     At<&D::cmbSupportTypeSecEntry>,
     nullptr,
     {&D::SSTab3, 3}},
    {NotAboveZero<&D::txtSupportCapSecEntry>, BadStandingCapacity,
     [](D& d) -> Control& {
       if (Is<&D::optSupportTypeSecEntry>(d, 0)) return d.cmbSupportTypeSecEntry;
       return d.txtSupportCapSecEntry;
     }},
    AboveZero<&D::txtNumberSupPerRowSecEntry>("Invalid standing supports per row"),
    AboveZero<&D::txtSupportRowSpacingSecEntry>("Invalid standing support row spacing"),
};

constexpr Rule InterRockRules[] = {
    AboveZero<&D::txtRockLoadHeightInter>(BadHeight),
    {OutsideZeroTo<&D::txtRockFallAngleEntry, 60>, "Invalid roof fall angle for entry", At<&D::txtRockFallAngleEntry>},
    {OutsideZeroTo<&D::txtRockFallAngleXcut, 60>, "Invalid roof fall angle for crosscut", At<&D::txtRockFallAngleXcut>},
};

constexpr Rule InterCableRules[] = {
    AboveZero<&D::txtCableLengthSecInter>(BadCableLength),
    AboveZero<&D::txtCableCapacitySecInter>(BadCableCapacity),
    AboveZero<&D::txtCableNumberSecInter>("Invalid number of cable bolts"),
    // A missing choice turns the entries' inner tabs instead of the intersections'.
    {NothingSelected<&D::optCableCapModeSecInter, &D::cmbCableDiamSecInter>,
     NoCableDiameter,
     At<&D::cmbCableDiamSecInter>,
     nullptr,
     {&D::SSTab2, 0}},
    {NothingSelected<&D::optCableCapModeSecInter, &D::optCableCapacitySecInter, &D::cmbCableCapacitySecInter>,
     NoCableCapacity,
     At<&D::cmbCableCapacitySecInter>,
     nullptr,
     {&D::SSTab2, 0}},
};

constexpr Rule InterTrussRules[] = {
    AboveZero<&D::txtTrussLengthMemberSecInter>(BadTrussLength),
    {OutsideZeroTo<&D::txtTrussAngleSecInter, 90>, BadTrussAngle, At<&D::txtCableCapacitySecEntry>},
    AboveZero<&D::txtTrussCapacitySecInter>(BadTrussCapacity),
    AboveZero<&D::txtTrussNumberSecInter>(BadTrussSpacing),
};

constexpr Rule InterBoltRules[] = {
    BoltLength<&D::txtBoltLengthSecInter>(),
    AboveZero<&D::txtBoltNumberSecInter>("Invalid number of bolts in intersection"),
    {NothingSelected<&D::optBoltOptionsSecInter, &D::optBoltDiameterSecInter, &D::cmbBoltDiameterSecInter>,
     NoDiameterSelected, At<&D::cmbBoltDiameterSecInter>},
    // A missing grade takes the user to the list of diameters.
    {NothingSelected<&D::optBoltOptionsSecInter, &D::optBoltGradeSecInter, &D::cmbBoltGradeSecInter>, NoGradeSelected,
     At<&D::cmbBoltDiameterSecInter>},
    {BadTypedDiameter<&D::optBoltOptionsSecInter, &D::optBoltDiameterSecInter, &D::txtBoltDiameterSecInter>,
     BadSecondaryDiameter, At<&D::txtBoltDiameterSecInter>},
    {BadTypedGrade<&D::optBoltOptionsSecInter, &D::optBoltGradeSecInter, &D::txtBoltGradeSecInter>, BadSecondaryGrade,
     At<&D::txtBoltGradeSecInter>},
};

constexpr Rule InterStandingRules[] = {
    {NothingShown<&D::optSupportTypeSecInter, &D::cmbSupportTypeSecInter>, BadStandingType,
     At<&D::cmbSupportTypeSecInter>},
    {NotAboveZero<&D::txtSupportCapSecInter>, BadStandingCapacity,
     [](D& d) -> Control& {
       if (Is<&D::optSupportTypeSecInter>(d, 0)) return d.cmbSupportTypeSecInter;
       return d.txtSupportCapSecInter;
     }},
    AboveZero<&D::txtSupportNumberSecInter>("Invalid number of standing supports in intersection"),
};

// ---- sections ------------------------------------------------------------------------------------------------------

bool Entries(const D& d) { return d.chkSecondSupEntries.Checked(); }
bool Intersections(const D& d) { return d.chkSecondSupInter.Checked(); }

template <std::size_t system>
bool EntrySystem(const D& d) {
  return Entries(d) && d.chkSecEntries[system].Checked();
}

template <std::size_t system>
bool InterSystem(const D& d) {
  return Intersections(d) && d.chkSecInter[system].Checked();
}

constexpr Section Sections[] = {
    {[](const D&) { return true; }, 0, {}, GeneralRules},
    {[](const D& d) { return d.chkPrimSupport.Checked(); }, 1, {}, PrimaryRules},
    {Entries, 2, {}, EntryRockRules},
    {EntrySystem<0>, 2, {&D::SSTab2, 0}, EntryCableRules},
    {EntrySystem<1>, 2, {&D::SSTab2, 1}, EntryTrussRules},
    {EntrySystem<2>, 2, {&D::SSTab2, 2}, EntryBoltRules},
    {EntrySystem<3>, 2, {&D::SSTab2, 3}, EntryStandingRules},
    {Intersections, 3, {}, InterRockRules},
    {InterSystem<0>, 3, {&D::SSTab3, 0}, InterCableRules},
    {InterSystem<1>, 3, {&D::SSTab3, 1}, InterTrussRules},
    {InterSystem<2>, 3, {&D::SSTab3, 2}, InterBoltRules},
    {InterSystem<3>, 3, {&D::SSTab3, 3}, InterStandingRules},
};

// What cannot be judged, because a number is too large for any limit, fails.
bool Fails(const Rule& rule, const D& dialog) {
  return OrNothing([&] { return std::optional(rule.fails(dialog)); }).value_or(true);
}

void Tell(Program& program, D& dialog, const Section& section, const Rule& rule) {
  std::string message(rule.message);
  if (rule.suffix != nullptr) message += rule.suffix(dialog);
  ShowMessage(program, message, box_style::Critical, program.windows.titles.RangeErrorTitle);
  dialog.SSTab1.SetTab(section.outerTab);
  const InnerTab& inner = rule.inner.tabs != nullptr ? rule.inner : section.inner;
  if (inner.tabs != nullptr) (dialog.*inner.tabs).SetTab(inner.tab);
  dialog.RequestFocus(rule.focus(dialog));
}

}  // namespace

bool ParametersDialog::ValidateParameters() {
  bool passed = true;
  for (const Section& section : Sections) {
    if (!section.applies(*this)) continue;
    for (const Rule& rule : section.rules) {
      if (!Fails(rule, *this)) continue;
      Tell(program_, *this, section, rule);
      passed = false;
      break;
    }
  }
  return passed;
}

}  // namespace orby
