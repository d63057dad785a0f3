// Interrupts the calls by which this program changes the disk: any of them can fail or be the last one of the process.
//
// The linker puts these functions between the tested code and the system (--wrap in CMakeLists.txt).
#pragma once

#include <string>

namespace orby::test {

struct Mishap {
  int after = -1;       // successful calls before the mishap; nothing happens below 0
  int systemError = 0;  // the error of the failing call; 0 to kill the process, with a write half done
  bool lasts = false;   // all later calls fail, too
};

// Starts to count the calls. The mishap happens at its call.
void BeginMishap(const Mishap& mishap);

// Returns the name of the call at which the mishap happened, or an empty text if it did not happen.
std::string EndMishap();

}  // namespace orby::test
