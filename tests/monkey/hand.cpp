#include "monkey/hand.h"

#include <QAbstractButton>
#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>

namespace orby::monkey {
namespace {

// The time of the events. It advances so much between actions that their clicks never make a double click.
int& Moment() {
  static int moment = 0;
  return moment;
}

struct Spot {
  QPointer<QWindow> window;
  QPointF inWindow;
  QPointF onScreen;
};

Spot SpotOf(QWidget& widget, QPoint place) {
  QWidget* top = widget.window();
  return {top->windowHandle(), widget.mapTo(top, place), widget.mapToGlobal(place)};
}

void Mouse(const Spot& spot, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons down,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  constexpr int Between = 10;
  Moment() += Between;
  if (spot.window == nullptr) return;
  qt_handleMouseEvent(spot.window, spot.inWindow, spot.onScreen, down, button, type, modifiers, Moment());
}

void PressAndRelease(const Spot& spot, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  Mouse(spot, QEvent::MouseButtonPress, button, button, modifiers);
  Mouse(spot, QEvent::MouseButtonRelease, button, Qt::NoButton, modifiers);
}

void BeginAct() {
  constexpr int LongPause = 10000;
  Moment() += LongPause;
}

QWindow* WindowWithKeyboard() {
  if (QWidget* popup = QApplication::activePopupWidget()) return popup->windowHandle();
  return QGuiApplication::focusWindow();
}

int KeyOf(QChar c) {
  if (c == '\t') return Qt::Key_Tab;
  return c.unicode() < 128 ? int{c.toUpper().unicode()} : int{Qt::Key_unknown};
}

// Releases buttons that a mnemonic letter pressed. They stay down for a moment, which passes at once.
void LetGoOfButtons() {
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr) return;
  for (const QPointer<QAbstractButton> button : window->findChildren<QAbstractButton*>()) {
    if (button == nullptr || !button->isDown()) continue;
    for (const auto& timer : QAbstractEventDispatcher::instance()->registeredTimers(button)) {
      QTimerEvent passed(timer.timerId);
      if (button != nullptr) QCoreApplication::sendEvent(button, &passed);
    }
  }
}

}  // namespace

void PressKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  const QPointer<QWindow> window = WindowWithKeyboard();
  if (window == nullptr) return;
  qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
  QWindow* after = window != nullptr ? window.data() : WindowWithKeyboard();
  if (after != nullptr) qt_handleKeyEvent(after, QEvent::KeyRelease, key, modifiers, text);
  if ((modifiers & Qt::AltModifier) != 0) LetGoOfButtons();
}

void TypeText(const QString& text) {
  for (const QChar c : text) PressKey(KeyOf(c), c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, c);
}

void Paste(const QString& text) {
  QGuiApplication::clipboard()->setText(text);
  PressKey(Qt::Key_V, Qt::ControlModifier, QChar(22));
}

void Compose(const QString& text) {
  QObject* field = QGuiApplication::focusObject();
  if (field == nullptr) return;
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(field, &event);
}

void Click(QWidget& widget, QPoint place, Qt::MouseButton button, Qt::KeyboardModifiers modifiers) {
  BeginAct();
  const Spot spot = SpotOf(widget, place);
  Mouse(spot, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  PressAndRelease(spot, button, modifiers);
  if (button == Qt::RightButton && spot.window != nullptr) {
    // Requests a context menu as the desktop does.
    QContextMenuEvent menu(QContextMenuEvent::Mouse, spot.inWindow.toPoint(), spot.onScreen.toPoint(), modifiers);
    QCoreApplication::sendEvent(spot.window, &menu);
  }
}

void DoubleClick(QWidget& widget, QPoint place) {
  BeginAct();
  const Spot spot = SpotOf(widget, place);
  for (int i = 0; i < 2; ++i) PressAndRelease(spot, Qt::LeftButton, Qt::NoModifier);
}

void Drag(QWidget& widget, QPoint from, QPoint to) {
  BeginAct();
  const QPointer<QWidget> alive = &widget;
  Mouse(SpotOf(widget, from), QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  constexpr int Steps = 4;
  for (int step = 1; step <= Steps && alive != nullptr; ++step) {
    const QPoint place = from + (to - from) * step / Steps;
    Mouse(SpotOf(widget, place), QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
  }
  if (alive != nullptr) Mouse(SpotOf(widget, to), QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
}

void TurnWheel(QWidget& widget, QPoint place, int steps, Qt::KeyboardModifiers modifiers) {
  const Spot spot = SpotOf(widget, place);
  if (spot.window == nullptr) return;
  constexpr int Step = 120;
  QWheelEvent event(spot.inWindow, spot.onScreen, {}, {0, steps * Step}, Qt::NoButton, modifiers, Qt::NoScrollPhase,
                    false);
  QCoreApplication::sendEvent(spot.window, &event);
}

void DropFile(QWidget& window, const QString& path) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(path)});
  const QPoint middle = window.rect().center();
  QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &enter);
  if (!enter.isAccepted()) return;
  QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&window, &drop);
}

}  // namespace orby::monkey
