// A formula as data: it can be evaluated, written and set.
//
//   const Expression h = Symbol("h");
//   const Expression top = Symbol("W") - 2 * h * TangentOf(Symbol("α"));
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace orby {

enum class Operation : std::uint8_t {
  Number,
  Constant,  // a number with a letter: π
  Symbol,
  Sum,
  Difference,
  Product,
  Quotient,
  Power,
  Root,
  NaturalLog,
  DecimalLog,
  Tangent,  // of an angle in degrees
  Cosine,   // of an angle in degrees
  Least,
  Greatest,
  Cases,  // value, condition, value, condition, ..., value otherwise
  // Conditions.
  Below,
  AtMost,
  Equal,
};

// A tree of operations. Only numbers, constants and symbols have no parts.
struct Expression {
  Expression(double number)
      : Value(number) {}  // NOLINT(google-explicit-constructor): formulas read as they are printed
  Expression(Operation what, std::vector<Expression> parts) : What(what), Parts(std::move(parts)) {}
  Expression(Operation what, std::string_view letter, double value) : What(what), Letter(letter), Value(value) {}

  Operation What = Operation::Number;
  std::string_view Letter;  // of a symbol or a constant; "s_1" has an index
  double Value = 0;         // of a number or a constant
  std::vector<Expression> Parts;
};

Expression Symbol(std::string_view letter);
Expression PiSymbol();

// Sums and products of more than two parts are one operation. They are computed from left to right.
Expression operator+(const Expression& left, const Expression& right);
Expression operator-(const Expression& left, const Expression& right);
Expression operator*(const Expression& left, const Expression& right);
Expression operator/(const Expression& dividend, const Expression& divisor);
Expression PowerOf(const Expression& base, double exponent);
Expression SquareOf(const Expression& base);
Expression RootOf(const Expression& radicand);
Expression NaturalLogOf(const Expression& argument);
Expression DecimalLogOf(const Expression& argument);
Expression TangentOf(const Expression& degrees);
Expression CosineOf(const Expression& degrees);
Expression LeastOf(const Expression& one, const Expression& other);
Expression GreatestOf(const Expression& one, const Expression& other);
Expression operator<(const Expression& left, const Expression& right);
Expression operator<=(const Expression& left, const Expression& right);
Expression IsEqual(const Expression& left, const Expression& right);

struct Case {
  Expression Value;
  Expression Condition;
};
// The value of the first case whose condition holds.
Expression CasesOf(const std::vector<Case>& cases, const Expression& otherwise);

// A symbol's number.
struct SymbolValue {
  std::string_view Letter;
  double Value = 0;
};

// Returns the value of a formula, computed as the engine does: in double precision, in the order of the formula. A
// condition is 1 or 0.
// Throws RuntimeError 11 for a division by zero, 5 for the logarithm of 0 or less and the root of a negative number,
// and 6 for an overflow. Throws std::logic_error for a symbol without a value.
double Evaluate(const Expression& formula, const std::vector<SymbolValue>& values);

// Returns the part of a formula that applies: of cases the value whose condition holds, else the formula. Adds the
// symbols of the part and of the conditions before it to `needed`, each once, in their order in the formula.
const Expression& Applying(const Expression& formula, const std::vector<SymbolValue>& values,
                           std::vector<std::string_view>* needed = nullptr);

}  // namespace orby
