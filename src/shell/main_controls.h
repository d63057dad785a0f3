// The controls of the main window: its menus, its tool bar, the pane of the history and the version.
#pragma once

#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

// Entries of the menus by what they do.
namespace file_item {
inline constexpr Integer New = 0;
inline constexpr Integer Open = 1;
inline constexpr Integer Save = 2;
inline constexpr Integer SaveAs = 3;
inline constexpr Integer PrinterSetup = 5;
inline constexpr Integer Print = 6;
inline constexpr Integer Preview = 7;
inline constexpr Integer ViewSourceFiles = 9;
inline constexpr Integer Exit = 11;
}  // namespace file_item

namespace edit_item {
inline constexpr Integer Description = 0;
inline constexpr Integer Parameters = 1;
inline constexpr Integer Cost = 2;
}  // namespace edit_item

namespace util_item {
inline constexpr Integer Settings = 0;
inline constexpr Integer Options = 1;
inline constexpr Integer UnitConversions = 2;
inline constexpr Integer FileConversion = 3;
inline constexpr Integer ClearHistory = 5;
inline constexpr Integer ToggleHistory = 6;
inline constexpr Integer CopyHistory = 7;
inline constexpr Integer Backups = 9;
}  // namespace util_item

namespace help_item {
inline constexpr Integer Contents = 0;
inline constexpr Integer Index = 1;
inline constexpr Integer Manual = 2;
inline constexpr Integer ResourceFiles = 4;
inline constexpr Integer Disclaimer = 6;
inline constexpr Integer Updates = 8;
inline constexpr Integer About = 10;
}  // namespace help_item

namespace tool_button {
inline constexpr Integer Open = 1;
inline constexpr Integer Save = 2;
inline constexpr Integer Print = 3;
inline constexpr Integer Description = 4;
inline constexpr Integer Parameters = 5;
}  // namespace tool_button

class MainControls : public ProgramForm {
 public:
  explicit MainControls(Program& program) : ProgramForm(program, "frmMain", {}) {}

  static constexpr std::string_view CloseHistory = "Close History &Window";
  static constexpr std::string_view RestoreHistory = "Restore History &Window";

  Menu mnuFile{*this, "mnuFile", "&File"};
  ActionArray mnuFileItem{
      *this,
      "mnuFileItem",
      {"&New", "&Open...", "&Save ", "Save &As...", ActionArray::Separator, "Printer Set&up...", "&Print",
       "Print Pre&view...", ActionArray::Separator, "&View Source Files...", ActionArray::Separator, "E&xit"}};
  // The recent files behind a separator; the captions are only places until there are files to name.
  ActionArray mnuFileArray{*this, "mnuFileArray", {ActionArray::Separator, "1", "2", "3", "4"}};
  Menu mnuEdit{*this, "mnuEdit", "&Input"};
  ActionArray mnuEditItem{
      *this, "mnuEditItem", {"Project &Description...", "Project &Parameters...", "&Cost Parameters..."}};
  Menu mnuUtil{*this, "mnuUtil", "&Utilities"};
  ActionArray mnuUtilItem{
      *this,
      "mnuUtilItem",
      {"&Settings...", "&Options...", "&Unit Conversions...", "&File Conversion...", ActionArray::Separator,
       "&Clear History Window", CloseHistory, "Co&py History &Window", ActionArray::Separator, "&Backups..."}};
  Menu mnuHelp{*this, "mnuHelp", "&Help"};
  ActionArray mnuHelpItem{*this,
                          "mnuHelpItem",
                          {"Help &Contents...", "Help &Index...", "Help in &PDF format...", ActionArray::Separator,
                           "&Resource Files...", ActionArray::Separator, "&Disclaimer...", ActionArray::Separator,
                           "Program Updates...", ActionArray::Separator, "&About the Program..."}};
  ActionArray Toolbar1{*this, "Toolbar1", {"", "Open", "Save", "Print", "Project Description", "Project Parameters"}};
  TextBox txtMain{*this, "txtMain", TextKind::Output};
  Label lblver{*this, "lblver", {}};
};

}  // namespace orby
