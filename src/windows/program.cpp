#include "machine/program.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "base/paths.h"
#include "windows/system.h"
#include "windows/wide_text.h"

// The arguments are taken as they are: the shell of Windows leaves "*" and "?" to the program, and files have no names
// with them.
extern "C" int _CRT_glob;
int _CRT_glob = 0;

namespace orby {

void PrepareProgram() {
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stderr), _O_BINARY);
  // A drive without a disk is an error like others. The system would stop the program with a box.
  SetErrorMode(SEM_FAILCRITICALERRORS);
}

std::vector<std::string> ProgramArguments(int, char**) {
  int count = 0;
  wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(Utf8Text(words[i]));
  LocalFree(words);
  return arguments;
}

std::string ProgramFolder() {
  std::wstring path(32'768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  const std::string program = Utf8Text(path);
  const std::string folder = FolderOf(program);
  return folder.empty() || IsRoot(folder) ? folder : std::string(WithoutSeparator(folder));
}

bool HasDisplay() { return true; }

bool ErrorsGoToTerminal() { return _isatty(_fileno(stderr)) != 0; }

}  // namespace orby
