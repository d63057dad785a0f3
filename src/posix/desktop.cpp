#include "machine/desktop.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <future>
#include <memory>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace orby {
namespace {

constexpr std::chrono::milliseconds MostToFail{1500};
constexpr std::chrono::seconds MostToAnswer{5};
constexpr int CannotStart = 127;

using Status = std::future<int>;

// Starts a tool of the desktop, which may outlive this program. Returns its exit status once it has ended; a tool that
// cannot be started ends with 127. Its output goes to the open file.
Status StartTool(std::vector<std::string> words, int output) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);

  posix_spawn_file_actions_t actions{};
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
  posix_spawnattr_t attributes{};
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);

  pid_t tool = 0;
  const int problem = posix_spawnp(&tool, arguments[0], &actions, &attributes, arguments.data(), environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&actions);

  std::promise<int> ending;
  Status status = ending.get_future();
  if (problem != 0) {
    ending.set_value(CannotStart);
    return status;
  }
  std::thread([tool, ending = std::move(ending)]() mutable {
    int code = 0;
    const bool ended = waitpid(tool, &code, 0) == tool;
    ending.set_value(ended ? code : CannotStart);
  }).detach();
  return status;
}

}  // namespace

// The tool that opens files fails at once. If it succeeds, it ends at once or stays as long as the file is open. So the
// function waits only a moment for a failure.
bool OpenOnDesktop(const std::string& path) {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  Status status = StartTool({"xdg-open", path}, nowhere);
  close(nowhere);
  return status.wait_for(MostToFail) != std::future_status::ready || status.get() == 0;
}

bool OpensSpreadsheets() {
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> answer(std::tmpfile(), &std::fclose);
  if (!answer) return false;
  const std::string type = "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet";
  Status status = StartTool({"xdg-mime", "query", "default", type}, fileno(answer.get()));
  if (status.wait_for(MostToAnswer) != std::future_status::ready) return false;
  std::rewind(answer.get());
  std::string program(256, '\0');
  program.resize(std::fread(program.data(), 1, program.size(), answer.get()));
  return program.find_first_not_of(" \n") != std::string::npos;
}

bool PrintsToFiles() { return true; }

}  // namespace orby
