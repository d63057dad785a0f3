// The page of "How Sure" with the inputs that scatter, their distributions and their correlations.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "dialogs/how_sure_controls.h"
#include "files/study_json.h"

namespace orby {

class StudyInputsPage {
 public:
  // All of them must outlive this object. `study` is the one that the page edits.
  StudyInputsPage(Program& program, HowSureControls& controls, const Design& design, Study& study);

  // Shows the inputs of the study.
  void Show();

  std::function<void()> Changed;  // the inputs have changed

 private:
  struct Fault {
    TextBox* Field;
    std::string Text;
  };

  void ShowInputs(std::size_t selected);
  void ShowRanks();
  // Shows the selected input in the fields.
  void TakeRow();
  // Shows the labels of the parameters of the chosen distribution, and begins with the number of the design.
  void TakeLaw();
  void ShowFields(const Distribution& law);
  void BeginWithDesign();
  void ShowRead();

  std::optional<std::size_t> SelectedRow() const;
  // Require that the lists have a selection.
  DistributionLaw ChosenLaw() const;
  const VariableInput& ChosenInput() const;
  std::optional<DistributionLaw> TypedLaw(Fault& fault) const;
  // Returns the input of the fields, or nothing after a message.
  std::optional<StudyInput> Typed();
  void Add();
  void Change();
  void Remove();
  void SetRank();
  void ReadFile();
  void Report(const std::string& text);
  std::vector<std::string> RowOf(const StudyInput& input) const;
  std::string NameOf(const VariableInput& input) const;

  Program& program_;
  HowSureControls& controls_;
  const Design& design_;
  Study& study_;
  bool isFilling_ = false;  // the fields are shown, not edited
};

}  // namespace orby
