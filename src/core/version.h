// The version of the program.
#pragma once

#include <string>

namespace orby {

struct Version {
  int Major;
  int Minor;
  int Revision;
};

inline constexpr Version ProgramVersion{1, 0, 0};

// Returns "1.0.00", or "1000" without points. The revision has at least two digits.
std::string VersionText(bool withPoints, Version version = ProgramVersion);

}  // namespace orby
