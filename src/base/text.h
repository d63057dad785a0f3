// Characters of UTF-8 texts, trimming, and the padding and wrapping of report lines. Positions and widths count
// characters, not bytes. A line end is CR LF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orby {

inline constexpr std::string_view LineEnd = "\r\n";

std::size_t CharacterCount(std::string_view text);

// Returns the byte offset of the character at a zero-based position, or the size of the text when it is shorter.
std::size_t CharacterOffset(std::string_view text, std::size_t position);

// Returns the text, or its start and three points if it has more characters.
std::string Shortened(const std::string& text, std::size_t most);

// Returns the last `count` characters.
std::string_view LastCharacters(std::string_view text, std::size_t count);

// Removes leading and trailing blanks, but not tabs.
std::string_view Trim(std::string_view text);

// Converts the letters a to z only. For type names and option words, never for paths.
std::string UpperCase(std::string_view text);

// Returns the text with its first letter in upper case, if that is one of a to z.
std::string Capitalised(std::string_view text);

// Returns true if the texts are equal, ignoring the case of the letters A to Z.
bool SameWithoutCase(std::string_view a, std::string_view b);

// Returns true if the text contains the wanted one, ignoring the case of the letters A to Z.
bool ContainsWithoutCase(std::string_view text, std::string_view wanted);

// Removes the first line from `rest` and returns it without its line end, which is CR LF, LF or CR.
std::string_view TakeLine(std::string_view& rest);

// Appends label, fillers and value, so that they fill the width together. Adds no filler when label and value already
// fill it.
void AppendFilled(std::string& text, std::string_view label, std::string_view value, std::size_t width, char filler);

// Returns the label followed by dots up to the width. A label that fills the width is returned unchanged.
std::string PadDots(std::string_view label, std::size_t width);  // nothing calls it today

// Returns label, dots and value, which fill the width together. Adds no dot when label and value already fill it.
std::string DotLeader(std::string_view label, std::string_view value, std::size_t width);  // nothing calls it today

// Returns the value followed by blanks up to the width.
std::string PadSpaces(std::string_view value, std::size_t width);

// Returns the value preceded by blanks up to the width.
std::string AlignRight(std::string_view value, std::size_t width);

// Breaks the text at blanks into lines of at most `width` characters. Each line, also the last one, ends with CR LF. A
// remainder without a blank in its first `width` characters becomes "..." and its last width - 3 characters. Returns
// the text unchanged when the width is 20 or less.
std::string WordWrapText(std::string_view text, std::size_t width);

// Returns "YES" if the flag is 1, otherwise "NO".
std::string_view YesNoText(int flag);

struct WrappedLine {
  std::string text;
  int count = 1;  // pieces plus one
};

// Breaks a description line into pieces of at most 60 characters, separated by CR LF. A piece ends after the last blank
// at positions 40 to 60, or at 60 characters when there is none. The last piece is broken by the same rule, although it
// may fit.
WrappedLine WrapDescriptionLine(std::string_view line);

}  // namespace orby
