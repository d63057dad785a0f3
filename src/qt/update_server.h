// The server that publishes new versions of the program.
#pragma once

#include <string>

namespace orby {

// Returns the address that the program was built with. The environment variable ORBY_UPDATE_SERVER overrides it; an
// empty value means no server.
std::string UpdateServer();

}  // namespace orby
