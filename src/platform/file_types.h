// What the desktop opens files with, by their extensions.
#pragma once

#include <string>

namespace orby {

class FileTypes {
 public:
  virtual ~FileTypes() = default;
  // Makes this program the one that the desktop opens files of the extension with. programName: how the desktop shows
  // it. What cannot be written or run is left out, which is no error.
  virtual void Associate(const std::string& extension, const std::string& programName) = 0;
};

}  // namespace orby
