#include "dialogs/copy_clip.h"

#include "core/messages.h"

namespace orby {

void CopyClip(Program& program, const Form& form) {
  program.platform.clipboard.SetPicture(form);
  ShowMessage(program, "Screenshot of dialog copied to clipboard", BoxButtons::Ok, program.windows.titles.MessageTitle);
}

}  // namespace orby
