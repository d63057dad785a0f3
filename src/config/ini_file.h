// The configuration file: sections "[name]" of lines "key=value".
//
// Names compare without regard to the case of the letters A to Z, and blanks and tabs around a name, in the file or in
// the call, do not count. Of doubled sections and doubled keys the first holds. A line that starts with ";" is a
// comment; a line without "=" is a key without a value.
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

#include "base/types.h"
#include "core/program.h"

namespace orby {

// The file's text, parsed once. A look-up and an edit take the same time however long the text is. Lines that are not
// edited keep their bytes, their place and their line ends.
class IniText {
 public:
  IniText() : IniText(std::string()) {}
  explicit IniText(std::string text);  // UTF-8
  static IniText FromFileBytes(std::string bytes);

  IniText(IniText&&) = default;
  IniText& operator=(IniText&&) = default;

  // The value without surrounding blanks and without one pair of quotes around it; nothing when the section or the key
  // is missing or the key has no "=". It stays readable as long as this text lives, edits included.
  std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;

  // Replaces the line of the key, or adds one behind the last key of the section, or adds the section at the end.
  // A value starts behind its leading blanks and ends at its first line end. A key that has the value already keeps
  // its line. The empty section stands for the lines before the first section line.
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
    Lines::iterator last;  // new keys go behind it
    ByName<Lines::iterator> keys;
  };

  void IndexLine(Lines::iterator line, Section*& section);
  Section& SectionToWrite(std::string_view name);
  std::string_view Store(std::string text);
  void EndLine(Lines::iterator line);

  std::deque<std::string> texts_;  // what the lines and names point into; nothing is ever taken out
  Lines lines_;                    // line ends included; the first is the byte order mark, or empty
  ByName<Section> sections_;
  bool isChanged_ = false;
};

// What a key can be set to: texts as they are, numbers as NumberText, Booleans as 0 or -1.
class IniValue {
 public:
  // NOLINTBEGIN(google-explicit-constructor): a value is what it is made of
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

// The first 254 characters of the value; the default when that is empty or the key is missing.
std::string ReadIniValue(const IniText& ini, std::string_view section, std::string_view key,
                         std::string_view defaultText = {});

// The number that the value starts with, 0 when there is none. One beyond the range of a Double reads as the outermost
// Double of its sign, which lies outside the range of every key.
double ReadIniNumber(const IniText& ini, std::string_view section, std::string_view key,
                     std::string_view defaultText = {});

struct IniRange {
  Integer Minimum;
  Integer Maximum;
};

// The nearest whole number, ties to even. Without a range, a number that is no 16-bit integer reads as 0; with one, a
// number outside it reads as the minimum, however large it is.
Integer ReadIniInteger(const IniText& ini, std::string_view section, std::string_view key,
                       std::string_view defaultText = {});
Integer ReadIniInteger(const IniText& ini, std::string_view section, std::string_view key, IniRange range,
                       std::string_view defaultText = {});

// A number beyond the range of a Single reads as 0.
Single ReadIniSingle(const IniText& ini, std::string_view section, std::string_view key);

// A file that cannot be read reads as empty.
IniText ReadIniFile(Program& program, const std::string& file);

// Edits the file, made anew when it is missing. A file that cannot be read or written is left as it was, without a word
// to the user; nothing is written when the edit changes nothing.
void EditIniFile(Program& program, const std::string& file, const std::function<void(IniText&)>& edit);

// One key of a file. Whoever reads or writes several goes through ReadIniFile or EditIniFile once.
std::string ReadIniValue(Program& program, std::string_view section, std::string_view key, const std::string& file,
                         std::string_view defaultText = {});
void WriteIniValue(Program& program, std::string_view section, std::string_view key, const IniValue& value,
                   const std::string& file);

}  // namespace orby
