// The patterns that a search keeps: the first ones by cost, and the front of cost and margin.
#pragma once

#include <algorithm>
#include <map>
#include <tuple>
#include <vector>

#include "studies/pattern_search.h"

namespace orby {

struct Ranked {
  FoundPattern Found;
  std::size_t Order = 0;  // in the search
};

// Returns true if the first pattern comes before the second. Both have costs.
inline bool Before(const Ranked& a, const Ranked& b) {
  const auto key = [](const Ranked& r) {
    return std::tuple(r.Found.Cost.Dollars.value_or(0), -r.Found.Margin, r.Found.Pieces, r.Order);
  };
  return key(a) < key(b);
}

// The first patterns by Before, as a heap with the last one on top.
class BestPatterns {
 public:
  explicit BestPatterns(std::size_t most) : most_(most) {}

  void Add(const Ranked& pattern) {
    if (kept_.size() < most_) {
      kept_.push_back(pattern);
      std::ranges::push_heap(kept_, Before);
    } else if (most_ > 0 && Before(pattern, kept_.front())) {
      std::ranges::pop_heap(kept_, Before);
      kept_.back() = pattern;
      std::ranges::push_heap(kept_, Before);
    }
  }
  const std::vector<Ranked>& All() const { return kept_; }

 private:
  std::size_t most_;
  std::vector<Ranked> kept_;
};

// The patterns that no other one excels, by cost. The margin grows with the cost.
class Front {
 public:
  void Add(const Ranked& pattern) {
    const double cost = pattern.Found.Cost.Dollars.value_or(0);
    const auto above = byCost_.upper_bound(cost);
    if (above != byCost_.begin()) {
      const Ranked& rival = std::prev(above)->second;
      const bool isAsGood = rival.Found.Margin >= pattern.Found.Margin;
      const bool isEqual = rival.Found.Margin == pattern.Found.Margin && std::prev(above)->first == cost;
      if (isEqual ? !Before(pattern, rival) : isAsGood) return;
    }
    auto excelled = byCost_.lower_bound(cost);
    while (excelled != byCost_.end() && excelled->second.Found.Margin <= pattern.Found.Margin) {
      excelled = byCost_.erase(excelled);
    }
    byCost_.emplace_hint(excelled, cost, pattern);
  }
  const std::map<double, Ranked>& ByCost() const { return byCost_; }

 private:
  std::map<double, Ranked> byCost_;
};

}  // namespace orby
