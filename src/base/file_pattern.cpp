#include "base/file_pattern.h"

#include <algorithm>

#include "base/text.h"

namespace orby {
namespace {

// Takes the first character off the text.
std::string_view TakeCharacter(std::string_view& text) {
  const std::string_view character = text.substr(0, CharacterOffset(text, 1));
  text.remove_prefix(character.size());
  return character;
}

// A star takes as little as it can at first; where the rest does not fit, the last one takes a character more.
bool Matches(std::string_view name, std::string_view pattern) {
  std::string_view nameAtStar;
  std::string_view patternBehindStar;
  bool hasStar = false;
  while (!name.empty() || !pattern.empty()) {
    if (pattern.starts_with('*')) {
      pattern.remove_prefix(1);
      hasStar = true;
      nameAtStar = name;
      patternBehindStar = pattern;
      continue;
    }
    if (!name.empty() && !pattern.empty()) {
      const std::string_view wanted = TakeCharacter(pattern);
      if (const auto letter = TakeCharacter(name); wanted == "?" || SameWithoutCase(letter, wanted)) continue;
    }
    if (!hasStar || nameAtStar.empty()) return false;
    TakeCharacter(nameAtStar);
    name = nameAtStar;
    pattern = patternBehindStar;
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
