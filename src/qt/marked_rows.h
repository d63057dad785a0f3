// Paints the rows of a list of judgements: a mark and a text that may take several lines.
//
// The texts are laid out once, not at every paint, because the list is painted after every key in a field.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QStaticText>
#include <QStyledItemDelegate>

namespace orby {

class MarkedRows : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

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
