#include "dialogs/about.h"

#include "base/number_text.h"
#include "base/text.h"
#include "core/dates.h"
#include "core/messages.h"
#include "core/version.h"

namespace orby {
namespace {

// The date of the last revision, which differs from the release date.
constexpr std::string_view RevisionYear = "2023";
constexpr std::string_view RevisionMonth = "05";
constexpr std::string_view RevisionDay = "07";

constexpr std::string_view Credits =
    "Written by the Orby project.\r\n"
    "\r\n"
    "Free software under the GNU General Public License, version 3 or later. It comes with no warranty.\r\n"
    "Built with free libraries for its windows, its charts, its spreadsheet files and its help, each under its own "
    "licence.";

std::string RevisionDate() {
  const auto number = [](std::string_view digits) { return static_cast<int>(TextValue(digits)); };
  return DayMonthYear({number(RevisionYear), number(RevisionMonth), number(RevisionDay)});
}

}  // namespace

void ShowAbout(Program& program) {
  const std::string end(LineEnd);
  ShowMessage(program,
              "Version: " + VersionText() + end + "Revision Date: " + RevisionDate() + end + end + std::string(Credits),
              BoxButtons::Ok, "About the " + std::string(ProgramTitle) + " Program");
}

}  // namespace orby
