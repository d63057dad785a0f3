// Binds a form or window to its widgets: finds the widgets by the controls' names, shows every change of the model, and
// passes the user's actions on.
#pragma once

#include <QObject>
#include <QWidget>
#include <unordered_map>

#include "controls/form.h"
#include "qt/bindings.h"
#include "qt/edit_keys.h"
#include "qt/mnemonics.h"

namespace orby {

class BoundForm final : public QObject, public FormView, public BindingHost {
 public:
  // The form must exist until it is closed, and the window as long as this object. Throws std::logic_error if a control
  // has no widget.
  BoundForm(Form& form, QWidget& root);
  ~BoundForm() override;

  Form& Model() const { return form_; }
  // Returns the first widget of a control, or null if it has none, as with menu entries.
  QWidget* WidgetOf(const Control& control) const;
  // Moves the focus to the control that the form requested, if any.
  void ShowFocus();
  // Closes the form as the user does, if it agrees.
  void CloseByUser();

  // Returns the control with the keyboard focus, or null.
  const Control* ControlInUse() const;

  // Called after the form has closed.
  std::function<void()> Finished;
  // Called when the user asks for help on a control; null means the whole window.
  std::function<void(const Control* control)> HelpRequested;

  void ControlChanged(const Control& control) override;
  void CaptionChanged() override;
  void FocusRequested(Control& control) override;
  void Closed() override;

  QWidget& Root() const override { return root_; }
  const Mnemonics& Letters() const override { return letters_; }
  void Act(const std::function<void()>& act) override;
  void ActLater(std::function<void()> act) override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Disconnects the form from its view.
  void Untie();
  void ShowTheme();
  void AskForHelp();
  void BindControls();
  void TieEdits();
  void AssignLetters();
  void ApplyMeasures();
  void RetainSizes();
  void OrderTabs();
  void NameForReaders();
  void BringOnView(QWidget& widget);

  Form& form_;
  bool tied_ = true;
  QWidget& root_;
  Mnemonics letters_;
  std::unordered_map<const Control*, BindingPointer> bindings_;
  std::unique_ptr<EditKeys> editKeys_;  // null if the form keeps no edits
  std::vector<Binding*> marked_;        // those that can be marked
};

// Returns the first widget of a control on the screen, or null if its form is not on the screen.
QWidget* WidgetOnScreen(const Control& control);
// Returns the window of the form, or null if it is not on the screen.
QWidget* WindowOnScreen(const Form& form);

}  // namespace orby
