#include "dialogs/disclaimer.h"

#include "config/settings_sections.h"

namespace orby {
namespace {

constexpr std::string_view DisclaimerText =
    "NO WARRANTY\r\n"
    "\r\n"
    "This program is free software under the GNU General Public License, version 3 or later. It is given to you as it "
    "is. There is no warranty of any kind, neither expressed nor implied, to the extent that the law permits: not that "
    "it is free of errors, not that it is fit for a particular purpose, and not that its results are right for a "
    "particular mine. All risk as to its quality and its results is yours.\r\n"
    "\r\n"
    "LIMIT OF LIABILITY\r\n"
    "\r\n"
    "Unless the law demands it or it was agreed to in writing, nobody who wrote the program, changed it or passed it "
    "on is liable to you for damages of any kind that come from its use or from its failure to work, even when told "
    "that such damages were possible. That includes injury, loss of production, loss of equipment and loss of data.\r\n"
    "\r\n"
    "WHAT THE RESULTS ARE FOR\r\n"
    "\r\n"
    "The program is an aid to the design of roof support. It rests on relations between measured conditions and the "
    "support that was used in other mines. It does not see your roof. Its results do not replace the judgement of a "
    "competent person who knows the mine, nor observation and measurement underground, nor the roof support plan that "
    "the mine's authority has approved, nor the law. Where they differ from its results, they decide.\r\n"
    "\r\n"
    "Whoever uses the program has to check what goes into it, to judge what comes out of it, and to stop using a "
    "result that conditions underground speak against.\r\n"
    "\r\n"
    "CONTACT\r\n"
    "\r\n"
    "Questions about the program, and reports of errors in it, go to the people who gave you this program. They also "
    "owe you its source code when you ask for it.\r\n";

}  // namespace

Disclaimer::Disclaimer(Program& program) : ProgramForm(program, "frmDisclaimer", "Disclaimer") {
  Command1.Click = [this] {
    accepted_ = true;
    Close();
  };
}

void Disclaimer::OnOpen() {
  accepted_ = false;
  txtDisclaimer.SetText(std::string(DisclaimerText));
  chkShow.SetValue(program_.session.settings.ShowDisclaim);
}

void Disclaimer::Refuse() {
  program_.EndAtOnce();
  Close();
}

void Disclaimer::OnClose() {
  if (!accepted_) return;
  program_.session.settings.ShowDisclaim = chkShow.Value();
  WriteDefaults(program_, StoredSettings::Settings);
}

}  // namespace orby
