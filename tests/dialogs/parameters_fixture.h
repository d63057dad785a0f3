// A parameters dialog on a new design, and short commands for the user's actions.
#pragma once

#include <gmock/gmock.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/number_text.h"
#include "design/catalogs.h"
#include "dialogs/parameters_dialog.h"
#include "files/new_project.h"
#include "support/recording_platform.h"

namespace orby::test {

// Sets the value of the named control: the text of a text box or a combo, the member of an option array, 0 or 1 of a
// check box, the row of a grid.
inline void SetControl(Form& form, std::string_view name, const std::string& value) {
  Control* control = form.Find(name);
  if (auto* box = dynamic_cast<TextBox*>(control)) return box->SetText(value);
  if (auto* combo = dynamic_cast<Combo*>(control)) return combo->SetText(value);
  const auto number = static_cast<int>(TextValue(value));
  if (auto* options = dynamic_cast<OptionArray*>(control)) return options->SetValue(number, true);
  if (auto* check = dynamic_cast<CheckBox*>(control)) return check->SetValue(static_cast<Integer>(number));
  if (auto* grid = dynamic_cast<Grid*>(control)) return grid->SetRow(number);
  throw std::logic_error("no such input: " + std::string(name));
}

// Sets several values in turn, such as "txtCMRR=45|chkPrimSupport=1".
inline void Edit(Form& form, std::string_view edits) {
  while (!edits.empty()) {
    const std::string_view one = edits.substr(0, edits.find('|'));
    const std::size_t sign = one.find('=');
    SetControl(form, one.substr(0, sign), std::string(one.substr(sign + 1)));
    edits.remove_prefix(one.size() == edits.size() ? one.size() : one.size() + 1);
  }
}

inline std::string TextOf(const Form& form, std::string_view name) {
  const Control* control = form.Find(name);
  if (const auto* box = dynamic_cast<const TextBox*>(control)) return box->Text();
  if (const auto* combo = dynamic_cast<const Combo*>(control)) return combo->Text();
  if (const auto* options = dynamic_cast<const OptionArray*>(control)) return NumberText(GetArrayIndex(*options));
  if (const auto* check = dynamic_cast<const CheckBox*>(control)) return NumberText(check->Value());
  if (const auto* grid = dynamic_cast<const Grid*>(control)) return NumberText(grid->Row());
  throw std::logic_error("nothing to read: " + std::string(name));
}

inline std::vector<std::string> ItemTexts(const Combo& combo) {
  std::vector<std::string> texts;
  for (const ComboItem& item : combo.Items()) texts.push_back(item.text);
  return texts;
}

inline std::vector<std::string> TextsOf(const OutputControls::Boxes& boxes) {
  std::vector<std::string> texts;
  for (const TextBox& box : boxes) texts.push_back(box.Text());
  return texts;
}

// Selects all support systems, so that every one is computed.
inline constexpr std::string_view AllSystems =
    "chkSecEntries_0=1|chkSecEntries_1=1|chkSecEntries_2=1|chkSecEntries_3=1|"
    "chkSecInter_0=1|chkSecInter_1=1|chkSecInter_2=1|chkSecInter_3=1";

// A new English design with the built-in catalogs. The dialog is not open yet.
struct AParametersDialog : testing::Test {
  AParametersDialog() {
    SetBuiltInCatalogs(program.session.catalogs);
    StartDesign(English);
  }

  // Begins a new design with these units and this basis of the strengths.
  void StartDesign(UnitSystem units, StrengthBasis ultimate = StrengthBasis::Yield) {
    program.session.settings.UnitsDefault = units;
    program.session.options.BoltGradeAsUltimateDefault = ultimate;
    FileNew(program, Keeping::Nothing);
    program.session.history = {};
  }

  void Do(std::string_view edits) { Edit(dialog, edits); }
  // Makes edits without any refresh.
  void DoQuietly(std::string_view edits) {
    dialog.HoldEvents = true;
    Edit(dialog, edits);
    dialog.HoldEvents = false;
  }
  std::string Text(std::string_view name) const { return TextOf(dialog, name); }
  const std::string& Caption(std::string_view name) const {
    return dynamic_cast<const Label&>(*dialog.Find(name)).Caption();
  }
  std::vector<Combo*> Combos() const {
    std::vector<Combo*> combos;
    for (Control* control : dialog.Controls()) {
      if (auto* combo = dynamic_cast<Combo*>(control)) combos.push_back(combo);
    }
    return combos;
  }

  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  ParametersDialog dialog{program};
};

}  // namespace orby::test
