// The desktop of this machine.
#pragma once

#include <string>

namespace orby {

// Opens the file with the program that the desktop has for it. Returns false when there is none or it does not start.
bool OpenOnDesktop(const std::string& path);

// Returns true if the desktop has a program for .xlsx files.
bool OpensSpreadsheets();

// Returns true if the desktop's dialog for printers also offers to print to a PDF file.
bool PrintsToFiles();

}  // namespace orby
