// The controls of the window "What Would Hold".
#pragma once

#include <array>

#include "controls/chart.h"
#include "controls/controls.h"
#include "controls/grid.h"
#include "core/program_form.h"

namespace orby {

// The least and the greatest value of a lever in a search.
struct LimitControls {
  Form& Dialog;
  std::array<std::string_view, 2> Names;
  std::array<std::string_view, 2> Captions;
  UnitSuffix Suffix;

  LabelledBox From{Dialog, Names[0], TextKind::Number, Captions[0], Suffix};
  LabelledBox To{Dialog, Names[1], TextKind::Number, Captions[1], Suffix};

  std::array<LabelledBox*, 2> Both() { return {&From, &To}; }
};

struct PatternControls {
  Form& Dialog;

  Frame fraLimits{Dialog, "fraLimits", "Limits of the search"};
  LimitControls Length{
      Dialog, {"txtLengthFrom", "txtLengthTo"}, {"Shortest length", "Longest length"}, UnitSuffix::Length};
  LimitControls Number{Dialog, {"txtNumberFrom", "txtNumberTo"}, {"Least number", "Greatest number"}, UnitSuffix::None};
  LimitControls Spacing{
      Dialog, {"txtSpacingFrom", "txtSpacingTo"}, {"Least spacing", "Greatest spacing"}, UnitSuffix::Length};
  Button cmdSearch{Dialog, "cmdSearch", "&Search"};
  Button cmdStop{Dialog, "cmdStop", "Stop"};
  ProgressBar prgSearch{Dialog, "prgSearch"};
  Label lblFound{Dialog, "lblFound", {}};
  Grid grdPatterns{Dialog, "grdPatterns"};
  Chart chtPatterns{Dialog, "chtPatterns"};
};

class WouldHoldControls : public ProgramForm {
 public:
  explicit WouldHoldControls(Program& program) : ProgramForm(program, "frmWouldHold", "What Would Hold") {}

  Label lblSupport{*this, "lblSupport", "Support"};
  Combo cmbSupport{*this, "cmbSupport", ComboKind::ListOnly};
  Label lblPresent{*this, "lblPresent", {}};
  TabSet tabStudy{*this, "tabStudy", {"Least Changes", "Cheapest Patterns", "Prices"}};

  // least changes
  Grid grdChanges{*this, "grdChanges"};

  // cheapest patterns
  PatternControls Patterns{*this};

  // prices
  LabelledBox txtLengths{*this, "txtLengths", "Stocked Bolt Lengths", UnitSuffix::Length};
  Label lblLengthsRead{*this, "lblLengthsRead", {}};
  Frame fraBoltPrices{*this, "fraBoltPrices", "Price of one roof bolt ($)"};
  Grid grdBoltPrices{*this, "grdBoltPrices"};
  TextBox txtBoltPrice{*this, "txtBoltPrice", TextKind::Number};
  Frame fraOtherPrices{*this, "fraOtherPrices", "Price of one piece of secondary support ($)"};
  Grid grdOtherPrices{*this, "grdOtherPrices"};
  TextBox txtOtherPrice{*this, "txtOtherPrice", TextKind::Number};

  // commands
  Button cmdApply{*this, "cmdApply", "&Apply"};
  Button cmdClose{*this, "cmdClose", "Close", [this] { Close(); }};
  Button cmdHelp{*this, "cmdHelp", "Help", [this] { ShowHelp(); }};
};

// The pages, by their tabs.
namespace study_page {
inline constexpr int Changes = 0;
inline constexpr int Patterns = 1;
inline constexpr int Prices = 2;
}  // namespace study_page

}  // namespace orby
