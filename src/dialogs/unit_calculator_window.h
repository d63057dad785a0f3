// The unit calculator: converts a number to every unit of its kind. It does not use the project.
#pragma once

#include <array>
#include <deque>
#include <initializer_list>
#include <string_view>

#include "controls/controls.h"
#include "core/program_form.h"
#include "engine/unit_calculator.h"

namespace orby {

class UnitCalculator : public ProgramForm {
 public:
  static constexpr std::string_view InputCaption = "Value to convert";
  static constexpr std::string_view ResultsCaption = "Converted values";

  // One box for each unit of a kind, in the order of the options.
  using Results = std::deque<LabelledBox>;

  TabSet SSTab1{*this, "SSTab1", {"Length", "Load", "Load Grad", "Stress", "Stress Grad"}};

  // length
  LabelledBox txtLength{*this, "txtLength", TextKind::Number, InputCaption};
  Frame fraLengthUnits{*this, "fraLengthUnits", "Length units"};
  OptionArray Option2{*this, "Option2", {{"in"}, {"ft"}, {"cm"}, {"m"}}};
  Frame fraLengthResults{*this, "fraLengthResults", ResultsCaption};
  Results LengthResults = InEach(Option2, {"Text7", "Text8", "Text9", "Text10"});

  // load
  LabelledBox txtLoad{*this, "txtLoad", TextKind::Number, InputCaption};
  Frame fraLoadUnits{*this, "fraLoadUnits", "Load units"};
  OptionArray Option5{*this, "Option5", {{"lbsF"}, {"tonsF (short)"}, {"kN"}, {"MN"}, {"kips"}}};
  Frame fraLoadResults{*this, "fraLoadResults", ResultsCaption};
  Results LoadResults = InEach(Option5, {"Text21", "Text22", "Text23", "Text24", "Text25"});

  // load gradient
  LabelledBox txtLoadGrad{*this, "txtLoadGrad", TextKind::Number, InputCaption};
  Frame fraLoadGradUnits{*this, "fraLoadGradUnits", "Load gradient units"};
  OptionArray Option4{*this, "Option4", {{"lbsF/in"}, {"lbsF/ft"}, {"kN/m"}, {"MN/m"}}};
  Frame fraLoadGradResults{*this, "fraLoadGradResults", ResultsCaption};
  Results LoadGradResults = InEach(Option4, {"Text17", "Text18", "Text19", "Text20"});

  // stress
  LabelledBox txtStress{*this, "txtStress", TextKind::Number, InputCaption};
  Frame fraStressUnits{*this, "fraStressUnits", "Pressure/stress units"};
  OptionArray Option1{*this, "Option1", {{"psi"}, {"ksi"}, {"psf"}, {"Pa"}, {"MPa"}}};
  Frame fraStressResults{*this, "fraStressResults", ResultsCaption};
  Results StressResults = InEach(Option1, {"Text2", "Text3", "Text4", "Text5", "Text6"});

  // stress gradient
  LabelledBox txtStressGrad{*this, "txtStressGrad", TextKind::Number, InputCaption};
  Frame fraStressGradUnits{*this, "fraStressGradUnits", "Pressure/stress gradient units"};
  OptionArray Option3{*this, "Option3", {{"psi/in"}, {"psi/ft"}, {"Pa/m"}, {"MPa/m"}}};
  Frame fraStressGradResults{*this, "fraStressGradResults", ResultsCaption};
  Results StressGradResults = InEach(Option3, {"Text12", "Text13", "Text14", "Text15"});

  // commands
  Button Command1{*this, "Command1", "Close", [this] { Close(); }};
  Button Command3{*this, "Command3", "Help", [this] { ShowHelp(); }};

  explicit UnitCalculator(Program& program);

 protected:
  void OnOpen() override;

 private:
  // A tab: the input, its unit and the results, in the order of the options.
  struct Page {
    UnitGroup group;
    TextBox& input;
    OptionArray& units;
    Results& results;
  };

  Results InEach(const OptionArray& units, std::initializer_list<std::string_view> names);
  static void Convert(const Page& page);

  std::array<Page, 5> pages_;  // by tab
};

}  // namespace orby
