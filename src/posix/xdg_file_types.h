// Types of files on a desktop that follows the freedesktop.org standards: the program that opens them, and their icon.
#pragma once

#include "platform/documents.h"
#include "platform/file_system.h"
#include "platform/file_types.h"

namespace orby {

class XdgFileTypes : public FileTypes {
 public:
  // Writes below the user's data folder. `programs` starts the tools of the desktop.
  XdgFileTypes(FileSystem& files, UserFolders& userFolders, Documents& programs)
      : files_(files), userFolders_(userFolders), programs_(programs) {}

  void Associate(const std::string& extension, const std::string& programName) override;

 private:
  FileSystem& files_;
  UserFolders& userFolders_;
  Documents& programs_;
};

}  // namespace orby
