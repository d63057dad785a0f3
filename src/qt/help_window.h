// The help window: contents, index and search beside a page.
#pragma once

#include <QLineEdit>
#include <QMainWindow>
#include <QTabWidget>
#include <QToolBar>
#include <memory>
#include <string>

#include "help/help_book.h"
#include "qt/help_browser.h"
#include "qt/help_panes.h"

namespace orby {

class ChmFile;

class HelpWindow : public QMainWindow {
 public:
  explicit HelpWindow(std::unique_ptr<ChmFile> file);
  ~HelpWindow() override;

  // These also show the window.
  void ShowContents();
  void ShowIndex();
  void ShowTopic(const std::string& topic);

  HelpBrowser& Browser() const { return *browser_; }

 private:
  // Call these while the window is shown, because the page layout depends on its width.
  void GoTo(const std::string& place);
  void GoHome();
  void MakePanes(QTabWidget& panes);
  void MakeToolBar();
  void MakeFindBar();
  QAction& AddButton(const char* icon, const QString& caption, const QKeySequence& keys,
                     const std::function<void()>& act);
  void ShowFindBar();
  void FindNext(QTextDocument::FindFlags flags = {});
  void Escape();
  void Print();

  std::unique_ptr<ChmFile> file_;
  HelpBook book_;
  QTabWidget* panes_;
  HelpBrowser* browser_;
  QToolBar* buttons_ = nullptr;
  ContentsPane* contents_ = nullptr;
  IndexPane* index_ = nullptr;
  SearchPane* search_ = nullptr;
  QToolBar* findBar_ = nullptr;
  QLineEdit* findLine_ = nullptr;
};

}  // namespace orby
