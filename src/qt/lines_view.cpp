#include "qt/lines_view.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "qt/texts.h"

namespace orby {
namespace {

// Rows are 32-bit numbers, and so are places on the screen: those far away all lie at one of these.
constexpr qint64 FarBelow = qint64{1} << 30;

constexpr int MarginPixels = 4;  // left and right of a line

// What a window without a wish of its own shows.
constexpr int UsualColumns = 80;
constexpr int UsualLines = 30;

}  // namespace

void LinesModel::Show(const std::string& text) {
  if (&text != text_ || text.size() < index_.Length()) {
    beginResetModel();
    text_ = &text;
    index_.Clear();
    endResetModel();
  }
  if (text.size() == index_.Length()) return;
  const int before = rowCount();
  LineIndex grown = std::move(index_);
  grown.Extend(text);
  const int after = static_cast<int>(grown.Count());
  // The last line may have gone on.
  if (before == after) {
    index_ = std::move(grown);
  } else {
    beginInsertRows({}, before, after - 1);
    index_ = std::move(grown);
    endInsertRows();
  }
  if (before > 0) emit dataChanged(index(before - 1), index(before - 1));
}

std::string LinesModel::WholeLine(int row) const {
  return LineText(index_.Line(*text_, static_cast<std::size_t>(row)));
}

int LinesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(index_.Count());
}

QVariant LinesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || role != Qt::DisplayRole) return {};
  return ToQt(ShownLine(index_.Line(*text_, static_cast<std::size_t>(index.row()))));
}

LinesView::LinesView(QWidget* parent) : QListView(parent) {
  setModel(&lines_);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  viewport()->setBackgroundRole(QPalette::Base);
}

void LinesView::ShowText(const std::string& text) { lines_.Show(text); }

QString LinesView::SelectedText() const {
  QItemSelection ranges = selectionModel()->selection();
  std::ranges::sort(ranges, {}, &QItemSelectionRange::top);
  std::string text;
  for (const QItemSelectionRange& range : ranges) {
    for (int row = range.top(); row <= range.bottom(); ++row) text.append(lines_.WholeLine(row)).append("\n");
  }
  return ToQt(text);
}

// ---- places --------------------------------------------------------------------------------------------------------

int LinesView::LineHeight() const { return std::max(1, fontMetrics().lineSpacing()); }
int LinesView::LinesOnView() const { return std::max(1, viewport()->height() / LineHeight()); }
int LinesView::RowAt(int y) const {
  const int row = y >= 0 ? y / LineHeight() : (y - LineHeight() + 1) / LineHeight();
  return verticalScrollBar()->value() + row;
}

int LinesView::horizontalOffset() const { return horizontalScrollBar()->value(); }
int LinesView::verticalOffset() const {
  return static_cast<int>(std::min(qint64{verticalScrollBar()->value()} * LineHeight(), FarBelow));
}

QRect LinesView::visualRect(const QModelIndex& index) const {
  if (!index.isValid()) return {};
  const qint64 top = (qint64{index.row()} - verticalScrollBar()->value()) * LineHeight();
  const int width = std::max(viewport()->width(), widest_);
  return {-horizontalOffset(), static_cast<int>(std::clamp(top, -FarBelow, FarBelow)), width, LineHeight()};
}

QModelIndex LinesView::indexAt(const QPoint& point) const {
  const int row = RowAt(point.y());
  return row >= 0 && row < lines_.rowCount() ? lines_.index(row) : QModelIndex();
}

void LinesView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  QScrollBar& bar = *verticalScrollBar();
  const int highest = index.row() - LinesOnView() + 1;
  switch (hint) {
    case PositionAtTop: bar.setValue(index.row()); break;
    case PositionAtBottom: bar.setValue(highest); break;
    case PositionAtCenter: bar.setValue(index.row() - LinesOnView() / 2); break;
    case EnsureVisible: bar.setValue(std::clamp(bar.value(), highest, index.row())); break;
  }
}

QModelIndex LinesView::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  const int last = lines_.rowCount() - 1;
  if (last < 0) return {};
  const int row = currentIndex().isValid() ? currentIndex().row() : 0;
  switch (action) {
    case MoveUp:
    case MovePrevious: return lines_.index(std::max(row - 1, 0));
    case MoveDown:
    case MoveNext: return lines_.index(std::min(row + 1, last));
    case MovePageUp: return lines_.index(std::max(row - LinesOnView(), 0));
    case MovePageDown: return lines_.index(static_cast<int>(std::min<qint64>(qint64{row} + LinesOnView(), last)));
    case MoveHome: return lines_.index(0);
    case MoveEnd: return lines_.index(last);
    case MoveLeft: horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepSub); break;
    case MoveRight: horizontalScrollBar()->triggerAction(QScrollBar::SliderSingleStepAdd); break;
  }
  return currentIndex();
}

void LinesView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
  const QRect area = rect.normalized();
  const int first = std::max(RowAt(area.top()), 0);
  const int last = std::min(RowAt(area.bottom()), lines_.rowCount() - 1);
  const QItemSelection rows =
      first <= last ? QItemSelection(lines_.index(first), lines_.index(last)) : QItemSelection();
  selectionModel()->select(rows, command);
}

QRegion LinesView::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  for (const QItemSelectionRange& range : selection) {
    region += (visualRect(range.topLeft()) | visualRect(range.bottomRight())).intersected(viewport()->rect());
  }
  return region;
}

// NOLINTBEGIN(bugprone-parent-virtual-call): see the header.
void LinesView::updateGeometries() {
  QScrollBar& down = *verticalScrollBar();
  down.setSingleStep(1);
  down.setPageStep(LinesOnView());
  down.setRange(0, std::max(lines_.rowCount() - LinesOnView(), 0));
  QScrollBar& across = *horizontalScrollBar();
  across.setSingleStep(fontMetrics().averageCharWidth() * 4);
  across.setPageStep(viewport()->width());
  across.setRange(0, std::max(widest_ - viewport()->width(), 0));
  QAbstractItemView::updateGeometries();
}

void LinesView::rowsInserted(const QModelIndex& parent, int start, int end) {
  QAbstractItemView::rowsInserted(parent, start, end);
  updateGeometries();
  if (visualRect(lines_.index(start)).top() < viewport()->height()) viewport()->update();
}

// Tells a screen reader by the row, not by a place in a layout.
void LinesView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QAbstractItemView::currentChanged(current, previous);
  if (!QAccessible::isActive() || !current.isValid()) return;
  QAccessibleEvent event(this, QAccessible::Focus);
  event.setChild(current.row());
  QAccessible::updateAccessibility(&event);
}
// NOLINTEND(bugprone-parent-virtual-call)

void LinesView::scrollContentsBy(int dx, int dy) {
  viewport()->scroll(dx, static_cast<int>(std::clamp(qint64{dy} * LineHeight(), -FarBelow, FarBelow)));
}

QSize LinesView::sizeHint() const {
  const int around = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  return {fontMetrics().averageCharWidth() * UsualColumns + 2 * MarginPixels + around,
          LineHeight() * UsualLines + around};
}

// ---- painting and keys ---------------------------------------------------------------------------------------------

void LinesView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setFont(font());
  const int widestBefore = widest_;
  const int last = std::min(RowAt(event->rect().bottom()), lines_.rowCount() - 1);
  for (int row = RowAt(event->rect().top()); row <= last; ++row) PaintLine(painter, lines_.index(row));
  // The range of the bar must not change while the text is painted.
  if (widest_ != widestBefore) {
    QMetaObject::invokeMethod(
        this, [this] { updateGeometries(); }, Qt::QueuedConnection);
  }
}

void LinesView::PaintLine(QPainter& painter, const QModelIndex& index) {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(index);
  const bool isSelected = selectionModel()->isSelected(index);
  option.state.setFlag(QStyle::State_Selected, isSelected);
  option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
  style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
  if (isSelected) painter.fillRect(option.rect, option.palette.brush(QPalette::Highlight));
  const QString text = index.data().toString();
  painter.setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
  painter.drawText(option.rect.left() + MarginPixels, option.rect.top() + fontMetrics().ascent(), text);
  widest_ = std::max(widest_, fontMetrics().horizontalAdvance(text) + 2 * MarginPixels);
}

void LinesView::keyPressEvent(QKeyEvent* event) {
  if (!event->matches(QKeySequence::Copy)) return QAbstractItemView::keyPressEvent(event);
  event->accept();
  if (selectionModel()->hasSelection()) QGuiApplication::clipboard()->setText(SelectedText());
}

void LinesView::changeEvent(QEvent* event) {
  QAbstractItemView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  widest_ = 0;
  updateGeometries();
  viewport()->update();
}

}  // namespace orby
