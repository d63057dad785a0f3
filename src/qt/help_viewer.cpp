#include "qt/help_viewer.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>

#include "qt/chm_file.h"

namespace orby {
namespace {

// A window manager keeps only dialogs above the window that they belong to.
constexpr Qt::WindowFlags Kind = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                 Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

// Questions are answered first, and nothing may cover them.
bool IsQuestion(const QWidget& window) {
  return qobject_cast<const QMessageBox*>(&window) != nullptr || qobject_cast<const QFileDialog*>(&window) != nullptr;
}

// The nearest window below this one that is on view.
QWidget* VisibleBelow(const QWidget* window) {
  QWidget* below = window == nullptr ? nullptr : window->parentWidget();
  while (below != nullptr && !below->isVisible()) below = below->parentWidget();
  return below == nullptr ? nullptr : below->window();
}

// Whether the window stands on the other one, directly or by way of others.
bool StandsOn(const QWidget* window, const QWidget* other) {
  while (window != nullptr && window != other) window = window->parentWidget();
  return window != nullptr;
}

}  // namespace

QtHelpViewer::~QtHelpViewer() { delete window_; }

bool QtHelpViewer::ShowContents(const std::string& path) {
  return Show(path, [](HelpWindow& window) { window.ShowContents(); });
}

bool QtHelpViewer::ShowIndex(const std::string& path) {
  return Show(path, [](HelpWindow& window) { window.ShowIndex(); });
}

bool QtHelpViewer::ShowTopic(const std::string& path, const std::string& topic) {
  return Show(path, [&topic](HelpWindow& window) { window.ShowTopic(topic); });
}

void QtHelpViewer::Close() {
  if (window_ != nullptr) window_->close();
}

bool QtHelpViewer::Show(const std::string& path, const std::function<void(HelpWindow&)>& show) {
  if ((window_ == nullptr || path != path_) && !MakeWindow(path)) return false;
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* active = QApplication::activeWindow();
  if (modal != nullptr) {
    StandOn(modal);
  } else if (active != nullptr && active != window_) {
    StandOn(active);
  }
  show(*window_);
  window_->raise();
  window_->activateWindow();
  return true;
}

bool QtHelpViewer::MakeWindow(const std::string& path) {
  auto file = ChmFile::Open(path);
  if (file == nullptr || !file->Has(std::string(HelpBook::ContentsFile))) return false;
  Close();
  window_ = new HelpWindow(std::move(file));
  window_->setWindowFlags(Kind);
  window_->restoreGeometry(place_);
  window_->installEventFilter(this);
  host_ = nullptr;
  path_ = path;
  return true;
}

// Keeps its place on the screen, and does not take the keyboard from the window in use.
void QtHelpViewer::StandOn(QWidget* host) {
  if (window_ == nullptr || host == host_ || StandsOn(host, window_)) return;
  if (host_ != nullptr) host_->removeEventFilter(this);
  host_ = host;
  if (host != nullptr) host->installEventFilter(this);
  const bool isOnView = window_->isVisible();
  const QByteArray place = window_->saveGeometry();
  window_->setParent(host, Kind);
  window_->restoreGeometry(place);
  if (!isOnView) return;
  window_->setAttribute(Qt::WA_ShowWithoutActivating);
  window_->show();
  window_->setAttribute(Qt::WA_ShowWithoutActivating, false);
  if (host != nullptr) host->activateWindow();
}

void QtHelpViewer::MoveToWindowInUse() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal != nullptr && !IsQuestion(*modal)) StandOn(modal);
}

// The window goes by itself.
bool QtHelpViewer::Closed() {
  place_ = window_->saveGeometry();
  if (host_ != nullptr) host_->removeEventFilter(this);
  host_ = nullptr;
  window_ = nullptr;
  return false;
}

bool QtHelpViewer::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_) {
    if (event->type() == QEvent::Close) return Closed();
    // The dialog that blocks this window is not on the screen yet.
    if (event->type() == QEvent::WindowBlocked) {
      QMetaObject::invokeMethod(
          this, [this] { MoveToWindowInUse(); }, Qt::QueuedConnection);
    }
  } else if (watched == host_ && event->type() == QEvent::Hide && !event->spontaneous()) {
    QWidget* modal = QApplication::activeModalWidget();
    StandOn(modal != nullptr && modal != host_ ? modal : VisibleBelow(host_));
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace orby
