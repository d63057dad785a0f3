#include "qt/report_view.h"

#include <QMimeData>
#include <QShortcut>
#include <QTextCharFormat>
#include <QTextDocumentFragment>
#include <QWheelEvent>
#include <algorithm>

#include "qt/contrast.h"
#include "qt/texts.h"
#include "reports/line_kinds.h"

namespace orby {
namespace {

// The least and the greatest change of the size, in points.
constexpr int Smallest = -4;
constexpr int Largest = 30;

// The colours of light windows.
constexpr QColor HeadingColour(0x0b, 0x4f, 0x8a);
constexpr QColor WarningColour(0xa8, 0x1c, 0x1c);

// Sets off the lines of a page by their kind.
class LineMarks : public QSyntaxHighlighter {
 public:
  explicit LineMarks(ReportView& view) : QSyntaxHighlighter(view.document()), view_(view) {}

 protected:
  void highlightBlock(const QString& line) override {
    const auto before = LineKind{std::max(previousBlockState(), 0)};
    const LineKind kind = KindOfLine(FromQt(line), before);
    setCurrentBlockState(static_cast<int>(kind));
    if (kind == LineKind::Plain) return;
    const QColor ground = view_.palette().color(QPalette::Base);
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setForeground(Readable(kind == LineKind::Heading ? HeadingColour : WarningColour, ground));
    setFormat(0, static_cast<int>(line.size()), format);
  }

 private:
  const ReportView& view_;
};

}  // namespace

ReportView::ReportView(QWidget* parent) : QPlainTextEdit(parent), marks_(new LineMarks(*this)) {
  AddZoomKey(QKeySequence("Ctrl++"), 1);
  AddZoomKey(QKeySequence("Ctrl+="), 1);  // on most keyboards "+" is on the key of "="
  AddZoomKey(QKeySequence("Ctrl+-"), -1);
  connect(new QShortcut(QKeySequence("Ctrl+0"), this), &QShortcut::activated, this, [this] { ResetZoom(); });
}

void ReportView::AddZoomKey(const QKeySequence& key, int points) {
  connect(new QShortcut(key, this), &QShortcut::activated, this, [this, points] { Zoom(points); });
}

void ReportView::Zoom(int points) {
  const int wanted = std::clamp(zoom_ + points, Smallest, Largest);
  zoomIn(wanted - zoom_);
  zoom_ = wanted;
}

void ReportView::Find(const QString& wanted, TextSearch::Direction direction) {
  const bool isForward = direction == TextSearch::Direction::Forward;
  const QTextDocument::FindFlags flags = isForward ? QTextDocument::FindFlags() : QTextDocument::FindBackward;
  const QTextCursor before = textCursor();
  auto finding = Finding::Found;
  if (!find(wanted, flags)) {
    finding = Finding::FoundAroundTheEnd;
    moveCursor(isForward ? QTextCursor::Start : QTextCursor::End);
    if (!find(wanted, flags)) {
      finding = Finding::NotFound;
      setTextCursor(before);
    }
  }
  if (Searched) Searched(finding);
}

void ReportView::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) marks_->rehighlight();
}

void ReportView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QPlainTextEdit::wheelEvent(event);
  if (event->angleDelta().y() != 0) Zoom(event->angleDelta().y() > 0 ? 1 : -1);
  event->accept();
}

QMimeData* ReportView::createMimeDataFromSelection() const {
  auto* copy = new QMimeData;
  copy->setText(textCursor().selection().toPlainText());
  return copy;
}

}  // namespace orby
