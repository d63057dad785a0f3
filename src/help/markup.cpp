#include "help/markup.h"

#include <algorithm>
#include <array>

#include "base/text.h"

namespace orby {
namespace {

constexpr std::string_view Blanks = " \t\r\n\f";

struct Entity {
  std::string_view name;
  std::string_view text;
};

constexpr std::array Entities{Entity{"&amp;", "&"},   Entity{"&lt;", "<"},  Entity{"&gt;", ">"},
                              Entity{"&quot;", "\""}, Entity{"&#39;", "'"}, Entity{"&nbsp;", " "}};

constexpr std::string_view CommentStart = "<!--";
constexpr std::string_view CommentEnd = "-->";

// Removes the text up to this position, or all text, from `rest` and returns it.
std::string_view TakeUpTo(std::string_view& rest, std::size_t position) {
  const std::string_view taken = rest.substr(0, position);
  rest.remove_prefix(taken.size());
  return taken;
}

void SkipBlanks(std::string_view& rest) { TakeUpTo(rest, rest.find_first_not_of(Blanks)); }

// Removes the value after "=" and returns it. It is in quotes or ends at the next blank.
std::string_view TakeValue(std::string_view& rest) {
  if (!rest.starts_with('"') && !rest.starts_with('\'')) return TakeUpTo(rest, rest.find_first_of(Blanks));
  const char quote = rest.front();
  rest.remove_prefix(1);
  const std::string_view value = TakeUpTo(rest, rest.find(quote));
  rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
  return value;
}

// Returns the end of a tag, which is the next ">" outside of quotes.
std::size_t EndOfTag(std::string_view rest) {
  char quote = 0;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    const char at = rest[i];
    if (quote != 0) {
      if (at == quote) quote = 0;
    } else if (at == '"' || at == '\'') {
      quote = at;
    } else if (at == '>') {
      return i;
    }
  }
  return rest.size();
}

// Returns true if the tag separates words. Inline tags do not.
bool SeparatesWords(std::string_view tag) {
  if (tag.starts_with('/')) tag.remove_prefix(1);
  constexpr std::array<std::string_view, 7> Inner{"A", "B", "I", "SUB", "SUP", "CODE", "IMG"};
  return std::ranges::find(Inner, tag) == Inner.end();
}

void AppendWords(std::string& text, std::string_view piece) {
  while (!piece.empty()) {
    const std::string_view word = TakeUpTo(piece, piece.find_first_of(Blanks));
    text.append(word);
    if (piece.empty()) return;
    SkipBlanks(piece);
    if (!text.empty() && text.back() != ' ') text += ' ';
  }
}

}  // namespace

MarkupPiece TakeMarkup(std::string_view& rest) {
  MarkupPiece piece;
  for (;;) {
    piece.text.append(TakeUpTo(rest, rest.find('<')));
    if (!rest.starts_with(CommentStart)) break;
    TakeUpTo(rest, rest.find(CommentEnd));
    rest.remove_prefix(std::min(CommentEnd.size(), rest.size()));
  }
  if (rest.empty()) return piece;
  rest.remove_prefix(1);
  piece.attributes = TakeUpTo(rest, EndOfTag(rest));
  rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
  piece.tag = UpperCase(TakeUpTo(piece.attributes, piece.attributes.find_first_of(Blanks)));
  if (piece.tag.empty()) piece.tag = "?";
  return piece;
}

std::string AttributeOf(const MarkupPiece& piece, std::string_view name) {
  std::string_view rest = piece.attributes;
  for (;;) {
    SkipBlanks(rest);
    if (rest.empty()) return {};
    const std::string_view found = TakeUpTo(rest, rest.find_first_of("= \t\r\n\f"));
    SkipBlanks(rest);
    if (!rest.starts_with('=')) continue;
    rest.remove_prefix(1);
    SkipBlanks(rest);
    const std::string_view value = TakeValue(rest);
    if (SameWithoutCase(found, name)) return DecodedText(value);
  }
}

std::string DecodedText(std::string_view text) {
  std::string decoded;
  while (!text.empty()) {
    decoded.append(TakeUpTo(text, text.find('&')));
    if (text.empty()) break;
    const auto* entity =
        std::ranges::find_if(Entities, [text](const Entity& known) { return text.starts_with(known.name); });
    const bool isKnown = entity != Entities.end();
    decoded.append(isKnown ? entity->text : "&");
    text.remove_prefix(isKnown ? entity->name.size() : 1);
  }
  return decoded;
}

std::string TextOfPage(std::string_view page) {
  std::string text;
  bool isInHead = false;
  while (!page.empty()) {
    const MarkupPiece piece = TakeMarkup(page);
    if (!isInHead) AppendWords(text, DecodedText(piece.text));
    if (piece.tag == "HEAD") isInHead = true;
    if (piece.tag == "/HEAD") isInHead = false;
    if (!isInHead && SeparatesWords(piece.tag)) AppendWords(text, " ");
  }
  return std::string(Trim(text));
}

}  // namespace orby
