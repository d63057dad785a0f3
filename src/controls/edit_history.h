// The edits of a form: to take them back, to make them again, and to go back to what was there when the form opened.
//
// An edit is the change of one or more inputs by one action of the user. Typing in one field is one edit until the
// focus leaves the field.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "controls/control.h"

namespace orby {

class CheckBox;
class Combo;
class Grid;
class OptionArray;
class TextBox;

class EditHistory {
 public:
  // Takes the present state of the form's inputs as the saved one, and drops all edits.
  void Start(const Form& form);

  // Ends an action of the user. Form::EndAct calls it.
  void EndAction();
  // Ends the typing in a field: what is typed there later is another edit.
  void EndTyping() { typed_ = Nothing; }

  bool CanUndo() const { return !done_.empty(); }
  bool CanRedo() const { return !undone_.empty(); }
  // Each restores the inputs of one edit by their setters, so that their events fire. Returns the first of them, or
  // null if there is no edit.
  Control* Undo();
  Control* Redo();

  // Returns true if the control is an input that differs from its saved state.
  bool DiffersFromSaved(const Control& control) const;
  // Restores the saved state of an input, as an edit.
  void RestoreSaved(const Control& control);

  // Returns true while inputs are restored.
  bool IsRestoring() const { return isRestoring_; }

 private:
  static constexpr int Nothing = -1;

  struct State {
    std::string text;
    int index = 0;
    bool operator==(const State&) const = default;
  };
  // An input by its type, which is found once and not after each action.
  using Field = std::variant<TextBox*, Combo*, CheckBox*, OptionArray*, Grid*>;
  struct Input {
    Control* control;
    Field field;
    State saved;
    State last;  // after the last action
  };
  struct Change {
    std::size_t input;
    State before;
    State after;
  };
  using Edit = std::vector<Change>;

  // Returns nothing if the control is no input.
  static std::optional<Field> FieldOf(Control& control);
  static State StateOf(const Field& field);
  static bool Has(const Field& field, const State& state);
  static bool TakesTyping(const Field& field);
  static void Restore(const Field& field, const State& state);
  const Input* Find(const Control& control) const;
  bool IsTypingOn(const Edit& edit) const;
  Control* Apply(const Edit& edit, State Change::*state);

  std::vector<Input> inputs_;
  std::vector<Edit> done_;
  std::vector<Edit> undone_;
  int typed_ = Nothing;  // the input of the last edit, while its typing goes on
  bool isRestoring_ = false;
};

}  // namespace orby
