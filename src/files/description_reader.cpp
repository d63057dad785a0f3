#include "files/description_reader.h"

#include <string>

#include "base/arithmetic.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/description.h"

namespace orby {
namespace {

bool IsBlank(std::string_view line) { return Trim(line).empty(); }

void AppendLine(std::string& description, Integer& count, std::string_view line) {
  if (IsBlank(line)) return;
  if (description.size() + line.size() > LongestItem) throw RuntimeError(error_number::OutOfMemory);
  count = ToInteger(count + 1);
  description += line;
  description += LineEnd;
}

void LoadLegacyDescription(Project& project, ItemReader& reader) {
  constexpr int LegacyLines = 5;
  for (int i = 0; i < LegacyLines; ++i) {
    AppendLine(project.ProjectDescription, project.DescLines, reader.ReadLine());
  }
  project.DescLines = LinesOfEmptyDescription + LegacyLines;
}

}  // namespace

void ReadMarkedDescription(ItemReader& reader, std::string& description, Integer& count) {
  std::string line = reader.ReadLine();
  if (line == StartOfDescription) line = reader.ReadLine();
  while (line != EndOfDescription) {
    AppendLine(description, count, line);
    line = reader.ReadText();
  }
}

void LoadDescription(Project& project, ItemReader& reader, DescriptionMode mode) {
  constexpr Integer LastLegacyVersion = 49;
  project.DescLines = 1;
  if (mode == DescriptionMode::Legacy || project.FileVersion <= LastLegacyVersion) {
    LoadLegacyDescription(project, reader);
    return;
  }
  project.ProjectDescription.clear();
  ReadMarkedDescription(reader, project.ProjectDescription, project.DescLines);
}

}  // namespace orby
