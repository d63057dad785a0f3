#include "base/paths.h"

#include <algorithm>

#include "base/text.h"

namespace orby {
namespace {

constexpr std::string_view Separators = "/\\";

}  // namespace

char SeparatorOf(std::string_view path) {
  const std::size_t separator = path.find_first_of(Separators);
  if (separator != std::string_view::npos) return path[separator];
  return path.ends_with(':') ? '\\' : '/';
}

bool IsSeparator(char character) { return Separators.find(character) != std::string_view::npos; }

bool EndsInSeparator(std::string_view path) { return !path.empty() && IsSeparator(path.back()); }

bool IsRoot(std::string_view path) {
  const std::string_view name = WithoutSeparator(path);
  return name.empty() ? !path.empty() : name.size() == 2 && name[1] == ':';
}

std::string WithSeparator(std::string_view path) {
  std::string result(path);
  if (!EndsInSeparator(path)) result.push_back(SeparatorOf(path));
  return result;
}

std::string_view WithoutSeparator(std::string_view path) {
  return EndsInSeparator(path) ? path.substr(0, path.size() - 1) : path;
}

std::string_view NameAfterSeparator(std::string_view path) {
  const std::size_t separator = path.find_last_of(Separators);
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
}

std::string WithoutStepsUp(std::string_view path) {
  constexpr std::string_view Up = "..";
  std::string result;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(Separators), path.size() - 1) + 1;
    const std::string_view folder(WithoutSeparator(result));
    const std::string_view last = NameAfterSeparator(folder);
    const bool isUp = WithoutSeparator(path.substr(0, end)) == Up;
    if (isUp && !last.empty() && last != Up && !IsRoot(folder)) {
      result.resize(folder.size() - last.size());
    } else {
      result += path.substr(0, end);
    }
    path.remove_prefix(end);
  }
  return result;
}

std::string_view WithoutExtension(std::string_view name) {
  const std::size_t point = name.find('.');
  return point == std::string_view::npos || point == 0 ? name : name.substr(0, point);
}

std::string ShortenedPath(std::string_view path) {
  constexpr std::size_t LongestWhole = 50;
  constexpr std::size_t Head = 10;
  constexpr std::size_t Tail = 37;
  if (CharacterCount(path) <= LongestWhole) return std::string(path);
  std::string result(path.substr(0, CharacterOffset(path, Head)));
  result += "...";
  result += LastCharacters(path, Tail);
  return result;
}

}  // namespace orby
