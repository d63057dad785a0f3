// Fuzzes number fields: each text reads as a finite number or overflows, and the number can be written.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/number_text.h"
#include "base/runtime_error.h"

namespace {

void Require(bool holds) {
  if (!holds) std::abort();
}

void ReadFieldValue(std::string_view text) {
  try {
    const double value = orby::TextValue(text);
    Require(std::isfinite(value));
    Require(!orby::NumberText(value).empty());
    Require(!orby::FormatNumber(value, "0.#0").empty());
  } catch (const orby::RuntimeError& error) {
    Require(error.number() == orby::error_number::Overflow);
  }
}

void TestForANumber(std::string_view text) {
  const auto value = orby::LooseNumber(text);
  Require(!value || std::isfinite(*value));
  Require(orby::NormalizeDecimalText(text).empty() == text.empty());
}

void TypeAKey(std::string_view text) {
  if (text.empty()) return;
  const int key = static_cast<unsigned char>(text.back());
  const int passed = orby::NumericKeyFilter(key, text.substr(0, text.size() - 1));
  Require(passed == key || passed == 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  ReadFieldValue(text);
  TestForANumber(text);
  TypeAKey(text);
  return 0;
}
