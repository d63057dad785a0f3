// Helpers of dialogs: option arrays, range checks, captions, placement and fonts.
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

// Selects an option and fires its click once, also when it was selected before. For an index outside the array, shows
// an error and throws RuntimeError 9.
void SetArrayIndex(Program& program, OptionArray& options, Integer index);

// Returns the number at the start of the text, or nothing when it is outside the range of a Single. Such a number is
// outside every limit.
std::optional<double> FittingNumber(std::string_view text);

// Returns true if the number of the text is in minimum..maximum. Otherwise, and for a blank text, shows an error and
// returns false.
bool RangeCheck(Program& program, std::string_view text, double minimum, double maximum, std::string_view fieldName);

// Appends the unit to every caption of the form that has a unit suffix.
void AppendUnits(const Form& form, UnitSystem units);

// Sets the titles of messages and the normal cursor. Every dialog calls it first.
void PrepareForm(Program& program, MessageModule module);

// Opens a form, shows it until the user leaves it, and closes it if it is still open.
void ShowForm(Program& program, Form& form);

struct Extent {
  int width;
  int height;
};
struct Position {
  int left;
  int top;
};
// Returns the position of a form in the centre of the screen. A form wider or higher than the screen starts at 0.
Position CenterForm(Extent form, Extent screen);

// Returns the caption "tag: path" with a shortened path, and with "*" while the project has unsaved changes.
std::string SetFormCaption(std::string_view tag, std::string_view path, bool fileSaved);

// Returns the caption of a window that is about the open project: "Cost Parameters - panel3.ORB".
std::string CaptionWithProject(std::string_view caption, const Project& project);

// Returns the position of a font in a list, ignoring case, or -1 when it is not in the list.
int FontIndexOf(std::string_view name, const std::vector<std::string>& fontList);

// The fonts for texts on the screen, in the order of preference.
inline constexpr std::array<std::string_view, 4> DisplayFonts{"Arial", "Courier New", "System", "Terminal"};

// Each returns the first preferred font that is installed, otherwise the first installed font. Empty when no font is
// installed.
std::string ChooseDisplayFont(Program& program);
std::string ChoosePrinterFont(Program& program);

// Records the decimal separator of the locale, "," or ".". Nothing depends on it: numbers always use the point.
void FixDecimalSeparator(Program& program);

}  // namespace orby
