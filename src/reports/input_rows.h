// The numbers of a design with their labels and units, in the order of the report.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "base/unit_suffix.h"
#include "design/design.h"
#include "reports/support_headings.h"

namespace orby {

struct NumberRow {
  std::string_view Label;
  Single (*Value)(const Design& design);
  UnitSuffix Unit = UnitSuffix::None;
};

// A number of the support of entries or of intersections.
struct SupportRow {
  std::string_view Label;
  Single (*Value)(const SecondarySupport& support);
  UnitSuffix Unit = UnitSuffix::None;
};
using SupportRows = std::span<const SupportRow>;

inline constexpr auto SiteRows = std::to_array<NumberRow>({
    {"Depth of Cover", [](const Design& d) { return d.Place.DepthofCover; }, UnitSuffix::Length},
    {"Unit Weight of Rock", [](const Design& d) { return d.Place.UnitWeight; }, UnitSuffix::UnitWeight},
});
inline constexpr auto MiningRows = std::to_array<NumberRow>({
    {"Sum of Intersection Diagonals", [](const Design& d) { return d.Place.ActualSpanDiagonals; }, UnitSuffix::Length},
    {"Entry Width", [](const Design& d) { return d.Place.EntryWidth; }, UnitSuffix::Length},
});
inline constexpr auto PrimaryRows = std::to_array<NumberRow>({
    {"Roof Bolt Length", [](const Design& d) { return d.Primary.Length; }, UnitSuffix::Length},
    {"Number of Roof Bolts per Row", [](const Design& d) { return d.Primary.BoltsperRow; }},
    {"Roof Bolt Row Spacing", [](const Design& d) { return d.Primary.RowSpacing; }, UnitSuffix::Length},
    {"Target Stability Factor", [](const Design& d) { return d.Primary.StabilityFactor; }},
});

inline constexpr auto TrussRows = std::to_array<SupportRow>({
    {"Length of Angled Truss Member", [](const SecondarySupport& s) { return s.Truss.LengthMember; },
     UnitSuffix::Length},
    {"Truss Angle", [](const SecondarySupport& s) { return s.Truss.Angle; }, UnitSuffix::Degrees},
    {"Truss Capacity", [](const SecondarySupport& s) { return s.Truss.Capacity; }, UnitSuffix::Force},
});
inline constexpr SupportRow StandingCapacity{
    "Standing Support Capacity", [](const SecondarySupport& s) { return s.Standing.Capacity; }, UnitSuffix::Force};
inline constexpr SupportRow SecondaryBoltLength{
    "Roof Bolt Length", [](const SecondarySupport& s) { return s.Bolt.Length; }, UnitSuffix::Length};

inline constexpr auto EntryRockRows = std::to_array<SupportRow>({
    {"Rock Load Height", [](const SecondarySupport& s) { return s.RockLoadHeight; }, UnitSuffix::Length},
    {"Rock Fall Angle", [](const SecondarySupport& s) { return s.RockFallAngle; }, UnitSuffix::Degrees},
});
inline constexpr auto EntryCableRows = std::to_array<SupportRow>({
    {"Number of Cable Bolts per Row", [](const SecondarySupport& s) { return s.Cable.BoltsPerRow; }},
    {"Cable Bolt Row Spacing", [](const SecondarySupport& s) { return s.Cable.RowSpacing; }, UnitSuffix::Length},
});
inline constexpr auto EntryTrussRows = std::to_array<SupportRow>({
    {"Truss Spacing", [](const SecondarySupport& s) { return s.Truss.Spacing; }, UnitSuffix::Length},
});
inline constexpr auto EntryBoltRows = std::to_array<SupportRow>({
    {"Number of Roof Bolts per Row", [](const SecondarySupport& s) { return s.Bolt.BoltsperRow; }},
    {"Roof Bolt Row Spacing", [](const SecondarySupport& s) { return s.Bolt.RowSpacing; }, UnitSuffix::Length},
    SecondaryBoltLength,
});
inline constexpr auto EntryStandingRows = std::to_array<SupportRow>({
    StandingCapacity,
    {"Number of Standing Supports per Row", [](const SecondarySupport& s) { return s.Standing.NumberPerRow; }},
    {"Standing Support Row Spacing", [](const SecondarySupport& s) { return s.Standing.RowSpacing; },
     UnitSuffix::Length},
});

inline constexpr auto IntersectionRockRows = std::to_array<SupportRow>({
    {"Rock Load Height", [](const SecondarySupport& s) { return s.RockLoadHeight; }, UnitSuffix::Length},
    {"Rock Fall Angle (Entry)", [](const SecondarySupport& s) { return s.RockFallAngle; }, UnitSuffix::Degrees},
    {"Rock Fall Angle (Crosscut)", [](const SecondarySupport& s) { return s.RockFallAngleXcut; }, UnitSuffix::Degrees},
});
inline constexpr auto IntersectionCableRows = std::to_array<SupportRow>({
    {"Number of Cable Bolts", [](const SecondarySupport& s) { return s.Cable.Number; }},
});
inline constexpr auto IntersectionTrussRows = std::to_array<SupportRow>({
    {"Number of Trusses", [](const SecondarySupport& s) { return s.Truss.Number; }},
});
inline constexpr auto IntersectionBoltRows = std::to_array<SupportRow>({
    SecondaryBoltLength,
    {"Number of Roof Bolts", [](const SecondarySupport& s) { return s.Bolt.Number; }},
});
inline constexpr auto IntersectionStandingRows = std::to_array<SupportRow>({
    StandingCapacity,
    {"Number of Standing Supports", [](const SecondarySupport& s) { return s.Standing.Number; }},
});

// The headings and rows that differ between entries and intersections.
struct SupportEcho {
  SupportHeadings Headings;
  std::string_view OptionsHeading;
  SupportRows Rock;
  SupportRows CableLayout;
  SupportRows TrussLayout;
  SupportRows RoofBolts;
  SupportRows StandingSupports;
};

inline constexpr SupportEcho EntryEcho{EntryHeadings,    "[SECONDARY ENTRY SUPPORT ANALYSIS OPTIONS]",
                                       EntryRockRows,    EntryCableRows,
                                       EntryTrussRows,   EntryBoltRows,
                                       EntryStandingRows};
inline constexpr SupportEcho IntersectionEcho{
    IntersectionHeadings,    "[SECONDARY INTERSECTION SUPPORT ANALYSIS OPTIONS]",
    IntersectionRockRows,    IntersectionCableRows,
    IntersectionTrussRows,   IntersectionBoltRows,
    IntersectionStandingRows};

}  // namespace orby
