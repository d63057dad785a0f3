#include "qt/printer.h"

#include <qcustomplot.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <algorithm>

#include "base/runtime_error.h"
#include "base/text.h"
#include "core/program.h"
#include "core/version.h"
#include "machine/desktop.h"
#include "qt/bound_form.h"
#include "qt/chart_view.h"
#include "qt/scene_painter.h"
#include "qt/texts.h"
#include "reports/printing.h"

namespace orby {
namespace {

constexpr QMarginsF Margins{20, 15, 20, 15};  // of a sheet, mm
constexpr int LargestSize = 11;               // points

constexpr int ChartWidth = 800;
constexpr int ChartHeight = 1000;
constexpr int HeadingSize = 10;           // points
constexpr double ChartMargin = 1.0 / 40;  // of the chart's width

// Returns the font in the largest size in which a sheet fits the paper.
QFont SheetFont(const QString& name, QPrinter& paper) {
  QFont font = name.isEmpty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont(name);
  font.setStyleHint(QFont::TypeWriter, QFont::PreferNoShaping);  // two letters drawn as one would shift the columns
  const QRectF area = paper.pageRect(QPrinter::DevicePixel);
  for (int size = LargestSize; size > 4; --size) {
    font.setPointSize(size);
    const QFontMetricsF metrics(font, &paper);
    const bool fits = metrics.horizontalAdvance('0') * PrintedWidth <= area.width() &&
                      metrics.lineSpacing() * PrintedLines <= area.height();
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

// Paints the lines at the top of the area, the first one in bold. Returns the height at which they end.
double PaintHeading(QPainter& painter, const std::vector<std::string>& lines, const QRectF& area) {
  QFont font = painter.font();
  font.setPointSize(HeadingSize);
  font.setBold(true);
  double top = area.top();
  for (const std::string& line : lines) {
    painter.setFont(font);
    QRectF used;
    painter.drawText(QRectF(QPointF(area.left(), top), area.bottomRight()), Qt::TextWordWrap, ToQt(line), &used);
    top = used.bottom();
    font.setBold(false);
  }
  return top + QFontMetricsF(font, painter.device()).height();
}

bool IsFile(const QPrinter& device) {
  return device.outputFormat() == QPrinter::PdfFormat && !device.outputFileName().isEmpty();
}

// Returns the path of a PDF file with this name in the folder of the other file.
QString NameBeside(const QString& other, const std::string& fileName) {
  return QFileInfo(other).dir().filePath(ToQt(fileName) + ".pdf");
}

// Returns the path if it is free, else the first free one of "NAME (2).pdf", "NAME (3).pdf" and so on.
QString NewName(const QString& path) {
  const QFileInfo file(path);
  QString name = path;
  for (int number = 2; QFileInfo::exists(name); ++number) {
    name = file.dir().filePath(QString("%1 (%2).%3").arg(file.completeBaseName()).arg(number).arg(file.suffix()));
  }
  return name;
}

// Returns false if the user cancels.
bool AskForPdfFile(QPrinter& device, QWidget* parent) {
  const QDir documents(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  const QString suggested = IsFile(device) ? device.outputFileName() : documents.filePath(device.docName());
  const QString path = QFileDialog::getSaveFileName(parent, "Print to File", suggested, "PDF (*.pdf)");
  if (path.isEmpty()) return false;
  device.setOutputFormat(QPrinter::PdfFormat);
  device.setOutputFileName(path);
  return true;
}

// Turns the paper for pages that are wider than they are high. The next print has it as before.
class TurnedPaper {
 public:
  TurnedPaper(QPrinter& device, const std::vector<Scene>& pages)
      : device_(device), before_(device.pageLayout().orientation()) {
    const bool isWide = !pages.empty() && pages.front().Width > pages.front().Height;
    if (isWide) device_.setPageOrientation(QPageLayout::Landscape);
  }
  TurnedPaper(const TurnedPaper&) = delete;
  TurnedPaper& operator=(const TurnedPaper&) = delete;
  ~TurnedPaper() { device_.setPageOrientation(before_); }

 private:
  QPrinter& device_;
  QPageLayout::Orientation before_;
};

}  // namespace

bool AskForPaper(QPrinter& device, QWidget* parent) {
  if (!PrintsToFiles() && QPrinterInfo::availablePrinterNames().isEmpty()) return AskForPdfFile(device, parent);
  QPrintDialog dialog(&device, parent);
  return dialog.exec() == QDialog::Accepted;
}

// One document that is being printed, with the margins of a sheet. The print ends with this object.
class QtPrinter::Job {
 public:
  Job(QtPrinter& printer, const std::string& title)
      : device_(printer.Device()),
        chosenFile_(device_.outputFileName()),
        chosenOrientation_(device_.pageLayout().orientation()) {
    const bool toFile = IsFile(device_);
    if (!toFile && QPrinterInfo::defaultPrinter().isNull() && device_.printerName().isEmpty()) {
      throw RuntimeError(error_number::Printer);
    }
    device_.setDocName(ToQt(title));
    device_.setPageMargins(Margins, QPageLayout::Millimeter);
    if (toFile && !printer.mayReplace_) device_.setOutputFileName(NewName(chosenFile_));
  }
  // Turns the paper as it is best for a scene, until the print ends.
  void TurnFor(const Scene& scene) {
    if (scene.Width > scene.Height) device_.setPageOrientation(QPageLayout::Landscape);
  }
  Job(const Job&) = delete;
  Job& operator=(const Job&) = delete;
  ~Job() {
    if (device_.pageLayout().orientation() != chosenOrientation_) device_.setPageOrientation(chosenOrientation_);
    if (device_.outputFileName() != chosenFile_) device_.setOutputFileName(chosenFile_);
  }

  QPrinter& Device() { return device_; }
  std::string File() const { return PathFromQt(device_.outputFileName()); }

 private:
  QPrinter& device_;
  QString chosenFile_;
  QPageLayout::Orientation chosenOrientation_;
};

QPrinter& QtPrinter::Device() {
  if (!device_) {
    device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    device_->setCreator(ToQt(std::string(ProgramTitle) + " " + VersionText()));
  }
  return *device_;
}

void QtPrinter::ShowDialog() {
  if (!AskForPaper(Device(), QApplication::activeWindow())) throw RuntimeError(error_number::Cancelled);
}

// The dialog suggests a file with the name of the document until the user has chosen a file.
void QtPrinter::Choose(const std::string& fileName) {
  QPrinter& device = Device();
  const QString before = device.outputFileName();
  device.setDocName(ToQt(fileName) + ".pdf");
  if (IsFile(device)) device.setOutputFileName(NameBeside(before, fileName));
  try {
    ShowDialog();
  } catch (const RuntimeError&) {
    if (device.outputFileName() != before) device.setOutputFileName(before);
    throw;
  }
  mayReplace_ = true;
  chosenFor_ = fileName;
}

void QtPrinter::ChooseAsBefore(const std::string& fileName) {
  mayReplace_ = false;
  QPrinter& device = Device();
  if (IsFile(device) && !chosenFor_.empty() && chosenFor_ != fileName) {
    device.setOutputFileName(NameBeside(device.outputFileName(), fileName));
  }
  chosenFor_ = fileName;
}

void QtPrinter::SetUp() {
  ShowDialog();
  chosenFor_.clear();
}

std::string QtPrinter::PrintPages(const std::vector<std::string>& pages, const std::string& title,
                                  const std::string& fontName) {
  Job job(*this, title);
  QPrinter& device = job.Device();
  QPainter painter;
  if (!painter.begin(&device)) throw RuntimeError(error_number::Printer);
  // The device still has the scale of a previously printed chart.
  painter.setWorldTransform({});
  painter.setFont(SheetFont(ToQt(fontName), device));
  bool first = true;
  for (const std::string& page : pages) {
    if (!std::exchange(first, false) && !device.newPage()) throw RuntimeError(error_number::Printer);
    PaintLines(painter, page);
  }
  if (!painter.end()) throw RuntimeError(error_number::Printer);
  mayReplace_ = false;
  return job.File();
}

void QtPrinter::PrintScenes(const std::vector<Scene>& pages, const std::string& title) {
  Job job(*this, title);
  if (!pages.empty()) job.TurnFor(pages.front());
  QPrinter& device = job.Device();
  const TurnedPaper turned(device, pages);
  QPainter painter;
  if (!painter.begin(&device)) throw RuntimeError(error_number::Printer);
  painter.setWorldTransform({});
  bool first = true;
  for (const Scene& page : pages) {
    if (!std::exchange(first, false) && !device.newPage()) throw RuntimeError(error_number::Printer);
    const QRectF paper = device.pageRect(QPrinter::DevicePixel);
    PaintScene(painter, page, QRectF(QPointF(), paper.size()), Qt::black);
  }
  if (!painter.end()) throw RuntimeError(error_number::Printer);
  mayReplace_ = false;
}

void QtPrinter::PrintChart(const Control& chart, const std::vector<std::string>& heading) {
  const auto* view = dynamic_cast<const ChartView*>(WidgetOnScreen(chart));
  if (view == nullptr) return;
  Job job(*this, heading.front());
  QPrinter& device = job.Device();
  const QRectF paper = device.pageRect(QPrinter::DevicePixel);
  const double margin = paper.width() * ChartMargin;
  const QRectF area(margin, margin, paper.width() - 2 * margin, paper.height() - 2 * margin);
  QCPPainter painter;
  if (!painter.begin(&device)) throw RuntimeError(error_number::Printer);
  const double top = PaintHeading(painter, heading, area);
  const double scale = std::min(area.width() / ChartWidth, (area.bottom() - top) / ChartHeight);
  const QRectF place(margin, top, ChartWidth * scale, ChartHeight * scale);
  view->Paint(painter, place, ChartWidth, ChartHeight);
  if (!painter.end()) throw RuntimeError(error_number::Printer);
  mayReplace_ = false;
}

}  // namespace orby
