#include "dialogs/settings_dialog.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/arithmetic.h"
#include "base/number_limits.h"
#include "base/number_text.h"
#include "base/paths.h"
#include "base/text.h"
#include "config/settings_sections.h"
#include "core/dialog_helpers.h"
#include "core/file_helpers.h"
#include "core/messages.h"
#include "dialogs/font_dialog.h"

namespace orby {
namespace {

constexpr std::string_view ViewerExtension = "EXE";

// Of the history, in characters.
constexpr NumberLimits HistorySizes = Between(4096, 16384);

struct FlagField {
  CheckBox SettingsDialog::*box;
  Integer Settings::*flag;
};

constexpr std::array FlagFields{
    FlagField{&SettingsDialog::chkCopyExamples, &Settings::CopyExampleFiles},
    FlagField{&SettingsDialog::chkLoadLastInputFile, &Settings::LoadLastInputFile},
    FlagField{&SettingsDialog::chkUpdate, &Settings::RemindAnnualUpdates},
    FlagField{&SettingsDialog::chkMaxMenu, &Settings::MaxMainMenu},
    FlagField{&SettingsDialog::chkShowDiscl, &Settings::ShowDisclaim},
    FlagField{&SettingsDialog::chkEnableTB, &Settings::EnableMainMenuToolbar},
    FlagField{&SettingsDialog::chkKeepRecentFL, &Settings::KeepFileNames},
    FlagField{&SettingsDialog::chkShortNames, &Settings::ShortRecentFiles},
    FlagField{&SettingsDialog::chkDispHist, &Settings::DisplayHistoryWin},
};

struct BoundText {
  TextBox SettingsDialog::*box;
  std::string Settings::*text;
};

constexpr std::array BoundTexts{
    BoundText{&SettingsDialog::Text1, &Settings::FileExtension},
    BoundText{&SettingsDialog::Text2, &Settings::DataPath},
    BoundText{&SettingsDialog::Text4, &Settings::ExternalEditor},
};

bool IsLetterOrDigit(char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); }

// Returns the folder of the path, or an empty text for a bare name.
std::string FolderOf(const std::string& path) { return path.substr(0, path.size() - NameAfterSeparator(path).size()); }

// Sets the field to the answer of a system dialog. If the user cancels, the field stays unchanged.
template <class Ask>
void TakeAnswer(TextBox& field, const Ask& ask) {
  try {
    field.SetText(ask());
  } catch (const RuntimeError& error) {
    if (error.number() != error_number::Cancelled) throw;
  }
}

}  // namespace

SettingsDialog::SettingsDialog(Program& program, std::function<void()> modified)
    : ProgramForm(program, "frmSet", "Settings"), modified_(std::move(modified)) {
  Text3.Range = [] { return FieldRange{HistorySizes}; };
  TieButtons();
}

void SettingsDialog::TieButtons() {
  cmdSetDefault.Click = [this] { Text4.SetText(std::string(BuiltInViewer)); };
  cmdOK.Click = [this] {
    if (!Check()) return;
    accepted_ = true;
    Close();
  };
  cmdHelp.Click = [this] { ContextHelpHint(program_); };
}

void SettingsDialog::TieMessages() {
  chkCopyExamples.Click = [this] {
    ShowMessage(program_,
                "When this option is enabled, every time the program runs, it will try to copy the example files from "
                "the install directory to the " +
                    Text2.Text() +
                    " directory. The modified files will not be overridden, but missing files will be replaced. ");
  };
  chkShortNames.Click = [this] { ShowMessage(program_, "Option will take effect upon restarting this program"); };
}

void SettingsDialog::UntieMessages() {
  chkCopyExamples.Click = nullptr;
  chkShortNames.Click = nullptr;
}

void SettingsDialog::OnOpen() {
  PrepareForm(program_, MessageModule::Settings);
  AddHistoryLine(program_, "Editing Settings");
  accepted_ = false;
  UntieMessages();
  FillFields();
  TieMessages();
}

void SettingsDialog::FillFields() {
  const Settings& settings = program_.session.settings;
  SetArrayIndex(program_, optUnits, NumberOf(settings.UnitsDefault));
  for (const auto& [box, flag] : FlagFields) (this->*box).SetValue(settings.*flag);
  for (const auto& [box, text] : BoundTexts) (this->*box).SetText(settings.*text);
  Text3.SetText(NumberText(settings.MaxDisplaySize));
  historyFont_ = {settings.DisplayFontName, static_cast<int>(settings.DisplayFontSize), settings.DisplayFontBold != 0,
                  settings.DisplayFontItalic != 0};
}

void SettingsDialog::ChangePath() {
  TakeAnswer(Text2, [this] { return program_.platform.fileDialogs.AskFolder(cmdSetPath.Caption(), Text2.Text()); });
}

void SettingsDialog::SelectViewer() {
  const std::string programs = "*." + std::string(ViewerExtension);
  TakeAnswer(Text4, [&] {
    return program_.platform.fileDialogs.AskOpenName(
        {.title = "Select External Editor",
         .fileName = {},
         .folder = FolderOf(Text4.Text()),
         .filters = {{"All Files (*.*)", "*"}, {"Editor Programs (" + programs + ")", programs}},
         .defaultExtension = std::string(ViewerExtension)});
  });
}

void SettingsDialog::ChooseHistoryFont() {
  if (const auto chosen = AskFont(program_, historyFont_, program_.platform.fonts.ScreenFonts())) {
    historyFont_ = *chosen;
  }
}

bool SettingsDialog::Check() { return CheckPath() && CheckHistorySize() && CheckExtension(); }

bool SettingsDialog::CheckPath() {
  // An empty path means the root of the file system.
  Text2.SetText(WithSeparator(Text2.Text()));
  if (ValidPath(program_, Text2.Text(), Reporting::Silent)) return true;
  ShowMessage(program_, "Invalid Path for Data Files", BoxButtons::Ok, program_.windows.titles.ErrorTitle);
  RequestFocus(Text2);
  return false;
}

bool SettingsDialog::CheckHistorySize() {
  if (RangeCheck(program_, Text3.Text(), HistorySizes.least, HistorySizes.most, "Size of Command History Window"))
    return true;
  RequestFocus(Text3);
  return false;
}

bool SettingsDialog::CheckExtension() {
  if (std::ranges::all_of(UpperCase(Text1.Text()), IsLetterOrDigit)) return true;
  ShowMessage(program_, "Invalid character in file extension", BoxButtons::Ok,
              program_.windows.titles.InvalidCharacterTitle);
  RequestFocus(Text1);
  return false;
}

Settings SettingsDialog::Edited() const {
  Settings edited = program_.session.settings;
  edited.UnitsDefault = Chosen<UnitSystem>(optUnits);
  for (const auto& [box, flag] : FlagFields) edited.*flag = (this->*box).Value();
  for (const auto& [box, text] : BoundTexts) edited.*text = (this->*box).Text();
  edited.MaxDisplaySize = ToInteger(Text3.Value());
  edited.DisplayFontName = historyFont_.name;
  edited.DisplayFontSize = static_cast<Single>(historyFont_.size);
  edited.DisplayFontBold = historyFont_.bold ? -1 : 0;
  edited.DisplayFontItalic = historyFont_.italic ? -1 : 0;
  return edited;
}

void SettingsDialog::Commit() {
  program_.session.settings = Edited();
  AddHistoryLine(program_, "Settings Modified");
  if (modified_) modified_();
  WriteDefaults(program_, StoredSettings::Settings);
}

void SettingsDialog::OnClose() {
  if (accepted_ && Edited() != program_.session.settings) return Commit();
  AddHistoryLine(program_, "Settings Not Modified");
}

}  // namespace orby
