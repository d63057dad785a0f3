// Fonts and locale of the machine.
#pragma once

#include <string>
#include <vector>

namespace orby {

class Fonts {
 public:
  virtual ~Fonts() = default;
  virtual std::vector<std::string> ScreenFonts() = 0;
  virtual std::vector<std::string> PrinterFonts() = 0;
};

class Locale {
 public:
  virtual ~Locale() = default;
  virtual std::string DecimalSeparator() = 0;
};

}  // namespace orby
