// The hint and the mark of a control that takes a number, on the widget that shows it.
#pragma once

#include <QEvent>
#include <QHelpEvent>
#include <QLineEdit>

#include "controls/controls.h"
#include "qt/field_mark.h"

namespace orby {

class FieldHints {
 public:
  // widget: has the focus and the tooltip. line: shows the text; the widget itself, or the line inside a list.
  FieldHints(const Control& control, QWidget& widget, QLineEdit& line)
      : control_(control), widget_(widget), line_(line) {}

  // Returns false for a widget that is not on view. It is marked when it comes on view.
  bool IsOnView() const { return widget_.isVisible() || !widget_.window()->isVisible(); }
  void ShowMark(FieldMark mark);
  // Sets the description for screen readers. The name of the widget is the caption, which the description does not
  // repeat.
  void Describe() const;
  // Shows the hint as a tooltip. Returns false if there is none.
  bool ShowHint(const QHelpEvent& event) const;
  // Paints the line and its mark, during the line's paint event, before the line itself. Returns false if there is no
  // mark.
  bool Paint(QEvent* event);

 private:
  QStringList Lines() const;

  const Control& control_;
  QWidget& widget_;
  QLineEdit& line_;
  FieldMark mark_ = FieldMark::None;  // as shown
};

}  // namespace orby
