#include "sampling/prepared_distribution.h"

#include <boost/math/quadrature/gauss_kronrod.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace orby {
namespace {

namespace math = boost::math;

constexpr double Infinity = std::numeric_limits<double>::infinity();

}  // namespace

// Makes the law of Boost for each description.
struct PreparedDistribution::Maker {
  Law operator()(const NormalLaw& law) const {
    return math::normal_distribution<double, SamplingPolicy>(law.Mean, law.Deviation);
  }

  // The logarithm has the variance ln(1 + (s/m)^2) and the mean ln m less half of that.
  Law operator()(const LognormalLaw& law) const {
    const double ratio = law.Deviation / law.Mean;
    const double variance = std::log1p(ratio * ratio);
    return math::lognormal_distribution<double, SamplingPolicy>(std::log(law.Mean) - variance / 2, std::sqrt(variance));
  }

  Law operator()(const TriangularLaw& law) const {
    return math::triangular_distribution<double, SamplingPolicy>(law.Least, law.Likeliest, law.Greatest);
  }

  Law operator()(const UniformLaw& law) const {
    return math::uniform_distribution<double, SamplingPolicy>(law.Least, law.Greatest);
  }

  Law operator()(const BetaLaw& law) const {
    return ScaledBeta{math::beta_distribution<double, SamplingPolicy>(law.Alpha, law.Beta), law.Least,
                      law.Greatest - law.Least};
  }

  Law operator()(const EmpiricalLaw& law) const {
    Values values{law.Values};
    std::ranges::sort(values.Sorted);
    return values;
  }
};

// The functions of each law without bounds. Laws of Boost refuse an infinite x, so their support is tested first.
struct PreparedDistribution::Functions {
  template <class Law>
  static double Cumulative(const Law& law, double x) {
    const auto [from, to] = math::support(law);
    if (x <= from) return 0;
    return x >= to ? 1 : math::cdf(law, x);
  }
  static double Cumulative(const ScaledBeta& law, double x) {
    return Cumulative(law.Unit, (x - law.Least) / law.Range);
  }
  static double Cumulative(const Values& law, double x) {
    const auto upTo = std::ranges::upper_bound(law.Sorted, x) - law.Sorted.begin();
    return static_cast<double>(upTo) / static_cast<double>(law.Sorted.size());
  }

  template <class Law>
  static double Above(const Law& law, double x) {
    const auto [from, to] = math::support(law);
    if (x <= from) return 1;
    return x >= to ? 0 : math::cdf(math::complement(law, x));
  }
  static double Above(const ScaledBeta& law, double x) { return Above(law.Unit, (x - law.Least) / law.Range); }
  static double Above(const Values& law, double x) { return 1 - Cumulative(law, x); }

  template <class Law>
  static double Quantile(const Law& law, double probability) {
    return math::quantile(law, probability);
  }
  static double Quantile(const ScaledBeta& law, double probability) {
    return law.Least + law.Range * math::quantile(law.Unit, probability);
  }
  static double Quantile(const Values& law, double probability) {
    const auto at = static_cast<std::size_t>(probability * static_cast<double>(law.Sorted.size()));
    return law.Sorted[std::min(at, law.Sorted.size() - 1)];
  }

  template <class Law>
  static double QuantileAbove(const Law& law, double probability) {
    return math::quantile(math::complement(law, probability));
  }
  static double QuantileAbove(const ScaledBeta& law, double probability) {
    return law.Least + law.Range * math::quantile(math::complement(law.Unit, probability));
  }
  static double QuantileAbove(const Values& law, double probability) { return Quantile(law, 1 - probability); }

  template <class Law>
  static double Density(const Law& law, double x) {
    return math::pdf(law, x);
  }
  static double Density(const ScaledBeta& law, double x) {
    return math::pdf(law.Unit, std::clamp((x - law.Least) / law.Range, 0.0, 1.0)) / law.Range;
  }
  static double Density(const Values&, double) { return 0; }

  template <class Law>
  static double Mean(const Law& law) {
    return math::mean(law);
  }
  static double Mean(const ScaledBeta& law) { return law.Least + law.Range * math::mean(law.Unit); }
  static double Mean(const Values& law) {
    double sum = 0;
    for (const double value : law.Sorted) sum += value;
    return sum / static_cast<double>(law.Sorted.size());
  }

  template <class Law>
  static double Deviation(const Law& law) {
    return math::standard_deviation(law);
  }
  static double Deviation(const ScaledBeta& law) { return law.Range * math::standard_deviation(law.Unit); }
  // Of the distribution that the values are, not of one that they were drawn from.
  static double Deviation(const Values& law) {
    const double mean = Mean(law);
    double sum = 0;
    for (const double value : law.Sorted) sum += (value - mean) * (value - mean);
    return std::sqrt(sum / static_cast<double>(law.Sorted.size()));
  }
};

PreparedDistribution::PreparedDistribution(const Distribution& distribution)
    : law_(std::visit(Maker(), distribution.Law)) {
  if (distribution.Lowest || distribution.Highest) CutOff(distribution);
}

void PreparedDistribution::CutOff(const Distribution& distribution) {
  lowest_ = distribution.Lowest.value_or(-Infinity);
  highest_ = distribution.Highest.value_or(Infinity);
  if (auto* values = std::get_if<Values>(&law_)) {
    std::erase_if(values->Sorted, [this](double value) { return value < lowest_ || value > highest_; });
    return;
  }
  isCut_ = true;
  std::visit(
      [this](const auto& law) {
        isUpperTail_ = Functions::Cumulative(law, lowest_) > 0.5;
        atLowest_ = isUpperTail_ ? Functions::Above(law, lowest_) : Functions::Cumulative(law, lowest_);
        atHighest_ = isUpperTail_ ? Functions::Above(law, highest_) : Functions::Cumulative(law, highest_);
      },
      law_);
}

// Rounding may lead out of the bounds by the last digit.
double PreparedDistribution::WithinBounds(double x) const { return std::clamp(x, lowest_, highest_); }

double PreparedDistribution::Quantile(double probability) const {
  TakeQuantiles({&probability, 1});
  return probability;
}

void PreparedDistribution::TakeQuantiles(std::span<double> probabilities) const {
  std::visit(
      [&](const auto& law) {
        if (!isCut_) {
          for (double& number : probabilities) number = Functions::Quantile(law, number);
          return;
        }
        const double share = atHighest_ - atLowest_;
        for (double& number : probabilities) {
          const double whole = atLowest_ + number * share;
          number = WithinBounds(isUpperTail_ ? Functions::QuantileAbove(law, whole) : Functions::Quantile(law, whole));
        }
      },
      law_);
}

double PreparedDistribution::Cumulative(double x) const {
  return std::visit(
      [&](const auto& law) {
        if (!isCut_) return Functions::Cumulative(law, x);
        if (x <= lowest_) return 0.0;
        if (x >= highest_) return 1.0;
        const double at = isUpperTail_ ? Functions::Above(law, x) : Functions::Cumulative(law, x);
        return (at - atLowest_) / (atHighest_ - atLowest_);
      },
      law_);
}

// Returns the integral of (x - center)^power over the density within the bounds. An open bound is replaced by a number
// beyond which next to nothing lies.
double PreparedDistribution::Moment(double center, int power) const {
  constexpr double NextToNothing = 1e-16;
  constexpr unsigned Depth = 20;
  constexpr double Tolerance = 1e-12;
  return std::visit(
      [&](const auto& law) {
        const double from = std::max(lowest_, Functions::Quantile(law, NextToNothing));
        const double to = std::min(highest_, Functions::QuantileAbove(law, NextToNothing));
        const auto weighted = [&](double x) { return std::pow(x - center, power) * Functions::Density(law, x); };
        const double share = std::abs(atHighest_ - atLowest_);
        return math::quadrature::gauss_kronrod<double, 61>::integrate(weighted, from, to, Depth, Tolerance) / share;
      },
      law_);
}

double PreparedDistribution::Mean() const {
  if (!isCut_) return std::visit([](const auto& law) { return Functions::Mean(law); }, law_);
  // The mean of the whole as the center keeps the digits of a narrow distribution far from 0.
  const double center = std::visit([](const auto& law) { return Functions::Mean(law); }, law_);
  return center + Moment(center, 1);
}

double PreparedDistribution::Deviation() const {
  if (!isCut_) return std::visit([](const auto& law) { return Functions::Deviation(law); }, law_);
  return std::sqrt(Moment(Mean(), 2));
}

}  // namespace orby
