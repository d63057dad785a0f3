// Shows a drawing in a dialog. The property "picture" names its resource.
#pragma once

#include <QSvgRenderer>
#include <QWidget>
#include <memory>

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
  QSvgRenderer& Drawing() const;

  mutable std::unique_ptr<QSvgRenderer> drawing_;  // created on first use and after a change of the theme
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::PictureView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
