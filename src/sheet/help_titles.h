// The titles of the pages of the help that explain relations.
#pragma once

#include <string_view>

namespace orby {

// Returns the title of the page of an address: "Suggested support" for "relation-psup.html#span". Throws
// std::logic_error for a page that explains no relation.
std::string_view HelpTitle(std::string_view address);

}  // namespace orby
