// The little of HTML that the pages, the contents and the index of the help are made of.
#pragma once

#include <string>
#include <string_view>

namespace orby {

struct MarkupPiece {
  std::string text;             // in front of the tag, as it stands
  std::string tag;              // its name in upper case, "/UL" for an end; empty at the end of the source
  std::string_view attributes;  // all behind the name
};

// Takes the text up to the next tag off the front of `rest`, and the tag. Comments are passed over.
MarkupPiece TakeMarkup(std::string_view& rest);

// The decoded value of the attribute of that name, in whatever case; empty without one.
std::string AttributeOf(const MarkupPiece& piece, std::string_view name);

// The text with its entities replaced; one that is unknown stays as it is.
std::string DecodedText(std::string_view text);

// What a page says, in one line of words parted by single blanks, without what stands in its head.
std::string TextOfPage(std::string_view page);

}  // namespace orby
