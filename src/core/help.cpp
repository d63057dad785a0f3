#include "core/help.h"

#include <string>

#include "core/file_helpers.h"
#include "core/messages.h"

namespace orby {

void OpenHelp(Program& program, std::string_view fileName) {
  const std::string path = AppDirectory(program) + std::string(fileName);
  if (!FileExists(program, path)) {
    ShowMessage(program, "Help file (" + path + ") not available");
  } else if (!program.platform.documents.Open(path)) {
    ShowMessage(program, "Operation Failed");
  }
}

}  // namespace orby
