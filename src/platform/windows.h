// What the program asks of the window system.
#pragma once

namespace orby {

class Form;

class Windows {
 public:
  virtual ~Windows() = default;
  // Shows a loaded form and returns once it is closed.
  virtual void ShowModal(Form& form) = 0;
  // Shows the report pages until the user closes them.
  virtual void ShowResults() = 0;
  virtual void CenterForm(Form& form) = 0;
  virtual void SetWaitCursor(bool waiting) = 0;
};

}  // namespace orby
