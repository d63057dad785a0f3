#include "core/file_helpers.h"

#include "base/paths.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/messages.h"

namespace orby {

bool FileExists(Program& program, const std::string& path) {
  try {
    return program.platform.files.Finds(path, false);
  } catch (const RuntimeError&) {
    return false;
  }
}

bool ValidPath(Program& program, const std::string& path, bool quiet) {
  try {
    return program.platform.files.Finds(path, true);
  } catch (const RuntimeError& error) {
    if (ErrorDecision(program, error, false) == error_decision::GiveUp) {
      if (!quiet) ShowMessage(program, "Invalid path: " + path, box_style::Ok, program.titles.ErrorTitle);
      return false;
    }
    ShowMessage(program, "Internal Error in ValidPath Function: Contact Developer", box_style::Ok,
                program.titles.RangeErrorTitle);
    return true;
  }
}

std::string FileNameFromPath(Program& program, const std::string& path, bool stripExtension) {
  if (EndsInSeparator(path)) {
    ShowMessage(program, "Error in filename: " + path, box_style::Ok, program.titles.ErrorTitle);
    return path;
  }
  const std::string_view name = NameBehindSeparator(path);
  return std::string(stripExtension ? WithoutExtension(name) : name);
}

bool CopyTextFile(Program& program, const std::string& source, const std::string& target) {
  if (!FileExists(program, source)) {
    ShowMessage(program, "Requested File not found: " + source, box_style::Ok, program.titles.ErrorTitle);
    return false;
  }
  try {
    const std::string text = program.platform.files.ReadFile(source);
    const auto copy = program.platform.files.CreateFile(target);
    for (std::string_view rest = text; !rest.empty();) {
      copy->Write(TakeLine(rest));
      copy->Write(LineEnd);
    }
    copy->Close();
    return true;
  } catch (const RuntimeError&) {
    ShowMessage(program, "File I/O problem with TMP file: ", box_style::Ok, program.titles.ErrorTitle);
    return false;
  }
}

std::string GetTempDirectory(Program& program) {
  return WithSeparator(LongPathName(program, program.platform.files.TemporaryFolder()));
}

std::string LongPathName(Program& program, const std::string& path) {
  const std::string name(WithoutSeparator(path));
  return program.platform.files.Finds(name, true) ? name : std::string();
}

std::string AppDirectory(Program& program) { return WithSeparator(Trim(program.platform.files.ProgramFolder())); }

}  // namespace orby
