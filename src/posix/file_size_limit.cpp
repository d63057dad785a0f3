#include "posix/file_size_limit.h"

#include <csignal>

namespace orby {

// A signal that is ignored stays ignored in the programs that are started; one that is handled does not.
void SurviveFileSizeLimit() {
  std::signal(SIGXFSZ, [](int) {});
}

}  // namespace orby
