#include "controls/edit_history.h"

#include <algorithm>
#include <utility>

#include "controls/controls.h"
#include "controls/grid.h"

namespace orby {

namespace {

template <class... Acts>
struct ByType : Acts... {
  using Acts::operator()...;
};
template <class... Acts>
ByType(Acts...) -> ByType<Acts...>;

}  // namespace

std::optional<EditHistory::Field> EditHistory::FieldOf(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    return box->Kind() == TextKind::Output ? std::nullopt : std::optional<Field>(box);
  }
  if (auto* combo = dynamic_cast<Combo*>(&control)) return combo;
  if (auto* check = dynamic_cast<CheckBox*>(&control)) return check;
  if (auto* options = dynamic_cast<OptionArray*>(&control)) return options;
  if (auto* grid = dynamic_cast<Grid*>(&control)) return grid;
  return std::nullopt;
}

EditHistory::State EditHistory::StateOf(const Field& field) {
  return std::visit(ByType{[](const TextBox* box) { return State{box->Text()}; },
                           [](const Combo* combo) {
                             return State{combo->Text(), combo->ListIndex()};
                           },
                           [](const CheckBox* check) {
                             return State{{}, check->Value()};
                           },
                           [](const OptionArray* options) {
                             return State{{}, GetArrayIndex(*options)};
                           },
                           [](const Grid* grid) {
                             return State{{}, grid->Row()};
                           }},
                    field);
}

// Runs after each key for every input, and copies no text.
bool EditHistory::Has(const Field& field, const State& state) {
  return std::visit(
      ByType{
          [&](const TextBox* box) { return box->Text() == state.text; },
          [&](const Combo* combo) { return combo->ListIndex() == state.index && combo->Text() == state.text; },
          [&](const CheckBox* check) { return check->Value() == state.index; },
          [&](const OptionArray* options) { return GetArrayIndex(*options) == state.index; },
          [&](const Grid* grid) { return grid->Row() == state.index; },
      },
      field);
}

bool EditHistory::TakesTyping(const Field& field) {
  return std::holds_alternative<TextBox*>(field) || std::holds_alternative<Combo*>(field);
}

void EditHistory::Restore(const Field& field, const State& state) {
  std::visit(ByType{[&](TextBox* box) { box->SetText(state.text); },
                    [&](Combo* combo) { combo->Restore(state.text, state.index); },
                    [&](CheckBox* check) { check->SetValue(static_cast<Integer>(state.index)); },
                    [&](OptionArray* options) { options->SetValue(state.index, true); },
                    [&](Grid* grid) {
                      if (grid->Row() != state.index) grid->SetRow(state.index);
                    }},
             field);
}

void EditHistory::Start(const Form& form) {
  *this = {};
  for (Control* control : form.Controls()) {
    const std::optional<Field> field = FieldOf(*control);
    if (!field) continue;
    const State state = StateOf(*field);
    inputs_.push_back({control, *field, state, state});
  }
}

bool EditHistory::IsTypingOn(const Edit& edit) const {
  return edit.size() == 1 && !done_.empty() && static_cast<int>(edit.front().input) == typed_;
}

void EditHistory::EndAction() {
  Edit edit;
  for (std::size_t i = 0; i < inputs_.size(); ++i) {
    Input& input = inputs_[i];
    if (Has(input.field, input.last)) continue;
    State now = StateOf(input.field);
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
  const bool isTyped = edit.size() == 1 && TakesTyping(inputs_[edit.front().input].field);
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
      if (!Has(input.field, input.last)) Restore(input.field, input.last);
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
  return input != nullptr && !Has(input->field, input->saved);
}

void EditHistory::RestoreSaved(const Control& control) {
  const Input* input = Find(control);
  if (input == nullptr) return;
  EndAction();
  EndTyping();
  Restore(input->field, input->saved);
  EndAction();
  EndTyping();
}

}  // namespace orby
