#include "qt/field_mark.h"

#include <QApplication>
#include <QEvent>
#include <QIcon>
#include <QPainter>
#include <QPixmapCache>
#include <QPolygonF>
#include <algorithm>

#include "drawings/inks.h"
#include "qt/pictures.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr qreal EdgeWidth = 2;
constexpr int LargestSign = 14;
constexpr int SignMargin = 4;  // to the edge of the field

constexpr std::string_view EarlierInputs = "earlier";  // the picture for a text of earlier inputs

int SizeOfSign(const QWidget& field) { return std::min(LargestSign, field.height() - 2 * SignMargin); }

QRectF PlaceOfSign(const QWidget& field) {
  const int size = SizeOfSign(field);
  return {static_cast<qreal>(field.width() - SignMargin - size), (field.height() - size) / 2.0,
          static_cast<qreal>(size), static_cast<qreal>(size)};
}

void PaintEdge(QPainter& painter, const QWidget& field, FieldMark mark) {
  QPen edge(ColorOfMark(mark, field.palette()), EdgeWidth,
            mark == FieldMark::OutOfRange ? Qt::SolidLine : Qt::DashLine);
  edge.setJoinStyle(Qt::MiterJoin);
  painter.setPen(edge);
  painter.drawRect(QRectF(field.rect()).adjusted(1, 1, -1, -1));
}

// Drawn once for each size and palette, because an output is painted after most keys.
QPixmap PictureOfSign(std::string_view name, const QWidget& output) {
  const int size = SizeOfSign(output);
  const qreal ratio = output.devicePixelRatioF();
  const QString key =
      QString("sign %1 %2 %3 %4").arg(ToQt(name)).arg(size).arg(ratio).arg(QApplication::palette().cacheKey());
  QPixmap picture;
  if (QPixmapCache::find(key, &picture)) return picture;
  picture = ThemedIcon(ToQt(name)).pixmap(QSize(size, size), ratio);
  QPixmapCache::insert(key, picture);
  return picture;
}

void DrawSign(QPainter& painter, const QRectF& place, FieldMark mark, const QColor& ink) {
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
  PaintEdge(painter, field, mark);
  const QRectF sign = PlaceOfSign(field);
  const QColor base = field.palette().color(QPalette::Base);
  painter.fillRect(sign.adjusted(-2, 0, 1, 0), base);
  painter.setBrush(ColorOfMark(mark, field.palette()));
  DrawSign(painter, sign, mark, base);
}

void PaintSign(QWidget& output, const OutputSign& sign) {
  QPainter painter(&output);
  painter.setRenderHint(QPainter::Antialiasing);
  QPointF place = PlaceOfSign(output).topLeft();
  const auto draw = [&](std::string_view picture) {
    painter.drawPixmap(place, PictureOfSign(picture, output));
    place.rx() -= SizeOfSign(output) + SignMargin;
  };
  if (!sign.Judgement.empty()) draw(sign.Judgement);
  if (!sign.IsOfEarlierInputs) return;
  draw(EarlierInputs);
  PaintEdge(painter, output, FieldMark::PartlyRead);
}

int WidthOfSigns(const OutputSign& sign) {
  const int count = (sign.Judgement.empty() ? 0 : 1) + (sign.IsOfEarlierInputs ? 1 : 0);
  return count * (LargestSign + SignMargin);
}

SignCover::SignCover(QWidget& output) : QWidget(&output) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setGeometry(output.rect());
  output.installEventFilter(this);
}

void SignCover::Show(const OutputSign& sign) {
  sign_ = sign;
  setVisible(sign.IsOfEarlierInputs || !sign.Judgement.empty());
  raise();
  update();
}

void SignCover::paintEvent(QPaintEvent* /*event*/) { PaintSign(*this, sign_); }

bool SignCover::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
  return QWidget::eventFilter(watched, event);
}

}  // namespace orby
