// The system's file dialogs.
#pragma once

#include <string>
#include <vector>

namespace orby {

struct FileFilter {
  std::string name;     // the text shown: "Orby Roof Support Workbench (*.ORB)"
  std::string pattern;  // "*.ORB"; "*" for every file
};

struct FileQuestion {
  std::string title;
  std::string fileName;             // the name offered, without its folder
  std::string folder;               // where the dialog starts
  std::vector<FileFilter> filters;  // the first one is selected
  // Without the point. Appended to a name without an extension: always when saving, unless another filter with an
  // extension is selected, and when opening if no file has the bare name.
  std::string defaultExtension;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  // Each returns the full path that the user chose. Each throws RuntimeError 32755 when the user cancels the dialog.
  virtual std::string AskOpenName(const FileQuestion& question) = 0;                       // the file must exist
  virtual std::string AskSaveName(const FileQuestion& question) = 0;                       // asks before overwriting
  virtual std::string AskFolder(const std::string& title, const std::string& folder) = 0;  // starts at the folder
};

}  // namespace orby
