// Columns of the inputs. An input that the design does not use has no cell, as on the calculation sheet.
#include "base/text.h"
#include "core/shared_texts.h"
#include "engine/estimator.h"
#include "reports/cost_input_rows.h"
#include "reports/input_rows.h"
#include "tables/column_list.h"

namespace orby {
namespace {

Cell YesNoCell(Integer flag) { return TextCell(YesNoText(flag)); }

Cell RegionCell(const Site& place) {
  if (place.CMRRManual == 1) return TextCell(ManualSelection);
  const Integer region = place.CMRRRegionIndex;
  if (region < 0 || static_cast<std::size_t>(region) >= RegionNames.size()) return {};
  return TextCell(RegionNames.at(static_cast<std::size_t>(region)));
}

Cell RockTypeCell(const Site& place) {
  if (place.CMRRManual == 1) return TextCell(ManualSelection);
  const Integer region = place.CMRRRegionIndex;
  const Integer rockType = place.CMRRRockTypeIndex;
  if (region < 0 || static_cast<std::size_t>(region) >= RegionNames.size()) return {};
  if (rockType < 0 || rockType >= RockTypeCount) return {};
  return TextCell(RockTypeName(region, rockType));
}

template <class Rows>
void AddNumbers(ColumnList& list, const Rows& rows) {
  for (const NumberRow& row : rows) {
    list.Add(row.Label, {.Suffix = row.Unit, .Before = {}},
             [value = row.Value](const TableRow& of) { return NumberCell(value(of.Shown)); });
  }
}

// `set` returns the bolts of a design, or null if they are not in use.
template <class Set>
void AddBolts(ColumnList& list, const Set& set) {
  const auto add = [&](std::string_view label, UnitSuffix unit, auto cell) {
    list.Add(label, {.Suffix = unit, .Before = {}}, [set, cell](const TableRow& row) {
      const BoltSelection* bolts = set(row.Shown);
      return bolts == nullptr ? Cell{} : cell(*bolts);
    });
  };
  add("Roof Bolt Option", UnitSuffix::None, [](const BoltSelection& bolts) {
    return TextCell(bolts.Options == BoltSource::Table ? TableSelection : ManualSelection);
  });
  add("Bolt Description", UnitSuffix::None,
      [](const BoltSelection& bolts) { return bolts.Options == BoltSource::Table ? TextCell(bolts.Desc) : Cell{}; });
  add("Roof Bolt Diameter", UnitSuffix::Diameter,
      [](const BoltSelection& bolts) { return NumberCell(SelectedBolt(bolts).Diameter); });
  add("Roof Bolt Grade", UnitSuffix::Grade,
      [](const BoltSelection& bolts) { return NumberCell(SelectedBolt(bolts).Grade); });
}

// Columns of the inputs of secondary support in one place.
class SecondaryInputs {
 public:
  SecondaryInputs(const ColumnList& list, const SecondaryPlace& place, const SupportEcho& echo)
      : list_(list.Below(place.Key, place.Head)), support_(place.Support), echo_(echo) {}

  void Add() {
    Rows(echo_.Rock, Always);
    Flag("Evaluation of Cable Bolt Systems", [](const SecondarySupport& s) { return s.Cable.Use; });
    Flag("Evaluation of Truss Systems", [](const SecondarySupport& s) { return s.Truss.Use; });
    Flag("Evaluation of Roof Bolt Systems", [](const SecondarySupport& s) { return s.Bolt.Use; });
    Flag("Evaluation of Standing Support Systems", [](const SecondarySupport& s) { return s.Standing.Use; });
    Cables();
    const auto trusses = [](const SecondarySupport& s) { return s.Truss.Use == 1; };
    Rows(TrussRows, trusses);
    Rows(echo_.TrussLayout, trusses);
    Rows(echo_.RoofBolts, [](const SecondarySupport& s) { return s.Bolt.Use == 1; });
    AddBolts(list_, [support = support_](const Design& design) -> const BoltSelection* {
      const SecondaryBolts& bolts = (design.*support).Bolt;
      return bolts.Use == 1 ? &bolts : nullptr;
    });
    const auto standing = [](const SecondarySupport& s) { return s.Standing.Use == 1; };
    Put("Standing Support Type", UnitSuffix::None,
        [standing](const SecondarySupport& s) { return standing(s) ? TextCell(s.Standing.TypeName) : Cell{}; });
    Rows(echo_.StandingSupports, standing);
  }

 private:
  static bool Always(const SecondarySupport& /*support*/) { return true; }

  template <class Get>
  void Put(std::string_view label, UnitSuffix unit, Get get) {
    list_.Add(label, {.Suffix = unit, .Before = {}},
              [support = support_, get](const TableRow& row) { return get(row.Shown.*support); });
  }

  template <class Get>
  void Flag(std::string_view label, Get get) {
    Put(label, UnitSuffix::None, [get](const SecondarySupport& s) { return YesNoCell(get(s)); });
  }

  template <class IsUsed>
  void Rows(SupportRows rows, IsUsed isUsed) {
    for (const SupportRow& row : rows) {
      Put(row.Label, row.Unit,
          [value = row.Value, isUsed](const SecondarySupport& s) { return isUsed(s) ? NumberCell(value(s)) : Cell{}; });
    }
  }

  void Cables() {
    const auto put = [&](std::string_view label, UnitSuffix unit, auto get) {
      Put(label, unit, [get](const SecondarySupport& s) { return s.Cable.Use == 1 ? get(s.Cable) : Cell{}; });
    };
    put("Cable Bolt Length", UnitSuffix::Length, [](const CableSelection& cable) { return NumberCell(cable.Length); });
    put("Cable Bolt Diameter", UnitSuffix::Diameter, [](const CableSelection& cable) {
      return cable.CapMode == CapacityMode::ByDiameter ? NumberCell(cable.Diam) : Cell{};
    });
    put("Cable Bolt Capacity", UnitSuffix::Force, [](const CableSelection& cable) {
      if (cable.CapMode == CapacityMode::ByDiameter) return Cell{};
      return NumberCell(cable.Capacity == ValueSource::Standard ? cable.CapacityStd : cable.CapacityManual);
    });
    Rows(echo_.CableLayout, [](const SecondarySupport& s) { return s.Cable.Use == 1; });
  }

  ColumnList list_;
  SecondarySupport RoofSupport::*support_;
  const SupportEcho& echo_;
};

void AddCostInputs(const ColumnList& all) {
  ColumnList list = all.Below("cost-", "Cost: ");
  const auto add = [&](const CostInputRow& row) {
    list.Add(row.Label, {.Suffix = row.Unit, .Before = {}},
             [value = row.Value](const TableRow& of) { return NumberCell(of.Shown.Cost.*value); });
  };
  for (const CostInputRow& row : CostInputRows) add(row);
  add(AdvanceShiftRow);
  list.Add("Use calculated production", {}, [](const TableRow& row) { return YesNoCell(row.Shown.Cost.Production); });
  list.Add("Use calculated advance", {}, [](const TableRow& row) { return YesNoCell(row.Shown.Cost.Advance); });
}

}  // namespace

void AddInputColumns(std::vector<Column>& columns) {
  ColumnList list(columns, ColumnGroup::Inputs);
  list.Add("CMRR", {}, [](const TableRow& row) { return NumberCell(row.Shown.Place.CMRR); });
  list.Add("CMRR Region", {}, [](const TableRow& row) { return RegionCell(row.Shown.Place); });
  list.Add("CMRR Rock Type", {}, [](const TableRow& row) { return RockTypeCell(row.Shown.Place); });
  AddNumbers(list, SiteRows);
  AddNumbers(list, MiningRows);
  list.Add("Analysis of Primary Roof Bolts", {},
           [](const TableRow& row) { return YesNoCell(row.Shown.Primary.Analysed); });
  list.Add("Analysis of Secondary Support: Entries", {},
           [](const TableRow& row) { return YesNoCell(row.Shown.Entries.Analysed); });
  list.Add("Analysis of Secondary Support: Intersections", {},
           [](const TableRow& row) { return YesNoCell(row.Shown.Intersections.Analysed); });
  ColumnList primary = list.Below("primary-", "Primary: ");
  AddNumbers(primary, PrimaryRows);
  AddBolts(primary, [](const Design& design) -> const BoltSelection* { return &design.Primary; });
  SecondaryInputs(list, EntriesPlace, EntryEcho).Add();
  SecondaryInputs(list, IntersectionsPlace, IntersectionEcho).Add();
  AddCostInputs(list);
}

}  // namespace orby
