// Conversion between numbers and text. The decimal mark is the point in every locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/types.h"

namespace orby {

// Returns the general text of a number: 7 significant digits for a Single, 15 for a Double, without trailing zeros and
// with at least one digit before the point. Uses fixed notation when at most 7 (15) decimals and at most 7 (15) whole
// digits are needed, otherwise "1.5E+20". Ties round away from zero. Throws RuntimeError 6 when the value is infinite
// or not a number.
std::string NumberText(Single value);
std::string NumberText(double value);
std::string NumberText(Integer value);
std::string NumberText(int value);

// A number format made of "0" (digit always shown), "#" (digit shown when needed) and a point:
// "0.0" 0.5 -> "0.5"; "#.0" 0.5 -> ".5"; "0.#0" 1.5 -> "1.5", 1.25 -> "1.25"; "##.#" 1 -> "1.".
struct NumberPattern {
  int minimumWhole = 0;
  int minimumDecimals = 0;
  int maximumDecimals = 0;
  bool hasPoint = false;

  consteval NumberPattern(const char* text) {  // NOLINT(google-explicit-constructor): reads as the format it is
    for (; *text != '\0'; ++text) {
      if (*text == '.') {
        hasPoint = true;
      } else if (hasPoint) {
        ++maximumDecimals;
        if (*text == '0') ++minimumDecimals;
      } else if (*text == '0') {
        ++minimumWhole;
      }
    }
  }
};

inline constexpr NumberPattern OneDecimal{"0.0"};

// Rounds the general text of the value to the decimals of the pattern, half away from zero. Never returns an exponent.
// A negative value that rounds to zero keeps its minus sign. Throws RuntimeError 6 when the value is infinite or not a
// number.
std::string FormatNumber(Single value, NumberPattern pattern);
std::string FormatNumber(double value, NumberPattern pattern);

// Returns the number at the start of a field's text, or 0 when there is none. Skips blanks, tabs and line feeds
// anywhere in the text. Reads a sign, digits, one point and an exponent (E or D), or a hexadecimal number after "&H" or
// an octal one after "&O". Throws RuntimeError 6 when the number is outside the range of a Double.
double TextValue(std::string_view text);

// Returns the number that the whole text is. Returns nothing for any other text, and for a number outside the range of
// a Double.
std::optional<double> WholeTextNumber(std::string_view text);
// The same in single precision.
std::optional<Single> WholeTextSingle(std::string_view text);

// Returns the whole number of at most 64 bits that the text is, in digits alone, or nothing.
std::optional<std::uint64_t> WholeTextCount(std::string_view digits);

// A number at the start of a text.
struct LeadingNumber {
  double value = 0;
  bool isWholeText = false;  // nothing but blanks, tabs and line feeds is left; false for a blank text
};

// Returns the number that TextValue returns, and whether the text ends with it. Throws as TextValue does.
LeadingNumber ReadNumber(std::string_view text);

// Returns the number that the whole text is, or nothing when it is not a number. Accepts surrounding blanks, a sign
// before or after the digits, brackets for minus, a dollar sign, commas between digits and a complete exponent.
std::optional<double> LooseNumber(std::string_view text);

// Returns the text that a project or configuration line stores. A number becomes its general text. In any other text
// the first comma becomes a point.
std::string NormalizeDecimalText(Single value);
std::string NormalizeDecimalText(double value);
std::string NormalizeDecimalText(Integer value);
std::string NormalizeDecimalText(std::string_view text);

// Returns `key` if a number field that contains `text` accepts it, and 0 if the field ignores it. The key is judged as
// if it were typed at the end of the text, wherever the caret is.
int NumericKeyFilter(int key, std::string_view text);

}  // namespace orby
