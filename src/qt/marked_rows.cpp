#include "qt/marked_rows.h"

#include <QIcon>
#include <QPainter>
#include <algorithm>

namespace orby {
namespace {

constexpr int Gap = 4;          // around the mark and the text
constexpr int MostTexts = 200;  // that are kept

int TextLeft(const QStyleOptionViewItem& option) { return option.decorationSize.width() + 2 * Gap; }

int TextWidth(const QStyleOptionViewItem& option) {
  const auto* list = qobject_cast<const QAbstractItemView*>(option.widget);
  const int whole = list != nullptr ? list->viewport()->width() : option.rect.width();
  return std::max(whole - TextLeft(option) - 2 * Gap, 1);
}

}  // namespace

bool MarkedRows::IsWhole(const QAbstractItemView& list, const QRect& row) {
  const int room = list.viewport()->height();
  return row.height() > room || (row.top() >= 0 && row.bottom() < room);
}

void MarkedRows::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const auto* list = qobject_cast<const QAbstractItemView*>(option.widget);
  if (list != nullptr && !IsWhole(*list, option.rect)) return;
  const bool isSelected = (option.state & QStyle::State_Selected) != 0;
  const auto group = (option.state & QStyle::State_Active) != 0 ? QPalette::Active : QPalette::Inactive;
  if (isSelected) painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
  const QSize mark = option.decorationSize;
  const QStaticText& text = LaidOut(option, index);
  painter->drawPixmap(option.rect.left() + Gap, option.rect.center().y() - mark.height() / 2, MarkOf(option, index));
  painter->setFont(option.font);
  painter->setPen(option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
  const int top = option.rect.top() + (option.rect.height() - static_cast<int>(text.size().height())) / 2;
  painter->drawStaticText(option.rect.left() + TextLeft(option), top, text);
  if ((option.state & QStyle::State_HasFocus) == 0) return;
  painter->setPen(Qt::DotLine);
  painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
}

QSize MarkedRows::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const QSize text = LaidOut(option, index).size().toSize();
  return {text.width() + TextLeft(option) + Gap, std::max(text.height(), option.decorationSize.height()) + 2};
}

const QStaticText& MarkedRows::LaidOut(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const int width = TextWidth(option);
  if (width != width_ || option.font != font_ || texts_.size() > MostTexts) texts_.clear();
  width_ = width;
  font_ = option.font;
  const QString text = index.data().toString();
  auto found = texts_.find(text);
  if (found == texts_.end()) {
    QStaticText laidOut(text);
    laidOut.setTextFormat(Qt::PlainText);
    laidOut.setTextWidth(width);
    laidOut.prepare(QTransform(), option.font);
    found = texts_.insert(text, laidOut);
  }
  return *found;
}

const QPixmap& MarkedRows::MarkOf(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const qreal ratio = option.widget != nullptr ? option.widget->devicePixelRatioF() : 1;
  if (option.palette.cacheKey() != palette_ || ratio != ratio_) marks_.clear();
  palette_ = option.palette.cacheKey();
  ratio_ = ratio;
  QPixmap& mark = marks_[index.data().toString().section(':', 0, 0)];
  if (mark.isNull()) mark = index.data(Qt::DecorationRole).value<QIcon>().pixmap(option.decorationSize, ratio);
  return mark;
}

}  // namespace orby
