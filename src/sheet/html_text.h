// Elements and units in HTML.
#pragma once

#include <string>
#include <string_view>

namespace orby {

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
