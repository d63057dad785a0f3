#include "files/project_save.h"

#include <algorithm>
#include <utility>

#include "base/attempt.h"
#include "base/number_text.h"
#include "core/description.h"
#include "core/messages.h"
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

// Nothing when every field comes back.
std::optional<std::string> RemarkOnFields(const Program& program, const std::string& bytes,
                                          const std::optional<std::string>& backup) {
  const std::vector<std::string_view> fields = FieldsThatReadDifferently(program.project, bytes);
  if (fields.empty()) return std::nullopt;
  return program.project.CurrentFile +
         " is saved, but when it is opened these fields will not be what they are now: " + ListedNames(fields) +
         ". Look for commas and quotation marks in the bolt descriptions, the title and the description." +
         (backup ? " What the file held before is kept in " + *backup + "." : std::string());
}

SaveOutcome Write(Program& program) {
  SaveDescription(program);
  const std::string bytes = ProjectFileBytes(program.project);
  OverwrittenFile file(program, program.project.CurrentFile);
  SaveOutcome save = file.Overwrite(bytes);
  if (save.Failure) return save;
  if (auto remark = RemarkOnFields(program, bytes, file.Backup())) save.Remarks.push_back(std::move(*remark));
  return save;
}

}  // namespace

SaveOutcome TryFileSave(Program& program) {
  AddHistoryLine(program, "Saving: " + program.project.CurrentFile);
  program.platform.windows.SetWaitCursor(true);

  program.project.FileSaved = false;
  const std::string typed = program.project.ProjectDescription;
  const Integer lines = program.project.DescLines;
  SaveOutcome save;
  const auto failure = FailureOf([&] { save = Write(program); });
  if (failure) save.Failure = failure;
  if (save.Failure) {
    program.project.ProjectDescription = typed;
    program.project.DescLines = lines;
    return save;
  }

  program.project.FileSaved = true;
  program.platform.windows.SetWaitCursor(false);
  return save;
}

void FileSave(Program& program) {
  const SaveOutcome save = TryFileSave(program);
  if (save.Failure) throw RuntimeError(*save.Failure);
  ShowRemarks(program, save);
}

void ShowRemarks(Program& program, const SaveOutcome& save) {
  for (const std::string& remark : save.Remarks) ShowMessage(program, remark, BoxIcon::Exclamation);
}

}  // namespace orby
