// File dialogs of the desktop.
#pragma once

#include "platform/file_dialogs.h"

namespace orby {

class QtFileDialogs : public FileDialogs {
 public:
  std::string AskOpenName(const FileQuestion& question) override;
  std::string AskSaveName(const FileQuestion& question) override;
  std::string AskFolder(const std::string& title, const std::string& folder) override;
};

}  // namespace orby
