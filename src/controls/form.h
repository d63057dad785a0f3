// A dialog as a model: its controls, its caption, and the one opening and closing it goes through.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orby {

class Control;
class TextBox;

class Form {
 public:
  Form(std::string_view name, std::string_view caption) : name_(name), caption_(caption) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::string_view Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { caption_ = std::move(caption); }

  // In the order of their declaration, which is the order of the tab key.
  const std::vector<Control*>& Controls() const { return controls_; }
  // The control of that name, or nullptr.
  Control* Find(std::string_view name) const;

  // Runs the opening sequence; does nothing on a form that is open.
  void Open();
  // Runs the closing sequence; does nothing on a form that is not open.
  void Close();
  bool IsOpen() const { return open_; }

  // The control that has the focus, or that is to get it as soon as it can be seen and used.
  Control* FocusRequest() const { return focus_; }
  void RequestFocus(Control& control) { focus_ = &control; }

 protected:
  virtual void OnOpen() = 0;
  virtual void OnClose() = 0;

 private:
  friend class Control;

  std::string_view name_;
  std::string caption_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  bool open_ = false;
};

// Selects the whole text of the control that has the focus, if it is a text box.
void SelectAllText(Form& form);

}  // namespace orby
