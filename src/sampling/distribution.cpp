#include "sampling/distribution.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "base/types.h"
#include "sampling/prepared_distribution.h"

namespace orby {
namespace {

constexpr std::string_view AboveZero = "the deviation must be above 0.";
constexpr std::string_view NotFinite = "each parameter must be a number.";

using Parameters = std::vector<LawParameter>;
Parameters ParametersOf(NormalLaw& law) { return {{"mean", &law.Mean}, {"deviation", &law.Deviation}}; }
Parameters ParametersOf(LognormalLaw& law) { return {{"mean", &law.Mean}, {"deviation", &law.Deviation}}; }
Parameters ParametersOf(TriangularLaw& law) {
  return {{"least", &law.Least}, {"likeliest", &law.Likeliest}, {"greatest", &law.Greatest}};
}
Parameters ParametersOf(UniformLaw& law) { return {{"least", &law.Least}, {"greatest", &law.Greatest}}; }
Parameters ParametersOf(BetaLaw& law) {
  return {{"alpha", &law.Alpha}, {"beta", &law.Beta}, {"least", &law.Least}, {"greatest", &law.Greatest}};
}
Parameters ParametersOf(EmpiricalLaw&) { return {}; }

bool AreFinite(DistributionLaw law) {
  return std::ranges::all_of(orby::ParametersOf(law),
                             [](const LawParameter& parameter) { return std::isfinite(*parameter.Number); });
}

std::string_view LawFault(const NormalLaw& law) { return law.Deviation > 0 ? std::string_view() : AboveZero; }

std::string_view LawFault(const LognormalLaw& law) {
  if (!(law.Mean > 0)) return "the mean of a lognormal distribution must be above 0.";
  return law.Deviation > 0 ? std::string_view() : AboveZero;
}

std::string_view LawFault(const TriangularLaw& law) {
  if (!(law.Least < law.Greatest)) return "the greatest value must be above the least one.";
  if (law.Likeliest < law.Least || law.Likeliest > law.Greatest) {
    return "the likeliest value must be between the least and the greatest one.";
  }
  return {};
}

std::string_view LawFault(const UniformLaw& law) {
  return law.Least < law.Greatest ? std::string_view() : "the greatest value must be above the least one.";
}

// Smaller shapes give numbers that no double tells from the bounds, larger ones a single number.
constexpr double LeastShape = 0.01;
constexpr double GreatestShape = 1e6;

std::string_view LawFault(const BetaLaw& law) {
  const auto fits = [](double shape) { return shape >= LeastShape && shape <= GreatestShape; };
  if (!fits(law.Alpha) || !fits(law.Beta)) return "alpha and beta must be between 0.01 and 1,000,000.";
  return law.Least < law.Greatest ? std::string_view() : "the greatest value must be above the least one.";
}

std::string_view LawFault(const EmpiricalLaw& law) {
  if (law.Values.empty()) return "there must be at least one measured value.";
  const bool areNumbers = std::ranges::all_of(law.Values, [](double value) { return std::isfinite(value); });
  return areNumbers ? std::string_view() : "each measured value must be a number.";
}

std::string_view BoundsFault(const Distribution& distribution) {
  const double lowest = distribution.Lowest.value_or(-std::numeric_limits<double>::infinity());
  const double highest = distribution.Highest.value_or(std::numeric_limits<double>::infinity());
  if (std::isnan(lowest) || std::isnan(highest)) return NotFinite;
  if (std::holds_alternative<EmpiricalLaw>(distribution.Law)) {
    const auto& values = std::get<EmpiricalLaw>(distribution.Law).Values;
    const bool any = std::ranges::any_of(values, [&](double value) { return value >= lowest && value <= highest; });
    return any ? std::string_view() : "no measured value is within the bounds.";
  }
  if (!(lowest < highest)) return "the upper bound must be above the lower one.";
  // What is left must be sampled by its probability, so it must have one that is not tiny.
  constexpr double Tiny = 1e-12;
  const PreparedDistribution whole({distribution.Law});
  const double share = whole.Cumulative(highest) - whole.Cumulative(lowest);
  return share > Tiny ? std::string_view() : "almost nothing of the distribution is within the bounds.";
}

// A design holds its numbers as Singles.
std::string_view SizeFault(const Distribution& distribution) {
  constexpr double Nearly = 1e-15;
  const PreparedDistribution prepared(distribution);
  const double most = std::max(std::abs(prepared.Quantile(Nearly)), std::abs(prepared.Quantile(1 - Nearly)));
  return most < static_cast<double>(std::numeric_limits<Single>::max()) ? std::string_view()
                                                                        : "the numbers are too large for a design.";
}

}  // namespace

std::vector<LawParameter> ParametersOf(DistributionLaw& law) {
  return std::visit([](auto& kind) { return ParametersOf(kind); }, law);
}

std::span<const DistributionLaw> LawKinds() {
  static const std::array<DistributionLaw, 6> kinds{NormalLaw(),  LognormalLaw(), TriangularLaw(),
                                                    UniformLaw(), BetaLaw(),      EmpiricalLaw()};
  return kinds;
}

std::string_view LawName(const DistributionLaw& law) {
  constexpr std::array<std::string_view, 6> Names{"normal",  "lognormal", "triangular",
                                                  "uniform", "beta",      "measured values"};
  return Names[law.index()];
}

std::string FaultOf(const Distribution& distribution, std::string_view input) {
  std::string_view fault = AreFinite(distribution.Law) ? std::string_view() : NotFinite;
  if (fault.empty()) fault = std::visit([](const auto& law) { return LawFault(law); }, distribution.Law);
  if (fault.empty()) fault = BoundsFault(distribution);
  if (fault.empty()) fault = SizeFault(distribution);
  if (fault.empty()) return {};
  return std::string(input) + ": " + std::string(fault);
}

}  // namespace orby
