// Shows pages below each other as sheets of paper. Ctrl with the wheel, +, - and 0 change their size. Small pages have
// one size, and a click or an arrow key chooses one.
#pragma once

#include <QAbstractScrollArea>
#include <functional>

#include "dialogs/pages_box.h"

namespace orby {

class PagesView : public QAbstractScrollArea {
 public:
  explicit PagesView(QWidget* parent = nullptr);

  // Shows the pages and the mark, and goes to the place if the model has asked for it since the last call. The box must
  // exist as long as the view shows it.
  void ShowPages(PagesBox& box);

  std::function<void(std::size_t page)> Scrolled;
  std::function<void(std::size_t page)> Chosen;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  bool IsForChoosing() const { return box_ != nullptr && box_->Use() == PagesUse::Choosing; }
  // Scrolls as far as it takes to show a whole small page.
  void ShowSmall(std::size_t page);
  void ChooseBeside(int step);
  // The room for the number below a small page, in pixels.
  int NumberRoom() const;
  // Pixels of a point at the zoom of the user. Without one a page is as wide as the view.
  double Scale() const;
  void SetZoom(double zoom);
  // The place of a page in pixels, from the top of the first one.
  QRectF PlaceOf(std::size_t page) const;
  std::size_t PageAt(double top) const;
  void UpdateBars();
  void PaintChosen(QPainter& painter, std::size_t page, const QRectF& sheet) const;
  void PaintMark(QPainter& painter, const SceneLabel& label, const QRectF& sheet) const;

  PagesBox* box_ = nullptr;
  int moves_ = 0;
  double zoom_ = 1;  // of the width of the view
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::PagesView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
