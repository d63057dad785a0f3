#include "qt/chart_view.h"

#include <qcustomplot.h>

#include <QMouseEvent>
#include <QVBoxLayout>
#include <cmath>

#include "qt/contrast.h"
#include "qt/texts.h"

namespace orby {
namespace {

// The model's sizes are 3 to 20. The line width is a third of them, so that the default looks like a line.
constexpr double LineShare = 1.0 / 3;

QColor ColorOf(int blueGreenRed) {
  return {blueGreenRed & 0xFF, (blueGreenRed >> 8) & 0xFF, (blueGreenRed >> 16) & 0xFF};
}

// Sets the font size in pixels, so that letters scale with the picture. A size in points would also grow with the
// resolution of the paper.
QFont InPixels(QFont font) {
  font.setPixelSize(QFontInfo(font).pixelSize());
  return font;
}

QCPTextElement* HeadingOf(const QCustomPlot& plot) {
  return qobject_cast<QCPTextElement*>(plot.plotLayout()->element(0, 0));
}

QPalette Paper() {
  QPalette paper(Qt::white);
  for (const auto role : {QPalette::Window, QPalette::Base}) paper.setColor(role, Qt::white);
  for (const auto role : {QPalette::WindowText, QPalette::Text}) paper.setColor(role, Qt::black);
  return paper;
}

void ApplySeriesColors(QCustomPlot& plot, const QColor& base, const std::vector<QColor>& colors) {
  for (int i = 0; i < plot.graphCount(); ++i) {
    QCPGraph& graph = *plot.graph(i);
    QPen pen = graph.pen();
    pen.setColor(Readable(colors[static_cast<std::size_t>(i)], base));
    graph.setPen(pen);
    QCPScatterStyle symbols = graph.scatterStyle();
    symbols.setPen(QPen(pen.color()));
    symbols.setBrush(pen.color());
    graph.setScatterStyle(symbols);
  }
}

void ApplyColors(QCustomPlot& plot, const QPalette& palette, const std::vector<QColor>& colors) {
  const QColor text = palette.color(QPalette::WindowText);
  const QColor base = palette.color(QPalette::Base);
  QColor grid = text;
  grid.setAlphaF(0.25F);
  plot.setBackground(palette.color(QPalette::Window));
  plot.axisRect()->setBackground(base);
  for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) {
    for (const auto& set : {&QCPAxis::setBasePen, &QCPAxis::setTickPen, &QCPAxis::setSubTickPen}) {
      (axis->*set)(QPen(text));
    }
    axis->setLabelColor(text);
    axis->setTickLabelColor(text);
    axis->grid()->setPen(QPen(grid, 1, Qt::SolidLine));
    axis->grid()->setZeroLinePen(Qt::NoPen);
  }
  plot.legend->setBrush(base);
  plot.legend->setTextColor(text);
  plot.legend->setBorderPen(QPen(grid));
  if (auto* heading = HeadingOf(plot)) heading->setTextColor(text);
  ApplySeriesColors(plot, base, colors);
}

void ShowHeading(QCustomPlot& plot, const QString& heading) {
  auto* top = HeadingOf(plot);
  if (top == nullptr) {
    if (heading.isEmpty()) return;
    plot.plotLayout()->insertRow(0);
    top = new QCPTextElement(&plot);
    plot.plotLayout()->addElement(0, 0, top);
  }
  QFont font = InPixels(plot.font());
  font.setBold(true);
  top->setFont(font);
  top->setText(heading);
  top->setVisible(!heading.isEmpty());
}

void ShowSeries(QCustomPlot& plot, const ChartSeries& series) {
  QCPGraph& graph = *plot.addGraph();
  graph.setData({series.x.begin(), series.x.end()}, {series.y.begin(), series.y.end()});
  graph.setName(ToQt(series.legend));
  graph.setPen(QPen(Qt::black, series.width * LineShare));
  graph.setLineStyle(series.hasLine ? QCPGraph::lsLine : QCPGraph::lsNone);
  graph.setScatterStyle(series.hasSymbols ? QCPScatterStyle(QCPScatterStyle::ssDisc, series.symbolSize)
                                          : QCPScatterStyle::ssNone);
}

// Fits the axes to the points, with a small margin. Starts from a fixed range, so that a curve without extent does not
// keep the range of the previous curve.
void ShowWhole(QCustomPlot& plot) {
  constexpr double Air = 1.08;
  for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) axis->setRange(0, 2);
  plot.rescaleAxes();
  for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) axis->scaleRange(Air);
}

// Returns the position of a value on the axis: 0 at its start, 1 at its end.
double ShareOf(const QCPRange& range, double value) { return (value - range.lower) / range.size(); }

// Returns the corner of the plot with the greatest distance from the points, whatever the size of the plot.
Qt::Alignment FreeCorner(const QCustomPlot& plot) {
  const Qt::Alignment corners[] = {Qt::AlignTop | Qt::AlignRight, Qt::AlignTop | Qt::AlignLeft,
                                   Qt::AlignBottom | Qt::AlignRight, Qt::AlignBottom | Qt::AlignLeft};
  Qt::Alignment freest = corners[0];
  double farthest = -1;
  for (const auto corner : corners) {
    const double atX = (corner & Qt::AlignRight) != 0 ? 1 : 0;
    const double atY = (corner & Qt::AlignTop) != 0 ? 1 : 0;
    double nearest = 2;
    for (int series = 0; series < plot.graphCount(); ++series) {
      for (const QCPGraphData& point : *plot.graph(series)->data()) {
        const double distance =
            std::hypot(ShareOf(plot.xAxis->range(), point.key) - atX, ShareOf(plot.yAxis->range(), point.value) - atY);
        nearest = std::min(nearest, distance);
      }
    }
    if (nearest > farthest) {
      farthest = nearest;
      freest = corner;
    }
  }
  return freest;
}

}  // namespace

ChartView::ChartView(QWidget* parent) : QWidget(parent), plot_(new QCustomPlot(this)) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(plot_);
  plot_->setObjectName("viewPlot");
  plot_->setMouseTracking(true);
  plot_->installEventFilter(this);
  plot_->legend->setVisible(false);
  plot_->legend->setFont(InPixels(font()));
  for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) {
    axis->setLabelFont(InPixels(font()));
    axis->setTickLabelFont(InPixels(font()));
  }
  plot_->axisRect()->setupFullAxesBox(true);
}

void ChartView::ShowChart(const Chart& chart) {
  setVisible(chart.Visible());
  plot_->clearGraphs();
  colors_.clear();
  for (const ChartSeries& series : chart.Series()) {
    ShowSeries(*plot_, series);
    colors_.push_back(ColorOf(series.colour));
  }
  plot_->xAxis->setLabel(ToQt(chart.AxisX().title));
  plot_->yAxis->setLabel(ToQt(chart.AxisY().title));
  plot_->xAxis->grid()->setVisible(chart.AxisX().grid);
  plot_->yAxis->grid()->setVisible(chart.AxisY().grid);
  plot_->legend->setVisible(chart.LegendShown());
  ShowHeading(*plot_, ToQt(chart.Heading()));
  setAccessibleName(ToQt(chart.AxisY().title + " - " + chart.AxisX().title));
  ShowWhole(*plot_);
  plot_->axisRect()->insetLayout()->setInsetAlignment(0, FreeCorner(*plot_));
  ApplyTheme();
}

void ChartView::ApplyTheme() {
  ApplyColors(*plot_, palette(), colors_);
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

QPointF ChartView::PlaceOf(int series, int point) const {
  const auto& graph = *plot_->graph(series);
  const auto at = graph.data()->at(point);
  const QPointF inPlot = graph.coordsToPixels(at->key, at->value);
  return plot_->mapTo(this, inPlot.toPoint()) + (inPlot - inPlot.toPoint());
}

ChartHit ChartView::HitAt(const QPoint& point) const {
  ChartHit hit;
  hit.inPlot = plot_->axisRect()->rect().contains(plot_->mapFrom(this, point));
  for (int series = 0; series < plot_->graphCount(); ++series) {
    for (int i = 0; i < plot_->graph(series)->dataCount(); ++i) {
      const QPointF way = PlaceOf(series, i) - point;
      const double distance = std::hypot(way.x(), way.y());
      if (hit.point >= 0 && distance >= hit.distance) continue;
      hit.series = series;
      hit.point = i;
      hit.distance = distance;
    }
  }
  return hit;
}

bool ChartView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove && mouseHandler_) {
    const auto& mouse = *dynamic_cast<QMouseEvent*>(event);
    mouseHandler_(HitAt(plot_->mapTo(this, mouse.position().toPoint())));
  }
  return QWidget::eventFilter(watched, event);
}

void ChartView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) ApplyTheme();
  QWidget::changeEvent(event);
}

QPixmap ChartView::Picture(int width, int height) const {
  ApplyColors(*plot_, Paper(), colors_);
  QPixmap picture = plot_->toPixmap(width, height);
  ApplyColors(*plot_, palette(), colors_);
  return picture;
}

bool ChartView::PaintOn(QPaintDevice& paper, const QRectF& place, int width, int height) const {
  QCPPainter painter;
  if (!painter.begin(&paper)) return false;
  ApplyColors(*plot_, Paper(), colors_);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.translate(place.topLeft());
  painter.scale(place.width() / width, place.height() / height);
  plot_->toPainter(&painter, width, height);
  ApplyColors(*plot_, palette(), colors_);
  return painter.end();
}

}  // namespace orby
