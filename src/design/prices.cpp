#include "design/prices.h"

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/number_text.h"

namespace orby {
namespace {

constexpr std::string_view Separators = " \t,;";

// Returns the length that the whole word is, or nothing.
std::optional<Single> LengthFrom(std::string_view word) {
  const std::optional<Single> length = WholeTextSingle(word);
  return length && *length > 0 ? length : std::nullopt;
}

}  // namespace

PriceLists BuiltInPrices() {
  return {PriceList{{4, 5, 6, 7, 8, 10, 12}, {}}, PriceList{{1.2F, 1.5F, 1.8F, 2.1F, 2.4F, 3.0F, 3.6F}, {}}};
}

std::vector<Single> LengthsFrom(std::string_view text) {
  std::vector<Single> lengths;
  while (!text.empty() && lengths.size() < MostStockedLengths) {
    const std::string_view word = text.substr(0, text.find_first_of(Separators));
    text.remove_prefix(std::min(word.size() + 1, text.size()));
    const auto length = LengthFrom(word);
    if (length && std::ranges::find(lengths, *length) == lengths.end()) lengths.push_back(*length);
  }
  std::ranges::sort(lengths);
  return lengths;
}

std::string LengthsText(const std::vector<Single>& lengths) {
  std::string text;
  for (const Single length : lengths) text.append(text.empty() ? "" : ", ").append(NumberText(length));
  return text;
}

}  // namespace orby
