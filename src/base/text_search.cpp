#include "base/text_search.h"

#include <algorithm>

#include "base/code_page.h"

namespace orby {
namespace {

constexpr unsigned int ToSmall = 0x20;  // lower case minus upper case, for ASCII and for the accented letters

unsigned int ByteAt(std::string_view bytes, std::size_t at) { return static_cast<unsigned char>(bytes[at]); }

bool IsBetween(unsigned int byte, unsigned int first, unsigned int last) { return first <= byte && byte <= last; }

// Returns the byte in lower case. In UTF-8 the accented capitals of Windows-1252 are the bytes 80 to 9E after C3.
unsigned int SmallAt(std::string_view bytes, std::size_t at, TextSearch::Encoding encoding) {
  constexpr unsigned int Utf8Lead = 0xC3;
  constexpr unsigned int Utf8Times = 0x97;  // the multiplication sign lies among the letters
  constexpr unsigned int Times = 0xD7;
  const unsigned int byte = ByteAt(bytes, at);
  if (byte < 0x80) return IsBetween(byte, 'A', 'Z') ? byte + ToSmall : byte;
  if (encoding == TextSearch::Encoding::Utf8) {
    const bool isCapital =
        IsBetween(byte, 0x80, 0x9E) && byte != Utf8Times && at > 0 && ByteAt(bytes, at - 1) == Utf8Lead;
    return isCapital ? byte + ToSmall : byte;
  }
  return IsBetween(byte, 0xC0, 0xDE) && byte != Times ? byte + ToSmall : byte;
}

std::string InSmallLetters(std::string_view bytes, TextSearch::Encoding encoding) {
  std::string small;
  for (std::size_t at = 0; at < bytes.size(); ++at) small += static_cast<char>(SmallAt(bytes, at, encoding));
  return small;
}

}  // namespace

TextSearch::TextSearch(std::string_view wanted, std::size_t length, std::size_t from, Direction direction)
    : direction_(direction), length_(length), left_(wanted.empty() ? 0 : length) {
  spellings_.push_back({InSmallLetters(wanted, Encoding::Utf8), Encoding::Utf8});
  const std::string inCodePage = FileBytesFromText(wanted);
  if (inCodePage != wanted)
    spellings_.push_back({InSmallLetters(inCodePage, Encoding::Windows1252), Encoding::Windows1252});
  if (length_ == 0) return;
  next_ = std::min(from, length_) % length_;
  if (direction_ == Direction::Backward) Advance();
}

std::optional<TextMatch> TextSearch::Next(std::string_view bytes, std::size_t count) {
  for (; count > 0 && left_ > 0; --count) {
    const std::size_t place = next_;
    Advance();
    --left_;
    for (const Spelling& spelling : spellings_) {
      if (MatchesAt(bytes, place, spelling)) return TextMatch{place, spelling.bytes.size()};
    }
  }
  return std::nullopt;
}

bool TextSearch::MatchesAt(std::string_view bytes, std::size_t place, const Spelling& spelling) {
  const std::string& wanted = spelling.bytes;
  if (place + wanted.size() > bytes.size()) return false;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (SmallAt(bytes, place + i, spelling.encoding) != ByteAt(wanted, i)) return false;
  }
  return true;
}

void TextSearch::Advance() {
  if (direction_ == Direction::Forward) {
    next_ = next_ + 1 == length_ ? 0 : next_ + 1;
  } else {
    next_ = next_ == 0 ? length_ - 1 : next_ - 1;
  }
}

}  // namespace orby
