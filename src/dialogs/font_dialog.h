// The font dialog: the font, size and style in which a text is shown.
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

  // present: the choice that the dialog starts from; its font stays chosen until one of those offered takes its place.
  FontDialog(Program& program, FontChoice present, std::vector<std::string> offered);

  std::optional<FontChoice> Accepted;  // once closed: what OK took over

 protected:
  void OnOpen() override;

 private:
  // The font as the fields stand.
  FontChoice Chosen() const;
  void ShowSample();
  void Accept();

  FontChoice present_;
  std::vector<std::string> offered_;
};

// Shows the dialog; nothing when it was cancelled. A font that the machine lacks is told to the user and not accepted.
std::optional<FontChoice> AskFont(Program& program, const FontChoice& present, const std::vector<std::string>& offered);

// The fonts that long texts read well in, sorted: those of the machine whose letters are equally wide, and those of
// "Arial", "Courier New", "System" and "Terminal" that it has.
std::vector<std::string> ReadableFonts(Program& program);

}  // namespace orby
