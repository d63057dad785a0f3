// Distributions of the inputs of a study, as the user describes them.
//
// All numbers are in the unit of the input.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace orby {

struct NormalLaw {
  double Mean = 0;
  double Deviation = 1;
  bool operator==(const NormalLaw&) const = default;
};

// Mean and deviation are those of the number itself, not of its logarithm.
struct LognormalLaw {
  double Mean = 1;
  double Deviation = 1;
  bool operator==(const LognormalLaw&) const = default;
};

struct TriangularLaw {
  double Least = 0;
  double Likeliest = 0.5;
  double Greatest = 1;
  bool operator==(const TriangularLaw&) const = default;
};

struct UniformLaw {
  double Least = 0;
  double Greatest = 1;
  bool operator==(const UniformLaw&) const = default;
};

// A beta distribution on least..greatest, with its two shape parameters.
struct BetaLaw {
  double Alpha = 2;
  double Beta = 2;
  double Least = 0;
  double Greatest = 1;
  bool operator==(const BetaLaw&) const = default;
};

// Each measured value is equally probable. No other values occur.
struct EmpiricalLaw {
  std::vector<double> Values;
  bool operator==(const EmpiricalLaw&) const = default;
};

using DistributionLaw = std::variant<NormalLaw, LognormalLaw, TriangularLaw, UniformLaw, BetaLaw, EmpiricalLaw>;

// A law, cut off at bounds: numbers outside them do not occur, and those within keep their relative probabilities.
struct Distribution {
  DistributionLaw Law;
  std::optional<double> Lowest = std::nullopt;
  std::optional<double> Highest = std::nullopt;
  bool operator==(const Distribution&) const = default;
};

// A parameter of a law.
struct LawParameter {
  const char* Name;  // for the user and for files: "mean"
  double* Number;
};

// Returns the parameters of a law in their usual order. Measured values have none.
std::vector<LawParameter> ParametersOf(DistributionLaw& law);

// Returns a law of each kind, in the order of DistributionLaw.
std::span<const DistributionLaw> LawKinds();

// Returns "normal", "lognormal", "triangular", "uniform", "beta" or "measured values".
std::string_view LawName(const DistributionLaw& law);

// Returns what is wrong with a distribution as a sentence with the name of its input, or an empty text:
// "depth of cover: the deviation must be above 0."
std::string FaultOf(const Distribution& distribution, std::string_view input);

}  // namespace orby
