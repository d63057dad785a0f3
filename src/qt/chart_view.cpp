#include "qt/chart_view.h"

#include <qcustomplot.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "base/arithmetic.h"
#include "base/number_text.h"
#include "controls/chart_fit.h"
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

// Moves the legend into the last row of the layout, or back into the plot.
void PlaceLegend(QCustomPlot& plot, bool isBelow) {
  QCPLayoutInset& inside = *plot.axisRect()->insetLayout();
  QCPLayoutGrid& rows = *plot.plotLayout();
  if (isBelow == (plot.legend->layout() == &rows)) return;
  if (isBelow) {
    inside.take(plot.legend);
    rows.addElement(rows.rowCount(), 0, plot.legend);
    rows.setRowStretchFactor(rows.rowCount() - 1, 0.001);
  } else {
    rows.take(plot.legend);
    rows.simplify();
    inside.addElement(plot.legend, Qt::AlignTop | Qt::AlignRight);
  }
}

void ShowSeries(QCustomPlot& plot, const ChartSeries& series) {
  QCPGraph& graph = *plot.addGraph();
  graph.setData({series.x.begin(), series.x.end()}, {series.y.begin(), series.y.end()});
  graph.setName(ToQt(series.legend));
  graph.setPen(QPen(Qt::black, series.width * LineShare, series.isKept ? Qt::DashLine : Qt::SolidLine));
  graph.setLineStyle(series.hasLine ? QCPGraph::lsLine : QCPGraph::lsNone);
  // A single point is no line, so it is always drawn as a symbol.
  const bool hasSymbols = series.hasSymbols || series.x.size() == 1;
  graph.setScatterStyle(hasSymbols ? QCPScatterStyle(QCPScatterStyle::ssDisc, series.symbolSize)
                                   : QCPScatterStyle::ssNone);
}

std::vector<ChartView::Points> PointsOf(const Chart& chart) {
  std::vector<ChartView::Points> points;
  for (const ChartSeries& series : chart.Series()) points.emplace_back(series.x, series.y);
  return points;
}

// Returns the marks in words, for screen readers.
std::string WordsOf(const Chart& chart) {
  std::string words;
  if (chart.Own()) {
    words += ". " + chart.Own()->name + ": " + FormatNumber(ToSingle(chart.Own()->x), "0.0") + ", " +
             FormatNumber(ToSingle(chart.Own()->y), "0.0");
  }
  for (const ChartLine& line : chart.References()) words += ". " + line.name;
  for (const ChartSeries& series : chart.Series()) {
    if (series.isKept) words += ". " + series.legend;
  }
  return words;
}

}  // namespace

ChartView::ChartView(QWidget* parent) : QWidget(parent), plot_(new QCustomPlot(this)), marks_(*plot_) {
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
  plot_->setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  connect(plot_, &QCustomPlot::mouseDoubleClick, this, &ChartView::ShowWhole);
  setFocusPolicy(Qt::StrongFocus);
}

void ChartView::ShowChart(const Chart& chart) {
  setVisible(chart.Visible());
  plot_->clearGraphs();
  colors_.clear();
  for (const ChartSeries& series : chart.Series()) {
    ShowSeries(*plot_, series);
    colors_.push_back(ColorOf(series.colour));
  }
  const bool isNew =
      PointsOf(chart) != fitted_.points || chart.Own() != fitted_.own || chart.References() != fitted_.references;
  if (isNew) fitted_ = {PointsOf(chart), chart.Own(), chart.References()};
  read_ = chart.ReadPoint();
  plot_->xAxis->setLabel(ToQt(chart.AxisX().title));
  plot_->yAxis->setLabel(ToQt(chart.AxisY().title));
  plot_->xAxis->grid()->setVisible(chart.AxisX().grid);
  plot_->yAxis->grid()->setVisible(chart.AxisY().grid);
  plot_->legend->setVisible(chart.HasLegend());
  PlaceLegend(*plot_, HasLegendBelow(chart));
  ShowHeading(*plot_, ToQt(chart.Heading()));
  setAccessibleName(ToQt(chart.AxisY().title + " - " + chart.AxisX().title + WordsOf(chart)));
  marks_.Show(chart, isNew);
  ApplyTheme();
}

void ChartView::ShowWhole() {
  marks_.ShowWhole();
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

void ChartView::UseColors(const QPalette& palette) const {
  ApplyColors(*plot_, palette, colors_);
  marks_.SetColors(palette);
}

void ChartView::ApplyTheme() {
  UseColors(palette());
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

// Reads out the next point of the first series, or the previous one.
void ChartView::ReadBeside(int step) {
  if (!mouseHandler_ || plot_->graphCount() == 0) return;
  const int last = plot_->graph(0)->dataCount() - 1;
  const int point = read_ ? std::clamp(read_->point + step, 0, last) : 0;
  if (last >= 0) mouseHandler_({.inPlot = true, .series = 0, .point = point});
}

void ChartView::Zoom(double factor) {
  for (QCPAxis* axis : {plot_->xAxis, plot_->yAxis}) axis->scaleRange(factor);
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

void ChartView::Pan(double sharesX, double sharesY) {
  plot_->xAxis->moveRange(sharesX * plot_->xAxis->range().size());
  plot_->yAxis->moveRange(sharesY * plot_->yAxis->range().size());
  plot_->replot(QCustomPlot::rpQueuedReplot);
}

void ChartView::keyPressEvent(QKeyEvent* event) {
  constexpr double Nearer = 0.85;
  constexpr double Step = 0.1;
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: return Zoom(Nearer);
    case Qt::Key_Minus: return Zoom(1 / Nearer);
    case Qt::Key_0:
    case Qt::Key_Home: return ShowWhole();
    case Qt::Key_Left: return Pan(-Step, 0);
    case Qt::Key_Right: return Pan(Step, 0);
    case Qt::Key_Up: return Pan(0, Step);
    case Qt::Key_Down: return Pan(0, -Step);
    case Qt::Key_PageDown: return ReadBeside(1);
    case Qt::Key_PageUp: return ReadBeside(-1);
    default: return QWidget::keyPressEvent(event);
  }
}

void ChartView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  setFocus();
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
  UseColors(Paper());
  QPixmap picture = plot_->toPixmap(width, height);
  UseColors(palette());
  return picture;
}

void ChartView::Paint(QCPPainter& painter, const QRectF& place, int width, int height) const {
  UseColors(Paper());
  painter.save();
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  painter.translate(place.topLeft());
  painter.scale(place.width() / width, place.height() / height);
  plot_->toPainter(&painter, width, height);
  painter.restore();
  UseColors(palette());
}

}  // namespace orby
