#include "sampling/statistics.h"

#include <boost/math/distributions/students_t.hpp>

#include <algorithm>
#include <cmath>

namespace orby {
namespace {

using IntervalPolicy = boost::math::policies::policy<boost::math::policies::promote_double<false>>;

}  // namespace

std::size_t Bins::PlaceOf(double value) const {
  const double place = std::floor((value - From) / Width);
  if (place < 0) return 0;
  return place < static_cast<double>(Count) ? static_cast<std::size_t>(place) + 1 : Count + 1;
}

Bins BinsFor(std::span<const Single> values) {
  double least = 0;
  double greatest = 0;
  bool any = false;
  for (const Single value : values) {
    if (value != value) continue;
    least = any ? std::min<double>(least, value) : value;
    greatest = any ? std::max<double>(greatest, value) : value;
    any = true;
  }
  constexpr double Margin = 0.1;
  double margin = Margin * (greatest - least);
  // A figure that has not changed so far may still change.
  if (margin == 0) margin = std::max(std::abs(least), 1.0) * 1e-3;
  return {least - margin, (greatest - least + 2 * margin) / static_cast<double>(Bins::Count)};
}

void FigureSums::Clear() {
  count_ = 0;
  mean_ = squares_ = least_ = greatest_ = 0;
  std::ranges::fill(counts_, 0U);
}

void FigureSums::Take(std::span<const Single> values, const Bins& bins) {
  double sum = 0;
  for (const Single value : values) {
    if (value != value) continue;
    least_ = count_ == 0 ? value : std::min<double>(least_, value);
    greatest_ = count_ == 0 ? value : std::max<double>(greatest_, value);
    ++count_;
    sum += value;
    ++counts_[bins.PlaceOf(value)];
  }
  if (count_ == 0) return;
  mean_ = sum / static_cast<double>(count_);
  for (const Single value : values) {
    if (value == value) squares_ += (value - mean_) * (value - mean_);
  }
}

// The formulas of Chan, Golub and LeVeque for the moments of two samples together.
void FigureSums::Merge(const FigureSums& later) {
  if (later.count_ == 0) return;
  least_ = count_ == 0 ? later.least_ : std::min(least_, later.least_);
  greatest_ = count_ == 0 ? later.greatest_ : std::max(greatest_, later.greatest_);
  const auto before = static_cast<double>(count_);
  const auto added = static_cast<double>(later.count_);
  const double step = later.mean_ - mean_;
  count_ += later.count_;
  mean_ += step * added / (before + added);
  squares_ += later.squares_ + step * step * before * added / (before + added);
  for (std::size_t i = 0; i < counts_.size(); ++i) counts_[i] += later.counts_[i];
}

double FigureSums::Deviation() const { return count_ < 2 ? 0 : std::sqrt(squares_ / static_cast<double>(count_ - 1)); }

// No value is outside least_..greatest_, so neither is a part of a stretch.
FigureSums::Stretch FigureSums::StretchOf(std::size_t place, const Bins& bins) const {
  const auto edge = [&](std::size_t bin) {
    return std::clamp(bins.From + bins.Width * static_cast<double>(bin), least_, greatest_);
  };
  if (place == 0) return {least_, edge(0)};
  return {edge(place - 1), place > Bins::Count ? greatest_ : edge(place)};
}

double FigureSums::Percentile(double share, const Bins& bins) const {
  const double wanted = share * static_cast<double>(count_);
  double before = 0;
  for (std::size_t place = 0; place < counts_.size(); ++place) {
    const auto here = static_cast<double>(counts_[place]);
    if (here > 0 && before + here >= wanted) {
      const auto [from, to] = StretchOf(place, bins);
      return from + (to - from) * (wanted - before) / here;
    }
    before += here;
  }
  return greatest_;
}

double FigureSums::ShareUpTo(double x, const Bins& bins) const {
  if (count_ == 0 || x < least_) return 0;
  if (x >= greatest_) return 1;
  const std::size_t place = bins.PlaceOf(x);
  double below = 0;
  for (std::size_t i = 0; i < place; ++i) below += static_cast<double>(counts_[i]);
  const auto [from, to] = StretchOf(place, bins);
  const double part = to > from ? std::clamp((x - from) / (to - from), 0.0, 1.0) : 1;
  return (below + part * static_cast<double>(counts_[place])) / static_cast<double>(count_);
}

void BatchMeans::Add(double mean) {
  ++count_;
  const double step = mean - mean_;
  mean_ += step / static_cast<double>(count_);
  squares_ += step * (mean - mean_);
}

std::optional<Interval> BatchMeans::IntervalOf(double confidence) const {
  if (count_ < 2) return std::nullopt;
  const auto batches = static_cast<double>(count_);
  const boost::math::students_t_distribution<double, IntervalPolicy> student(batches - 1);
  const double quantile = boost::math::quantile(boost::math::complement(student, (1 - confidence) / 2));
  const double half = quantile * std::sqrt(squares_ / (batches - 1) / batches);
  return Interval{mean_ - half, mean_ + half};
}

double LimitOfNone(std::uint64_t samples, double confidence) {
  return -std::expm1(std::log((1 - confidence) / 2) / static_cast<double>(samples));
}

}  // namespace orby
