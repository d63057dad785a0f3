// Starts one run of the program after another for a monkey, and judges the end of each.
#pragma once

#include <cstdint>
#include <string>

namespace orby::monkey {

struct Orders {
  long acts = 2000;
  std::uint64_t seed = 1;
  int patience = 20;  // seconds until an action counts as hung
};

// Returns true if nothing forbidden was found. Writes actions and findings to standard output.
bool KeepMonkey(const Orders& orders);

}  // namespace orby::monkey
