#include "qt/picture_view.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QVariant>

#include "drawings/pictures.h"
#include "qt/scene_painter.h"
#include "qt/texts.h"

namespace orby {
namespace {

// The drawings fit this line height and grow with the text.
constexpr double DrawnLineHeight = 17;
constexpr double LeastShare = 0.6;

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {}

const Scene& PictureView::Drawing() const {
  if (!drawing_) drawing_ = PictureScene(FromQt(property("picture").toString()));
  return *drawing_;
}

QSize PictureView::sizeHint() const {
  return (QSizeF(Drawing().Width, Drawing().Height) * (fontMetrics().height() / DrawnLineHeight)).toSize();
}

QSize PictureView::minimumSizeHint() const { return sizeHint() * LeastShare; }

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintScene(painter, Drawing(), rect(), palette().color(QPalette::WindowText));
}

bool PictureView::event(QEvent* event) {
  if (event->type() == QEvent::DynamicPropertyChange) drawing_.reset();
  return QWidget::event(event);
}

}  // namespace orby
