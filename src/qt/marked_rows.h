// Paints the rows of a list of judgements: a mark and a text that may take several lines. The space of a row that the
// edge of the list would cut stays empty.
//
// The texts are laid out once, not at every paint, because the list is painted after every key in a field.
#pragma once

#include <QAbstractItemView>
#include <QHash>
#include <QPixmap>
#include <QStaticText>
#include <QStyledItemDelegate>

namespace orby {

class MarkedRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Returns true if the row at this place of the list is painted. One that is higher than the list is always cut.
  static bool IsWhole(const QAbstractItemView& list, const QRect& row);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  // Returns the text of a row in the width that the list has for it.
  const QStaticText& LaidOut(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  const QPixmap& MarkOf(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  mutable QHash<QString, QStaticText> texts_;
  mutable QHash<QString, QPixmap> marks_;  // by the word at the start of a text, which tells the mark
  mutable QFont font_;
  mutable int width_ = 0;
  mutable qint64 palette_ = 0;
  mutable qreal ratio_ = 0;
};

}  // namespace orby
