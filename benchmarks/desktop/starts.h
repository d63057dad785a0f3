// Starts that are measured, each until its window has been painted:
//
//   empty-start   a window without anything in it
//   start         the program
//   project       the same, until the summary of a design of the folder "examples" has been painted
//   empty-browser a window with an empty page view
//   help          the help of the folder "help"
#pragma once

#include <string>

#include "core/program.h"
#include "machine/disk_files.h"
#include "platform/no_desktop.h"
#include "qt/desktop.h"

namespace orby {

// A run of the program that ends with the first error.
struct Run {
  Run();

  DiskFiles files{"."};
  NoFileTypes fileTypes;
  Desktop desktop{files, fileTypes};
  Program program{desktop.AsPlatform()};
};

bool IsStart(const std::string& name);

// Returns the exit status of the program. Needs a QApplication.
int RunStart(const std::string& name);

}  // namespace orby
