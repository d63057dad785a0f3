// The numbers that a field accepts.
#pragma once

#include <limits>
#include <string>
#include <string_view>

namespace orby {

struct NumberLimits {
  double least = -std::numeric_limits<double>::infinity();
  double most = std::numeric_limits<double>::infinity();
  bool withLeast = true;  // whether the limit itself is accepted
  bool withMost = true;

  constexpr bool Include(double number) const {
    return (withLeast ? number >= least : number > least) && (withMost ? number <= most : number < most);
  }

  // Returns the limits that both accept.
  NumberLimits And(const NumberLimits& other) const;

  bool operator==(const NumberLimits&) const = default;
};

constexpr NumberLimits Above(double least) { return {.least = least, .withLeast = false}; }
constexpr NumberLimits AtLeast(double least) { return {.least = least}; }
constexpr NumberLimits Between(double least, double most) { return {.least = least, .most = most}; }

// Returns the limits in words: "above 0", "100 to 200 pcf", "above 0, at most 10 ft". Empty if there are none.
// unit: what follows each range; may be empty.
std::string LimitsText(const NumberLimits& limits, std::string_view unit);

}  // namespace orby
