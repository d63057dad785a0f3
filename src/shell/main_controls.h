// The controls of the main window: menus, tool bar, history pane and version label.
#pragma once

#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

// Menu entries. Each number is the entry's index in its menu, where separators count too.
enum class FileItem : Integer {
  New = 0,
  Open = 1,
  Save = 2,
  SaveAs = 3,
  PrinterSetup = 5,
  Print = 6,
  Preview = 7,
  ViewSourceFiles = 9,
  Exit = 11,
};

enum class EditItem : Integer { Description, Parameters, Cost };

enum class UtilityItem : Integer {
  Settings = 0,
  Options = 1,
  UnitConversions = 2,
  FileConversion = 3,
  ClearHistory = 5,
  ToggleHistory = 6,
  CopyHistory = 7,
  Backups = 9,
};

enum class StudyItem : Integer {
  WhatWouldHold,
  CalculationSheet,
  SignedReport,
  WhatMatters,
  HowSure,
  DesignsInFolder,
  SideBySide,
  DesignChart,
};

enum class HelpItem : Integer {
  Contents = 0,
  Index = 1,
  Manual = 2,
  ResourceFiles = 4,
  Disclaimer = 6,
  Updates = 8,
  About = 10,
};

enum class ToolButton : Integer { Open = 1, Save, Print, Description, Parameters };

// A list of entries with an enum for its indices.
template <class Choice>
class Actions : public ActionArray {
 public:
  using ActionArray::ActionArray;
  using ActionArray::Caption;
  using ActionArray::ClickItem;
  using ActionArray::SetCaption;
  const std::string& Caption(Choice item) const { return Caption(NumberOf(item)); }
  void SetCaption(Choice item, std::string_view caption) { SetCaption(NumberOf(item), caption); }
  void ClickItem(Choice item) const { ClickItem(NumberOf(item)); }
};

class MainControls : public ProgramForm {
 public:
  explicit MainControls(Program& program) : ProgramForm(program, "frmMain", {}) {}

  static constexpr std::string_view CloseHistory = "Close History &Window";
  static constexpr std::string_view RestoreHistory = "Restore History &Window";

  Menu mnuFile{*this, "mnuFile", "&File"};
  Actions<FileItem> mnuFileItem{
      *this,
      "mnuFileItem",
      {"&New", "&Open...", "&Save ", "Save &As...", ActionArray::Separator, "Printer Set&up...", "&Print",
       "Print Pre&view...", ActionArray::Separator, "&View Source Files...", ActionArray::Separator, "E&xit"}};
  // The separator and the recent files. The digits are placeholders for captions.
  ActionArray mnuFileArray{*this, "mnuFileArray", {ActionArray::Separator, "1", "2", "3", "4"}};
  Menu mnuEdit{*this, "mnuEdit", "&Input"};
  Actions<EditItem> mnuEditItem{
      *this, "mnuEditItem", {"Project &Description...", "Project &Parameters...", "&Cost Parameters..."}};
  Menu mnuUtil{*this, "mnuUtil", "&Utilities"};
  Actions<UtilityItem> mnuUtilItem{
      *this,
      "mnuUtilItem",
      {"&Settings...", "&Options...", "&Unit Conversions...", "&File Conversion...", ActionArray::Separator,
       "&Clear History Window", CloseHistory, "Co&py History &Window", ActionArray::Separator, "&Backups..."}};
  Menu mnuStudy{*this, "mnuStudy", "&Study"};
  Actions<StudyItem> mnuStudyItem{
      *this,
      "mnuStudyItem",
      {"&What Would Hold...", "&Calculation Sheet...", "&Signed Report...", "What &Matters...", "&How Sure...",
       "Designs in a &Folder...", "Side &by Side...", "&Design Chart..."}};
  Menu mnuHelp{*this, "mnuHelp", "&Help"};
  Actions<HelpItem> mnuHelpItem{
      *this,
      "mnuHelpItem",
      {"Help &Contents...", "Help &Index...", "Help in &PDF format...", ActionArray::Separator, "&Resource Files...",
       ActionArray::Separator, "&Disclaimer...", ActionArray::Separator, "Program Updates...", ActionArray::Separator,
       "&About the Program..."}};
  Actions<ToolButton> Toolbar1{
      *this, "Toolbar1", {"", "Open", "Save", "Print", "Project Description", "Project Parameters"}};
  TextBox txtMain{*this, "txtMain", TextKind::Output};
  Label lblver{*this, "lblver", {}};
};

}  // namespace orby
