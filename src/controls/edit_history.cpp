#include "controls/edit_history.h"

#include <algorithm>
#include <utility>

#include "controls/controls.h"
#include "controls/grid.h"

namespace orby {

bool EditHistory::IsInput(const Control& control) {
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->Kind() != TextKind::Output;
  return dynamic_cast<const Combo*>(&control) != nullptr || dynamic_cast<const CheckBox*>(&control) != nullptr ||
         dynamic_cast<const OptionArray*>(&control) != nullptr || dynamic_cast<const Grid*>(&control) != nullptr;
}

EditHistory::State EditHistory::StateOf(const Control& control) {
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return {box->Text()};
  if (const auto* combo = dynamic_cast<const Combo*>(&control)) return {combo->Text(), combo->ListIndex()};
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) return {{}, check->Value()};
  if (const auto* options = dynamic_cast<const OptionArray*>(&control)) return {{}, GetArrayIndex(*options)};
  return {{}, dynamic_cast<const Grid&>(control).Row()};
}

// Runs after each key for every input. Most of them are fields, so no text is copied for those.
bool EditHistory::Has(const Control& control, const State& state) {
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->Text() == state.text;
  return StateOf(control) == state;
}

bool EditHistory::TakesTyping(const Control& control) {
  return dynamic_cast<const TextBox*>(&control) != nullptr || dynamic_cast<const Combo*>(&control) != nullptr;
}

void EditHistory::Restore(Control& control, const State& state) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) return box->SetText(state.text);
  if (auto* combo = dynamic_cast<Combo*>(&control)) return combo->Restore(state.text, state.index);
  if (auto* check = dynamic_cast<CheckBox*>(&control)) return check->SetValue(static_cast<Integer>(state.index));
  if (auto* options = dynamic_cast<OptionArray*>(&control)) return options->SetValue(state.index, true);
  auto& grid = dynamic_cast<Grid&>(control);
  if (grid.Row() != state.index) grid.SetRow(state.index);
}

void EditHistory::Start(const Form& form) {
  *this = {};
  for (Control* control : form.Controls()) {
    if (!IsInput(*control)) continue;
    const State state = StateOf(*control);
    inputs_.push_back({control, state, state});
  }
}

bool EditHistory::IsTypingOn(const Edit& edit) const {
  return edit.size() == 1 && !done_.empty() && static_cast<int>(edit.front().input) == typed_;
}

void EditHistory::EndAction() {
  Edit edit;
  for (std::size_t i = 0; i < inputs_.size(); ++i) {
    Input& input = inputs_[i];
    if (Has(*input.control, input.last)) continue;
    State now = StateOf(*input.control);
    edit.push_back({i, std::exchange(input.last, now), now});
  }
  if (edit.empty()) return;
  undone_.clear();
  if (IsTypingOn(edit)) {
    Change& typing = done_.back().front();
    typing.after = std::move(edit.front().after);
    if (typing.after != typing.before) return;
    done_.pop_back();
    return EndTyping();
  }
  const bool isTyped = edit.size() == 1 && TakesTyping(*inputs_[edit.front().input].control);
  typed_ = isTyped ? static_cast<int>(edit.front().input) : Nothing;
  done_.push_back(std::move(edit));
}

// An input may change others when it is restored, such as a list that fills a field. So every input that then differs
// from its state is restored, in order, and once more for those that change one before them.
Control* EditHistory::Apply(const Edit& edit, State Change::*state) {
  for (const Change& change : edit) inputs_[change.input].last = change.*state;
  isRestoring_ = true;
  for (int pass = 0; pass < 2; ++pass) {
    for (const Input& input : inputs_) {
      if (!Has(*input.control, input.last)) Restore(*input.control, input.last);
    }
  }
  isRestoring_ = false;
  EndTyping();
  return inputs_[edit.front().input].control;
}

Control* EditHistory::Undo() {
  EndAction();
  if (done_.empty()) return nullptr;
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return Apply(undone_.back(), &Change::before);
}

Control* EditHistory::Redo() {
  EndAction();
  if (undone_.empty()) return nullptr;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return Apply(done_.back(), &Change::after);
}

const EditHistory::Input* EditHistory::Find(const Control& control) const {
  const auto found = std::ranges::find(inputs_, &control, &Input::control);
  return found == inputs_.end() ? nullptr : &*found;
}

bool EditHistory::DiffersFromSaved(const Control& control) const {
  const Input* input = Find(control);
  return input != nullptr && !Has(control, input->saved);
}

void EditHistory::RestoreSaved(const Control& control) {
  const Input* input = Find(control);
  if (input == nullptr) return;
  EndAction();
  EndTyping();
  Restore(*input->control, input->saved);
  EndAction();
  EndTyping();
}

}  // namespace orby
