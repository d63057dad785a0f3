#include "architecture/rules.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string_view>

namespace orby::test {
namespace {

struct Room {
  std::string_view folder;
  int floor;
};

constexpr std::array<Room, 24> Rooms = {
    {{"base", 0},    {"platform", 1}, {"controls", 1}, {"design", 1},  {"drawings", 1},    {"machine", 2},
     {"engine", 2},  {"sketches", 3}, {"core", 3},     {"config", 4},  {"files", 4},       {"reports", 4},
     {"sheet", 5},   {"tables", 5},   {"dialogs", 6},  {"help", 6},    {"spreadsheet", 4}, {"shell", 7},
     {"studies", 3}, {"sampling", 3}, {"posix", 3},    {"windows", 3}, {"qt", 8},          {"apps", 9}}};

// A folder of tests/ whose name is not that of a room.
struct OtherTests {
  std::string_view folder;
  std::string_view room;  // the room that it tests nevertheless
  std::string_view reason;
};

constexpr std::array<OtherTests, 6> OtherFolders = {{
    {"support", "", "what the tests of several rooms share"},
    {"data", "", "tables, projects and texts that tests read"},
    {"architecture", "", "the rules of all rooms"},
    {"gui", "qt", "the windows of every dialog at work, which is more than that room"},
    {"e2e", "apps", "the finished programs, used from outside"},
    {"monkey", "", "the whole program used at random"},
}};

constexpr long MostLines = 400;

// Found at the start of a word, ignoring case. They are written in halves, so that this file does not contain them.
struct StrayWord {
  std::string_view text;
  bool whole;  // only the end of the word may follow
};

constexpr std::array<StrayWord, 6> Strays = {{{"TO"
                                               "DO",
                                               true},
                                              {"FIX"
                                               "ME",
                                               true},
                                              {"XX"
                                               "X",
                                               true},
                                              {"not imple"
                                               "mented",
                                               true},
                                              {"DISABLED"
                                               "_",
                                               false},
                                              {"GTEST"
                                               "_SKIP",
                                               true}}};

std::optional<int> FloorOf(std::string_view folder) {
  const auto* room = std::ranges::find(Rooms, folder, &Room::folder);
  if (room == Rooms.end()) return std::nullopt;
  return room->floor;
}

std::string Place(const std::string& path, long line) { return path + ":" + std::to_string(line) + ": "; }

bool IsDigit(char c) { return c >= '0' && c <= '9'; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
bool IsWordCharacter(char c) { return IsDigit(c) || c == '_' || (Lower(c) >= 'a' && Lower(c) <= 'z'); }

bool StandsAt(std::string_view text, std::size_t at, const StrayWord& word) {
  if (text.size() - at < word.text.size()) return false;
  if (at > 0 && IsWordCharacter(word.text.front()) && IsWordCharacter(text[at - 1])) return false;
  for (std::size_t i = 0; i < word.text.size(); ++i) {
    if (Lower(word.text[i]) != Lower(text[at + i])) return false;
  }
  const std::size_t end = at + word.text.size();
  return !word.whole || end == text.size() || !IsWordCharacter(text[end]);
}

class CircleSearch {
 public:
  explicit CircleSearch(const Tree& tree) {
    for (const auto& file : tree) {
      if (!IsSource(file)) continue;
      auto& targets = graph[BelowSrc(file)];
      for (const auto& include : IncludesOf(file)) {
        if (include.quoted) targets.push_back(include.target);
      }
    }
  }

  std::vector<std::string> Run() {
    for (const auto& [file, targets] : graph) Visit(file);
    return circles;
  }

 private:
  void Visit(const std::string& file) {
    const auto onTrail = std::ranges::find(trail, file);
    if (onTrail != trail.end()) {
      std::string circle;
      for (auto step = onTrail; step != trail.end(); ++step) circle += *step + " -> ";
      circles.push_back(circle + file);
      return;
    }
    const auto node = graph.find(file);
    if (node == graph.end() || !visited.insert(file).second) return;
    trail.push_back(file);
    for (const auto& target : node->second) Visit(target);
    trail.pop_back();
  }

  std::map<std::string, std::vector<std::string>> graph;
  std::set<std::string> visited;
  std::vector<std::string> trail;
  std::vector<std::string> circles;
};

// Returns the folders below `top` that contain files with this ending.
std::set<std::string> FoldersWith(const Tree& tree, std::string_view top, std::string_view ending) {
  std::set<std::string> folders;
  for (const auto& file : tree) {
    if (!file.path.starts_with(top) || !file.path.ends_with(ending)) continue;
    if (const std::string folder = FolderOf(file.path.substr(top.size())); !folder.empty()) folders.insert(folder);
  }
  return folders;
}

std::string WrongArrow(const std::string& from, const std::string& to) {
  if (to.empty()) return "names no folder";
  if (!FloorOf(from)) return "lies in " + from + ", a folder without a floor";
  if (!FloorOf(to)) return "leads to " + to + ", a folder without a floor";
  if (from == to || *FloorOf(to) < *FloorOf(from)) return {};
  return "leads from " + from + (*FloorOf(to) == *FloorOf(from) ? " sideways to " : " up to ") + to;
}

}  // namespace

std::vector<std::string> WrongArrows(const Tree& tree) {
  std::vector<std::string> wrong;
  for (const auto& file : tree) {
    if (!IsSource(file)) continue;
    for (const auto& include : IncludesOf(file)) {
      if (!include.quoted) continue;
      const auto what = WrongArrow(FolderOf(BelowSrc(file)), FolderOf(include.target));
      if (!what.empty()) wrong.push_back(Place(file.path, include.line) + "\"" + include.target + "\" " + what);
    }
  }
  return wrong;
}

std::vector<std::string> Circles(const Tree& tree) { return CircleSearch(tree).Run(); }

std::vector<std::string> ToolkitOutside(const Tree& tree) {
  std::vector<std::string> wrong;
  for (const auto& file : tree) {
    if (!IsSource(file)) continue;
    const auto folder = FolderOf(BelowSrc(file));
    if (folder == "qt" || folder == "apps") continue;
    for (const auto& include : IncludesOf(file)) {
      // No header of the standard library begins with this letter.
      if (!include.target.empty() && Lower(include.target.front()) == 'q' && FolderOf(include.target) != "qt") {
        wrong.push_back(Place(file.path, include.line) + include.target);
      }
    }
  }
  return wrong;
}

std::vector<std::string> ConditionsOutside(const Tree& tree) {
  const std::array<std::string, 3> allowed{"apps", "posix", "windows"};
  const std::regex condition("^[ \t]*#[ \t]*if.*");
  std::vector<std::string> wrong;
  for (const auto& file : tree) {
    if (!IsSource(file) || std::ranges::count(allowed, FolderOf(BelowSrc(file))) > 0) continue;
    std::istringstream lines(file.text);
    std::string text;
    for (long line = 1; std::getline(lines, text); ++line) {
      if (std::regex_match(text, condition)) wrong.push_back(Place(file.path, line) + text);
    }
  }
  return wrong;
}

std::vector<std::string> UnmirroredRooms(const Tree& tree) {
  const auto rooms = FoldersWith(tree, "src/", "");
  const auto tested = FoldersWith(tree, "tests/", "_test.cpp");
  std::vector<std::string> wrong;
  for (const auto& room : rooms) {
    const auto* other = std::ranges::find(OtherFolders, room, &OtherTests::room);
    const std::string tests(other == OtherFolders.end() ? room : other->folder);
    if (!tested.contains(tests)) wrong.push_back("src/" + room + ": has no tests in tests/" + tests);
  }
  for (const auto& folder : FoldersWith(tree, "tests/", "")) {
    const bool isOther = std::ranges::find(OtherFolders, folder, &OtherTests::folder) != OtherFolders.end();
    if (!isOther && !rooms.contains(folder)) wrong.push_back("tests/" + folder + ": there is no room src/" + folder);
  }
  return wrong;
}

std::vector<std::string> StrayWords(const Tree& tree) {
  std::vector<std::string> found;
  for (const auto& file : tree) {
    long line = 1;
    for (std::size_t at = 0; at < file.text.size(); ++at) {
      if (file.text[at] == '\n') ++line;
      for (const auto& word : Strays) {
        if (StandsAt(file.text, at, word)) found.push_back(Place(file.path, line) + std::string(word.text));
      }
    }
  }
  return found;
}

std::vector<std::string> LongFiles(const Tree& tree) {
  std::vector<std::string> found;
  for (const auto& file : tree) {
    const auto lines = std::ranges::count(file.text, '\n');
    if (IsSource(file) && lines > MostLines) found.push_back(file.path + ": " + std::to_string(lines) + " lines");
  }
  return found;
}

}  // namespace orby::test
