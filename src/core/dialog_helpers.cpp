#include "core/dialog_helpers.h"

#include <algorithm>
#include <array>
#include <span>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "core/messages.h"
#include "core/shared_texts.h"

namespace orby {
namespace {

constexpr std::array<std::string_view, 3> PrinterFonts{"Courier New", "Courier", "Arial"};

std::string ChooseFont(const std::vector<std::string>& installed, std::span<const std::string_view> wanted) {
  for (const auto name : wanted) {
    const int index = FontIndexOf(name, installed);
    if (index >= 0) return installed[static_cast<std::size_t>(index)];
  }
  return installed.empty() ? std::string() : installed.front();
}

int Centered(int length, int screenLength) { return length > screenLength ? 0 : screenLength / 2 - length / 2; }

}  // namespace

void SetArrayIndex(Program& program, OptionArray& options, Integer index) {
  if (index < 0 || static_cast<std::size_t>(index) >= options.Count()) {
    ShowMessage(program, std::string(UnknownChoice), BoxButtons::Ok, program.windows.titles.RangeErrorTitle);
  }
  for (std::size_t i = 0; i < options.Count(); ++i) options.SetValue(static_cast<int>(i), false);
  options.SetValue(index, true);
}

std::optional<double> FittingNumber(std::string_view text) {
  return OrNothing([text] {
    const double number = TextValue(text);
    static_cast<void>(ToSingle(number));
    return std::optional(number);
  });
}

bool RangeCheck(Program& program, std::string_view text, double minimum, double maximum, std::string_view fieldName) {
  const std::string_view trimmed = Trim(text);
  std::string message(fieldName);
  if (!fieldName.empty()) message += ": ";
  if (trimmed.empty()) {
    message += "Blank field not allowed";
  } else {
    const auto value = FittingNumber(text);
    if (value && *value >= minimum && *value <= maximum) return true;
    message += "Value '" + std::string(trimmed) + "' is outside input range" + std::string(LineEnd) +
               "Valid range is: " + NumberText(minimum) + "-" + NumberText(maximum);
  }
  ShowMessage(program, message, BoxIcon::Critical, program.windows.titles.RangeErrorTitle);
  return false;
}

void AppendUnits(const Form& form, UnitSystem units) {
  for (Control* control : form.Controls()) {
    if (auto* label = dynamic_cast<Label*>(control)) {
      if (label->Suffix() == UnitSuffix::None) continue;
      label->SetCaption(label->Caption() + std::string(UnitLabel(label->Suffix(), units)));
    } else if (auto* options = dynamic_cast<OptionArray*>(control)) {
      for (std::size_t i = 0; i < options->Count(); ++i) {
        if (options->Suffix(i) == UnitSuffix::None) continue;
        options->SetCaption(i, options->Caption(i) + std::string(UnitLabel(options->Suffix(i), units)));
      }
    }
  }
}

void PrepareForm(Program& program, MessageModule module) {
  SetMessageTitles(program, module);
  program.platform.windows.SetWaitCursor(false);
}

void ShowForm(Program& program, Form& form) {
  form.Open();
  program.platform.windows.ShowModal(form);
  form.Close();
}

Position CenterForm(Extent form, Extent screen) {
  return {Centered(form.width, screen.width), Centered(form.height, screen.height)};
}

std::string SetFormCaption(std::string_view tag, std::string_view path, bool fileSaved) {
  return std::string(tag) + ": " + ShortenedPath(path) + (fileSaved ? "" : "*");
}

std::string CaptionWithProject(std::string_view caption, const Project& project) {
  const std::string_view name = NameAfterSeparator(project.CurrentFile);
  return std::string(caption).append(" - ").append(name.empty() ? project.CurrentFile : name);
}

int FontIndexOf(std::string_view name, const std::vector<std::string>& fontList) {
  const auto found = std::find_if(fontList.begin(), fontList.end(),
                                  [name](const std::string& font) { return SameWithoutCase(font, name); });
  return found == fontList.end() ? -1 : static_cast<int>(found - fontList.begin());
}

std::string ChooseDisplayFont(Program& program) {
  return ChooseFont(program.platform.fonts.ScreenFonts(), DisplayFonts);
}

std::string ChoosePrinterFont(Program& program) {
  return ChooseFont(program.platform.fonts.PrinterFonts(), PrinterFonts);
}

void FixDecimalSeparator(Program& program) {
  program.session.SavedDecimalSeparator = program.platform.locale.DecimalSeparator() == "," ? "," : ".";
}

}  // namespace orby
