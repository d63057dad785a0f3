#include "config/whole_file.h"

#include "base/runtime_error.h"

namespace orby {
namespace {

void RemoveQuietly(FileSystem& files, const std::string& path) {
  try {
    files.RemoveFile(path);
  } catch (const RuntimeError&) {
    return;
  }
}

}  // namespace

bool TryWriteWhole(FileSystem& files, const std::string& path, std::string_view bytes) {
  const std::string beside = path + ".tmp";
  try {
    const auto output = files.CreateFile(beside);
    output->Write(bytes);
    output->Close();
    files.RenameFile(beside, path);
    return true;
  } catch (const RuntimeError&) {
    RemoveQuietly(files, beside);
    return false;
  }
}

}  // namespace orby
