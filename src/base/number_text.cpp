#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/runtime_error.h"

namespace orby {
namespace {

template <class Float>
constexpr int GeneralDigits = std::numeric_limits<Float>::digits10 == 6 ? 7 : 15;

// A finite value rounded to a number of significant digits: digits x 10^exponent. `digits` has exactly that many
// places.
struct RoundedDigits {
  bool negative = false;
  std::uint64_t digits = 0;  // 0 for zero
  int exponent = 0;
};

constexpr auto PowersOfTen = [] {
  std::array<std::uint64_t, 20> powers{};
  std::uint64_t power = 1;
  for (auto& entry : powers) {
    entry = power;
    power *= 10;
  }
  return powers;
}();

constexpr std::uint64_t PowerOfTen(int exponent) { return PowersOfTen[static_cast<std::size_t>(exponent)]; }

// Rounds by the exact conversion of the library. Used only for values that cannot be a tie at 7 or 15 digits.
RoundedDigits RoundByLibrary(double magnitude, int places) {
  if (!std::isfinite(magnitude)) throw RuntimeError(error_number::Overflow);
  std::array<char, 32> text{};
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), magnitude, std::chars_format::scientific, places - 1).ptr;
  RoundedDigits result;
  const char* at = text.data();
  for (; *at != 'e'; ++at) {
    if (*at != '.') result.digits = result.digits * 10 + static_cast<std::uint64_t>(*at - '0');
  }
  ++at;
  if (*at == '+') ++at;
  std::from_chars(at, end, result.exponent);
  result.exponent -= places - 1;
  return result;
}

// Returns the whole number nearest to mantissa / 2^shift x 10^decimals. An exact tie rounds up.
std::uint64_t ScaledToWhole(std::uint64_t mantissa, int shift, int decimals) {
  __extension__ using Wide = unsigned __int128;
  Wide product = mantissa;
  if (decimals < 0) {
    const Wide divisor = static_cast<Wide>(PowerOfTen(-decimals)) << shift;
    return static_cast<std::uint64_t>((product + divisor / 2) / divisor);
  }
  for (; decimals > 19; decimals -= 19) product *= PowerOfTen(19);
  product *= PowerOfTen(decimals);
  return static_cast<std::uint64_t>((product + (Wide{1} << shift) / 2) >> shift);
}

// Rounds a value of everyday size by scaling it exactly in integers. An exact tie rounds away from zero.
RoundedDigits RoundExactly(double magnitude, int places) {
  constexpr int MantissaBits = 53;
  constexpr std::uint64_t LeadingBit = std::uint64_t{1} << (MantissaBits - 1);
  constexpr int ExponentBias = 1022;
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const int binaryExponent = static_cast<int>(bits >> (MantissaBits - 1)) - ExponentBias;
  const int shift = std::max(MantissaBits - binaryExponent, 0);  // magnitude = mantissa / 2^shift, shift in 0..74
  const std::uint64_t mantissa = ((bits & (LeadingBit - 1)) | LeadingBit) << std::max(binaryExponent - MantissaBits, 0);
  // An estimate of floor(log10(magnitude)): 0.30103 is log10 of 2. If it is one too low, the line below corrects it.
  int decimals = places - 1 - static_cast<int>(std::floor((binaryExponent - 1) * 0.30103));
  std::uint64_t digits = ScaledToWhole(mantissa, shift, decimals);
  if (digits >= PowerOfTen(places)) digits = ScaledToWhole(mantissa, shift, --decimals);
  return {false, digits, -decimals};
}

RoundedDigits Round(double value, int places) {
  constexpr double SmallestExact = 0x1p-22;  // from this value up the scaled mantissa and its fraction fit 128 bits
  constexpr double FirstBeyond = 0x1p54;     // from this value up no value is half-way between two texts
  const double magnitude = std::abs(value);
  if (magnitude == 0) return {};
  const bool isEveryday = magnitude >= SmallestExact && magnitude < FirstBeyond;
  RoundedDigits result = isEveryday ? RoundExactly(magnitude, places) : RoundByLibrary(magnitude, places);
  // 9999999.6 rounds up to a number with one more digit.
  if (result.digits == PowerOfTen(places)) {
    result.digits /= 10;
    ++result.exponent;
  }
  result.negative = std::signbit(value);
  return result;
}

void AppendDigits(std::string& text, std::uint64_t digits) {
  std::array<char, 20> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), digits).ptr;
  text.append(buffer.data(), end);
}

// Appends digits x 10^-decimals with `decimals` digits after the point and at least `minimumWhole` digits before it.
void AppendFixed(std::string& text, std::uint64_t digits, int decimals, int minimumWhole, bool point) {
  std::array<char, 20> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), digits).ptr;
  const int count = digits == 0 ? 0 : static_cast<int>(end - buffer.data());
  const int whole = std::max(count - decimals, 0);
  const auto appendZeros = [&text](int zeros) {
    if (zeros > 0) text.append(static_cast<std::size_t>(zeros), '0');
  };
  appendZeros(minimumWhole - whole);
  text.append(buffer.data(), static_cast<std::size_t>(whole));
  if (point) text.push_back('.');
  if (decimals == 0) return;
  appendZeros(decimals - count);
  text.append(buffer.data() + whole, static_cast<std::size_t>(count - whole));
}

// Returns the text of a whole number below a million. Most numbers of a design are such.
std::optional<std::string> SmallWholeText(double value) {
  constexpr double Million = 1e6;
  if (!(std::abs(value) < Million)) return std::nullopt;
  const auto whole = static_cast<int>(value);
  if (whole != value) return std::nullopt;
  std::array<char, 8> buffer{};
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole).ptr;
  return std::string(buffer.data(), end);
}

template <class Float>
std::string GeneralText(Float value) {
  constexpr int Places = GeneralDigits<Float>;
  if (auto whole = SmallWholeText(static_cast<double>(value))) return *whole;
  RoundedDigits rounded = Round(static_cast<double>(value), Places);
  if (rounded.digits == 0) return "0";
  int count = Places;
  while (rounded.digits % 10 == 0) {
    rounded.digits /= 10;
    ++rounded.exponent;
    --count;
  }
  std::string text;
  if (rounded.negative) text.push_back('-');
  const int decimals = std::max(-rounded.exponent, 0);
  const int whole = count + rounded.exponent;
  if (decimals <= Places && whole <= Places) {
    if (rounded.exponent > 0) {
      rounded.digits *= PowerOfTen(rounded.exponent);
    }
    AppendFixed(text, rounded.digits, decimals, 1, decimals > 0);
    return text;
  }
  const int exponent = whole - 1;
  AppendFixed(text, rounded.digits, count - 1, 1, count > 1);
  text += exponent < 0 ? "E-" : "E+";
  if (std::abs(exponent) < 10) text.push_back('0');
  AppendDigits(text, static_cast<std::uint64_t>(std::abs(exponent)));
  return text;
}

template <class Float>
std::string PatternText(Float value, const NumberPattern& pattern) {
  RoundedDigits rounded = Round(static_cast<double>(value), GeneralDigits<Float>);
  int decimals = std::max(-rounded.exponent, 0);
  const int surplus = decimals - pattern.maximumDecimals;
  if (surplus > GeneralDigits<Float>) {
    rounded.digits = 0;
    decimals = pattern.maximumDecimals;
  } else if (surplus > 0) {
    rounded.digits = (rounded.digits + PowerOfTen(surplus) / 2) / PowerOfTen(surplus);
    decimals = pattern.maximumDecimals;
  }
  while (decimals > pattern.minimumDecimals && rounded.digits % 10 == 0) {
    rounded.digits /= 10;
    --decimals;
  }
  if (decimals < pattern.minimumDecimals && rounded.exponent <= 0) {
    rounded.digits *= PowerOfTen(pattern.minimumDecimals - decimals);
    decimals = pattern.minimumDecimals;
  }
  std::string text;
  if (rounded.negative) text.push_back('-');
  if (rounded.exponent > 0 && rounded.digits != 0) {
    AppendDigits(text, rounded.digits);
    text.append(static_cast<std::size_t>(rounded.exponent), '0');
    if (pattern.hasPoint) text.push_back('.');
    text.append(static_cast<std::size_t>(pattern.minimumDecimals), '0');
    return text;
  }
  AppendFixed(text, rounded.digits, decimals, pattern.minimumWhole, pattern.hasPoint);
  return text;
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Returns true for a character that a number field skips anywhere in its text.
bool IsSkipped(char c) { return c == ' ' || c == '\t' || c == '\n'; }

LeadingNumber ReadRadix(std::string_view digits, int radix) {
  double value = 0;
  bool isWholeText = !digits.empty();
  for (const char c : digits) {
    const char lower = c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c;
    int digit = radix;
    if (IsDigit(lower)) digit = lower - '0';
    if (lower >= 'a' && lower <= 'f') digit = lower - 'a' + 10;
    isWholeText = digit < radix;
    if (!isWholeText) break;
    value = value * radix + digit;
  }
  if (std::isinf(value)) throw RuntimeError(error_number::Overflow);
  return {value, isWholeText};
}

// The decimal number at the start of a text.
struct LeadingDecimal {
  std::string number;      // with "e" for the letter of its exponent; empty when there is no digit
  std::size_t length = 0;  // of its part of the text
};

// Requires a text without blanks.
LeadingDecimal TakeLeadingDecimal(std::string_view text) {
  std::string number;
  std::size_t at = 0;
  const auto takeDigits = [&] {
    const std::size_t start = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    number.append(text.substr(start, at - start));
    return at - start;
  };
  if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
    if (text[at] == '-') number.push_back('-');
    ++at;
  }
  std::size_t digits = takeDigits();
  if (at < text.size() && text[at] == '.') {
    number.push_back('.');
    ++at;
    digits += takeDigits();
  }
  if (digits == 0) return {};
  if (at < text.size() && std::string_view("EeDd").find(text[at]) != std::string_view::npos) {
    const std::size_t mantissaEnd = number.size();
    const std::size_t mark = at;
    ++at;
    number.push_back('e');
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) number.push_back(text[at++]);
    if (takeDigits() == 0) {
      number.resize(mantissaEnd);
      at = mark;
    }
  }
  return {std::move(number), at};
}

// Returns true if a number outside the range of a Double is too large, and false if it is too small. It is too large
// when it is 1 or more.
bool IsTooLarge(std::string_view number) {
  const std::size_t exponentMark = std::min(number.find('e'), number.size());
  const std::string_view mantissa = number.substr(0, exponentMark);
  const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
  const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
  std::int64_t exponent = 0;
  if (exponentMark < number.size()) {
    std::string_view digits = number.substr(exponentMark + 1);
    if (digits.front() == '+') digits.remove_prefix(1);
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), exponent);
    if (read.ec == std::errc::result_out_of_range) return digits.front() != '-';
  }
  return exponent > first - point;
}

// Returns the value of a text of at most 15 digits without an exponent, or nothing for any other text. A Double
// represents these digits and the power of ten below them exactly, so that their quotient is the nearest Double. Nearly
// every text in a field is of this kind.
std::optional<double> PlainDecimal(std::string_view text) {
  constexpr std::size_t MostDigits = 15;
  const bool isNegative = text.starts_with('-');
  if (isNegative) text.remove_prefix(1);
  if (text.empty() || text.size() > MostDigits + 1) return std::nullopt;
  std::uint64_t digits = 0;
  std::size_t decimals = 0;
  std::size_t count = 0;
  bool hasPoint = false;
  for (const char c : text) {
    if (IsDigit(c)) {
      digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
      ++count;
      if (hasPoint) ++decimals;
    } else if (c == '.' && !hasPoint) {
      hasPoint = true;
    } else {
      return std::nullopt;
    }
  }
  if (count == 0 || count > MostDigits) return std::nullopt;
  const double value = static_cast<double>(digits) / static_cast<double>(PowersOfTen[decimals]);
  return isNegative ? -value : value;
}

LeadingNumber DecimalNumber(std::string_view text) {
  const auto [number, length] = TakeLeadingDecimal(text);
  LeadingNumber result{.isWholeText = !number.empty() && length == text.size()};
  const auto read = std::from_chars(number.data(), number.data() + number.size(), result.value);
  if (read.ec != std::errc::result_out_of_range) return result;
  if (IsTooLarge(number)) throw RuntimeError(error_number::Overflow);
  result.value = 0;
  return result;
}

std::string WithPoint(std::string text) {
  const auto comma = text.find(',');
  if (comma != std::string::npos) text[comma] = '.';
  return text;
}

}  // namespace

std::optional<double> WholeTextNumber(std::string_view text) {
  return OrNothing([text]() -> std::optional<double> {
    const LeadingNumber number = ReadNumber(text);
    return number.isWholeText ? std::optional(number.value) : std::nullopt;
  });
}

std::optional<Single> WholeTextSingle(std::string_view text) {
  return OrNothing([text]() -> std::optional<Single> {
    const std::optional<double> number = WholeTextNumber(text);
    return number ? std::optional(ToSingle(*number)) : std::nullopt;
  });
}

std::optional<std::uint64_t> WholeTextCount(std::string_view digits) {
  std::uint64_t count = 0;
  const char* const end = digits.data() + digits.size();
  const auto [read, error] = std::from_chars(digits.data(), end, count);
  if (error != std::errc() || read != end) return std::nullopt;
  return count;
}

std::string NumberText(Single value) { return GeneralText(value); }
std::string NumberText(double value) { return GeneralText(value); }
std::string NumberText(Integer value) { return std::to_string(value); }
std::string NumberText(int value) { return std::to_string(value); }

std::string FormatNumber(Single value, NumberPattern pattern) { return PatternText(value, pattern); }
std::string FormatNumber(double value, NumberPattern pattern) { return PatternText(value, pattern); }

double TextValue(std::string_view text) { return ReadNumber(text).value; }

LeadingNumber ReadNumber(std::string_view text) {
  if (const auto plain = PlainDecimal(text)) return {*plain, true};
  std::string compact;
  if (std::any_of(text.begin(), text.end(), IsSkipped)) {
    std::copy_if(text.begin(), text.end(), std::back_inserter(compact), [](char c) { return !IsSkipped(c); });
    text = compact;
  }
  if (text.size() >= 2 && text[0] == '&') {
    if (text[1] == 'H' || text[1] == 'h') return ReadRadix(text.substr(2), 16);
    if (text[1] == 'O' || text[1] == 'o') return ReadRadix(text.substr(2), 8);
  }
  return DecimalNumber(text);
}

std::string NormalizeDecimalText(Single value) { return WithPoint(NumberText(value)); }
std::string NormalizeDecimalText(double value) { return WithPoint(NumberText(value)); }
std::string NormalizeDecimalText(Integer value) { return NumberText(value); }

std::string NormalizeDecimalText(std::string_view text) {
  const auto number = LooseNumber(text);
  return WithPoint(number ? NumberText(*number) : std::string(text));
}

int NumericKeyFilter(int key, std::string_view text) {
  // Meant as the key codes of backspace, tab, clear, the arrows and delete. As characters they also accept "%&'(" and
  // ".".
  constexpr std::array AlwaysPassing{8, 9, 12, 37, 38, 39, 40, 46};
  if (std::find(AlwaysPassing.begin(), AlwaysPassing.end(), key) != AlwaysPassing.end()) return key;
  if (key <= 0 || key > 126) return 0;
  return LooseNumber(std::string(text) + static_cast<char>(key)) ? key : 0;
}

}  // namespace orby
