#include "help/word_search.h"

#include <algorithm>

#include "base/text.h"

namespace orby {
namespace {

constexpr std::size_t SnippetBefore = 40;  // bytes
constexpr std::size_t SnippetAfter = 100;

bool IsAsciiWord(char at) { return (at >= 'A' && at <= 'Z') || (at >= 'a' && at <= 'z') || (at >= '0' && at <= '9'); }

// Characters of several bytes are letters, except those that begin with these bytes, which are signs and dashes.
bool BeginsSign(char at) { return at == '\xC2' || at == '\xE2'; }

bool IsContinuation(char at) { return (static_cast<unsigned char>(at) & 0xC0U) == 0x80U; }

// Returns the number of bytes of the character at this position.
std::size_t WidthAt(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && IsContinuation(text[end])) ++end;
  return end - at;
}

bool IsWordAt(std::string_view text, std::size_t at) {
  const char first = text[at];
  if (static_cast<unsigned char>(first) < 0x80U) return IsAsciiWord(first);
  return !BeginsSign(first);
}

// Calls `act` with a view of each word of the text.
template <class Act>
void EachWord(std::string_view text, const Act& act) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t start = at;
    while (at < text.size() && IsWordAt(text, at)) at += WidthAt(text, at);
    if (at > start) act(text.substr(start, at - start));
    if (at < text.size()) at += WidthAt(text, at);
  }
}

}  // namespace

WordSearch::WordSearch(std::string_view words) {
  const std::string upper = UpperCase(words);
  EachWord(upper, [this](std::string_view word) {
    if (std::ranges::find(wanted_, word) == wanted_.end()) wanted_.emplace_back(word);
  });
}

WordHits WordSearch::In(std::string_view text) const {
  const std::string upper = UpperCase(text);
  std::vector<int> counts(wanted_.size(), 0);
  WordHits hits;
  EachWord(upper, [&](std::string_view word) {
    bool isHit = false;
    for (std::size_t i = 0; i < wanted_.size(); ++i) {
      if (!word.starts_with(wanted_[i])) continue;
      ++counts[i];
      isHit = true;
    }
    if (!isHit) return;
    if (hits.count++ == 0) hits.first = static_cast<std::size_t>(word.data() - upper.data());
  });
  if (std::ranges::find(counts, 0) != counts.end()) return {};
  return hits;
}

std::string Snippet(std::string_view text, std::size_t offset) {
  std::size_t start = offset > SnippetBefore ? text.find(' ', offset - SnippetBefore) : 0;
  start = start == 0 || start >= offset ? std::min(start, offset) : start + 1;
  std::size_t end = text.find(' ', offset + SnippetAfter);
  end = std::min(end, text.size());
  std::string snippet(text.substr(start, end - start));
  if (start > 0) snippet.insert(0, "...");
  if (end < text.size()) snippet.append("...");
  return snippet;
}

}  // namespace orby
