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

// Returns "1.0.00". The revision has at least two digits.
std::string VersionText(Version version = ProgramVersion);
// Returns "1000", the same without points.
std::string VersionDigits(Version version = ProgramVersion);  // a helper that nothing calls today

}  // namespace orby
