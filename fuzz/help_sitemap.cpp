// Fuzzes the contents, index, topics and pages of a help. The first line has the words to search for.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/text.h"
#include "help/help_book.h"
#include "help/markup.h"

namespace {

void Expect(bool holds) {
  if (!holds) std::abort();
}

int DepthOf(const std::vector<orby::HelpEntry>& entries) {
  int deepest = 0;
  for (const auto& entry : entries) {
    Expect(!entry.title.empty());
    deepest = std::max(deepest, DepthOf(entry.entries));
  }
  return entries.empty() ? 0 : deepest + 1;
}

// Returns true if the piece, without "..." at its ends, is a part of the text.
bool IsPartOf(std::string_view piece, std::string_view text) {
  if (text.find(piece) != std::string_view::npos) return true;
  if (piece.starts_with("...")) piece.remove_prefix(3);
  if (text.find(piece) != std::string_view::npos) return true;
  if (piece.ends_with("...")) piece.remove_suffix(3);
  return text.find(piece) != std::string_view::npos;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  std::string_view rest = bytes;
  const std::string words(orby::TakeLine(rest));
  const std::string source(rest);

  Expect(DepthOf(orby::ReadSitemap(source)) <= 16);
  std::size_t places = 0;
  for (const auto& keyword : orby::ReadIndex(source)) {
    Expect(!keyword.keyword.empty());
    places += keyword.places.size();
  }
  Expect(places <= size);

  const std::string text = orby::TextOfPage(source);
  Expect(text.find("  ") == std::string::npos && text.size() <= source.size());

  orby::HelpBook book([&source](const std::string&) { return source; });
  // No topic of the source can have a name that is longer than the source.
  const std::string member = "frmNone.Text1_" + std::string(size, '7');
  Expect(book.PlaceOf(member) == book.PlaceOf("frmNone.Text1"));
  static_cast<void>(book.TitleOf(book.FirstPage()));
  int hitsBefore = INT32_MAX;
  for (const auto& hit : book.Search(words)) {
    Expect(hit.hits > 0 && hit.hits <= hitsBefore && IsPartOf(hit.snippet, text));
    hitsBefore = hit.hits;
  }
  return 0;
}
