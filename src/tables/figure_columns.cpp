// Columns of the figures: those of the report, those of a newly opened parameters dialog, and the totals of the cost.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/figure_patterns.h"
#include "reports/secondary_report.h"
#include "tables/column_list.h"

namespace orby {
namespace {

Cell FigureCell(std::optional<Single> figure, NumberPattern pattern) {
  return figure ? NumberCell(*figure, pattern) : NoResultCell();
}

// ---- the report ----------------------------------------------------------------------------------------------------

struct SystemLabels {
  std::string_view Capacity;
  std::string_view Factor;
};
constexpr std::array<SystemLabels, SystemCount> ReportLabels{
    {{"Cable Bolt System Support Capacity", "Cable Bolt System Stability Factor"},
     {"Truss System Support Capacity", "Truss Stability Factor"},
     {"Roof Bolt Support System Capacity", "Roof Bolt Support System Stability Factor"},
     {"Standing Support System Capacity", "Standing Support System Stability Factor"}}};

bool ReportsPrimary(const TableRow& row) { return row.ReportError == 0 && row.Shown.Primary.Analysed == 1; }

void AddPrimaryReport(const ColumnList& all) {
  ColumnList list = all.Below("primary-", "Primary: ");
  const auto add = [&](std::string_view label, UnitSuffix unit, auto get) {
    list.Add(label, {.Suffix = unit, .Before = {}}, [get](const TableRow& row) {
      return ReportsPrimary(row) ? get(row.Reported.Suggested.Value(), row.Reported.Primary.Value(), row) : Cell{};
    });
  };
  add("Suggested Sum of Diagonals", UnitSuffix::Length,
      [](const SuggestedFigures& suggested, const PrimaryFigures&, const TableRow&) {
        return NumberCell(suggested.SuggestedSpan, "#.0");
      });
  add("Actual Roof Bolt Capacity", UnitSuffix::Force,
      [](const SuggestedFigures&, const PrimaryFigures& primary, const TableRow& row) {
        return NumberCell(primary.Capacity, row.Shown.Units == Metric ? NumberPattern("0") : OneDecimal);
      });
  add("Suggested Minimum Roof Bolt Length", UnitSuffix::Length,
      [](const SuggestedFigures& suggested, const PrimaryFigures&, const TableRow&) {
        return NumberCell(suggested.SugLength, "#.0");
      });
  add("Suggested PSUP for this location", UnitSuffix::None,
      [](const SuggestedFigures& suggested, const PrimaryFigures&, const TableRow&) {
        return NumberCell(std::max(suggested.SugPSUP, SmallestPsup), OneDecimal);
      });
  const auto addDensity = [&](std::string_view label, Single PrimaryFigures::*member) {
    add(label, UnitSuffix::None, [member](const SuggestedFigures&, const PrimaryFigures& primary, const TableRow&) {
      return NumberCell(primary.*member, OneDecimal);
    });
  };
  addDensity("Actual PSUP for this design", &PrimaryFigures::ActualPSUP);
  addDensity("Reinforcement Density Index (RDI)", &PrimaryFigures::RDI);
  addDensity("PRSUP", &PrimaryFigures::PRSUP);
}

// Columns of the secondary support of one place in the report.
class SecondaryReportColumns {
 public:
  SecondaryReportColumns(const ColumnList& all, const SecondaryPlace& place)
      : list_(all.Below(place.Key, place.Head)), place_(place), isEntry_(&place == &EntriesPlace) {}

  void Add() {
    AddLoad(
        "Rock Load", [](const SecondarySupport& support) { return std::optional(support.RockLoad); },
        [](const SupportFigures& live) { return live.RockLoad.ValueOr({}); });
    Put(list_, "Maximum possible height", UnitSuffix::Length, [](const SecondarySupport&, const Reinforcement& added) {
      return added.HeightIsAdjusted ? NumberCell(added.HighestRock, OneDecimal) : Cell{};
    });
    for (std::size_t i = 0; i < SystemCount; ++i) AddSystem(i);
  }

 private:
  template <class Get>
  void Put(ColumnList& list, std::string_view label, UnitSuffix unit, Get get) {
    list.Add(label, {.Suffix = unit, .Before = {}}, [place = place_, get](const TableRow& row) {
      const SecondarySupport& support = row.Shown.*place.Support;
      if (row.ReportError != 0 || support.Analysed != 1) return Cell{};
      return get(support, (row.Reported.*place.Added).Value());
    });
  }

  // `get` returns the number that the report prints, and `live` the figure that it was rounded from.
  template <class Get, class GetLive>
  void AddLoad(std::string_view label, Get get, GetLive live) {
    list_.Add(label, {.Suffix = place_.LoadUnit, .Before = {}}, [place = place_, get, live](const TableRow& row) {
      const SecondarySupport& support = row.Shown.*place.Support;
      if (row.ReportError != 0 || support.Analysed != 1) return Cell{};
      const std::optional<Single> printed = get(support);
      return printed ? LoadCell(*printed, live(row.Live.*place.Live), place.LoadUnit) : Cell{};
    });
  }

  static Cell LoadCell(Single printed, std::optional<Single> figure, UnitSuffix unit) {
    constexpr Single FirstWithExponent = 1e7F;
    const Single value = printed == 0 ? 0 : figure.value_or(printed);
    if (unit == UnitSuffix::LineLoad) return NumberCell(value, EntryPattern);
    return std::abs(printed) < FirstWithExponent ? NumberCell(value, IntersectionPattern) : NumberCell(printed);
  }

  void AddSystem(std::size_t system) {
    AddLoad(
        ReportLabels.at(system).Capacity,
        [system](const SecondarySupport& support) -> std::optional<Single> {
          const SupportSystem& used = *support.Systems().at(system);
          if (used.Use != 1) return std::nullopt;
          return used.SupportCap;
        },
        [system](const SupportFigures& live) -> std::optional<Single> {
          const std::optional<SupportResult> result = live.Systems.at(system).ValueOr({});
          if (!result) return std::nullopt;
          return result->Capacity;
        });
    Put(list_, ReportLabels.at(system).Factor, UnitSuffix::None,
        [system](const SecondarySupport& support, const Reinforcement&) {
          const SupportSystem& used = *support.Systems().at(system);
          return used.Use == 1 ? NumberCell(used.StabFactor, "0.00") : Cell{};
        });
    if (!isEntry_) return;
    if (system == 0) AddDensities("Cable Bolts: ", system, &Reinforcement::CableSRDI, &Reinforcement::CablePRSUP);
    if (system == 2) AddDensities("Roof Bolts: ", system, &Reinforcement::BoltSRDI, &Reinforcement::BoltPRSUP);
  }

  void AddDensities(std::string_view head, std::size_t system, Single Reinforcement::*srdi,
                    Single Reinforcement::*prsup) {
    ColumnList list = list_.Below(KeyOf(head) + "-", head);
    const auto add = [&](std::string_view label, Single Reinforcement::*member) {
      Put(list, label, UnitSuffix::None, [system, member](const SecondarySupport& support, const Reinforcement& added) {
        return support.Systems().at(system)->Use == 1 ? NumberCell(added.*member, OneDecimal) : Cell{};
      });
    };
    add("Secondary Reinforcement Density Index (SRDI)", srdi);
    add("Secondary PRSUP", prsup);
  }

  ColumnList list_;
  const SecondaryPlace& place_;
  bool isEntry_;
};

// ---- the parameters dialog -----------------------------------------------------------------------------------------

void AddPrimaryLive(const ColumnList& all) {
  ColumnList list = all.Below("primary-", "Primary: ");
  const auto add = [&](std::string_view label, UnitSuffix unit, Single SuggestedFigures::*member) {
    list.Add(label, {.Suffix = unit, .Before = {}}, [member](const TableRow& row) {
      const std::optional<SuggestedFigures> suggested = row.Live.LiveSuggestion.ValueOr({});
      return FigureCell(suggested ? std::optional((*suggested).*member) : std::nullopt, OneDecimal);
    });
  };
  add("Suggested Sum of Diagonals", UnitSuffix::Length, &SuggestedFigures::SuggestedSpan);
  add("Suggested Bolt Length", UnitSuffix::Length, &SuggestedFigures::SugLength);
  add("Suggested PSUP", UnitSuffix::None, &SuggestedFigures::SugPSUP);
  list.Add("Actual PSUP", {},
           [](const TableRow& row) { return FigureCell(row.Live.LivePSUP.ValueOr({}), OneDecimal); });
}

constexpr std::array<SystemLabels, SystemCount> LiveLabels{
    {{"Cable Bolts Capacity", "Cable Bolts Stability Factor"},
     {"Trusses Capacity", "Trusses Stability Factor"},
     {"Roof Bolts Capacity", "Roof Bolts Stability Factor"},
     {"Standing Supports Capacity", "Standing Supports Stability Factor"}}};

void AddSecondaryLive(const ColumnList& all, const SecondaryPlace& place) {
  ColumnList list = all.Below(place.Key, place.Head);
  const CellUnit load{.Suffix = place.LoadUnit, .Before = {}};
  const NumberPattern pattern = &place == &EntriesPlace ? EntryPattern : IntersectionPattern;
  list.Add("Rock Load", load, [live = place.Live, pattern](const TableRow& row) {
    return FigureCell((row.Live.*live).RockLoad.ValueOr({}), pattern);
  });
  for (std::size_t system = 0; system < SystemCount; ++system) {
    const auto add = [&](std::string_view label, CellUnit unit, Single SupportResult::*member, NumberPattern shown) {
      list.Add(label, unit, [place, system, member, shown](const TableRow& row) {
        if ((row.Shown.*place.Support).Systems().at(system)->Use != 1) return Cell{};
        const std::optional<SupportResult> result = (row.Live.*place.Live).Systems.at(system).ValueOr({});
        return FigureCell(result ? std::optional((*result).*member) : std::nullopt, shown);
      });
    };
    add(LiveLabels.at(system).Capacity, load, &SupportResult::Capacity, pattern);
    add(LiveLabels.at(system).Factor, {}, &SupportResult::StabilityFactor, FactorPattern);
  }
}

}  // namespace

void AddReportColumns(std::vector<Column>& columns) {
  const ColumnList list(columns, ColumnGroup::Report, "report-", "Report: ");
  AddPrimaryReport(list);
  SecondaryReportColumns(list, EntriesPlace).Add();
  SecondaryReportColumns(list, IntersectionsPlace).Add();
}

void AddLiveColumns(std::vector<Column>& columns) {
  const ColumnList list(columns, ColumnGroup::Live, "live-", "Dialog: ");
  AddPrimaryLive(list);
  AddSecondaryLive(list, EntriesPlace);
  AddSecondaryLive(list, IntersectionsPlace);
}

void AddCostColumns(std::vector<Column>& columns) {
  ColumnList list(columns, ColumnGroup::Cost, "cost-total-", "Cost: Total ");
  const auto add = [&](std::string_view per, CellUnit unit, std::size_t column) {
    list.AddAs(per, "per " + std::string(per), unit, [column](const TableRow& row) {
      if (!row.CostOfBolts.IsThere()) return NoResultCell();
      return NumberCell(row.CostOfBolts.Value().Totals.at(column), "0.00");
    });
  };
  add("bolt", {.Suffix = UnitSuffix::None, .Before = "$/bolt"}, 0);
  add("length", {.Suffix = UnitSuffix::Length, .Before = "$/"}, 1);
  add("shift", {.Suffix = UnitSuffix::None, .Before = "$/shift"}, 2);
  add("ton", {.Suffix = UnitSuffix::ProductionMass, .Before = "$/"}, 3);
}

}  // namespace orby
