#include "base/number_limits.h"

#include <cmath>

#include "base/number_text.h"

namespace orby {

NumberLimits NumberLimits::And(const NumberLimits& other) const {
  NumberLimits both = *this;
  if (other.least >= least) {
    both.least = other.least;
    both.withLeast = other.withLeast && (other.least > least || withLeast);
  }
  if (other.most <= most) {
    both.most = other.most;
    both.withMost = other.withMost && (other.most < most || withMost);
  }
  return both;
}

std::string LimitsText(const NumberLimits& limits, std::string_view unit) {
  const bool hasLeast = std::isfinite(limits.least);
  const bool hasMost = std::isfinite(limits.most);
  std::string text;
  if (hasLeast && hasMost && limits.withLeast && limits.withMost) {
    text = NumberText(limits.least) + " to " + NumberText(limits.most);
  } else {
    if (hasLeast) text = (limits.withLeast ? "at least " : "above ") + NumberText(limits.least);
    if (hasLeast && hasMost) text += ", ";
    if (hasMost) text += (limits.withMost ? "at most " : "below ") + NumberText(limits.most);
  }
  if (!text.empty() && !unit.empty()) text.append(" ").append(unit);
  return text;
}

}  // namespace orby
