#include "tables/project_walk.h"

#include <algorithm>

#include "base/paths.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace orby {
namespace {

bool IsProjectName(std::string_view path) {
  constexpr std::string_view Ending = ".ORB";
  return path.size() > Ending.size() && SameWithoutCase(path.substr(path.size() - Ending.size()), Ending);
}

// Folders that are still to be entered are in a list, so their depth needs no stack.
std::vector<FoundProject> Walk(FileSystem& files, const std::string& top,
                               const std::function<bool(std::size_t found)>& goesOn) {
  std::vector<FoundProject> found;
  std::vector<std::string> folders{top};
  while (!folders.empty()) {
    const std::string folder = folders.back();
    folders.pop_back();
    try {
      for (const std::string& name : files.FoldersIn(folder)) {
        std::string path = WithSeparator(folder) + name;
        if (files.ResolveLinks(path) == path) folders.push_back(std::move(path));
      }
      for (std::string& path : files.FilesIn(folder)) {
        if (IsProjectName(path)) found.push_back({std::move(path), {}});
      }
    } catch (const RuntimeError& error) {
      found.push_back({folder, std::string(error.description())});
    }
    if (goesOn && !goesOn(found.size())) break;
  }
  return found;
}

}  // namespace

std::vector<FoundProject> ProjectsBelow(FileSystem& files, const std::string& folder,
                                        const std::function<bool(std::size_t found)>& goesOn) {
  std::vector<FoundProject> found = Walk(files, folder, goesOn);
  std::ranges::sort(found, {}, &FoundProject::Path);
  return found;
}

std::vector<FoundProject> ProjectsOf(FileSystem& files, const std::vector<std::string>& paths) {
  std::vector<FoundProject> found;
  for (const std::string& path : paths) {
    bool isFolder = false;
    try {
      isFolder = files.Find(path) == Found::Folder;
    } catch (const RuntimeError&) {
      // The row of the file says why it cannot be read.
    }
    if (!isFolder) {
      found.push_back({path, {}});
      continue;
    }
    std::vector<FoundProject> below = ProjectsBelow(files, path);
    found.insert(found.end(), std::make_move_iterator(below.begin()), std::make_move_iterator(below.end()));
  }
  return found;
}

}  // namespace orby
