// The unit calculator: a number in one unit, shown in all units of its kind. It touches no project.
#pragma once

#include <array>
#include <functional>
#include <span>

#include "controls/controls.h"
#include "core/program.h"
#include "engine/unit_calculator.h"

namespace orby {

class UnitCalculatorControls : public Form {
 public:
  UnitCalculatorControls() : Form("frmUnits", "Unit Conversions") {}

  static constexpr std::string_view InputCaption = "Value to convert";
  static constexpr std::string_view ResultsCaption = "Converted values";

  TabSet SSTab1{*this, "SSTab1", {"Length", "Load", "Load Grad", "Stress", "Stress Grad"}};

  // length
  Label lblLength{*this, "lblLength", InputCaption};
  TextBox txtLength{*this, "txtLength", TextKind::Number};
  Frame fraLengthUnits{*this, "fraLengthUnits", "Length units"};
  OptionArray Option2{*this, "Option2", {{"in"}, {"ft"}, {"cm"}, {"m"}}};
  Frame fraLengthResults{*this, "fraLengthResults", ResultsCaption};
  std::array<Label, 4> LengthLabels{
      Label{*this, "lblText7", Option2.Caption(0)}, Label{*this, "lblText8", Option2.Caption(1)},
      Label{*this, "lblText9", Option2.Caption(2)}, Label{*this, "lblText10", Option2.Caption(3)}};
  std::array<TextBox, 4> LengthResults{
      TextBox{*this, "Text7", TextKind::Output}, TextBox{*this, "Text8", TextKind::Output},
      TextBox{*this, "Text9", TextKind::Output}, TextBox{*this, "Text10", TextKind::Output}};

  // load
  Label lblLoad{*this, "lblLoad", InputCaption};
  TextBox txtLoad{*this, "txtLoad", TextKind::Number};
  Frame fraLoadUnits{*this, "fraLoadUnits", "Load units"};
  OptionArray Option5{*this, "Option5", {{"lbsF"}, {"tonsF (short)"}, {"kN"}, {"MN"}, {"kips"}}};
  Frame fraLoadResults{*this, "fraLoadResults", ResultsCaption};
  std::array<Label, 5> LoadLabels{
      Label{*this, "lblText21", Option5.Caption(0)}, Label{*this, "lblText22", Option5.Caption(1)},
      Label{*this, "lblText23", Option5.Caption(2)}, Label{*this, "lblText24", Option5.Caption(3)},
      Label{*this, "lblText25", Option5.Caption(4)}};
  std::array<TextBox, 5> LoadResults{
      TextBox{*this, "Text21", TextKind::Output}, TextBox{*this, "Text22", TextKind::Output},
      TextBox{*this, "Text23", TextKind::Output}, TextBox{*this, "Text24", TextKind::Output},
      TextBox{*this, "Text25", TextKind::Output}};

  // load gradient
  Label lblLoadGrad{*this, "lblLoadGrad", InputCaption};
  TextBox txtLoadGrad{*this, "txtLoadGrad", TextKind::Number};
  Frame fraLoadGradUnits{*this, "fraLoadGradUnits", "Load gradient units"};
  OptionArray Option4{*this, "Option4", {{"lbsF/in"}, {"lbsF/ft"}, {"kN/m"}, {"MN/m"}}};
  Frame fraLoadGradResults{*this, "fraLoadGradResults", ResultsCaption};
  std::array<Label, 4> LoadGradLabels{
      Label{*this, "lblText17", Option4.Caption(0)}, Label{*this, "lblText18", Option4.Caption(1)},
      Label{*this, "lblText19", Option4.Caption(2)}, Label{*this, "lblText20", Option4.Caption(3)}};
  std::array<TextBox, 4> LoadGradResults{
      TextBox{*this, "Text17", TextKind::Output}, TextBox{*this, "Text18", TextKind::Output},
      TextBox{*this, "Text19", TextKind::Output}, TextBox{*this, "Text20", TextKind::Output}};

  // stress
  Label lblStress{*this, "lblStress", InputCaption};
  TextBox txtStress{*this, "txtStress", TextKind::Number};
  Frame fraStressUnits{*this, "fraStressUnits", "Pressure/stress units"};
  OptionArray Option1{*this, "Option1", {{"psi"}, {"ksi"}, {"psf"}, {"Pa"}, {"MPa"}}};
  Frame fraStressResults{*this, "fraStressResults", ResultsCaption};
  std::array<Label, 5> StressLabels{
      Label{*this, "lblText2", Option1.Caption(0)}, Label{*this, "lblText3", Option1.Caption(1)},
      Label{*this, "lblText4", Option1.Caption(2)}, Label{*this, "lblText5", Option1.Caption(3)},
      Label{*this, "lblText6", Option1.Caption(4)}};
  std::array<TextBox, 5> StressResults{
      TextBox{*this, "Text2", TextKind::Output}, TextBox{*this, "Text3", TextKind::Output},
      TextBox{*this, "Text4", TextKind::Output}, TextBox{*this, "Text5", TextKind::Output},
      TextBox{*this, "Text6", TextKind::Output}};

  // stress gradient
  Label lblStressGrad{*this, "lblStressGrad", InputCaption};
  TextBox txtStressGrad{*this, "txtStressGrad", TextKind::Number};
  Frame fraStressGradUnits{*this, "fraStressGradUnits", "Pressure/stress gradient units"};
  OptionArray Option3{*this, "Option3", {{"psi/in"}, {"psi/ft"}, {"Pa/m"}, {"MPa/m"}}};
  Frame fraStressGradResults{*this, "fraStressGradResults", ResultsCaption};
  std::array<Label, 4> StressGradLabels{
      Label{*this, "lblText12", Option3.Caption(0)}, Label{*this, "lblText13", Option3.Caption(1)},
      Label{*this, "lblText14", Option3.Caption(2)}, Label{*this, "lblText15", Option3.Caption(3)}};
  std::array<TextBox, 4> StressGradResults{
      TextBox{*this, "Text12", TextKind::Output}, TextBox{*this, "Text13", TextKind::Output},
      TextBox{*this, "Text14", TextKind::Output}, TextBox{*this, "Text15", TextKind::Output}};

  // commands
  Button Command1{*this, "Command1", "Close"};
  Button Command3{*this, "Command3", "Help"};
};

class UnitCalculator : public UnitCalculatorControls {
 public:
  explicit UnitCalculator(Program& program);

 protected:
  void OnOpen() override;
  void OnClose() override {}

 private:
  // A tab: what is converted, and where the results go, in the order of the options.
  struct Page {
    UnitGroup group;
    TextBox& input;
    OptionArray& units;
    std::span<TextBox> results;
  };

  static void Convert(const Page& page);

  Program& program_;
  std::array<Page, 5> pages_;  // by tab
};

}  // namespace orby
