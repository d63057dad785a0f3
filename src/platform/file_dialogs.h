// The system's file dialogs.
#pragma once

#include <string>

namespace orby {

struct FileQuestion {
  std::string title;
  std::string fileName;          // offered at first, without its folder
  std::string folder;            // where the dialog starts
  std::string filterName;        // "Orby Roof Support Workbench (*.ORB)"
  std::string defaultExtension;  // without the point; appended on save when the name has none
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  // The full path that the user chose. Throws RuntimeError 32755 when the dialog was cancelled.
  virtual std::string AskOpenName(const FileQuestion& question) = 0;  // the file must exist
  virtual std::string AskSaveName(const FileQuestion& question) = 0;  // asks before overwriting
};

}  // namespace orby
