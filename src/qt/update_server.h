// Which server publishes new versions of the program.
#pragma once

#include <string>

namespace orby {

// The address that the program was built with, unless ORBY_UPDATE_SERVER in the environment names another one, or, when
// it is empty, none at all.
std::string UpdateServer();

}  // namespace orby
