// PDF files as the programs that show them see them.
#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace orby::test {

// What a program that reads PDF files prints.
std::string Answer(const QString& program, const QStringList& arguments);

// The text of a file as it stands on its pages, one page a string.
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

// The names of places that links lead to, and the page of each.
std::map<std::string, int> PdfPlaces(const QString& path);

}  // namespace orby::test
