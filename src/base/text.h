// Texts: characters of UTF-8, trimming, and the padding and wrapping of report lines. A position or a width counts
// characters, never bytes; a line end is CR LF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orby {

inline constexpr std::string_view LineEnd = "\r\n";

std::size_t CharacterCount(std::string_view text);

// Byte offset of the character at this zero-based position; the text's size when it is shorter.
std::size_t CharacterOffset(std::string_view text, std::size_t position);

// The last `count` characters.
std::string_view LastCharacters(std::string_view text, std::size_t count);

// Without leading and trailing blanks. Only the blank counts, not the tab.
std::string_view Trim(std::string_view text);

// Letters A to Z only: for type names and option words, never for paths.
std::string UpperCase(std::string_view text);

// Whether the texts are the same but for the case of the letters A to Z.
bool SameWithoutCase(std::string_view a, std::string_view b);

// Takes the next line off the front of `rest` and returns it without its end: CR LF, LF or CR.
std::string_view TakeLine(std::string_view& rest);

// Appends label, filler and value, filling the width together; just joins them when they fill it already.
void AppendFilled(std::string& text, std::string_view label, std::string_view value, std::size_t width, char filler);

// The label followed by dots up to the width; a label as long as the width or longer stays as it is.
std::string PadDots(std::string_view label, std::size_t width);  // nothing calls it today

// Label, dots, value, filling the width together; just joined when they fill it already.
std::string DotLeader(std::string_view label, std::string_view value, std::size_t width);  // nothing calls it today

// The value followed by blanks up to the width.
std::string PadSpaces(std::string_view value, std::size_t width);

// The value with blanks in front of it up to the width.
std::string AlignRight(std::string_view value, std::size_t width);

// The text broken at blanks into lines shorter than or as long as the width, each ended by CR LF, the last one too.
// A remainder with no blank in its first `width` characters becomes "..." and its last width - 3 characters.
// Returns the text unchanged for a width of 20 or less.
std::string WordWrapText(std::string_view text, std::size_t width);

// "YES" when the flag is 1, otherwise "NO".
std::string_view YesNoText(int flag);

// Breaks an over-long description line at 60 characters, at a blank if one stands at positions 40 to 60, the pieces
// joined by CR LF. Returns the number of pieces plus one. A last piece that would fit is broken by the same rule.
int WrapDescriptionLine(std::string& line);

}  // namespace orby
