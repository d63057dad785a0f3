// A distribution made ready for sampling.
#pragma once

#include <span>
#include <variant>
#include <vector>

#include <boost/math/distributions/beta.hpp>
#include <boost/math/distributions/lognormal.hpp>
#include <boost/math/distributions/normal.hpp>
#include <boost/math/distributions/triangular.hpp>
#include <boost/math/distributions/uniform.hpp>

#include "sampling/distribution.h"

namespace orby {

// Computes in double precision on every machine. A result that does not exist is an infinity or a NaN, which FaultOf
// refuses.
using SamplingPolicy =
    boost::math::policies::policy<boost::math::policies::promote_double<false>,
                                  boost::math::policies::domain_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::pole_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
                                  boost::math::policies::evaluation_error<boost::math::policies::ignore_error>>;

class PreparedDistribution {
 public:
  // Requires FaultOf(distribution) to be empty.
  explicit PreparedDistribution(const Distribution& distribution);

  // Returns the number that is not exceeded with this probability, 0 < probability < 1.
  double Quantile(double probability) const;
  // Replaces each probability, between 0 and 1, by its quantile.
  void TakeQuantiles(std::span<double> probabilities) const;
  // Returns the probability of numbers up to x.
  double Cumulative(double x) const;

  // Return the exact mean and standard deviation. Those of a distribution that is cut off are integrals of its density,
  // to about ten digits.
  double Mean() const;
  double Deviation() const;

 private:
  struct Values {
    std::vector<double> Sorted;
  };
  // A beta distribution on 0..1, moved to its bounds.
  struct ScaledBeta {
    boost::math::beta_distribution<double, SamplingPolicy> Unit;
    double Least;
    double Range;
  };
  using Law = std::variant<boost::math::normal_distribution<double, SamplingPolicy>,
                           boost::math::lognormal_distribution<double, SamplingPolicy>,
                           boost::math::triangular_distribution<double, SamplingPolicy>,
                           boost::math::uniform_distribution<double, SamplingPolicy>, ScaledBeta, Values>;
  struct Maker;
  struct Functions;

  double WithinBounds(double x) const;
  void CutOff(const Distribution& distribution);
  double Moment(double center, int power) const;

  Law law_;
  bool isCut_ = false;
  double lowest_ = 0;
  double highest_ = 0;
  // The probabilities of numbers up to the bounds, or in the upper tail those of numbers above them: a probability
  // close to 1 has too few digits.
  bool isUpperTail_ = false;
  double atLowest_ = 0;
  double atHighest_ = 1;
};

}  // namespace orby
