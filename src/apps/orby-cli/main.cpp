#include <cstdio>
#include <exception>
#include <new>

#include "apps/orby-cli/commands.h"
#include "base/runtime_error.h"
#include "base/types.h"
#include "machine/program.h"

int main(int argc, char** argv) {
  using namespace orby::cli;
  orby::PrepareProgram();
  try {
    const auto line = ParseCommandLine(orby::ProgramArguments(argc, argv));
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
