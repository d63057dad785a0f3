// The one binder of forms and windows: it finds the widgets of a form's controls by their names, shows every change of
// the model, and hands the user's acts on.
#pragma once

#include <QObject>
#include <QWidget>
#include <unordered_map>

#include "controls/form.h"
#include "qt/bindings.h"
#include "qt/mnemonics.h"

namespace orby {

class BoundForm final : public QObject, public FormView, public BindingHost {
 public:
  // The form must live until it is closed, the window as long as this. Throws std::logic_error when a control has no
  // widget.
  BoundForm(Form& form, QWidget& root);
  ~BoundForm() override;

  Form& Model() const { return form_; }
  // The first widget of a control; nullptr for one without, such as a menu's entries.
  QWidget* WidgetOf(const Control& control) const;
  // Gives the focus to the control that the form has asked it for, or to the first that can take it.
  void ShowFocus();
  // The user wants the window closed.
  void CloseByUser();

  // The control whose widget has the keyboard; nullptr when none has it.
  const Control* ControlInUse() const;

  // Runs when the form has closed.
  std::function<void()> Finished;
  // Runs when the user asks for help on a control, or on the window when no control has the keyboard.
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
  // From here on the form and its view know nothing of each other.
  void Untie();
  void ShowTheme();
  void AskForHelp();
  void BindControls();
  void AssignLetters();
  void KeepPlaces();
  void OrderTabs();
  void NameForReaders();
  void BringOnView(QWidget& widget);

  Form& form_;
  bool tied_ = true;
  QWidget& root_;
  Mnemonics letters_;
  std::unordered_map<const Control*, BindingPointer> bindings_;
};

// The widget that shows a control of a form on the screen; nullptr when the form is not on the screen.
QWidget* WidgetOnScreen(const Control& control);
// The window that shows the form; nullptr when it is not on the screen.
QWidget* WindowOnScreen(const Form& form);

}  // namespace orby
