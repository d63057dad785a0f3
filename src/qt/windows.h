// The windows of the program, one for each form on the screen.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>

#include "platform/windows.h"
#include "qt/bound_form.h"

namespace orby {

// Returns a window with the form's layout, not yet bound to the form. Throws std::logic_error if the form has no
// layout.
std::unique_ptr<QWidget> MakeWindow(const Form& form, QWidget* parent);

class QtWindows : public Windows {
 public:
  QtWindows();
  ~QtWindows() override;

  // Shows the main window. The program ends when its form closes.
  void ShowMain(Form& form, bool maximized);
  // Returns the main window after it has been shown.
  QMainWindow& Main() const;

  // Called when the user asks for help on a control; null means the whole window.
  std::function<void(const Form& form, const Control* control)> HelpRequested;

  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowMainWindow(bool visible) override;
  void CenterForm(Form&) override {}  // a form is centred when its window is created
  void SetWaitCursor(bool waiting) override;

 private:
  struct Shown {
    std::unique_ptr<QWidget> window;
    std::unique_ptr<BoundForm> view;
  };

  Shown MakeShown(Form& form, QWidget* parent);

  Shown main_;
  std::map<const Form*, Shown> modeless_;
  bool waiting_ = false;
};

}  // namespace orby
