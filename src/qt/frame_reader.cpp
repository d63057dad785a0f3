#include "qt/frame_reader.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QGroupBox>
#include <QList>
#include <QPair>

namespace orby {
namespace {

using Relations = QList<QPair<QAccessibleInterface*, QAccessible::Relation>>;

// Reads a frame by its own title, and gives the title to the widgets directly in it, except to other frames.
class FrameReader : public QAccessibleWidget {
 public:
  explicit FrameReader(QGroupBox& frame) : QAccessibleWidget(&frame, QAccessible::Grouping), frame_(frame) {}

  QString text(QAccessible::Text kind) const override {
    const bool isTitle = kind == QAccessible::Name && frame_.accessibleName().isEmpty();
    return isTitle ? frame_.title().remove('&') : QAccessibleWidget::text(kind);
  }

  Relations relations(QAccessible::Relation wanted) const override {
    Relations found = QAccessibleWidget::relations(wanted & ~QAccessible::Relation(QAccessible::Label));
    if ((wanted & QAccessible::Labelled) == 0 || frame_.title().isEmpty()) return found;
    for (auto* part : frame_.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      if (dynamic_cast<QGroupBox*>(part) != nullptr) continue;
      found.append({QAccessible::queryAccessibleInterface(part), QAccessible::Labelled});
    }
    return found;
  }

 private:
  QGroupBox& frame_;
};

// The toolkit's own reader also knows the check mark of a checkable frame.
QAccessibleInterface* MakeFrameReader(const QString& kind, QObject* object) {
  auto* frame = kind == "QGroupBox" ? dynamic_cast<QGroupBox*>(object) : nullptr;
  return frame == nullptr || frame->isCheckable() ? nullptr : new FrameReader(*frame);
}

}  // namespace

void InstallFrameReader() { QAccessible::installFactory(MakeFrameReader); }

}  // namespace orby
