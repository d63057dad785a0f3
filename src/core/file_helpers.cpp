#include "core/file_helpers.h"

#include <algorithm>

#include "base/paths.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "core/messages.h"

namespace orby {
namespace {

// Bytes read at a time, because a file may be larger than the memory.
constexpr std::size_t PieceBytes = std::size_t{1} << 20U;

// Writes a text that arrives in pieces. Every line ends with CR LF.
class LineCopier {
 public:
  explicit LineCopier(OutputFile& target) : target_(target) {}

  void Take(std::string_view piece) {
    while (!piece.empty()) {
      const std::size_t end = std::min(piece.find_first_of(LineEnd), piece.size());
      const bool isSecondOfPair = end == 0 && last_ == '\r' && piece.front() == '\n';
      if (end > 0) target_.Write(piece.substr(0, end));
      inLine_ = end == piece.size();
      if (!inLine_ && !isSecondOfPair) target_.Write(LineEnd);
      last_ = piece[inLine_ ? end - 1 : end];
      piece.remove_prefix(std::min(end + 1, piece.size()));
    }
  }

  // Ends a last line that has no line end.
  void End() {
    if (inLine_) target_.Write(LineEnd);
  }

 private:
  OutputFile& target_;
  char last_ = '\0';
  bool inLine_ = false;
};

}  // namespace

bool FileExists(Program& program, const std::string& path) {
  try {
    return program.platform.files.FindsFile(path);
  } catch (const RuntimeError&) {
    return false;
  }
}

bool ValidPath(Program& program, const std::string& path, Reporting reporting) {
  try {
    return program.platform.files.Finds(path);
  } catch (const RuntimeError& error) {
    if (ErrorDecision(program, error, Reporting::Silent) == Decision::GiveUp) {
      if (reporting == Reporting::Loud)
        ShowMessage(program, "Invalid path: " + path, BoxButtons::Ok, program.windows.titles.ErrorTitle);
      return false;
    }
    ShowMessage(program, "Internal Error in ValidPath Function: Contact Developer", BoxButtons::Ok,
                program.windows.titles.RangeErrorTitle);
    return true;
  }
}

std::string FileNameFromPath(Program& program, const std::string& path, FileNameForm form) {
  if (EndsInSeparator(path)) {
    ShowMessage(program, "Error in filename: " + path, BoxButtons::Ok, program.windows.titles.ErrorTitle);
    return path;
  }
  const std::string_view name = NameAfterSeparator(path);
  return std::string(form == FileNameForm::WithoutExtension ? WithoutExtension(name) : name);
}

bool CopyTextFile(Program& program, const std::string& source, const std::string& target) {
  if (!FileExists(program, source)) {
    ShowMessage(program, "Requested File not found: " + source, BoxButtons::Ok, program.windows.titles.ErrorTitle);
    return false;
  }
  try {
    if (source == target) throw RuntimeError(error_number::FileAlreadyOpen);
    const auto file = program.platform.files.OpenFile(source);
    const auto copy = program.platform.files.CreateFile(target);
    LineCopier copier(*copy);
    for (std::string piece; !(piece = file->Read(PieceBytes)).empty();) copier.Take(piece);
    copier.End();
    copy->Close();
    return true;
  } catch (const RuntimeError&) {
    ShowMessage(program, "File I/O problem with TMP file: ", BoxButtons::Ok, program.windows.titles.ErrorTitle);
    return false;
  }
}

std::string GetTempDirectory(FileSystem& files) { return WithSeparator(LongPathName(files, files.TemporaryFolder())); }

std::string LongPathName(FileSystem& files, const std::string& path) {
  const std::string name(WithoutSeparator(path));
  return files.Finds(name) ? name : std::string();
}

std::string AppDirectory(FileSystem& files) { return WithSeparator(Trim(files.ProgramFolder())); }

}  // namespace orby
