// Numbers of all magnitudes for the property tests of files.
#pragma once

#include <rapidcheck.h>

#include <utility>

#include "base/arithmetic.h"
#include "base/number_text.h"

namespace orby::test {

// Up to seven significant digits and an exponent from -6 to 30, which a user can type and a file keeps.
inline rc::Gen<Single> AnySingle() {
  return rc::gen::map(rc::gen::pair(rc::gen::inRange(-9'999'999, 10'000'000), rc::gen::inRange(-6, 31)),
                      [](const std::pair<int, int>& parts) {
                        return ToSingle(TextValue(NumberText(parts.first) + "E" + NumberText(parts.second)));
                      });
}

}  // namespace orby::test
