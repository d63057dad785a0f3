// A key of the configuration file and its member. The reader and the writer of a section use the same rows.
#pragma once

#include <concepts>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

#include "config/ini_file.h"
#include "config/path_value.h"

namespace orby {

template <class Group>
struct IniRow {
  std::string_view Key;
  std::variant<Integer Group::*, Single Group::*, std::string Group::*, UnitSystem Group::*, StrengthBasis Group::*,
               FormatParameters Group::*, GridLines Group::*, CurveStyle Group::*>
      Member;
  // A Single with a range is read as a whole number. A choice always has a range.
  std::optional<IniRange> Range = std::nullopt;
  std::string_view Default = {};  // the value of an empty or missing key
  // Returns the value to store for a text that was read.
  std::string (*Accepted)(Program& program, const std::string& read) = nullptr;
  bool IsPath = false;  // a path of the file system, which may have any bytes
};

// `suffix` is appended to the key: the number of an entry in a list.
template <class Group>
void ReadIniRow(Program& program, Group& group, const IniText& ini, std::string_view section, const IniRow<Group>& row,
                std::string_view suffix = {}) {
  const std::string key = std::string(row.Key).append(suffix);
  const auto read = [&](auto member) {
    using Value = std::remove_reference_t<decltype(group.*member)>;
    if constexpr (std::same_as<Value, std::string>) {
      std::string text = ReadIniValue(ini, section, key, row.Default);
      if (row.IsPath) text = PathFromValue(text);
      group.*member = row.Accepted != nullptr ? row.Accepted(program, text) : text;
    } else if constexpr (std::is_enum_v<Value>) {
      group.*member = Value{ReadIniInteger(ini, section, key, *row.Range, row.Default)};
    } else if (row.Range) {
      group.*member = ReadIniInteger(ini, section, key, *row.Range, row.Default);
    } else if constexpr (std::same_as<Value, Single>) {
      group.*member = ReadIniSingle(ini, section, key);
    } else {
      group.*member = ReadIniInteger(ini, section, key, row.Default);
    }
  };
  std::visit(read, row.Member);
}

template <class Group>
void WriteIniRow(const Group& group, IniText& ini, std::string_view section, const IniRow<Group>& row,
                 std::string_view suffix = {}) {
  const std::string key = std::string(row.Key).append(suffix);
  const auto write = [&](auto member) {
    using Value = std::remove_cvref_t<decltype(group.*member)>;
    if constexpr (std::is_enum_v<Value>) {
      WriteIniValue(ini, section, key, NumberOf(group.*member));
    } else if constexpr (std::same_as<Value, std::string>) {
      WriteIniValue(ini, section, key, row.IsPath ? ValueFromPath(group.*member) : group.*member);
    } else {
      WriteIniValue(ini, section, key, group.*member);
    }
  };
  std::visit(write, row.Member);
}

}  // namespace orby
