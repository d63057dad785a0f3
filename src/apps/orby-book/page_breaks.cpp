#include "apps/orby-book/page_breaks.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <vector>

namespace orby {
namespace {

constexpr int MostPasses = 50;
constexpr int ShortParagraph = 5;   // lines; one of more may leave its last line alone
constexpr double NearlyTop = 0.1;   // of a page: nothing is gained by a new page
constexpr double ShortTable = 0.3;  // of a page: stays whole
constexpr double MostOfRow = 0.5;   // of a page: higher rows may be split
constexpr double TermToText = 3;    // pixels
constexpr int MovedByMargin = QTextFormat::UserProperty + 1;
constexpr double CellEnd = 18;  // pixels: what is below the last line of a cell, less than a line

bool IsDefinition(const QTextBlock& block) {
  return block.isValid() && block.blockFormat().leftMargin() > 0 && block.textList() == nullptr;
}

bool IsTerm(const QTextBlock& block) { return !IsDefinition(block) && IsDefinition(block.next()); }

bool IsPicture(const QTextBlock& block) { return block.text().trimmed() == QChar(QChar::ObjectReplacementCharacter); }

// A block of the text itself, or a table in it.
struct Item {
  QTextBlock block;
  QTextTable* table = nullptr;
};

std::vector<Item> ItemsOf(const QTextDocument& document) {
  std::vector<Item> items;
  for (auto at = document.rootFrame()->begin(); !at.atEnd(); ++at) {
    auto* table = qobject_cast<QTextTable*>(at.currentFrame());
    // Qt puts an empty block before each table.
    if (table != nullptr || !at.currentBlock().text().isEmpty()) items.push_back({at.currentBlock(), table});
  }
  return items;
}

class Keeper {
 public:
  Keeper(QTextDocument& document, double dots)
      : document_(document), dots_(dots), height_(document.pageSize().height()), items_(ItemsOf(document)) {
    // Lays out what has not been yet.
    document_.pageCount();
  }

  // Mends the first fault of each chapter, which begin on pages of their own. False when there is none.
  bool Mend() {
    bool isChapterDone = false;
    for (std::size_t i = 0; i < items_.size(); ++i) {
      if (items_[i].block.blockFormat().headingLevel() == 1) isChapterDone = false;
      if (isChapterDone) continue;
      isChapterDone = items_[i].table != nullptr ? MendTable(i) : MendEmptyPage(i) || (IsTornAt(i) && BreakBefore(i));
    }
    QTextCursor changes(&document_);
    changes.beginEditBlock();
    for (const auto& change : changes_) change();
    changes.endEditBlock();
    return !changes_.empty();
  }

 private:
  double LineTop(const QTextBlock& block, int line) const {
    return document_.documentLayout()->blockBoundingRect(block).y() + block.layout()->lineAt(line).y();
  }
  int PageOf(double y) const { return static_cast<int>(std::floor((y + 1) / height_)); }
  int PageOfLine(const QTextBlock& block, int line) const { return PageOf(LineTop(block, line)); }
  int LastLine(const QTextBlock& block) const { return block.layout()->lineCount() - 1; }

  // The page on which an item really begins: a table with its first row behind the headings.
  int FirstPage(const Item& item) const {
    if (item.table == nullptr) return PageOfLine(item.block, 0);
    const QTextTableCell cell = item.table->cellAt(std::min(1, item.table->rows() - 1), 0);
    return PageOfLine(cell.firstCursorPosition().block(), 0);
  }

  // The page on which an item ends.
  int LastPage(const Item& item) const {
    const QTextBlock block = item.table == nullptr ? item.block : item.table->lastCursorPosition().block();
    return PageOfLine(block, LastLine(block));
  }

  // Where a table ends at the foot of a page, Qt has turned that page already when it comes to what follows, and a new
  // page would be one too many. The block is moved to the top of its page by its margin then.
  bool MendEmptyPage(std::size_t i) {
    const QTextBlock& block = items_[i].block;
    const bool hasBreak = block.blockFormat().pageBreakPolicy() != QTextFormat::PageBreak_Auto;
    if (i == 0 || !hasBreak || FirstPage(items_[i]) - LastPage(items_[i - 1]) < 2) return false;
    changes_.emplace_back([block] {
      QTextBlockFormat format;
      format.setPageBreakPolicy(QTextFormat::PageBreak_Auto);
      format.setProperty(MovedByMargin, true);
      QTextCursor(block).mergeBlockFormat(format);
    });
    return true;
  }

  bool StaysWithNext(std::size_t i) const {
    if (items_[i].table != nullptr || i + 1 == items_.size()) return false;
    const QTextBlock& block = items_[i].block;
    const Item& next = items_[i + 1];
    return block.blockFormat().headingLevel() > 0 || IsTerm(block) || next.table != nullptr || IsPicture(next.block) ||
           block.text().trimmed().endsWith(':');
  }

  bool IsTornAt(std::size_t i) const {
    const QTextBlock& block = items_[i].block;
    const int last = LastLine(block);
    if (last < 0) return false;
    if (StaysWithNext(i) && PageOfLine(block, last) != FirstPage(items_[i + 1])) return true;
    if (last == 0) return false;
    if (PageOfLine(block, 0) != PageOfLine(block, 1)) return true;
    return last < ShortParagraph && PageOfLine(block, last - 1) != PageOfLine(block, last);
  }

  // A new page before the item and all that must not leave it. False when that gains nothing.
  bool BreakBefore(std::size_t i) {
    while (i > 0 && StaysWithNext(i - 1)) --i;
    const QTextBlock& block = items_[i].block;
    if (items_[i].table != nullptr || block.blockFormat().pageBreakPolicy() != QTextFormat::PageBreak_Auto)
      return false;
    const double top = LineTop(block, 0);
    if (top - PageOf(top) * height_ < NearlyTop * height_) return false;
    const double rest = (PageOf(top) + 1) * height_ - top;
    changes_.emplace_back([block, pixels = rest / dots_] {
      QTextBlockFormat format;
      if (block.blockFormat().boolProperty(MovedByMargin)) {
        format.setTopMargin(block.blockFormat().topMargin() + pixels);
      } else {
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
      }
      QTextCursor(block).mergeBlockFormat(format);
    });
    return true;
  }

  bool MendTable(std::size_t i) {
    const QTextTable& table = *items_[i].table;
    if (table.format().border() <= 0) return false;
    const double first = TopOfCell(table.cellAt(0, 0));
    const double lowest = TopOfCell(table.cellAt(table.rows() - 1, 0));
    if (PageOf(first) != PageOf(lowest) && lowest - first < ShortTable * height_ && BreakBefore(i)) return true;
    for (int row = 1; row < table.rows(); ++row) {
      double top = TopOfCell(table.cellAt(row, 0));
      double last = top;
      for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        const QTextBlock end = cell.lastCursorPosition().block();
        top = std::min(top, TopOfCell(cell));
        last = std::max(last, LineTop(end, LastLine(end)));
      }
      if (PageOf(top) == PageOf(last) || last - top > MostOfRow * height_) continue;
      return row == 1 ? BreakBefore(i) : Lengthen(table, row - 1, (PageOf(top) + 1) * height_ - top);
    }
    return false;
  }

  double TopOfCell(const QTextTableCell& cell) const { return LineTop(cell.firstCursorPosition().block(), 0); }

  // The row takes the rest of its page by an empty line in each cell, and the next one begins on a new page.
  bool Lengthen(const QTextTable& table, int row, double rest) {
    if (table.cellAt(row, 0).lastCursorPosition().blockFormat().lineHeightType() == QTextBlockFormat::FixedHeight) {
      return false;
    }
    changes_.emplace_back([&table, row, pixels = rest / dots_ - CellEnd] {
      QTextBlockFormat format;
      format.setLineHeight(pixels, QTextBlockFormat::FixedHeight);
      for (int column = 0; column < table.columns(); ++column) {
        table.cellAt(row, column).lastCursorPosition().insertBlock(format);
      }
    });
    return true;
  }

  QTextDocument& document_;
  double dots_;
  double height_;
  std::vector<Item> items_;
  std::vector<std::function<void()>> changes_;
};

}  // namespace

void IndentDefinitions(QTextDocument& document, double dots) {
  // From the end: a block counts as a definition by its margin.
  for (QTextBlock block = document.lastBlock(); block.isValid(); block = block.previous()) {
    if (!IsDefinition(block)) continue;
    QTextBlockFormat format = block.blockFormat();
    format.setLeftMargin(format.leftMargin() * dots);
    if (IsTerm(block.previous())) format.setTopMargin(TermToText);
    QTextCursor(block).setBlockFormat(format);
    if (!IsTerm(block.previous())) continue;
    QTextBlockFormat term;
    term.setBottomMargin(TermToText);
    QTextCursor(block.previous()).mergeBlockFormat(term);
  }
}

void KeepTogether(QTextDocument& document, double dots) {
  for (int pass = 0; pass < MostPasses && Keeper(document, dots).Mend(); ++pass) {
    // Once more, with the pages as they are now.
  }
}

}  // namespace orby
