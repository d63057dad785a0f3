// The calls by which this program changes the disk: each can be the last one of the process, or fail.
//
// The linker puts these between the code under test and the system (--wrap in CMakeLists.txt).
#pragma once

#include <string>

namespace orby::test {

struct Mishap {
  int after = -1;       // calls that go well first; below 0: nothing ever happens
  int systemError = 0;  // what the call fails with; 0: the process is killed, a write being half done
  bool lasts = false;   // all later calls fail too
};

// From now on the calls are counted, and the mishap happens at its call.
void BeginMishap(const Mishap& mishap);

// Returns the name of the call at which the mishap happened; empty when it has not.
std::string EndMishap();

}  // namespace orby::test
