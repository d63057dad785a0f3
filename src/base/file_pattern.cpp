#include "base/file_pattern.h"

#include <algorithm>

#include "base/text.h"

namespace orby {
namespace {

// Removes the first character from the text and returns it.
std::string_view TakeCharacter(std::string_view& text) {
  const std::string_view character = text.substr(0, CharacterOffset(text, 1));
  text.remove_prefix(character.size());
  return character;
}

// Each star matches as few characters as possible at first. When the rest does not match, the last star takes one more.
bool Matches(std::string_view name, std::string_view pattern) {
  std::string_view nameAtStar;
  std::string_view patternAfterStar;
  bool hasStar = false;
  while (!name.empty() || !pattern.empty()) {
    if (pattern.starts_with('*')) {
      pattern.remove_prefix(1);
      hasStar = true;
      nameAtStar = name;
      patternAfterStar = pattern;
      continue;
    }
    if (!name.empty() && !pattern.empty()) {
      const std::string_view wanted = TakeCharacter(pattern);
      if (const auto letter = TakeCharacter(name); wanted == "?" || SameWithoutCase(letter, wanted)) continue;
    }
    if (!hasStar || nameAtStar.empty()) return false;
    TakeCharacter(nameAtStar);
    name = nameAtStar;
    pattern = patternAfterStar;
  }
  return true;
}

}  // namespace

bool MatchesFilePattern(std::string_view name, std::string_view patterns) {
  bool isBlank = true;
  while (!patterns.empty()) {
    const std::size_t end = std::min(patterns.find(';'), patterns.size());
    const std::string_view pattern = Trim(patterns.substr(0, end));
    patterns.remove_prefix(std::min(end + 1, patterns.size()));
    if (pattern.empty()) continue;
    if (pattern == EveryFile || Matches(name, pattern)) return true;
    isBlank = false;
  }
  return isBlank;
}

}  // namespace orby
