// A table of any number of rows. It asks for the texts of the cells on view only, while it paints them.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>

#include "controls/row_table.h"
#include "qt/grid_view.h"

namespace orby {

class RowsModel : public QAbstractTableModel {
 public:
  explicit RowsModel(const RowTable& table) : table_(table) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Takes over the columns, or the rows, that the table has now.
  void TakeColumns();
  void TakeRows();

 private:
  const RowTable& table_;
  int rows_ = 0;
  int columns_ = 0;
};

class RowsView : public WholeRows<QTableView> {
 public:
  explicit RowsView(QWidget* parent = nullptr);

  // Called for the keys that open the current row and copy the marked ones.
  std::function<void()> Opened;
  std::function<void()> Copied;

  // Gives the columns the widths of their heads and of the cells on view, within limits.
  void FitColumns();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::RowsView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
