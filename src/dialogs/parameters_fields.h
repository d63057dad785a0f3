// The fields of the parameters dialog with the places of their values in a design.
#pragma once

#include <array>
#include <span>

#include "design/field.h"
#include "dialogs/parameters_controls.h"

namespace orby {

struct NumberField {
  LabelledBox ParametersControls::*control;
  SingleField field;
};

inline constexpr NumberField PlaceFields[] = {
    {&ParametersControls::txtDepthofCover, [](auto& d) { return &d.Place.DepthofCover; }},
    {&ParametersControls::txtUnitWeight, [](auto& d) { return &d.Place.UnitWeight; }},
    {&ParametersControls::txtActualSpanDiagonals, [](auto& d) { return &d.Place.ActualSpanDiagonals; }},
    {&ParametersControls::txtEntryWidth, [](auto& d) { return &d.Place.EntryWidth; }},
};

inline constexpr NumberField PrimaryFields[] = {
    {&ParametersControls::txtStabilityFactor, [](auto& d) { return &d.Primary.StabilityFactor; }},
    {&ParametersControls::txtBoltLengthPrimary, [](auto& d) { return &d.Primary.Length; }},
    {&ParametersControls::txtBoltsperRowPrimary, [](auto& d) { return &d.Primary.BoltsperRow; }},
    {&ParametersControls::txtRowSpacingPrimary, [](auto& d) { return &d.Primary.RowSpacing; }},
};

inline constexpr NumberField EntryFields[] = {
    {&ParametersControls::txtRockLoadHeight, [](auto& d) { return &d.Entries.RockLoadHeight; }},
    {&ParametersControls::txtRockFallAngle, [](auto& d) { return &d.Entries.RockFallAngle; }},
    {&ParametersControls::txtCableLengthSecEntry, [](auto& d) { return &d.Entries.Cable.Length; }},
    {&ParametersControls::txtCableBoltsPerRowSecEntry, [](auto& d) { return &d.Entries.Cable.BoltsPerRow; }},
    {&ParametersControls::txtCableRowSpacingSecEntry, [](auto& d) { return &d.Entries.Cable.RowSpacing; }},
    {&ParametersControls::txtTrussLengthMemberSecEntry, [](auto& d) { return &d.Entries.Truss.LengthMember; }},
    {&ParametersControls::txtTrussAngleSecEntry, [](auto& d) { return &d.Entries.Truss.Angle; }},
    {&ParametersControls::txtTrussCapacitySecEntry, [](auto& d) { return &d.Entries.Truss.Capacity; }},
    {&ParametersControls::txtTrussSpacingSecEntry, [](auto& d) { return &d.Entries.Truss.Spacing; }},
    {&ParametersControls::txtBoltLengthSecEntry, [](auto& d) { return &d.Entries.Bolt.Length; }},
    {&ParametersControls::txtBoltsperRowSecEntry, [](auto& d) { return &d.Entries.Bolt.BoltsperRow; }},
    {&ParametersControls::txtRowSpacingSecEntry, [](auto& d) { return &d.Entries.Bolt.RowSpacing; }},
    {&ParametersControls::txtNumberSupPerRowSecEntry, [](auto& d) { return &d.Entries.Standing.NumberPerRow; }},
    {&ParametersControls::txtSupportRowSpacingSecEntry, [](auto& d) { return &d.Entries.Standing.RowSpacing; }},
};

inline constexpr NumberField IntersectionFields[] = {
    {&ParametersControls::txtRockLoadHeightInter, [](auto& d) { return &d.Intersections.RockLoadHeight; }},
    {&ParametersControls::txtRockFallAngleEntry, [](auto& d) { return &d.Intersections.RockFallAngle; }},
    {&ParametersControls::txtRockFallAngleXcut, [](auto& d) { return &d.Intersections.RockFallAngleXcut; }},
    {&ParametersControls::txtCableLengthSecInter, [](auto& d) { return &d.Intersections.Cable.Length; }},
    {&ParametersControls::txtCableNumberSecInter, [](auto& d) { return &d.Intersections.Cable.Number; }},
    {&ParametersControls::txtTrussLengthMemberSecInter, [](auto& d) { return &d.Intersections.Truss.LengthMember; }},
    {&ParametersControls::txtTrussAngleSecInter, [](auto& d) { return &d.Intersections.Truss.Angle; }},
    {&ParametersControls::txtTrussCapacitySecInter, [](auto& d) { return &d.Intersections.Truss.Capacity; }},
    {&ParametersControls::txtTrussNumberSecInter, [](auto& d) { return &d.Intersections.Truss.Number; }},
    {&ParametersControls::txtBoltLengthSecInter, [](auto& d) { return &d.Intersections.Bolt.Length; }},
    {&ParametersControls::txtBoltNumberSecInter, [](auto& d) { return &d.Intersections.Bolt.Number; }},
    {&ParametersControls::txtSupportNumberSecInter, [](auto& d) { return &d.Intersections.Standing.Number; }},
};

// By DesignPart.
inline constexpr std::array<std::span<const NumberField>, 5> NumberFields{
    PlaceFields, PrimaryFields, {}, EntryFields, IntersectionFields};

struct FlagField {
  CheckBox ParametersControls::*control;
  IntegerField field;
};

inline constexpr FlagField FlagFields[] = {
    {&ParametersControls::chkCMRRManual, [](auto& d) { return &d.Place.CMRRManual; }},
    {&ParametersControls::chkPrimSupport, [](auto& d) { return &d.Primary.Analysed; }},
    {&ParametersControls::chkSecondSupEntries, [](auto& d) { return &d.Entries.Analysed; }},
    {&ParametersControls::chkSecondSupInter, [](auto& d) { return &d.Intersections.Analysed; }},
};

}  // namespace orby
