#include "apps/orby-book/pdf_file.h"

#include <QList>
#include <stdexcept>
#include <string>

#include "apps/orby-book/book_source.h"

namespace orby {
namespace {

// The object numbers of the pages in their order: "/Kids [" and "N 0 R" each.
QList<QByteArray> PageObjects(const QByteArray& file) {
  const qsizetype start = file.indexOf('[', file.indexOf("/Kids")) + 1;
  QByteArray kids = file.mid(start, file.indexOf(']', start) - start).simplified();
  QList<QByteArray> pages;
  for (const QByteArray& part : kids.split('R')) {
    if (const QByteArray number = part.trimmed().split(' ').front(); !number.isEmpty()) pages.append(number);
  }
  return pages;
}

void ReplaceSameLength(QByteArray& file, qsizetype at, qsizetype length, const QByteArray& replacement) {
  if (replacement.size() > length) throw std::runtime_error("no room for " + replacement.toStdString());
  file.replace(at, length, replacement.leftJustified(length, ' '));
}

void FixDate(QByteArray& file) {
  const QByteArray key = "/CreationDate (D:";
  const qsizetype start = file.indexOf(key) + key.size();
  const qsizetype length = file.indexOf(')', start) - start;
  file.replace(start, length, QByteArray("20230507000000Z").left(length).leftJustified(length, 'Z'));
}

}  // namespace

void FinishPdf(QByteArray& file, const std::function<std::optional<PdfPlace>(int link)>& placeOf) {
  const QList<QByteArray> pages = PageObjects(file);
  const QByteArray start = "/S /URI\n/URI (place-";
  for (qsizetype at = file.indexOf(start); at >= 0; at = file.indexOf(start, at)) {
    const qsizetype length = file.indexOf(')', at) + 1 - at;
    const int link = file.mid(at + start.size(), 6).toInt();
    const auto place = placeOf(link);
    if (!place || place->page >= pages.size()) throw std::runtime_error("link " + std::to_string(link) + " is loose");
    const QByteArray target =
        "/S /GoTo\n/D [" + pages[place->page] + " 0 R /XYZ null " + QByteArray::number(place->top, 'f', 1) + " null]";
    ReplaceSameLength(file, at, length, target);
  }
  FixDate(file);
}

}  // namespace orby
