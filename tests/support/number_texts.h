// Texts that a user may leave in a number field: numbers, parts of numbers, and texts that look like numbers.
#pragma once

#include <rapidcheck.h>

#include <string>

namespace orby::test {

inline rc::Gen<std::string> FieldTexts() {
  static const std::string letters = "0123456789+-.,eEdD&HhOo \t";
  const auto scribble = rc::gen::container<std::string>(rc::gen::elementOf(letters));
  const auto power =
      rc::gen::map(rc::gen::inRange(-420, 420), [](int exponent) { return "1E" + std::to_string(exponent); });
  const auto known = rc::gen::element<std::string>("", "0", "0.", "-", "-1", "1E40", "-1E40", "3.5E38", "1E400",
                                                   "-1E400", "1,5", "&HFFFFFFFF", "é", "45");
  return rc::gen::oneOf(scribble, power, known);
}

}  // namespace orby::test
