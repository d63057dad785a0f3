// The widget of a long text: shows it line by line as it stands, and takes no memory for lines that are not on view.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/text_lines.h"
#include "base/text_search.h"
#include "qt/piece_task.h"

namespace orby {

// The lines of a text that belongs to another, and that grows.
class LinesModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  // The text has grown, or has begun anew, which is returned. It must live until the model is told of another.
  bool Show(const std::string& text);

  // The bytes of all lines, and of one, without its end.
  std::string_view Text() const { return text_ == nullptr ? std::string_view() : *text_; }
  std::string_view Bytes(int row) const { return index_.Line(Text(), static_cast<std::size_t>(row)); }
  // The row that this byte of the text lies in.
  int RowOf(std::size_t place) const { return static_cast<int>(index_.LineAt(Text(), place)); }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  void Grow();

  const std::string* text_ = nullptr;
  LineIndex index_;
};

// What is selected, in bytes of the text: from where the selection began to the caret.
struct TextRange {
  std::size_t Anchor = 0;
  std::size_t Caret = 0;

  std::size_t First() const { return Anchor < Caret ? Anchor : Caret; }
  std::size_t Last() const { return Anchor < Caret ? Caret : Anchor; }
  bool IsEmpty() const { return Anchor == Caret; }
};

// A list of lines to screen readers, but one that lays nothing out: all lines are equally high, so that each has its
// place without any other being looked at. The user selects characters in it; the current row is the caret's.
// Copying and searching go on piece by piece between the events of the window, however long the text is.
// The base class of the list is called in place of the list itself: the list would lay out every line of the file.
// NOLINTBEGIN(bugprone-parent-virtual-call)
class LinesView : public QListView {
 public:
  explicit LinesView(QWidget* parent = nullptr);

  void ShowText(const std::string& text);

  const TextRange& Selection() const { return selection_; }
  // Selects the range and scrolls to its caret.
  void Select(const TextRange& range);

  // Puts the selection on the clipboard; of a line that is cut short on the screen all is copied. Does nothing without
  // a selection.
  void CopySelection();
  // Looks for the text from the selection on, around the end of the text, and selects what it finds.
  void Find(const QString& wanted, TextSearch::Direction direction);
  // Gives up copying or searching. Returns false if neither was going on.
  bool Stop();

  // Called as copying or searching goes on, with the percentage that is done, and with 100 at its end.
  std::function<void(int percent)> Progressed;
  enum class Finding { Found, FoundAroundTheEnd, NotFound };
  std::function<void(Finding finding)> Searched;
  // Called for the Esc key. Returns whether it was meant for the view.
  std::function<bool()> EscapePressed;

  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint) override;
  QModelIndex indexAt(const QPoint& point) const override;
  QSize sizeHint() const override;
  // Typed letters look for nothing by themselves.
  void keyboardSearch(const QString&) override {}
  void doItemsLayout() override { QAbstractItemView::doItemsLayout(); }
  // The rectangle of a character of the line, from the left edge of the viewport.
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
  // A line as it is on the screen, and where its characters stand in the text.
  struct ShownRow {
    QString text;
    std::vector<std::size_t> places;  // of each character, then of the end of the line

    int ColumnOf(std::size_t place) const;
  };
  ShownRow RowOnView(int row) const;

  int LineHeight() const;
  int LinesOnView() const;
  // The row at this height of the viewport, whether or not there is such a line.
  int RowAt(int y) const;
  // From the left edge of the line.
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
  int widest_ = 0;  // of the lines that have been on view, pixels
  TextRange selection_;
  int goalX_ = -1;  // that the caret keeps to as it goes up and down; -1: its own
  PieceTask task_;
};
// NOLINTEND(bugprone-parent-virtual-call)

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::LinesView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
