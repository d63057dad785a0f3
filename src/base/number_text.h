// Numbers to text and back. The decimal mark is the point on every machine.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/types.h"

namespace orby {

// General text: 7 significant digits of a Single, 15 of a Double, trailing zeros dropped, a digit before the point.
// Fixed notation while at most 7 (15) decimals and at most 7 (15) whole digits are needed, else "1.5E+20".
// The value must be finite. Ties go away from zero.
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

// The digits of the value's general text rounded half away from zero to the pattern's decimals, never in
// exponent form. A minus sign stays on a negative value that rounds to zero.
std::string FormatNumber(Single value, NumberPattern pattern);
std::string FormatNumber(double value, NumberPattern pattern);

// What a number field holds: its leading number, 0 when there is none. Blanks, tabs and line feeds are skipped
// wherever they stand; then sign, digits, one point, exponent (E or D); "&H" and "&O" read hexadecimal and octal.
// Throws RuntimeError 6 when the number lies beyond the range of a Double.
double TextValue(std::string_view text);

// The number that a whole text stands for by the loose rules of a numeric test: surrounding blanks, a sign before or
// behind, brackets for minus, a dollar sign, commas between digits, a complete exponent. Nothing when it is no number.
std::optional<double> LooseNumber(std::string_view text);

// The text of a project or configuration line: a numeric text through its general text, any other as it stands, the
// first comma replaced by a point.
std::string NormalizeDecimalText(Single value);
std::string NormalizeDecimalText(double value);
std::string NormalizeDecimalText(Integer value);
std::string NormalizeDecimalText(std::string_view text);

// The key that reaches a number field holding `text` when `key` is typed: the key itself, or 0 when it is swallowed.
// The key is judged as if typed at the end of the text, wherever the caret stands.
int NumericKeyFilter(int key, std::string_view text);

}  // namespace orby
