// Reads PDF files through the programs that show them.
#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace orby::test {

// Returns the output of a program that reads PDF files.
std::string Answer(const QString& program, const QStringList& arguments);

// Returns the text of each page of a file.
std::vector<std::string> PdfPages(const QString& path);

struct PdfText {
  int page = 0;  // from 1
  int top = 0;
  int letters = 0;  // the size of its letters
  std::string text;
};

struct PdfBookmark {
  int level = 0;  // from 1
  std::string title;
  int page = 0;

  bool operator==(const PdfBookmark&) const = default;
};

std::ostream& operator<<(std::ostream& out, const PdfBookmark& bookmark);

struct PdfParts {
  std::vector<PdfText> texts;
  std::vector<PdfBookmark> bookmarks;
};

PdfParts PartsOfPdf(const QString& path);

// Returns the named link targets and the page of each.
std::map<std::string, int> PdfPlaces(const QString& path);

}  // namespace orby::test
