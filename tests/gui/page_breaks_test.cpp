// Where the pages of the printed manual end, on made-up pages.
#include "apps/orby-book/page_breaks.h"

#include <gmock/gmock.h>

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextTable>
#include <set>

namespace orby::test {
namespace {

constexpr QSizeF Page(600, 800);

// A chapter with a table in its list, which begins so far down.
QString Chapter(int down) {
  return QString(
             "<h1>The roof bolts</h1><ol style=\"margin-top:%1px\"><li>Stability factor: type 1.2. In the output you "
             "read:<table border=\"1\"><tr><th>Output</th><th>Shown</th></tr><tr><td>Suggested PSUP</td>"
             "<td>8.6</td></tr><tr><td>Actual PSUP</td><td>5.1</td></tr></table></li>"
             "<li>Actual bolt length 6, bolts in a row 4, and a row spacing of 4: leave all of them as they are. The "
             "bolt is longer than the suggested 4.8 ft.</li><li>Choose the first row of the standard table. It gives "
             "5.1, which is too little.</li></ol>")
      .arg(down);
}

// As the tables of the manual are.
void Dress(QTextDocument& document) {
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    auto& table = dynamic_cast<QTextTable&>(*frame);
    QTextTableFormat format = table.format();
    format.setHeaderRowCount(1);
    format.setBorderCollapse(true);
    format.setBottomMargin(8);
    table.setFormat(format);
    QTextTableCellFormat cell;
    cell.setBorder(0.5);
    cell.setPadding(3);
    for (int row = 0; row < table.rows(); ++row) {
      for (int column = 0; column < table.columns(); ++column) table.cellAt(row, column).setFormat(cell);
    }
  }
}

// The pages on which a line of text stands, from 0.
std::set<int> PagesWithText(const QTextDocument& document) {
  std::set<int> pages;
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.text().isEmpty()) continue;
    const double top = document.documentLayout()->blockBoundingRect(block).y();
    for (int line = 0; line < block.layout()->lineCount(); ++line) {
      pages.insert(static_cast<int>((top + block.layout()->lineAt(line).y() + 1) / Page.height()));
    }
  }
  return pages;
}

std::set<int> AllPages(const QTextDocument& document) {
  std::set<int> pages;
  for (int page = 0; page < document.pageCount(); ++page) pages.insert(page);
  return pages;
}

TEST(PrintedPages, AreNeverEmptyBetweenTwoOthers) {
  for (int down = 0; down < 800; ++down) {
    QTextDocument document;
    document.setHtml(Chapter(down));
    Dress(document);
    document.setPageSize(Page);

    KeepTogether(document, 1);

    EXPECT_EQ(PagesWithText(document), AllPages(document)) << "with the table " << down << " pixels down";
  }
}

}  // namespace
}  // namespace orby::test
