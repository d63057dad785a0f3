#include "dialogs/resource_files.h"

#include <string>

#include "core/help.h"

namespace orby {

ResourceFiles::ResourceFiles(Program& program) {
  for (std::size_t i = 0; i < Resources.size(); ++i) {
    cmdView[i].Click = [&program, file = Resources[i].file] {
      OpenDocument(program, "Resource file", std::string(ResourceFolder).append(file), file);
    };
  }
  Command1.Click = [this] { Close(); };
}

void ResourceFiles::OnOpen() {
  for (std::size_t i = 0; i < Resources.size(); ++i) cmdView[i].SetCaption(Resources[i].title);
}

}  // namespace orby
