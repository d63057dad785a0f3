#include "config/ini_file.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

#include "base/arithmetic.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/whole_file.h"

namespace orby {
namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view Blanks = " \t\r\n";

std::string_view WithoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(Blanks), text.size()));
}

std::string_view TrimBlanks(std::string_view text) {
  text = WithoutLeadingBlanks(text);
  return text.substr(0, text.find_last_not_of(Blanks) + 1);
}

char UpperLetter(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

std::string_view WithoutQuotes(std::string_view value) {
  if (value.size() < 2 || value.front() != value.back()) return value;
  if (value.front() != '"' && value.front() != '\'') return value;
  return value.substr(1, value.size() - 2);
}

struct IniLine {
  enum class Kind { Foreign, Section, Key };
  Kind kind = Kind::Foreign;
  std::string_view name;
  std::optional<std::string_view> value;  // the text after "=" with its quotes
};

IniLine SplitLine(std::string_view line) {
  const std::string_view text = TrimBlanks(line);
  if (text.empty() || text.front() == ';') return {};
  const std::size_t bracket = text.front() == '[' ? text.rfind(']') : std::string_view::npos;
  if (bracket != std::string_view::npos) {
    return {IniLine::Kind::Section, TrimBlanks(text.substr(1, bracket - 1)), std::nullopt};
  }
  const std::size_t equals = text.find('=');
  if (equals == std::string_view::npos) return {IniLine::Kind::Key, text, std::nullopt};
  return {IniLine::Kind::Key, TrimBlanks(text.substr(0, equals)), TrimBlanks(text.substr(equals + 1))};
}

std::string KeyLine(std::string_view name, std::string_view value) {
  std::string line(name);
  line += '=';
  line += value;
  line += LineEnd;
  return line;
}

}  // namespace

std::size_t IniText::NameHash::operator()(std::string_view name) const {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(UpperLetter(c))) * 1099511628211U;
  return hash;
}

bool IniText::SameName::operator()(std::string_view a, std::string_view b) const { return SameWithoutCase(a, b); }

IniText::IniText(std::string text) {
  std::string_view rest = Store(std::move(text));
  const std::size_t markSize = rest.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
  lines_.push_back(rest.substr(0, markSize));
  rest.remove_prefix(markSize);
  Section* section = &sections_.try_emplace(std::string_view(), Section{lines_.begin(), {}}).first->second;
  while (!rest.empty()) {
    const std::string_view before = rest;
    TakeLine(rest);
    lines_.push_back(before.substr(0, before.size() - rest.size()));
    IndexLine(std::prev(lines_.end()), section);
  }
}

IniText IniText::FromFileBytes(std::string bytes) { return IniText(TextFromFileBytes(std::move(bytes))); }

// `section` is the section of the line. It is null in a second section of the same name.
void IniText::IndexLine(Lines::iterator line, Section*& section) {
  const IniLine parts = SplitLine(*line);
  if (parts.kind == IniLine::Kind::Section) {
    const auto [found, isFirst] = sections_.try_emplace(parts.name, Section{line, {}});
    section = isFirst ? &found->second : nullptr;
  } else if (parts.kind == IniLine::Kind::Key && section != nullptr) {
    section->keys.try_emplace(parts.name, line);
    section->last = line;
  }
}

std::optional<std::string_view> IniText::Find(std::string_view section, std::string_view key) const {
  const auto foundSection = sections_.find(TrimBlanks(section));
  if (foundSection == sections_.end()) return std::nullopt;
  const auto& keys = foundSection->second.keys;
  const auto foundKey = keys.find(TrimBlanks(key));
  if (foundKey == keys.end()) return std::nullopt;
  const auto value = SplitLine(*foundKey->second).value;
  if (!value) return std::nullopt;
  return WithoutQuotes(*value);
}

std::vector<std::string_view> IniText::Keys(std::string_view section) const {
  std::vector<std::string_view> names;
  const auto found = sections_.find(TrimBlanks(section));
  if (found == sections_.end()) return names;
  for (const auto& [name, line] : found->second.keys) names.push_back(name);
  return names;
}

void IniText::Write(std::string_view section, std::string_view key, std::string_view value) {
  const std::string_view line = WithoutLeadingBlanks(TakeLine(value));
  Section& target = SectionToWrite(TrimBlanks(section));
  const auto found = target.keys.find(TrimBlanks(key));
  if (found != target.keys.end()) {
    const IniLine old = SplitLine(*found->second);
    if (old.value == TrimBlanks(line)) return;
    *found->second = Store(KeyLine(old.name, line));
  } else {
    EndLine(target.last);
    target.last = lines_.insert(std::next(target.last), Store(KeyLine(TrimBlanks(key), line)));
    target.keys.emplace(SplitLine(*target.last).name, target.last);
  }
  isChanged_ = true;
}

IniText::Section& IniText::SectionToWrite(std::string_view name) {
  const auto found = sections_.find(name);
  if (found != sections_.end()) return found->second;
  EndLine(std::prev(lines_.end()));
  std::string line("[");
  line += name;
  line += ']';
  line += LineEnd;
  lines_.push_back(Store(std::move(line)));
  const auto header = std::prev(lines_.end());
  return sections_.emplace(header->substr(1, name.size()), Section{header, {}}).first->second;
}

std::string_view IniText::Store(std::string text) { return texts_.emplace_back(std::move(text)); }

// Adds a missing line end. Only the last line of a file can lack one.
void IniText::EndLine(Lines::iterator line) {
  if (line == lines_.begin() || line->ends_with('\n') || line->ends_with('\r')) return;
  std::string ended(*line);
  ended += LineEnd;
  *line = Store(std::move(ended));
}

std::string IniText::Text() const {
  std::size_t size = 0;
  for (const std::string_view line : lines_) size += line.size();
  std::string text;
  text.reserve(size);
  for (const std::string_view line : lines_) text += line;
  return text;
}

std::string IniText::FileBytes() const { return FileBytesFromText(Text()); }

IniValue::IniValue(int value) : text_(NumberText(value)) {}
IniValue::IniValue(Integer value) : text_(NumberText(value)) {}
IniValue::IniValue(Single value) : text_(NumberText(value)) {}

void WriteIniValue(IniText& ini, std::string_view section, std::string_view key, const IniValue& value) {
  ini.Write(section, key, value.Text());
}

std::string ReadIniValue(const IniText& ini, std::string_view section, std::string_view key,
                         std::string_view defaultText) {
  constexpr std::size_t LongestValue = 254;
  const std::string_view value = ini.Find(section, key).value_or(std::string_view());
  if (value.empty()) return std::string(defaultText);
  return std::string(value.substr(0, CharacterOffset(value, LongestValue)));
}

double ReadIniNumber(const IniText& ini, std::string_view section, std::string_view key, std::string_view defaultText) {
  const std::string text = ReadIniValue(ini, section, key, defaultText);
  try {
    return TextValue(text);
  } catch (const RuntimeError&) {
    const bool isNegative = TrimBlanks(text).starts_with('-');
    return isNegative ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
  }
}

Integer ReadIniInteger(const IniText& ini, std::string_view section, std::string_view key,
                       std::string_view defaultText) {
  const double whole = RoundHalfEven(ReadIniNumber(ini, section, key, defaultText));
  using Limits = std::numeric_limits<Integer>;
  return whole < Limits::min() || whole > Limits::max() ? Integer{0} : ToInteger(whole);
}

Integer ReadIniInteger(const IniText& ini, std::string_view section, std::string_view key, IniRange range,
                       std::string_view defaultText) {
  const double whole = RoundHalfEven(ReadIniNumber(ini, section, key, defaultText));
  return ClampRange(whole, range.Minimum, range.Maximum);
}

Single ReadIniSingle(const IniText& ini, std::string_view section, std::string_view key) {
  try {
    return ToSingle(ReadIniNumber(ini, section, key));
  } catch (const RuntimeError&) {
    return 0;
  }
}

namespace {

// Returns the bytes of the file, or no bytes when it is missing. Returns nothing when the file exists but cannot be
// read, because writing it would lose its contents.
std::optional<std::string> BytesToEdit(FileSystem& files, const std::string& file) {
  try {
    return files.ReadFile(file);
  } catch (const RuntimeError& error) {
    if (error.number() == error_number::FileNotFound) return std::string();
    return std::nullopt;
  }
}

}  // namespace

IniText ReadIniFile(Program& program, const std::string& file) {
  try {
    return IniText::FromFileBytes(program.platform.files.ReadFile(file));
  } catch (const RuntimeError&) {
    return {};
  }
}

void EditIniFile(Program& program, const std::string& file, const std::function<void(IniText&)>& edit) {
  FileSystem& files = program.platform.files;
  const auto bytes = BytesToEdit(files, file);
  if (!bytes) return;
  IniText ini = IniText::FromFileBytes(*bytes);
  edit(ini);
  if (ini.IsChanged()) TryWriteWhole(files, file, ini.FileBytes());
}

std::string ReadIniValue(Program& program, std::string_view section, std::string_view key, const std::string& file,
                         std::string_view defaultText) {
  return ReadIniValue(ReadIniFile(program, file), section, key, defaultText);
}

void WriteIniValue(Program& program, std::string_view section, std::string_view key, const IniValue& value,
                   const std::string& file) {
  EditIniFile(program, file, [&](IniText& ini) { WriteIniValue(ini, section, key, value); });
}

}  // namespace orby
