#include "dialogs/save_in_format.h"

#include <algorithm>

#include "base/paths.h"
#include "base/text.h"
#include "core/messages.h"

namespace orby {
namespace {

FileQuestion QuestionFor(const Program& program, const std::string& title, const std::string& baseName,
                         const std::vector<FileFormat>& formats) {
  FileQuestion question;
  question.title = title;
  question.defaultExtension = formats.front().extension;
  question.fileName = baseName + "." + question.defaultExtension;
  question.folder = WithoutSeparator(program.session.settings.DataPath);
  for (const FileFormat& format : formats) {
    const std::string pattern = "*." + std::string(format.extension);
    question.filters.push_back({std::string(format.name) + " (" + pattern + ")", pattern});
  }
  return question;
}

const FileFormat* FormatOf(const std::string& path, const std::vector<FileFormat>& formats) {
  const std::string_view name = NameAfterSeparator(path);
  const std::size_t point = name.rfind('.');
  if (point == std::string_view::npos) return nullptr;
  const auto format = std::ranges::find_if(
      formats, [&](const FileFormat& each) { return SameWithoutCase(name.substr(point + 1), each.extension); });
  return format == formats.end() ? nullptr : &*format;
}

// Returns the extensions in words: ".svg or .pdf".
std::string ExtensionsOf(const std::vector<FileFormat>& formats) {
  std::string text;
  for (std::size_t i = 0; i < formats.size(); ++i) {
    if (i > 0) text += i + 1 == formats.size() ? " or " : ", ";
    text.append(".").append(formats[i].extension);
  }
  return text;
}

}  // namespace

std::optional<ChosenFile> AskForFile(Program& program, const std::string& title, const std::string& baseName,
                                     const std::vector<FileFormat>& formats) {
  const FileQuestion question = QuestionFor(program, title, baseName, formats);
  while (true) {
    std::string path;
    const auto asked = RunTrapped(program, [&] { path = program.platform.fileDialogs.AskSaveName(question); });
    if (asked != StepOutcome::Done) return std::nullopt;
    if (const FileFormat* format = FormatOf(path, formats)) {
      return ChosenFile{.Path = path, .Format = static_cast<std::size_t>(format - formats.data())};
    }
    ShowMessage(program, "The name of the file must end in " + ExtensionsOf(formats) + ".");
  }
}

std::string SaveInFormat(Program& program, const std::string& title, const std::string& baseName,
                         const std::vector<FileFormat>& formats) {
  const auto chosen = AskForFile(program, title, baseName, formats);
  if (!chosen) return {};
  const FileFormat& format = formats[chosen->Format];
  const auto written = RunTrapped(program, [&] {
    if (format.write) return format.write(chosen->Path);
    program.platform.files.ReplaceFile(chosen->Path, format.bytes());
  });
  return written == StepOutcome::Done ? chosen->Path : std::string();
}

}  // namespace orby
