#include "qt/find_bar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "qt/mnemonics.h"

namespace orby {
namespace {

QWidget* NewRow(QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  row->hide();
  parent->layout()->addWidget(row);
  return row;
}

}  // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  searchRow_ = NewRow(this);
  taskRow_ = NewRow(this);
  BuildSearchRow();
  BuildTaskRow();
}

void FindBar::BuildSearchRow() {
  wanted_ = new QLineEdit(searchRow_);
  wanted_->setObjectName("viewFindText");
  wanted_->setAccessibleName("Find");
  auto* label = new QLabel(searchRow_);
  label->setBuddy(wanted_);
  captions_.emplace_back(label, "Find:");
  finding_ = new QLabel(searchRow_);
  finding_->setObjectName("viewFindResult");
  for (QWidget* widget : std::initializer_list<QWidget*>{label, wanted_, NewButton("Find Next", &FindBar::FindNext),
                                                         NewButton("Find Previous", &FindBar::FindPrevious), finding_,
                                                         NewButton("Hide", &FindBar::Hide)}) {
    searchRow_->layout()->addWidget(widget);
  }
  connect(wanted_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
}

void FindBar::BuildTaskRow() {
  progress_ = new QProgressBar(taskRow_);
  progress_->setObjectName("viewFindProgress");
  progress_->setAccessibleName("Progress");
  taskRow_->layout()->addWidget(progress_);
  taskRow_->layout()->addWidget(NewButton("Stop", &FindBar::StopTask));
}

QPushButton* FindBar::NewButton(const char* caption, void (FindBar::*clicked)()) {
  auto* button = new QPushButton(this);
  button->setObjectName("view" + QString(caption).remove(' '));
  captions_.emplace_back(button, caption);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, clicked] { (this->*clicked)(); });
  return button;
}

void FindBar::AddKey(const QKeySequence& key, void (FindBar::*pressed)()) {
  // A shortcut of the view does nothing while the view is hidden.
  auto* shortcut = new QShortcut(key, widget_);
  connect(shortcut, &QShortcut::activated, this, [this, pressed] { (this->*pressed)(); });
}

void FindBar::Attach(SearchedView& view, QWidget& widget) {
  view_ = &view;
  widget_ = &widget;
  view.Progressed = [this](int percent) { ShowProgress(percent); };
  view.Searched = [this](SearchedView::Finding finding) { ShowFinding(finding); };
  escape_ = new QShortcut(Qt::Key_Escape, widget_);
  escape_->setEnabled(false);
  connect(escape_, &QShortcut::activated, this, &FindBar::Escape);
  AddKey(QKeySequence::Find, &FindBar::Open);
  AddKey(Qt::Key_F3, &FindBar::FindNext);
  AddKey(Qt::SHIFT | Qt::Key_F3, &FindBar::FindPrevious);
}

std::vector<CaptionSlot> FindBar::Captions() const {
  std::vector<CaptionSlot> captions;
  captions.reserve(captions_.size());
  for (const auto& [widget, caption] : captions_) captions.push_back({widget, 0, widget, caption});
  return captions;
}

void FindBar::ShowLetters(const Mnemonics& letters) {
  for (const auto& [widget, caption] : captions_) widget->setProperty("text", letters.Marked(widget, 0, caption));
}

void FindBar::Open() {
  searchRow_->show();
  TakeEscape();
  wanted_->setFocus(Qt::ShortcutFocusReason);
  wanted_->selectAll();
}

void FindBar::Find(TextSearch::Direction direction) {
  if (view_ == nullptr) return;
  if (wanted_->text().isEmpty()) return Open();
  searchRow_->show();
  TakeEscape();
  finding_->clear();
  view_->Find(wanted_->text(), direction);
}

void FindBar::StopTask() { view_->Stop(); }

void FindBar::Hide() {
  searchRow_->hide();
  TakeEscape();
  finding_->clear();
  widget_->setFocus();
}

void FindBar::Escape() {
  if (!view_->Stop()) Hide();
}

void FindBar::ShowProgress(int percent) {
  constexpr int Whole = 100;
  progress_->setValue(percent);
  taskRow_->setVisible(percent < Whole);
  TakeEscape();
}

void FindBar::ShowFinding(SearchedView::Finding finding) {
  switch (finding) {
    case SearchedView::Finding::Found: finding_->clear(); break;
    case SearchedView::Finding::FoundAroundTheEnd: finding_->setText("Continued from the other end"); break;
    case SearchedView::Finding::NotFound: finding_->setText("Not found"); break;
  }
  finding_->setAccessibleName(finding_->text());
}

FindBar* FindBarBeside(const QWidget& view) {
  return dynamic_cast<FindBar*>(view.parentWidget()->findChild<QWidget*>("viewFindBar"));
}

}  // namespace orby
