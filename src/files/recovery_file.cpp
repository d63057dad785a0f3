#include "files/recovery_file.h"

#include <array>
#include <utility>
#include <variant>

#include "base/arithmetic.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "files/escaped_line.h"
#include "files/project_lines.h"
#include "files/project_writer.h"

namespace orby {
namespace {

constexpr std::string_view RecoveryLabel = "ORBY_RECOVERY_1";

using HeaderField = std::variant<std::string UnsavedProject::*, Integer UnsavedProject::*, bool UnsavedProject::*,
                                 UnitSystem Design::*, StrengthBasis Design::*>;

struct HeaderLine {
  std::string_view Key;
  HeaderField Field;
};

constexpr std::array HeaderLines{HeaderLine{"CurrentFile", &UnsavedProject::CurrentFile},
                                 HeaderLine{"Units", &Design::Units},
                                 HeaderLine{"BoltStrengthMode", &Design::Basis},
                                 HeaderLine{"UseAUSStandardTable", &UnsavedProject::UseAUSStandardTable},
                                 HeaderLine{"ProjectTitle", &UnsavedProject::ProjectTitle},
                                 HeaderLine{"ProjectDescription", &UnsavedProject::ProjectDescription},
                                 HeaderLine{"FileEmpty", &UnsavedProject::FileEmpty},
                                 HeaderLine{"UnitsLocked", &UnsavedProject::UnitsLocked}};

template <class Project, class Value>
auto& In(Project& project, Value UnsavedProject::*field) {
  return project.*field;
}
template <class Project, class Value>
auto& In(Project& project, Value Design::*field) {
  return project.WorkParms.*field;
}

std::string TextOf(const std::string& value) { return Escaped(value); }
template <class Number>
std::string TextOf(Number value) {
  return NumberText(NumberOf(value));
}

void Read(std::string& value, std::string_view text) { value = Unescaped(text); }
void Read(bool& value, std::string_view text) { value = text == "1"; }
template <class Number>
void Read(Number& value, std::string_view text) {
  value = Number{ToInteger(TextValue(text))};
}

void ReadData(Design& design, const ProjectLine& line, std::string_view text) {
  if (const auto* field = std::get_if<TextField>(&line.Field)) {
    field->In(design) = Unescaped(text);
  } else if (const auto* single = std::get_if<SingleField>(&line.Field)) {
    const double value = TextValue(text);
    single->In(design) = line.Form == LineForm::Rating ? ToInteger(value) : ToSingle(value);
  } else {
    std::get<IntegerField>(line.Field).Set(design, ToInteger(TextValue(text)));
  }
}

// Returns true if all texts after the path are UTF-8. A path may have any bytes.
bool HasValidTexts(std::string_view bytes) {
  TakeLine(bytes);
  TakeLine(bytes);
  return IsValidUtf8(bytes);
}

UnsavedProject ReadLines(std::string_view rest) {
  UnsavedProject project;
  TakeLine(rest);
  for (const HeaderLine& header : HeaderLines) {
    const std::string_view line = TakeLine(rest);
    const std::string_view value = line.substr(line.find('=') + 1);
    std::visit([&](auto field) { Read(In(project, field), value); }, header.Field);
  }
  for (const ProjectLine& line : ProjectLines) ReadData(project.WorkParms, line, TakeLine(rest));
  return project;
}

}  // namespace

UnsavedProject EditedProject(const Project& project, Design design) {
  UnsavedProject edited = project;
  edited.FileEmpty = false;
  edited.UnitsLocked = true;
  edited.WorkParms = std::move(design);
  return edited;
}

bool IsRecoveryFile(std::string_view bytes) { return bytes.starts_with(RecoveryLabel); }

std::string RecoveryBytes(const UnsavedProject& project) {
  std::string text(RecoveryLabel);
  text += LineEnd;
  for (const HeaderLine& header : HeaderLines) {
    text += header.Key;
    text += '=';
    text += std::visit([&](auto field) { return TextOf(In(project, field)); }, header.Field);
    text += LineEnd;
  }
  for (const ProjectLine& line : ProjectLines) {
    text += Escaped(DataLineText(project.WorkParms, line));
    text += LineEnd;
  }
  return text;
}

std::optional<UnsavedProject> ReadRecovery(std::string_view bytes) {
  try {
    UnsavedProject project = ReadLines(bytes);
    const bool isSystem = project.WorkParms.Units == English || project.WorkParms.Units == Metric;
    if (isSystem && HasValidTexts(bytes) && RecoveryBytes(project) == bytes) return project;
  } catch (const RuntimeError&) {
    // The program never writes a number outside the range of its type.
  }
  return std::nullopt;
}

std::string ProjectNamedIn(std::string_view bytes) {
  const std::string key = std::string(HeaderLines.front().Key) + "=";
  TakeLine(bytes);
  const std::string_view line = TakeLine(bytes);
  return line.starts_with(key) ? Unescaped(line.substr(key.size())) : std::string();
}

void RestoreProject(Project& project, const UnsavedProject& unsaved) {
  static_cast<UnsavedProject&>(project) = unsaved;
  project.FileSaved = false;
}

}  // namespace orby
