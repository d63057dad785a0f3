#include "files/project_writer.h"

#include <string_view>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "files/description_reader.h"
#include "files/project_lines.h"

namespace orby {
namespace {

void AppendLine(std::string& text, std::string_view line) {
  text += line;
  text += LineEnd;
}

std::string PaddedNumber(Integer value) {
  const std::string digits = NumberText(value);
  return (value < 0 ? "" : " ") + digits + " ";
}

std::string HeaderText(const Project& project) {
  std::string text;
  AppendLine(text, FileVersionNames[CurrentFileVersion]);
  AppendLine(text, PaddedNumber(NumberOf(project.WorkParms.Units)));
  AppendLine(text, PaddedNumber(NumberOf(project.WorkParms.Basis)));
  AppendLine(text, PaddedNumber(project.UseAUSStandardTable));
  AppendLine(text, project.ProjectTitle);
  return text;
}

std::string DescriptionText(const Project& project) {
  std::string text;
  AppendLine(text, StartOfDescription);
  AppendLine(text, project.ProjectDescription);
  AppendLine(text, EndOfDescription);
  return text;
}

std::string DataText(const Design& design) {
  constexpr std::size_t UsualSize = 2048;
  std::string text;
  text.reserve(UsualSize);
  for (const ProjectLine& line : ProjectLines) AppendLine(text, DataLineText(design, line));
  return text;
}

}  // namespace

std::string DataLineText(const Design& design, const ProjectLine& line) {
  if (const auto* text = std::get_if<TextField>(&line.Field)) return text->In(design);
  if (const auto* single = std::get_if<SingleField>(&line.Field)) return NormalizeDecimalText(single->In(design));
  const Integer value = std::get<IntegerField>(line.Field).Get(design);
  return line.Form == LineForm::Padded ? PaddedNumber(value) : NormalizeDecimalText(value);
}

std::string ProjectFileBytes(const Project& project) {
  return FileBytesFromText(HeaderText(project) + DescriptionText(project) + DataText(project.WorkParms));
}

}  // namespace orby
