#include "qt/printer.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <algorithm>

#include "base/runtime_error.h"
#include "base/text.h"
#include "qt/bound_form.h"
#include "qt/chart_view.h"
#include "qt/texts.h"

namespace orby {
namespace {

// What a sheet of text has room for.
constexpr int LinesPerSheet = 66;
constexpr int ColumnsPerSheet = 84;
constexpr int LargestSize = 11;  // points

constexpr int ChartWidth = 800;
constexpr int ChartHeight = 1000;
constexpr double ChartMargin = 1.0 / 40;  // of the chart's width

// The largest size in which a sheet of text fits the paper.
QFont SheetFont(const QString& name, QPrinter& paper) {
  QFont font = name.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont(name);
  font.setStyleHint(QFont::TypeWriter, QFont::PreferNoShaping);  // two letters drawn as one would shift the columns
  const QRectF area = paper.pageRect(QPrinter::DevicePixel);
  for (int size = LargestSize; size > 4; --size) {
    font.setPointSize(size);
    const QFontMetricsF metrics(font, &paper);
    const bool fits = metrics.horizontalAdvance('0') * ColumnsPerSheet <= area.width() &&
                      metrics.lineSpacing() * LinesPerSheet <= area.height();
    if (fits) break;
  }
  return font;
}

void PaintLines(QPainter& painter, std::string_view text) {
  const QFontMetricsF metrics(painter.font(), painter.device());
  double baseline = metrics.ascent();
  while (!text.empty()) {
    painter.drawText(QPointF(0, baseline), ToQt(TakeLine(text)));
    baseline += metrics.lineSpacing();
  }
}

}  // namespace

QPrinter& QtPrinter::Device() {
  if (!device_) device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *device_;
}

QPrinter& QtPrinter::ReadyDevice() {
  QPrinter& device = Device();
  const bool toFile = device.outputFormat() == QPrinter::PdfFormat && !device.outputFileName().isEmpty();
  if (!toFile && QPrinterInfo::defaultPrinter().isNull() && device.printerName().isEmpty()) {
    throw RuntimeError(error_number::Printer);
  }
  return device;
}

void QtPrinter::Choose() {
  QPrintDialog dialog(&Device(), QApplication::activeWindow());
  if (dialog.exec() != QDialog::Accepted) throw RuntimeError(error_number::Cancelled);
}

void QtPrinter::SetUp() { Choose(); }

void QtPrinter::PrintPages(const std::vector<std::string>& pages, const std::string& documentName,
                           const std::string& fontName) {
  QPrinter& device = ReadyDevice();
  device.setDocName(ToQt(documentName));
  QPainter painter;
  if (!painter.begin(&device)) throw RuntimeError(error_number::Printer);
  painter.setFont(SheetFont(ToQt(fontName), device));
  bool first = true;
  for (const std::string& page : pages) {
    if (!std::exchange(first, false) && !device.newPage()) throw RuntimeError(error_number::Printer);
    PaintLines(painter, page);
  }
  if (!painter.end()) throw RuntimeError(error_number::Printer);
}

void QtPrinter::PrintChart(const Control& chart) {
  const auto* view = dynamic_cast<const ChartView*>(WidgetOnScreen(chart));
  if (view == nullptr) return;
  QPrinter& device = ReadyDevice();
  device.setDocName(QString());
  const QRectF area = device.pageRect(QPrinter::DevicePixel);
  const double margin = area.width() * ChartMargin;
  const double scale = std::min((area.width() - 2 * margin) / ChartWidth, (area.height() - 2 * margin) / ChartHeight);
  const QRectF place(margin, margin, ChartWidth * scale, ChartHeight * scale);
  if (!view->PaintOn(device, place, ChartWidth, ChartHeight)) throw RuntimeError(error_number::Printer);
}

}  // namespace orby
