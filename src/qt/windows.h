// The windows of the program, one for each form on the screen.
#pragma once

#include <QMainWindow>
#include <map>
#include <memory>
#include <vector>

#include "core/settings.h"
#include "platform/windows.h"
#include "qt/bound_form.h"

namespace orby {

// Returns a window with the form's layout, not yet bound to the form. Throws std::logic_error if the form has no
// layout.
std::unique_ptr<QWidget> MakeWindow(const Form& form, QWidget* parent);

// Returns the size that shows the whole window, including the contents of its scroll area.
QSize WholeSize(QWidget& window);

class QtWindows : public Windows {
 public:
  QtWindows();
  ~QtWindows() override;

  // Shows the main window. The program ends when its form closes.
  void ShowMain(Form& form, bool maximized);
  // Returns the main window after it has been shown.
  QMainWindow& Main() const;

  // Where the windows of earlier runs stood, and those of this run as they are closed. Null: nothing is kept.
  WindowPlaces* Places = nullptr;

  // Called when the user asks for help on a control; null means the whole window.
  std::function<void(const Form& form, const Control* control)> HelpRequested;

  // Shows a form as a part of the main window, alone in the layout of `place`. Returns its widget.
  QWidget& ShowInside(Form& form, QWidget& place);

  void ShowModal(Form& form) override;
  void Show(Form& form) override;
  void ShowMainWindow(bool visible) override;
  void CenterForm(Form&) override {}  // a form is centred when its window is created
  void SetWaitCursor(bool waiting) override;

 private:
  struct Shown {
    std::unique_ptr<QWidget> window;
    std::unique_ptr<BoundForm> view;
    QRect opened;  // its place before the user could change it
  };

  Shown MakeBound(Form& form, QWidget* parent);
  Shown MakeShown(Form& form, QWidget* parent);
  // Remembers the place of a window that closes.
  void Keep(const Shown& shown) const;

  Shown main_;
  std::vector<Shown> parts_;  // of the main window
  std::map<const Form*, Shown> modeless_;
  bool waiting_ = false;
};

}  // namespace orby
