#include "companion_run.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

extern char** environ;

namespace orby::test {

CompanionTest::CompanionTest() {
  std::string pattern = (std::filesystem::temp_directory_path() / "orby-e2e-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = pattern;
}

CompanionTest::~CompanionTest() { std::filesystem::remove_all(folder_); }

Outcome CompanionTest::Run(const std::vector<std::string>& words) const {
  std::vector<std::string> arguments{ORBY_CLI};
  arguments.insert(arguments.end(), words.begin(), words.end());
  return Start(std::move(arguments));
}

Outcome CompanionTest::RunProgram(const std::string& program, const std::vector<std::string>& words) const {
  std::vector<std::string> arguments{"/usr/bin/env", program};
  arguments.insert(arguments.end(), words.begin(), words.end());
  return Start(std::move(arguments));
}

Outcome CompanionTest::RunWithSmallFiles(int blocks, const std::vector<std::string>& words) const {
  std::vector<std::string> arguments{"/bin/sh", "-c", "ulimit -f " + std::to_string(blocks) + "; exec \"$@\"", "sh",
                                     ORBY_CLI};
  arguments.insert(arguments.end(), words.begin(), words.end());
  return Start(std::move(arguments));
}

Outcome CompanionTest::Start(std::vector<std::string> arguments) const {
  const std::string outPath = Path("stdout.txt");
  const std::string errPath = Path("stderr.txt");
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  constexpr int CreateAnew = O_WRONLY | O_CREAT | O_TRUNC;
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, outPath.c_str(), CreateAnew, 0600);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, errPath.c_str(), CreateAnew, 0600);
  std::vector<char*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);

  pid_t child = 0;
  const int failed = posix_spawn(&child, argv.front(), &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (failed != 0) throw std::runtime_error("orby-cli could not be started");
  int status = 0;
  waitpid(child, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, Read(outPath), Read(errPath)};
}

std::string CompanionTest::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(Path(name), std::ios::binary) << bytes;
  return Path(name);
}

std::string CompanionTest::Read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::vector<std::string> CompanionTest::Names() const {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    const std::string name = entry.path().filename().string();
    if (name != "stdout.txt" && name != "stderr.txt") names.push_back(name);
  }
  std::ranges::sort(names);
  return names;
}

bool CompanionTest::Exists(const std::string& path) { return std::filesystem::exists(path); }

}  // namespace orby::test
