// The base of all controls of a dialog: the name, and whether the control is enabled and visible.
#pragma once

#include <string_view>
#include <utility>

namespace orby {

class Form;

// A control belongs to one form during its whole lifetime. The form finds it by its name.
class Control {
 public:
  // Requires a name that outlives the control, such as a literal.
  Control(Form& form, std::string_view name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  std::string_view Name() const { return name_; }
  Form& Owner() const { return *form_; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Mirror(enabled_, enabled); }
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Mirror(visible_, visible); }

 protected:
  // Notifies the view of the form, if there is one, that this control looks different.
  void Touch() const;
  // Stores a value that the view shows and notifies the view. Does nothing when the value is the same.
  template <class T>
  void Mirror(T& stored, T value) {
    if (stored == value) return;
    stored = std::move(value);
    Touch();
  }

 private:
  Form* form_;
  std::string_view name_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace orby
