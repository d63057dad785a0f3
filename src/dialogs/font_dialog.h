// The font dialog: font, size and style of a text.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/font_choice.h"
#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class FontDialog : public ProgramForm {
 public:
  Label lblFont{*this, "lblFont", "Font"};
  List lstFont{*this, "lstFont", ListKind::Choices};
  LabelledBox txtSize{*this, "txtSize", TextKind::Number, "Size"};  // points
  CheckBox chkBold{*this, "chkBold", "Bold"};
  CheckBox chkItalic{*this, "chkItalic", "Italic"};
  LabelledBox txtSample{*this, "txtSample", TextKind::Output, "Sample"};

  // commands
  Button cmdOK{*this, "cmdOK", "OK", [this] { Accept(); }};
  Button cmdCancel{*this, "cmdCancel", "Cancel", [this] { Close(); }};

  // present: the initial choice. Its font stays chosen until the user picks an offered one.
  FontDialog(Program& program, FontChoice present, std::vector<std::string> offered);

  std::optional<FontChoice> Accepted;  // set when the dialog closes by OK

 protected:
  void OnOpen() override;

 private:
  // Returns the choice that the fields show.
  FontChoice Chosen() const;
  void ShowSample();
  void Accept();

  FontChoice present_;
  std::vector<std::string> offered_;
};

// Shows the dialog and returns the choice, or nothing if it was cancelled. A font that the machine lacks is refused
// with a message.
std::optional<FontChoice> AskFont(Program& program, const FontChoice& present, const std::vector<std::string>& offered);

// Returns the fonts for long texts, sorted: the fixed-pitch fonts of the machine, and "Arial", "Courier New", "System"
// and "Terminal" if installed.
std::vector<std::string> ReadableFonts(Program& program);

}  // namespace orby
