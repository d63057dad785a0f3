// Keeps a monkey: starts runs of the program for it, one after the other, and judges how each ends.
#pragma once

#include <cstdint>
#include <string>

namespace orby::monkey {

struct Orders {
  long acts = 2000;
  std::uint64_t seed = 1;
  int patience = 20;  // seconds until an act counts as one that never ends
};

// Whether nothing was found that must not happen. What was done and found goes to standard output.
bool KeepMonkey(const Orders& orders);

}  // namespace orby::monkey
