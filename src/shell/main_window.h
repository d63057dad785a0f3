// The main window: its menus start every command, and its pane shows the history of the run.
//
// A command of the File menu runs under a trap, and so does the opening of an input dialog: after an error in a step
// the user chooses whether to repeat the step, skip it or give up. The file of the command line is opened without a
// trap.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/program.h"
#include "dialogs/unsaved_study.h"
#include "files/save_command.h"
#include "shell/main_controls.h"
#include "shell/recovery.h"
#include "shell/run_end.h"
#include "shell/summary_pane.h"
#include "shell/update_check.h"

namespace orby {

class MainWindow : public MainControls {
 public:
  // Connects the program's history and its requests for input dialogs to this window until it is destroyed.
  // restart: what this run restores without a question, if an error ended the previous run.
  explicit MainWindow(Program& program, std::optional<Restart> restart = std::nullopt);
  ~MainWindow() override;

  // Opens the first project, once the window is on the screen. Offers the work that an earlier run lost. If there is
  // none or the user declines it, opens the file that was open last, and then the file of the command line. Throws the
  // RuntimeError of opening the file of the command line.
  //
  // A run with a `restart` restores that without a question, and asks only about work that another run lost.
  void OpenFirstFiles(const std::string& commandLineFile);

  // Shown inside the window. It is opened once the window has been painted.
  SummaryPane& Summary() { return summary_; }

  // Opens a file that was dropped on the window.
  void Dropped(const std::string& path);

  // Asks what to do with unsaved changes. Returns false if the window must stay open.
  bool MayClose() override;

  // Ends a run without closing the window: saves the unsaved changes for the next start, and stops the update check.
  RunEnd LeaveAtOnce();
  // Lets the next run take the recovery file before this run has ended. Call it after LeaveAtOnce.
  void Release() { recovery_.Release(); }

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  enum class Trap { None, Set };
  using Step = std::function<void()>;
  StepOutcome Run(Trap trap, const Step& step);

  void TieCommands();
  SummaryCommands CommandsOfSummary();
  void TieHistory();
  void ShowHistory(bool visible);
  void ShowSettings();
  // Shows the state of the project and its file.
  void RefreshCaption();
  void BringBack();

  // file_commands.cpp
  void FileCommand(FileItem item);
  void NewProject();
  void OpenProject();
  void OpenRecent(Integer item);
  void OpenFile(const std::string& path, Trap trap);
  void LoadProjFile(Trap trap);
  // Returns true if the project was saved.
  bool SaveProject(SaveCommand command);
  void UpdateRecentFiles();
  bool MayPrint();
  // Builds the report of the committed design. Returns true if the command continues.
  bool BuildPages();
  enum class PrinterChoice { AsBefore, ByUser };
  void PrintProject(PrinterChoice choice);
  void PreviewProject();
  void ShowProjectResults();
  void Exit();

  // input_commands.cpp
  void EditCommand(EditItem item);
  template <class Dialog>
  std::unique_ptr<Dialog> Opened();
  void EditDescription();
  // Opens the dialog on the project. `start` is called once it is loaded.
  template <class Dialog>
  void EditDesign(const std::function<void(Dialog&)>& start = {});
  // Opens the parameters at the field that decides a row of the summary's judgements.
  void ShowJudgement(int row);
  template <class Dialog>
  void KeepEdits(Dialog& dialog);

  void StudyCommand(StudyItem item);
  // Opens the project that the user chooses in the window, as the command Open does.
  void ShowDesigns();

  // utility_commands.cpp
  void UtilityCommand(UtilityItem item);
  void HelpCommand(HelpItem item);
  void ShowBackups();
  void EditSettings();
  void ShowUpdates();
  void ConvertFile();

  // Makes a dialog of this type and shows it until it is closed.
  template <class Dialog>
  void ShowNew() {
    Dialog dialog(program_);
    ShowForm(program_, dialog);
  }

  std::optional<Restart> restart_;
  Recovery recovery_;
  UpdateCheck updateCheck_;
  SummaryPane summary_;
  UnsavedStudy unsavedStudy_;
};

}  // namespace orby
