#include "qt/pictures.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace orby {
namespace {

class PictureIcon : public QIconEngine {
 public:
  explicit PictureIcon(QString resource) : resource_(std::move(resource)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    LoadPicture(resource_, palette.color(group, role))->render(painter, rect);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return drawn;
  }

  QIconEngine* clone() const override { return new PictureIcon(resource_); }

 private:
  QString resource_;
};

}  // namespace

std::unique_ptr<QSvgRenderer> LoadPicture(const QString& resource, const QColor& lines) {
  QFile file(resource);
  QByteArray bytes;
  if (file.open(QIODevice::ReadOnly)) bytes = file.readAll();
  bytes.replace("currentColor", lines.name().toLatin1());
  auto renderer = std::make_unique<QSvgRenderer>(bytes);
  renderer->setAspectRatioMode(Qt::KeepAspectRatio);
  return renderer;
}

QIcon ThemedIcon(const QString& name) { return QIcon(new PictureIcon(":/pictures/" + name + ".svg")); }

}  // namespace orby
