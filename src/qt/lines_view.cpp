#include "qt/lines_view.h"

#include <QAccessible>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "qt/texts.h"

namespace orby {
namespace {

// Rows and screen coordinates are 32-bit numbers. Rows that are too far away get this coordinate.
constexpr qint64 FarBelow = qint64{1} << 30;

constexpr int MarginPixels = 4;  // left and right of a line

// The preferred size if the window has no other.
constexpr int UsualColumns = 80;
constexpr int UsualLines = 30;

// Returns the number of UTF-16 units of the first characters of the text.
int UnitOf(const QString& text, int character) {
  int unit = 0;
  for (; character > 0 && unit < text.size(); --character) unit += text[unit].isHighSurrogate() ? 2 : 1;
  return unit;
}

}  // namespace

bool LinesModel::Show(const std::string& text) {
  const bool beginsAnew = &text != text_ || text.size() < index_.Length();
  if (beginsAnew) {
    beginResetModel();
    text_ = &text;
    index_.Clear();
    endResetModel();
  }
  if (text.size() > index_.Length()) Grow();
  return beginsAnew;
}

void LinesModel::Grow() {
  const int before = rowCount();
  LineIndex grown = std::move(index_);
  grown.Extend(*text_);
  const int after = static_cast<int>(grown.Count());
  // The last line may have become longer.
  if (before == after) {
    index_ = std::move(grown);
  } else {
    beginInsertRows({}, before, after - 1);
    index_ = std::move(grown);
    endInsertRows();
  }
  if (before > 0) emit dataChanged(index(before - 1), index(before - 1));
}

int LinesModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(index_.Count());
}

QVariant LinesModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || role != Qt::DisplayRole) return {};
  return ToQt(ShownLine(Bytes(index.row())));
}

LinesView::LinesView(QWidget* parent) : QListView(parent) {
  setModel(&lines_);
  setSelectionMode(NoSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  viewport()->setBackgroundRole(QPalette::Base);
  viewport()->setCursor(Qt::IBeamCursor);
}

void LinesView::ShowText(const std::string& text) {
  if (!lines_.Show(text)) return;
  Stop();
  selection_ = {};
  goalX_ = -1;
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

// ---- characters ----------------------------------------------------------------------------------------------------

int LinesView::ShownRow::ColumnOf(std::size_t place) const {
  const auto found = std::ranges::lower_bound(places, place);
  return static_cast<int>(std::min<std::ptrdiff_t>(found - places.begin(), std::ssize(places) - 1));
}

LinesView::ShownRow LinesView::RowOnView(int row) const {
  const std::string_view bytes = lines_.Bytes(row);
  ShownRow shown{ToQt(ShownLine(bytes)), ShownPlaces(bytes)};
  const auto start = static_cast<std::size_t>(bytes.data() - lines_.Text().data());
  for (std::size_t& place : shown.places) place += start;
  return shown;
}

int LinesView::XOf(const ShownRow& shown, int column) const {
  return MarginPixels + fontMetrics().horizontalAdvance(shown.text, UnitOf(shown.text, column));
}

QRect LinesView::CharacterRect(int row, int character) const {
  const ShownRow shown = RowOnView(row);
  const int left = XOf(shown, character);
  const int top = visualRect(lines_.index(row)).top();
  return {left - horizontalOffset(), top, XOf(shown, character + 1) - left, LineHeight()};
}

// Returns the character boundary that is nearest to the point.
std::size_t LinesView::PlaceAt(const QPoint& point) const {
  if (lines_.rowCount() == 0) return 0;
  const ShownRow shown = RowOnView(std::clamp(RowAt(point.y()), 0, lines_.rowCount() - 1));
  const int x = point.x() + horizontalOffset();
  int low = 0;
  int high = static_cast<int>(shown.places.size()) - 1;
  while (low < high) {
    const int middle = (low + high) / 2;
    const bool isLeftOf = (XOf(shown, middle) + XOf(shown, middle + 1)) / 2 < x;
    (isLeftOf ? low : high) = isLeftOf ? middle + 1 : middle;
  }
  return shown.places[static_cast<std::size_t>(low)];
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

// Notifies screen readers by the row, because there is no layout.
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

// ---- painting ------------------------------------------------------------------------------------------------------

void LinesView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setFont(font());
  const int widestBefore = widest_;
  const int last = std::min(RowAt(event->rect().bottom()), lines_.rowCount() - 1);
  for (int row = RowAt(event->rect().top()); row <= last; ++row) PaintLine(painter, lines_.index(row));
  // The range of the scroll bar must not change during painting.
  if (widest_ != widestBefore) {
    QMetaObject::invokeMethod(
        this, [this] { updateGeometries(); }, Qt::QueuedConnection);
  }
}

void LinesView::PaintLine(QPainter& painter, const QModelIndex& index) {
  const QRect rect = visualRect(index);
  const ShownRow shown = RowOnView(index.row());
  const QPoint at(rect.left() + MarginPixels, rect.top() + fontMetrics().ascent());
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(at, shown.text);
  Widen(fontMetrics().horizontalAdvance(shown.text) + 2 * MarginPixels);
  PaintSelection(painter, rect, shown);
  if (!hasFocus() || index.row() != lines_.RowOf(selection_.Caret)) return;
  const int x = rect.left() + XOf(shown, shown.ColumnOf(selection_.Caret));
  painter.fillRect(x, rect.top(), 1, rect.height(), palette().color(QPalette::Text));
}

// Paints the selected part of the line, and a space for its end.
void LinesView::PaintSelection(QPainter& painter, const QRect& rect, const ShownRow& shown) {
  const std::size_t end = shown.places.back();
  const bool hasEnd = selection_.Last() > end;
  if (selection_.IsEmpty() || selection_.First() > end || selection_.Last() <= shown.places.front()) return;
  const int left = XOf(shown, shown.ColumnOf(selection_.First()));
  const int right = XOf(shown, shown.ColumnOf(selection_.Last())) + (hasEnd ? fontMetrics().averageCharWidth() : 0);
  const QRect marked(rect.left() + left, rect.top(), right - left, rect.height());
  painter.save();
  painter.setClipRect(marked);
  painter.fillRect(marked, palette().brush(QPalette::Highlight));
  painter.setPen(palette().color(QPalette::HighlightedText));
  painter.drawText(rect.left() + MarginPixels, rect.top() + fontMetrics().ascent(), shown.text);
  painter.restore();
}

void LinesView::Widen(int width) { widest_ = std::max(widest_, width); }

void LinesView::changeEvent(QEvent* event) {
  QAbstractItemView::changeEvent(event);
  if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange) return;
  widest_ = 0;
  updateGeometries();
  viewport()->update();
}

}  // namespace orby
