// What differs between the sheets of secondary support of entries and of intersections.
#pragma once

#include <array>

#include "base/number_text.h"
#include "core/figure_patterns.h"
#include "sheet/sheet_writer.h"

namespace orby {

struct SystemTexts {
  std::string_view Key;
  std::string_view Title;
};

struct SheetOfOpening {
  Opening Where;
  SecondarySupport RoofSupport::*Support;
  SupportFigures Figures::*Live;
  Computed<Reinforcement> Figures::*Added;
  SheetUnit LoadUnit;
  std::string_view Key;
  std::string_view Of;  // "of entries"
  NumberPattern DialogPattern;
  std::string (*ReportText)(Single load);
  std::array<SystemTexts, SystemCount> Systems;
};

inline std::string EntryLoadText(Single load) { return FormatNumber(load, EntryPattern); }
inline std::string IntersectionLoadText(Single load) { return NumberText(load); }

inline constexpr SheetOfOpening EntrySheet{.Where = Opening::Entries,
                                           .Support = &RoofSupport::Entries,
                                           .Live = &Figures::Entries,
                                           .Added = &Figures::EntryReinforcement,
                                           .LoadUnit = SheetUnit::LineLoad,
                                           .Key = "entry-rock",
                                           .Of = "of entries",
                                           .DialogPattern = EntryPattern,
                                           .ReportText = EntryLoadText,
                                           .Systems = {{{"entry-cables", "Cable bolts of entries"},
                                                        {"entry-trusses", "Trusses of entries"},
                                                        {"entry-bolts", "Secondary bolts of entries"},
                                                        {"entry-standing", "Standing supports of entries"}}}};
inline constexpr SheetOfOpening IntersectionSheet{
    .Where = Opening::Intersections,
    .Support = &RoofSupport::Intersections,
    .Live = &Figures::Intersections,
    .Added = &Figures::IntersectionReinforcement,
    .LoadUnit = SheetUnit::Force,
    .Key = "intersection-rock",
    .Of = "of intersections",
    .DialogPattern = IntersectionPattern,
    .ReportText = IntersectionLoadText,
    .Systems = {{{"intersection-cables", "Cable bolts of intersections"},
                 {"intersection-trusses", "Trusses of intersections"},
                 {"intersection-bolts", "Secondary bolts of intersections"},
                 {"intersection-standing", "Standing supports of intersections"}}}};

}  // namespace orby
