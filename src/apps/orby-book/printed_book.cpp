#include "apps/orby-book/printed_book.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextTable>
#include <cmath>
#include <memory>
#include <stdexcept>

#include "apps/orby-book/page_breaks.h"
#include "apps/orby-book/pdf_file.h"

namespace orby {
namespace {

constexpr int Resolution = 1200;
constexpr double PointsPerInch = 72;
constexpr double PixelsPerInch = 96;
constexpr double MarginSide = 20;  // mm
constexpr double MarginTop = 18;
constexpr double MarginFoot = 22;
constexpr double MillimetresPerInch = 25.4;

constexpr const char* Style =
    "h1 { font-size: 20pt; } h2 { font-size: 14pt; } h3 { font-size: 12pt; }"
    "p { margin-top: 8px; margin-bottom: 8px; }"
    "code { font-family: 'DejaVu Sans Mono'; }"
    "a { color: #1f5f99; text-decoration: none; }"
    "td, th { padding: 3px; }"
    ".entry { padding: 1px; font-size: 10pt; }"
    ".cover { font-size: 30pt; } .under { font-size: 14pt; }";

// Nothing of the machine's own: the same letters everywhere.
QFont BodyFont() { return {"DejaVu Sans", 11}; }

struct Drawing {
  QRectF place;  // in the document
  std::shared_ptr<QSvgRenderer> drawing;
};

class Printout {
 public:
  Printout(const BookSource& book, const QString& cover) : book_(book), cover_(cover), writer_(&buffer_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.setPageSize(QPageSize(QPageSize::A4));
    writer_.setPageMargins({MarginSide, MarginTop, MarginSide, MarginFoot}, QPageLayout::Millimeter);
    writer_.setResolution(Resolution);
    writer_.setTitle(book.title);
    document_.documentLayout()->setPaintDevice(&writer_);
    document_.setDefaultFont(BodyFont());
    document_.setDefaultStyleSheet(Style);
    document_.setDocumentMargin(0);
    document_.setBaseUrl(QUrl::fromLocalFile(book.folder + "/"));
    page_ = QSizeF(writer_.width(), writer_.height());
  }

  QByteArray Make() {
    LayOut();
    // The contents take as much room with the numbers as without.
    if (!cover_.isEmpty()) LayOut();
    FindDrawings();
    Draw();
    QByteArray file = buffer_.data();
    FinishPdf(file, [this](int link) { return PlaceOf(book_.links.value(link)); });
    return file;
  }

 private:
  void LayOut() {
    const QString front = cover_.isEmpty() ? QString() : cover_ + Contents();
    document_.setHtml("<html><body>" + front + book_.body + "</body></html>");
    // All changes are laid out at once, at the end.
    QTextCursor changes(&document_);
    changes.beginEditBlock();
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      BreakBefore(block);
      FitPictures(block);
    }
    for (QTextFrame* frame : document_.rootFrame()->childFrames()) {
      if (auto* table = qobject_cast<QTextTable*>(frame)) DressTable(*table);
    }
    IndentDefinitions(document_, Resolution / PixelsPerInch);
    changes.endEditBlock();
    document_.setPageSize(page_);
    KeepTogether(document_, Resolution / PixelsPerInch);
    places_ = FindPlaces();
  }

  // The links of the contents stand behind those of the pages.
  QString Contents() {
    QString rows;
    book_.links.resize(links_);
    for (const BookChapter& chapter : std::as_const(book_.chapters)) {
      const QString indent = QString("&nbsp;").repeated(5 * chapter.level);
      if (chapter.place.isEmpty()) {
        rows += "<tr><td class=\"entry\"><b>" + chapter.title + "</b></td><td class=\"entry\"></td></tr>";
        continue;
      }
      const QString link = "<a href=\"" + LinkAddress(static_cast<int>(book_.links.size())) + "\">";
      book_.links.append(chapter.place);
      const int page = places_.value(chapter.place).page + 1;
      rows += "<tr><td class=\"entry\">" + indent + link + chapter.title +
              "</a></td><td class=\"entry\" align=\"right\">" + link + QString::number(page) + "</a></td></tr>";
    }
    return "<h1>Contents</h1><table width=\"100%\">" + rows + "</table>";
  }

  void BreakBefore(const QTextBlock& block) {
    const bool isFirst = block == document_.begin();
    if (block.blockFormat().headingLevel() != 1 || isFirst) return;
    QTextBlockFormat format;
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).mergeBlockFormat(format);
  }

  // Gives each picture its width on paper, at most that of the text. Sizes of pictures count in pixels of a screen.
  void FitPictures(const QTextBlock& block) {
    const double most = page_.width() / Resolution * PixelsPerInch;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
      const QTextFragment fragment = at.fragment();
      if (!fragment.charFormat().isImageFormat()) continue;
      QTextImageFormat format = fragment.charFormat().toImageFormat();
      const QSizeF size = SizeOf(format.name());
      const double width = std::min(most, format.width() > 0 ? format.width() : size.width());
      format.setWidth(width);
      format.setHeight(width * size.height() / size.width());
      QTextCursor cursor(&document_);
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + 1, QTextCursor::KeepAnchor);
      cursor.setCharFormat(format);
      return;
    }
  }

  static bool IsDrawing(const QString& name) { return name.endsWith(".svg"); }
  QString PathOf(const QString& name) const { return book_.folder + "/" + name; }

  QSizeF SizeOf(const QString& name) {
    if (IsDrawing(name)) {
      const QSvgRenderer drawing(PathOf(name));
      if (!drawing.isValid()) throw std::runtime_error("cannot read " + PathOf(name).toStdString());
      // Only the place is the document's; the drawing itself is drawn into it.
      QImage empty(drawing.defaultSize(), QImage::Format_ARGB32);
      empty.fill(Qt::transparent);
      document_.addResource(QTextDocument::ImageResource, QUrl(name), empty);
      return drawing.viewBoxF().size();
    }
    const QImage picture(PathOf(name));
    if (picture.isNull()) throw std::runtime_error("cannot read " + PathOf(name).toStdString());
    document_.addResource(QTextDocument::ImageResource, QUrl(name), picture);
    return picture.size();
  }

  // The row of headings comes again on each page of the table.
  static void DressTable(QTextTable& table) {
    QTextTableFormat format = table.format();
    if (format.border() <= 0) return;
    format.setHeaderRowCount(1);
    format.setBorderCollapse(true);
    format.setTopMargin(4);
    format.setBottomMargin(8);
    table.setFormat(format);
    QTextTableCellFormat cell;
    cell.setBorder(0.5);
    cell.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    cell.setBorderBrush(QColor(0x8a, 0x8f, 0x94));
    cell.setPadding(3);
    for (int row = 0; row < table.rows(); ++row) {
      for (int column = 0; column < table.columns(); ++column) table.cellAt(row, column).setFormat(cell);
    }
  }

  // The line that a character stands on, in the document.
  QRectF LineAt(const QTextBlock& block, int position) const {
    const QRectF around = document_.documentLayout()->blockBoundingRect(block);
    const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
    if (!line.isValid()) return around;
    const double left = line.cursorToX(position - block.position());
    return {around.x() + left, around.y() + line.y(), around.width() - left, line.height()};
  }

  PdfPlace PlaceAt(const QRectF& line) const {
    const double page = std::floor(line.y() / page_.height());
    const double down = (line.y() - page * page_.height()) / Resolution * PointsPerInch;
    const double top =
        writer_.pageLayout().fullRectPoints().height() - MarginTop / MillimetresPerInch * PointsPerInch - down;
    return {static_cast<int>(page), top};
  }

  QHash<QString, PdfPlace> FindPlaces() const {
    QHash<QString, PdfPlace> places;
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      for (auto at = block.begin(); !at.atEnd(); ++at) {
        for (const QString& name : at.fragment().charFormat().anchorNames()) {
          places.insert(name, PlaceAt(LineAt(block, at.fragment().position())));
        }
      }
    }
    return places;
  }

  std::optional<PdfPlace> PlaceOf(const QString& name) const {
    const auto found = places_.find(name);
    return found == places_.end() ? std::nullopt : std::optional(*found);
  }

  void FindDrawings() {
    for (QTextBlock block = document_.begin(); block.isValid(); block = block.next()) {
      for (auto at = block.begin(); !at.atEnd(); ++at) {
        if (!at.fragment().charFormat().isImageFormat()) continue;
        const QTextImageFormat format = at.fragment().charFormat().toImageFormat();
        if (!IsDrawing(format.name())) continue;
        const QSizeF size = QSizeF(format.width(), format.height()) * (Resolution / PixelsPerInch);
        const QPointF corner = LineAt(block, at.fragment().position()).topLeft();
        drawings_.append({{corner, size}, std::make_shared<QSvgRenderer>(PathOf(format.name()))});
      }
    }
  }

  void Draw() {
    QPainter painter(&writer_);
    const int pages = document_.pageCount();
    for (int page = 0; page < pages; ++page) {
      if (page > 0) writer_.newPage();
      DrawPage(painter, page);
      if (page > 0 || cover_.isEmpty()) DrawFooter(painter, page + 1);
    }
  }

  void DrawPage(QPainter& painter, int page) {
    const QRectF view(QPointF(0, page * page_.height()), page_);
    painter.save();
    painter.translate(0, -view.top());
    painter.setClipRect(view);
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = view;
    context.palette.setColor(QPalette::Text, Qt::black);
    document_.documentLayout()->draw(&painter, context);
    for (const Drawing& drawing : std::as_const(drawings_)) {
      if (view.intersects(drawing.place)) drawing.drawing->render(&painter, drawing.place);
    }
    painter.restore();
  }

  void DrawFooter(QPainter& painter, int number) const {
    const double line = Resolution / MillimetresPerInch * 6;
    painter.setFont(QFont(BodyFont().family(), 9));
    painter.setPen(QColor(0x60, 0x60, 0x60));
    const QRectF foot(0, page_.height() + line, page_.width(), line);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter, book_.title);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignVCenter, QString::number(number));
  }

  BookSource book_;
  const qsizetype links_ = book_.links.size();
  QString cover_;
  QBuffer buffer_;
  QPdfWriter writer_;
  QTextDocument document_;
  QSizeF page_;
  QHash<QString, PdfPlace> places_;
  QList<Drawing> drawings_;
};

}  // namespace

QByteArray PrintBook(const BookSource& book, const QString& cover) { return Printout(book, cover).Make(); }

}  // namespace orby
