#include "qt/rows_view.h"

#include <QKeyEvent>
#include <algorithm>

#include "qt/texts.h"

namespace orby {
namespace {

// Returns the head in lines: a line break after the name of the support, and before a unit.
QString InLines(QString head) { return head.replace(": ", ":\n").replace(" (", "\n("); }

}  // namespace

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= table_.Rows() || index.column() >= table_.Columns()) return {};
  if (role != Qt::DisplayRole && role != Qt::TextAlignmentRole && role != Qt::ToolTipRole) return {};
  const RowTableCell cell = table_.CellAt(index.row(), index.column());
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue(Qt::AlignVCenter | (cell.IsNumber ? Qt::AlignRight : Qt::AlignLeft));
  }
  // A long text is cut on the screen.
  if (role == Qt::ToolTipRole && cell.IsNumber) return {};
  return ToQt(cell.Text);
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= table_.Columns()) return {};
  const QString head = ToQt(table_.Heads()[static_cast<std::size_t>(section)]);
  if (role == Qt::DisplayRole) return InLines(head);
  if (role == Qt::AccessibleTextRole || role == Qt::ToolTipRole) return head;
  return {};
}

void RowsModel::TakeColumns() {
  beginResetModel();
  columns_ = table_.Columns();
  rows_ = table_.Rows();
  endResetModel();
}

// The rows that remain keep their places, so the view stays where it is.
void RowsModel::TakeRows() {
  const int rows = table_.Rows();
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
  if (rows_ > 0 && columns_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
}

RowsView::RowsView(QWidget* parent) : WholeRows(parent) {
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setSortIndicatorShown(true);
  // Only rows on view are asked for their widths.
  horizontalHeader()->setResizeContentsPrecision(0);
}

void RowsView::FitColumns() {
  constexpr int MostCharacters = 48;
  const int most = fontMetrics().averageCharWidth() * MostCharacters;
  for (int column = 0; column < model()->columnCount(); ++column) {
    const int wanted = std::max(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
    setColumnWidth(column, std::min(wanted, most));
  }
}

void RowsView::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && event->modifiers() == Qt::NoModifier && currentIndex().isValid()) {
    if (Opened) Opened();
    return event->accept();
  }
  if (event->matches(QKeySequence::Copy)) {
    if (Copied) Copied();
    return event->accept();
  }
  QTableView::keyPressEvent(event);
}

}  // namespace orby
