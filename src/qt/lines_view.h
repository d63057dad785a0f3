// The widget of a long text: shows it line by line as it stands, and takes no memory for lines that are not on view.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <string>

#include "base/text_lines.h"

namespace orby {

// The lines of a text that belongs to another, and that grows.
class LinesModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  // The text has grown, or has begun anew. It must live until the model is told of another.
  void Show(const std::string& text);
  // A line as it is copied, whole.
  std::string WholeLine(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const std::string* text_ = nullptr;
  LineIndex index_;
};

// A list, to the user and to screen readers, but one that lays nothing out: all lines are equally high, so that each
// has its place without any other being looked at.
// The base class of the list is called in place of the list itself: the list would lay out every line of the file.
// NOLINTBEGIN(bugprone-parent-virtual-call)
class LinesView : public QListView {
 public:
  explicit LinesView(QWidget* parent = nullptr);

  void ShowText(const std::string& text);
  // The selected lines, in their order; of a line that is cut short on the screen all is there.
  QString SelectedText() const;

  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;
  QModelIndex indexAt(const QPoint& point) const override;
  QSize sizeHint() const override;
  // Typed letters look for nothing: that would read the whole file.
  void keyboardSearch(const QString&) override {}
  void doItemsLayout() override { QAbstractItemView::doItemsLayout(); }

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  int horizontalOffset() const override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex&) const override { return false; }
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void updateGeometries() override;
  void rowsInserted(const QModelIndex& parent, int start, int end) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override {
    QAbstractItemView::selectionChanged(selected, deselected);
  }

  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override { QAbstractItemView::resizeEvent(event); }
  void scrollContentsBy(int dx, int dy) override;

 private:
  int LineHeight() const;
  int LinesOnView() const;
  // The row at this height of the viewport, whether or not there is such a line.
  int RowAt(int y) const;
  void PaintLine(QPainter& painter, const QModelIndex& index);

  LinesModel lines_;
  int widest_ = 0;  // of the lines that have been on view, pixels
};
// NOLINTEND(bugprone-parent-virtual-call)

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::LinesView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
