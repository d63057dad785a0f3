// A font that the user has chosen.
#pragma once

#include <string>

namespace orby {

struct FontChoice {
  std::string name;  // empty: the font of the desktop
  int size = 10;     // points
  bool bold = false;
  bool italic = false;
  bool operator==(const FontChoice&) const = default;
};

}  // namespace orby
