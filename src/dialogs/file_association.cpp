#include "dialogs/file_association.h"

#include <string>

#include "base/text.h"
#include "core/file_helpers.h"
#include "core/messages.h"

namespace orby {

void AssociateFileExtension(Program& program) {
  const std::string extension = program.session.settings.FileExtension;
  const BoxResult answer = ShowMessage(program,
                                       "This operation may break an existing association of file extension " +
                                           extension + " with other programs on this computer. Proceed?",
                                       BoxButtons::YesNo);
  if (answer != BoxResult::Yes) return;
  program.platform.windows.SetWaitCursor(true);
  program.platform.fileTypes.Associate(extension, std::string(ProgramTitle));
  program.platform.windows.SetWaitCursor(false);
  const std::string outcome =
      "The " + extension + " file extensions has been associated to " + AppDirectory(program.platform.files);
  ShowMessage(program, outcome + std::string(LineEnd) + std::string(LineEnd) +
                           "Note: if order for this function to be successfully completed the user needs to have "
                           "access to the registry");
  AddHistoryLine(program, outcome);
}

}  // namespace orby
