#include "dialogs/unit_calculator_window.h"

#include "base/attempt.h"
#include "base/number_text.h"
#include "core/dialog_helpers.h"
#include "core/messages.h"
#include "core/shared_texts.h"

namespace orby {

UnitCalculator::UnitCalculator(Program& program)
    : ProgramForm(program, "frmUnits", "Unit Conversions"),
      pages_{Page{UnitGroup::Length, txtLength, Option2, LengthResults},
             Page{UnitGroup::Load, txtLoad, Option5, LoadResults},
             Page{UnitGroup::LoadGradient, txtLoadGrad, Option4, LoadGradResults},
             Page{UnitGroup::Stress, txtStress, Option1, StressResults},
             Page{UnitGroup::StressGradient, txtStressGrad, Option3, StressGradResults}} {
  for (const Page& page : pages_) {
    page.input.Change = [&page] { Convert(page); };
    page.units.Click = [&page](Integer) { Convert(page); };
  }
  SSTab1.Click = [this] { RequestFocus(pages_[static_cast<std::size_t>(SSTab1.Tab())].input); };
}

UnitCalculator::Results UnitCalculator::InEach(const OptionArray& units,
                                               std::initializer_list<std::string_view> names) {
  Results results;
  for (const auto name : names) results.emplace_back(*this, name, TextKind::Output, units.Caption(results.size()));
  return results;
}

void UnitCalculator::OnOpen() {
  PrepareForm(program_, MessageModule::Calculator);
  AddHistoryLine(program_, "Loading Unit Conversion Form");
  for (const Page& page : pages_) SetArrayIndex(program_, page.units, 0);
  RequestFocus(txtLength);
}

void UnitCalculator::Convert(const Page& page) {
  const auto unit = static_cast<std::size_t>(GetArrayIndex(page.units));
  const auto value = OrNothing([&page] { return std::optional(page.input.Value()); });
  std::vector<std::optional<double>> results(page.results.size());
  if (value) results = ConvertUnits(page.group, *value, unit);
  for (std::size_t i = 0; i < results.size(); ++i) {
    page.results[i].SetText(results[i] ? NumberText(*results[i]) : std::string(NoResult));
  }
}

}  // namespace orby
