// Fuzzes word wrapping: lines have at most their width for any bytes. The first byte is the width.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void RequireLinesWithin(std::string_view text, std::size_t width) {
  while (!text.empty()) Require(orby::CharacterCount(orby::TakeLine(text)) <= width);
}

void WrapWords(std::string_view text, std::size_t width) {
  constexpr std::size_t LargestUnwrapped = 20;
  const std::string wrapped = orby::WordWrapText(text, width);
  if (width <= LargestUnwrapped) {
    Require(wrapped == text);
    return;
  }
  Require(wrapped.ends_with(orby::LineEnd));
  RequireLinesWithin(wrapped, width);
}

// Requires that only a line end is added after each piece except the last, and that nothing is lost.
void WrapDescription(std::string_view text) {
  constexpr std::size_t Limit = 60;
  const auto [line, count] = orby::WrapDescriptionLine(text);
  RequireLinesWithin(line, Limit);
  const int lineEnds = text.empty() ? 0 : count - 2;
  Require(lineEnds >= 0);
  Require(line.size() == text.size() + orby::LineEnd.size() * static_cast<std::size_t>(lineEnds));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
  WrapWords(text, data[0]);
  WrapDescription(text);
  return 0;
}
