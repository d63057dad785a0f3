#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace orby {
namespace {

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

char UpperLetter(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string Filled(std::string_view label, std::string_view value, std::size_t width, char filler) {
  std::string text;
  text.reserve(std::max(width, label.size() + value.size()) + 16);
  AppendFilled(text, label, value, width, filler);
  return text;
}

// Returns true if the text has more than `count` characters. Reads no more of the text than needed.
bool IsLongerThan(std::string_view text, std::size_t count) {
  return text.size() > count && CharacterOffset(text, count) < text.size();
}

}  // namespace

std::size_t CharacterCount(std::string_view text) {
  constexpr std::uint64_t EachByte = 0x0101010101010101;
  std::size_t inside = 0;  // bytes 10xxxxxx, which continue a character
  std::size_t at = 0;
  for (; at + sizeof(std::uint64_t) <= text.size(); at += sizeof(std::uint64_t)) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + at, sizeof(eight));
    const std::uint64_t ones = (eight >> 7U) & ~(eight >> 6U) & EachByte;
    inside += (ones * EachByte) >> 56U;  // the sum of its bytes
  }
  for (; at < text.size(); ++at) inside += StartsCharacter(text[at]) ? 0U : 1U;
  return text.size() - inside;
}

std::size_t CharacterOffset(std::string_view text, std::size_t position) {
  std::size_t offset = 0;
  for (; offset < text.size(); ++offset) {
    if (!StartsCharacter(text[offset])) continue;
    if (position == 0) break;
    --position;
  }
  return offset;
}

std::string_view LastCharacters(std::string_view text, std::size_t count) {
  std::size_t start = text.size();
  while (start > 0 && count > 0) {
    --start;
    if (StartsCharacter(text[start])) --count;
  }
  return text.substr(start);
}

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), UpperLetter);
  return upper;
}

std::string Capitalised(std::string_view text) {
  return UpperCase(text.substr(0, 1)).append(text.substr(std::min<std::size_t>(text.size(), 1)));
}

bool SameWithoutCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return UpperLetter(x) == UpperLetter(y); });
}

bool ContainsWithoutCase(std::string_view text, std::string_view wanted) {
  const auto isSame = [](char x, char y) { return UpperLetter(x) == UpperLetter(y); };
  return wanted.empty() || std::search(text.begin(), text.end(), wanted.begin(), wanted.end(), isSame) != text.end();
}

std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = std::min(rest.find_first_of(LineEnd), rest.size());
  const std::string_view line = rest.substr(0, end);
  rest.remove_prefix(end);
  if (rest.starts_with(LineEnd)) {
    rest.remove_prefix(2);
  } else if (!rest.empty()) {
    rest.remove_prefix(1);
  }
  return line;
}

void AppendFilled(std::string& text, std::string_view label, std::string_view value, std::size_t width, char filler) {
  const std::size_t taken = CharacterCount(label) + CharacterCount(value);
  text += label;
  if (taken < width) text.append(width - taken, filler);
  text += value;
}

std::string PadDots(std::string_view label, std::size_t width) { return Filled(label, {}, width, '.'); }

std::string DotLeader(std::string_view label, std::string_view value, std::size_t width) {
  return Filled(label, value, width, '.');
}

std::string PadSpaces(std::string_view value, std::size_t width) { return Filled(value, {}, width, ' '); }

std::string AlignRight(std::string_view value, std::size_t width) { return Filled({}, value, width, ' '); }

std::string WordWrapText(std::string_view text, std::size_t width) {
  constexpr std::size_t LargestUnwrapped = 20;
  if (width <= LargestUnwrapped) return std::string(text);
  std::string wrapped;
  std::string shortened;
  while (IsLongerThan(text, width)) {
    const std::string_view reach = text.substr(0, CharacterOffset(text, width));
    const std::size_t blank = reach.rfind(' ');
    if (blank == std::string_view::npos) {
      shortened = "...";
      shortened += LastCharacters(text, width - 3);
      text = shortened;
      break;
    }
    wrapped += text.substr(0, blank);
    wrapped += LineEnd;
    text = Trim(text.substr(blank));
  }
  wrapped += text;
  wrapped += LineEnd;
  return wrapped;
}

std::string_view YesNoText(int flag) { return flag == 1 ? "YES" : "NO"; }

WrappedLine WrapDescriptionLine(std::string_view line) {
  constexpr std::size_t Limit = 60;
  constexpr std::size_t LowestBreak = 40;
  WrappedLine wrapped;
  while (!line.empty()) {
    const std::string_view reach = line.substr(0, CharacterOffset(line, Limit));
    std::string_view piece = reach;
    const std::size_t blank = reach.rfind(' ');
    if (blank != std::string_view::npos && CharacterCount(reach.substr(0, blank)) + 1 >= LowestBreak) {
      piece = reach.substr(0, blank + 1);
    }
    wrapped.text += piece;
    ++wrapped.count;
    line.remove_prefix(piece.size());
    if (!line.empty()) wrapped.text += LineEnd;
  }
  return wrapped;
}

std::string Shortened(const std::string& text, std::size_t most) {
  constexpr std::string_view Points = "...";
  if (CharacterCount(text) <= most) return text;
  return text.substr(0, CharacterOffset(text, most - Points.size())).append(Points);
}

}  // namespace orby
