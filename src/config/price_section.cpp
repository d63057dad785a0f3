#include "config/price_section.h"

#include <array>
#include <string>
#include <string_view>

#include "base/number_text.h"

namespace orby {
namespace {

constexpr std::string_view PriceSection = "ORBYPrices";
constexpr IniRange PriceCount{0, 5000};

struct PriceKeys {
  std::string_view Lengths;
  std::string_view Count;
  std::string_view Price;  // followed by the number of the price, from 1
};

// By unit system.
constexpr std::array<PriceKeys, 2> KeysOfPrices{PriceKeys{"BoltLengthsENG", "PriceCountENG", "PriceENG"},
                                                PriceKeys{"BoltLengthsMET", "PriceCountMET", "PriceMET"}};

// By the number of PricedSupport.
constexpr std::array<std::string_view, 4> SupportWords{"Bolt", "Cable", "Truss", "Standing"};

std::string_view TakeWord(std::string_view& rest) {
  const std::string_view word = rest.substr(0, rest.find(' '));
  rest.remove_prefix(std::min(word.size() + 1, rest.size()));
  return word;
}

std::optional<Price> PriceFrom(std::string_view line) {
  const auto word = std::ranges::find(SupportWords, TakeWord(line));
  const auto length = WholeTextSingle(TakeWord(line));
  const auto dollars = WholeTextSingle(TakeWord(line));
  const bool hasName = line.size() >= 2 && line.starts_with('"') && line.ends_with('"');
  if (word == SupportWords.end() || !length || *length < 0 || !dollars || !(*dollars > 0) || !hasName) {
    return std::nullopt;
  }
  return Price{static_cast<PricedSupport>(word - SupportWords.begin()), std::string(line.substr(1, line.size() - 2)),
               *length, *dollars};
}

// The quotation marks keep blanks at the ends of a name.
std::string TextOfPrice(const Price& price) {
  return std::string(SupportWords.at(static_cast<std::size_t>(price.What))) + " " + NumberText(price.Length) + " " +
         NumberText(price.Dollars) + " \"" + price.Name + "\"";
}

std::string KeyOfPrice(const PriceKeys& keys, Integer number) { return std::string(keys.Price) + NumberText(number); }

void ReadPriceList(PriceList& list, const IniText& ini, const PriceKeys& keys) {
  std::vector<Single> lengths = LengthsFrom(ini.Find(PriceSection, keys.Lengths).value_or(""));
  if (!lengths.empty()) list.BoltLengths = std::move(lengths);
  if (!ini.Find(PriceSection, keys.Count)) return;
  list.Prices.clear();
  const Integer count = ReadIniInteger(ini, PriceSection, keys.Count, PriceCount);
  for (Integer number = 1; number <= count; ++number) {
    const auto line = ini.Find(PriceSection, KeyOfPrice(keys, number));
    auto price = line ? PriceFrom(*line) : std::nullopt;
    if (price) list.Prices.push_back(std::move(*price));
  }
}

void WritePriceList(const PriceList& list, IniText& ini, const PriceKeys& keys) {
  WriteIniValue(ini, PriceSection, keys.Lengths, LengthsText(list.BoltLengths));
  WriteIniValue(ini, PriceSection, keys.Count, static_cast<int>(list.Prices.size()));
  Integer number = 0;
  for (const Price& price : list.Prices)
    WriteIniValue(ini, PriceSection, KeyOfPrice(keys, ++number), TextOfPrice(price));
}

}  // namespace

void ReadPrices(PriceLists& lists, const IniText& ini) {
  for (std::size_t units = 0; units < lists.size(); ++units) ReadPriceList(lists[units], ini, KeysOfPrices[units]);
}

void WritePrices(const PriceLists& lists, IniText& ini) {
  for (std::size_t units = 0; units < lists.size(); ++units) WritePriceList(lists[units], ini, KeysOfPrices[units]);
}

}  // namespace orby
