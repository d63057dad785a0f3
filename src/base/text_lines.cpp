#include "base/text_lines.h"

#include <algorithm>

#include "base/code_page.h"

namespace orby {
namespace {

// Bytes that are searched to find one line.
constexpr std::size_t BlockSize = 4096;

constexpr std::size_t TabWidth = 8;
constexpr std::string_view Ellipsis = "\u2026";
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::size_t LongestCharacter = 4;  // bytes of UTF-8

// Returns true if a line begins between the two bytes.
bool IsLineStart(char before, char at) { return before == '\n' || (before == '\r' && at != '\n'); }

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }
bool IsControl(char byte) { return static_cast<unsigned char>(byte) < ' ' || byte == '\x7F'; }

// Counts the lines that begin in [first, last).
std::size_t CountStarts(std::string_view text, std::size_t first, std::size_t last) {
  std::size_t count = first == 0 && last > 0 ? 1 : 0;
  for (std::size_t at = std::max<std::size_t>(first, 1); at < last; ++at) count += IsLineStart(text[at - 1], text[at]);
  return count;
}

// Returns the start of the bytes. It contains everything that is shown, and does not end within a character of UTF-8.
std::string_view ShownPart(std::string_view bytes) {
  constexpr std::size_t Enough = (MostShownCharacters + 1) * LongestCharacter;
  if (bytes.size() <= Enough) return bytes;
  std::size_t end = Enough;
  while (end > Enough - LongestCharacter && IsContinuation(bytes[end])) --end;
  return bytes.substr(0, end);
}

}  // namespace

void LineIndex::Clear() { *this = {}; }

void LineIndex::Extend(std::string_view text) {
  while (length_ < text.size()) {
    if (length_ % BlockSize == 0) linesBefore_.push_back(count_);
    const std::size_t end = std::min(text.size(), (length_ / BlockSize + 1) * BlockSize);
    count_ += CountStarts(text, length_, end);
    length_ = end;
  }
}

std::size_t LineIndex::Start(std::string_view text, std::size_t line) const {
  if (line >= count_) return length_;
  const auto behind = std::ranges::upper_bound(linesBefore_, line);
  const auto block = static_cast<std::size_t>(behind - linesBefore_.begin()) - 1;
  std::size_t left = line - linesBefore_[block];
  for (std::size_t at = block * BlockSize;; ++at) {
    const bool isStart = at == 0 || IsLineStart(text[at - 1], text[at]);
    if (isStart && left-- == 0) return at;
  }
}

std::size_t LineIndex::LineAt(std::string_view text, std::size_t place) const {
  if (count_ == 0) return 0;
  if (place >= length_) return count_ - 1;
  const std::size_t block = place / BlockSize;
  return linesBefore_[block] + CountStarts(text, block * BlockSize, place + 1) - 1;
}

std::string_view LineIndex::Line(std::string_view text, std::size_t line) const {
  const std::size_t start = Start(text, line);
  std::string_view bytes = text.substr(start, Start(text, line + 1) - start);
  if (bytes.ends_with('\n')) bytes.remove_suffix(1);
  if (bytes.ends_with('\r')) bytes.remove_suffix(1);
  if (start == 0 && bytes.starts_with(Utf8Mark)) bytes.remove_prefix(Utf8Mark.size());
  return bytes;
}

std::string LineText(std::string_view bytes) {
  return IsValidUtf8(bytes) ? std::string(bytes) : TextFromCodePage(bytes);
}

std::string ShownLine(std::string_view bytes) {
  const std::string text = LineText(ShownPart(bytes));
  std::string shown;
  shown.reserve(text.size());
  std::size_t column = 0;
  for (const char byte : text) {
    if (IsContinuation(byte)) {
      shown += byte;
      continue;
    }
    if (column == MostShownCharacters) return shown.append(Ellipsis);
    const std::size_t width = byte == '\t' ? TabWidth - column % TabWidth : 1;
    const std::size_t fitting = std::min(width, MostShownCharacters - column);
    shown.append(fitting, IsControl(byte) ? ' ' : byte);
    column += fitting;
    if (fitting < width) return shown.append(Ellipsis);
  }
  return shown;
}

std::vector<std::size_t> ShownPlaces(std::string_view bytes) {
  const std::string_view part = ShownPart(bytes);
  const bool isUtf8 = IsValidUtf8(part);
  std::vector<std::size_t> places;
  bool isCut = false;
  for (std::size_t at = 0; at < part.size() && !isCut; ++at) {
    if (isUtf8 && IsContinuation(part[at])) continue;
    const std::size_t column = places.size();
    const std::size_t width = part[at] == '\t' ? TabWidth - column % TabWidth : 1;
    const std::size_t fitting = std::min(width, MostShownCharacters - column);
    places.insert(places.end(), fitting, at);
    isCut = fitting < width;
    if (isCut) places.push_back(at);  // the ellipsis
  }
  places.push_back(bytes.size());
  return places;
}

}  // namespace orby
