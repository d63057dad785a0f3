// A dialog without its window: its controls, its caption, and how it opens and closes.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace orby {

class Control;
class EditHistory;
class TextBox;

// Shows a form on the screen. The form notifies it of each change before the events of the change fire.
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

  // Returns the controls in the order of their declaration, which is the order of the tab key.
  const std::vector<Control*>& Controls() const { return controls_; }
  // Returns the control of that name, or null.
  Control* Find(std::string_view name) const;

  // Opens the form. Does nothing when it is open.
  void Open();
  // Closes the form. Does nothing when it is not open.
  void Close();
  bool IsOpen() const { return open_; }
  // Returns true if the user may close the form now. A form may ask first when input would be lost.
  virtual bool MayClose() { return true; }

  // Returns the control that has the focus, or that gets it as soon as it is visible and enabled. Null before the first
  // request.
  Control* FocusRequest() const { return focus_; }
  void RequestFocus(Control& control);
  // Shows the page of a control and requests the focus for it.
  virtual void ShowControl(Control& control) { RequestFocus(control); }

  // Returns the edits of the user, or null if the form does not keep them.
  virtual EditHistory* Edits() { return nullptr; }
  // Takes back the last edit, or makes it again, and goes to its control. Does nothing if there is none.
  void UndoEdit();
  void RedoEdit();

  // Returns the lines that explain a control, for its tooltip and for screen readers. Empty if there is nothing to say.
  virtual std::vector<std::string> HintOf(const Control& control) const;

  // Sets the only view, or null. A view must remove itself before it is destroyed.
  void SetView(FormView* view) { view_ = view; }
  FormView* View() const { return view_; }

  // Called at the end of EndAct.
  std::function<void()> Acted;
  // Ends an action of the user, such as a key or a click: records its edit and brings the rest up to date.
  void EndAct();

 protected:
  virtual void OnOpen() = 0;
  virtual void OnClose() {}
  // Brings what follows all fields up to date, once for an action of the user.
  virtual void OnAct() {}

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
void SelectAllText(Form& form);  // nothing calls it: the view selects the text of a field that gets the focus

}  // namespace orby
