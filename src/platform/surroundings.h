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
  virtual std::vector<std::string> FixedPitchFonts() = 0;  // those of the screen whose letters are equally wide
};

class Locale {
 public:
  virtual ~Locale() = default;
  virtual std::string DecimalSeparator() = 0;
};

struct Date {
  int year = 0;
  int month = 0;  // 1..12
  int day = 0;    // 1..31
};

// A time of day on the user's own clock.
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
  // Runs the act once, from the event loop, when so many milliseconds have passed.
  virtual void CallLater(int milliseconds, std::function<void()> act) = 0;
};

// The user's own folders; nothing when the desktop does not know them.
class UserFolders {
 public:
  virtual ~UserFolders() = default;
  virtual std::optional<std::string> Documents() = 0;
  virtual std::optional<std::string> Desktop() = 0;
  // Where programs keep what they add to the desktop for this user: types of files, menu entries, icons.
  virtual std::optional<std::string> Data() = 0;
};

}  // namespace orby
