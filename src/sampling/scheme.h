// How the samples of a study are chosen.
#pragma once

#include <cstdint>

namespace orby {

enum class Scheme : std::uint8_t {
  LatinHypercube,  // in each batch every input has one sample in each of as many equally probable strata
  Sobol,           // the points of a Sobol sequence, scrambled anew for each batch
  Random,
};

}  // namespace orby
