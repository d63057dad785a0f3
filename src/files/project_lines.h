// The project file as a table with an entry for each of its data lines. The reader and the writer use the same entries.
//
// A file consists of a header (label, units, strength mode, table choice, title), the description between two markers,
// and the data lines in the order below. The position of a line determines its field.
#pragma once

#include <array>
#include <string_view>

#include "design/field.h"

namespace orby {

// The labels in the first line. Files with the oldest label are refused.
inline constexpr std::array<std::string_view, 5> FileVersionNames{"ORBY_101", "ORBY_102", "ORBY_103", "ORBY_104",
                                                                  "ORBY_105"};
inline constexpr Integer CurrentFileVersion = 4;  // index of the label that is written

// The numbers of the file formats, which are one less than the number in the label.
inline constexpr Integer Version102 = 101;
inline constexpr Integer Version103 = 102;
inline constexpr Integer Version104 = 103;
inline constexpr Integer Version105 = 104;

enum class LineForm {
  Plain,   // a number, or a text item
  Padded,  // a whole number after a place for its sign and before a blank
  Whole,   // a text that fills its line, with commas and quotes
  Rating,  // a Single that is stored as a whole number
};

struct ProjectLine {
  std::string_view Name;  // in messages
  AnyField Field;
  AnyField ReadInto;                  // the same field, except for one line
  Integer FirstVersion = Version102;  // the first format with the line
  LineForm Form = LineForm::Plain;
};

namespace project_lines {

constexpr ProjectLine ItemSince(Integer firstVersion, std::string_view name, AnyField field) {
  return {name, field, field, firstVersion, LineForm::Plain};
}
constexpr ProjectLine Item(std::string_view name, AnyField field) { return ItemSince(Version102, name, field); }
constexpr ProjectLine Padded(std::string_view name, IntegerField field) {
  return {name, field, field, Version102, LineForm::Padded};
}
constexpr ProjectLine WholeLine(std::string_view name, TextField field) {
  return {name, field, field, Version102, LineForm::Whole};
}
constexpr ProjectLine Rating(std::string_view name, SingleField field) {
  return {name, field, field, Version102, LineForm::Rating};
}
constexpr ProjectLine ReadElsewhere(std::string_view name, IntegerField field, IntegerField target) {
  return {name, field, target, Version102, LineForm::Plain};
}

// The bolt descriptions are written raw but read as items, so a comma in one moves all later lines by one field. The
// mode of the standing support in intersections is read into that of entries. Existing files depend on both.
inline constexpr std::array Lines{
    Rating("roof rating", [](auto& d) { return &d.Place.CMRR; }),
    Item("rock type", [](auto& d) { return &d.Place.CMRRRockTypeIndex; }),
    Item("coal region", [](auto& d) { return &d.Place.CMRRRegionIndex; }),
    Item("source of the roof rating", [](auto& d) { return &d.Place.CMRRManual; }),
    Item("depth of cover", [](auto& d) { return &d.Place.DepthofCover; }),
    Item("unit weight", [](auto& d) { return &d.Place.UnitWeight; }),
    Item("sum of the diagonals", [](auto& d) { return &d.Place.ActualSpanDiagonals; }),
    Item("entry width", [](auto& d) { return &d.Place.EntryWidth; }),
    Item("primary support", [](auto& d) { return &d.Primary.Analysed; }),
    Item("secondary support in entries", [](auto& d) { return &d.Entries.Analysed; }),
    Item("secondary support in intersections", [](auto& d) { return &d.Intersections.Analysed; }),
    Item("stability factor", [](auto& d) { return &d.Primary.StabilityFactor; }),
    Item("primary bolt length", [](auto& d) { return &d.Primary.Length; }),
    ItemSince(Version105, "primary bolt source", [](auto& d) { return &d.Primary.Options; }),
    ItemSince(Version105, "primary row of the bolt table", [](auto& d) { return &d.Primary.TableRow; }),
    ItemSince(Version105, "primary table diameter", [](auto& d) { return &d.Primary.TableDiameter; }),
    ItemSince(Version105, "primary table grade", [](auto& d) { return &d.Primary.TableGrade; }),
    ItemSince(Version105, "primary bolt description", [](auto& d) { return &d.Primary.Desc; }),
    Item("primary source of the bolt diameter", [](auto& d) { return &d.Primary.DiameterMode; }),
    Item("primary standard bolt diameter", [](auto& d) { return &d.Primary.DiameterStd; }),
    Item("primary typed bolt diameter", [](auto& d) { return &d.Primary.DiameterManual; }),
    Item("primary source of the bolt grade", [](auto& d) { return &d.Primary.GradeMode; }),
    Item("primary standard bolt grade", [](auto& d) { return &d.Primary.GradeStd; }),
    Item("primary typed bolt grade", [](auto& d) { return &d.Primary.GradeManual; }),
    Item("primary bolts per row", [](auto& d) { return &d.Primary.BoltsperRow; }),
    Item("primary row spacing", [](auto& d) { return &d.Primary.RowSpacing; }),
    Item("rock load height in entries", [](auto& d) { return &d.Entries.RockLoadHeight; }),
    Item("rock fall angle in entries", [](auto& d) { return &d.Entries.RockFallAngle; }),
    Item("use of cables in entries", [](auto& d) { return &d.Entries.Cable.Use; }),
    Item("use of trusses in entries", [](auto& d) { return &d.Entries.Truss.Use; }),
    Item("use of bolts in entries", [](auto& d) { return &d.Entries.Bolt.Use; }),
    Item("use of standing supports in entries", [](auto& d) { return &d.Entries.Standing.Use; }),
    Item("entry cable length", [](auto& d) { return &d.Entries.Cable.Length; }),
    Item("entry source of the cable capacity", [](auto& d) { return &d.Entries.Cable.CapMode; }),
    ItemSince(Version104, "entry kind of the cable capacity", [](auto& d) { return &d.Entries.Cable.Capacity; }),
    Item("entry cable diameter", [](auto& d) { return &d.Entries.Cable.Diam; }),
    Item("entry standard cable capacity", [](auto& d) { return &d.Entries.Cable.CapacityStd; }),
    ItemSince(Version104, "entry typed cable capacity", [](auto& d) { return &d.Entries.Cable.CapacityManual; }),
    Item("entry cables per row", [](auto& d) { return &d.Entries.Cable.BoltsPerRow; }),
    Item("entry cable row spacing", [](auto& d) { return &d.Entries.Cable.RowSpacing; }),
    Item("entry truss length", [](auto& d) { return &d.Entries.Truss.LengthMember; }),
    Item("entry truss angle", [](auto& d) { return &d.Entries.Truss.Angle; }),
    Item("entry truss capacity", [](auto& d) { return &d.Entries.Truss.Capacity; }),
    Item("entry truss spacing", [](auto& d) { return &d.Entries.Truss.Spacing; }),
    Item("entry bolt length", [](auto& d) { return &d.Entries.Bolt.Length; }),
    ItemSince(Version105, "entry bolt source", [](auto& d) { return &d.Entries.Bolt.Options; }),
    ItemSince(Version105, "entry row of the bolt table", [](auto& d) { return &d.Entries.Bolt.TableRow; }),
    ItemSince(Version105, "entry table diameter", [](auto& d) { return &d.Entries.Bolt.TableDiameter; }),
    ItemSince(Version105, "entry table grade", [](auto& d) { return &d.Entries.Bolt.TableGrade; }),
    ItemSince(Version105, "entry bolt description", [](auto& d) { return &d.Entries.Bolt.Desc; }),
    Item("entry source of the bolt diameter", [](auto& d) { return &d.Entries.Bolt.DiameterMode; }),
    Item("entry standard bolt diameter", [](auto& d) { return &d.Entries.Bolt.DiameterStd; }),
    Item("entry typed bolt diameter", [](auto& d) { return &d.Entries.Bolt.DiameterManual; }),
    Item("entry source of the bolt grade", [](auto& d) { return &d.Entries.Bolt.GradeMode; }),
    Item("entry standard bolt grade", [](auto& d) { return &d.Entries.Bolt.GradeStd; }),
    Item("entry typed bolt grade", [](auto& d) { return &d.Entries.Bolt.GradeManual; }),
    Item("entry bolts per row", [](auto& d) { return &d.Entries.Bolt.BoltsperRow; }),
    Item("entry bolt row spacing", [](auto& d) { return &d.Entries.Bolt.RowSpacing; }),
    Item("entry source of the standing support", [](auto& d) { return &d.Entries.Standing.TypeMode; }),
    WholeLine("entry standing support", [](auto& d) { return &d.Entries.Standing.TypeName; }),
    Item("entry standing support capacity", [](auto& d) { return &d.Entries.Standing.Capacity; }),
    Item("entry standing supports per row", [](auto& d) { return &d.Entries.Standing.NumberPerRow; }),
    Item("entry standing support spacing", [](auto& d) { return &d.Entries.Standing.RowSpacing; }),
    Item("rock load height in intersections", [](auto& d) { return &d.Intersections.RockLoadHeight; }),
    Item("rock fall angle along the entry", [](auto& d) { return &d.Intersections.RockFallAngle; }),
    Item("rock fall angle along the crosscut", [](auto& d) { return &d.Intersections.RockFallAngleXcut; }),
    Item("use of cables in intersections", [](auto& d) { return &d.Intersections.Cable.Use; }),
    Item("use of trusses in intersections", [](auto& d) { return &d.Intersections.Truss.Use; }),
    Item("use of bolts in intersections", [](auto& d) { return &d.Intersections.Bolt.Use; }),
    Item("use of standing supports in intersections", [](auto& d) { return &d.Intersections.Standing.Use; }),
    Item("intersection cable length", [](auto& d) { return &d.Intersections.Cable.Length; }),
    Item("intersection source of the cable capacity", [](auto& d) { return &d.Intersections.Cable.CapMode; }),
    ItemSince(Version104, "intersection kind of the cable capacity",
              [](auto& d) { return &d.Intersections.Cable.Capacity; }),
    Item("intersection cable diameter", [](auto& d) { return &d.Intersections.Cable.Diam; }),
    Item("intersection standard cable capacity", [](auto& d) { return &d.Intersections.Cable.CapacityStd; }),
    ItemSince(Version104, "intersection typed cable capacity",
              [](auto& d) { return &d.Intersections.Cable.CapacityManual; }),
    Item("intersection number of cables", [](auto& d) { return &d.Intersections.Cable.Number; }),
    Item("intersection truss length", [](auto& d) { return &d.Intersections.Truss.LengthMember; }),
    Item("intersection truss angle", [](auto& d) { return &d.Intersections.Truss.Angle; }),
    Item("intersection truss capacity", [](auto& d) { return &d.Intersections.Truss.Capacity; }),
    Item("intersection number of trusses", [](auto& d) { return &d.Intersections.Truss.Number; }),
    Item("intersection bolt length", [](auto& d) { return &d.Intersections.Bolt.Length; }),
    ItemSince(Version105, "intersection bolt source", [](auto& d) { return &d.Intersections.Bolt.Options; }),
    ItemSince(Version105, "intersection row of the bolt table", [](auto& d) { return &d.Intersections.Bolt.TableRow; }),
    ItemSince(Version105, "intersection table diameter", [](auto& d) { return &d.Intersections.Bolt.TableDiameter; }),
    ItemSince(Version105, "intersection table grade", [](auto& d) { return &d.Intersections.Bolt.TableGrade; }),
    ItemSince(Version105, "intersection bolt description", [](auto& d) { return &d.Intersections.Bolt.Desc; }),
    Item("intersection source of the bolt diameter", [](auto& d) { return &d.Intersections.Bolt.DiameterMode; }),
    Item("intersection standard bolt diameter", [](auto& d) { return &d.Intersections.Bolt.DiameterStd; }),
    Item("intersection typed bolt diameter", [](auto& d) { return &d.Intersections.Bolt.DiameterManual; }),
    Item("intersection source of the bolt grade", [](auto& d) { return &d.Intersections.Bolt.GradeMode; }),
    Item("intersection standard bolt grade", [](auto& d) { return &d.Intersections.Bolt.GradeStd; }),
    Item("intersection typed bolt grade", [](auto& d) { return &d.Intersections.Bolt.GradeManual; }),
    Item("intersection number of bolts", [](auto& d) { return &d.Intersections.Bolt.Number; }),
    ReadElsewhere(
        "intersection source of the standing support", [](auto& d) { return &d.Intersections.Standing.TypeMode; },
        [](auto& d) { return &d.Entries.Standing.TypeMode; }),
    WholeLine("intersection standing support", [](auto& d) { return &d.Intersections.Standing.TypeName; }),
    Item("intersection standing support capacity", [](auto& d) { return &d.Intersections.Standing.Capacity; }),
    Item("intersection number of standing supports", [](auto& d) { return &d.Intersections.Standing.Number; }),
    Item("cost of a bolt", [](auto& d) { return &d.Cost.BoltCost; }),
    Item("cost of a plate", [](auto& d) { return &d.Cost.PlateCost; }),
    Item("cost of resin", [](auto& d) { return &d.Cost.ResinCost; }),
    Item("cost of a bit", [](auto& d) { return &d.Cost.BitCost; }),
    Item("cost of a header", [](auto& d) { return &d.Cost.HeaderCost; }),
    Item("cost of a strap", [](auto& d) { return &d.Cost.StrapCost; }),
    Item("bolts per shift", [](auto& d) { return &d.Cost.NboltsShift; }),
    Item("bolts per row of the cost", [](auto& d) { return &d.Cost.NBoltsRow; }),
    Item("row spacing of the cost", [](auto& d) { return &d.Cost.RowSpacing; }),
    Item("operators per shift", [](auto& d) { return &d.Cost.NOperShift; }),
    Item("labor cost", [](auto& d) { return &d.Cost.TotalLabor; }),
    Item("hours per shift", [](auto& d) { return &d.Cost.HoursShift; }),
    Item("maintenance hours", [](auto& d) { return &d.Cost.MaintainHrs; }),
    Item("maintenance cost", [](auto& d) { return &d.Cost.MaintainCost; }),
    Item("transport cost", [](auto& d) { return &d.Cost.TranspCost; }),
    Item("capital cost", [](auto& d) { return &d.Cost.CapitalCost; }),
    Item("years of depreciation", [](auto& d) { return &d.Cost.YearsDepr; }),
    Item("advance per shift", [](auto& d) { return &d.Cost.AdvanceShift; }),
    Item("advance rate", [](auto& d) { return &d.Cost.AdvanceRate; }),
    Item("clean production", [](auto& d) { return &d.Cost.CleanProduction; }),
    Item("shifts per week", [](auto& d) { return &d.Cost.ShiftsWeek; }),
    Item("weeks per year", [](auto& d) { return &d.Cost.WeeksYear; }),
    Padded("use of production", [](auto& d) { return &d.Cost.Production; }),
    Padded("use of the advance", [](auto& d) { return &d.Cost.Advance; })};

}  // namespace project_lines

inline constexpr const auto& ProjectLines = project_lines::Lines;

}  // namespace orby
