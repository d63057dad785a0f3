// The settings dialog: the start of the program, its folders and files, and the main window.
#pragma once

#include <functional>

#include "base/font_choice.h"
#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class SettingsDialog : public ProgramForm {
 public:
  Frame fraUnits{*this, "fraUnits", "Units"};
  OptionArray optUnits{*this, "optUnits", {{"feet, psi, pcf"}, {"meters, MPa, kN/m3"}}};

  Frame fraFiles{*this, "fraFiles", "Data files"};
  Label lblExtension{*this, "lblExtension", "Default extension for data files:"};
  TextBox Text1{*this, "Text1"};
  Label lblPath{*this, "lblPath", "Path:"};
  TextBox Text2{*this, "Text2"};
  Button cmdSetPath{*this, "cmdSetPath", "Set / Change Path", [this] { ChangePath(); }};
  CheckBox chkCopyExamples{*this, "chkCopyExamples", "Copy example files", ClickKind::MayAsk};

  Frame fraViewer{*this, "fraViewer", "Viewer of text files"};
  Label lblViewer{*this, "lblViewer", "Viewer spec:"};
  TextBox Text4{*this, "Text4"};
  Button cmdSelect{*this, "cmdSelect", "&Select", [this] { SelectViewer(); }};
  Button cmdSetDefault{*this, "cmdSetDefault", "Reset Default"};

  Frame fraStart{*this, "fraStart", "Start-up"};
  CheckBox chkLoadLastInputFile{*this, "chkLoadLastInputFile", "Load last input file"};
  CheckBox chkUpdate{*this, "chkUpdate", "Check for updates"};
  CheckBox chkMaxMenu{*this, "chkMaxMenu", "Maximize main menu at start-up"};
  CheckBox chkShowDiscl{*this, "chkShowDiscl", "Show disclaimer at start-up"};

  Frame fraMenu{*this, "fraMenu", "Main menu"};
  CheckBox chkEnableTB{*this, "chkEnableTB", "Enable toolbar"};
  CheckBox chkKeepRecentFL{*this, "chkKeepRecentFL", "Keep recent filelist"};
  CheckBox chkShortNames{*this, "chkShortNames", "Short names in  file list", ClickKind::MayAsk};

  Frame fraHistory{*this, "fraHistory", "Command history"};
  CheckBox chkDispHist{*this, "chkDispHist", "Display command history window"};
  Label lblHistorySize{*this, "lblHistorySize", "Size of command history window (chars)"};
  TextBox Text3{*this, "Text3"};
  Button Command5{*this, "Command5", "&History Font", [this] { ChooseHistoryFont(); }};

  // commands
  Button cmdOK{*this, "cmdOK", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Cancel", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "Help"};

  // modified: called after the settings have changed, so that the main window can follow.
  SettingsDialog(Program& program, std::function<void()> modified);

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void TieButtons();
  // Connect and disconnect the messages that a click on a check box shows. Filling the fields shows none.
  void TieMessages();
  void UntieMessages();
  void FillFields();
  void ChangePath();
  void SelectViewer();
  void ChooseHistoryFont();
  bool Check();
  bool CheckPath();
  bool CheckHistorySize();
  bool CheckExtension();
  // Returns the settings that the fields show. Throws RuntimeError 6 if the history size is no Integer.
  Settings Edited() const;
  void Commit();

  std::function<void()> modified_;
  FontChoice historyFont_;
  bool accepted_ = false;
};

}  // namespace orby
