// What dialogs share: option arrays, range checks, captions, placement, fonts.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/controls.h"
#include "core/messages.h"
#include "core/program.h"

namespace orby {

// Selects the member, clicking it once even when it was selected before. An index outside the array is told to the user
// and then throws RuntimeError 9.
void SetArrayIndex(Program& program, OptionArray& options, Integer index);

// The text's leading number as a check judges it. Nothing when it lies beyond a Single: then it is outside every limit.
std::optional<double> FittingNumber(std::string_view text);

// Whether the text's number lies inside minimum..maximum; tells the user when it does not or when the text is blank.
bool RangeCheck(Program& program, std::string_view text, double minimum, double maximum, std::string_view fieldName);

// Appends the units of the project to every caption of the form that has one.
void AppendUnits(const Form& form, UnitSystem units);

// What each dialog does first: the titles of its messages and the normal cursor.
void PrepareForm(Program& program, MessageModule module);

// Opens a form, shows it, and closes it if the user has not.
void ShowForm(Program& program, Form& form);

struct Extent {
  int width;
  int height;
};
struct Position {
  int left;
  int top;
};
// The place of a form in the middle of the screen; one that would reach beyond the right or the lower edge starts at 0.
Position CenterForm(Extent form, Extent screen);

// The caption "tag: path", the path shortened, with "*" while the project has unsaved changes.
std::string SetFormCaption(std::string_view tag, std::string_view path, bool fileSaved);

// The position of a font in a list, without regard to case; -1 when it is not there.
int FontIndexOf(std::string_view name, const std::vector<std::string>& fontList);

// The fonts for texts on the screen, the one that is wanted most first.
inline constexpr std::array<std::string_view, 4> DisplayFonts{"Arial", "Courier New", "System", "Terminal"};

// The first of the fixed choices that is installed, otherwise the first font there is; empty when there is none.
std::string ChooseDisplayFont(Program& program);
std::string ChoosePrinterFont(Program& program);

// Records the machine's decimal separator, "," or ".". The machine is left alone: numbers always use the point.
void FixDecimalSeparator(Program& program);

}  // namespace orby
