// Texts in HTML.
#pragma once

#include <string>
#include <string_view>

namespace orby {

// Appends the text, in which nothing is taken for markup, also between quotes. Control characters become blanks.
void AppendEscaped(std::string& html, std::string_view text);

std::string EscapedHtml(std::string_view text);

// Returns an element with a text: <th scope="col">Input</th>. `start` is the name with its attributes.
std::string Element(std::string_view start, std::string_view text);

// A unit is a name with an exponent: "kN/m" and "3" for kN/m3.
struct UnitParts {
  std::string_view Name;
  std::string_view Exponent;
};
UnitParts PartsOfUnit(std::string_view unit);

// Returns a unit with its exponent raised.
std::string UnitHtml(std::string_view unit);

}  // namespace orby
