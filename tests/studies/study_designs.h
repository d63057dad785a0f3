// Designs and prices for the tests of this folder.
#pragma once

#include <array>
#include <random>
#include <string>
#include <vector>

#include "design/choices.h"
#include "design/design.h"
#include "design/prices.h"
#include "engine/designs.h"
#include "studies/levers.h"

namespace orby::test {

inline constexpr StudiedSupport PrimaryBolts{Opening::Primary, PricedSupport::Bolt};
inline constexpr StudiedSupport EntryCables{Opening::Entries, PricedSupport::Cable};
inline constexpr StudiedSupport EntryTrusses{Opening::Entries, PricedSupport::Truss};
inline constexpr StudiedSupport EntryBolts{Opening::Entries, PricedSupport::Bolt};
inline constexpr StudiedSupport EntryStanding{Opening::Entries, PricedSupport::Standing};
inline constexpr StudiedSupport CrossingCables{Opening::Intersections, PricedSupport::Cable};
inline constexpr StudiedSupport CrossingTrusses{Opening::Intersections, PricedSupport::Truss};
inline constexpr StudiedSupport CrossingBolts{Opening::Intersections, PricedSupport::Bolt};
inline constexpr StudiedSupport CrossingStanding{Opening::Intersections, PricedSupport::Standing};

inline constexpr std::array AllSupports{PrimaryBolts,   EntryCables,     EntryTrusses,  EntryBolts,      EntryStanding,
                                        CrossingCables, CrossingTrusses, CrossingBolts, CrossingStanding};

inline const Catalogs& Lists() {
  static const Catalogs lists = BuiltInLists();
  return lists;
}

inline SecondarySupport& Secondary(RoofSupport& design, const StudiedSupport& support) {
  return support.Where == Opening::Entries ? design.Entries : design.Intersections;
}

inline BoltSelection& BoltSet(RoofSupport& design, const StudiedSupport& support) {
  if (support.Where == Opening::Primary) return design.Primary;
  return Secondary(design, support).Bolt;
}

// Returns the number that a lever sets. Requires that the support has the lever.
inline Single& NumberAt(Design& design, const StudiedSupport& support, Lever lever) {
  const bool isInRows = support.Where != Opening::Intersections;
  if (support.What == PricedSupport::Bolt) {
    BoltSelection& set = BoltSet(design, support);
    if (lever == Lever::Length) return set.Length;
    if (lever == Lever::Spacing) return set.RowSpacing;
    return isInRows ? set.BoltsperRow : set.Number;
  }
  SecondarySupport& secondary = Secondary(design, support);
  if (support.What == PricedSupport::Cable) {
    if (lever == Lever::Length) return secondary.Cable.Length;
    if (lever == Lever::Spacing) return secondary.Cable.RowSpacing;
    return isInRows ? secondary.Cable.BoltsPerRow : secondary.Cable.Number;
  }
  if (support.What == PricedSupport::Truss) return isInRows ? secondary.Truss.Spacing : secondary.Truss.Number;
  if (lever == Lever::Spacing) return secondary.Standing.RowSpacing;
  return isInRows ? secondary.Standing.NumberPerRow : secondary.Standing.Number;
}

// Costs of a usual operation.
inline CostInputs UsualCosts() {
  return {.BoltCost = 3,
          .PlateCost = 1,
          .ResinCost = 1.5F,
          .BitCost = 67,
          .NboltsShift = 300,
          .NBoltsRow = 4,
          .RowSpacing = 4,
          .NOperShift = 2,
          .TotalLabor = 35,
          .HoursShift = 8,
          .MaintainHrs = 2,
          .MaintainCost = 30000,
          .TranspCost = 100,
          .CapitalCost = 1000000,
          .YearsDepr = 5,
          .ShiftsWeek = 10,
          .WeeksYear = 48};
}

// Stocked lengths, and a price of every piece of the catalogs.
inline PriceList AllPrices(UnitSystem units) {
  PriceList list;
  list.BoltLengths =
      units == Metric ? std::vector<Single>{1.2F, 1.5F, 1.8F, 2.1F, 2.4F, 3} : std::vector<Single>{4, 5, 6, 7, 8, 10};
  Single dollars = 5;
  for (const BoltTableRow& row : OfferedBolts(Lists(), units)) {
    for (const Single length : list.BoltLengths) {
      dollars += 0.5F;
      list.Prices.push_back({PricedSupport::Bolt, row.Name, length, dollars + length});
    }
  }
  for (const char* diameter : {"0.6", "0.7", "15.2", "21.8", "31", "28", "28.6"}) {
    list.Prices.push_back({PricedSupport::Cable, diameter, 0, dollars += 7});
  }
  list.Prices.push_back({PricedSupport::Truss, "", 0, 180});
  for (const std::string& name : Lists().StandSupports.DefaultStandSupportType) {
    if (!name.empty()) list.Prices.push_back({PricedSupport::Standing, name, 0, dollars += 11});
  }
  return list;
}

// A design with all supports, such as an engineer could type it. Many of its supports fall short.
class AnyDesigns {
 public:
  explicit AnyDesigns(unsigned seed) : numbers_(seed) {}

  Design Next() {
    Design design;
    design.Units = Flip() ? English : Metric;
    design.Basis = Flip() ? Yield : Ultimate;
    design.Cost = UsualCosts();
    scale_ = design.Units == Metric ? 1 / FeetPerMetre : 1;
    const bool isMetric = design.Units == Metric;
    design.Place.CMRR = static_cast<Single>(Whole(25, 75));
    design.Place.DepthofCover = Length(100, 2000);
    design.Place.UnitWeight = isMetric ? 25.4F : 162;
    design.Place.ActualSpanDiagonals = Length(40, 75);
    design.Place.EntryWidth = Length(14, 22);
    design.Primary.StabilityFactor = Tenths(10, 16);
    design.Primary.Analysed = design.Entries.Analysed = design.Intersections.Analysed = 1;
    for (BoltSelection* set : design.BoltSets()) ChangeBolts(*set, design);
    for (SecondarySupport* support : {&design.Entries, &design.Intersections}) ChangeSupport(*support, design);
    return design;
  }

  int Whole(int least, int most) {
    return least + static_cast<int>(numbers_() % static_cast<unsigned>(most - least + 1));
  }
  bool Flip() { return Whole(0, 1) == 1; }

 private:
  Single Tenths(int least, int most) { return static_cast<Single>(Whole(least, most) / 10.0); }
  // A length of whole tenths, from feet.
  Single Length(double least, double most) {
    return Tenths(static_cast<int>(least * scale_ * 10), static_cast<int>(most * scale_ * 10));
  }

  void ChangeBolts(BoltSelection& set, const Design& design) {
    const bool isMetric = design.Units == Metric;
    set.Options = Flip() ? BoltSource::Table : BoltSource::Manual;
    TakeTableRow(set, OfferedBolts(Lists(), design.Units), static_cast<Integer>(Whole(0, 9)));
    set.DiameterMode = Flip() ? ValueSource::Standard : ValueSource::Typed;
    set.DiameterStd = OfferedBoltDiameters(Lists(), design.Units)[static_cast<std::size_t>(Whole(0, 4))];
    set.DiameterManual = isMetric ? static_cast<Single>(Whole(13, 25)) : static_cast<Single>(Whole(51, 100) / 100.0);
    set.GradeMode = Flip() ? ValueSource::Standard : ValueSource::Typed;
    set.GradeStd = OfferedBoltGrades(Lists(), design.Units, design.Basis)[static_cast<std::size_t>(Whole(0, 5))];
    set.GradeManual = static_cast<Single>(isMetric ? Whole(200, 600) : Whole(40, 90));
    set.Length = Length(3, 10);
    set.BoltsperRow = static_cast<Single>(Whole(2, 8));
    set.RowSpacing = Length(2, 8);
    set.Number = static_cast<Single>(Whole(4, 60));
  }

  void ChangeSupport(SecondarySupport& support, const Design& design) {
    const bool isMetric = design.Units == Metric;
    for (SupportSystem* system : support.Systems()) system->Use = 1;
    support.RockLoadHeight = Length(1, 9);
    support.RockFallAngle = static_cast<Single>(Whole(0, 60));
    support.RockFallAngleXcut = static_cast<Single>(Whole(1, 60));
    CableSelection& cable = support.Cable;
    cable.Length = Length(6, 16);
    cable.CapMode = isMetric || Flip() ? CapacityMode::Given : CapacityMode::ByDiameter;
    cable.Capacity = Flip() ? ValueSource::Standard : ValueSource::Typed;
    cable.Diam = OfferedCableDiameters(Lists(), design.Units)[static_cast<std::size_t>(Whole(0, 1))];
    cable.CapacityStd = OfferedCableCapacities(Lists(), design.Units)[static_cast<std::size_t>(Whole(0, 1))];
    cable.CapacityManual = static_cast<Single>(isMetric ? Whole(100, 600) : Whole(10, 60));
    cable.BoltsPerRow = static_cast<Single>(Whole(1, 6));
    cable.RowSpacing = Length(3, 14);
    cable.Number = static_cast<Single>(Whole(1, 30));
    TrussSelection& truss = support.Truss;
    truss.LengthMember = Length(6, 12);
    truss.Angle = static_cast<Single>(Whole(20, 60));
    truss.Capacity = static_cast<Single>(isMetric ? Whole(100, 400) : Whole(10, 45));
    truss.Spacing = Length(3, 14);
    truss.Number = static_cast<Single>(Whole(1, 12));
    StandingSelection& standing = support.Standing;
    TakeStandingSupport(standing, Lists(), design.Units, static_cast<std::size_t>(Whole(0, 15)));
    if (Flip()) standing.TypeMode = ValueSource::Typed;
    standing.NumberPerRow = static_cast<Single>(Whole(1, 3));
    standing.RowSpacing = Length(4, 20);
    standing.Number = static_cast<Single>(Whole(1, 8));
  }

  std::mt19937 numbers_;
  double scale_ = 1;
};

// Returns the judgements on a support as the judgement of the whole design has them.
inline std::vector<Verdict> JudgedWhole(const RoofSupport& design, const StudiedSupport& support) {
  std::vector<Verdict> judged;
  const Verdicts verdicts = Judge(design, Analyze(design, Lists()));
  for (const Verdict& verdict : verdicts.All()) {
    if (SupportOf(verdict) == support) judged.push_back(verdict);
  }
  return judged;
}

// A support holds if nothing about it is short or cannot be computed and its factor reaches that of the project.
inline bool HoldsWhole(const RoofSupport& design, const StudiedSupport& support) {
  for (const Verdict& verdict : JudgedWhole(design, support)) {
    if (verdict.Result == Holding::Short || verdict.Result == Holding::Uncomputed) return false;
    if (verdict.Factor < verdict.WantedFactor) return false;
  }
  return true;
}

}  // namespace orby::test
