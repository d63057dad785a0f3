#include "qt/help_viewer.h"

#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QFontMetrics>
#include <QMessageBox>
#include <QScreen>

#include "qt/help_place.h"
#include "qt/window_frame.h"

namespace orby {
namespace {

// Not a dialog, because window managers keep dialogs above their owner.
constexpr Qt::WindowFlags Kind = Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                 Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint;

// The smallest size, in characters and lines, in which a page is readable.
constexpr int LeastColumns = 70;
constexpr int LeastLines = 18;

// The user must answer questions first, and nothing may cover them.
bool IsQuestion(const QWidget& window) {
  return qobject_cast<const QMessageBox*>(&window) != nullptr || qobject_cast<const QFileDialog*>(&window) != nullptr;
}

// Returns the nearest visible owner of this window.
QWidget* VisibleBelow(const QWidget* window) {
  QWidget* below = window == nullptr ? nullptr : window->parentWidget();
  while (below != nullptr && !below->isVisible()) below = below->parentWidget();
  return below == nullptr ? nullptr : below->window();
}

// Returns true if a window is the other one or is owned by it, directly or through other windows.
bool BelongsTo(const QWidget* window, const QWidget* other) {
  while (window != nullptr && window != other) window = window->parentWidget();
  return window != nullptr;
}

// Returns the field of the window that has the focus, or a null rectangle.
QRect FieldInUse(const QWidget& window) {
  const QWidget* field = QApplication::focusWidget();
  if (field == nullptr || field->window() != &window) return {};
  return {field->mapToGlobal(QPoint()), field->size()};
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

QtHelpViewer::Source::Source(const std::string& path)
    : Path(path),
      File(ChmFile::Open(path)),
      Book([this](const std::string& name) { return File == nullptr ? std::nullopt : File->Read(name); }) {}

std::string QtHelpViewer::FirstSentence(const std::string& path, const std::string& topic) {
  if (source_ == nullptr || source_->Path != path) source_ = std::make_unique<Source>(path);
  return source_->Book.FirstSentenceOf(topic);
}

void QtHelpViewer::Close() {
  if (window_ != nullptr) window_->close();
}

bool QtHelpViewer::Show(const std::string& path, const std::function<void(HelpWindow&)>& show) {
  if ((window_ == nullptr || path != path_) && !MakeWindow(path)) return false;
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* active = QApplication::activeWindow();
  QWidget* host = modal != nullptr ? modal : active;
  if (host != nullptr && !BelongsTo(host, window_)) {
    const QWidget* explained = active == nullptr || BelongsTo(active, window_) ? host : active;
    if (explained->windowType() == Qt::Dialog) KeepClearOf(*explained);
    BelongTo(host);
  }
  show(*window_);
  window_->raise();
  window_->activateWindow();
  return true;
}

// If the user has moved the help, it stays there as long as the field is visible.
void QtHelpViewer::KeepClearOf(const QWidget& dialog) {
  const QRect field = FieldInUse(dialog);
  const bool hasPlace = window_->isVisible() || !place_.isEmpty();
  if (hasPlace && !window_->frameGeometry().intersects(field)) return;
  const QMargins frame = FrameOf(*window_);
  const QFontMetrics font = window_->fontMetrics();
  const QSize least(font.averageCharWidth() * LeastColumns, font.lineSpacing() * LeastLines);
  const QRect place = HelpPlace({dialog.screen()->availableGeometry(), dialog.frameGeometry(), field},
                                window_->size().grownBy(frame), least.grownBy(frame));
  window_->setWindowState(Qt::WindowNoState);
  window_->setGeometry(place.marginsRemoved(frame));
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

// Changes the owner. The help keeps its position and does not take the focus from the window in use.
void QtHelpViewer::BelongTo(QWidget* host) {
  if (window_ == nullptr || host == host_ || BelongsTo(host, window_)) return;
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

// Raises the modal window above the help, which has been shown again.
void QtHelpViewer::MoveToWindowInUse() {
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr || IsQuestion(*modal) || window_ == nullptr || BelongsTo(modal, window_)) return;
  BelongTo(modal);
  modal->raise();
}

void QtHelpViewer::RaiseAgain() {
  if (window_ != nullptr) window_->raise();
}

// The window is destroyed by itself.
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
    // The dialog that blocks this window is not on the screen yet, so the call is queued.
    if (event->type() == QEvent::WindowBlocked) {
      QMetaObject::invokeMethod(
          this, [this] { MoveToWindowInUse(); }, Qt::QueuedConnection);
    }
  } else if (watched == host_ && event->type() == QEvent::Hide && !event->spontaneous()) {
    QWidget* modal = QApplication::activeModalWidget();
    BelongTo(modal != nullptr && modal != host_ ? modal : VisibleBelow(host_));
    // Queued, so that it runs after the window that replaces the dialog has been raised.
    QMetaObject::invokeMethod(
        this, [this] { RaiseAgain(); }, Qt::QueuedConnection);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace orby
