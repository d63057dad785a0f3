#include "controls/form.h"

#include <algorithm>

#include "base/text.h"
#include "controls/control.h"
#include "controls/controls.h"
#include "controls/edit_history.h"

namespace orby {

Control::Control(Form& form, std::string_view name) : form_(&form), name_(name) { form.controls_.push_back(this); }

void Control::Touch() const {
  if (FormView* view = form_->View()) view->ControlChanged(*this);
}

void Form::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  if (view_ != nullptr) view_->CaptionChanged();
}

void Form::RequestFocus(Control& control) {
  focus_ = &control;
  if (view_ != nullptr) view_->FocusRequested(control);
}

void Form::UndoEdit() {
  Control* control = Edits() == nullptr ? nullptr : Edits()->Undo();
  if (control != nullptr) ShowControl(*control);
}

void Form::RedoEdit() {
  Control* control = Edits() == nullptr ? nullptr : Edits()->Redo();
  if (control != nullptr) ShowControl(*control);
}

Control* Form::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [name](const Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

std::vector<std::string> Form::HintOf(const Control& /*control*/) const { return {}; }

void Form::Open() {
  if (open_) return;
  open_ = true;
  OnOpen();
}

void Form::EndAct() {
  if (EditHistory* edits = Edits()) edits->EndAction();
  OnAct();
  if (Acted) Acted();
}

void Form::Close() {
  if (!open_) return;
  open_ = false;
  OnClose();
  if (view_ != nullptr) view_->Closed();
}

void SelectAllText(Form& form) {
  if (auto* box = dynamic_cast<TextBox*>(form.FocusRequest())) box->Select(0, CharacterCount(box->Text()));
}

}  // namespace orby
