#include "machine/program.h"

#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace orby {

// A handler rather than SIG_IGN: an ignored signal stays ignored in the programs that are started.
void PrepareProgram() {
  std::signal(SIGXFSZ, [](int) {});
}

std::vector<std::string> ProgramArguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

std::string ProgramFolder() {
  std::error_code problem;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", problem);
  return problem ? "." : program.parent_path().string();
}

bool HasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    const char* value = std::getenv(name);
    if (value != nullptr && *value != '\0') return true;
  }
  return false;
}

bool ErrorsGoToTerminal() { return isatty(STDERR_FILENO) == 1; }

}  // namespace orby
