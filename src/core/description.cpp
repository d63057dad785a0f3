#include "core/description.h"

#include <string>

#include "base/arithmetic.h"
#include "base/attempt.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/file_helpers.h"

namespace orby {
namespace {

constexpr std::size_t LongestLine = 60;

// Writes the text to the temporary file, reads it back, and removes the file.
std::string ThroughTemporaryFile(Program& program, std::string_view text) {
  FileSystem& files = program.platform.files;
  const std::string& folder = program.session.folders.ProgramTemporary;
  // Before the user's folders are known, the system's folder for temporary files is used.
  const std::string path = (folder.empty() ? GetTempDirectory(program.platform.files) : folder) + "~tmpdesc.tmp";
  const auto remove = [&] { files.RemoveFile(path); };
  try {
    const auto file = files.CreateFile(path);
    file->Write(text);
    file->Close();
    std::string read = files.ReadFile(path);
    if (FileExists(program, path)) {
      remove();
    } else {
      Succeeds(remove);  // the search may have failed
    }
    return read;
  } catch (const RuntimeError&) {
    Succeeds(remove);
    throw;
  }
}

struct NormalDescription {
  std::string text;
  Integer lines = LinesOfEmptyDescription;
};

NormalDescription Normalized(std::string_view text) {
  NormalDescription result;
  while (!text.empty()) {
    const std::string_view line = TakeLine(text);
    if (Trim(line).empty()) continue;
    const bool isTooLong = CharacterCount(Trim(line)) > LongestLine;
    const WrappedLine wrapped = isTooLong ? WrapDescriptionLine(line) : WrappedLine{std::string(line)};
    result.lines = ToInteger(result.lines + wrapped.count);
    result.text += wrapped.text;
    result.text += LineEnd;
  }
  if (!result.text.empty()) result.text.resize(result.text.size() - LineEnd.size());
  return result;
}

}  // namespace

std::string NormalizedDescription(std::string_view text) { return Normalized(text).text; }

std::string TitleToShow(const UnsavedProject& project) {
  const std::string_view title = Trim(project.ProjectTitle);
  if (title != "0" && title != "1") return std::string(title);
  std::string_view description = project.ProjectDescription;
  const std::string_view first = Trim(TakeLine(description));
  return first == StartOfDescription ? std::string() : std::string(first);
}

void SaveDescription(Program& program) {
  program.project.DescLines = LinesOfEmptyDescription;
  if (program.project.ProjectDescription.empty()) return;
  try {
    NormalDescription normal = Normalized(ThroughTemporaryFile(program, program.project.ProjectDescription));
    program.project.ProjectDescription = std::move(normal.text);
    program.project.DescLines = normal.lines;
  } catch (const RuntimeError&) {
    // A description that could not be normalised stays as the user typed it.
  }
}

}  // namespace orby
