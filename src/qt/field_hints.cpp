#include "qt/field_hints.h"

#include <QAccessible>
#include <QToolTip>

#include "qt/bindings.h"
#include "qt/texts.h"

namespace orby {
namespace {

QStringList HintLines(const Control& control) {
  QStringList lines;
  for (const std::string& line : control.Owner().HintOf(control)) lines.append(ToQt(line));
  return lines;
}

}  // namespace

void DescribeByHint(QWidget& widget, const Control& control) {
  if (ShowsControlNames()) return;
  QString description;
  for (const QString& line : HintLines(control).mid(1)) {
    if (!description.isEmpty()) description += description.endsWith('.') ? " " : ". ";
    description += line;
  }
  if (description != widget.accessibleDescription()) widget.setAccessibleDescription(description);
}

bool ShowHintOf(const Control& control, QWidget& widget, const QHelpEvent& event) {
  const QStringList lines = HintLines(control);
  if (lines.isEmpty()) return false;
  QToolTip::showText(event.globalPos(), lines.join('\n'), &widget);
  return true;
}

void FieldHints::ShowMark(FieldMark mark) {
  const bool isOther = mark != mark_;
  if (isOther) {
    mark_ = mark;
    line_.update();
  }
  if (isOther || QAccessible::isActive()) Describe();
}

bool FieldHints::Paint(QEvent* event) {
  if (mark_ == FieldMark::None) return false;
  static_cast<QObject&>(line_).event(event);
  PaintMark(line_, mark_);
  return true;
}

}  // namespace orby
