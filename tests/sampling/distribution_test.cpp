// The distributions of inputs against their exact moments and distribution functions.
#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

#include "sampling/samples.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Each;
using testing::Ge;
using testing::HasSubstr;
using testing::Le;

double NormalUpTo(double x) { return 0.5 * std::erfc(-x / std::numbers::sqrt2); }

struct KnownLaw {
  const char* Name;
  Distribution Law;
  double Mean;
  double Deviation;
  std::function<double(double)> Cumulative;
};

double RatingUpTo(double x) { return NormalUpTo((x - 45) / 6); }
double DepthUpTo(double x) { return x <= 0 ? 0 : NormalUpTo((std::log(x) - 6.186607003364549) / 0.23664781874186963); }
double LengthUpTo(double x) {
  if (x <= 10) return 0;
  if (x >= 24) return 1;
  return x < 14 ? (x - 10) * (x - 10) / 56 : 1 - (24 - x) * (24 - x) / 140;
}
double WidthUpTo(double x) { return std::clamp((x - 2) / 6, 0.0, 1.0); }
double AngleUpTo(double x) {
  const double t = std::clamp(x / 10, 0.0, 1.0);
  return t * t * (6 - 8 * t + 3 * t * t);
}

std::function<double(double)> Between(double (*whole)(double), double lowest, double highest) {
  return [=](double x) {
    return (whole(std::clamp(x, lowest, highest)) - whole(lowest)) / (whole(highest) - whole(lowest));
  };
}

const EmpiricalLaw Measured{{38, 41, 42, 42, 45, 47, 50, 52, 55, 61}};

double MeasuredUpTo(double x) {
  return static_cast<double>(std::ranges::count_if(Measured.Values, [x](double value) { return value <= x; })) / 10;
}

const KnownLaw KnownLaws[] = {
    {"Normal", RatingLaw, 45, 6, RatingUpTo},
    {"Lognormal", DepthLaw, 500, 120, DepthUpTo},
    {"Triangular", LengthLaw, 16, 2.943920288775949, LengthUpTo},
    {"Uniform", WidthLaw, 5, 1.7320508075688772, WidthUpTo},
    {"Beta", AngleLaw, 4, 2, AngleUpTo},
    {"Measured", {Measured}, 47.3, 6.812488532100439, MeasuredUpTo},
    {"NormalCut", {NormalLaw{45, 6}, 39, 54}, 45.87112468291516, 3.8684183100675673, Between(RatingUpTo, 39, 54)},
    {"NormalFarTail",
     {NormalLaw{0, 1}, 5},
     5.18650396712583,
     0.18082155462548052,
     [](double x) { return x <= 5 ? 0 : 1 - NormalUpTo(-x) / NormalUpTo(-5); }},
    {"LognormalCut",
     {LognormalLaw{500, 120}, 400, 700},
     517.7725875033528,
     76.29686008992732,
     Between(DepthUpTo, 400, 700)},
    {"TriangularCut",
     {TriangularLaw{10, 14, 24}, 12, 20},
     15.660818713457429,
     2.1169429096912866,
     Between(LengthUpTo, 12, 20)},
    {"UniformCut", {UniformLaw{2, 8}, 5}, 6.5, 0.8660254037844386, Between(WidthUpTo, 5, 8)},
    {"BetaCut", {BetaLaw{2, 3, 0, 10}, 1, 6}, 3.508132726086063, 1.3511960871407016, Between(AngleUpTo, 1, 6)},
};

class KnownDistribution : public testing::TestWithParam<KnownLaw> {
 protected:
  static constexpr std::size_t Count = 100'000;

  std::vector<double> Samples(Scheme scheme) const {
    const Distribution laws[] = {GetParam().Law};
    return SamplesOf(BatchMaker(laws, {}, scheme, 1907, 10'000), 10, 1).front();
  }
};

TEST_P(KnownDistribution, TellsItsExactMeanAndDeviation) {
  const PreparedDistribution prepared(GetParam().Law);

  EXPECT_NEAR(prepared.Mean(), GetParam().Mean, 1e-9 * GetParam().Mean);
  EXPECT_NEAR(prepared.Deviation(), GetParam().Deviation, 1e-7 * GetParam().Deviation);
}

TEST_P(KnownDistribution, SamplesHaveItsMeanAndDeviation) {
  for (const Scheme scheme : AllSchemes) {
    const std::vector<double> samples = Samples(scheme);
    double sum = 0;
    double squares = 0;
    for (const double x : samples) sum += x;
    const double mean = sum / Count;
    for (const double x : samples) squares += (x - mean) * (x - mean);

    // Four standard errors of random samples. Strata are far closer.
    EXPECT_NEAR(mean, GetParam().Mean, (scheme == Scheme::Random ? 0.0127 : 0.001) * GetParam().Deviation);
    EXPECT_NEAR(std::sqrt(squares / Count), GetParam().Deviation,
                (scheme == Scheme::Random ? 0.02 : 0.005) * GetParam().Deviation);
  }
}

// Random samples exceed a distance of 1.63 / sqrt(n) once in a hundred times.
TEST_P(KnownDistribution, SamplesAreWithinTheKolmogorovDistance) {
  for (const Scheme scheme : AllSchemes) {
    std::vector<double> samples = Samples(scheme);
    std::ranges::sort(samples);
    double distance = 0;
    for (std::size_t i = 0; i < Count; ++i) {
      const double before = i == 0 ? 0 : GetParam().Cumulative(std::nextafter(samples[i], -1e9));
      // Of equal numbers, the first has all smaller ones before it and the last all of them up to it.
      if (i == 0 || samples[i - 1] < samples[i]) {
        distance = std::max(distance, std::abs(before - static_cast<double>(i) / Count));
      }
      if (i + 1 == Count || samples[i] < samples[i + 1]) {
        const double upTo = GetParam().Cumulative(samples[i]);
        distance = std::max(distance, std::abs(upTo - static_cast<double>(i + 1) / Count));
      }
    }

    EXPECT_LT(distance, scheme == Scheme::Random ? 0.00515 : 0.0003) << "scheme " << static_cast<int>(scheme);
  }
}

TEST_P(KnownDistribution, QuantilesAreTheInverseOfTheCumulativeProbability) {
  const PreparedDistribution prepared(GetParam().Law);
  if (std::holds_alternative<EmpiricalLaw>(GetParam().Law.Law)) return;

  for (const double probability : {1e-6, 0.01, 0.3, 0.5, 0.77, 0.999, 1 - 1e-6}) {
    EXPECT_NEAR(GetParam().Cumulative(prepared.Quantile(probability)), probability, 1e-9) << probability;
    EXPECT_NEAR(prepared.Cumulative(prepared.Quantile(probability)), probability, 1e-12) << probability;
  }
}

INSTANTIATE_TEST_SUITE_P(Laws, KnownDistribution, testing::ValuesIn(KnownLaws),
                         [](const auto& law) { return law.param.Name; });

TEST(MeasuredValues, AreTheOnlyNumbersAndEquallyProbable) {
  const PreparedDistribution measured({EmpiricalLaw{{52, 38, 61, 45}}});

  EXPECT_EQ(measured.Quantile(0.1), 38);
  EXPECT_EQ(measured.Quantile(0.26), 45);
  EXPECT_EQ(measured.Quantile(0.74), 52);
  EXPECT_EQ(measured.Quantile(0.99), 61);
}

TEST(MeasuredValues, OutsideTheBoundsAreLeftOut) {
  const PreparedDistribution measured({Measured, 40, 55});

  EXPECT_EQ(measured.Quantile(0.01), 41);
  EXPECT_EQ(measured.Quantile(0.99), 55);
  EXPECT_DOUBLE_EQ(measured.Mean(), 46.75);
  EXPECT_DOUBLE_EQ(measured.Deviation(), 4.841229182759271);
}

TEST(Distribution, CutOffInEitherTailStaysWithinItsBounds) {
  const Distribution cut[] = {{NormalLaw{45, 6}, 60, 62},
                              {NormalLaw{45, 6}, 20, 21},
                              {LognormalLaw{500, 120}, 1200, 1300},
                              {BetaLaw{2, 3, 0, 10}, 9, 9.5}};
  for (const Distribution& law : cut) {
    const Distribution laws[] = {law};
    for (const Scheme scheme : AllSchemes) {
      const auto samples = SamplesOf(BatchMaker(laws, {}, scheme, 7, 5000), 1, 1).front();
      EXPECT_THAT(samples, Each(AllOf(Ge(*law.Lowest), Le(*law.Highest))));
      EXPECT_LT(*std::ranges::min_element(samples), *std::ranges::max_element(samples));
    }
  }
}

TEST(Distribution, TellsWhatIsWrongWithItsInput) {
  constexpr double None = std::numeric_limits<double>::quiet_NaN();
  const std::pair<Distribution, const char*> wrong[] = {
      {{NormalLaw{45, 0}}, "depth of cover: the deviation must be above 0."},
      {{NormalLaw{45, -1}}, "depth of cover: the deviation must be above 0."},
      {{NormalLaw{None, 1}}, "depth of cover: each parameter must be a number."},
      {{LognormalLaw{0, 1}}, "depth of cover: the mean of a lognormal distribution must be above 0."},
      {{LognormalLaw{5, 0}}, "depth of cover: the deviation must be above 0."},
      {{TriangularLaw{5, 9, 8}}, "depth of cover: the likeliest value must be between the least and the greatest one."},
      {{TriangularLaw{5, 5, 5}}, "depth of cover: the greatest value must be above the least one."},
      {{UniformLaw{5, 5}}, "depth of cover: the greatest value must be above the least one."},
      {{BetaLaw{0, 2, 0, 1}}, "depth of cover: alpha and beta must be between 0.01 and 1,000,000."},
      {{BetaLaw{2, 2, 1, 0}}, "depth of cover: the greatest value must be above the least one."},
      {{EmpiricalLaw{}}, "depth of cover: there must be at least one measured value."},
      {{EmpiricalLaw{{1, None}}}, "depth of cover: each measured value must be a number."},
      {{EmpiricalLaw{{1, 2}}, 3}, "depth of cover: no measured value is within the bounds."},
      {{NormalLaw{45, 6}, 50, 50}, "depth of cover: the upper bound must be above the lower one."},
      {{NormalLaw{45, 6}, 200}, "depth of cover: almost nothing of the distribution is within the bounds."},
      {{LognormalLaw{1e38, 1e38}}, "depth of cover: the numbers are too large for a design."},
  };
  for (const auto& [law, fault] : wrong) EXPECT_EQ(FaultOf(law, "depth of cover"), fault);
}

TEST(Distribution, HasNoFaultIfItCanBeSampled) {
  for (const KnownLaw& known : KnownLaws) EXPECT_EQ(FaultOf(known.Law, "depth of cover"), "") << known.Name;
  EXPECT_EQ(FaultOf({TriangularLaw{5, 5, 8}}, "x"), "");
  EXPECT_EQ(FaultOf({TriangularLaw{5, 8, 8}}, "x"), "");
}

}  // namespace
}  // namespace orby::test
