// Properties of every number: a text reads back to its number within its digits, and formats keep the order of numbers.
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

#include "base/arithmetic.h"
#include "base/number_text.h"

namespace orby {
namespace {

// Any finite Double below 9E307, with all magnitudes equally likely. Larger ones could leave the range when they are
// rounded to 15 digits.
rc::Gen<double> AnyDouble() {
  constexpr std::uint64_t SignBit = 1ULL << 63U;
  constexpr std::uint64_t BelowLastExponent = 0x7FE0000000000000U;
  return rc::gen::map(
      rc::gen::pair(rc::gen::inRange<std::uint64_t>(0, BelowLastExponent), rc::gen::arbitrary<bool>()),
      [](const auto& parts) { return std::bit_cast<double>(parts.second ? parts.first | SignBit : parts.first); });
}

rc::Gen<Single> AnySingle() {
  constexpr std::uint32_t SignBit = 1U << 31U;
  constexpr std::uint32_t InfinityBits = 0x7F800000U;
  return rc::gen::map(
      rc::gen::pair(rc::gen::inRange<std::uint32_t>(0, InfinityBits), rc::gen::arbitrary<bool>()),
      [](const auto& parts) { return std::bit_cast<Single>(parts.second ? parts.first | SignBit : parts.first); });
}

// A length, load or cost as typed into a field: up to five decimals.
rc::Gen<double> FieldValue() {
  return rc::gen::map(rc::gen::inRange<std::int64_t>(-99999999999, 99999999999),
                      [](std::int64_t steps) { return static_cast<double>(steps) / 100000; });
}

RC_GTEST_PROP(NumberTextProperty, ASingleReadsBackWithinSevenDigits, ()) {
  const double value = static_cast<double>(*AnySingle());

  const double readBack = TextValue(NumberText(static_cast<Single>(value)));

  RC_ASSERT(std::abs(readBack - value) <= 5.000001E-7 * std::abs(value));
}

RC_GTEST_PROP(NumberTextProperty, ADoubleReadsBackToTheSameText, ()) {
  const double value = *AnyDouble();
  const std::string text = NumberText(value);

  const double readBack = TextValue(text);

  RC_ASSERT(NumberText(readBack) == text);
  // Half a unit of the last digit, plus half the step to the next double, because the text is read back as a double.
  if (std::isnormal(value)) RC_ASSERT(std::abs(readBack - value) <= 5.12E-15 * std::abs(value));
}

RC_GTEST_PROP(NumberTextProperty, EveryTextIsANumberByTheLooseRules, ()) {
  const double value = *AnyDouble();

  RC_ASSERT(LooseNumber(NumberText(value)) == TextValue(NumberText(value)));
}

RC_GTEST_PROP(NumberTextProperty, AFieldValueOfFiveDecimalsReadsBackExactly, ()) {
  const double value = *FieldValue();

  RC_ASSERT(TextValue(NumberText(value)) == value);
}

template <class Float>
void AssertOrderIsKept(Float a, Float b) {
  const auto [low, high] = std::minmax(a, b);
  RC_ASSERT(TextValue(FormatNumber(low, "0.0")) <= TextValue(FormatNumber(high, "0.0")));
  RC_ASSERT(TextValue(FormatNumber(low, "0.#0")) <= TextValue(FormatNumber(high, "0.#0")));
  RC_ASSERT(TextValue(FormatNumber(low, "0")) <= TextValue(FormatNumber(high, "0")));
}

// Texts of up to 20 digits with a point anywhere, more digits than the short cut for plain decimals reads.
RC_GTEST_PROP(TextValueProperty, IsTheNearestDoubleHoweverManyDigits, ()) {
  const auto digits = *rc::gen::nonEmpty(rc::gen::container<std::string>(rc::gen::inRange('0', ':')));
  const auto point = *rc::gen::inRange<std::size_t>(0, digits.size() + 1);
  const std::string text = digits.substr(0, point) + "." + digits.substr(point);

  double nearest = 0;
  std::from_chars(text.data(), text.data() + text.size(), nearest);

  RC_ASSERT(TextValue(text) == nearest);
  RC_ASSERT(TextValue("-" + text) == -nearest);
}

RC_GTEST_PROP(FormatNumberProperty, ALargerSingleNeverShowsASmallerText, ()) {
  AssertOrderIsKept(*AnySingle(), *AnySingle());
}

RC_GTEST_PROP(FormatNumberProperty, ALargerFieldValueNeverShowsASmallerText, ()) {
  const double value = *FieldValue();
  const double step = std::abs(*FieldValue()) / 1E9;

  AssertOrderIsKept(value, value + step);
  AssertOrderIsKept(static_cast<Single>(value), static_cast<Single>(value + step));
}

RC_GTEST_PROP(FormatNumberProperty, TwoDecimalsStayWithinHalfAHundredth, ()) {
  const double value = *FieldValue();

  const double shown = TextValue(FormatNumber(value, "0.00"));

  RC_ASSERT(std::abs(shown - value) <= 0.0050000001);
}

}  // namespace
}  // namespace orby
