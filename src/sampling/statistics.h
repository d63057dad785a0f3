// Statistics that are gathered batch by batch, in memory that does not grow with the samples.
//
// Batches are merged in the order of their numbers, so that the last digit does not depend on the threads.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "sampling/studied_figures.h"

namespace orby {

// The bins of a histogram, all of one width.
struct Bins {
  static constexpr std::size_t Count = 2000;

  double From = 0;
  double Width = 1;

  // Returns the bin of a value: 0 below the first one, Count + 1 at the end of the last one or above it.
  std::size_t PlaceOf(double value) const;
  bool operator==(const Bins&) const = default;
};

// Returns bins over these values and a tenth of their range on each side. Values that are a NaN do not count.
Bins BinsFor(std::span<const Single> values);

// The values of one figure in one batch, or in all batches so far.
class FigureSums {
 public:
  FigureSums() : counts_(Bins::Count + 2) {}

  // Takes the values of a batch; a NaN is none. Requires that these sums are empty.
  void Take(std::span<const Single> values, const Bins& bins);
  // Makes the sums empty, for another batch.
  void Clear();
  void Merge(const FigureSums& later);

  std::uint64_t Count() const { return count_; }  // of values
  double Mean() const { return mean_; }
  double Deviation() const;  // the standard deviation of a sample; 0 for fewer than two values
  double Least() const { return least_; }
  double Greatest() const { return greatest_; }
  // The values below the first bin, in each bin, and above the last one.
  std::span<const std::uint64_t> Counts() const { return counts_; }
  // Returns the value that this share of the values does not exceed, 0..1, to the width of a bin. Values outside the
  // bins are taken as spread evenly up to the least or greatest one. Requires a value.
  double Percentile(double share, const Bins& bins) const;
  // Returns the share of values up to x, interpolated in its bin.
  double ShareUpTo(double x, const Bins& bins) const;

 private:
  struct Stretch {
    double From;
    double To;
  };
  Stretch StretchOf(std::size_t place, const Bins& bins) const;

  std::uint64_t count_ = 0;
  double mean_ = 0;
  double squares_ = 0;  // sum of the squared differences from the mean
  double least_ = 0;
  double greatest_ = 0;
  std::vector<std::uint64_t> counts_;
};

struct Interval {
  double Low = 0;
  double High = 0;
  double Width() const { return High - Low; }
  bool operator==(const Interval&) const = default;
};

// The means of the batches, for the confidence interval of their common mean.
class BatchMeans {
 public:
  void Add(double mean);

  std::uint64_t Count() const { return count_; }
  double Mean() const { return mean_; }
  // Returns the interval that holds the true mean with this confidence, by Student's t with a degree of freedom less
  // than there are batches. Returns nothing for fewer than two batches.
  std::optional<Interval> IntervalOf(double confidence) const;

 private:
  std::uint64_t count_ = 0;
  double mean_ = 0;
  double squares_ = 0;
};

// Returns how far the true probability of an event may be above 0 when it occurred in none of the samples: the exact
// limit of Clopper and Pearson, 1 - ((1 - confidence) / 2)^(1 / samples).
double LimitOfNone(std::uint64_t samples, double confidence);

inline constexpr std::size_t HoldingCount = 4;

// How often a judgement had each result.
struct ResultCounts {
  std::array<std::uint64_t, HoldingCount> Of{};  // by Holding

  std::uint64_t Total() const { return Of[0] + Of[1] + Of[2] + Of[3]; }
  std::uint64_t Short() const { return Of[static_cast<std::size_t>(Holding::Short)]; }
  bool operator==(const ResultCounts&) const = default;
};

}  // namespace orby
