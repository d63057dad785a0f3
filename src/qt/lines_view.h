// The view of a long text, line by line. Lines that are not visible take no memory.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_lines.h"
#include "qt/piece_task.h"
#include "qt/searched_view.h"

namespace orby {

// The lines of a text that somebody else owns and that can grow.
class LinesModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  // Updates the lines after the text has grown or been replaced. Returns true if it was replaced. The text must exist
  // until the next call.
  bool Show(const std::string& text);

  // Returns the bytes of all lines, or of one line without its end.
  std::string_view Text() const { return text_ == nullptr ? std::string_view() : *text_; }
  std::string_view Bytes(int row) const { return index_.Line(Text(), static_cast<std::size_t>(row)); }
  // Returns the row that contains this byte of the text.
  int RowOf(std::size_t place) const { return static_cast<int>(index_.LineAt(Text(), place)); }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Grow();

  const std::string* text_ = nullptr;
  LineIndex index_;
};

// The selection in bytes of the text: where it began, and the caret.
struct TextRange {
  std::size_t Anchor = 0;
  std::size_t Caret = 0;

  std::size_t First() const { return Anchor < Caret ? Anchor : Caret; }
  std::size_t Last() const { return Anchor < Caret ? Caret : Anchor; }
  bool IsEmpty() const { return Anchor == Caret; }
};

// For screen readers this is a list of lines, but it has no layout: all lines have the same height, so a line's
// position needs no other line. The user selects characters; the current row is the caret's. Copying and searching run
// in pieces between the events of the window, however long the text is.
//
// The functions call the list's base class instead of the list, because the list would lay out every line of the file.
// NOLINTBEGIN(bugprone-parent-virtual-call)
class LinesView : public QListView, public SearchedView {
 public:
  explicit LinesView(QWidget* parent = nullptr);

  void ShowText(const std::string& text);

  const TextRange& Selection() const { return selection_; }
  // Selects the range and scrolls to its caret.
  void Select(const TextRange& range);

  // Copies the selection to the clipboard, including the parts of lines that the screen cuts off. Does nothing without
  // a selection.
  void CopySelection();
  void Find(const QString& wanted, TextSearch::Direction direction) override;
  bool Stop() override;

  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;
  QModelIndex indexAt(const QPoint& point) const override;
  QSize sizeHint() const override;
  // Typing letters does not search.
  void keyboardSearch(const QString&) override {}
  void doItemsLayout() override { QAbstractItemView::doItemsLayout(); }
  // Returns the rectangle of a character of the line, relative to the left edge of the viewport.
  QRect CharacterRect(int row, int character) const;

 protected:
  QModelIndex moveCursor(CursorAction, Qt::KeyboardModifiers) override { return currentIndex(); }
  int horizontalOffset() const override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex&) const override { return false; }
  void setSelection(const QRect&, QItemSelectionModel::SelectionFlags) override {}
  QRegion visualRegionForSelection(const QItemSelection&) const override { return {}; }
  void updateGeometries() override;
  void rowsInserted(const QModelIndex& parent, int start, int end) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override {
    QAbstractItemView::selectionChanged(selected, deselected);
  }

  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override { QAbstractItemView::resizeEvent(event); }
  void scrollContentsBy(int dx, int dy) override;

 private:
  // A line as shown on the screen, and the places of its characters in the text.
  struct ShownRow {
    QString text;
    std::vector<std::size_t> places;  // of each character, then of the end of the line

    int ColumnOf(std::size_t place) const;
  };
  ShownRow RowOnView(int row) const;

  int LineHeight() const;
  int LinesOnView() const;
  // Returns the row at this height of the viewport, even if there is no such line.
  int RowAt(int y) const;
  // Returns the distance from the left edge of the line.
  int XOf(const ShownRow& shown, int column) const;
  std::size_t PlaceAt(const QPoint& point) const;
  void PaintLine(QPainter& painter, const QModelIndex& index);
  void PaintSelection(QPainter& painter, const QRect& rect, const ShownRow& shown);
  void Widen(int width);

  // lines_view_caret.cpp
  void MoveCaret(std::size_t place, bool selects);
  void ScrollAcrossToCaret();
  void SelectAllOfIt();
  std::size_t Beside(int direction) const;
  std::size_t Below(int rows);
  void Progress(std::size_t left, std::size_t all) const;

  LinesModel lines_;
  int widest_ = 0;  // the widest line shown so far, in pixels
  TextRange selection_;
  int goalX_ = -1;  // the horizontal position that Up and Down keep; -1 for the caret's own
  PieceTask task_;
};
// NOLINTEND(bugprone-parent-virtual-call)

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::LinesView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
