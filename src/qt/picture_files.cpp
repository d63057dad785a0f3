#include "qt/picture_files.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <span>

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

QPageLayout LayoutOf(const Scene& page, double pointsOfUnit) {
  const QSizeF points(page.Width * pointsOfUnit, page.Height * pointsOfUnit);
  return {QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch), QPageLayout::Portrait, {}};
}

std::string PdfOf(std::span<const Scene> pages, double pointsOfUnit, const std::string& title) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(ToQt(title));
  writer.setCreator(ToQt(std::string(ProgramTitle) + " " + VersionText()));
  QPainter painter;
  for (const Scene& page : pages) {
    writer.setPageLayout(LayoutOf(page, pointsOfUnit));
    const bool isReady = painter.isActive() ? writer.newPage() : painter.begin(&writer);
    if (!isReady) throw RuntimeError(error_number::OutOfMemory);
    PaintScene(painter, page, QRectF(0, 0, writer.width(), writer.height()), TextOnPaper());
  }
  if (!painter.end()) throw RuntimeError(error_number::OutOfMemory);
  return Bytes(buffer);
}

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
  return PdfOf(std::span(&scene, 1), PointsOfInch / UnitsOfInch, title);
}

std::string QtPictureFiles::PagesAsPdf(const std::vector<Scene>& pages, const std::string& title) {
  return PdfOf(pages, 1, title);
}

double QtPictureFiles::WidthOf(const std::string& text, const TextStyle& style) { return widths_.Of(text, style); }

}  // namespace orby
