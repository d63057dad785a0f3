// Bindings of tables with any number of rows.
#include <QSignalBlocker>
#include <algorithm>

#include "qt/bindings.h"
#include "qt/rows_view.h"

namespace orby {
namespace {

class RowTableBinding : public QObject, public WidgetBinding<RowsView, RowTable> {
 public:
  RowTableBinding(BindingHost& host, RowTable& table) : WidgetBinding(host, table), model_(table) {
    widget_.setModel(&model_);
    widget_.Opened = [this] { OpenCurrent(); };
    widget_.Copied = [this] {
      if (IsUsable(widget_)) host_.Act([this] { control_.CopyMarked(); });
    };
    connect(&widget_, &QTableView::doubleClicked, this, [this] { OpenCurrent(); });
    connect(widget_.horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int column) {
      if (IsUsable(widget_)) host_.Act([this, column] { control_.ClickHead(column); });
    });
    const auto* selection = widget_.selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this, [this] { TakeMarks(); });
    connect(selection, &QItemSelectionModel::currentRowChanged, this, [this] { TakeMarks(); });
  }
  // The view may live longer than the rows.
  ~RowTableBinding() override { widget_.setModel(nullptr); }

  void Show() override {
    ShowState(widget_, control_);
    isShowing_ = true;
    const bool hasOtherHeads = heads_ != control_.HeadsVersion();
    const bool hasOtherRows = rows_ != control_.RowsVersion();
    const bool isFirst = model_.rowCount() == 0;
    heads_ = control_.HeadsVersion();
    rows_ = control_.RowsVersion();
    if (hasOtherHeads) {
      model_.TakeColumns();
    } else if (hasOtherRows) {
      model_.TakeRows();
    }
    if (hasOtherHeads || hasOtherRows || !IsMarkedAsShown()) ShowMarks();
    if (hasOtherHeads || (hasOtherRows && isFirst)) widget_.FitColumns();
    widget_.horizontalHeader()->setSortIndicator(control_.SortedColumn(),
                                                 control_.IsDescending() ? Qt::DescendingOrder : Qt::AscendingOrder);
    isShowing_ = false;
  }

 private:
  void OpenCurrent() {
    const int row = widget_.currentIndex().row();
    if (row < 0 || !IsUsable(widget_)) return;
    host_.ActLater([this, row] {
      if (row < control_.Rows()) control_.OpenRow(row);
    });
  }

  std::vector<int> MarksOnView() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : widget_.selectionModel()->selection()) {
      for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
  }

  bool IsMarkedAsShown() const {
    return widget_.currentIndex().row() == control_.Current() && MarksOnView() == control_.Marked();
  }

  void TakeMarks() {
    if (isShowing_) return;
    if (!IsUsable(widget_)) return Show();
    host_.Act([this] { control_.Mark(MarksOnView(), widget_.currentIndex().row()); });
  }

  void ShowMarks() {
    auto& selection = *widget_.selectionModel();
    const int column = std::clamp(widget_.currentIndex().column(), 0, std::max(model_.columnCount() - 1, 0));
    QItemSelection marks;
    const std::vector<int>& rows = control_.Marked();
    for (std::size_t i = 0; i < rows.size();) {
      std::size_t end = i + 1;
      while (end < rows.size() && rows[end] == rows[end - 1] + 1) ++end;
      marks.append(
          QItemSelectionRange(model_.index(rows[i], 0), model_.index(rows[end - 1], model_.columnCount() - 1)));
      i = end;
    }
    // From nothing, because the toolkit compares each old range with each new one.
    const QSignalBlocker quiet(selection);
    selection.reset();
    selection.setCurrentIndex(model_.index(control_.Current(), column), QItemSelectionModel::NoUpdate);
    selection.select(marks, QItemSelectionModel::Select);
    widget_.viewport()->update();
  }

  RowsModel model_;
  unsigned heads_ = 0;
  unsigned rows_ = 0;
  bool isShowing_ = false;
};

}  // namespace

BindingPointer BindRowTable(BindingHost& host, RowTable& table) {
  return std::make_unique<RowTableBinding>(host, table);
}

}  // namespace orby
