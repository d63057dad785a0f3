// The windows of the program: one for each form on the screen.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>

#include "platform/windows.h"
#include "qt/bound_form.h"

namespace orby {

// A window with the form's layout, not yet tied to the form. Throws std::logic_error for a form without a layout.
std::unique_ptr<QWidget> MakeWindow(const Form& form, QWidget* parent);

class QtWindows : public Windows {
 public:
  QtWindows();
  ~QtWindows() override;

  // Shows the main window; the program ends when its form closes.
  void ShowMain(Form& form, bool maximized);
  // The main window, once it is shown.
  QMainWindow& Main() const;

  // Runs when the user asks for help in a window, on one of its controls or on the window.
  std::function<void(const Form& form, const Control* control)> HelpRequested;

  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowMainWindow(bool visible) override;
  void CenterForm(Form&) override {}  // a form is centred when its window is made
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
