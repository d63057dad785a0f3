#include "posix/file_size_limit.h"

#include <csignal>

namespace orby {

// A handler rather than SIG_IGN: an ignored signal stays ignored in the programs that are started.
void SurviveFileSizeLimit() {
  std::signal(SIGXFSZ, [](int) {});
}

}  // namespace orby
