// Fuzzes configuration files: reads the bytes with all sections, and edits them. For the edit the first three lines are
// section, key and value, and the file follows.
#include "config/ini_file.h"

#include <cstdint>
#include <cstdlib>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "base/text.h"
#include "config/catalog_sections.h"
#include "config/settings_sections.h"
#include "support/recording_platform.h"

namespace {

using orby::IniText;

void Expect(bool holds) {
  if (!holds) std::abort();
}

bool StartsOrEndsWithAny(std::string_view text, std::string_view characters) {
  if (text.empty()) return false;
  return characters.find(text.front()) != std::string_view::npos ||
         characters.find(text.back()) != std::string_view::npos;
}

// Returns the names of sections and keys that a simple search finds, up to a limit.
std::set<std::pair<std::string, std::string>> NamesIn(std::string_view text) {
  constexpr std::size_t Enough = 60;
  std::set<std::pair<std::string, std::string>> names;
  std::string section;
  while (!text.empty() && names.size() < Enough) {
    const std::string_view line = orby::TakeLine(text);
    if (line.starts_with('[')) section = line.substr(1, line.rfind(']') - 1);
    names.emplace(section, line.substr(0, line.find('=')));
  }
  return names;
}

std::string Trimmed(std::string_view name) {
  while (StartsOrEndsWithAny(name.substr(0, 1), " \t")) name.remove_prefix(1);
  while (!name.empty() && StartsOrEndsWithAny(name.substr(name.size() - 1), " \t")) name.remove_suffix(1);
  return std::string(name);
}

bool IsSameKey(const std::pair<std::string, std::string>& names, std::string_view section, std::string_view key) {
  return orby::SameWithoutCase(Trimmed(names.first), Trimmed(section)) &&
         orby::SameWithoutCase(Trimmed(names.second), Trimmed(key));
}

// Returns true if a file can contain the key: it has no "=", and does not start a comment, a section or a byte order
// mark.
bool IsWritableKey(std::string_view key) {
  const std::string name = Trimmed(key);
  return name.find('=') == std::string::npos && !name.starts_with(';') && !name.starts_with('[') &&
         !name.starts_with('\xEF');
}

// Returns true if a value reads back unchanged: it has no blanks and no quotes at its ends.
bool IsPlainValue(std::string_view value) { return !StartsOrEndsWithAny(value, " \t\"'"); }

// Returns the parts of the old and of the new text between their common start and their common end.
std::pair<std::string_view, std::string_view> Difference(std::string_view before, std::string_view after) {
  while (!before.empty() && !after.empty() && before.front() == after.front()) {
    before.remove_prefix(1);
    after.remove_prefix(1);
  }
  while (!before.empty() && !after.empty() && before.back() == after.back()) {
    before.remove_suffix(1);
    after.remove_suffix(1);
  }
  return {before, after};
}

void CheckEdit(std::string_view section, std::string_view key, std::string_view value, const std::string& text) {
  const IniText before(text);
  Expect(before.Text() == text && !before.IsChanged());

  IniText edited(text);
  edited.Write(section, key, value);
  const std::string newText = edited.Text();
  const IniText after(newText);

  for (const auto& names : NamesIn(text)) {
    const auto [otherSection, otherKey] = names;
    Expect(before.Find(otherSection, otherKey) == before.Find(orby::UpperCase(otherSection), otherKey + " "));
    if (IsSameKey(names, section, key) || !IsWritableKey(key)) continue;
    Expect(edited.Find(otherSection, otherKey) == before.Find(otherSection, otherKey));
    Expect(after.Find(otherSection, otherKey) == before.Find(otherSection, otherKey));
  }

  std::string_view taken = Difference(text, newText).first;
  orby::TakeLine(taken);
  Expect(taken.empty() || taken == "\n");
  Expect(edited.IsChanged() == (newText != text));
  if (!IsWritableKey(key)) return;
  Expect(after.Find(section, key) == edited.Find(section, key));
  if (IsPlainValue(value)) Expect(after.Find(section, key).value_or("missing") == value);
}

bool IsWithin(orby::Single value, orby::Single minimum, orby::Single maximum) {
  return value >= minimum && value <= maximum;
}

// No text in the file may prevent a start. Reads and writes all sections.
void CheckSections(const std::string& bytes) {
  orby::test::RecordingPlatform platform;
  orby::Program program(platform.AsPlatform());
  program.session.folders.ProgramData = "/data/";
  program.session.IniFilePath = "/data/ORBY.INI";
  platform.files.files[program.session.IniFilePath] = bytes;
  platform.files.folders.clear();
  const IniText ini = orby::ReadIniFile(program, program.session.IniFilePath);

  orby::ReadDefaults(program, ini);
  for (const auto section :
       {orby::StoredCatalogs::Defaults, orby::StoredCatalogs::BoltParams, orby::StoredCatalogs::StandSupports}) {
    orby::ReadCatalogSection(program, ini, section);
  }

  Expect(IsWithin(program.session.settings.MaxDisplaySize, 4096, 16384));
  Expect(IsWithin(program.session.settings.DisplayFontSize, 7, 24) &&
         IsWithin(program.session.textBrowse.BrowseFontSize, 7, 24));
  Expect(IsWithin(NumberOf(program.session.graph.GraphStyle), 1, 3) &&
         IsWithin(program.session.graph.SymbolSize, 3, 20));
  Expect(IsWithin(program.session.recentFiles.MaxLastFiles, 0, orby::RecentFiles::Capacity));
  Expect(program.session.settings.DataPath == "/data/" && platform.boxes.shown.empty());
  orby::WriteNewIniFile(program, orby::NewIniText(program.session));
  Expect(orby::IniVersion(orby::ReadIniFile(program, program.session.IniFilePath)) == orby::BuildStamp);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(data, data + size);
  const std::string text = orby::TextFromFileBytes(bytes);
  std::string_view rest = text;
  const std::string_view section = orby::TakeLine(rest);
  const std::string_view key = orby::TakeLine(rest);
  const std::string_view value = orby::TakeLine(rest);

  CheckEdit(section, key, value, std::string(rest));
  CheckSections(bytes);

  const IniText ini = IniText::FromFileBytes(bytes);
  static_cast<void>(orby::ReadIniInteger(ini, section, key));
  static_cast<void>(orby::ReadIniInteger(ini, section, key, orby::IniRange{-1, 0}));
  static_cast<void>(orby::ReadIniSingle(ini, section, key));
  Expect(orby::CharacterCount(orby::ReadIniValue(ini, section, key)) <= 254);
  Expect(orby::IsValidUtf8(orby::ReadIniValue(ini, section, key)));
  return 0;
}
