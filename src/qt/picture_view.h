// Shows a drawing in a dialog. The property "picture" names it.
#pragma once

#include <QWidget>
#include <optional>

#include "drawings/scene.h"

namespace orby {

class PictureView : public QWidget {
 public:
  explicit PictureView(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  const Scene& Drawing() const;

  mutable std::optional<Scene> drawing_;  // created on first use
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::PictureView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
