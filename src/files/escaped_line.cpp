#include "files/escaped_line.h"

#include <cstddef>

namespace orby {
namespace {

constexpr char Escape = '\\';

}  // namespace

std::string Escaped(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (const char byte : text) {
    switch (byte) {
      case Escape: line += "\\\\"; break;
      case '\r': line += "\\r"; break;
      case '\n': line += "\\n"; break;
      default: line += byte;
    }
  }
  return line;
}

std::string Unescaped(std::string_view line) {
  std::string text;
  text.reserve(line.size());
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (line[at] != Escape || at + 1 == line.size()) {
      text += line[at];
      continue;
    }
    ++at;
    text += line[at] == 'r' ? '\r' : line[at] == 'n' ? '\n' : line[at];
  }
  return text;
}

}  // namespace orby
