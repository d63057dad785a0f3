// The graph options: titles, grid lines, style, legend and symbol size of the shown curve.
#pragma once

#include <array>

#include "controls/chart.h"
#include "controls/controls.h"
#include "core/program_form.h"

namespace orby {

class GraphOptionsDialog : public ProgramForm {
 public:
  Frame Frame1{*this, "Frame1", "Options"};
  OptionArray Option1{*this, "Option1", {{"Set default format parameters"}, {"Set format parameters to last used"}}};

  Frame Frame2{*this, "Frame2", "Basic Formatting Parameters"};
  Label lblGraphTitle{*this, "lblGraphTitle", "Graph Title"};
  TextBox Text1{*this, "Text1"};
  Label lblXAxisTitle{*this, "lblXAxisTitle", "X-axis Title"};
  std::array<TextBox, 10> Text2{TextBox{*this, "Text2_0"}, TextBox{*this, "Text2_1"}, TextBox{*this, "Text2_2"},
                                TextBox{*this, "Text2_3"}, TextBox{*this, "Text2_4"}, TextBox{*this, "Text2_5"},
                                TextBox{*this, "Text2_6"}, TextBox{*this, "Text2_7"}, TextBox{*this, "Text2_8"},
                                TextBox{*this, "Text2_9"}};  // by curve
  Label lblYAxisTitle{*this, "lblYAxisTitle", "Y-axis Title"};
  std::array<TextBox, 3> Text3{TextBox{*this, "Text3_0"}, TextBox{*this, "Text3_1"},
                               TextBox{*this, "Text3_2"}};  // by dependent variable
  Label lblGridStyle{*this, "lblGridStyle", "Grid Style"};
  Combo Combo1{*this, "Combo1", ComboKind::ListOnly};
  Label lblGraphStyle{*this, "lblGraphStyle", "Graph Style"};
  Combo Combo2{*this, "Combo2", ComboKind::ListOnly};
  CheckBox Check1{*this, "Check1", "Curve Legend"};
  Label lblSymbolSize{*this, "lblSymbolSize", "Symbol Size"};
  Slider HScroll1{*this, "HScroll1", 3, 20};
  TextBox txtSS{*this, "txtSS", TextKind::Output};

  // commands
  Button Command2{*this, "Command2", "OK", [this] { Accept(); }};
  Button Command1{*this, "Command1", "Cancel", [this] { Close(); }};
  Button Command3{*this, "Command3", "Help", [this] { ShowHelp(); }};

  // The chart shows the curve `program.windows.curve.CurveIndex`. OK applies the chosen format to it.
  GraphOptionsDialog(Program& program, Chart& chart);

 protected:
  void OnOpen() override;

 private:
  void FillFields();
  void ChooseFormat(FormatParameters format);
  void EnableFields(bool enabled);
  void EnableSymbolSize();
  // Returns the selected item. A text that is no item is refused, and the last valid one selected again.
  int ValidItem(Combo& list, int lastValid);
  void ReadFields() const;
  void Accept();

  Chart& chart_;
  int lastGridItem_ = 0;
  int lastStyleItem_ = 0;
};

}  // namespace orby
