#include "architecture/tree.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <string_view>

namespace orby::test {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view SourceRoot = "src/";

constexpr std::array<std::string_view, 11> Folders = {"src",  "tests",     "fuzz",  "benchmarks", "docs", "examples",
                                                      "help", "packaging", "cmake", "scripts",    ".ci"};

void AddFile(Tree& tree, const fs::path& top, const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::string text((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
  if (text.find('\0') != std::string::npos) return;
  tree.push_back({fs::relative(file, top).generic_string(), std::move(text)});
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

bool TakeWord(std::string_view& text, std::string_view word) {
  text = WithoutLeadingBlanks(text);
  if (!text.starts_with(word)) return false;
  text.remove_prefix(word.size());
  return true;
}

}  // namespace

Tree ReadHouse(const fs::path& top) {
  Tree tree;
  for (const auto& entry : fs::directory_iterator(top)) {
    if (entry.is_regular_file()) AddFile(tree, top, entry.path());
  }
  for (const auto folder : Folders) {
    if (!fs::is_directory(top / folder)) continue;
    for (const auto& entry : fs::recursive_directory_iterator(top / folder)) {
      if (entry.is_regular_file()) AddFile(tree, top, entry.path());
    }
  }
  std::ranges::sort(tree, {}, &TreeFile::path);
  return tree;
}

std::vector<Include> IncludesOf(const TreeFile& file) {
  std::vector<Include> includes;
  std::string_view rest = file.text;
  for (int line = 1; !rest.empty(); ++line) {
    const auto end = std::min(rest.find('\n'), rest.size());
    std::string_view text = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (!TakeWord(text, "#") || !TakeWord(text, "include")) continue;
    text = WithoutLeadingBlanks(text);
    if (text.empty() || (text.front() != '"' && text.front() != '<')) continue;
    const bool quoted = text.front() == '"';
    const auto close = text.find(quoted ? '"' : '>', 1);
    if (close == std::string_view::npos) continue;
    includes.push_back({std::string(text.substr(1, close - 1)), quoted, line});
  }
  return includes;
}

bool IsSource(const TreeFile& file) {
  return file.path.starts_with(SourceRoot) && (file.path.ends_with(".h") || file.path.ends_with(".cpp"));
}

std::string FolderOf(const std::string& pathBelowSrc) {
  const auto slash = pathBelowSrc.find('/');
  return slash == std::string::npos ? std::string() : pathBelowSrc.substr(0, slash);
}

std::string BelowSrc(const TreeFile& file) { return file.path.substr(SourceRoot.size()); }

}  // namespace orby::test
