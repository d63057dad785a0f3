#include "monkey/confinement.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "monkey/dice.h"

namespace orby::monkey {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void Write(const fs::path& path, const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }

// Creates a tool of the desktop that knows no program for any file.
void MakeTool(const fs::path& path) {
  Write(path, "#!/bin/sh\nexit 3\n");
  fs::permissions(path, fs::perms::owner_all);
}

std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines(1);
  for (const char c : bytes) {
    lines.back() += c;
    if (c == '\n') lines.emplace_back();
  }
  return lines;
}

// Returns the bytes with some lines replaced.
std::string Damaged(const std::string& bytes, Dice& dice) {
  static const std::vector<std::string> texts{"0",  "-1",    "1E38", "1E40", "1E400", "40000", "letters",
                                              "\"", "\"a,b", ",,,",  "",     "##",    "\xE9",  "99999999999999999999"};
  std::vector<std::string> lines = LinesOf(bytes);
  for (int times = 1 + dice.Below(6); times > 0; --times) lines[dice.Index(lines)] = dice.OneOf(texts) + "\r\n";
  std::string damaged;
  for (const std::string& line : lines) damaged += line;
  return damaged;
}

constexpr std::uint64_t Writing =
    LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR | LANDLOCK_ACCESS_FS_REMOVE_FILE |
    LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
    LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO | LANDLOCK_ACCESS_FS_MAKE_BLOCK |
    LANDLOCK_ACCESS_FS_MAKE_SYM | LANDLOCK_ACCESS_FS_REFER;
// Not yet in the headers of some systems.
constexpr std::uint64_t Truncating = 1ULL << 14;
constexpr std::uint64_t NetworkAccess = 3;  // binding and connecting
constexpr long TruncatingSince = 3;
constexpr long NetworkSince = 4;

struct RulesetAttributes {
  std::uint64_t files;
  std::uint64_t network;
};

bool Allow(int ruleset, const std::string& path, std::uint64_t access) {
  landlock_path_beneath_attr rule{};
  rule.allowed_access = access;
  rule.parent_fd = open(path.c_str(), O_PATH | O_CLOEXEC);
  if (rule.parent_fd < 0) return false;
  const bool done = syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) == 0;
  close(rule.parent_fd);
  return done;
}

}  // namespace

World::World(std::uint64_t seed) {
  std::string pattern = (fs::temp_directory_path() / "orby-monkey-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder at " + pattern);
  root_ = pattern;
  for (const char* folder : {"home/Documents", "home/Desktop", "home/Downloads", "bin", "tmp", "run"}) {
    fs::create_directories(fs::path(root_) / folder);
  }
  fs::permissions(fs::path(root_) / "run", fs::perms::owner_all);
  for (const char* tool : {"xdg-open", "xdg-mime"}) MakeTool(fs::path(root_) / "bin" / tool);
  MakeFiles(seed);
}

World::~World() {
  std::error_code ignored;
  fs::remove_all(root_, ignored);
}

void World::MakeFiles(std::uint64_t seed) const {
  const fs::path folder = fs::path(root_) / "home/Documents";
  Dice dice(seed, 0);
  int number = 0;
  for (const auto& example : fs::directory_iterator(EXAMPLES_DIR)) {
    if (example.path().extension() != ".ORB") continue;
    const std::string bytes = BytesOf(example.path());
    const std::string digit = std::to_string(number++);
    Write(folder / ("whole" + digit + ".ORB"), bytes);
    Write(folder / ("damaged" + digit + ".ORB"), Damaged(bytes, dice));
    Write(folder / ("cut" + digit + ".ORB"), bytes.substr(0, dice.Index(bytes)));
  }
  std::string noise(5000, ' ');
  for (char& c : noise) c = static_cast<char>(dice.Below(256));
  Write(folder / "noise.ORB", noise);
  Write(folder / "empty.ORB", {});
  Write(folder / "long.ORB", std::string(300000, '7'));
  Write(folder / "noextension", BytesOf(folder / "whole0.ORB"));
  Write(folder / "caf\xC3\xA9 1,5.ORB", BytesOf(folder / "whole0.ORB"));
  std::string text;
  for (int line = 0; line < 4000; ++line) text += "line " + std::to_string(line) + " of a long text\r\n";
  Write(folder / "notes.txt", text);
  std::error_code isThere;
  fs::create_directory(folder / "folder.ORB", isThere);
  fs::create_symlink("circle.ORB", folder / "circle.ORB", isThere);
}

void World::SetVariables() const {
  const auto set = [](const char* name, const std::string& value) { setenv(name, value.c_str(), 1); };
  set("HOME", root_ + "/home");
  set("PATH", root_ + "/bin");
  set("TMPDIR", root_ + "/tmp");
  set("XDG_RUNTIME_DIR", root_ + "/run");
  set("CUPS_SERVER", root_ + "/run/no-printers");
  set("QT_QPA_PLATFORM", "offscreen");
  set("QT_STYLE_OVERRIDE", "Fusion");
  set("QT_NO_GLIB", "1");
  for (const char* name :
       {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME", "XDG_CONFIG_DIRS", "DISPLAY",
        "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORMTHEME", "ORBY_ACCESSIBLE_IDS"}) {
    unsetenv(name);
  }
}

bool ConfineTo(const std::string& folder) {
  const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
  if (version < 2) return false;
  const std::uint64_t access = Writing | (version >= TruncatingSince ? Truncating : 0);
  RulesetAttributes attributes{access, version >= NetworkSince ? NetworkAccess : 0};
  const std::size_t size = version >= NetworkSince ? sizeof(attributes) : sizeof(attributes.files);
  const int ruleset = static_cast<int>(syscall(SYS_landlock_create_ruleset, &attributes, size, 0));
  if (ruleset < 0) return false;
  const bool done = Allow(ruleset, folder, access) && Allow(ruleset, "/dev", LANDLOCK_ACCESS_FS_WRITE_FILE) &&
                    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && syscall(SYS_landlock_restrict_self, ruleset, 0) == 0;
  close(ruleset);
  return done;
}

}  // namespace orby::monkey
