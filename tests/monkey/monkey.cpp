#include "monkey/monkey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <cstdlib>

#include "core/program.h"
#include "monkey/acts.h"
#include "monkey/sight.h"
#include "monkey/watch.h"

namespace orby::monkey {
namespace {

constexpr auto TurnType = QEvent::Type(QEvent::User + 77);

QMessageBox* EndBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  return box != nullptr && box->text().startsWith("Run-time error '") && box->windowTitle() == ProgramTitle.data()
             ? box
             : nullptr;
}

// Returns true if the window says that a file could not be read to its end. The part that was read stays open.
bool IsRefusal(const QWidget* window) {
  const auto* box = qobject_cast<const QMessageBox*>(window);
  return box != nullptr && (box->text().startsWith("Error occurred") || box->text().contains("can not be opened"));
}

// Activates a window, as a window manager does when the active one closes.
void GiveKeyboard() {
  if (QGuiApplication::focusWindow() != nullptr || QApplication::activePopupWidget() != nullptr) return;
  if (QWidget* window = WindowInUse()) window->activateWindow();
}

// On the offscreen platform a list that pops up and closes again can become the active window. No desktop activates
// such a list.
void LeavePopup() { QApplication::setActiveWindow(QApplication::activeModalWidget()); }

}  // namespace

Monkey::Monkey(Ledger& ledger, RunRecord& record, bool byItself) : ledger_(ledger), record_(record) {
  if (ledger.shown.awaited) {
    comeback_ = std::make_unique<Comeback>(ledger.shown, byItself, [this](const std::string& kind, const auto& text) {
      TellFinding(ledger_, kind, text, ledger_.log, ledger_.acts);
    });
  }
  PostNext();
}

// Queued after everything that the action causes.
void Monkey::PostNext() { QCoreApplication::postEvent(this, new QEvent(TurnType), Qt::LowEventPriority); }

bool Monkey::event(QEvent* event) {
  if (event->type() != TurnType) return QObject::event(event);
  // Queued before the action, which may open a dialog and return only when that is closed.
  PostNext();
  Turn();
  return true;
}

void Monkey::Begin() {
  begun_ = true;
  qApp->installEventFilter(this);
  // The result must not depend on the speed of the machine.
  QApplication::setCursorFlashTime(0);
  QApplication::setKeyboardInputInterval(0);
}

bool Monkey::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto& widget = static_cast<QWidget&>(*watched);
  if (event->type() == QEvent::Show && widget.isWindow()) ++ledger_.windows[WindowName(widget).toStdString()];
  if (event->type() == QEvent::WindowActivate && widget.windowType() == Qt::Popup) LeavePopup();
  return false;
}

void Monkey::Turn() {
  NoteAct();
  if (!begun_) Begin();
  if (QMessageBox* box = EndBox()) return TakeEnd(*box);
  refused_ = refused_ || IsRefusal(QApplication::activeModalWidget());
  if (comeback_ != nullptr) {
    comeback_->Step();
    if (!ledger_.shown.awaited) comeback_.reset();
    return;
  }
  if (ledger_.acts >= ledger_.actsWanted) {
    record_.ending = Ending::Done;
    std::_Exit(EXIT_SUCCESS);
  }
  Act();
}

void Monkey::Act() {
  NoteShown(ledger_.shown);
  const long act = ++ledger_.acts;
  Log("no act");
  GiveKeyboard();
  Dice dice(ledger_.seed, act);
  DoRandomAct(dice, ledger_.seed, act, [this](const std::string& what) { Log(what); });
}

void Monkey::Log(const std::string& what) {
  ledger_.log[static_cast<std::size_t>(ledger_.acts % ActsShown)].Set(std::to_string(ledger_.acts) + " " + what);
}

void Monkey::TakeEnd(QMessageBox& box) {
  const QString text = box.text();
  if (record_.ending == Ending::Running) {
    record_.ending = Ending::ByError;
    record_.act = ledger_.acts;
    record_.log = ledger_.log;
    record_.what.Set(text.toStdString());
    const int number = text.section('\'', 1, 1).toInt();
    record_.trace.Set(OriginOfError(number));
    // A project that ends the run during the search is not awaited again.
    const bool isHalf = refused_ && text.contains("with a new project");
    if (comeback_ == nullptr) NoteEndedProject(ledger_.shown, refused_, isHalf);
  }
  for (QAbstractButton* button : box.buttons()) {
    if (PlainCaption(button->text()) == "Start Again") return button->click();
  }
  box.buttons().front()->click();
}

}  // namespace orby::monkey
