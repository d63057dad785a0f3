// Random numbers of a study.
#pragma once

#include <array>
#include <cstdint>

#include <boost/random/mersenne_twister.hpp>
#include <boost/random/seed_seq.hpp>

namespace orby {

using StudyEngine = boost::random::mt19937_64;

// Returns the engine of a batch, which depends on the seed of the study and on the number of the batch.
inline StudyEngine EngineOf(std::uint64_t seed, std::uint32_t batch) {
  const std::array<std::uint32_t, 3> words{static_cast<std::uint32_t>(seed), static_cast<std::uint32_t>(seed >> 32),
                                           batch};
  boost::random::seed_seq sequence(words.begin(), words.end());
  return StudyEngine(sequence);
}

// A number that no batch has, for choices about the whole study.
inline constexpr std::uint32_t NoBatch = 0xFFFFFFFFU;

}  // namespace orby
