#include "qt/picture_files.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include "base/runtime_error.h"
#include "core/program.h"
#include "core/version.h"
#include "drawings/inks.h"
#include "qt/scene_painter.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr double PixelsOfUnit = 2;
constexpr double UnitsOfInch = 96;
constexpr double PointsOfInch = 72;
constexpr double MetresOfInch = 0.0254;

// The colour of texts on white.
QColor TextOnPaper() { return QColor::fromRgb(InkColour(Ink::Text, Ground::Light)); }

std::string Bytes(const QBuffer& buffer) { return buffer.data().toStdString(); }

}  // namespace

std::string QtPictureFiles::AsPng(const Scene& scene) {
  QImage image(QSizeF(scene.Width * PixelsOfUnit, scene.Height * PixelsOfUnit).toSize(), QImage::Format_RGB32);
  if (image.isNull()) throw RuntimeError(error_number::OutOfMemory);
  const int dotsPerMetre = qRound(UnitsOfInch * PixelsOfUnit / MetresOfInch);
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintScene(painter, scene, image.rect(), TextOnPaper());
  painter.end();
  QBuffer buffer;
  if (!image.save(&buffer, "PNG")) throw RuntimeError(error_number::OutOfMemory);
  return Bytes(buffer);
}

std::string QtPictureFiles::AsPdf(const Scene& scene, const std::string& title) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(ToQt(title));
  writer.setCreator(ToQt(std::string(ProgramTitle) + " " + VersionText()));
  const QSizeF points(scene.Width * PointsOfInch / UnitsOfInch, scene.Height * PointsOfInch / UnitsOfInch);
  writer.setPageLayout({QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch), QPageLayout::Portrait, {}});
  QPainter painter;
  if (!painter.begin(&writer)) throw RuntimeError(error_number::OutOfMemory);
  PaintScene(painter, scene, QRectF(0, 0, writer.width(), writer.height()), TextOnPaper());
  if (!painter.end()) throw RuntimeError(error_number::OutOfMemory);
  return Bytes(buffer);
}

}  // namespace orby
