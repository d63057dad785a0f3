// The system's file dialogs.
#pragma once

#include <string>
#include <vector>

namespace orby {

struct FileFilter {
  std::string name;     // as it is shown: "Orby Roof Support Workbench (*.ORB)"
  std::string pattern;  // "*.ORB"; "*" for every file
};

struct FileQuestion {
  std::string title;
  std::string fileName;             // offered at first, without its folder
  std::string folder;               // where the dialog starts
  std::vector<FileFilter> filters;  // the first is in force
  // Without the point. Appended when the name has none: always on save, on open when no file has the bare name.
  std::string defaultExtension;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  // The full path that the user chose. Each throws RuntimeError 32755 when the dialog was cancelled.
  virtual std::string AskOpenName(const FileQuestion& question) = 0;                       // the file must exist
  virtual std::string AskSaveName(const FileQuestion& question) = 0;                       // asks before overwriting
  virtual std::string AskFolder(const std::string& title, const std::string& folder) = 0;  // starts at the folder
};

}  // namespace orby
