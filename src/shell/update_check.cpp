#include "shell/update_check.h"

#include <string>

#include "base/text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/version.h"
#include "dialogs/update_dialog.h"
#include "dialogs/version_fetch.h"

namespace orby {
namespace {

std::string Question() {
  return std::string("A new ORBY version is available. ")
      .append(LineEnd)
      .append(
          "Note that in order to download and install you may need administrator priviledges and/or Windows may "
          "ask you for permission to do so. ")
      .append(LineEnd)
      .append("Proceed with Download and Install?");
}

}  // namespace

void UpdateCheck::Start() {
  if (program_.session.settings.RemindAnnualUpdates == 0 || !HasUpdateServer(program_.session)) return;
  fetch_ = FetchVersion(program_, [this](const VersionAnswer& answer) {
    fetch_.reset();
    if (answer.offered) Compare(*answer.offered);
  });
}

void UpdateCheck::Compare(const OfferedVersion& offered) {
  AddHistoryLine(program_, "Server/Current: " + offered.version + "/" + VersionText());
  if (!IsNewer(offered) || ShowMessage(program_, Question(), BoxButtons::YesNo) != BoxResult::Yes) return;
  UpdateDialog dialog(program_, offered);
  ShowForm(program_, dialog);
}

}  // namespace orby
