// Draws the mark of a number field, and what is shown beside the text of an output: edges and signs, so that they are
// told by shape as well as by colour.
#pragma once

#include <QColor>
#include <QLineEdit>
#include <QPalette>

#include "controls/controls.h"

namespace orby {

// Returns the colour of a mark. Its contrast with the field and with the window is at least 3:1, light or dark.
// Requires a mark other than None.
QColor ColorOfMark(FieldMark mark, const QPalette& palette);

// Paints the mark over the field, during the field's paint event. A text that is partly read has a dashed edge and a
// question mark in a disc, a number out of range a solid edge and an exclamation mark in a triangle.
void PaintMark(QLineEdit& field, FieldMark mark);

// Paints the picture of a judgement at the right, and for a text of earlier inputs a dashed edge and a clock beside it.
void PaintSign(QWidget& output, const OutputSign& sign);

// Returns the width that the signs need at the right of an output, at most.
int WidthOfSigns(const OutputSign& sign);

// Paints the sign over an output of several lines, which scrolls its text below it. Takes neither keys nor the mouse.
class SignCover : public QWidget {
 public:
  explicit SignCover(QWidget& output);
  void Show(const OutputSign& sign);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  OutputSign sign_;
};

}  // namespace orby
