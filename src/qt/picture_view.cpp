#include "qt/picture_view.h"

#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QVariant>

#include "qt/pictures.h"

namespace orby {
namespace {

// The drawings fit this line height and grow with the text.
constexpr double DrawnLineHeight = 17;
constexpr double LeastShare = 0.6;

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {}

QSvgRenderer& PictureView::Drawing() const {
  if (!drawing_) drawing_ = LoadPicture(property("picture").toString(), palette().color(QPalette::WindowText));
  return *drawing_;
}

QSize PictureView::sizeHint() const { return Drawing().defaultSize() * (fontMetrics().height() / DrawnLineHeight); }

QSize PictureView::minimumSizeHint() const { return sizeHint() * LeastShare; }

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Drawing().render(&painter, rect());
}

bool PictureView::event(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::DynamicPropertyChange) drawing_.reset();
  return QWidget::event(event);
}

}  // namespace orby
