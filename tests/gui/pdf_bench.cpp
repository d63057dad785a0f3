#include "gui/pdf_bench.h"

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <stdexcept>

namespace orby::test {
namespace {

int Number(const QXmlStreamReader& reader, const char* name) {
  return reader.attributes().value(QString(name)).toInt();
}

}  // namespace

std::string Answer(const QString& program, const QStringList& arguments) {
  QProcess reader;
  reader.start(program, arguments);
  if (!reader.waitForFinished()) throw std::logic_error(program.toStdString() + " does not run");
  return reader.readAllStandardOutput().toStdString();
}

std::vector<std::string> PdfPages(const QString& path) {
  const QString text = QString::fromStdString(Answer("pdftotext", {"-layout", path, "-"}));
  std::vector<std::string> pages;
  for (const QString& page : text.split('\f', Qt::SkipEmptyParts)) pages.push_back(page.toStdString());
  return pages;
}

std::ostream& operator<<(std::ostream& out, const PdfBookmark& bookmark) {
  return out << std::string(static_cast<std::size_t>(2 * bookmark.level), ' ') << bookmark.title << ", page "
             << bookmark.page;
}

PdfParts PartsOfPdf(const QString& path) {
  PdfParts parts;
  std::map<int, int> fonts;  // their sizes
  int page = 0;
  int level = 0;
  QXmlStreamReader reader(QString::fromStdString(Answer("pdftohtml", {"-q", "-xml", "-stdout", "-i", path})));
  while (!reader.atEnd()) {
    reader.readNext();
    const auto name = reader.name();
    if (name == QString("outline")) level += reader.isStartElement() ? 1 : -1;
    if (!reader.isStartElement()) continue;
    if (name == QString("page")) page = Number(reader, "number");
    if (name == QString("fontspec")) fonts[Number(reader, "id")] = Number(reader, "size");
    if (name == QString("text")) {
      PdfText text{page, Number(reader, "top"), fonts.at(Number(reader, "font")), {}};
      text.text = reader.readElementText(QXmlStreamReader::IncludeChildElements).toStdString();
      parts.texts.push_back(text);
    } else if (name == QString("item")) {
      const int target = Number(reader, "page");
      parts.bookmarks.push_back({level, reader.readElementText().toStdString(), target});
    }
  }
  if (reader.hasError()) throw std::logic_error("cannot read " + path.toStdString());
  return parts;
}

std::map<std::string, int> PdfPlaces(const QString& path) {
  std::map<std::string, int> places;
  const QString list = QString::fromStdString(Answer("pdfinfo", {"-dests", path}));
  const QRegularExpression line("^ *(\\d+) .*\"([^\"]*)\"$", QRegularExpression::MultilineOption);
  for (auto found = line.globalMatch(list); found.hasNext();) {
    const QRegularExpressionMatch place = found.next();
    places[place.captured(2).toStdString()] = place.captured(1).toInt();
  }
  return places;
}

}  // namespace orby::test
