// Fuzzes LineIndex and ShownLine: bytes in pieces of any length have the same lines as TakeLine returns, and each line
// is shown as valid text of a limited length. The first byte determines the length of the pieces.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

void Require(bool holds) {
  if (!holds) std::abort();
}

orby::LineIndex IndexInPieces(std::string_view text, std::size_t length) {
  orby::LineIndex index;
  for (std::size_t end = length; end < text.size(); end += length) index.Extend(text.substr(0, end));
  index.Extend(text);
  Require(index.Length() == text.size());
  return index;
}

void RequireTheSameLines(const orby::LineIndex& index, std::string_view text) {
  std::string_view rest = text;
  std::size_t line = 0;
  for (; !rest.empty(); ++line) {
    std::string_view expected = orby::TakeLine(rest);
    if (line == 0 && expected.starts_with(Utf8Mark)) expected.remove_prefix(Utf8Mark.size());
    Require(index.Line(text, line) == expected);
  }
  Require(index.Count() == line);
  Require(index.Line(text, line).empty());
}

void RequireShownAsText(std::string_view line) {
  const std::string shown = orby::ShownLine(line);
  Require(orby::IsValidUtf8(shown));
  Require(orby::CharacterCount(shown) <= orby::MostShownCharacters + 1);
  Require(shown.find_first_of("\t\r\n") == std::string::npos);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data + 1), size - 1);
  const orby::LineIndex index = IndexInPieces(text, std::size_t{data[0]} * 16 + 1);
  RequireTheSameLines(index, text);
  for (std::size_t line = 0; line < index.Count(); ++line) RequireShownAsText(index.Line(text, line));
  RequireShownAsText(text);
  return 0;
}
