// The bar below a view of lines: search text, and progress of a copy or search.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include "base/text_search.h"
#include "qt/lines_view.h"

namespace orby {

// Hidden until needed. In the window of the view, Ctrl+F shows the search row, F3 and Shift+F3 find the next and the
// previous match, and Esc hides the row. During a long copy or search a second row shows the progress and a Stop
// button.
class FindBar : public QWidget {
 public:
  explicit FindBar(QWidget* parent = nullptr);

  // Connects the bar to the view.
  void Attach(LinesView& view);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildSearchRow();
  void BuildTaskRow();
  QPushButton* NewButton(const QString& caption, void (FindBar::*clicked)());
  void AddKey(const QKeySequence& key, void (FindBar::*pressed)());

  void Open();
  void FindNext() { Find(TextSearch::Direction::Forward); }
  void FindPrevious() { Find(TextSearch::Direction::Backward); }
  void Find(TextSearch::Direction direction);
  void StopTask();
  void Hide();
  // Stops a copy or search, or else hides the search row. Returns false if there was neither.
  bool Escape();

  void ShowProgress(int percent);
  void ShowFinding(LinesView::Finding finding);

  LinesView* view_ = nullptr;
  QWidget* searchRow_;
  QWidget* taskRow_;
  QLineEdit* wanted_;
  QLabel* finding_;
  QProgressBar* progress_;
};

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::FindBar;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
