// The checks of OK and Results in the parameters dialog: twelve sections of rules, each a table. A section ends at its
// first fault. Every section runs, so one press can show up to twelve faults.
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
using Bolts = BoltControls ParametersControls::*;
using Cables = CableControls ParametersControls::*;
using Supports = StandingControls ParametersControls::*;

struct InnerTab {
  TabSet ParametersControls::*tabs = nullptr;
  int tab = 0;
};

struct Rule {
  bool (*fails)(const D&);
  std::string_view message;
  Control& (*focus)(D&);
  std::string (*suffix)(const D&) = nullptr;  // appended to the message
  InnerTab inner = {};                        // overrides the section's
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
  return NumberText(LongestBolt(d)) + std::string(UnitLabel(UnitSuffix::Length, d.Units()));
}
std::string ThickestBoltText(const D& d) { return NumberText(ThickestBolt(d)); }

// ---- messages that several sections share --------------------------------------------------------------------------

constexpr std::string_view BadBoltLength = "Invalid actual bolt length. Maximum length allowed is ";
constexpr std::string_view BadSecondaryGrade = "Invalid roof bolt grade";
constexpr std::string_view BadHeight = "Invalid rock load height";
constexpr std::string_view BadCableLength = "Invalid cable length";
constexpr std::string_view BadTrussLength = "Invalid truss member length";
constexpr std::string_view BadTrussCapacity = "Invalid truss capacity";
constexpr std::string_view BadTrussSpacing = "Invalid truss spacing";

// ---- tests ---------------------------------------------------------------------------------------------------------

template <auto control>
Control& At(D& d) {
  return d.*control;
}

template <auto set, auto control>
Control& At(D& d) {
  return (d.*set).*control;
}

// Throws RuntimeError 6 if no Single can hold the number. The rule then counts as failed.
double Value(const TextBox& box) {
  const auto value = FittingNumber(box.Text());
  if (!value) throw RuntimeError(error_number::Overflow);
  return *value;
}

template <auto box>
double Value(const D& d) {
  return Value(d.*box);
}

template <class Choice>
bool Is(const OptionArray& options, Choice choice) {
  return Chosen<Choice>(options) == choice;
}

// Returns true if the value comes from the list and nothing is selected there.
bool NothingSelected(const OptionArray& mode, const Combo& list) {
  return Is(mode, ValueSource::Standard) && !list.HasSelection();
}

// ---- rules ---------------------------------------------------------------------------------------------------------

template <auto box>
constexpr Rule AboveZero(std::string_view message) {
  return {[](const D& d) { return Value<box>(d) <= 0; }, message, At<box>};
}

template <auto box, int highest>
constexpr Rule ZeroTo(std::string_view message, Control& (*focus)(D&) = At<box>) {
  return {[](const D& d) { return Value<box>(d) < 0 || Value<box>(d) > highest; }, message, focus};
}

template <auto box, UnitSystem units, int least, int most>
constexpr Rule Between(std::string_view message) {
  return {[](const D& d) { return d.Units() == units && (Value<box>(d) < least || Value<box>(d) > most); }, message,
          At<box>};
}

template <auto box>
constexpr Rule BoltLength() {
  return {[](const D& d) { return Value<box>(d) <= 0 || Value<box>(d) > LongestBolt(d); }, BadBoltLength, At<box>,
          LongestBoltText};
}

template <Bolts set>
constexpr Rule DiameterSelected() {
  return {[](const D& d) {
            return Is((d.*set).Options, BoltSource::Manual) &&
                   NothingSelected((d.*set).DiameterMode, (d.*set).DiameterStd);
          },
          "Roof bolt diameter NOT selected from available options", At<set, &BoltControls::DiameterStd>};
}

template <Bolts set>
constexpr Rule GradeSelected(Control& (*focus)(D&) = At<set, &BoltControls::GradeStd>) {
  return {[](const D& d) {
            return Is((d.*set).Options, BoltSource::Manual) && NothingSelected((d.*set).GradeMode, (d.*set).GradeStd);
          },
          "Roof bolt grade NOT selected from available options", focus};
}

// The upper limit applies even if the bolt comes from the table: an old typed diameter then blocks the design.
template <Bolts set>
bool BadTypedDiameter(const D& d) {
  const BoltControls& bolt = d.*set;
  if (!Is(bolt.DiameterMode, ValueSource::Typed)) return false;
  return (Is(bolt.Options, BoltSource::Manual) && Value(bolt.DiameterManual) <= 0) ||
         Value(bolt.DiameterManual) > ThickestBolt(d);
}

template <Bolts set>
constexpr Rule TypedDiameter() {
  return {BadTypedDiameter<set>, "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm",
          At<set, &BoltControls::DiameterManual>};
}

template <Bolts set>
constexpr Rule TypedGrade(std::string_view message) {
  return {[](const D& d) {
            const BoltControls& bolt = d.*set;
            return Is(bolt.GradeMode, ValueSource::Typed) && Is(bolt.Options, BoltSource::Manual) &&
                   Value(bolt.GradeManual) <= 0;
          },
          message, At<set, &BoltControls::GradeManual>};
}

template <Cables set>
constexpr Rule CableCapacity() {
  return {[](const D& d) { return Value((d.*set).CapacityManual) <= 0; }, "Invalid cable capacity",
          At<set, &CableControls::CapacityManual>};
}

template <Cables set>
constexpr Rule CableDiameterSelected(InnerTab inner = {}) {
  return {[](const D& d) { return Is((d.*set).CapMode, CapacityMode::ByDiameter) && !(d.*set).Diam.HasSelection(); },
          "Cable Diameter not Selected from Available Options", At<set, &CableControls::Diam>, nullptr, inner};
}

template <Cables set>
constexpr Rule CableCapacitySelected(InnerTab inner = {}) {
  return {[](const D& d) {
            return Is((d.*set).CapMode, CapacityMode::Given) &&
                   NothingSelected((d.*set).Capacity, (d.*set).CapacityStd);
          },
          "Cable Capacity not Selected from Available Options", At<set, &CableControls::CapacityStd>, nullptr, inner};
}

// A list whose text was cleared keeps its selection, but shows no name to look up.
template <Supports set>
constexpr Rule SupportSelected(InnerTab inner = {}) {
  return {[](const D& d) {
            const StandingControls& standing = d.*set;
            return Is(standing.TypeMode, ValueSource::Standard) &&
                   (!standing.TypeStd.HasSelection() || standing.TypeStd.Text().empty());
          },
          "Invalid standing support specification", At<set, &StandingControls::TypeStd>, nullptr, inner};
}

template <Supports set>
constexpr Rule SupportCapacity() {
  return {[](const D& d) { return Value((d.*set).Capacity) <= 0; }, "Invalid standing support capacity",
          [](D& d) -> Control& {
            StandingControls& standing = d.*set;
            if (Is(standing.TypeMode, ValueSource::Standard)) return standing.TypeStd;
            return standing.Capacity;
          }};
}

constexpr Rule GeneralRules[] = {
    {[](const D& d) { return Value<&D::txtCMRR>(d) <= 0 || Value<&D::txtCMRR>(d) >= 100; }, "Invalid CMRR",
     At<&D::txtCMRR>},
    Between<&D::txtUnitWeight, English, 100, 200>("Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf"),
    Between<&D::txtUnitWeight, Metric, 15, 30>("Invalid Unit Weight for Rock. Valid range 15-30 kN/m3"),
    AboveZero<&D::txtDepthofCover>("Invalid depth of cover"),
    {[](const D& d) { return Value<&D::txtEntryWidth>(d) * std::sqrt(2.0) >= Value<&D::txtActualSpanDiagonals>(d); },
     "Invalid sum of diagonals at intersection. Should be greater than 1.4 x Entry Width",
     At<&D::txtActualSpanDiagonals>},
    Between<&D::txtActualSpanDiagonals, English, 40, 80>(
        "Invalid sum of diagonals at intersection. Should be between 40 and 80 feet"),
    Between<&D::txtActualSpanDiagonals, Metric, 13, 27>(
        "Invalid sum of diagonals at intersection. Should be between 13 and 27 m"),
    {[](const D& d) { return d.Units() == English && Value<&D::txtEntryWidth>(d) <= 10; },
     "Invalid entry width. Should be greater than 10 ft", At<&D::txtEntryWidth>},
    // The limit is in metres although the message says feet.
    {[](const D& d) { return d.Units() == Metric && Value<&D::txtEntryWidth>(d) <= 3.3; },
     "Invalid entry width. Should be greater than 3.3 ft", At<&D::txtEntryWidth>},
};

constexpr Rule PrimaryRules[] = {
    AboveZero<&D::txtStabilityFactor>("Invalid stability factor"),
    BoltLength<&D::txtBoltLengthPrimary>(),
    AboveZero<&D::txtBoltsperRowPrimary>(fault_text::BoltsPerRow),
    AboveZero<&D::txtRowSpacingPrimary>(fault_text::RowSpacing),
    DiameterSelected<&D::PrimaryBoltControls>(),
    GradeSelected<&D::PrimaryBoltControls>(),
    {BadTypedDiameter<&D::PrimaryBoltControls>, "Invalid bolt diameter. Maximum value = ",
     At<&D::PrimaryBoltControls, &BoltControls::DiameterManual>, ThickestBoltText},
    TypedGrade<&D::PrimaryBoltControls>("Invalid bolt grade"),
};

constexpr Rule EntryRockRules[] = {
    AboveZero<&D::txtRockLoadHeight>(BadHeight),
    ZeroTo<&D::txtRockFallAngle, 60>("Invalid roof fall angle"),
};

constexpr Rule EntryCableRules[] = {
    AboveZero<&D::txtCableLengthSecEntry>(BadCableLength),
    CableCapacity<&D::EntryCableControls>(),
    AboveZero<&D::txtCableBoltsPerRowSecEntry>("Invalid cable bolts per row"),
    AboveZero<&D::txtCableRowSpacingSecEntry>("Invalid cable bolt row spacing"),
    CableDiameterSelected<&D::EntryCableControls>(),
    CableCapacitySelected<&D::EntryCableControls>(),
};

// In both truss sections a bad angle moves the focus to the cable capacity of the entries, on another tab.
template <auto angle>
constexpr Rule TrussAngle() {
  return ZeroTo<angle, 90>("Invalid truss member angle", At<&D::EntryCableControls, &CableControls::CapacityManual>);
}

constexpr Rule EntryTrussRules[] = {
    AboveZero<&D::txtTrussLengthMemberSecEntry>(BadTrussLength),
    TrussAngle<&D::txtTrussAngleSecEntry>(),
    AboveZero<&D::txtTrussCapacitySecEntry>(BadTrussCapacity),
    AboveZero<&D::txtTrussSpacingSecEntry>(BadTrussSpacing),
};

constexpr Rule EntryBoltRules[] = {
    BoltLength<&D::txtBoltLengthSecEntry>(),
    AboveZero<&D::txtBoltsperRowSecEntry>("Invalid number of roof bolts per row"),
    AboveZero<&D::txtRowSpacingSecEntry>(fault_text::RowSpacing),
    DiameterSelected<&D::EntryBoltControls>(),
    GradeSelected<&D::EntryBoltControls>(),
    TypedDiameter<&D::EntryBoltControls>(),
    TypedGrade<&D::EntryBoltControls>(BadSecondaryGrade),
};

constexpr Rule EntryStandingRules[] = {
    // A missing choice switches the intersections' inner tabs instead of the entries'.
    SupportSelected<&D::EntryStandingControls>({&D::SSTab3, 3}),
    SupportCapacity<&D::EntryStandingControls>(),
    AboveZero<&D::txtNumberSupPerRowSecEntry>("Invalid standing supports per row"),
    AboveZero<&D::txtSupportRowSpacingSecEntry>("Invalid standing support row spacing"),
};

constexpr Rule InterRockRules[] = {
    AboveZero<&D::txtRockLoadHeightInter>(BadHeight),
    ZeroTo<&D::txtRockFallAngleEntry, 60>("Invalid roof fall angle for entry"),
    ZeroTo<&D::txtRockFallAngleXcut, 60>("Invalid roof fall angle for crosscut"),
};

constexpr Rule InterCableRules[] = {
    AboveZero<&D::txtCableLengthSecInter>(BadCableLength),
    CableCapacity<&D::InterCableControls>(),
    AboveZero<&D::txtCableNumberSecInter>("Invalid number of cable bolts"),
    // A missing choice switches the entries' inner tabs instead of the intersections'.
    CableDiameterSelected<&D::InterCableControls>({&D::SSTab2, 0}),
    CableCapacitySelected<&D::InterCableControls>({&D::SSTab2, 0}),
};

constexpr Rule InterTrussRules[] = {
    AboveZero<&D::txtTrussLengthMemberSecInter>(BadTrussLength),
    TrussAngle<&D::txtTrussAngleSecInter>(),
    AboveZero<&D::txtTrussCapacitySecInter>(BadTrussCapacity),
    AboveZero<&D::txtTrussNumberSecInter>(BadTrussSpacing),
};

constexpr Rule InterBoltRules[] = {
    BoltLength<&D::txtBoltLengthSecInter>(),
    AboveZero<&D::txtBoltNumberSecInter>("Invalid number of bolts in intersection"),
    DiameterSelected<&D::InterBoltControls>(),
    // A missing grade moves the focus to the list of diameters.
    GradeSelected<&D::InterBoltControls>(At<&D::InterBoltControls, &BoltControls::DiameterStd>),
    TypedDiameter<&D::InterBoltControls>(),
    TypedGrade<&D::InterBoltControls>(BadSecondaryGrade),
};

constexpr Rule InterStandingRules[] = {
    SupportSelected<&D::InterStandingControls>(),
    SupportCapacity<&D::InterStandingControls>(),
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

// A rule that cannot be evaluated, because a number is too large, counts as failed.
bool Fails(const Rule& rule, const D& dialog) {
  return OrNothing([&] { return std::optional(rule.fails(dialog)); }).value_or(true);
}

void ReportFault(Program& program, D& dialog, const Section& section, const Rule& rule) {
  std::string message(rule.message);
  if (rule.suffix != nullptr) message += rule.suffix(dialog);
  ShowMessage(program, message, BoxIcon::Critical, program.windows.titles.RangeErrorTitle);
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
      ReportFault(program_, *this, section, rule);
      passed = false;
      break;
    }
  }
  return passed;
}

}  // namespace orby
