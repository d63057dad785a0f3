#include "qt/bound_form.h"

#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QToolBar>
#include <algorithm>

#include "controls/edit_history.h"
#include "qt/boundary.h"
#include "qt/measures.h"
#include "qt/texts.h"

namespace orby {
namespace {

// Returns the name that a screen reader uses for a field without a label: the title of the frame around it, or of the
// window.
QString PlaceCaption(const QWidget& widget) {
  for (const QWidget* at = widget.parentWidget(); at != nullptr; at = at->parentWidget()) {
    const auto* frame = dynamic_cast<const QGroupBox*>(at);
    if (frame != nullptr && !frame->title().isEmpty()) return frame->title();
  }
  return widget.window()->windowTitle();
}

// Returns the visible member of an array that shows one member at a time.
QWidget* MemberOnView(QWidget& member) {
  const QString name = member.objectName();
  const QString array = name.left(name.lastIndexOf('_') + 1);
  if (!member.isHidden() || array.isEmpty()) return &member;
  for (auto* sibling : member.parentWidget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (sibling->objectName().startsWith(array) && !sibling->isHidden()) return sibling;
  }
  return &member;
}

void NameAfterLabel(QLabel& label) {
  if (label.buddy() == nullptr) return;
  label.setBuddy(MemberOnView(*label.buddy()));
  label.buddy()->setAccessibleName(label.text().remove('&'));
}

// Selects the text, so that typing replaces it.
void SelectText(QWidget& widget) {
  if (auto* line = dynamic_cast<QLineEdit*>(&widget)) line->selectAll();
  if (const auto* combo = dynamic_cast<QComboBox*>(&widget)) combo->lineEdit()->selectAll();
}

bool IsHelpKey(const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& key = dynamic_cast<const QKeyEvent&>(event);
  return key.key() == Qt::Key_F1 && key.modifiers() == Qt::NoModifier;
}

// Buttons choose their letters first, because they are last in the tab order. Options choose later, because the arrow
// keys reach them from the selected one. Parts of the window that belong to no control choose last.
int LetterRank(const CaptionSlot& slot) {
  if (slot.key->objectName().startsWith("view") || slot.key->objectName().isEmpty()) return 3;
  if (dynamic_cast<const QPushButton*>(slot.key) != nullptr) return 0;
  return dynamic_cast<const QRadioButton*>(slot.key) == nullptr ? 1 : 2;
}

}  // namespace

BoundForm::BoundForm(Form& form, QWidget& root) : form_(form), root_(root) {
  BindControls();
  AssignLetters();
  for (const Control* control : form.Controls()) bindings_.at(control)->Show();
  CaptionChanged();
  ApplyMeasures();
  RetainSizes();
  OrderTabs();
  NameForReaders();
  ShowTheme();
  for (Binding* binding : marked_) binding->ShowMark();
  root.installEventFilter(this);
  TieEdits();
  form.SetView(this);
}

BoundForm::~BoundForm() { Untie(); }

void BoundForm::Untie() {
  if (tied_ && form_.View() == this) form_.SetView(nullptr);
  tied_ = false;
}

void BoundForm::ShowTheme() {
  for (const auto& [control, binding] : bindings_) binding->ShowTheme();
}

bool BoundForm::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::PaletteChange) ShowTheme();
  // No widget of a form uses this key, so the window gets it.
  if (IsHelpKey(*event)) {
    AskForHelp();
    return true;
  }
  return QObject::eventFilter(watched, event);
}

const Control* BoundForm::ControlInUse() const {
  for (const QWidget* at = root_.focusWidget(); at != nullptr; at = at->parentWidget()) {
    for (const auto& [control, binding] : bindings_) {
      if (std::ranges::count(binding->Widgets(), at) > 0) return control;
    }
  }
  return nullptr;
}

// Queued, because a help file that cannot be shown opens a modal box.
void BoundForm::AskForHelp() {
  const auto ask = [this, control = ControlInUse()] {
    if (tied_ && HelpRequested) RunGuarded([&] { HelpRequested(control); });
  };
  QMetaObject::invokeMethod(this, ask, Qt::QueuedConnection);
}

void BoundForm::BindControls() {
  for (Control* control : form_.Controls()) {
    Binding& binding = *bindings_.emplace(control, Bind(*this, *control)).first->second;
    if (binding.CanBeMarked()) marked_.push_back(&binding);
  }
}

void BoundForm::TieEdits() {
  if (form_.Edits() == nullptr) return;
  editKeys_ = std::make_unique<EditKeys>(form_, *this);
  for (Control* control : form_.Controls()) {
    const Binding& binding = *bindings_.at(control);
    if (binding.HasOwnMenu()) continue;
    for (QWidget* widget : binding.Widgets()) editKeys_->Watch(*control, *widget);
  }
}

void BoundForm::AssignLetters() {
  std::vector<CaptionSlot> captions;
  for (const Control* control : form_.Controls()) {
    for (CaptionSlot& slot : bindings_.at(control)->Captions()) captions.push_back(std::move(slot));
  }
  std::ranges::stable_sort(captions, {}, LetterRank);
  letters_.Assign(captions);
}

// In a dialog, hidden widgets keep their place, so that nothing moves. In a window with a large view, the view takes
// the place.
void BoundForm::RetainSizes() {
  if (dynamic_cast<QDialog*>(&root_) == nullptr) return;
  for (const auto& [control, binding] : bindings_) {
    if (!binding->RetainsSize()) continue;
    for (QWidget* widget : binding->Widgets()) {
      QSizePolicy policy = widget->sizePolicy();
      policy.setRetainSizeWhenHidden(true);
      widget->setSizePolicy(policy);
    }
  }
}

void BoundForm::ApplyMeasures() {
  if (dynamic_cast<QDialog*>(&root_) == nullptr) return;
  std::vector<QLineEdit*> numbers;
  std::vector<QPushButton*> buttons;
  std::vector<const Control*> editors;  // of the cells of grids
  for (const Control* control : form_.Controls()) {
    if (const auto* grid = dynamic_cast<const Grid*>(control)) editors.push_back(grid->Overlay());
  }
  for (const Control* control : form_.Controls()) {
    QWidget* widget = WidgetOf(*control);
    if (auto* button = dynamic_cast<QPushButton*>(widget)) buttons.push_back(button);
    const auto* box = dynamic_cast<const TextBox*>(control);
    auto* field = dynamic_cast<QLineEdit*>(widget);
    if (box == nullptr || field == nullptr || std::ranges::count(editors, box) > 0) continue;
    if (box->IsNumberField()) numbers.push_back(field);
  }
  AlignNumberFields(form_.Name(), numbers);
  ArrangeDialogButtons(buttons);
}

void BoundForm::OrderTabs() {
  QWidget* before = nullptr;
  for (const Control* control : form_.Controls()) {
    for (QWidget* widget : bindings_.at(control)->Widgets()) {
      if (widget->focusPolicy() == Qt::NoFocus) continue;
      if (before != nullptr) QWidget::setTabOrder(before, widget);
      before = widget;
    }
  }
}

void BoundForm::NameForReaders() {
  const bool ids = ShowsControlNames();
  for (const Control* control : form_.Controls()) {
    for (QWidget* widget : bindings_.at(control)->Widgets()) {
      if (auto* label = dynamic_cast<QLabel*>(widget)) NameAfterLabel(*label);
      if (ids) widget->setAccessibleDescription(widget->objectName());
    }
  }
  for (const Control* control : form_.Controls()) {
    for (QWidget* widget : bindings_.at(control)->Widgets()) {
      const bool hasText = widget->property("text").isValid() && dynamic_cast<QLineEdit*>(widget) == nullptr;
      if (hasText || !widget->accessibleName().isEmpty() || widget->focusPolicy() == Qt::NoFocus) continue;
      widget->setAccessibleName(PlaceCaption(*widget));
    }
  }
}

QWidget* BoundForm::WidgetOf(const Control& control) const {
  const auto found = bindings_.find(&control);
  if (found == bindings_.end() || found->second->Widgets().empty()) return nullptr;
  return found->second->Widgets().front();
}

void BoundForm::ControlChanged(const Control& control) {
  const auto found = bindings_.find(&control);
  if (found == bindings_.end()) return;
  found->second->Show();
}

void BoundForm::CaptionChanged() { root_.setWindowTitle(ToQt(form_.Caption())); }

// Scrolls at once, and again after a newly opened page has its layout.
void BoundForm::BringOnView(QWidget& widget) {
  auto* scroll = root_.findChild<QScrollArea*>("viewScroll");
  if (scroll == nullptr || !scroll->widget()->isAncestorOf(&widget)) return;
  const auto bring = [scroll, shown = QPointer(&widget)] {
    if (shown != nullptr) scroll->ensureWidgetVisible(shown);
  };
  bring();
  QMetaObject::invokeMethod(scroll, bring, Qt::QueuedConnection);
}

// Ignored if the control is hidden or disabled. A field that already has the focus gets its text selected again.
void BoundForm::FocusRequested(Control& control) {
  const auto found = bindings_.find(&control);
  QWidget* widget = found == bindings_.end() ? nullptr : found->second->FocusWidget();
  if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) return;
  widget->setFocus(Qt::OtherFocusReason);
  SelectText(*widget);
  BringOnView(*widget);
}

void BoundForm::ShowFocus() {
  if (Control* wanted = form_.FocusRequest()) FocusRequested(*wanted);
}

void BoundForm::CloseByUser() {
  Act([this] {
    if (form_.MayClose()) form_.Close();
  });
}

void BoundForm::Closed() {
  Untie();
  if (Finished) Finished();
}

void BoundForm::Act(const std::function<void()>& act) {
  if (RunGuarded(act) && form_.IsOpen()) RunGuarded([this] { form_.EndAct(); });
  // A mark depends on other fields too.
  for (Binding* binding : marked_) binding->ShowMark();
}

void BoundForm::ActLater(std::function<void()> act) {
  // If an earlier action has closed the form, the action is dropped. If a dialog has opened meanwhile, it is dropped
  // and the widgets show the old state again.
  const auto actIfOpen = [this, act = std::move(act)] {
    if (!tied_) return;
    if (!IsBlocked(root_)) return Act(act);
    for (const auto& [control, binding] : bindings_) binding->Show();
  };
  QMetaObject::invokeMethod(this, actIfOpen, Qt::QueuedConnection);
}

QWidget* WidgetOnScreen(const Control& control) {
  const auto* view = dynamic_cast<const BoundForm*>(control.Owner().View());
  return view == nullptr ? nullptr : view->WidgetOf(control);
}

QWidget* WindowOnScreen(const Form& form) {
  const auto* view = dynamic_cast<const BoundForm*>(form.View());
  return view == nullptr ? nullptr : &view->Root();
}

}  // namespace orby
