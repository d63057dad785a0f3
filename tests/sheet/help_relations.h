// The relations as the pages of the help show them.
//
// A page has a block for each of its relations between two comments:
//
//   <!-- relation suggested-span -->
//   ...
//   <!-- /relation suggested-span -->
#pragma once

#include <string>
#include <string_view>

#include "sheet/relations.h"

namespace orby::test {

// Returns the block of a relation without its comments: name, formula, symbols with meaning and unit, and where the
// formula holds.
std::string HelpBlock(const Relation& relation);

// Returns what stands between the comments of a relation. Throws std::runtime_error if the page does not have both
// comments, each once, in their order.
std::string_view BlockOnPage(std::string_view page, std::string_view key);

// Returns the page with the block of each of its relations replaced by that of the table. Throws as BlockOnPage for a
// relation that belongs to the page.
std::string WithHelpBlocks(std::string page, std::string_view name);

// Returns the file and the anchor of a help address: "relation-psup.html" and "span".
struct HelpPlace {
  std::string_view Page;
  std::string_view Anchor;
};
HelpPlace PlaceInHelp(const Relation& relation);

}  // namespace orby::test
