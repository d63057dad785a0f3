#include "qt/pages_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "drawings/inks.h"
#include "qt/scene_painter.h"

namespace orby {
namespace {

constexpr int Gap = 12;  // pixels, around each page
constexpr double ZoomStep = 1.15;
constexpr double SmallestZoom = 0.3;
constexpr double LargestZoom = 4;
constexpr double WheelNotch = 120;

}  // namespace

PagesView::PagesView(QWidget* parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

QSize PagesView::sizeHint() const {
  return {fontMetrics().averageCharWidth() * (IsForChoosing() ? 22 : 96), fontMetrics().height() * 35};
}

void PagesView::ShowPages(PagesBox& box) {
  box_ = &box;
  UpdateBars();
  if (moves_ != box.Moves()) {
    moves_ = box.Moves();
    const PagePlace& place = box.Place();
    if (IsForChoosing()) {
      ShowSmall(place.Page);
    } else if (place.Page < box.Pages().size()) {
      const double top = std::max(place.Top, 0.0) * Scale();
      verticalScrollBar()->setValue(static_cast<int>(PlaceOf(place.Page).top() + (place.Top > 0 ? top : -Gap)));
    }
  }
  viewport()->update();
}

double PagesView::Scale() const {
  if (box_ == nullptr || box_->Pages().empty()) return 1;
  const double room = std::max(viewport()->width() - 2 * Gap, 1);
  return zoom_ * room / box_->Pages().front().Width;
}

void PagesView::ShowSmall(std::size_t page) {
  if (page >= box_->Pages().size()) return;
  const QRectF place = PlaceOf(page);
  QScrollBar& bar = *verticalScrollBar();
  const int lowest = static_cast<int>(std::ceil(place.bottom())) + Gap + NumberRoom() - viewport()->height();
  const int highest = static_cast<int>(place.top()) - Gap;
  bar.setValue(std::min(std::max(bar.value(), lowest), highest));
}

void PagesView::ChooseBeside(int step) {
  const auto page = static_cast<std::ptrdiff_t>(box_->PageOnView()) + step;
  if (page >= 0 && Chosen) Chosen(static_cast<std::size_t>(page));
}

int PagesView::NumberRoom() const { return IsForChoosing() ? fontMetrics().height() : 0; }

void PagesView::mousePressEvent(QMouseEvent* event) {
  QAbstractScrollArea::mousePressEvent(event);
  if (!IsForChoosing() || event->button() != Qt::LeftButton) return;
  if (Chosen) Chosen(PageAt(verticalScrollBar()->value() + event->position().y() - NumberRoom()));
}

void PagesView::SetZoom(double zoom) {
  const double before = Scale();
  const double middle = verticalScrollBar()->value() + viewport()->height() / 2.0;
  zoom_ = std::clamp(zoom, SmallestZoom, LargestZoom);
  UpdateBars();
  verticalScrollBar()->setValue(static_cast<int>(middle * Scale() / before - viewport()->height() / 2.0));
  viewport()->update();
}

QRectF PagesView::PlaceOf(std::size_t page) const {
  const double scale = Scale();
  double top = Gap;
  for (std::size_t i = 0; i < page; ++i) top += std::floor(box_->Pages()[i].Height * scale) + Gap + NumberRoom();
  const Scene& scene = box_->Pages()[page];
  const double width = scene.Width * scale;
  const double left = std::max(static_cast<double>(Gap), (viewport()->width() - width) / 2);
  return {left, top, width, scene.Height * scale};
}

std::size_t PagesView::PageAt(double top) const {
  for (std::size_t page = 0; page < box_->Pages().size(); ++page) {
    if (PlaceOf(page).bottom() > top) return page;
  }
  return box_->Pages().empty() ? 0 : box_->Pages().size() - 1;
}

void PagesView::UpdateBars() {
  if (box_ == nullptr || box_->Pages().empty()) return;
  const QRectF last = PlaceOf(box_->Pages().size() - 1);
  const QSize size = viewport()->size();
  verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(last.bottom()) + Gap + NumberRoom() - size.height()));
  verticalScrollBar()->setPageStep(size.height());
  verticalScrollBar()->setSingleStep(fontMetrics().height() * 2);
  horizontalScrollBar()->setRange(0, std::max(0, static_cast<int>(last.width()) + 2 * Gap - size.width()));
  horizontalScrollBar()->setPageStep(size.width());
}

void PagesView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  UpdateBars();
}

void PagesView::scrollContentsBy(int, int) {
  viewport()->update();
  // The page that fills the view, not one whose end is left at the top.
  if (box_ != nullptr && Scrolled && !IsForChoosing())
    Scrolled(PageAt(verticalScrollBar()->value() + viewport()->height() / 3.0));
}

void PagesView::wheelEvent(QWheelEvent* event) {
  if ((event->modifiers() & Qt::ControlModifier) == 0 || IsForChoosing()) return QAbstractScrollArea::wheelEvent(event);
  SetZoom(zoom_ * std::pow(ZoomStep, event->angleDelta().y() / WheelNotch));
  event->accept();
}

void PagesView::keyPressEvent(QKeyEvent* event) {
  if (IsForChoosing()) {
    switch (event->key()) {
      case Qt::Key_Up: return ChooseBeside(-1);
      case Qt::Key_Down: return ChooseBeside(1);
      case Qt::Key_Home: return ChooseBeside(-static_cast<int>(box_->PageOnView()));
      case Qt::Key_End:
        return ChooseBeside(static_cast<int>(box_->Pages().size()) - 1 - static_cast<int>(box_->PageOnView()));
      default: return QAbstractScrollArea::keyPressEvent(event);
    }
  }
  const bool hasControl = (event->modifiers() & Qt::ControlModifier) != 0;
  if (event->matches(QKeySequence::ZoomIn) || (hasControl && event->key() == Qt::Key_Equal)) {
    return SetZoom(zoom_ * ZoomStep);
  }
  if (event->matches(QKeySequence::ZoomOut)) return SetZoom(zoom_ / ZoomStep);
  if (hasControl && event->key() == Qt::Key_0) return SetZoom(1);
  switch (event->key()) {
    case Qt::Key_Home: return verticalScrollBar()->setValue(0);
    case Qt::Key_End: return verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    default: QAbstractScrollArea::keyPressEvent(event);
  }
}

void PagesView::PaintChosen(QPainter& painter, std::size_t page, const QRectF& sheet) const {
  const bool isChosen = page == box_->PageOnView();
  if (isChosen) {
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(sheet.adjusted(-3, -3, 3, 3));
  }
  QFont font = this->font();
  font.setBold(isChosen);
  painter.setFont(font);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(QRectF(sheet.left(), sheet.bottom() + 4, sheet.width(), NumberRoom()), Qt::AlignCenter,
                   QString::number(page + 1));
}

void PagesView::PaintMark(QPainter& painter, const SceneLabel& label, const QRectF& sheet) const {
  const double scale = Scale();
  const double width =
      TextWidths().Of(label.Text, {.Size = label.Size, .IsBold = label.IsBold, .IsItalic = label.IsItalic});
  const QRectF place(sheet.left() + label.At.X * scale, sheet.top() + (label.At.Y - label.Size) * scale, width * scale,
                     label.Size * 1.3 * scale);
  painter.fillRect(place.adjusted(-2, -1, 2, 1), QColor(255, 224, 102));
}

void PagesView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), palette().color(IsForChoosing() ? QPalette::Window : QPalette::Mid));
  if (box_ == nullptr) return;
  const QPointF origin(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const QColor ink = QColor::fromRgb(InkColour(Ink::Text, Ground::Light));
  for (std::size_t page = 0; page < box_->Pages().size(); ++page) {
    const QRectF sheet = PlaceOf(page).translated(-origin);
    if (sheet.bottom() < 0 || sheet.top() > viewport()->height()) continue;
    painter.fillRect(sheet, Qt::white);
    const auto& marked = box_->Marked();
    if (marked && marked->Page == page) PaintMark(painter, box_->Pages()[page].Labels.at(marked->Label), sheet);
    PaintScene(painter, box_->Pages()[page], sheet, ink);
    if (IsForChoosing()) PaintChosen(painter, page, sheet);
  }
}

}  // namespace orby
