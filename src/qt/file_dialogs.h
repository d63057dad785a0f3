// File dialogs of the desktop.
#pragma once

#include "platform/file_dialogs.h"

namespace orby {

class QtFileDialogs : public FileDialogs {
 public:
  std::string AskOpenName(const FileQuestion& question) override;
  std::string AskSaveName(const FileQuestion& question) override;
};

}  // namespace orby
