#include "qt/field_mark.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>

#include "drawings/inks.h"

namespace orby {
namespace {

constexpr qreal EdgeWidth = 2;
constexpr int LargestSign = 14;
constexpr int SignMargin = 4;  // to the edge of the field

QRectF PlaceOfSign(const QLineEdit& field) {
  const int size = std::min(LargestSign, field.height() - 2 * SignMargin);
  return {static_cast<qreal>(field.width() - SignMargin - size), (field.height() - size) / 2.0,
          static_cast<qreal>(size), static_cast<qreal>(size)};
}

void PaintSign(QPainter& painter, const QRectF& place, FieldMark mark, const QColor& ink) {
  painter.setPen(Qt::NoPen);
  if (mark == FieldMark::OutOfRange) {
    painter.drawPolygon(QPolygonF{{QPointF(place.center().x(), place.top()), place.bottomRight(), place.bottomLeft()}});
  } else {
    painter.drawEllipse(place);
  }
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(std::max(1, static_cast<int>(place.height()) - 4));
  painter.setFont(font);
  painter.setPen(ink);
  // The centre of a triangle is below the middle.
  const QRectF inside = mark == FieldMark::OutOfRange ? place.translated(0, 2) : place;
  painter.drawText(inside, Qt::AlignCenter, mark == FieldMark::OutOfRange ? "!" : "?");
}

}  // namespace

QColor ColorOfMark(FieldMark mark, const QPalette& palette) {
  const bool isDark = palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
  const Ink ink = mark == FieldMark::OutOfRange ? Ink::Bad : Ink::Doubtful;
  return QColor::fromRgb(InkColour(ink, isDark ? Ground::Dark : Ground::Light));
}

void PaintMark(QLineEdit& field, FieldMark mark) {
  QPainter painter(&field);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor color = ColorOfMark(mark, field.palette());
  QPen edge(color, EdgeWidth, mark == FieldMark::OutOfRange ? Qt::SolidLine : Qt::DashLine);
  edge.setJoinStyle(Qt::MiterJoin);
  painter.setPen(edge);
  painter.drawRect(QRectF(field.rect()).adjusted(1, 1, -1, -1));
  const QRectF sign = PlaceOfSign(field);
  const QColor base = field.palette().color(QPalette::Base);
  painter.fillRect(sign.adjusted(-2, 0, 1, 0), base);
  painter.setBrush(color);
  PaintSign(painter, sign, mark, base);
}

}  // namespace orby
