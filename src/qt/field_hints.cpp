#include "qt/field_hints.h"

#include <QAccessible>
#include <QToolTip>

#include "qt/bindings.h"
#include "qt/texts.h"

namespace orby {

QStringList FieldHints::Lines() const {
  QStringList lines;
  for (const std::string& line : control_.Owner().HintOf(control_)) lines.append(ToQt(line));
  return lines;
}

void FieldHints::ShowMark(FieldMark mark) {
  const bool isOther = mark != mark_;
  if (isOther) {
    mark_ = mark;
    line_.update();
  }
  if (isOther || QAccessible::isActive()) Describe();
}

void FieldHints::Describe() const {
  if (ShowsControlNames()) return;
  QString description;
  for (const QString& line : Lines().mid(1)) {
    if (!description.isEmpty()) description += description.endsWith('.') ? " " : ". ";
    description += line;
  }
  if (description != widget_.accessibleDescription()) widget_.setAccessibleDescription(description);
}

bool FieldHints::ShowHint(const QHelpEvent& event) const {
  const QStringList lines = Lines();
  if (lines.isEmpty()) return false;
  QToolTip::showText(event.globalPos(), lines.join('\n'), &widget_);
  return true;
}

bool FieldHints::Paint(QEvent* event) {
  if (mark_ == FieldMark::None) return false;
  static_cast<QObject&>(line_).event(event);
  PaintMark(line_, mark_);
  return true;
}

}  // namespace orby
