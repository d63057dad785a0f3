#include "qt/chart_marks.h"

#include <algorithm>

#include "drawings/inks.h"
#include "qt/contrast.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr double OwnSize = 11;       // pixels
constexpr double ReadSize = 17;      // pixels
constexpr double LabelDistance = 9;  // of the own point's name from its middle, pixels

// The roles of items, which decide their colours.
constexpr const char* Role = "orbyRole";
enum ItemRole { Plain, Own, Reference };

ChartRange RangeOf(const QCPAxis& axis) { return {axis.range().lower, axis.range().upper}; }

ChartExtent ExtentOf(const QCustomPlot& plot) { return {RangeOf(*plot.xAxis), RangeOf(*plot.yAxis)}; }

QColor ReadableInk(Ink ink, const QPalette& palette) {
  return Readable(QColor::fromRgb(InkColour(ink, Ground::Light)), palette.color(QPalette::Base));
}

QColor ColourOf(const QCPAbstractItem& item, const QPalette& palette) {
  switch (item.property(Role).toInt()) {
    case Own: return ReadableInk(Ink::OwnPoint, palette);
    case Reference: return ReadableInk(Ink::Limit, palette);
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
  whole_ = WholeExtent(chart);
  freeCorner_ = FreeCorner(chart, whole_);
  if (fits) ShowWhole();
  int number = 0;
  int far = 0;
  for (const ChartLine& line : chart.References()) {
    if (IsNear(chart, line)) {
      AddReference(line, number++);
    } else {
      AddFarReference(line, far++);
    }
  }
  if (chart.Own()) AddOwn(*chart.Own(), SideOfOwnName(chart, ExtentOf(plot_)));
  if (const auto& place = chart.ReadPoint()) AddReadPoint(*place);
  const bool hasPoints =
      std::ranges::any_of(chart.Series(), [](const ChartSeries& series) { return !series.x.empty(); });
  if (!hasPoints) AddEmptyText();
}

void ChartMarks::ShowWhole() {
  plot_.xAxis->setRange(whole_.x.lower, whole_.x.upper);
  plot_.yAxis->setRange(whole_.y.lower, whole_.y.upper);
  const auto corner =
      (freeCorner_.isRight ? Qt::AlignRight : Qt::AlignLeft) | (freeCorner_.isTop ? Qt::AlignTop : Qt::AlignBottom);
  if (plot_.axisRect()->insetLayout()->elementCount() > 0) {
    plot_.axisRect()->insetLayout()->setInsetAlignment(0, corner);
  }
}

QCPItemText* ChartMarks::NewLabel(const std::string& text) {
  auto* label = new QCPItemText(&plot_);
  label->setText(ToQt(text));
  label->setFont(plot_.legend->font());
  label->setPadding(QMargins(3, 1, 3, 1));
  return label;
}

// In two lines, for the chart beside a list is narrow.
void ChartMarks::AddEmptyText() {
  QCPItemText* label = NewLabel("There are no points\nin the range of this curve");
  label->setTextAlignment(Qt::AlignHCenter);
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
    const bool isRight = RangeOf(*plot_.xAxis).ShareOf(line.value) > 0.5;
    label->setPositionAlignment(Qt::AlignTop | (isRight ? Qt::AlignRight : Qt::AlignLeft));
  } else {
    label->position->setTypeX(QCPItemPosition::ptAxisRectRatio);
    label->position->setTypeY(QCPItemPosition::ptPlotCoords);
    label->position->setCoords(1 - Edge - Step * (number % 3), line.value);
    const bool isHigh = RangeOf(*plot_.yAxis).ShareOf(line.value) > 0.9;
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

void ChartMarks::AddOwn(const ChartPoint& own, const ChartCorner& side) {
  auto* mark = new QCPItemTracer(&plot_);
  mark->setProperty(Role, Own);
  mark->setStyle(QCPItemTracer::tsSquare);
  mark->setSize(OwnSize);
  mark->position->setCoords(own.x, own.y);
  QCPItemText* label = NewLabel(own.name);
  label->setProperty(Role, Own);
  label->position->setParentAnchor(mark->position);
  label->position->setCoords(side.isRight ? LabelDistance : -LabelDistance,
                             side.isTop ? -LabelDistance : LabelDistance);
  label->setPositionAlignment((side.isRight ? Qt::AlignLeft : Qt::AlignRight) |
                              (side.isTop ? Qt::AlignBottom : Qt::AlignTop));
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

}  // namespace orby
