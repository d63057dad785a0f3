// The view of a report page.
#pragma once

#include <QPlainTextEdit>
#include <QSyntaxHighlighter>

#include "qt/searched_view.h"

namespace orby {

// Headings and warnings are set off by weight and colour. The text itself is plain, and so is every copy of it. Ctrl
// with plus, minus and 0, or with the wheel of the mouse, changes the size of the text.
class ReportView : public QPlainTextEdit, public SearchedView {
 public:
  explicit ReportView(QWidget* parent = nullptr);

  void Find(const QString& wanted, TextSearch::Direction direction) override;

  // Makes the text larger by this number of points, or smaller, as far as it stays readable.
  void Zoom(int points);
  void ResetZoom() { Zoom(-zoom_); }

 protected:
  void changeEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  void AddZoomKey(const QKeySequence& key, int points);

  QSyntaxHighlighter* marks_;
  int zoom_ = 0;  // points more than the size of the font
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::ReportView;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
