// Tables that show whole rows only. If not all rows fit, the space below the last one that fits stays empty.
#pragma once

#include <QHeaderView>
#include <QTableWidget>

namespace orby {

template <class Table>
class WholeRows : public Table {
 public:
  explicit WholeRows(QWidget* parent = nullptr) : Table(parent) {
    // The empty space has the colour of the cells.
    this->setBackgroundRole(QPalette::Base);
    this->setAutoFillBackground(true);
  }

 protected:
  // The toolkit calls this after each change of the size, and gives the headers their margins.
  void updateGeometries() override {
    if (isFitting_) return;
    isFitting_ = true;
    Table::updateGeometries();
    const int row = this->verticalHeader()->defaultSectionSize();
    const int height = this->viewport()->height();
    if (row > 0 && this->verticalHeader()->length() > height && height > row) {
      QMargins margins = this->viewportMargins();
      margins.setBottom(height % row);
      this->setViewportMargins(margins);
    }
    isFitting_ = false;
  }

 private:
  bool isFitting_ = false;
};

// A table that keeps a widget item for each cell.
class GridView : public WholeRows<QTableWidget> {
 public:
  using WholeRows::WholeRows;
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::GridView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
