// The first sentences of the paragraphs about controls.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace orby {

using Sentences = std::map<std::string, std::string, std::less<>>;

// Returns the first sentence of each description in the lists of a page, by the anchors of its term, and of each cell
// of a table, by its anchors. A sentence ends with a full stop and a space, or with its paragraph.
Sentences FirstSentences(std::string_view page);

}  // namespace orby
