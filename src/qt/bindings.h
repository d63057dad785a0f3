// Connects one control of a form to its widgets: shows the control's state and passes the user's actions on.
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
#include "controls/row_table.h"

namespace orby {

class Chart;
class Drawing;
class PagesBox;
class Mnemonics;

// A caption that can have a mnemonic letter.
struct CaptionSlot {
  const QObject* key = nullptr;
  int index = 0;                   // of the part of the widget with this caption
  const QWidget* place = nullptr;  // must be visible for the letter to work
  std::string caption;
};

// What a binding needs of the form's view.
class BindingHost {
 public:
  virtual ~BindingHost() = default;
  virtual QWidget& Root() const = 0;
  virtual const Mnemonics& Letters() const = 0;
  // Runs an action of the user at once (Act) or from the event queue (ActLater). Actions that may open a modal dialog
  // use the queue, so that an assistive program that presses a button does not wait for the dialog to close.
  virtual void Act(const std::function<void()>& act) = 0;
  virtual void ActLater(std::function<void()> act) = 0;
};

class Binding {
 public:
  virtual ~Binding() = default;
  // Shows the control's state without triggering the user's actions.
  virtual void Show() = 0;
  // Adopts the desktop's colours, at the start and after each change of the theme.
  virtual void ShowTheme() {}
  // Shows whether the control is marked now. Called after each action of the user if CanBeMarked.
  virtual void ShowMark() {}
  virtual bool CanBeMarked() const { return false; }
  // Returns the widgets of the control in tab order.
  virtual std::vector<QWidget*> Widgets() const = 0;
  virtual std::vector<CaptionSlot> Captions() const { return {}; }
  // Returns true if a hidden widget keeps its place, so that nothing else moves.
  virtual bool RetainsSize() const { return false; }
  // Returns true if the widgets have a menu of their own, to which the undo of edits adds nothing.
  virtual bool HasOwnMenu() const { return false; }
  // Returns the widget that gets the focus if the control requests it.
  virtual QWidget* FocusWidget() const { return Widgets().empty() ? nullptr : Widgets().front(); }
};

using BindingPointer = std::unique_ptr<Binding>;

// Returns the object of this name and type in the window. Throws std::logic_error if the form file lacks it.
QObject& FindObject(const BindingHost& host, const std::string& name);

template <class T>
T& FindNamed(const BindingHost& host, const std::string& name) {
  return dynamic_cast<T&>(FindObject(host, name));
}

// The binding of a control with one widget, by default the widget of the same name.
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

// Enables or disables the widget, and shows or hides it, like the control.
inline void ShowState(QWidget& widget, const Control& control) {
  widget.setEnabled(control.Enabled());
  widget.setVisible(control.Visible());
}

// Returns true if accessible descriptions are the names of the controls, for tests.
bool ShowsControlNames();

// Returns true if a modal window blocks the widget's window.
bool IsBlocked(const QWidget& widget);

// Returns true if the user can change the widget now: it is enabled, visible and not blocked by a modal window. Checked
// on every change, because the toolkit lets screen readers change any widget.
bool IsUsable(const QWidget& widget);

// Returns the font that the user chose for the widget, or its substitute on this machine.
QFont FontOf(const FontChoice& choice, const QWidget& widget);

// Returns the name of a member of an array, such as "optUnits_1".
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
BindingPointer BindRowTable(BindingHost& host, RowTable& table);
BindingPointer BindTabSet(BindingHost& host, TabSet& tabs);
BindingPointer BindMenu(BindingHost& host, const Menu& menu);
BindingPointer BindActionArray(BindingHost& host, const ActionArray& actions);
BindingPointer BindPlain(BindingHost& host, const Control& control);  // shows the control without any user action
BindingPointer BindProgressBar(BindingHost& host, const ProgressBar& bar);
BindingPointer BindTextPane(BindingHost& host, const TextPane& pane);
BindingPointer BindChart(BindingHost& host, const Chart& chart);
BindingPointer BindDrawing(BindingHost& host, Drawing& drawing);
BindingPointer BindPages(BindingHost& host, PagesBox& pages);

// Returns the binding for the control's type.
BindingPointer Bind(BindingHost& host, Control& control);

}  // namespace orby
