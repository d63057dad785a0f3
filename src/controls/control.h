// What every control of a dialog has: its name, and whether it can be used and seen.
#pragma once

#include <string_view>

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
  void SetEnabled(bool enabled) { enabled_ = enabled; }
  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }

 private:
  Form* form_;
  std::string_view name_;
  bool enabled_ = true;
  bool visible_ = true;
};

}  // namespace orby
