// How the groups of columns are made.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tables/column.h"

namespace orby {

// Returns the words of a label as a key: "rock-fall-angle-entry" of "Rock Fall Angle (Entry)". Units in brackets, which
// have a slash or a dollar sign, are left out.
std::string KeyOf(std::string_view label);

// Adds columns with a common start of their keys and heads.
class ColumnList {
 public:
  ColumnList(std::vector<Column>& columns, ColumnGroup group, std::string key = {}, std::string head = {})
      : columns_(columns), group_(group), key_(std::move(key)), head_(std::move(head)) {}

  // Adds a column whose key is that of its label.
  template <class Get>
  void Add(std::string_view label, CellUnit unit, Get get) {
    AddAs(KeyOf(label), label, unit, std::move(get));
  }
  template <class Get>
  void AddAs(std::string_view key, std::string_view label, CellUnit unit, Get get) {
    columns_.push_back({.Key = key_ + std::string(key),
                        .Head = head_ + std::string(label),
                        .Unit = unit,
                        .Group = group_,
                        .Get = std::move(get)});
  }
  // Returns a list whose keys and heads continue those of this one.
  ColumnList Below(std::string_view key, std::string_view head) const {
    return {columns_, group_, key_ + std::string(key), head_ + std::string(head)};
  }

 private:
  std::vector<Column>& columns_;
  ColumnGroup group_;
  std::string key_;
  std::string head_;
};

void AddInputColumns(std::vector<Column>& columns);
void AddReportColumns(std::vector<Column>& columns);
void AddLiveColumns(std::vector<Column>& columns);
void AddCostColumns(std::vector<Column>& columns);
void AddVerdictColumns(std::vector<Column>& columns);

// Entries and intersections.
struct SecondaryPlace {
  std::string_view Key;
  std::string_view Head;
  SecondarySupport RoofSupport::*Support;
  SupportFigures Figures::*Live;
  Computed<Reinforcement> Figures::*Added;
  UnitSuffix LoadUnit;
};
inline constexpr SecondaryPlace EntriesPlace{.Key = "entry-",
                                             .Head = "Entries: ",
                                             .Support = &RoofSupport::Entries,
                                             .Live = &Figures::Entries,
                                             .Added = &Figures::EntryReinforcement,
                                             .LoadUnit = UnitSuffix::LineLoad};
inline constexpr SecondaryPlace IntersectionsPlace{.Key = "intersection-",
                                                   .Head = "Intersections: ",
                                                   .Support = &RoofSupport::Intersections,
                                                   .Live = &Figures::Intersections,
                                                   .Added = &Figures::IntersectionReinforcement,
                                                   .LoadUnit = UnitSuffix::Force};

}  // namespace orby
