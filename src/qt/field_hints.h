// The hint and the mark of a control that takes a number, on the widget that shows it.
#pragma once

#include <QEvent>
#include <QHelpEvent>
#include <QLineEdit>

#include "controls/controls.h"
#include "qt/field_mark.h"

namespace orby {

// Sets the hint of a control as the description of its widget for screen readers. The name of the widget is the
// caption, which the description does not repeat.
void DescribeByHint(QWidget& widget, const Control& control);

// Shows the hint of a control as a tooltip. Returns false if there is none.
bool ShowHintOf(const Control& control, QWidget& widget, const QHelpEvent& event);

class FieldHints {
 public:
  // widget: has the focus and the tooltip. line: shows the text; the widget itself, or the line inside a list.
  FieldHints(const Control& control, QWidget& widget, QLineEdit& line)
      : control_(control), widget_(widget), line_(line) {}

  // Returns false for a widget that is not on view. It is marked when it comes on view.
  bool IsOnView() const { return widget_.isVisible() || !widget_.window()->isVisible(); }
  void ShowMark(FieldMark mark);
  void Describe() const { DescribeByHint(widget_, control_); }
  bool ShowHint(const QHelpEvent& event) const { return ShowHintOf(control_, widget_, event); }
  // Paints the line and its mark, during the line's paint event, before the line itself. Returns false if there is no
  // mark.
  bool Paint(QEvent* event);

 private:
  const Control& control_;
  QWidget& widget_;
  QLineEdit& line_;
  FieldMark mark_ = FieldMark::None;  // as shown
};

}  // namespace orby
