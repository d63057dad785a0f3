// The windows of the desktop.
#pragma once

namespace orby {

class Form;

class Windows {
 public:
  virtual ~Windows() = default;
  // Shows a loaded form and returns after it is closed.
  virtual void ShowModal(Form& form) = 0;
  // Shows a loaded form, or raises it to the front if it is already on the screen, and returns at once.
  virtual void Show(Form& form) = 0;
  // Hides the main window, or shows and activates it.
  virtual void ShowMainWindow(bool visible) = 0;
  virtual void CenterForm(Form& form) = 0;
  virtual void SetWaitCursor(bool waiting) = 0;
};

}  // namespace orby
