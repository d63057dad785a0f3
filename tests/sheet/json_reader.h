// A strict reader of JSON.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace orby::test {

struct Json;
using JsonArray = std::vector<Json>;
using JsonMembers = std::vector<std::pair<std::string, Json>>;  // in the order of the text

struct Json {
  std::variant<std::nullptr_t, bool, double, std::string, JsonArray, JsonMembers> Value;

  // Each throws if the value is of another kind, or has no such member.
  const Json& operator[](std::string_view name) const;
  const std::string& Text() const { return std::get<std::string>(Value); }
  double Number() const { return std::get<double>(Value); }
  const JsonArray& Items() const { return std::get<JsonArray>(Value); }
  const JsonMembers& Members() const { return std::get<JsonMembers>(Value); }

  bool Has(std::string_view name) const;
};

// Throws std::invalid_argument for a text that is no JSON, and for an object with two members of one name.
Json ReadJson(std::string_view text);

}  // namespace orby::test
