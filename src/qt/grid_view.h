// A table that shows whole rows only.
#pragma once

#include <QTableWidget>

namespace orby {

// If not all rows fit, the space below the last one that fits stays empty.
class GridView : public QTableWidget {
 public:
  explicit GridView(QWidget* parent = nullptr);

 protected:
  void updateGeometries() override;

 private:
  bool isFitting_ = false;
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::GridView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
