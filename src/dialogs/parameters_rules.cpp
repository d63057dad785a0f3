#include "dialogs/parameters_rules.h"

#include <cmath>

#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "dialogs/fault_texts.h"

namespace orby {
namespace {

using D = ParametersDialog;
using Bolts = BoltControls ParametersControls::*;
using Cables = CableControls ParametersControls::*;
using Supports = StandingControls ParametersControls::*;

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

template <auto box>
TextBox& BoxAt(D& d) {
  return d.*box;
}

template <auto set, auto box>
TextBox& BoxAt(D& d) {
  return (d.*set).*box;
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

NumberLimits Positive(const D&) { return Above(0); }

template <int least, int most>
NumberLimits FromTo(const D&) {
  return Between(least, most);
}

template <auto box>
constexpr ParameterRule AboveZero(std::string_view message) {
  return {AcceptedNumbers{BoxAt<box>, Positive}, message, At<box>};
}

template <auto box, int highest>
constexpr ParameterRule ZeroTo(std::string_view message, Control& (*focus)(D&) = At<box>) {
  return {AcceptedNumbers{BoxAt<box>, FromTo<0, highest>}, message, focus};
}

template <auto box, UnitSystem units, int least, int most>
constexpr ParameterRule BetweenIn(std::string_view message) {
  return {AcceptedNumbers{BoxAt<box>, FromTo<least, most>, nullptr, units}, message, At<box>};
}

template <auto box>
constexpr ParameterRule BoltLength() {
  return {AcceptedNumbers{BoxAt<box>, [](const D& d) { return Above(0).And({.most = LongestBolt(d)}); }}, BadBoltLength,
          At<box>, LongestBoltText};
}

template <Bolts set>
constexpr ParameterRule DiameterSelected() {
  return {[](const D& d) {
            return Is((d.*set).Options, BoltSource::Manual) &&
                   NothingSelected((d.*set).DiameterMode, (d.*set).DiameterStd);
          },
          "Roof bolt diameter NOT selected from available options", At<set, &BoltControls::DiameterStd>};
}

template <Bolts set>
constexpr ParameterRule GradeSelected(Control& (*focus)(D&) = At<set, &BoltControls::GradeStd>) {
  return {[](const D& d) {
            return Is((d.*set).Options, BoltSource::Manual) && NothingSelected((d.*set).GradeMode, (d.*set).GradeStd);
          },
          "Roof bolt grade NOT selected from available options", focus};
}

// The upper limit applies even if the bolt comes from the table: an old typed diameter then blocks the design.
template <Bolts set>
constexpr AcceptedNumbers TypedDiameters() {
  return {BoxAt<set, &BoltControls::DiameterManual>,
          [](const D& d) {
            const NumberLimits thin{.most = ThickestBolt(d)};
            return Is((d.*set).Options, BoltSource::Manual) ? Above(0).And(thin) : thin;
          },
          [](const D& d) { return Is((d.*set).DiameterMode, ValueSource::Typed); }};
}

template <Bolts set>
constexpr ParameterRule TypedDiameter() {
  return {TypedDiameters<set>(), "Invalid roof bolt diameter. Valid Range: max 1 in or 25 mm",
          At<set, &BoltControls::DiameterManual>};
}

template <Bolts set>
constexpr ParameterRule TypedGrade(std::string_view message) {
  return {AcceptedNumbers{BoxAt<set, &BoltControls::GradeManual>, Positive,
                          [](const D& d) {
                            return Is((d.*set).GradeMode, ValueSource::Typed) &&
                                   Is((d.*set).Options, BoltSource::Manual);
                          }},
          message, At<set, &BoltControls::GradeManual>};
}

template <Cables set>
constexpr ParameterRule CableCapacity() {
  return {AcceptedNumbers{BoxAt<set, &CableControls::CapacityManual>, Positive}, "Invalid cable capacity",
          At<set, &CableControls::CapacityManual>};
}

template <Cables set>
constexpr ParameterRule CableDiameterSelected(InnerTab inner = {}) {
  return {[](const D& d) { return Is((d.*set).CapMode, CapacityMode::ByDiameter) && !(d.*set).Diam.HasSelection(); },
          "Cable Diameter not Selected from Available Options", At<set, &CableControls::Diam>, nullptr, inner};
}

template <Cables set>
constexpr ParameterRule CableCapacitySelected(InnerTab inner = {}) {
  return {[](const D& d) {
            return Is((d.*set).CapMode, CapacityMode::Given) &&
                   NothingSelected((d.*set).Capacity, (d.*set).CapacityStd);
          },
          "Cable Capacity not Selected from Available Options", At<set, &CableControls::CapacityStd>, nullptr, inner};
}

// A list whose text was cleared keeps its selection, but shows no name to look up.
template <Supports set>
constexpr ParameterRule SupportSelected(InnerTab inner = {}) {
  return {[](const D& d) {
            const StandingControls& standing = d.*set;
            return Is(standing.TypeMode, ValueSource::Standard) &&
                   (!standing.TypeStd.HasSelection() || standing.TypeStd.Text().empty());
          },
          "Invalid standing support specification", At<set, &StandingControls::TypeStd>, nullptr, inner};
}

template <Supports set>
constexpr ParameterRule SupportCapacity() {
  return {AcceptedNumbers{BoxAt<set, &StandingControls::Capacity>, Positive}, "Invalid standing support capacity",
          [](D& d) -> Control& {
            StandingControls& standing = d.*set;
            if (Is(standing.TypeMode, ValueSource::Standard)) return standing.TypeStd;
            return standing.Capacity;
          }};
}

constexpr ParameterRule GeneralRules[] = {
    {AcceptedNumbers{
         BoxAt<&D::txtCMRR>,
         [](const D&) { return NumberLimits{.least = 0, .most = 100, .withLeast = false, .withMost = false}; }},
     "Invalid CMRR", At<&D::txtCMRR>},
    BetweenIn<&D::txtUnitWeight, English, 100, 200>("Invalid Unit Weight for Rock. Valid range 100-200 lbs/cf"),
    BetweenIn<&D::txtUnitWeight, Metric, 15, 30>("Invalid Unit Weight for Rock. Valid range 15-30 kN/m3"),
    AboveZero<&D::txtDepthofCover>("Invalid depth of cover"),
    {AcceptedNumbers{BoxAt<&D::txtActualSpanDiagonals>,
                     [](const D& d) { return Above(CheckedValue(d.txtEntryWidth) * std::sqrt(2.0)); }},
     "Invalid sum of diagonals at intersection. Should be greater than 1.4 x Entry Width",
     At<&D::txtActualSpanDiagonals>},
    BetweenIn<&D::txtActualSpanDiagonals, English, 40, 80>(
        "Invalid sum of diagonals at intersection. Should be between 40 and 80 feet"),
    BetweenIn<&D::txtActualSpanDiagonals, Metric, 13, 27>(
        "Invalid sum of diagonals at intersection. Should be between 13 and 27 m"),
    {AcceptedNumbers{BoxAt<&D::txtEntryWidth>, [](const D&) { return Above(10); }, nullptr, English},
     "Invalid entry width. Should be greater than 10 ft", At<&D::txtEntryWidth>},
    // The limit is in metres although the message says feet.
    {AcceptedNumbers{BoxAt<&D::txtEntryWidth>, [](const D&) { return Above(3.3); }, nullptr, Metric},
     "Invalid entry width. Should be greater than 3.3 ft", At<&D::txtEntryWidth>},
};

constexpr ParameterRule PrimaryRules[] = {
    AboveZero<&D::txtStabilityFactor>("Invalid stability factor"),
    BoltLength<&D::txtBoltLengthPrimary>(),
    AboveZero<&D::txtBoltsperRowPrimary>(fault_text::BoltsPerRow),
    AboveZero<&D::txtRowSpacingPrimary>(fault_text::RowSpacing),
    DiameterSelected<&D::PrimaryBoltControls>(),
    GradeSelected<&D::PrimaryBoltControls>(),
    {TypedDiameters<&D::PrimaryBoltControls>(), "Invalid bolt diameter. Maximum value = ",
     At<&D::PrimaryBoltControls, &BoltControls::DiameterManual>, ThickestBoltText},
    TypedGrade<&D::PrimaryBoltControls>("Invalid bolt grade"),
};

constexpr ParameterRule EntryRockRules[] = {
    AboveZero<&D::txtRockLoadHeight>(BadHeight),
    ZeroTo<&D::txtRockFallAngle, 60>("Invalid roof fall angle"),
};

constexpr ParameterRule EntryCableRules[] = {
    AboveZero<&D::txtCableLengthSecEntry>(BadCableLength),
    CableCapacity<&D::EntryCableControls>(),
    AboveZero<&D::txtCableBoltsPerRowSecEntry>("Invalid cable bolts per row"),
    AboveZero<&D::txtCableRowSpacingSecEntry>("Invalid cable bolt row spacing"),
    CableDiameterSelected<&D::EntryCableControls>(),
    CableCapacitySelected<&D::EntryCableControls>(),
};

// In both truss sections a bad angle moves the focus to the cable capacity of the entries, on another tab.
template <auto angle>
constexpr ParameterRule TrussAngle() {
  return ZeroTo<angle, 90>("Invalid truss member angle", At<&D::EntryCableControls, &CableControls::CapacityManual>);
}

constexpr ParameterRule EntryTrussRules[] = {
    AboveZero<&D::txtTrussLengthMemberSecEntry>(BadTrussLength),
    TrussAngle<&D::txtTrussAngleSecEntry>(),
    AboveZero<&D::txtTrussCapacitySecEntry>(BadTrussCapacity),
    AboveZero<&D::txtTrussSpacingSecEntry>(BadTrussSpacing),
};

constexpr ParameterRule EntryBoltRules[] = {
    BoltLength<&D::txtBoltLengthSecEntry>(),
    AboveZero<&D::txtBoltsperRowSecEntry>("Invalid number of roof bolts per row"),
    AboveZero<&D::txtRowSpacingSecEntry>(fault_text::RowSpacing),
    DiameterSelected<&D::EntryBoltControls>(),
    GradeSelected<&D::EntryBoltControls>(),
    TypedDiameter<&D::EntryBoltControls>(),
    TypedGrade<&D::EntryBoltControls>(BadSecondaryGrade),
};

constexpr ParameterRule EntryStandingRules[] = {
    // A missing choice switches the intersections' inner tabs instead of the entries'.
    SupportSelected<&D::EntryStandingControls>({&D::SSTab3, 3}),
    SupportCapacity<&D::EntryStandingControls>(),
    AboveZero<&D::txtNumberSupPerRowSecEntry>("Invalid standing supports per row"),
    AboveZero<&D::txtSupportRowSpacingSecEntry>("Invalid standing support row spacing"),
};

constexpr ParameterRule InterRockRules[] = {
    AboveZero<&D::txtRockLoadHeightInter>(BadHeight),
    ZeroTo<&D::txtRockFallAngleEntry, 60>("Invalid roof fall angle for entry"),
    ZeroTo<&D::txtRockFallAngleXcut, 60>("Invalid roof fall angle for crosscut"),
};

constexpr ParameterRule InterCableRules[] = {
    AboveZero<&D::txtCableLengthSecInter>(BadCableLength),
    CableCapacity<&D::InterCableControls>(),
    AboveZero<&D::txtCableNumberSecInter>("Invalid number of cable bolts"),
    // A missing choice switches the entries' inner tabs instead of the intersections'.
    CableDiameterSelected<&D::InterCableControls>({&D::SSTab2, 0}),
    CableCapacitySelected<&D::InterCableControls>({&D::SSTab2, 0}),
};

constexpr ParameterRule InterTrussRules[] = {
    AboveZero<&D::txtTrussLengthMemberSecInter>(BadTrussLength),
    TrussAngle<&D::txtTrussAngleSecInter>(),
    AboveZero<&D::txtTrussCapacitySecInter>(BadTrussCapacity),
    AboveZero<&D::txtTrussNumberSecInter>(BadTrussSpacing),
};

constexpr ParameterRule InterBoltRules[] = {
    BoltLength<&D::txtBoltLengthSecInter>(),
    AboveZero<&D::txtBoltNumberSecInter>("Invalid number of bolts in intersection"),
    DiameterSelected<&D::InterBoltControls>(),
    // A missing grade moves the focus to the list of diameters.
    GradeSelected<&D::InterBoltControls>(At<&D::InterBoltControls, &BoltControls::DiameterStd>),
    TypedDiameter<&D::InterBoltControls>(),
    TypedGrade<&D::InterBoltControls>(BadSecondaryGrade),
};

constexpr ParameterRule InterStandingRules[] = {
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

constexpr ParameterSection Sections[] = {
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

}  // namespace

std::span<const ParameterSection> ParameterSections() { return Sections; }

double CheckedValue(const TextBox& box) {
  const auto value = FittingNumber(box.Text());
  if (!value) throw RuntimeError(error_number::Overflow);
  return *value;
}

}  // namespace orby
