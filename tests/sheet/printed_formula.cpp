#include "sheet/printed_formula.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

#include "sheet/text_reader.h"

namespace orby::test {
namespace {

class Reader : TextReader {
 public:
  using TextReader::TextReader;

  double Whole() {
    const double value = Sum();
    NeedEnd();
    return value;
  }

 private:
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
    if (error != std::errc()) Fail("no number");
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }
};

}  // namespace

double ValueOfPrinted(std::string_view text) { return Reader(text).Whole(); }

}  // namespace orby::test
