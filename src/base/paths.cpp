#include "base/paths.h"

#include "base/text.h"

namespace orby {
namespace {

constexpr std::string_view Separators = "/\\";

}  // namespace

bool EndsInSeparator(std::string_view path) {
  return !path.empty() && Separators.find(path.back()) != std::string_view::npos;
}

std::string WithSeparator(std::string_view path) {
  std::string result(path);
  if (!EndsInSeparator(path)) result.push_back(FolderSeparator);
  return result;
}

std::string_view WithoutSeparator(std::string_view path) {
  return EndsInSeparator(path) ? path.substr(0, path.size() - 1) : path;
}

std::string_view NameAfterSeparator(std::string_view path) {
  const std::size_t separator = path.find_last_of(Separators);
  return separator == std::string_view::npos ? path : path.substr(separator + 1);
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
