#include "sheet/printed_formula.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>
#include <stdexcept>
#include <string>

namespace orby::test {
namespace {

class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  double Whole() {
    const double value = Sum();
    Skip();
    if (!rest_.empty()) throw std::invalid_argument("left over: " + std::string(rest_));
    return value;
  }

 private:
  void Skip() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
  }
  bool Take(std::string_view sign) {
    Skip();
    if (!rest_.starts_with(sign)) return false;
    rest_.remove_prefix(sign.size());
    return true;
  }
  void Need(std::string_view sign) {
    if (!Take(sign)) throw std::invalid_argument("no " + std::string(sign) + " at: " + std::string(rest_));
  }

  double Sum() {
    double value = Product();
    while (true) {
      if (Take("+")) {
        value += Product();
      } else if (Take("-")) {
        value -= Product();
      } else {
        return value;
      }
    }
  }
  double Product() {
    double value = Signed();
    while (true) {
      if (Take("·")) {
        value *= Signed();
      } else if (Take("/")) {
        value /= Signed();
      } else {
        return value;
      }
    }
  }
  double Signed() { return Take("-") ? -Signed() : Power(); }
  double Power() {
    const double base = Single();
    return Take("^") ? std::pow(base, Single()) : base;
  }
  double InBrackets() {
    Need("(");
    const double value = Sum();
    Need(")");
    return value;
  }
  double Angle() {
    Need("(");
    const double degrees = Sum();
    Need("°");
    Need(")");
    return degrees / 180 * std::numbers::pi;
  }
  double Pair(const double& (*choose)(const double&, const double&)) {
    Need("(");
    const double one = Sum();
    Need(",");
    const double other = Sum();
    Need(")");
    return choose(one, other);
  }
  double Single() {
    if (Take("√")) return std::sqrt(InBrackets());
    if (Take("π")) return std::numbers::pi;
    if (Take("ln")) return std::log(InBrackets());
    if (Take("log")) return std::log10(InBrackets());
    if (Take("tan")) return std::tan(Angle());
    if (Take("cos")) return std::cos(Angle());
    if (Take("min")) return Pair(std::min<double>);
    if (Take("max")) return Pair(std::max<double>);
    Skip();
    if (rest_.starts_with('(')) return InBrackets();
    return Number();
  }
  double Number() {
    Skip();
    double value = 0;
    const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    if (error != std::errc()) throw std::invalid_argument("no number at: " + std::string(rest_));
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

  std::string_view rest_;
};

}  // namespace

double ValueOfPrinted(std::string_view text) { return Reader(text).Whole(); }

}  // namespace orby::test
