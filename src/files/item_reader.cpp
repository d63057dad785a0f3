#include "files/item_reader.h"

#include <algorithm>

#include "base/arithmetic.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"

namespace orby {
namespace {

constexpr char Blank = ' ';
constexpr char Comma = ',';
constexpr char Quote = '"';

}  // namespace

// The bytes at which an item may end.
class ByteSet {
 public:
  consteval explicit ByteSet(std::string_view members) {
    for (const char member : members) has_[static_cast<unsigned char>(member)] = true;
  }
  bool Has(char byte) const { return has_[static_cast<unsigned char>(byte)]; }

 private:
  bool has_[256] = {};
};

namespace {

constexpr ByteSet NumberEnds(" ,\r\n");
constexpr ByteSet TextEnds(",\r\n");
constexpr ByteSet LineEnds(LineEnd);
constexpr ByteSet QuoteEnds("\"");

}  // namespace

ItemReader::ItemReader(std::string_view bytes) : rest_(bytes), isUtf8_(IsValidUtf8(bytes)) {}

Integer ItemReader::ReadInteger() { return ToInteger(TextValue(TakeNumberItem())); }

Single ItemReader::ReadSingle() { return ToSingle(TextValue(TakeNumberItem())); }

std::string ItemReader::ReadText() {
  SkipBlanks();
  RequireMore();
  const bool isQuoted = rest_.front() == Quote;
  const std::string_view item = isQuoted ? TakeQuoted() : TakeUntil(TextEnds);
  if (isQuoted) SkipBlanks();
  TakeDelimiter();
  return Decoded(item);
}

std::string ItemReader::ReadLine() {
  RequireMore();
  const std::string_view line = TakeUntil(LineEnds);
  TakeLineEnd();
  return Decoded(line);
}

std::string_view ItemReader::TakeNumberItem() {
  do {
    SkipBlanks();
  } while (TakeLineEnd());
  RequireMore();
  const std::string_view item = TakeUntil(NumberEnds);
  SkipBlanks();
  TakeDelimiter();
  return item;
}

std::string_view ItemReader::TakeQuoted() {
  rest_.remove_prefix(1);
  const std::string_view item = TakeUntil(QuoteEnds);
  if (!rest_.empty()) rest_.remove_prefix(1);
  return item;
}

// Searches no further than LongestItem, so that a longer line takes no more time.
std::string_view ItemReader::TakeUntil(const ByteSet& delimiters) {
  const std::string_view reach = rest_.substr(0, LongestItem + 1);
  const auto* end = std::find_if(reach.begin(), reach.end(), [&](char byte) { return delimiters.Has(byte); });
  const auto length = static_cast<std::size_t>(end - reach.begin());
  if (length > LongestItem) throw RuntimeError(error_number::OutOfMemory);
  rest_.remove_prefix(length);
  return reach.substr(0, length);
}

void ItemReader::SkipBlanks() {
  if (!rest_.starts_with(Blank)) return;
  const auto* end = std::find_if(rest_.begin(), rest_.end(), [](char byte) { return byte != Blank; });
  rest_.remove_prefix(static_cast<std::size_t>(end - rest_.begin()));
}

void ItemReader::TakeDelimiter() {
  if (rest_.starts_with(Comma)) {
    rest_.remove_prefix(1);
  } else {
    TakeLineEnd();
  }
}

bool ItemReader::TakeLineEnd() {
  if (rest_.empty() || !LineEnds.Has(rest_.front())) return false;
  rest_.remove_prefix(rest_.starts_with(LineEnd) ? LineEnd.size() : 1);
  return true;
}

void ItemReader::RequireMore() const {
  if (rest_.empty()) throw RuntimeError(error_number::PastEndOfFile);
}

std::string ItemReader::Decoded(std::string_view bytes) const {
  return isUtf8_ ? std::string(bytes) : TextFromCodePage(bytes);
}

}  // namespace orby
