#include "qt/pictures.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <utility>

#include "drawings/pictures.h"
#include "qt/scene_painter.h"
#include "qt/texts.h"

namespace orby {
namespace {

class PictureIcon : public QIconEngine {
 public:
  explicit PictureIcon(Scene scene) : scene_(std::move(scene)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QApplication::palette();
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    PaintScene(*painter, scene_, rect, palette.color(group, role));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return drawn;
  }

  QIconEngine* clone() const override { return new PictureIcon(scene_); }

 private:
  Scene scene_;
};

}  // namespace

QIcon ThemedIcon(const QString& name) { return SceneIcon(PictureScene(FromQt(name))); }

QIcon SceneIcon(Scene scene) { return QIcon(new PictureIcon(std::move(scene))); }

}  // namespace orby
