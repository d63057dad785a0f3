#include "gui/painted_boxes.h"

#include <QAbstractItemView>
#include <QJsonObject>
#include <QLineEdit>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QTabBar>
#include <algorithm>

namespace orby::test {
namespace {

// A larger picture is no mark, and a smaller one is part of a frame.
constexpr double LargestMark = 40;
constexpr double SmallestMark = 10;

struct PaintedBox {
  QString kind;
  QString text;
  QRectF place;
  QRectF painted;  // the part inside the widget that paints it
};

// Paints nothing and keeps where texts and small shapes would be.
class BoxEngine : public QPaintEngine {
 public:
  BoxEngine() : QPaintEngine(AllFeatures) {}

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState&) override {}

  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    if (item.text().trimmed().isEmpty()) return;
    Keep("text", item.text(), QRectF(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent()));
  }
  void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override { KeepMark(place); }
  void drawPath(const QPainterPath& path) override {
    if (painter()->brush().style() == Qt::SolidPattern) KeepMark(path.boundingRect());
  }
  // The ground of a selected row is no mark.
  void drawRects(const QRect*, int) override {}
  void drawRects(const QRectF*, int) override {}
  void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
  void drawPolygon(const QPoint*, int, PolygonDrawMode) override {}

  std::vector<PaintedBox> boxes;

 private:
  void KeepMark(const QRectF& place) {
    const auto [less, more] = std::minmax(place.width(), place.height());
    if (less >= SmallestMark && more <= LargestMark) Keep("mark", {}, place);
  }
  void Keep(const QString& kind, const QString& text, const QRectF& place) {
    const QRectF whole = painter()->deviceTransform().mapRect(place);
    const QRegion clip = systemClip();
    boxes.push_back({kind, text, whole, clip.isEmpty() ? whole : whole.intersected(clip.boundingRect())});
  }
};

class BoxDevice : public QPaintDevice {
 public:
  explicit BoxDevice(const QWidget& window) : window_(window) {}

  QPaintEngine* paintEngine() const override { return &engine_; }
  const std::vector<PaintedBox>& Boxes() const { return engine_.boxes; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    switch (metric) {
      case PdmWidth: return window_.width();
      case PdmHeight: return window_.height();
      case PdmDevicePixelRatio: return 1;
      case PdmDevicePixelRatioScaled: return static_cast<int>(devicePixelRatioFScale());
      case PdmDepth: return 32;
      case PdmNumColors: return 1 << 24;
      case PdmDpiX:
      case PdmPhysicalDpiX: return window_.logicalDpiX();
      case PdmDpiY:
      case PdmPhysicalDpiY: return window_.logicalDpiY();
      default: return 0;
    }
  }

 private:
  const QWidget& window_;
  mutable BoxEngine engine_;
};

// Returns the part of a box that is on view and can be used; empty if there is none.
QRectF UsableOf(const QWidget& window, const PaintedBox& box) {
  // A row that the edge of a list cuts can be scrolled into view. The rest of it would stand in the widget below.
  if (box.painted.height() < box.place.height() - 1) return {};
  const QPoint middle = box.painted.center().toPoint();
  QWidget* widget = window.childAt(middle);
  if (widget == nullptr || !widget->isEnabled()) return {};
  // Others have pictures of the toolkit, such as the dots of options.
  const auto* view = qobject_cast<const QAbstractItemView*>(widget->parentWidget());
  const bool hasMarks = view != nullptr || qobject_cast<const QLineEdit*>(widget) != nullptr;
  if (box.kind == "mark" && !hasMarks) return {};
  if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
    const int tab = tabs->tabAt(tabs->mapFrom(&window, middle));
    if (tab >= 0 && !tabs->isTabEnabled(tab)) return {};
  }
  const QRect onView = widget->visibleRegion().boundingRect().translated(widget->mapTo(&window, QPoint()));
  const QRectF usable = box.painted.intersected(onView);
  return usable.height() < box.place.height() - 1 ? QRectF() : usable;
}

}  // namespace

QJsonArray PaintedBoxes(QWidget& window) {
  BoxDevice device(window);
  window.render(&device);
  const double ratio = window.devicePixelRatioF();
  QJsonArray boxes;
  for (const PaintedBox& box : device.Boxes()) {
    const QRectF place = UsableOf(window, box);
    if (place.width() < 2 || place.height() < 2) continue;
    boxes.append(QJsonObject{{"kind", box.kind},
                             {"text", box.text},
                             {"x", place.x() * ratio},
                             {"y", place.y() * ratio},
                             {"width", place.width() * ratio},
                             {"height", place.height() * ratio}});
  }
  return boxes;
}

}  // namespace orby::test
