#include <cstdio>
#include <exception>
#include <new>

#include "apps/orby-cli/commands.h"
#include "base/runtime_error.h"
#include "base/types.h"
#include "posix/file_size_limit.h"

int main(int argc, char** argv) {
  using namespace orby::cli;
  orby::SurviveFileSizeLimit();
  try {
    const auto line = ParseCommandLine({argv + 1, argv + argc});
    if (line && line->Help) {
      std::fwrite(UsageText.data(), 1, UsageText.size(), stdout);
      return orby::NumberOf(ExitCode::Done);
    }
    return orby::NumberOf(RunCommand(line.value_or(CommandLine{})));
  } catch (const std::bad_alloc&) {
    std::fputs(orby::RuntimeError(orby::error_number::OutOfMemory).what(), stderr);
  } catch (const std::exception& error) {
    std::fputs(error.what(), stderr);
  }
  std::fputc('\n', stderr);
  return orby::NumberOf(ExitCode::RunTimeError);
}
