// The bar below a view of a text: search text, and progress of a copy or search.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QWidget>
#include <utility>
#include <vector>

#include "qt/bindings.h"
#include "qt/searched_view.h"

namespace orby {

// Hidden until needed. In the window of the view, Ctrl+F shows the search row, F3 and Shift+F3 find the next and the
// previous match, and Esc hides the row before it closes the window. During a long copy or search a second row shows
// the progress and a Stop button, which Esc presses too.
class FindBar : public QWidget {
 public:
  explicit FindBar(QWidget* parent = nullptr);

  // Connects the bar to the view, which is the widget too.
  void Attach(SearchedView& view, QWidget& widget);

  // Returns the captions of the bar. The captions of the form choose their letters first.
  std::vector<CaptionSlot> Captions() const;
  void ShowLetters(const Mnemonics& letters);

 private:
  void BuildSearchRow();
  void BuildTaskRow();
  QPushButton* NewButton(const char* caption, void (FindBar::*clicked)());
  void AddKey(const QKeySequence& key, void (FindBar::*pressed)());

  void Open();
  void FindNext() { Find(TextSearch::Direction::Forward); }
  void FindPrevious() { Find(TextSearch::Direction::Backward); }
  void Find(TextSearch::Direction direction);
  void StopTask();
  void Hide();
  // Stops a copy or search, or else hides the search row.
  void Escape();
  // The Esc key belongs to the bar as long as a row of it is on view.
  void TakeEscape() { escape_->setEnabled(!searchRow_->isHidden() || !taskRow_->isHidden()); }

  void ShowProgress(int percent);
  void ShowFinding(SearchedView::Finding finding);

  SearchedView* view_ = nullptr;
  QWidget* widget_ = nullptr;  // the view as a widget
  QShortcut* escape_ = nullptr;
  std::vector<std::pair<QWidget*, std::string>> captions_;
  QWidget* searchRow_;
  QWidget* taskRow_;
  QLineEdit* wanted_;
  QLabel* finding_;
  QProgressBar* progress_;
};

// Returns the find bar beside a view, or null if there is none.
FindBar* FindBarBeside(const QWidget& view);

}  // namespace orby

// The form files name their widgets without a namespace.
using orby::FindBar;  // NOLINT(google-global-names-in-headers,misc-unused-using-decls)
