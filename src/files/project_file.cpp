#include "files/project_file.h"

#include <utility>

#include "core/messages.h"
#include "files/backups.h"
#include "files/new_project.h"

namespace orby {

namespace {

// Bytes read first to recognise the format. Most projects are shorter.
constexpr std::size_t HeadBytes = std::size_t{64} * 1024;
constexpr std::size_t PieceBytes = std::size_t{1} << 20U;
// Bytes beyond this are not read. No project is nearly as long.
constexpr std::size_t LongestFile = std::size_t{256} * 1024 * 1024;

void ReadRest(InputFile& file, std::string& bytes) {
  while (bytes.size() < LongestFile) {
    const std::string piece = file.Read(PieceBytes);
    if (piece.empty()) return;
    bytes += piece;
  }
}

}  // namespace

bool FileOpen(Program& program) {
  program.platform.windows.SetWaitCursor(true);
  program.project.LastFile = {};
  FileNew(program, Keeping::Name);
  AddHistoryLine(program, "Opening: " + program.project.CurrentFile);

  const auto file = program.platform.files.OpenFile(program.project.CurrentFile);
  std::string bytes = file->Read(HeadBytes);
  const bool ok = CheckFileFormat(program, ItemReader(bytes));
  if (ok) {
    ReadRest(*file, bytes);
    ReadProject(program.project, ItemReader(bytes));
    // A later change of a longer file is not detected.
    if (bytes.size() <= LargestBackup) program.project.LastFile = {program.project.CurrentFile, std::move(bytes)};
    program.project.FileSaved = true;
    program.project.FileEmpty = false;
    program.project.UnitsLocked = true;
  }
  program.platform.windows.SetWaitCursor(false);
  return ok;
}

std::optional<std::string> ReadProjectBytes(FileSystem& files, const std::string& path) {
  // Nearly every project is shorter.
  constexpr std::size_t FirstPiece = std::size_t{4} * 1024;
  const auto file = files.OpenFile(path);
  std::string bytes = file->Read(FirstPiece);
  if (!FormatOf(ItemReader(bytes))) return std::nullopt;
  if (bytes.size() == FirstPiece) ReadRest(*file, bytes);
  return bytes;
}

}  // namespace orby
