// The subset of HTML in the pages, the contents and the index of the help.
#pragma once

#include <string>
#include <string_view>

namespace orby {

struct MarkupPiece {
  std::string text;             // before the tag, not decoded
  std::string tag;              // name in upper case, "/UL" for an end tag; empty at the end of the source
  std::string_view attributes;  // everything after the name
};

// Removes the text up to the next tag, and the tag, from `rest` and returns them. Skips comments.
MarkupPiece TakeMarkup(std::string_view& rest);

// Returns the decoded value of the attribute of that name, ignoring case. Empty when there is none.
std::string AttributeOf(const MarkupPiece& piece, std::string_view name);

// Replaces the entities of a text. An unknown entity is not changed.
std::string DecodedText(std::string_view text);

// Returns the words of a page, separated by single spaces, excluding `<head>`.
std::string TextOfPage(std::string_view page);

}  // namespace orby
