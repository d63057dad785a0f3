#include "files/save_command.h"

#include <utility>

#include "base/paths.h"
#include "base/text.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "files/backups.h"
#include "files/project_save.h"

namespace orby {
namespace {

bool HasName(const Program& program) {
  return !program.project.CurrentFile.empty() && !SameWithoutCase(program.project.CurrentFile, UntitledName);
}

}  // namespace

FileQuestion ProjectFileQuestion(Program& program, const std::string& project) {
  const Settings& settings = program.session.settings;
  FileQuestion question;
  if (!Trim(project).empty()) question.fileName = FileNameFromPath(program, project, FileNameForm::Whole);
  question.folder = WithoutSeparator(settings.DataPath);
  const std::string pattern = "*." + settings.FileExtension;
  question.filters = {{std::string(ProgramTitle) + " (" + pattern + ")", pattern}, {"All Files (*.*)", "*"}};
  question.defaultExtension = settings.FileExtension;
  return question;
}

void AskFileName(Program& program, FileDialogMode mode) {
  const FileQuestion question = ProjectFileQuestion(program, program.project.CurrentFile);
  FileDialogs& dialogs = program.platform.fileDialogs;
  program.project.CurrentFile =
      mode == FileDialogMode::Open ? dialogs.AskOpenName(question) : dialogs.AskSaveName(question);
}

bool FileMenuSave(Program& program, SaveCommand command) {
  if (command == SaveCommand::SaveAs || !HasName(program)) {
    const auto outcome = RunTrapped(program, [&] { AskFileName(program, FileDialogMode::Save); });
    if (outcome != StepOutcome::Done) return false;
  }
  SaveOutcome save;
  RunTrapped(program, [&] {
    save = TryFileSave(program);
    if (save.Failure) throw RuntimeError(*save.Failure);
  });
  ShowRemarks(program, save);
  return !save.Failure;
}

bool MayLeavePreviousFile(Program& program) {
  if (program.project.FileSaved) return true;
  const BoxResult answer = ShowMessage(program, "Save changes to: " + program.project.PreviousFile + "?",
                                       {BoxButtons::YesNo, BoxIcon::Question, BoxDefault::SecondButton});
  if (answer != BoxResult::Yes) {
    UnsavedProject dropped = program.project;
    dropped.CurrentFile = program.project.PreviousFile;
    KeepChanges(program, dropped);
    return true;
  }
  std::string fileToOpen = std::exchange(program.project.CurrentFile, program.project.PreviousFile);
  const bool isSaved = FileMenuSave(program, SaveCommand::Save);
  program.project.CurrentFile = isSaved ? std::move(fileToOpen) : program.project.PreviousFile;
  return isSaved;
}

}  // namespace orby
