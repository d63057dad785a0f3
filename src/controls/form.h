// A dialog as a model: its controls, its caption, and the one opening and closing it goes through.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

class Control;
class TextBox;

// What shows a form on the screen. It is told of each change before the events of the change run.
class FormView {
 public:
  virtual ~FormView() = default;
  virtual void ControlChanged(const Control& control) = 0;
  virtual void CaptionChanged() = 0;
  virtual void FocusRequested(Control& control) = 0;
  virtual void Closed() = 0;
};

class Form {
 public:
  Form(std::string_view name, std::string_view caption) : name_(name), caption_(caption) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  std::string_view Name() const { return name_; }
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption);

  // In the order of their declaration, which is the order of the tab key.
  const std::vector<Control*>& Controls() const { return controls_; }
  // The control of that name, or nullptr.
  Control* Find(std::string_view name) const;

  // Runs the opening sequence; does nothing on a form that is open.
  void Open();
  // Runs the closing sequence; does nothing on a form that is not open.
  void Close();
  bool IsOpen() const { return open_; }
  // Whether the user may close the form now; asks first where something would be lost.
  virtual bool MayClose() { return true; }

  // The control that has the focus, or that is to get it as soon as it can be seen and used.
  Control* FocusRequest() const { return focus_; }
  void RequestFocus(Control& control);

  // The one view, or nullptr; it unties itself before it goes.
  void SetView(FormView* view) { view_ = view; }
  FormView* View() const { return view_; }

  // Runs once the form has dealt with an act of the user, such as a key or a click.
  std::function<void()> Acted;

 protected:
  virtual void OnOpen() = 0;
  virtual void OnClose() {}

 private:
  friend class Control;

  std::string_view name_;
  std::string caption_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  FormView* view_ = nullptr;
  bool open_ = false;
};

// Selects the whole text of the control that has the focus, if it is a text box.
void SelectAllText(Form& form);  // nothing calls it: the view selects what gets the focus

}  // namespace orby
