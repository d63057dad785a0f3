// A page of a report, written line by line. It is shown in a fixed-pitch font: the values are in one column, after
// their labels and a row of dots. Every line ends with CR LF.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/types.h"
#include "design/units.h"

namespace orby {

inline constexpr std::size_t ReportWidth = 58;  // width of the labels; messages wrap there

class ReportText {
 public:
  explicit ReportText(UnitSystem projectUnits);

  // Appends a line with only this text, or an empty line.
  void Line(std::string_view text = {});

  // Appends the label padded with dots to ReportWidth, the value, and the suffix of its unit. A longer label is not
  // cut.
  void Value(std::string_view label, std::string_view value, UnitSuffix unit = UnitSuffix::None);

  // Appends label, dots and text, which fill ReportWidth together. Adds no dot when label and text already fill it.
  void Words(std::string_view label, std::string_view text);

  // Appends the text wrapped at the width, followed by an empty line.
  void Wrapped(std::string_view text, std::size_t width);

  // Returns the page and leaves this object empty.
  std::string Take();

 private:
  UnitSystem units;
  std::string page;
};

}  // namespace orby
