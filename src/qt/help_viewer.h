// The help on the desktop: one window, owned by the window in use.
//
// While a modal dialog is open, only the windows that it owns take keys and clicks. So each dialog that opens becomes
// the owner of the help, and when it closes, the window below it does. For the window manager the help is a normal
// window, so later dialogs open above it. A help page about a dialog opens beside the dialog, or at least not over the
// field in use.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>

#include "help/chm_file.h"
#include "help/help_book.h"
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
  std::string FirstSentence(const std::string& path, const std::string& topic) override;
  void Close() override;

  // Returns the window while it is open.
  HelpWindow* Window() const { return window_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The book that sentences are read from, opened when one is first needed.
  struct Source {
    explicit Source(const std::string& path);

    std::string Path;
    std::unique_ptr<ChmFile> File;  // null if it is no help file
    HelpBook Book;
  };

  bool Show(const std::string& path, const std::function<void(HelpWindow&)>& show);
  bool MakeWindow(const std::string& path);
  void BelongTo(QWidget* host);
  void KeepClearOf(const QWidget& dialog);
  void MoveToWindowInUse();
  void RaiseAgain();
  bool Closed();

  std::unique_ptr<Source> source_;
  QPointer<HelpWindow> window_;
  QPointer<QWidget> host_;
  std::string path_;
  QByteArray place_;  // the position at which the window was closed; empty if it has not been open yet
};

}  // namespace orby
