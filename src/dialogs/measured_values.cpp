#include "dialogs/measured_values.h"

#include <algorithm>
#include <numeric>

#include "base/number_text.h"
#include "base/text.h"

namespace orby {
namespace {

constexpr std::string_view ValueSeparators = " \t;,\r\n";
constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

// Returns the next part of the text up to one of the separators, and removes it with all separators after it.
std::string_view TakePart(std::string_view& text, std::string_view separators) {
  const std::string_view part = text.substr(0, text.find_first_of(separators));
  text.remove_prefix(part.size());
  text.remove_prefix(std::min(text.find_first_not_of(separators), text.size()));
  return part;
}

std::string_view WithoutLeading(std::string_view text, std::string_view separators) {
  return text.substr(std::min(text.find_first_not_of(separators), text.size()));
}

// Returns a part of the text that is no number, short enough for a message.
std::string QuotedPart(std::string_view part) {
  constexpr std::size_t Most = 40;
  return "\"" + std::string(part.substr(0, Most)) + (part.size() > Most ? "...\"" : "\"");
}

std::string_view WithoutHeading(std::string_view text) {
  std::string_view rest = text;
  std::string_view line = TakePart(rest, LineEnds);
  const std::string_view first = TakePart(line, ValueSeparators);
  return WholeTextNumber(first) || rest.empty() ? text : rest;
}

}  // namespace

MeasuredValues ReadMeasured(std::string_view text) {
  if (text.starts_with(ByteOrderMark)) text.remove_prefix(ByteOrderMark.size());
  text = WithoutHeading(WithoutLeading(text, ValueSeparators));
  MeasuredValues read;
  if (text.find(';') != std::string_view::npos && text.find(',') != std::string_view::npos) {
    read.Fault = "The measured values have commas and semicolons. Write their decimals with a point.";
    return read;
  }
  while (!text.empty()) {
    const std::string_view part = TakePart(text, ValueSeparators);
    const auto value = WholeTextNumber(part);
    if (!value) return {{}, "Measured values: " + QuotedPart(part) + " is not a number."};
    if (read.Values.size() == MeasuredValues::Most) return {{}, "There are more than 100,000 measured values."};
    read.Values.push_back(*value);
  }
  if (read.Values.empty()) read.Fault = "There are no measured values.";
  return read;
}

std::string MeasuredText(const std::vector<double>& values) {
  std::string text;
  for (const double value : values) text += NumberText(value) + "\r\n";
  return text;
}

std::string SummaryOf(const std::vector<double>& values) {
  const auto [least, greatest] = std::ranges::minmax(values);
  const double mean = std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
  return std::to_string(values.size()) + (values.size() == 1 ? " value, mean " : " values, mean ") +
         FormatNumber(mean, "0.0##") + ", from " + NumberText(least) + " to " + NumberText(greatest);
}

}  // namespace orby
