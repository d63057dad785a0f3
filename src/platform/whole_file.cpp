#include "platform/whole_file.h"

#include "base/attempt.h"

namespace orby {

bool TryWriteWhole(FileSystem& files, const std::string& path, std::string_view bytes) {
  return Succeeds([&] { files.ReplaceFile(path, bytes); });
}

}  // namespace orby
