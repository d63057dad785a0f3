#include "apps/orby-book/book_source.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <stdexcept>

namespace orby {
namespace {

QString TextOfFile(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("cannot read " + path.toStdString());
  return QString::fromUtf8(file.readAll());
}

QString Between(const QString& text, const QString& start, const QString& end) {
  const qsizetype from = text.indexOf(start);
  const qsizetype to = text.indexOf(end, from);
  if (from < 0 || to < 0) throw std::runtime_error(("no " + start + " in a page").toStdString());
  return text.mid(from + start.size(), to - from - start.size());
}

// Replaces what the first group of the expression matches.
template <class Replace>
QString Replaced(const QString& text, const char* pattern, const Replace& replacement) {
  QString result;
  qsizetype done = 0;
  const QRegularExpression expression{QString(pattern)};
  for (auto matches = expression.globalMatch(text); matches.hasNext();) {
    const QRegularExpressionMatch match = matches.next();
    result += text.mid(done, match.capturedStart(1) - done) + replacement(match.captured(1));
    done = match.capturedEnd(1);
  }
  return result + text.mid(done);
}

// Adds a page to the book; its first heading bears the place of the page.
QString AddPage(BookSource& book, const QString& path) {
  const QString source = TextOfFile(path);
  const QString page = QFileInfo(path).fileName();
  QString body = Between(source, "<body>", "</body>");
  body = Replaced(body, "<a name=\"([^\"]*)\"", [&page](const QString& name) { return page + "#" + name; });
  body = Replaced(body, "<a href=\"([^\"]*)\"", [&book, &page](const QString& link) {
    book.links.append(link.startsWith('#') ? page + link : link);
    return LinkAddress(static_cast<int>(book.links.size()) - 1);
  });
  body.replace("<h1>", "<h1><a name=\"" + page + "\"></a>");
  book.body += body;
  return Between(source, "<title>", "</title>");
}

}  // namespace

QString LinkAddress(int index) {
  constexpr int Width = 60;
  return QString("place-%1-").arg(index, 6, 10, QChar('0')).leftJustified(Width, '-');
}

BookSource ReadManual(const QString& helpFolder, const QString& title) {
  BookSource book;
  book.title = title;
  book.folder = helpFolder + "/pages";
  for (const QString& line : TextOfFile(helpFolder + "/contents.txt").split('\n', Qt::SkipEmptyParts)) {
    const QString text = line.trimmed();
    const int level = static_cast<int>(line.indexOf(text)) / 2;
    const bool isPage = text.endsWith(".html");
    const QString shown = isPage ? AddPage(book, book.folder + "/" + text) : text.toHtmlEscaped();
    book.chapters.append({level, shown, isPage ? text : QString()});
  }
  return book;
}

BookSource ReadDocument(const QString& page) {
  BookSource book;
  book.folder = QFileInfo(page).path();
  book.title = AddPage(book, page);
  return book;
}

}  // namespace orby
