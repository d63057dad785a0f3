#include "sheet/json_reader.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "sheet/text_reader.h"

namespace orby::test {
namespace {

class JsonText : TextReader {
 public:
  using TextReader::TextReader;

  Json Whole() {
    Json value = Value();
    NeedEnd();
    return value;
  }

 private:
  Json Value() {
    Skip();
    if (rest_.starts_with('"')) return {Text()};
    if (Take("{")) return {Members()};
    if (Take("[")) return {Items()};
    if (Take("true")) return {true};
    if (Take("false")) return {false};
    if (Take("null")) return {nullptr};
    return {Number()};
  }

  JsonMembers Members() {
    JsonMembers members;
    if (Take("}")) return members;
    do {
      Skip();
      std::string name = Text();
      if (std::ranges::find(members, name, &JsonMembers::value_type::first) != members.end()) Fail("again " + name);
      Need(":");
      members.emplace_back(std::move(name), Value());
    } while (Take(","));
    Need("}");
    return members;
  }

  JsonArray Items() {
    JsonArray items;
    if (Take("]")) return items;
    do {
      items.push_back(Value());
    } while (Take(","));
    Need("]");
    return items;
  }

  double Number() {
    const bool isNegative = rest_.starts_with('-');
    const std::string_view digits = rest_.substr(isNegative ? 1 : 0);
    if (digits.empty() || digits[0] < '0' || digits[0] > '9') Fail("no value");
    if (digits.size() > 1 && digits[0] == '0' && digits[1] >= '0' && digits[1] <= '9') Fail("leading zero");
    double value = 0;
    const char* end = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value).ptr;
    rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
    return value;
  }

  std::string Text() {
    if (!rest_.starts_with('"')) Fail("no text");
    rest_.remove_prefix(1);
    std::string text;
    while (!rest_.starts_with('"')) {
      if (rest_.empty() || static_cast<unsigned char>(rest_[0]) < 0x20) Fail("broken text");
      const char c = rest_[0];
      rest_.remove_prefix(1);
      text += c == '\\' ? Escaped() : c;
    }
    rest_.remove_prefix(1);
    return text;
  }

  // Reads only escapes of ASCII characters.
  char Escaped() {
    constexpr std::string_view Names = "\"\\/bfnrt";
    constexpr std::string_view Characters = "\"\\/\b\f\n\r\t";
    if (rest_.empty()) Fail("broken text");
    const char name = rest_[0];
    rest_.remove_prefix(1);
    if (name != 'u') {
      const std::size_t place = Names.find(name);
      if (place == std::string_view::npos) Fail("unknown escape");
      return Characters[place];
    }
    unsigned code = 0;
    const std::string_view digits = rest_.substr(0, 4);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code, 16);
    if (error != std::errc() || end != digits.data() + 4 || code > 0x7F) Fail("broken escape");
    rest_.remove_prefix(4);
    return static_cast<char>(code);
  }
};

}  // namespace

const Json& Json::operator[](std::string_view name) const {
  const auto member = std::ranges::find(Members(), name, &JsonMembers::value_type::first);
  if (member == Members().end()) throw std::out_of_range("no member " + std::string(name));
  return member->second;
}

bool Json::Has(std::string_view name) const {
  return std::ranges::find(Members(), name, &JsonMembers::value_type::first) != Members().end();
}

Json ReadJson(std::string_view text) { return JsonText(text).Whole(); }

}  // namespace orby::test
