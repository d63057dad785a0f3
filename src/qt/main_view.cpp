#include "qt/main_view.h"

#include <QAction>
#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScreen>
#include <QToolBar>
#include <QUrl>
#include <algorithm>
#include <array>

#include "qt/bindings.h"
#include "qt/boundary.h"
#include "qt/pictures.h"
#include "qt/summary_view.h"
#include "qt/texts.h"
#include "qt/window_frame.h"
#include "qt/windows.h"
#include "shell/main_window.h"

namespace orby {
namespace {

struct Dress {
  const char* action;
  const char* icon;
  const char* shortcut;
};

constexpr std::array Dresses{
    Dress{"mnuFileItem_0", nullptr, "Ctrl+N"},     Dress{"mnuFileItem_1", "open", "Ctrl+O"},
    Dress{"mnuFileItem_2", "save", "Ctrl+S"},      Dress{"mnuFileItem_3", nullptr, "Ctrl+Shift+S"},
    Dress{"mnuFileItem_6", "print", "Ctrl+P"},     Dress{"mnuEditItem_0", "description", nullptr},
    Dress{"mnuEditItem_1", "parameters", nullptr}, Dress{"mnuHelpItem_0", nullptr, "F1"},
    Dress{"Toolbar1_1", "open", nullptr},          Dress{"Toolbar1_2", "save", nullptr},
    Dress{"Toolbar1_3", "print", nullptr},         Dress{"Toolbar1_4", "description", nullptr},
    Dress{"Toolbar1_5", "parameters", nullptr},
};

// Keeps the window no larger than its screen and inside the screens, whatever changes its size.
class StayInView : public QObject {
 public:
  explicit StayInView(QMainWindow& window) : QObject(&window), window_(window) { window.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && !window_.isMaximized() && !window_.isFullScreen()) BringBack();
    // The frame is known by then.
    if (event->type() == QEvent::WindowActivate) Fit();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Fit() {
    if (window_.isMaximized() || window_.isFullScreen()) return;
    const QSize most = window_.screen()->availableSize().shrunkBy(FrameOf(window_));
    window_.resize(window_.size().boundedTo(most));
    BringBack();
  }

  void BringBack() {
    const QRect screens = window_.screen()->availableVirtualGeometry();
    QRect frame = window_.frameGeometry();
    const QPoint place = frame.topLeft();
    frame.moveRight(std::min(frame.right(), screens.right()));
    frame.moveBottom(std::min(frame.bottom(), screens.bottom()));
    frame.moveLeft(std::max(frame.left(), screens.left()));
    frame.moveTop(std::max(frame.top(), screens.top()));
    if (frame.topLeft() != place) window_.move(frame.topLeft());
  }

  QMainWindow& window_;
};

// Opens the file that is dropped on the window.
class DropTarget : public QObject {
 public:
  DropTarget(QMainWindow& window, MainWindow& model) : QObject(&window), window_(window), model_(model) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
    // The pane would insert the name of the file as text.
    for (auto* pane : window.findChildren<QPlainTextEdit*>()) pane->setAcceptDrops(false);
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::DragEnter) {
      auto& drag = *dynamic_cast<QDragEnterEvent*>(event);
      if (!FileOf(*drag.mimeData()).isEmpty()) drag.acceptProposedAction();
      return true;
    }
    if (event->type() == QEvent::Drop) {
      auto& drop = *dynamic_cast<QDropEvent*>(event);
      drop.acceptProposedAction();
      // Queued, because opening may ask questions while the other program waits for the drop to end.
      QMetaObject::invokeMethod(
          this, [this, file = FileOf(*drop.mimeData())] { Take(file); }, Qt::QueuedConnection);
      return true;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  // Does nothing if a dialog has opened meanwhile.
  void Take(const QString& file) {
    if (!IsBlocked(window_)) RunGuarded([&] { model_.Dropped(PathFromQt(file)); });
  }

  static QString FileOf(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    if (urls.size() != 1 || !urls.front().isLocalFile()) return {};
    const QString path = urls.front().toLocalFile();
    return QFileInfo(path).isFile() ? path : QString();
  }

  QMainWindow& window_;
  MainWindow& model_;
};

}  // namespace

void FurnishMainWindow(QtWindows& windows, MainWindow& model) {
  QMainWindow& window = windows.Main();
  for (const Dress& dress : Dresses) {
    auto* action = window.findChild<QAction*>(dress.action);
    if (dress.icon != nullptr) action->setIcon(ThemedIcon(dress.icon));
    if (dress.shortcut != nullptr) action->setShortcut(QKeySequence(dress.shortcut));
  }
  new StayInView(window);
  // With the icons, the tool bar is longer than the window was made for.
  const QSize whole(window.findChild<QToolBar*>()->sizeHint().width(), 0);
  const QSize most = window.screen()->availableSize().shrunkBy(FrameOf(window));
  if (!window.isMaximized()) window.resize(window.size().expandedTo(whole).boundedTo(most));
  new DropTarget(window, model);
  ShowSummaryAfterPaint(windows, model);
}

}  // namespace orby
