// The help on the desktop: one window, which always belongs to the window in use.
//
// While a dialog is open only the windows that belong to it take keys and clicks. So the help moves on to each dialog
// that opens, and back to the window below when it closes. To the window manager it is a window by itself: a dialog
// that opens later comes up above it. When it explains a dialog it stands beside that dialog, or at least not over the
// field in use.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <string>

#include "platform/help_viewer.h"
#include "qt/help_window.h"

namespace orby {

class QtHelpViewer : public QObject, public HelpViewer {
 public:
  QtHelpViewer() = default;
  ~QtHelpViewer() override;

  bool ShowContents(const std::string& path) override;
  bool ShowIndex(const std::string& path) override;
  bool ShowTopic(const std::string& path, const std::string& topic) override;
  void Close() override;

  // The window, while it is open.
  HelpWindow* Window() const { return window_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Show(const std::string& path, const std::function<void(HelpWindow&)>& show);
  bool MakeWindow(const std::string& path);
  void BelongTo(QWidget* host);
  void KeepClearOf(const QWidget& dialog);
  void MoveToWindowInUse();
  void RaiseAgain();
  bool Closed();

  QPointer<HelpWindow> window_;
  QPointer<QWidget> host_;
  std::string path_;
  QByteArray place_;  // on the screen, where the window was closed; empty: it has not been open yet
};

}  // namespace orby
