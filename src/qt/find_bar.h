// The bar below a view of lines: what to look for in it, and how far a copy or a search is.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QWidget>

#include "base/text_search.h"
#include "qt/lines_view.h"

namespace orby {

// Hidden until it is needed: Ctrl+F in the window of the view shows the row of the search, F3 and Shift+F3 search on,
// Esc hides it. While a copy or a search takes long a second row shows how far it is, with a button that stops it.
class FindBar : public QWidget {
 public:
  explicit FindBar(QWidget* parent = nullptr);

  // Makes this the bar of the view.
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
  // Stops a copy or search, or else hides the row of the search. Returns false if there was neither.
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
