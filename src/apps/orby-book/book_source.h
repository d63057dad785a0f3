// The pages of the help as one text to be printed.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace orby {

// A line of the table of contents.
struct BookChapter {
  int level = 0;
  QString title;
  QString place;  // empty for a heading over others
};

// Names of places are unique in the whole text: "graph.html", "graph.html#frmGraph.Text1". A link leads to
// LinkAddress(its index in Links).
struct BookSource {
  QString title;
  QString folder;  // of the pictures
  QList<BookChapter> chapters;
  QString body;  // HTML
  QStringList links;
};

// The address of a link until the place that it leads to is known; as long as what takes its place in the file.
QString LinkAddress(int index);

// Both throw std::runtime_error when a file cannot be read.
BookSource ReadManual(const QString& helpFolder, const QString& title);
BookSource ReadDocument(const QString& page);

}  // namespace orby
