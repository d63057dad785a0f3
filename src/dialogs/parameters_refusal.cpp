// The page of each control, and the refusal of a number that the project cannot hold.
#include "core/field_hint.h"
#include "core/messages.h"
#include "dialogs/fault_texts.h"
#include "dialogs/parameters_dialog.h"

namespace orby {
namespace {

// The first control of a tab page, in the order of the controls.
struct PageStart {
  std::string_view control;
  int outerTab;
  int innerTab = 0;
  TabSet ParametersControls::*inner = nullptr;
};

using C = ParametersControls;

constexpr PageStart Pages[] = {
    {"fraGeology", 0},
    {"fraPrimarySupport", 1},
    {"fraRockLoadEntry", 2},
    {"lblCableLengthSecEntry", 2, 0, &C::SSTab2},
    {"lblTrussLengthMemberSecEntry", 2, 1, &C::SSTab2},
    {"lblBoltLengthSecEntry", 2, 2, &C::SSTab2},
    {"fraSupportSelectionEntry", 2, 3, &C::SSTab2},
    {"lblRockLoadEntry1", 2},
    {"fraRockLoadInter", 3},
    {"lblCableLengthSecInter", 3, 0, &C::SSTab3},
    {"lblTrussLengthMemberSecInter", 3, 1, &C::SSTab3},
    {"lblBoltLengthSecInter", 3, 2, &C::SSTab3},
    {"fraSupportSelectionInter", 3, 3, &C::SSTab3},
    {"lblRockLoadInter1", 3},
};

std::string ShownText(const Control& control) {
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->Text();
  if (const auto* combo = dynamic_cast<const Combo*>(&control)) return combo->Text();
  return {};
}

}  // namespace

void ParametersDialog::ReportRefused(const Control& field) {
  ShowMessage(program_, fault_text::TooLarge(FieldCaption(field), ShownText(field)), BoxIcon::Critical,
              program_.windows.titles.RangeErrorTitle);
  ShowControl(*Find(field.Name()));
}

void ParametersDialog::ShowControl(Control& control) {
  const PageStart* page = Pages;
  for (const Control* one : Controls()) {
    for (const PageStart& start : Pages) {
      if (start.control == one->Name()) page = &start;
    }
    if (one == &control) break;
  }
  SSTab1.SetTab(page->outerTab);
  if (page->inner != nullptr) (this->*page->inner).SetTab(page->innerTab);
  RequestFocus(control);
}

}  // namespace orby
