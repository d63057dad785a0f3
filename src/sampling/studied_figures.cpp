#include "sampling/studied_figures.h"

#include <algorithm>
#include <array>
#include <limits>

namespace orby {
namespace {

constexpr FigureValue NoValue(int error) { return {std::numeric_limits<Single>::quiet_NaN(), error}; }

// Returns a member of a part of the analysis.
template <auto Part, auto Member>
FigureValue MemberOf(const Figures& figures) noexcept {
  const auto& part = figures.*Part;
  if (!part.IsThere()) return NoValue(part.Error());
  return {part.ValueOr({}).*Member, 0};
}

template <auto Support>
FigureValue RockLoadOf(const Figures& figures) noexcept {
  const auto& load = (figures.*Support).RockLoad;
  if (!load.IsThere()) return NoValue(load.Error());
  const std::optional<Single> value = load.ValueOr({});
  return value ? FigureValue{*value, 0} : NoValue(0);
}

template <auto Support, std::size_t System, auto Member>
FigureValue SystemOf(const Figures& figures) noexcept {
  // A system without a rock load fails as that does.
  const auto& load = (figures.*Support).RockLoad;
  if (!load.IsThere()) return NoValue(load.Error());
  const auto& result = (figures.*Support).Systems[System];
  if (!result.IsThere()) return NoValue(result.Error());
  const std::optional<SupportResult> value = result.ValueOr({});
  return value ? FigureValue{(*value).*Member, 0} : NoValue(0);
}

bool HasPrimary(const RoofSupport& design) { return design.Primary.Analysed == 1; }

template <auto Support>
bool HasSecondary(const RoofSupport& design) {
  return (design.*Support).Analysed == 1;
}

template <auto Support, std::size_t System>
bool HasSystem(const RoofSupport& design) {
  return (design.*Support).Analysed == 1 && (design.*Support).Systems()[System]->Use == 1;
}

template <auto Member>
constexpr StudiedFigure Suggested(std::string_view key, std::string_view name, UnitSuffix unit) {
  return {key, name, unit, MemberOf<&Figures::Suggested, Member>, HasPrimary};
}

template <auto Member>
constexpr StudiedFigure Primary(std::string_view key, std::string_view name, UnitSuffix unit) {
  return {key, name, unit, MemberOf<&Figures::Primary, Member>, HasPrimary};
}

template <std::size_t System, auto Member>
constexpr StudiedFigure Density(std::string_view key, std::string_view name) {
  return {key, name, UnitSuffix::None, MemberOf<&Figures::EntryReinforcement, Member>,
          HasSystem<&RoofSupport::Entries, System>};
}

constexpr auto InEntry = &Figures::Entries;
constexpr auto InCrossing = &Figures::Intersections;

// The systems by their places in SecondarySupport::Systems.
enum SystemPlace : std::size_t { CableSystem, TrussesSystem, BoltsSystem, StandingSystem };

template <auto Part, auto Support, std::size_t System>
constexpr StudiedFigure CapacityIn(std::string_view key, std::string_view name, UnitSuffix unit) {
  return {key, name, unit, SystemOf<Part, System, &SupportResult::Capacity>, HasSystem<Support, System>};
}

template <auto Part, auto Support, std::size_t System>
constexpr StudiedFigure FactorIn(std::string_view key, std::string_view name) {
  return {key, name, UnitSuffix::None, SystemOf<Part, System, &SupportResult::StabilityFactor>,
          HasSystem<Support, System>};
}

template <std::size_t System>
constexpr StudiedFigure EntryCapacity(std::string_view key, std::string_view name) {
  return CapacityIn<InEntry, &RoofSupport::Entries, System>(key, name, UnitSuffix::LineLoad);
}
template <std::size_t System>
constexpr StudiedFigure EntryFactor(std::string_view key, std::string_view name) {
  return FactorIn<InEntry, &RoofSupport::Entries, System>(key, name);
}
template <std::size_t System>
constexpr StudiedFigure CrossingCapacity(std::string_view key, std::string_view name) {
  return CapacityIn<InCrossing, &RoofSupport::Intersections, System>(key, name, UnitSuffix::Force);
}
template <std::size_t System>
constexpr StudiedFigure CrossingFactor(std::string_view key, std::string_view name) {
  return FactorIn<InCrossing, &RoofSupport::Intersections, System>(key, name);
}

constexpr std::array FigureTable{
    Suggested<&SuggestedFigures::SuggestedSpan>("suggested-span", "Suggested sum of diagonals", UnitSuffix::Length),
    Suggested<&SuggestedFigures::SugPSUP>("suggested-psup", "Suggested PSUP", UnitSuffix::None),
    Suggested<&SuggestedFigures::SugLength>("suggested-bolt-length", "Suggested bolt length", UnitSuffix::Length),
    Primary<&PrimaryFigures::ActualPSUP>("actual-psup", "Actual PSUP", UnitSuffix::None),
    Primary<&PrimaryFigures::RDI>("rdi", "RDI", UnitSuffix::None),
    Primary<&PrimaryFigures::PRSUP>("prsup", "PRSUP", UnitSuffix::None),
    Primary<&PrimaryFigures::Capacity>("bolt-capacity", "Capacity of a bolt", UnitSuffix::Force),
    StudiedFigure{"entry-rock-load", "Rock load of entries", UnitSuffix::LineLoad, RockLoadOf<InEntry>,
                  HasSecondary<&RoofSupport::Entries>},
    StudiedFigure{"entry-highest-rock", "Highest rock in entries", UnitSuffix::Length,
                  MemberOf<&Figures::EntryReinforcement, &Reinforcement::HighestRock>,
                  HasSecondary<&RoofSupport::Entries>},
    EntryCapacity<CableSystem>("entry-cable-capacity", "Capacity of cable bolts in entries"),
    EntryFactor<CableSystem>("entry-cable-factor", "Stability factor of cable bolts in entries"),
    Density<CableSystem, &Reinforcement::CableSRDI>("entry-cable-srdi", "SRDI of cable bolts in entries"),
    Density<CableSystem, &Reinforcement::CablePRSUP>("entry-cable-prsup", "PRSUP of cable bolts in entries"),
    EntryCapacity<TrussesSystem>("entry-truss-capacity", "Capacity of trusses in entries"),
    EntryFactor<TrussesSystem>("entry-truss-factor", "Stability factor of trusses in entries"),
    EntryCapacity<BoltsSystem>("entry-bolt-capacity", "Capacity of roof bolts in entries"),
    EntryFactor<BoltsSystem>("entry-bolt-factor", "Stability factor of roof bolts in entries"),
    Density<BoltsSystem, &Reinforcement::BoltSRDI>("entry-bolt-srdi", "SRDI of roof bolts in entries"),
    Density<BoltsSystem, &Reinforcement::BoltPRSUP>("entry-bolt-prsup", "PRSUP of roof bolts in entries"),
    EntryCapacity<StandingSystem>("entry-standing-capacity", "Capacity of standing supports in entries"),
    EntryFactor<StandingSystem>("entry-standing-factor", "Stability factor of standing supports in entries"),
    StudiedFigure{"intersection-rock-load", "Rock load of intersections", UnitSuffix::Force, RockLoadOf<InCrossing>,
                  HasSecondary<&RoofSupport::Intersections>},
    StudiedFigure{"intersection-highest-rock", "Highest rock in intersections", UnitSuffix::Length,
                  MemberOf<&Figures::IntersectionReinforcement, &Reinforcement::HighestRock>,
                  HasSecondary<&RoofSupport::Intersections>},
    CrossingCapacity<CableSystem>("intersection-cable-capacity", "Capacity of cable bolts in intersections"),
    CrossingFactor<CableSystem>("intersection-cable-factor", "Stability factor of cable bolts in intersections"),
    CrossingCapacity<TrussesSystem>("intersection-truss-capacity", "Capacity of trusses in intersections"),
    CrossingFactor<TrussesSystem>("intersection-truss-factor", "Stability factor of trusses in intersections"),
    CrossingCapacity<BoltsSystem>("intersection-bolt-capacity", "Capacity of roof bolts in intersections"),
    CrossingFactor<BoltsSystem>("intersection-bolt-factor", "Stability factor of roof bolts in intersections"),
    CrossingCapacity<StandingSystem>("intersection-standing-capacity",
                                     "Capacity of standing supports in intersections"),
    CrossingFactor<StandingSystem>("intersection-standing-factor",
                                   "Stability factor of standing supports in intersections"),
};

}  // namespace

std::span<const StudiedFigure> StudiedFigures() { return FigureTable; }

std::vector<const StudiedFigure*> FiguresInUse(const RoofSupport& design) {
  std::vector<const StudiedFigure*> figures;
  for (const StudiedFigure& figure : FigureTable) {
    if (figure.IsUsed(design)) figures.push_back(&figure);
  }
  return figures;
}

const StudiedFigure* FigureWithKey(std::string_view key) {
  const auto* found = std::ranges::find(FigureTable, key, &StudiedFigure::Key);
  return found == FigureTable.end() ? nullptr : found;
}

}  // namespace orby
