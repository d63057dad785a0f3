// The main window: all work starts from its menus, and its pane shows the history of the run.
//
// A command of the File menu runs under a trap, step by step: a step that fails is told and done again, passed over or
// given up, as the user says. So does the opening of an input dialog. The file of the command line has no trap.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/program.h"
#include "shell/main_controls.h"
#include "shell/recovery.h"
#include "shell/run_end.h"
#include "shell/update_check.h"

namespace orby {

class MainWindow : public MainControls {
 public:
  // Takes over the history of the program and the asking for input dialogs, for as long as the window lives.
  // restart: what this run brings back by itself, where the run before it ended by an error.
  explicit MainWindow(Program& program, std::optional<Restart> restart = std::nullopt);
  ~MainWindow() override;

  // What a run begins with, once the window is on the screen: the work that an earlier run lost, and where there is
  // none or the user declines it, the file that was open last and the file of the command line. Throws the RuntimeError
  // of opening the last one. A run that was started again brings back what it was told without a question; it asks only
  // about work that yet another run lost.
  void OpenFirstFiles(const std::string& commandLineFile);

  // Opens a file that was dropped on the window.
  void Dropped(const std::string& path);

  // Asks what to do with unsaved changes; false when the window is to stay.
  bool MayClose() override;

  // For a run that ends without closing the window: keeps what is being edited for the next start, and nothing of what
  // has been fetched in part.
  RunEnd LeaveAtOnce();
  // After that: lets the next run have what is kept while this one has not ended yet.
  void Release() { recovery_.Release(); }

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  enum class Trap { None, Set };
  using Step = std::function<void()>;
  StepOutcome Run(Trap trap, const Step& step);

  void TieCommands();
  void TieHistory();
  void ShowHistory(bool visible);
  void ShowSettings();
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
  bool SaveProject(bool saveAs);
  void UpdateRecentFiles();
  bool MayPrint();
  // Builds the report of the committed design. Returns true if the command goes on.
  bool BuildPages();
  void PrintProject(bool choosesPrinter);
  void PreviewProject();
  void Exit();

  // input_commands.cpp
  void EditCommand(EditItem item);
  template <class Dialog>
  std::unique_ptr<Dialog> Opened();
  void EditDescription();
  template <class Dialog>
  void EditDesign();
  template <class Dialog>
  void KeepEdits(Dialog& dialog);

  // utility_commands.cpp
  void UtilityCommand(UtilityItem item);
  void HelpCommand(HelpItem item);
  void ShowBackups();
  void EditSettings();
  void ShowUpdates();
  void ConvertFile();

  // Makes a dialog of this kind and shows it until it is closed.
  template <class Dialog>
  void ShowNew() {
    Dialog dialog(program_);
    ShowForm(program_, dialog);
  }

  std::optional<Restart> restart_;
  Recovery recovery_;
  UpdateCheck updateCheck_;
};

}  // namespace orby
