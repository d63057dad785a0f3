// Measured values as a text that was typed, pasted or read from a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orby {

struct MeasuredValues {
  static constexpr std::size_t Most = 100'000;

  std::vector<double> Values;
  std::string Fault;  // why the text cannot be used, as a sentence; empty if it can
};

// Reads numbers separated by blanks, tabs, semicolons, commas or new lines. The first line may be a heading: it is left
// out if it starts with no number. A text with semicolons and commas is refused, because its commas may be decimal
// marks.
MeasuredValues ReadMeasured(std::string_view text);

// Returns the values as lines.
std::string MeasuredText(const std::vector<double>& values);

// Returns how many values there are, their mean, and the least and the greatest one: "10 values, mean 47.3, from 38 to
// 61". Requires a value.
std::string SummaryOf(const std::vector<double>& values);

}  // namespace orby
