// The panes beside the page in the help window: contents, index and search. Each reads its part of the book when it is
// first shown.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>
#include <QWidget>
#include <functional>
#include <string>

namespace orby {

class HelpBook;

class HelpPane : public QWidget {
 public:
  HelpPane(HelpBook& book, QWidget* parent) : QWidget(parent), Book(book) {}

  // Called with the place that the user chooses.
  std::function<void(const std::string& place)> Chosen;

 protected:
  void showEvent(QShowEvent* event) override;
  // Called before the pane is shown for the first time.
  virtual void Fill() {}
  void Choose(const QString& place) const;

  HelpBook& Book;

 private:
  bool filled_ = false;
};

class ContentsPane : public HelpPane {
 public:
  ContentsPane(HelpBook& book, QWidget* parent);

  // Highlights the shown page.
  void Mark(const std::string& place);

 protected:
  void Fill() override;

 private:
  QTreeWidget* tree_;
  std::string place_;
};

class IndexPane : public HelpPane {
 public:
  IndexPane(HelpBook& book, QWidget* parent);

 protected:
  void Fill() override;

 private:
  void FindKeyword(const QString& start);

  QLineEdit* line_;
  QTreeWidget* tree_;
};

class SearchPane : public HelpPane {
 public:
  SearchPane(HelpBook& book, QWidget* parent);

  // Returns the words of the last search.
  QString Words() const { return line_->text(); }

 private:
  void Search();

  QLineEdit* line_;
  QListWidget* list_;
};

}  // namespace orby
