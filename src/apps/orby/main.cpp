#include <cstdio>
#include <cstdlib>
#include <exception>

#include "machine/disk_files.h"
#include "machine/file_types.h"
#include "machine/program.h"
#include "qt/application.h"
#include "qt/documents.h"
#include "qt/surroundings.h"

int main(int argc, char** argv) {
  orby::PrepareProgram();
  // Without a display the toolkit would end the program without a clear message.
  if (!orby::HasDisplay()) {
    std::fputs("orby: there is no display to show the program on; orby-cli prints reports without one.\n", stderr);
    return EXIT_FAILURE;
  }
  try {
    orby::DiskFiles files(orby::ProgramFolder());
    orby::QtUserFolders userFolders;
    orby::QtDocuments documents;
    const auto fileTypes = orby::MakeFileTypes(files, userFolders, documents);
    return orby::RunProgram(files, *fileTypes, orby::ProgramArguments(argc, argv));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "orby: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
