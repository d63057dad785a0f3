// Fonts, locale, clock, folders and clipboard of the desktop.
#pragma once

#include "platform/clipboard.h"
#include "platform/surroundings.h"

namespace orby {

class QtFonts : public Fonts {
 public:
  std::vector<std::string> ScreenFonts() override;
  std::vector<std::string> PrinterFonts() override;
  std::vector<std::string> FixedPitchFonts() override;
};

class QtLocale : public Locale {
 public:
  std::string DecimalSeparator() override;
  bool UsesLetter() override;
};

class QtClock : public Clock {
 public:
  Date Today() override;
  Moment Now() override;
  void CallLater(int milliseconds, std::function<void()> act) override;
};

class QtUserFolders : public UserFolders {
 public:
  std::optional<std::string> Documents() override;
  std::optional<std::string> Desktop() override;
  std::optional<std::string> Data() override;
};

class QtClipboard : public Clipboard {
 public:
  void Clear() override;
  void SetText(const std::string& text) override;
  void SetPicture(const Control& chart) override;
  void SetPicture(const Form& form) override;
  void SetPicture(const Scene& scene) override;
};

}  // namespace orby
