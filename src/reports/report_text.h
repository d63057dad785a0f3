// A page of a report, written line by line. It is read in a fixed-pitch font: the values stand in one column, behind
// their labels and a row of dots. Every line ends in CR LF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/types.h"
#include "design/units.h"

namespace orby {

inline constexpr std::size_t ReportWidth = 58;  // up to the column of the values; messages wrap there

class ReportText {
 public:
  explicit ReportText(UnitSystem projectUnits);

  // The text alone; an empty line without one.
  void Line(std::string_view text = {});

  // The label padded with dots to ReportWidth, the value, and the suffix of its unit. A longer label stays as it is.
  void Value(std::string_view label, std::string_view value, UnitSuffix unit = UnitSuffix::None);

  // Label and text with dots between them, filling ReportWidth together; just joined when they fill it already.
  void Words(std::string_view label, std::string_view text);

  // The text wrapped at the width, with an empty line behind it.
  void Wrapped(std::string_view text, std::size_t width);

  // The page as written so far, which is given away.
  std::string Take();

 private:
  UnitSystem units;
  std::string page;
};

}  // namespace orby
