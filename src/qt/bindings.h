// What ties one control of a form to its widgets: it shows the control as it stands, and hands on what the user does.
#pragma once

#include <QFont>
#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/grid.h"

namespace orby {

class Chart;
class Mnemonics;

// A caption of a widget that the keyboard can reach by a letter of it.
struct CaptionSlot {
  const QObject* key = nullptr;
  int index = 0;                   // of the part of the widget that bears it
  const QWidget* place = nullptr;  // what must be on view for it to be reached
  std::string caption;
};

// What a binding needs of the form's view.
class BindingHost {
 public:
  virtual ~BindingHost() = default;
  virtual QWidget& Root() const = 0;
  virtual const Mnemonics& Letters() const = 0;
  // Runs an act of the user, at once or from the event queue. What may show a modal dialog goes through the queue, so
  // that whoever pressed a button from outside never waits for the dialog's end.
  virtual void Act(const std::function<void()>& act) = 0;
  virtual void ActLater(std::function<void()> act) = 0;
};

class Binding {
 public:
  virtual ~Binding() = default;
  // Shows the control as it stands, without the user's acts being fired.
  virtual void Show() = 0;
  // Takes the colours of the desktop, at first and whenever they change.
  virtual void ShowTheme() {}
  // The widgets of the control, in the order of the tab key.
  virtual std::vector<QWidget*> Widgets() const = 0;
  virtual std::vector<CaptionSlot> Captions() const { return {}; }
  // Whether the place of the hidden widget stays free, so that nothing moves.
  virtual bool KeepsPlace() const { return false; }
  // The widget that gets the focus when the control asks for it.
  virtual QWidget* FocusWidget() const { return Widgets().empty() ? nullptr : Widgets().front(); }
};

using BindingPointer = std::unique_ptr<Binding>;

// The object of that name and kind in the window. Throws std::logic_error when the form file lacks it.
QObject& FindObject(const BindingHost& host, const std::string& name);

template <class T>
T& FindNamed(const BindingHost& host, const std::string& name) {
  return dynamic_cast<T&>(FindObject(host, name));
}

// The binding of a control that one widget shows, by default the one that bears its name.
template <class Widget, class Shown>
class WidgetBinding : public Binding {
 public:
  WidgetBinding(BindingHost& host, Shown& control)
      : WidgetBinding(host, control, FindNamed<Widget>(host, std::string(control.Name()))) {}
  WidgetBinding(BindingHost& host, Shown& control, Widget& widget) : host_(host), control_(control), widget_(widget) {}

  std::vector<QWidget*> Widgets() const override { return {&widget_}; }

 protected:
  BindingHost& host_;
  Shown& control_;
  Widget& widget_;
};

// Shows whether the control can be used and seen.
inline void ShowState(QWidget& widget, const Control& control) {
  widget.setEnabled(control.Enabled());
  widget.setVisible(control.Visible());
}

// Whether a modal window stands before the widget's own.
bool IsBlocked(const QWidget& widget);

// Whether the user can change the widget now: it is enabled and shown, and no modal window stands before its own. The
// toolkit lets screen readers change any widget, so it is asked on every change.
bool IsUsable(const QWidget& widget);

// The font of the user's choice for the widget, or what takes its place on a machine without it.
QFont FontOf(const FontChoice& choice, const QWidget& widget);

// The name of a member of an array: "optUnits_1".
std::string MemberName(const Control& control, int index);

BindingPointer BindLabel(BindingHost& host, const Label& label);
BindingPointer BindFrame(BindingHost& host, const Frame& frame);
BindingPointer BindButton(BindingHost& host, const Button& button);
BindingPointer BindTextBox(BindingHost& host, TextBox& box);
BindingPointer BindCheckBox(BindingHost& host, CheckBox& box);
BindingPointer BindOptionArray(BindingHost& host, OptionArray& options);
BindingPointer BindCombo(BindingHost& host, Combo& combo);
BindingPointer BindList(BindingHost& host, List& list);
BindingPointer BindSlider(BindingHost& host, Slider& slider);
BindingPointer BindGrid(BindingHost& host, Grid& grid);
BindingPointer BindTabSet(BindingHost& host, TabSet& tabs);
BindingPointer BindMenu(BindingHost& host, const Menu& menu);
BindingPointer BindActionArray(BindingHost& host, const ActionArray& actions);
BindingPointer BindPlain(BindingHost& host, const Control& control);  // shown, and nothing else
BindingPointer BindProgressBar(BindingHost& host, const ProgressBar& bar);
BindingPointer BindTextPane(BindingHost& host, const TextPane& pane);
BindingPointer BindChart(BindingHost& host, const Chart& chart);

// The binding that fits the kind of the control.
BindingPointer Bind(BindingHost& host, Control& control);

}  // namespace orby
