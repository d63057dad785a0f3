// The description dialog: title, description, units, strength basis and the choice of the Australian bolt table.
#pragma once

#include "controls/controls.h"
#include "core/program_form.h"
#include "files/texts_in_file.h"

namespace orby {

class DescriptionDialog : public ProgramForm {
 public:
  Frame fraTitle{*this, "fraTitle", "Title and description"};
  Label lblTitle{*this, "lblTitle", "Title"};
  TextBox Text1{*this, "Text1"};
  TextBox Text2{*this, "Text2"};
  Button cmdPutBack{*this, "cmdPutBack", "Put Back Title and Description",
                    [this] { PutBack(); }};  // shown only if the file has shifted them
  Frame fraUnits{*this, "fraUnits", "Current units"};
  OptionArray Option1{*this, "Option1", {{"feet, lbs"}, {"meters, kN"}}};
  Frame fraStrength{*this, "fraStrength", "Roof bolt steel strength"};
  OptionArray Option2{*this, "Option2", {{"Yield Strength (US)"}, {"Ultimate Strength (AUS)"}}};
  CheckBox Check1{*this, "Check1", "Use AUS Standard Table"};

  // commands
  Button Command2{*this, "Command2", "OK", [this] { Accept(); }};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button Command4{*this, "Command4", "Next Form"};
  Button Command3{*this, "Command3", "Help", [this] { ShowHelp(); }};

  explicit DescriptionDialog(Program& program);

  bool CommitOnClose = false;
  bool OpensParameters = false;  // set when the dialog closes: open the parameters dialog next

 protected:
  void OnOpen() override;
  void OnClose() override;

 private:
  void Accept();
  void PutBack();
  void ShowPutBack();
  void WarnOfLostLines();
  void Commit();

  ProjectTexts Typed() const { return {Text1.Text(), Text2.Text()}; }
};

}  // namespace orby
