// Bindings of grids, and the editor of their cells.
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTableWidget>
#include <algorithm>

#include "qt/bindings.h"
#include "qt/texts.h"

namespace orby {
namespace {

// The models measure columns in twips, which are twentieths of a point.
constexpr int TwipsPerInch = 1440;

// The text box over the selected cell. It has the focus instead of the grid. Enter, Up and Down go to another row. Tab
// goes to the next cell, and after the last one out of the grid. Escape restores the cell's text.
class CellEditor : public QObject {
 public:
  CellEditor(BindingHost& host, Grid& grid, QTableWidget& widget)
      : host_(host),
        grid_(grid),
        widget_(widget),
        edit_(FindNamed<QLineEdit>(host, std::string(grid.Overlay()->Name()))) {
    widget_.setFocusPolicy(Qt::NoFocus);
    widget_.setSelectionBehavior(QAbstractItemView::SelectItems);
    edit_.setParent(widget_.viewport());
    edit_.installEventFilter(this);
    widget_.viewport()->installEventFilter(this);
    // The columns get their widths one by one.
    const auto placeLater = [this] { PlaceLater(); };
    for (const QHeaderView* header : {widget_.horizontalHeader(), widget_.verticalHeader()}) {
      connect(header, &QHeaderView::sectionResized, this, placeLater);
    }
    for (const QScrollBar* bar : {widget_.horizontalScrollBar(), widget_.verticalScrollBar()}) {
      connect(bar, &QScrollBar::valueChanged, this, [this] { Place(); });
    }
  }

  // Moves the box exactly over the selected cell.
  void Place() {
    const QModelIndex cell = Cell();
    if (!cell.isValid()) return;
    // Without this, the box would be wider than a narrow column.
    edit_.setMinimumWidth(0);
    edit_.setGeometry(widget_.visualRect(cell));
    edit_.setAccessibleName(ToQt(grid_.Cell(0, grid_.Column()) + " " + grid_.Cell(grid_.Row(), 0)));
  }

  void TakeKeyboard() {
    edit_.setFocus(Qt::OtherFocusReason);
    edit_.selectAll();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &edit_ && event->type() == QEvent::KeyPress) return Take(*dynamic_cast<QKeyEvent*>(event));
    if (watched == &edit_ && event->type() == QEvent::FocusIn) widget_.scrollTo(Cell());
    if (watched != &edit_ && event->type() == QEvent::Resize) PlaceLater();
    return QObject::eventFilter(watched, event);
  }

 private:
  void PlaceLater() { QMetaObject::invokeMethod(this, &CellEditor::Place, Qt::QueuedConnection); }

  QModelIndex Cell() const { return widget_.model()->index(grid_.Row() - grid_.FixedRows(), grid_.Column()); }

  // Handles the keys of the grid and returns true for them. With Ctrl or Alt a key belongs to the window: Ctrl+Tab goes
  // to the next page.
  bool Take(const QKeyEvent& key) {
    if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
    switch (key.key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
      case Qt::Key_Down: Go(grid_.Row() + 1, grid_.Column()); return true;
      case Qt::Key_Up: Go(grid_.Row() - 1, grid_.Column()); return true;
      case Qt::Key_Tab: return GoOn();
      case Qt::Key_Backtab: return GoBack();
      case Qt::Key_Escape: return Restore();
      default: return false;
    }
  }

  bool GoOn() {
    if (grid_.Column() + 1 < grid_.Columns()) return Go(grid_.Row(), grid_.Column() + 1);
    return Go(grid_.Row() + 1, grid_.FixedColumns());
  }

  bool GoBack() {
    if (grid_.Column() > grid_.FixedColumns()) return Go(grid_.Row(), grid_.Column() - 1);
    return Go(grid_.Row() - 1, grid_.Columns() - 1);
  }

  // Returns false if there is no such row.
  bool Go(int row, int column) {
    if (row < grid_.FixedRows() || row >= grid_.Rows()) return false;
    host_.Act([this, row, column] { grid_.SelectCell(row, column); });
    widget_.scrollTo(Cell());
    edit_.selectAll();
    return true;
  }

  // Returns false if there was nothing to restore.
  bool Restore() {
    const std::string before = grid_.Cell(grid_.Row(), grid_.Column());
    if (grid_.Overlay()->Text() == before) return false;
    host_.Act([this, &before] { grid_.Overlay()->SetText(before); });
    edit_.selectAll();
    return true;
  }

  BindingHost& host_;
  Grid& grid_;
  QTableWidget& widget_;
  QLineEdit& edit_;
};

class GridBinding : public QObject, public WidgetBinding<QTableWidget, Grid> {
 public:
  GridBinding(BindingHost& host, Grid& grid) : WidgetBinding(host, grid) {
    widget_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    widget_.setSelectionBehavior(QAbstractItemView::SelectRows);
    widget_.setSelectionMode(QAbstractItemView::SingleSelection);
    widget_.setTabKeyNavigation(false);
    widget_.verticalHeader()->hide();
    widget_.verticalHeader()->setDefaultSectionSize(widget_.fontMetrics().height() * 3 / 2);
    widget_.horizontalHeader()->setHighlightSections(false);
    if (grid.Overlay() != nullptr) editor_ = std::make_unique<CellEditor>(host, grid, widget_);
    connect(&widget_, &QTableWidget::currentCellChanged, this, [this](int row, int column, int, int) {
      if (row >= 0) Select(row, column);
    });
    connect(&widget_, &QTableWidget::cellClicked, this, [this](int row, int column) {
      host_.Act([this, row, column] { control_.ClickCell(row + control_.FixedRows(), ColumnToSelect(column)); });
      if (editor_) editor_->TakeKeyboard();
    });
    // Screen readers, Ctrl clicks and clicks below the last row change the selection without changing the current cell.
    // The queued call runs after a key or a plain click is complete.
    connect(widget_.selectionModel(), &QItemSelectionModel::selectionChanged, this, &GridBinding::FollowMark,
            Qt::QueuedConnection);
  }

  void Show() override {
    const QSignalBlocker quiet(widget_);
    ShowState(widget_, control_);
    const int rows = control_.Rows() - control_.FixedRows();
    widget_.setRowCount(rows);
    widget_.setColumnCount(control_.Columns());
    widget_.horizontalHeader()->setVisible(control_.FixedRows() > 0);
    for (int column = 0; column < control_.Columns(); ++column) {
      const bool isStretched = control_.Columns() > 1 && column == control_.StretchedColumn();
      widget_.horizontalHeader()->setSectionResizeMode(column,
                                                       isStretched ? QHeaderView::Stretch : QHeaderView::Interactive);
      ShowColumn(column, rows);
    }
    if (Row() != widget_.currentRow() || (editor_ && control_.Column() != widget_.currentColumn())) MarkSelected();
    if (editor_) editor_->Place();
  }

 private:
  // Selects the highlighted cell. A grid always has a selected row, so a lost highlight is restored.
  void FollowMark() {
    const QModelIndexList marked = widget_.selectionModel()->selectedIndexes();
    const bool isMarked = std::ranges::any_of(marked, [this](const QModelIndex& cell) { return IsSelected(cell); });
    if (isMarked && IsUsable(widget_)) return;
    if (!marked.isEmpty() && IsUsable(widget_)) Select(marked.constFirst().row(), marked.constFirst().column());
    MarkSelected();
  }

  bool IsSelected(const QModelIndex& cell) const {
    return cell.row() == Row() && (!editor_ || cell.column() == control_.Column());
  }

  int Row() const { return control_.Row() - control_.FixedRows(); }  // of the widget

  void MarkSelected() {
    const QSignalBlocker quiet(widget_);
    widget_.setCurrentCell(Row(), editor_ ? control_.Column() : 0);
  }

  // A grid that selects whole rows keeps its column.
  int ColumnToSelect(int column) const {
    return editor_ ? std::max(column, control_.FixedColumns()) : control_.Column();
  }

  void Select(int row, int column) {
    host_.Act([this, row, column] { control_.SelectCell(row + control_.FixedRows(), ColumnToSelect(column)); });
  }

  void ShowColumn(int column, int rows) {
    if (control_.FixedRows() > 0) {
      widget_.setHorizontalHeaderItem(column, new QTableWidgetItem(ToQt(control_.Cell(0, column))));
    }
    for (int row = 0; row < rows; ++row) {
      const QString text = ToQt(control_.Cell(row + control_.FixedRows(), column));
      if (QTableWidgetItem* item = widget_.item(row, column)) {
        item->setText(text);
      } else {
        widget_.setItem(row, column, new QTableWidgetItem(text));
      }
    }
    const auto& widths = control_.ColumnWidths();
    const auto index = static_cast<std::size_t>(column);
    const int wanted = index < widths.size() ? widths[index] * widget_.logicalDpiX() / TwipsPerInch : 0;
    widget_.resizeColumnToContents(column);
    widget_.setColumnWidth(column, std::max(wanted, widget_.columnWidth(column)));
  }

  std::unique_ptr<CellEditor> editor_;  // null if the cells cannot be edited
};

}  // namespace

BindingPointer BindGrid(BindingHost& host, Grid& grid) { return std::make_unique<GridBinding>(host, grid); }

}  // namespace orby
