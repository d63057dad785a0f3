// The files of a project as texts, so that the rules of the architecture can be applied to this project and to invented
// ones.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orby::test {

struct TreeFile {
  std::string path;  // relative to the project, "src/base/text.h"
  std::string text;
};

using Tree = std::vector<TreeFile>;

// Returns all text files of the project, in the order of their paths. Excludes built files, those of git, and files
// with a NUL byte.
Tree ReadHouse(const std::filesystem::path& top);

struct Include {
  std::string target;  // the text between the quotes or brackets
  bool quoted = false;
  int line = 0;  // counted from 1
};

// Returns the #include lines of a file.
std::vector<Include> IncludesOf(const TreeFile& file);

// Returns true if the file is a C++ file below src/.
bool IsSource(const TreeFile& file);

// Returns the folder of a path below src/, such as "base" for "base/text.h". Empty when it has none.
std::string FolderOf(const std::string& pathBelowSrc);

// Returns the path without its leading "src/".
std::string BelowSrc(const TreeFile& file);

}  // namespace orby::test
