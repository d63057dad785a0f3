// The configuration file: sections "[name]" of lines "key=value".
//
// Names are compared without regard to the case of the letters A to Z, and without the blanks and tabs around them. Of
// two sections or keys of the same name the first one is used. A line that starts with ";" is a comment. A line without
// "=" is a key without a value.
#pragma once

#include <concepts>
#include <cstddef>
#include <deque>
#include <functional>
#include <list>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/types.h"
#include "core/program.h"

namespace orby {

// The text of the file, parsed once. The time of a look-up or an edit does not depend on the length of the text. Lines
// that are not edited keep their bytes, their order and their line ends.
class IniText {
 public:
  IniText() : IniText(std::string()) {}
  explicit IniText(std::string text);  // UTF-8
  static IniText FromFileBytes(std::string bytes);

  IniText(IniText&&) = default;
  IniText& operator=(IniText&&) = default;

  // Returns the value without surrounding blanks and without one pair of quotes around it. Returns nothing when the
  // section or the key is missing, or when the key has no "=". The result stays valid until this text is destroyed,
  // also after edits.
  std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;

  // Returns the keys of a section, in no order. They stay valid like values. Empty if there is no such section.
  std::vector<std::string_view> Keys(std::string_view section) const;

  // Replaces the line of the key. Adds a missing key after the last key of its section, and a missing section at the
  // end. The value is written without leading blanks and up to its first line end. A key that has the value already
  // keeps its line. The empty section name means the lines before the first section.
  void Write(std::string_view section, std::string_view key, std::string_view value);

  bool IsChanged() const { return isChanged_; }
  std::string Text() const;
  std::string FileBytes() const;

 private:
  struct NameHash {
    std::size_t operator()(std::string_view name) const;
  };
  struct SameName {
    bool operator()(std::string_view a, std::string_view b) const;
  };
  template <class T>
  using ByName = std::unordered_map<std::string_view, T, NameHash, SameName>;
  using Lines = std::list<std::string_view>;
  struct Section {
    Lines::iterator last;  // new keys follow it
    ByName<Lines::iterator> keys;
  };

  void IndexLine(Lines::iterator line, Section*& section);
  Section& SectionToWrite(std::string_view name);
  std::string_view Store(std::string text);
  void EndLine(Lines::iterator line);

  std::deque<std::string> texts_;  // the texts that the lines and names refer to; none is ever removed
  Lines lines_;                    // with their line ends; the first is the byte order mark or empty
  ByName<Section> sections_;
  bool isChanged_ = false;
};

// The value of a key: a text unchanged, a number as NumberText, a Boolean as 0 or -1.
class IniValue {
 public:
  // NOLINTBEGIN(google-explicit-constructor): converts from the types of values
  IniValue(std::string_view value) : text_(value) {}
  IniValue(const std::string& value) : text_(value) {}
  IniValue(const char* value) : text_(value) {}
  IniValue(int value);
  IniValue(Integer value);
  IniValue(Single value);
  template <std::same_as<bool> Boolean>
  IniValue(Boolean value) : text_(value ? "-1" : "0") {}
  // NOLINTEND(google-explicit-constructor)

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

void WriteIniValue(IniText& ini, std::string_view section, std::string_view key, const IniValue& value);

// Returns the first 254 characters of the value, or the default when the value is empty or the key is missing.
std::string ReadIniValue(const IniText& ini, std::string_view section, std::string_view key,
                         std::string_view defaultText = {});

// Returns the number at the start of the value, or 0 when there is none. A number outside the range of a Double reads
// as the largest or lowest Double, which is outside the range of every key.
double ReadIniNumber(const IniText& ini, std::string_view section, std::string_view key,
                     std::string_view defaultText = {});

struct IniRange {
  Integer Minimum;
  Integer Maximum;
};

// Returns the nearest whole number, ties to even. Without a range, a number that does not fit 16 bits reads as 0. With
// a range, a number outside it reads as the minimum, also when it is too large.
Integer ReadIniInteger(const IniText& ini, std::string_view section, std::string_view key,
                       std::string_view defaultText = {});
Integer ReadIniInteger(const IniText& ini, std::string_view section, std::string_view key, IniRange range,
                       std::string_view defaultText = {});

// Returns the number at the start of the value. A number outside the range of a Single reads as 0.
Single ReadIniSingle(const IniText& ini, std::string_view section, std::string_view key);

// Reads a file. A file that cannot be read is an empty text.
IniText ReadIniFile(Program& program, const std::string& file);

// Reads the file, calls `edit` and writes the file if it changed. Makes a missing file. A file that cannot be read or
// written stays unchanged, and no message is shown.
void EditIniFile(Program& program, const std::string& file, const std::function<void(IniText&)>& edit);

// Read or write one key of a file. For several keys use ReadIniFile or EditIniFile, which access the file only once.
std::string ReadIniValue(Program& program, std::string_view section, std::string_view key, const std::string& file,
                         std::string_view defaultText = {});
void WriteIniValue(Program& program, std::string_view section, std::string_view key, const IniValue& value,
                   const std::string& file);

}  // namespace orby
