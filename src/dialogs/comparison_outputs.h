// Designs side by side as a page in HTML and as pages to print.
#pragma once

#include <string>
#include <vector>

#include "sheet/page_layout.h"
#include "tables/comparison.h"

namespace orby {

struct PrintedComparison {
  DesignComparison Table;
  std::vector<Scene> Sections;  // one for each design
  std::string CurveTitle;
  Scene Curves;
  std::string Date;
};

inline constexpr std::string_view ComparisonTitle = "Designs side by side";
inline constexpr std::string_view BestNote =
    "The word best marks the greatest capacities and stability factors, the lowest cost, and the best judgements.";

// Returns true for a row that says what a design is called, not what it is like.
bool IsIdentity(const ComparedRow& row);

// Returns what design number `place` is called: "Variant 1: Cinder Hollow, fault zone, /mine/cinder hollow.ORB".
std::string IdentityLine(const DesignComparison& comparison, std::size_t place);

// Returns one file in UTF-8 that needs no other.
std::string ComparisonHtml(const PrintedComparison& printed);

// Returns the pages, upright for up to three designs and across for more.
PagedSheet PagesOf(const PrintedComparison& printed, const PageSize& size, const TextWidth& width);

}  // namespace orby
