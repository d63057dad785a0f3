#include "qt/edit_keys.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <memory>

#include "controls/edit_history.h"

namespace orby {
namespace {

// The same on every machine. Some use Ctrl+Y as well.
const QKeySequence& UndoKeys() {
  static const QKeySequence keys(Qt::CTRL | Qt::Key_Z);
  return keys;
}
const QKeySequence& RedoKeys() {
  static const QKeySequence keys(Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  return keys;
}

bool IsEditKey(const QKeyEvent& key) {
  const QKeySequence pressed(key.keyCombination());
  return pressed == UndoKeys() || pressed == RedoKeys();
}

// Returns the menu that the field has by itself, without its own undo and redo, which come first.
std::unique_ptr<QMenu> StandardMenu(QWidget& widget) {
  auto* line = dynamic_cast<QLineEdit*>(&widget);
  if (line == nullptr) return std::make_unique<QMenu>(&widget);
  std::unique_ptr<QMenu> menu(line->createStandardContextMenu());
  constexpr int OwnActions = 2;
  for (int i = 0; i < OwnActions; ++i) delete menu->actions().constFirst();
  return menu;
}

}  // namespace

EditKeys::EditKeys(Form& form, BindingHost& host) : form_(form), host_(host) {
  connect(new QShortcut(UndoKeys(), &host.Root()), &QShortcut::activated, this, &EditKeys::Undo);
  connect(new QShortcut(RedoKeys(), &host.Root()), &QShortcut::activated, this, &EditKeys::Redo);
}

void EditKeys::Watch(Control& control, QWidget& widget) {
  const auto watch = [&](QObject& object) {
    watched_.emplace(&object, &control);
    object.installEventFilter(this);
  };
  auto* line = dynamic_cast<QLineEdit*>(&widget);
  if (line != nullptr && line->isReadOnly()) return;
  watch(widget);
  if (const auto* combo = dynamic_cast<QComboBox*>(&widget)) watch(*combo->lineEdit());
}

void EditKeys::Undo() {
  host_.Act([this] { form_.UndoEdit(); });
}

void EditKeys::Redo() {
  host_.Act([this] { form_.RedoEdit(); });
}

bool EditKeys::eventFilter(QObject* watched, QEvent* event) {
  const auto found = watched_.find(watched);
  if (found == watched_.end()) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // A line would take the keys for its own undo.
      if (!IsEditKey(*dynamic_cast<QKeyEvent*>(event))) return false;
      event->ignore();
      return true;
    case QEvent::FocusOut: {
      const Qt::FocusReason reason = dynamic_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) form_.Edits()->EndTyping();
      return false;
    }
    case QEvent::ContextMenu:
      ShowMenu(*found->second, dynamic_cast<QWidget&>(*watched), dynamic_cast<QContextMenuEvent*>(event)->globalPos());
      return true;
    default: return false;
  }
}

void EditKeys::ShowMenu(Control& control, QWidget& widget, const QPoint& at) {
  const EditHistory& edits = *form_.Edits();
  QMenu& menu = *StandardMenu(widget).release();
  menu.setAttribute(Qt::WA_DeleteOnClose);
  auto* undo = new QAction("&Undo", &menu);
  undo->setShortcut(UndoKeys());
  undo->setEnabled(edits.CanUndo());
  connect(undo, &QAction::triggered, this, &EditKeys::Undo);
  auto* redo = new QAction("&Redo", &menu);
  redo->setShortcut(RedoKeys());
  redo->setEnabled(edits.CanRedo());
  connect(redo, &QAction::triggered, this, &EditKeys::Redo);
  QAction* first = menu.actions().isEmpty() ? nullptr : menu.actions().constFirst();
  menu.insertActions(first, {undo, redo});
  menu.addSeparator();
  QAction* saved = menu.addAction("As &Saved");
  saved->setEnabled(widget.isEnabled() && edits.DiffersFromSaved(control));
  connect(saved, &QAction::triggered, this,
          [this, &control] { host_.Act([this, &control] { form_.Edits()->RestoreSaved(control); }); });
  menu.popup(at);
}

}  // namespace orby
