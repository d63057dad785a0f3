// The help on the desktop: one window, which always stands on the window in use.
//
// While a dialog is open only the windows that stand on it take keys and clicks. So the help moves on to each dialog
// that opens, and back to the window below when it closes.
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
  void StandOn(QWidget* host);
  void MoveToWindowInUse();
  bool Closed();

  QPointer<HelpWindow> window_;
  QPointer<QWidget> host_;
  std::string path_;
  QByteArray place_;  // on the screen, where the window was closed
};

}  // namespace orby
