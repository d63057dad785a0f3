// The types of files on this machine's desktop.
#pragma once

#include <memory>

#include "platform/documents.h"
#include "platform/file_system.h"
#include "platform/file_types.h"
#include "platform/surroundings.h"

namespace orby {

// Returns the desktop's types of files. `programs` starts the tools of the desktop.
std::unique_ptr<FileTypes> MakeFileTypes(FileSystem& files, UserFolders& userFolders, Documents& programs);

}  // namespace orby
