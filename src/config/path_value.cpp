#include "config/path_value.h"

#include <algorithm>
#include <charconv>

#include "base/code_page.h"

namespace orby {
namespace {

constexpr std::string_view Mark = "file:";
constexpr char Escape = '%';
constexpr std::size_t EscapeDigits = 2;

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }
bool IsTrimmed(char c) { return c == ' ' || c == '"' || c == '\''; }

bool ReadsBack(std::string_view path) {
  if (path.empty()) return true;
  return IsValidUtf8(path) && std::ranges::none_of(path, IsControl) && !IsTrimmed(path.front()) &&
         !IsTrimmed(path.back()) && !path.starts_with(Mark);
}

void AppendEscaped(std::string& text, char byte) {
  constexpr std::string_view Digits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  text += Escape;
  text += Digits[value >> 4U];
  text += Digits[value & 0xFU];
}

// Returns the number of bytes of the first character, or 1 when it is not UTF-8.
std::size_t CharacterSize(std::string_view bytes) {
  constexpr std::size_t Longest = 4;
  for (std::size_t size = 1; size <= std::min(Longest, bytes.size()); ++size) {
    if (IsValidUtf8(bytes.substr(0, size))) return size;
  }
  return 1;
}

// Removes an escape from the start of the text and sets `byte` to its value. Returns false when there is none.
bool TakeEscape(std::string_view& text, char& byte) {
  if (text.size() <= EscapeDigits || text.front() != Escape) return false;
  const char* digits = text.data() + 1;
  unsigned char value = 0;
  if (std::from_chars(digits, digits + EscapeDigits, value, 16).ptr != digits + EscapeDigits) return false;
  byte = static_cast<char>(value);
  text.remove_prefix(EscapeDigits + 1);
  return true;
}

}  // namespace

std::string ValueFromPath(std::string_view path) {
  if (ReadsBack(path)) return std::string(path);
  std::string value(Mark);
  while (!path.empty()) {
    const std::string_view character = path.substr(0, CharacterSize(path));
    const char first = character.front();
    if (!IsValidUtf8(character) || first == Escape || IsControl(first) || IsTrimmed(first)) {
      AppendEscaped(value, first);
    } else {
      value += character;
    }
    path.remove_prefix(character.size());
  }
  return value;
}

std::string PathFromValue(std::string_view value) {
  if (!value.starts_with(Mark)) return std::string(value);
  value.remove_prefix(Mark.size());
  std::string path;
  while (!value.empty()) {
    char byte = value.front();
    if (!TakeEscape(value, byte)) value.remove_prefix(1);
    path += byte;
  }
  return path;
}

}  // namespace orby
