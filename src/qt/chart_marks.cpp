#include "qt/chart_marks.h"

#include <algorithm>
#include <cmath>

#include "qt/contrast.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr double OwnSize = 11;       // pixels
constexpr double ReadSize = 17;      // pixels
constexpr double LabelDistance = 9;  // of the own point's name from its middle, pixels
constexpr QColor OwnColour(0xb0, 0x3a, 0x00);
constexpr QColor ReferenceColour(0x0b, 0x6b, 0x3a);

// The roles of items, which decide their colours.
constexpr const char* Role = "orbyRole";
enum ItemRole { Plain, Own, Reference };

// Returns the position of a value on the axis: 0 at its start, 1 at its end.
double ShareOf(const QCPRange& range, double value) { return (value - range.lower) / range.size(); }

QColor ColourOf(const QCPAbstractItem& item, const QPalette& palette) {
  switch (item.property(Role).toInt()) {
    case Own: return Readable(OwnColour, palette.color(QPalette::Base));
    case Reference: return Readable(ReferenceColour, palette.color(QPalette::Base));
    default: return palette.color(QPalette::WindowText);
  }
}

void Recolour(QCPAbstractItem& item, const QPalette& palette) {
  const QColor colour = ColourOf(item, palette);
  if (auto* text = qobject_cast<QCPItemText*>(&item)) {
    QColor ground = palette.color(QPalette::Base);
    ground.setAlphaF(0.85F);
    text->setColor(colour);
    text->setBrush(ground);
  } else if (auto* tracer = qobject_cast<QCPItemTracer*>(&item)) {
    tracer->setPen(QPen(colour, 2));
  } else if (auto* line = qobject_cast<QCPItemStraightLine*>(&item)) {
    line->setPen(QPen(colour, 1.5, Qt::DashLine));
  }
}

}  // namespace

void ChartMarks::Show(const Chart& chart, bool fits) {
  plot_.clearItems();
  own_ = chart.Own();
  references_ = chart.References();
  if (fits) ShowWhole();
  int number = 0;
  int far = 0;
  for (const ChartLine& line : references_) {
    if (IsNear(line)) {
      AddReference(line, number++);
    } else {
      AddFarReference(line, far++);
    }
  }
  if (own_) AddOwn(*own_);
  if (const auto& place = chart.ReadPoint()) AddReadPoint(*place);
  const bool hasPoints =
      std::ranges::any_of(chart.Series(), [](const ChartSeries& series) { return !series.x.empty(); });
  if (!hasPoints) AddEmptyText();
}

QCPRange ChartMarks::RangeOfPoints(bool ofX) const {
  QCPRange range;
  bool isFirst = true;
  const auto include = [&](double value) {
    if (isFirst) range = QCPRange(value, value);
    isFirst = false;
    range.expand(value);
  };
  for (int i = 0; i < plot_.graphCount(); ++i) {
    for (const QCPGraphData& point : *plot_.graph(i)->data()) include(ofX ? point.key : point.value);
  }
  if (own_) include(ofX ? own_->x : own_->y);
  return range;
}

bool ChartMarks::IsNear(const ChartLine& line) const {
  constexpr double Most = 4;
  const QCPRange points = RangeOfPoints(line.isOfX);
  return std::abs(line.value) <= Most * std::max(std::abs(points.lower), std::abs(points.upper));
}

// Starts from a fixed range, so that a curve without extent does not keep the range of the previous curve.
void ChartMarks::ShowWhole() {
  constexpr double Air = 1.08;
  for (QCPAxis* axis : {plot_.xAxis, plot_.yAxis}) axis->setRange(0, 2);
  plot_.rescaleAxes();
  for (QCPAxis* axis : {plot_.xAxis, plot_.yAxis}) {
    const bool ofX = axis == plot_.xAxis;
    QCPRange range = axis->range();
    if (own_) range.expand(ofX ? own_->x : own_->y);
    for (const ChartLine& line : references_) {
      if (line.isOfX == ofX && IsNear(line)) range.expand(line.value);
    }
    axis->setRange(range);
    axis->scaleRange(Air);
  }
  plot_.axisRect()->insetLayout()->setInsetAlignment(0, FreeCorner());
}

QCPItemText* ChartMarks::NewLabel(const std::string& text) {
  auto* label = new QCPItemText(&plot_);
  label->setText(ToQt(text));
  label->setFont(plot_.legend->font());
  label->setPadding(QMargins(3, 1, 3, 1));
  return label;
}

void ChartMarks::AddEmptyText() {
  QCPItemText* label = NewLabel("There are no points in the range of this curve");
  label->position->setType(QCPItemPosition::ptAxisRectRatio);
  label->position->setCoords(0.5, 0.5);
}

// Names of several lines stand side by side, because the lines may be close together.
void ChartMarks::AddReference(const ChartLine& line, int number) {
  constexpr double Step = 0.32;
  constexpr double Edge = 0.01;
  auto* drawn = new QCPItemStraightLine(&plot_);
  drawn->setProperty(Role, Reference);
  drawn->point1->setCoords(line.isOfX ? line.value : 0, line.isOfX ? 0 : line.value);
  drawn->point2->setCoords(line.isOfX ? line.value : 1, line.isOfX ? 1 : line.value);
  QCPItemText* label = NewLabel(line.name);
  label->setProperty(Role, Reference);
  if (line.isOfX) {
    label->position->setTypeX(QCPItemPosition::ptPlotCoords);
    label->position->setTypeY(QCPItemPosition::ptAxisRectRatio);
    label->position->setCoords(line.value, Edge);
    const bool isRight = ShareOf(plot_.xAxis->range(), line.value) > 0.5;
    label->setPositionAlignment(Qt::AlignTop | (isRight ? Qt::AlignRight : Qt::AlignLeft));
  } else {
    label->position->setTypeX(QCPItemPosition::ptAxisRectRatio);
    label->position->setTypeY(QCPItemPosition::ptPlotCoords);
    label->position->setCoords(1 - Edge - Step * (number % 3), line.value);
    const bool isHigh = ShareOf(plot_.yAxis->range(), line.value) > 0.9;
    label->setPositionAlignment(Qt::AlignRight | (isHigh ? Qt::AlignTop : Qt::AlignBottom));
  }
}

// A line that would flatten the curve is only named, at the edge on its side.
void ChartMarks::AddFarReference(const ChartLine& line, int number) {
  constexpr double Edge = 0.01;
  constexpr double Step = 0.08;
  QCPItemText* label = NewLabel(line.name + (line.isOfX ? " (outside)" : " (above)"));
  label->setProperty(Role, Reference);
  label->position->setType(QCPItemPosition::ptAxisRectRatio);
  label->position->setCoords(0.5, Edge + Step * number);
  label->setPositionAlignment(Qt::AlignTop | Qt::AlignHCenter);
}

// The name is on the side away from the curve: rising curves leave room below on the right and above on the left.
void ChartMarks::AddOwn(const ChartPoint& own) {
  auto* mark = new QCPItemTracer(&plot_);
  mark->setProperty(Role, Own);
  mark->setStyle(QCPItemTracer::tsSquare);
  mark->setSize(OwnSize);
  mark->position->setCoords(own.x, own.y);
  QCPItemText* label = NewLabel(own.name);
  label->setProperty(Role, Own);
  label->position->setParentAnchor(mark->position);
  const bool isRight = ShareOf(plot_.xAxis->range(), own.x) > 0.5;
  bool isRising = true;
  if (plot_.graphCount() > 0 && plot_.graph(0)->dataCount() > 1) {
    const auto& data = *plot_.graph(0)->data();
    isRising = data.at(0)->value < data.at(data.size() - 1)->value;
  }
  const bool isAbove = isRight == isRising;
  label->position->setCoords(isRight ? -LabelDistance : LabelDistance, isAbove ? -LabelDistance : LabelDistance);
  label->setPositionAlignment((isRight ? Qt::AlignRight : Qt::AlignLeft) | (isAbove ? Qt::AlignBottom : Qt::AlignTop));
}

void ChartMarks::AddReadPoint(const ChartPlace& place) {
  if (place.series >= plot_.graphCount() || place.point >= plot_.graph(place.series)->dataCount()) return;
  const auto point = plot_.graph(place.series)->data()->at(place.point);
  auto* mark = new QCPItemTracer(&plot_);
  mark->setProperty(Role, Plain);
  mark->setObjectName("viewReadPoint");
  mark->setStyle(QCPItemTracer::tsCircle);
  mark->setSize(ReadSize);
  mark->position->setCoords(point->key, point->value);
}

void ChartMarks::SetColors(const QPalette& palette) {
  for (int i = 0; i < plot_.itemCount(); ++i) Recolour(*plot_.item(i), palette);
}

Qt::Alignment ChartMarks::FreeCorner() const {
  const Qt::Alignment corners[] = {Qt::AlignTop | Qt::AlignRight, Qt::AlignTop | Qt::AlignLeft,
                                   Qt::AlignBottom | Qt::AlignRight, Qt::AlignBottom | Qt::AlignLeft};
  const QCPRange xs = plot_.xAxis->range();
  const QCPRange ys = plot_.yAxis->range();
  Qt::Alignment freest = corners[0];
  double farthest = -1;
  for (const auto corner : corners) {
    const double atX = (corner & Qt::AlignRight) != 0 ? 1 : 0;
    const double atY = (corner & Qt::AlignTop) != 0 ? 1 : 0;
    double nearest = 2;
    const auto avoid = [&](double x, double y) { nearest = std::min(nearest, std::hypot(x - atX, y - atY)); };
    for (int series = 0; series < plot_.graphCount(); ++series) {
      for (const QCPGraphData& point : *plot_.graph(series)->data()) {
        avoid(ShareOf(xs, point.key), ShareOf(ys, point.value));
      }
    }
    if (own_) avoid(ShareOf(xs, own_->x), ShareOf(ys, own_->y));
    for (const ChartLine& line : references_) {
      // The name of a horizontal line is at its right end, that of a vertical line at its top.
      if (line.isOfX) {
        constexpr double NameWidth = 0.35;
        const double at = ShareOf(xs, line.value);
        avoid(at, 1);
        avoid(at > 0.5 ? at - NameWidth : at + NameWidth, 1);
      }
      if (!line.isOfX) avoid(1, ShareOf(ys, line.value));
    }
    if (nearest > farthest) {
      farthest = nearest;
      freest = corner;
    }
  }
  return freest;
}

}  // namespace orby
