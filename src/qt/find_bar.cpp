#include "qt/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

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
  auto* label = new QLabel("F&ind:", searchRow_);
  label->setBuddy(wanted_);
  finding_ = new QLabel(searchRow_);
  finding_->setObjectName("viewFindResult");
  for (QWidget* widget : std::initializer_list<QWidget*>{label, wanted_, NewButton("Find &Next", &FindBar::FindNext),
                                                         NewButton("Find P&revious", &FindBar::FindPrevious), finding_,
                                                         NewButton("&Hide", &FindBar::Hide)}) {
    searchRow_->layout()->addWidget(widget);
  }
  connect(wanted_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
}

void FindBar::BuildTaskRow() {
  progress_ = new QProgressBar(taskRow_);
  progress_->setObjectName("viewFindProgress");
  progress_->setAccessibleName("Progress");
  taskRow_->layout()->addWidget(progress_);
  taskRow_->layout()->addWidget(NewButton("St&op", &FindBar::StopTask));
}

QPushButton* FindBar::NewButton(const QString& caption, void (FindBar::*clicked)()) {
  auto* button = new QPushButton(caption, this);
  button->setObjectName("view" + QString(caption).remove(' ').remove('&'));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, clicked] { (this->*clicked)(); });
  return button;
}

void FindBar::AddKey(const QKeySequence& key, void (FindBar::*pressed)()) {
  // A shortcut of the view does nothing while the view is hidden.
  auto* shortcut = new QShortcut(key, view_);
  connect(shortcut, &QShortcut::activated, this, [this, pressed] { (this->*pressed)(); });
}

void FindBar::Attach(LinesView& view) {
  view_ = &view;
  view.Progressed = [this](int percent) { ShowProgress(percent); };
  view.Searched = [this](LinesView::Finding finding) { ShowFinding(finding); };
  view.EscapePressed = [this] { return Escape(); };
  AddKey(QKeySequence::Find, &FindBar::Open);
  AddKey(Qt::Key_F3, &FindBar::FindNext);
  AddKey(Qt::SHIFT | Qt::Key_F3, &FindBar::FindPrevious);
}

void FindBar::Open() {
  searchRow_->show();
  wanted_->setFocus(Qt::ShortcutFocusReason);
  wanted_->selectAll();
}

void FindBar::Find(TextSearch::Direction direction) {
  if (view_ == nullptr) return;
  if (wanted_->text().isEmpty()) return Open();
  searchRow_->show();
  finding_->clear();
  view_->Find(wanted_->text(), direction);
}

void FindBar::StopTask() { view_->Stop(); }

void FindBar::Hide() {
  searchRow_->hide();
  finding_->clear();
  view_->setFocus();
}

bool FindBar::Escape() {
  if (view_->Stop()) return true;
  if (searchRow_->isHidden()) return false;
  Hide();
  return true;
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && Escape()) return event->accept();
  QWidget::keyPressEvent(event);
}

void FindBar::ShowProgress(int percent) {
  constexpr int Whole = 100;
  progress_->setValue(percent);
  taskRow_->setVisible(percent < Whole);
}

void FindBar::ShowFinding(LinesView::Finding finding) {
  switch (finding) {
    case LinesView::Finding::Found: finding_->clear(); break;
    case LinesView::Finding::FoundAroundTheEnd: finding_->setText("Continued from the other end"); break;
    case LinesView::Finding::NotFound: finding_->setText("Not found"); break;
  }
  finding_->setAccessibleName(finding_->text());
}

}  // namespace orby
