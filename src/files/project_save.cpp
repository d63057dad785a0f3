#include "files/project_save.h"

#include <algorithm>

#include "base/number_text.h"
#include "core/description.h"
#include "core/messages.h"
#include "files/overwritten_file.h"
#include "files/project_writer.h"
#include "files/read_back.h"

namespace orby {
namespace {

// Returns "a, b, c and 12 more".
std::string ListedNames(const std::vector<std::string_view>& names) {
  constexpr std::size_t Listed = 3;
  std::string text;
  for (std::size_t at = 0; at < std::min(Listed, names.size()); ++at) {
    if (at > 0) text += ", ";
    text += names[at];
  }
  if (names.size() > Listed) text += " and " + NumberText(static_cast<double>(names.size() - Listed)) + " more";
  return text;
}

void AppendFieldsThatDiffer(const Program& program, const std::string& bytes, const std::optional<std::string>& backup,
                            SaveRemarks& remarks) {
  const std::vector<std::string_view> fields = FieldsThatReadDifferently(program.project, bytes);
  if (fields.empty()) return;
  remarks.push_back(
      program.project.CurrentFile +
      " is saved, but when it is opened these fields will not be what they are now: " + ListedNames(fields) +
      ". Look for commas and quotation marks in the bolt descriptions, the title and the description." +
      (backup ? " What the file held before is kept in " + *backup + "." : std::string()));
}

}  // namespace

void FileSave(Program& program, bool& ok, SaveRemarks& remarks) {
  ok = false;
  remarks.clear();
  AddHistoryLine(program, "Saving: " + program.project.CurrentFile);
  program.platform.windows.SetWaitCursor(true);

  program.project.FileSaved = false;
  const std::string typed = program.project.ProjectDescription;
  const Integer lines = program.project.DescLines;
  try {
    SaveDescription(program);
    const std::string bytes = ProjectFileBytes(program.project);
    OverwrittenFile file(program, program.project.CurrentFile);
    file.Overwrite(bytes, remarks);
    AppendFieldsThatDiffer(program, bytes, file.Backup(), remarks);
  } catch (const RuntimeError&) {
    program.project.ProjectDescription = typed;
    program.project.DescLines = lines;
    throw;
  }

  program.project.FileSaved = true;
  ok = true;
  program.platform.windows.SetWaitCursor(false);
}

void FileSave(Program& program, bool& ok) {
  SaveRemarks remarks;
  FileSave(program, ok, remarks);
  ShowRemarks(program, remarks);
}

void ShowRemarks(Program& program, const SaveRemarks& remarks) {
  for (const std::string& remark : remarks) ShowMessage(program, remark, BoxIcon::Exclamation);
}

}  // namespace orby
