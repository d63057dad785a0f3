#include <algorithm>
#include <charconv>
#include <cstdint>

#include "base/number_text.h"
#include "base/runtime_error.h"

// The grammar of a number:
//
//   text     = "&" [ "H" | "O" ] digits  |  marks decimal marks
//   decimal  = digits with commas after the first character and one point, [ exponent ]
//   exponent = ( "E" | "D" ) [ sign ] digits
//
// Blanks may stand around the parts and between marks, but not inside a decimal. Marks are a sign, a dollar sign and
// brackets that mean minus.

namespace orby {
namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view Blanks = " \t\n\v\f\r";
constexpr std::string_view NoBreakSpace = "\xC2\xA0";

bool Has(std::string_view characters, char c) { return characters.find(c) != std::string_view::npos; }

bool StartsWithOneOf(std::string_view text, std::string_view characters) {
  return !text.empty() && Has(characters, text.front());
}

void SkipBlanks(std::string_view& rest) {
  while (StartsWithOneOf(rest, Blanks) || rest.starts_with(NoBreakSpace)) {
    rest.remove_prefix(rest.starts_with(NoBreakSpace) ? NoBreakSpace.size() : 1);
  }
}

std::string TakeMarks(std::string_view& rest, std::string_view allowed) {
  std::string marks;
  for (SkipBlanks(rest); StartsWithOneOf(rest, allowed); SkipBlanks(rest)) {
    marks.push_back(rest.front());
    rest.remove_prefix(1);
  }
  return marks;
}

// Removes the exponent with its letter and sign, and returns it. Removes nothing when the exponent has no digits.
std::string_view TakeExponent(std::string_view& rest) {
  if (!StartsWithOneOf(rest, "EeDd")) return {};
  const std::size_t first = StartsWithOneOf(rest.substr(1), "+-") ? 2 : 1;
  const std::size_t end = std::min(rest.find_first_not_of(Digits, first), rest.size());
  if (end == first) return {};
  const std::string_view exponent = rest.substr(0, end);
  rest.remove_prefix(end);
  return exponent;
}

// Removes the decimal and returns it without its commas. Returns an empty text when it has no digit.
std::string TakeDecimal(std::string_view& rest) {
  std::string decimal;
  bool hasPoint = false;
  for (; !rest.empty(); rest.remove_prefix(1)) {
    const char c = rest.front();
    if (c == ',' && !decimal.empty()) continue;
    const bool isPoint = c == '.' && !hasPoint;
    if (!isPoint && !Has(Digits, c)) break;
    decimal.push_back(c);
    hasPoint = hasPoint || isPoint;
  }
  if (decimal.find_first_of(Digits) == std::string::npos) return {};
  decimal += TakeExponent(rest);
  return decimal;
}

// Before the decimal each mark occurs at most once. After it any mark may repeat. A sign occurs on one side only, a
// bracket on both sides.
bool MarksAgree(std::string_view before, std::string_view after) {
  const bool isRepeated = std::any_of(
      before.begin(), before.end(), [before](char mark) { return std::count(before.begin(), before.end(), mark) > 1; });
  const bool isSignTwice =
      std::any_of(before.begin(), before.end(), [after](char mark) { return mark != '$' && Has(after, mark); });
  return !isRepeated && !isSignTwice && Has(before, '(') == Has(after, ')');
}

// The digits after "&" are the bits of a signed 32-bit number: &H80000000 is the lowest negative one.
std::optional<double> RadixNumber(std::string_view digits) {
  const bool isHexadecimal = StartsWithOneOf(digits, "Hh");
  if (StartsWithOneOf(digits, "HhOo")) digits.remove_prefix(1);
  std::uint32_t bits = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), bits, isHexadecimal ? 16 : 8);
  if (read.ec != std::errc{}) return std::nullopt;
  digits.remove_prefix(static_cast<std::size_t>(read.ptr - digits.data()));
  SkipBlanks(digits);
  if (!digits.empty()) return std::nullopt;
  return static_cast<std::int32_t>(bits);
}

// A text outside the range of a Double is not a number.
std::optional<double> ValueInRange(std::string_view decimal) {
  try {
    return TextValue(decimal);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<double> LooseNumber(std::string_view text) {
  SkipBlanks(text);
  if (text.starts_with('&')) return RadixNumber(text.substr(1));
  const std::string before = TakeMarks(text, "+-($");
  const std::string decimal = TakeDecimal(text);
  const std::string after = TakeMarks(text, "+-)$");
  if (decimal.empty() || !text.empty() || !MarksAgree(before, after)) return std::nullopt;
  const auto magnitude = ValueInRange(decimal);
  const bool isNegative = before.find_first_of("-(") != std::string::npos || Has(after, '-');
  return magnitude && isNegative ? -*magnitude : magnitude;
}

}  // namespace orby
