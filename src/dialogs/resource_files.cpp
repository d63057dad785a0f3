#include "dialogs/resource_files.h"

#include <string>

#include "core/help.h"

namespace orby {

ResourceFiles::ResourceFiles(Program& program) : ProgramForm(program, "frmResource", "Resource Files") {
  for (std::size_t i = 0; i < Resources.size(); ++i) {
    cmdView[i].Click = [this, file = Resources[i].file] {
      OpenDocument(program_, "Resource file", std::string(ResourceFolder).append(file), file);
    };
  }
}

void ResourceFiles::OnOpen() {
  for (std::size_t i = 0; i < Resources.size(); ++i) cmdView[i].SetCaption(Resources[i].title);
}

}  // namespace orby
