// Fonts, locale, clock and folders of the machine.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace orby {

class Fonts {
 public:
  virtual ~Fonts() = default;
  virtual std::vector<std::string> ScreenFonts() = 0;
  virtual std::vector<std::string> PrinterFonts() = 0;
  virtual std::vector<std::string> FixedPitchFonts() = 0;  // screen fonts with characters of one width
};

class Locale {
 public:
  virtual ~Locale() = default;
  virtual std::string DecimalSeparator() = 0;
  // Returns true where people print on sheets of 8.5 x 11 in.
  virtual bool UsesLetter() = 0;
};

struct Date {
  int year = 0;
  int month = 0;  // 1..12
  int day = 0;    // 1..31
};

// A date and time in the user's time zone.
struct Moment {
  Date date;
  int hour = 0;    // 0..23
  int minute = 0;  // 0..59
  int second = 0;  // 0..59, 60 in a leap second
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date Today() = 0;
  virtual Moment Now() = 0;
  // Calls `act` once, from the event loop, after this many milliseconds.
  virtual void CallLater(int milliseconds, std::function<void()> act) = 0;
};

// The user's folders. Each function returns nothing when the desktop does not know the folder.
class UserFolders {
 public:
  virtual ~UserFolders() = default;
  virtual std::optional<std::string> Documents() = 0;
  virtual std::optional<std::string> Desktop() = 0;
  // The folder for what programs add to this user's desktop: types of files, menu entries, icons.
  virtual std::optional<std::string> Data() = 0;
};

}  // namespace orby
