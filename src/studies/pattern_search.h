// A search through all patterns of one support for those that hold, ranked by cost.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "studies/pattern_cost.h"

namespace orby {

struct FoundPattern {
  Pattern Values;
  PatternCost Cost;
  double Margin = 0;  // see Assessment::Margin
  double Pieces = 0;  // see PiecesPerAdvance
  // Of those with a cost: no other pattern has both a lower or equal cost and a greater or equal margin. Of several
  // that are equal in both, only the first has the mark.
  bool IsOnFront = false;
  bool IsLongerThanNeeded = false;  // see Assessment
  bool operator==(const FoundPattern&) const = default;
};

// The patterns that hold, among those that were examined.
struct FoundPatterns {
  // The cheapest and all those on the front, by cost; of equal cost the greater margin first, then fewer pieces.
  std::vector<FoundPattern> Ranked;
  std::vector<FoundPattern> NotPriced;  // the first ones, in the order of the search
  // All that hold, also those that are not in the lists.
  std::size_t HoldingPriced = 0;
  std::size_t HoldingNotPriced = 0;
};

// Works in pieces, so that a window can show progress and cancel. It keeps copies of what it is given.
class PatternSearch {
 public:
  // `mostKept` is the greatest number of patterns in each list, apart from those on the front.
  PatternSearch(const Design& design, const Catalogs& catalogs, const PriceList& prices, const StudiedSupport& support,
                const PatternLimits& limits, std::size_t mostKept = 1000);
  ~PatternSearch();
  PatternSearch(PatternSearch&&) noexcept;
  PatternSearch& operator=(PatternSearch&&) noexcept;

  // Examines the next patterns, at most `count`. Returns true when all have been examined.
  bool Step(std::size_t count);

  std::size_t Total() const;  // patterns within the limits; 0 if the limits have a fault
  std::size_t Done() const;   // examined so far

  // Returns what has been found so far.
  FoundPatterns Found() const;

 private:
  class Work;
  std::unique_ptr<Work> work_;
};

}  // namespace orby
