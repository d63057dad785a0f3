#include "sheet/expression.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "base/trigonometry.h"

namespace orby {
namespace {

// Returns both as one operation, which takes in the parts of `left` if that is the same operation.
Expression Joined(Operation what, const Expression& left, const Expression& right) {
  std::vector<Expression> parts = left.What == what ? left.Parts : std::vector{left};
  parts.push_back(right);
  return {what, std::move(parts)};
}

double ValueOf(std::string_view letter, const std::vector<SymbolValue>& values) {
  const auto found = std::ranges::find(values, letter, &SymbolValue::Letter);
  if (found == values.end()) throw std::logic_error("no value of " + std::string(letter));
  return found->Value;
}

// Like the engine, which squares without a call of the library.
double Raised(double base, double exponent) {
  if (exponent == 2) return Square(base);
  if (base < 0) throw RuntimeError(error_number::BadCall);
  return WithinDouble(std::pow(base, exponent));
}

void AddLetters(const Expression& formula, std::vector<std::string_view>& letters) {
  const bool isNew = formula.What == Operation::Symbol && std::ranges::find(letters, formula.Letter) == letters.end();
  if (isNew) letters.push_back(formula.Letter);
  for (const Expression& part : formula.Parts) AddLetters(part, letters);
}

}  // namespace

Expression Symbol(std::string_view letter) { return {Operation::Symbol, letter, 0}; }
Expression PiSymbol() { return {Operation::Constant, "π", Pi}; }

Expression operator+(const Expression& left, const Expression& right) { return Joined(Operation::Sum, left, right); }
Expression operator-(const Expression& left, const Expression& right) { return {Operation::Difference, {left, right}}; }
Expression operator*(const Expression& left, const Expression& right) {
  return Joined(Operation::Product, left, right);
}
Expression operator/(const Expression& dividend, const Expression& divisor) {
  return {Operation::Quotient, {dividend, divisor}};
}
Expression PowerOf(const Expression& base, double exponent) { return {Operation::Power, {base, exponent}}; }
Expression SquareOf(const Expression& base) { return PowerOf(base, 2); }
Expression RootOf(const Expression& radicand) { return {Operation::Root, {radicand}}; }
Expression NaturalLogOf(const Expression& argument) { return {Operation::NaturalLog, {argument}}; }
Expression DecimalLogOf(const Expression& argument) { return {Operation::DecimalLog, {argument}}; }
Expression TangentOf(const Expression& degrees) { return {Operation::Tangent, {degrees}}; }
Expression CosineOf(const Expression& degrees) { return {Operation::Cosine, {degrees}}; }
Expression LeastOf(const Expression& one, const Expression& other) { return {Operation::Least, {one, other}}; }
Expression GreatestOf(const Expression& one, const Expression& other) { return {Operation::Greatest, {one, other}}; }
Expression operator<(const Expression& left, const Expression& right) { return {Operation::Below, {left, right}}; }
Expression operator<=(const Expression& left, const Expression& right) { return {Operation::AtMost, {left, right}}; }
Expression IsEqual(const Expression& left, const Expression& right) { return {Operation::Equal, {left, right}}; }

Expression CasesOf(const std::vector<Case>& cases, const Expression& otherwise) {
  std::vector<Expression> parts;
  for (const Case& one : cases) {
    parts.push_back(one.Value);
    parts.push_back(one.Condition);
  }
  parts.push_back(otherwise);
  return {Operation::Cases, std::move(parts)};
}

double Evaluate(const Expression& formula, const std::vector<SymbolValue>& values) {
  const auto part = [&](std::size_t i) { return Evaluate(formula.Parts.at(i), values); };
  const auto folded = [&](auto join) {
    double result = part(0);
    for (std::size_t i = 1; i < formula.Parts.size(); ++i) result = join(result, part(i));
    return result;
  };
  switch (formula.What) {
    case Operation::Number:
    case Operation::Constant: return formula.Value;
    case Operation::Symbol: return ValueOf(formula.Letter, values);
    case Operation::Sum: return folded([](double a, double b) { return a + b; });
    case Operation::Difference: return part(0) - part(1);
    case Operation::Product: return folded([](double a, double b) { return a * b; });
    case Operation::Quotient: return Divide(part(0), part(1));
    case Operation::Power: return Raised(part(0), part(1));
    case Operation::Root: return SquareRoot(part(0));
    case Operation::NaturalLog: return Logarithm(part(0));
    case Operation::DecimalLog: return Logarithm(part(0)) / std::log(10.0);
    case Operation::Tangent: return std::tan(part(0) * RadiansPerDegree);
    case Operation::Cosine: return Cosine(part(0) * RadiansPerDegree);
    case Operation::Least: return std::min(part(0), part(1));
    case Operation::Greatest: return std::max(part(0), part(1));
    case Operation::Cases: return Evaluate(Applying(formula, values), values);
    case Operation::Below: return part(0) < part(1) ? 1 : 0;
    case Operation::AtMost: return part(0) <= part(1) ? 1 : 0;
    case Operation::Equal: return part(0) == part(1) ? 1 : 0;
  }
  return 0;
}

const Expression& Applying(const Expression& formula, const std::vector<SymbolValue>& values,
                           std::vector<std::string_view>* needed) {
  const auto need = [&](const Expression& part) -> const Expression& {
    if (needed != nullptr) AddLetters(part, *needed);
    return part;
  };
  if (formula.What != Operation::Cases) return need(formula);
  for (std::size_t i = 0; i + 1 < formula.Parts.size(); i += 2) {
    if (Evaluate(need(formula.Parts[i + 1]), values) != 0) return need(formula.Parts[i]);
  }
  return need(formula.Parts.back());
}

}  // namespace orby
