// What the program asks of the window system.
#pragma once

namespace orby {

class Form;

class Windows {
 public:
  virtual ~Windows() = default;
  // Shows a loaded form and returns once it is closed.
  virtual void ShowModal(Form& form) = 0;
  // Shows a loaded form, or brings one that is on the screen to the front, and returns at once.
  virtual void Show(Form& form) = 0;
  // Hides the main window, or shows it and makes it the one in use.
  virtual void ShowMainWindow(bool visible) = 0;
  virtual void CenterForm(Form& form) = 0;
  virtual void SetWaitCursor(bool waiting) = 0;
};

}  // namespace orby
