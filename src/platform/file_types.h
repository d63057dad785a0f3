// The program with which the desktop opens files of an extension.
#pragma once

#include <string>

namespace orby {

class FileTypes {
 public:
  virtual ~FileTypes() = default;
  // Makes this program open files of the extension. The desktop shows it as `programName`. A step that cannot be
  // written or run is skipped, and is not an error.
  virtual void Associate(const std::string& extension, const std::string& programName) = 0;
};

}  // namespace orby
