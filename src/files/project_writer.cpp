#include "files/project_writer.h"

#include <string_view>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "core/description.h"
#include "core/messages.h"
#include "files/description_reader.h"

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

std::string HeaderText(const Program& program) {
  std::string text;
  AppendLine(text, FileVersionNames[CurrentFileVersion]);
  AppendLine(text, PaddedNumber(program.Units));
  AppendLine(text, PaddedNumber(program.BoltStrengthMode));
  AppendLine(text, PaddedNumber(program.UseAUSStandardTable));
  AppendLine(text, program.ProjectTitle);
  return text;
}

std::string DescriptionText(const Program& program) {
  std::string text;
  AppendLine(text, StartOfDescription);
  AppendLine(text, program.ProjectDescription);
  AppendLine(text, EndOfDescription);
  return text;
}

std::string DataText(const ProjectRecord& record) {
  constexpr std::size_t UsualSize = 2048;
  std::string text;
  text.reserve(UsualSize);
  for (const ProjectLine& line : ProjectLines) AppendLine(text, DataLineText(record, line));
  return text;
}

// Whether a file holds the text as it stands. One character without a place in the code page makes UTF-8 of all lines.
bool IsHeldAsItStands(std::string_view text) { return FileBytesFromText(text) == text; }

}  // namespace

std::string DataLineText(const ProjectRecord& record, const ProjectLine& line) {
  if (const auto* text = std::get_if<TextField>(&line.Field)) return record.**text;
  if (const auto* single = std::get_if<SingleField>(&line.Field)) return NormalizeDecimalText(record.**single);
  const Integer value = record.*std::get<IntegerField>(line.Field);
  return line.Form == LineForm::Padded ? PaddedNumber(value) : NormalizeDecimalText(value);
}

std::string ProjectFileBytes(const Program& program) {
  return FileBytesFromText(HeaderText(program) + DescriptionText(program) + DataText(program.WorkParms));
}

void FileSave(Program& program, bool& ok) {
  ok = false;
  AddHistoryLine(program, "Saving: " + program.CurrentFile);
  program.platform.windows.SetWaitCursor(true);

  const std::string header = HeaderText(program);
  const std::string data = DataText(program.WorkParms);
  const bool asItStands = IsHeldAsItStands(header + program.ProjectDescription + data);
  const auto encoded = [asItStands](const std::string& text) { return asItStands ? text : FileBytesFromText(text); };

  const auto file = program.platform.files.CreateFile(program.CurrentFile);
  file->Write(encoded(header));
  SaveDescription(program);
  file->Write(encoded(DescriptionText(program)));
  file->Write(encoded(data));
  file->Close();

  program.FileSaved = true;
  ok = true;
  program.platform.windows.SetWaitCursor(false);
}

}  // namespace orby
