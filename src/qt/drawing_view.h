// Shows a drawing to scale on a sheet of the size of the widget. Its menu and Ctrl+C copy and save it.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "dialogs/drawing.h"

namespace orby {

class DrawingView : public QWidget {
 public:
  explicit DrawingView(QWidget* parent = nullptr);

  // Paints the drawing a moment later, so that a key and its results come on view before it. The drawing must exist as
  // long as the view shows it.
  void ShowDrawing(Drawing& drawing);

  std::function<void(const SheetSize&)> Resized;
  std::function<void(DrawingCommand)> Chosen;
  // Of a drawing that is read out: the pointer is at a place of the sheet, or a key moves over it.
  std::function<void(const ScenePoint&)> Pointed;
  std::function<void(DrawingKey)> Moved;

  // Returns what the drawing shows, for screen readers.
  QString Words() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  // Pixels of a unit of the scene. It grows with the text of the desktop.
  double Scale() const;
  void TellSheet() const;
  void TellPlace(const QPointF& at) const;

  Drawing* drawing_ = nullptr;
  int painted_ = -1;  // edition of the drawing
  QTimer repaint_;
};

// Makes screen readers read a drawing as a graphic with its words.
void InstallDrawingReader();

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::DrawingView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
