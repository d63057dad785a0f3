#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

#include "posix/disk_files.h"
#include "posix/file_size_limit.h"
#include "posix/xdg_file_types.h"
#include "qt/application.h"
#include "qt/documents.h"
#include "qt/surroundings.h"

namespace {

// Without a display the toolkit would end the program without a clear message.
bool HasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

std::string ProgramFolder() {
  std::error_code problem;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", problem);
  return problem ? "." : program.parent_path().string();
}

}  // namespace

int main(int argc, char** argv) {
  if (!HasDisplay()) {
    std::fputs("orby: there is no display to show the program on; orby-cli prints reports without one.\n", stderr);
    return EXIT_FAILURE;
  }
  orby::SurviveFileSizeLimit();
  try {
    orby::DiskFiles files(ProgramFolder());
    orby::QtUserFolders userFolders;
    orby::QtDocuments documents;
    orby::XdgFileTypes fileTypes(files, userFolders, documents);
    return orby::RunProgram(files, fileTypes, {argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orby: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
