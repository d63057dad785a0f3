#include "engine/analysis.h"

#include "base/arithmetic.h"

namespace orby {
namespace {

Single Needed(Single value) {
  if (IsUnfit(value)) throw RuntimeError(error_number::Overflow);
  return value;
}

GradeBasis BasisOf(const RoofSupport& design, const Catalogs& catalogs) { return {design.Basis, catalogs}; }

// ---- live: the numbers as typed, in the design's units -------------------------------------------------------------

SiteInputs TypedSite(const RoofSupport& design) {
  return {.StabilityFactor = Needed(design.Primary.StabilityFactor),
          .CMRR = Needed(design.Place.CMRR),
          .Depth = Needed(design.Place.DepthofCover),
          .Span = Needed(design.Place.ActualSpanDiagonals),
          .Width = Needed(design.Place.EntryWidth)};
}

Bolt TypedBolt(const BoltSelection& set) {
  const Bolt bolt = SelectedBolt(set);
  return {.Diameter = Needed(bolt.Diameter), .Grade = Needed(bolt.Grade)};
}

PatternInputs TypedPattern(const RoofSupport& design) {
  const PrimarySupport& primary = design.Primary;
  const Bolt bolt = TypedBolt(primary);
  return {.Length = Needed(primary.Length),
          .BoltsPerRow = Needed(primary.BoltsperRow),
          .Diameter = bolt.Diameter,
          .Grade = bolt.Grade,
          .RowSpacing = Needed(primary.RowSpacing),
          .EntryWidth = Needed(design.Place.EntryWidth)};
}

RockInputs EntryRock(const RoofSupport& design) {
  RockInputs rock;
  rock.UnitWeight = Needed(design.Place.UnitWeight);
  rock.Height = Needed(design.Entries.RockLoadHeight);
  rock.EntryAngle = Needed(design.Entries.RockFallAngle);
  rock.Width = Needed(design.Place.EntryWidth);
  return rock;
}

RockInputs IntersectionRock(const RoofSupport& design) {
  const SecondarySupport& support = design.Intersections;
  return {.UnitWeight = Needed(design.Place.UnitWeight),
          .Height = Needed(support.RockLoadHeight),
          .EntryAngle = Needed(support.RockFallAngle),
          .CrosscutAngle = Needed(support.RockFallAngleXcut),
          .Width = Needed(design.Place.EntryWidth),
          .Span = Needed(design.Place.ActualSpanDiagonals)};
}

// Returns the capacity and stability factor of a support system under a rock load, or nothing when it lacks an input it
// needs.
using SystemRule = std::optional<SupportResult> (*)(const RoofSupport& design, const Catalogs& catalogs,
                                                    Single rockLoad);
using SystemRules = std::array<SystemRule, SystemCount>;

std::optional<SupportResult> CablesInEntry(const RoofSupport& design, const Catalogs& catalogs, Single rockLoad) {
  const CableSelection& cable = design.Entries.Cable;
  if (Needed(cable.RowSpacing) == 0) return std::nullopt;
  const Single capacity = CapacityOf(cable, design.Units, catalogs);
  return SupportEntry(
      rockLoad, CountedSystem{.Capacity = capacity, .Count = Needed(cable.BoltsPerRow), .Spacing = cable.RowSpacing});
}

// Trusses are also skipped when the row spacing of the standing supports is 0. The dialog then keeps their last
// figures.
std::optional<SupportResult> TrussesInEntry(const RoofSupport& design, const Catalogs&, Single rockLoad) {
  const TrussSelection& truss = design.Entries.Truss;
  if (Needed(design.Entries.Standing.RowSpacing) == 0) return std::nullopt;
  return SupportEntry(
      rockLoad,
      TrussSystem{.Capacity = Needed(truss.Capacity), .Angle = Needed(truss.Angle), .Spacing = Needed(truss.Spacing)});
}

std::optional<SupportResult> BoltsInEntry(const RoofSupport& design, const Catalogs& catalogs, Single rockLoad) {
  const SecondaryBolts& bolts = design.Entries.Bolt;
  if (Needed(bolts.BoltsperRow) == 0) return std::nullopt;
  return SupportEntry(
      rockLoad, BoltSystem{.Bolts = TypedBolt(bolts), .Count = bolts.BoltsperRow, .Spacing = Needed(bolts.RowSpacing)},
      design.Units, BasisOf(design, catalogs));
}

std::optional<SupportResult> StandingInEntry(const RoofSupport& design, const Catalogs&, Single rockLoad) {
  const StandingSelection& standing = design.Entries.Standing;
  if (Needed(standing.RowSpacing) == 0) return std::nullopt;
  return SupportEntry(rockLoad, CountedSystem{.Capacity = Needed(standing.Capacity),
                                              .Count = Needed(standing.NumberPerRow),
                                              .Spacing = standing.RowSpacing});
}

std::optional<SupportResult> CablesInIntersection(const RoofSupport& design, const Catalogs& catalogs,
                                                  Single rockLoad) {
  const CableSelection& cable = design.Intersections.Cable;
  const Single capacity = CapacityOf(cable, design.Units, catalogs);
  return SupportIntersection(rockLoad, CountedSystem{.Capacity = capacity, .Count = Needed(cable.Number)});
}

std::optional<SupportResult> TrussesInIntersection(const RoofSupport& design, const Catalogs&, Single rockLoad) {
  const TrussSelection& truss = design.Intersections.Truss;
  return SupportIntersection(
      rockLoad,
      TrussSystem{.Capacity = Needed(truss.Capacity), .Angle = Needed(truss.Angle), .Count = Needed(truss.Number)});
}

std::optional<SupportResult> BoltsInIntersection(const RoofSupport& design, const Catalogs& catalogs, Single rockLoad) {
  const SecondaryBolts& bolts = design.Intersections.Bolt;
  return SupportIntersection(rockLoad, BoltSystem{.Bolts = TypedBolt(bolts), .Count = Needed(bolts.Number)},
                             design.Units, BasisOf(design, catalogs));
}

std::optional<SupportResult> StandingInIntersection(const RoofSupport& design, const Catalogs&, Single rockLoad) {
  const StandingSelection& standing = design.Intersections.Standing;
  return SupportIntersection(rockLoad,
                             CountedSystem{.Capacity = Needed(standing.Capacity), .Count = Needed(standing.Number)});
}

constexpr SystemRules EntryRules{CablesInEntry, TrussesInEntry, BoltsInEntry, StandingInEntry};
constexpr SystemRules IntersectionRules{CablesInIntersection, TrussesInIntersection, BoltsInIntersection,
                                        StandingInIntersection};

// Computes the figures of one system, or leaves those of a system that is not in use or has no load.
void RefreshSystem(SystemFigures& figures, const RoofSupport& design, const Catalogs& catalogs,
                   const SecondarySupport& support, const SystemRules& rules, std::optional<Single> rockLoad,
                   std::size_t system) {
  if (!rockLoad || support.Systems()[system]->Use != 1) return;
  figures[system] = Attempt([&] { return rules[system](design, catalogs, *rockLoad); });
}

void RefreshSystems(SupportFigures& figures, const RoofSupport& design, const Catalogs& catalogs,
                    const SecondarySupport& support, const SystemRules& rules) {
  const std::optional<Single> rockLoad = figures.RockLoad.ValueOr({});
  for (std::size_t i = 0; i < SystemCount; ++i) {
    RefreshSystem(figures.Systems, design, catalogs, support, rules, rockLoad, i);
  }
}

// ---- the report: English working numbers ---------------------------------------------------------------------------

WorkingBolt ReportedBolt(const BoltSelection& set, UnitSystem units) {
  const Bolt bolt = SelectedBolt(set);
  if (units != Metric) return {Inches(bolt.Diameter), Ksi(bolt.Grade)};
  return {Inches(ToSingle(bolt.Diameter / MillimetresPerInch)), Ksi(ToSingle(bolt.Grade / MPaPerKsi))};
}

// Returns the capacity of one cable in tons. Looks it up in the catalog in the units of the design.
Single WorkingCapacity(const CableSelection& cable, UnitSystem units, const Catalogs& catalogs) {
  const Single capacity = CapacityOf(cable, units, catalogs);
  return units == Metric ? ToSingle(capacity / KilonewtonsPerTon) : capacity;
}

// Converts the whole design, also the parts that are not analysed. Throws RuntimeError 6 when a number is outside the
// range of a Single.
WorkingNumbers WorkingNumbersOf(const RoofSupport& design, const Catalogs& catalogs) {
  constexpr double KipsPerTon = 2;
  const auto feet = [&](Single length) { return InFeet(length, design.Units); };
  const Feet width = feet(design.Place.EntryWidth);
  const auto pattern = [&](const BoltSelection& set) {
    const WorkingBolt bolt = ReportedBolt(set, design.Units);
    return BoltPattern{.Length = feet(set.Length),
                       .BoltsPerRow = set.BoltsperRow,
                       .Diameter = bolt.Diameter,
                       .Grade = bolt.Grade,
                       .RowSpacing = feet(set.RowSpacing),
                       .EntryWidth = width};
  };
  WorkingNumbers working;
  working.Depth = feet(design.Place.DepthofCover);
  working.Span = feet(design.Place.ActualSpanDiagonals);
  working.Primary = pattern(design.Primary);
  working.EntryBolts = pattern(design.Entries.Bolt);
  working.IntersectionBolt = ReportedBolt(design.Intersections.Bolt, design.Units);
  const CableSelection& cable = design.Entries.Cable;
  working.EntryCables = {.Length = feet(cable.Length),
                         .UnitsPerRow = cable.BoltsPerRow,
                         .Capacity = ToSingle(KipsPerTon * WorkingCapacity(cable, design.Units, catalogs)),
                         .RowSpacing = feet(cable.RowSpacing),
                         .EntryWidth = cable.Use == 1 ? width : Feet()};
  return working;
}

// Attempt catches everything that WorkingNumbersOf throws.
void RefreshWorking(Figures& figures, const RoofSupport& design, const Catalogs& catalogs) noexcept {
  // cppcheck-suppress throwInNoexceptFunction
  figures.Working = Attempt([&] { return WorkingNumbersOf(design, catalogs); });
}

// Returns the capacity of one bolt for the report, in kN or tons. In English designs this is the yield capacity,
// whatever the label says.
Single ReportedCapacity(const BoltPattern& bolts, const RoofSupport& design, const Catalogs& catalogs) {
  if (design.Units == Metric) return CapacityKN(bolts.Grade, bolts.Diameter);
  return (design.Basis == StrengthBasis::Yield ? CapacityFromGrade(bolts.Grade, bolts.Diameter)
                                               : YieldCapacity(bolts.Grade, bolts.Diameter, catalogs)) /
         2;
}

PrimaryFigures PrimaryOf(const RoofSupport& design, const Catalogs& catalogs, const BoltPattern& bolts,
                         const SuggestedFigures& suggested) {
  const GradeBasis basis = BasisOf(design, catalogs);
  PrimaryFigures figures;
  figures.ActualPSUP = ActualPSUP(bolts, basis);
  figures.RDI = BoltRDI(bolts, basis);
  figures.PRSUP = BoltPRSUP(bolts, basis);
  figures.Capacity = ReportedCapacity(bolts, design, catalogs);
  figures.Length = JudgeLength({.Actual = design.Primary.Length, .Suggested = suggested.SugLength}, design.Units);
  figures.Psup = JudgePsup({.Actual = figures.ActualPSUP, .Suggested = suggested.SugPSUP});
  figures.FailsASTM = FailsASTM({.Diameter = bolts.Diameter, .Grade = bolts.Grade}, design.Units);
  return figures;
}

// Returns the figures that entries and intersections share. `highest` is the height of rock that the fall angles allow.
Reinforcement ReinforcementUnder(Single highest, const SecondarySupport& support, const RoofSupport& design) {
  const Anchorage anchorage = AnchorageIn(design.Units);
  Reinforcement figures;
  figures.HighestRock = highest;
  figures.HeightIsAdjusted = support.RockLoadHeight > highest;
  figures.CablesAreShort = IsTooShort(support.Cable.Length, anchorage.Cables, support.RockLoadHeight);
  // The warning for intersections also uses the bolt length and the rock of the entries.
  figures.BoltsAreShort = IsTooShort(design.Entries.Bolt.Length, anchorage.Bolts, design.Entries.RockLoadHeight);
  return figures;
}

Reinforcement EntryReinforcementOf(const RoofSupport& design, const Catalogs& catalogs, const WorkingNumbers& working) {
  const SecondarySupport& support = design.Entries;
  const Single highest = MaxRockHeightEntry(design.Place.EntryWidth, FallAngle(support.RockFallAngle));
  Reinforcement figures = ReinforcementUnder(highest, support, design);
  if (support.Cable.Use == 1) {
    // The PRSUP uses the length of the primary bolts.
    SupportPattern asLongAsBolts = working.EntryCables;
    asLongAsBolts.Length = working.Primary.Length;
    figures.CableSRDI = CableSRDI(working.EntryCables);
    figures.CablePRSUP = CablePRSUP(asLongAsBolts);
  }
  if (support.Bolt.Use == 1) {
    const BoltPattern& bolts = working.EntryBolts;
    // The SRDI uses the width of the cable pattern. Without cable bolts this is a division by zero.
    figures.BoltSRDI = BoltSRDI({.Length = bolts.Length,
                                 .UnitsPerRow = bolts.BoltsPerRow,
                                 .Capacity = UltimateCapacity(bolts.Grade, bolts.Diameter, catalogs) / 2,
                                 .RowSpacing = bolts.RowSpacing,
                                 .EntryWidth = working.EntryCables.EntryWidth});
    figures.BoltPRSUP = BoltPRSUP(bolts, BasisOf(design, catalogs));
    figures.BoltsFailASTM = FailsASTM({.Diameter = bolts.Diameter, .Grade = bolts.Grade}, design.Units);
  }
  return figures;
}

Reinforcement IntersectionReinforcementOf(const RoofSupport& design, const WorkingNumbers& working) {
  const SecondarySupport& support = design.Intersections;
  const Single highest = MaxRockHeightIntersection({.Height = support.RockLoadHeight,
                                                    .Span = design.Place.ActualSpanDiagonals,
                                                    .EntryAngle = FallAngle(support.RockFallAngle),
                                                    .CrosscutAngle = FallAngle(support.RockFallAngleXcut)});
  Reinforcement figures = ReinforcementUnder(highest, support, design);
  if (support.Bolt.Use == 1) figures.BoltsFailASTM = FailsASTM(working.IntersectionBolt, design.Units);
  return figures;
}

}  // namespace

Single CapacityOf(const CableSelection& cable, UnitSystem units, const Catalogs& catalogs) {
  if (cable.CapMode == CapacityMode::ByDiameter) return CableCapacityFromDiameter(Needed(cable.Diam), units, catalogs);
  return Needed(cable.Capacity == ValueSource::Standard ? cable.CapacityStd : cable.CapacityManual);
}

Computed<std::optional<SuggestedFigures>> LiveSuggestion(const RoofSupport& design) noexcept {
  return Attempt([&] { return SuggestLive(TypedSite(design), design.Units); });
}

Computed<std::optional<Single>> LivePSUP(const RoofSupport& design, const Catalogs& catalogs) noexcept {
  return Attempt([&] { return ActualLive(TypedPattern(design), design.Units, BasisOf(design, catalogs)); });
}

SupportFigures EntryFigures(const RoofSupport& design, const Catalogs& catalogs) noexcept {
  SupportFigures figures;
  figures.RockLoad = Attempt([&] { return EntryRockLoad(EntryRock(design), design.Units); });
  RefreshSystems(figures, design, catalogs, design.Entries, EntryRules);
  return figures;
}

SupportFigures IntersectionFigures(const RoofSupport& design, const Catalogs& catalogs) noexcept {
  SupportFigures figures;
  figures.RockLoad = Attempt([&] { return IntersectionRockLoad(IntersectionRock(design), design.Units); });
  RefreshSystems(figures, design, catalogs, design.Intersections, IntersectionRules);
  return figures;
}

void RefreshPrimary(Figures& figures, const RoofSupport& design, const Catalogs& catalogs) noexcept {
  // cppcheck-suppress throwInNoexceptFunction
  RefreshWorking(figures, design, catalogs);
  figures.Primary =
      Attempt([&] { return PrimaryOf(design, catalogs, figures.Working.Value().Primary, figures.Suggested.Value()); });
}

void RefreshEntrySystem(Figures& figures, const RoofSupport& design, const Catalogs& catalogs,
                        std::size_t system) noexcept {
  // cppcheck-suppress throwInNoexceptFunction
  RefreshWorking(figures, design, catalogs);
  RefreshSystem(figures.Entries.Systems, design, catalogs, design.Entries, EntryRules,
                figures.Entries.RockLoad.ValueOr({}), system);
}

void RefreshIntersectionSystem(Figures& figures, const RoofSupport& design, const Catalogs& catalogs,
                               std::size_t system) noexcept {
  // cppcheck-suppress throwInNoexceptFunction
  RefreshWorking(figures, design, catalogs);
  RefreshSystem(figures.Intersections.Systems, design, catalogs, design.Intersections, IntersectionRules,
                figures.Intersections.RockLoad.ValueOr({}), system);
}

Figures Analyze(const RoofSupport& design, const Catalogs& catalogs) noexcept {
  Figures figures;
  figures.LivePSUP = LivePSUP(design, catalogs);
  figures.Entries = EntryFigures(design, catalogs);
  figures.Intersections = IntersectionFigures(design, catalogs);

  // Attempt catches everything that this throws.
  // cppcheck-suppress throwInNoexceptFunction
  const auto site = Attempt([&] { return TypedSite(design); });
  figures.Suggested = Attempt([&] { return Suggest(site.Value(), design.Units); });
  // cppcheck-suppress throwInNoexceptFunction
  figures.LiveSuggestion = Attempt([&] {
    const bool isShown = IsPlausible(site.Value());
    return isShown ? std::optional(WithLiveWarnings(figures.Suggested.Value(), design.Units)) : std::nullopt;
  });
  RefreshPrimary(figures, design, catalogs);
  figures.EntryReinforcement = Attempt([&] { return EntryReinforcementOf(design, catalogs, figures.Working.Value()); });
  figures.IntersectionReinforcement =
      Attempt([&] { return IntersectionReinforcementOf(design, figures.Working.Value()); });
  return figures;
}

}  // namespace orby
