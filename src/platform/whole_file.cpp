#include "platform/whole_file.h"

#include "base/attempt.h"

namespace orby {

bool TryWriteWhole(FileSystem& files, const std::string& path, std::string_view bytes) {
  const std::string beside = path + ".tmp";
  const bool isWritten = Succeeds([&] {
    const auto output = files.CreateFile(beside);
    output->Write(bytes);
    output->Close();
    files.RenameFile(beside, path);
  });
  if (!isWritten) Succeeds([&] { files.RemoveFile(beside); });
  return isWritten;
}

}  // namespace orby
