// The project's files as texts, so that the rules of the house can be tried on them and on made-up ones.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orby::test {

struct TreeFile {
  std::string path;  // from the top, "src/base/text.h"
  std::string text;
};

using Tree = std::vector<TreeFile>;

// Every text file of the project below its top: what is built or what git keeps for itself is left out, so are files
// with a NUL byte. In the order of their paths.
Tree ReadHouse(const std::filesystem::path& top);

struct Include {
  std::string target;  // as written between the quotes or brackets
  bool quoted = false;
  int line = 0;  // counted from 1
};

// The #include lines of a file.
std::vector<Include> IncludesOf(const TreeFile& file);

// Whether the file is C++ below src/.
bool IsSource(const TreeFile& file);

// The folder below src/ a path like "base/text.h" lies in; empty when it names none.
std::string FolderOf(const std::string& pathBelowSrc);

// The path without its leading "src/".
std::string BelowSrc(const TreeFile& file);

}  // namespace orby::test
