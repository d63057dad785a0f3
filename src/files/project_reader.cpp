#include "files/project_reader.h"

#include "core/messages.h"
#include "files/description_reader.h"
#include "files/project_lines.h"

namespace orby {
namespace {

void ReadField(Design& design, const ProjectLine& line, ItemReader& reader) {
  if (const auto* single = std::get_if<SingleField>(&line.ReadInto)) {
    single->In(design) = line.Form == LineForm::Rating ? reader.ReadInteger() : reader.ReadSingle();
  } else if (const auto* integer = std::get_if<IntegerField>(&line.ReadInto)) {
    integer->Set(design, reader.ReadInteger());
  } else {
    std::get<TextField>(line.ReadInto).In(design) =
        line.Form == LineForm::Whole ? reader.ReadLine() : reader.ReadText();
  }
}

void ReadHeader(Project& project, ItemReader& reader) {
  reader.ReadText();
  const Integer units = reader.ReadInteger();
  project.WorkParms.Units = units == NumberOf(Metric) ? Metric : English;
  if (project.FileVersion >= Version103) project.WorkParms.Basis = StrengthBasis{reader.ReadInteger()};
  project.ProjectTitle = reader.ReadLine();
}

}  // namespace

std::optional<Integer> FormatOf(ItemReader reader) {
  const std::string label = reader.ReadText();
  Integer version = Version105;
  for (Integer index = CurrentFileVersion; index >= 1; --index, --version) {
    if (label == FileVersionNames[static_cast<std::size_t>(index)]) return version;
  }
  return std::nullopt;
}

bool CheckFileFormat(Program& program, ItemReader reader) {
  const std::optional<Integer> version = FormatOf(reader);
  if (version) {
    program.project.FileVersion = *version;
  } else {
    ShowMessage(program, std::string(InvalidFormat));
  }
  return version.has_value();
}

void ReadProject(Project& project, ItemReader reader) {
  ReadHeader(project, reader);
  project.ProjectDescription.clear();
  LoadDescription(project, reader, DescriptionMode::Marked);
  for (const ProjectLine& line : ProjectLines) {
    if (project.FileVersion >= line.FirstVersion) ReadField(project.WorkParms, line, reader);
  }
}

}  // namespace orby
