#include "qt/window_frame.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>

namespace orby {
namespace {

constexpr int TitleButtons = 4;  // including the icon

QMargins FrameOnScreen(const QWidget& window) {
  const QRect inner = window.geometry();
  const QRect outer = window.frameGeometry();
  return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
          outer.bottom() - inner.bottom()};
}

int TitleHeight(const QWidget& window) { return window.style()->pixelMetric(QStyle::PM_TitleBarHeight); }

}  // namespace

QMargins FrameOf(const QWidget& window) {
  if (window.isVisible()) return FrameOnScreen(window);
  for (const QWidget* other : QApplication::topLevelWidgets()) {
    if (!other->isVisible() || other->windowType() == Qt::Popup) continue;
    const QMargins frame = FrameOnScreen(*other);
    if (!frame.isNull()) return frame;
  }
  const int edge = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  return {edge, TitleHeight(window), edge, edge};
}

// Measures in bold, because the window manager's own font is unknown and may be wide.
int WidthOfTitle(const QWidget& window) {
  QFont font = QApplication::font();
  font.setBold(true);
  return QFontMetrics(font).horizontalAdvance(window.windowTitle()) + TitleButtons * TitleHeight(window);
}

}  // namespace orby
