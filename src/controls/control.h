// What every control of a dialog has: its name, and whether it can be used and seen.
#pragma once

#include <string_view>
#include <utility>

namespace orby {

class Form;

// A control belongs to one form for its whole life and is found there by its name.
class Control {
 public:
  // The name must outlive the control: names are literals.
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
  // Tells the view of the form, if it is on the screen, that something it shows of this control differs.
  void Touch() const;
  // Stores a value that the view shows; nothing happens when it is there already.
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
