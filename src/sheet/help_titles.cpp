#include "sheet/help_titles.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

namespace orby {
namespace {

struct TitledPage {
  std::string_view File;
  std::string_view Title;
};

constexpr auto TitledPages = std::to_array<TitledPage>({
    {"relations.html", "Relations: symbols and units"},
    {"relation-psup.html", "Suggested support"},
    {"relation-actual.html", "Actual support"},
    {"relation-entries.html", "Secondary support of entries: loads and capacities"},
    {"relation-intersections.html", "Secondary support of intersections: loads and capacities"},
    {"relation-cost.html", "Cost of the bolting cycle"},
});

}  // namespace

std::string_view HelpTitle(std::string_view address) {
  const std::string_view file = address.substr(0, address.find('#'));
  const auto* page = std::ranges::find(TitledPages, file, &TitledPage::File);
  if (page == TitledPages.end()) throw std::logic_error("no title of " + std::string(file));
  return page->Title;
}

}  // namespace orby
