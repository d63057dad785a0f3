// How the samples of a study are chosen.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace orby {

enum class Scheme : std::uint8_t {
  LatinHypercube,  // in each batch every input has one sample in each of as many equally probable strata
  Sobol,           // the points of a Sobol sequence, scrambled anew for each batch
  Random,
};

inline constexpr std::array<Scheme, 3> Schemes{Scheme::LatinHypercube, Scheme::Sobol, Scheme::Random};

// Returns the name of a scheme for the user and for files: "latin hypercube", "sobol" or "random".
constexpr std::string_view SchemeName(Scheme scheme) {
  constexpr std::array<std::string_view, Schemes.size()> Names{"latin hypercube", "sobol", "random"};
  return Names[static_cast<std::size_t>(scheme)];
}

}  // namespace orby
