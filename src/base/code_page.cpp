#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <optional>

namespace orby {
namespace {

// Code points of the bytes 80 to 9F. Every other byte is the code point of the same number.
constexpr std::array<char16_t, 32> UpperControls{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr unsigned char FirstUpperControl = 0x80;
constexpr unsigned char FirstLatin = 0xA0;

bool IsAscii(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

// Removes the first code point from `bytes` and returns it, or returns nothing when it is not well-formed UTF-8.
std::optional<char32_t> TakeCodePoint(std::string_view& bytes) {
  const auto lead = static_cast<unsigned char>(bytes.front());
  std::size_t length = 1;
  char32_t point = lead;
  char32_t smallest = 0;
  if (lead >= 0xF8 || (lead >= 0x80 && lead < 0xC0)) return std::nullopt;
  if (lead >= 0xF0) {
    length = 4;
    point = lead & 0x07U;
    smallest = 0x10000;
  } else if (lead >= 0xE0) {
    length = 3;
    point = lead & 0x0FU;
    smallest = 0x800;
  } else if (lead >= 0xC0) {
    length = 2;
    point = lead & 0x1FU;
    smallest = 0x80;
  }
  if (bytes.size() < length) return std::nullopt;
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(bytes[i]);
    if ((next & 0xC0U) != 0x80U) return std::nullopt;
    point = (point << 6U) | (next & 0x3FU);
  }
  const bool isSurrogate = point >= 0xD800 && point <= 0xDFFF;
  if (point < smallest || point > 0x10FFFF || isSurrogate) return std::nullopt;
  bytes.remove_prefix(length);
  return point;
}

char16_t CodePointOfByte(unsigned char byte) {
  if (byte < FirstUpperControl || byte >= FirstLatin) return byte;
  return UpperControls[static_cast<std::size_t>(byte - FirstUpperControl)];
}

std::optional<char> ByteOfCodePoint(char32_t point) {
  if (point < FirstUpperControl || (point >= FirstLatin && point <= 0xFF)) return static_cast<char>(point);
  const auto* found = std::find(UpperControls.begin(), UpperControls.end(), point);
  if (found == UpperControls.end()) return std::nullopt;
  return static_cast<char>(FirstUpperControl + (found - UpperControls.begin()));
}

void AppendCodePoint(std::string& text, char16_t point) {
  if (point < 0x80) {
    text.push_back(static_cast<char>(point));
  } else if (point < 0x800) {
    text.push_back(static_cast<char>(0xC0 | (point >> 6)));
    text.push_back(static_cast<char>(0x80 | (point & 0x3F)));
  } else {
    text.push_back(static_cast<char>(0xE0 | (point >> 12)));
    text.push_back(static_cast<char>(0x80 | ((point >> 6) & 0x3F)));
    text.push_back(static_cast<char>(0x80 | (point & 0x3F)));
  }
}

}  // namespace

bool IsValidUtf8(std::string_view bytes) {
  constexpr std::uint64_t HighBits = 0x8080808080808080U;
  while (!bytes.empty()) {
    // Eight bytes at a time: project files are nearly always ASCII.
    while (bytes.size() >= sizeof(std::uint64_t)) {
      std::uint64_t block = 0;
      std::memcpy(&block, bytes.data(), sizeof block);
      if ((block & HighBits) != 0) break;
      bytes.remove_prefix(sizeof block);
    }
    if (bytes.empty()) break;
    if (!TakeCodePoint(bytes)) return false;
  }
  return true;
}

std::string TextFromFileBytes(std::string bytes) {
  if (IsValidUtf8(bytes)) return bytes;
  return TextFromCodePage(bytes);
}

std::string TextFromCodePage(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) AppendCodePoint(text, CodePointOfByte(static_cast<unsigned char>(byte)));
  return text;
}

std::string FileBytesFromText(std::string_view text) {
  std::string bytes(text);
  if (IsAscii(text)) return bytes;
  bytes.clear();
  std::string_view rest = text;
  while (!rest.empty()) {
    const auto point = TakeCodePoint(rest);
    const auto byte = point ? ByteOfCodePoint(*point) : std::nullopt;
    if (!byte) return std::string(text);
    bytes.push_back(*byte);
  }
  return bytes;
}

}  // namespace orby
