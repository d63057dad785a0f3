#include "qt/grid_view.h"

#include <QHeaderView>

namespace orby {

GridView::GridView(QWidget* parent) : QTableWidget(parent) {
  // The empty space has the colour of the cells.
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
}

// The toolkit calls this after each change of the size, and gives the headers their margins.
void GridView::updateGeometries() {
  if (isFitting_) return;
  isFitting_ = true;
  QTableWidget::updateGeometries();
  const int row = verticalHeader()->defaultSectionSize();
  const int height = viewport()->height();
  if (row > 0 && verticalHeader()->length() > height && height > row) {
    QMargins margins = viewportMargins();
    margins.setBottom(height % row);
    setViewportMargins(margins);
  }
  isFitting_ = false;
}

}  // namespace orby
