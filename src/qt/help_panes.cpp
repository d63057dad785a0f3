#include "qt/help_panes.h"

#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

#include "help/help_book.h"
#include "qt/texts.h"

namespace orby {
namespace {

constexpr int PlaceRole = Qt::UserRole;

// A tree whose signs can be seen in the selected line, too. The style paints them in the colour of other texts.
class SignedTree : public QTreeWidget {
 public:
  using QTreeWidget::QTreeWidget;

 protected:
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override {
    isSelected_ = selectionModel()->isSelected(index);
    QTreeWidget::drawBranches(painter, rect, index);
    isSelected_ = false;
  }
  void initViewItemOption(QStyleOptionViewItem* option) const override {
    QTreeWidget::initViewItemOption(option);
    if (!isSelected_) return;
    const QColor text = option->palette.color(QPalette::HighlightedText);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      option->palette.setColor(role, text);
    }
  }

 private:
  mutable bool isSelected_ = false;  // the line whose sign is being painted
};

QTreeWidget* NewTree(QWidget& pane, const QString& nameForReaders) {
  auto* tree = new SignedTree(&pane);
  tree->setHeaderHidden(true);
  tree->setColumnCount(1);
  tree->setAccessibleName(nameForReaders);
  return tree;
}

QTreeWidgetItem* NewItem(const std::string& text, const std::string& place) {
  auto* item = new QTreeWidgetItem({ToQt(text)});
  // Shows titles that are wider than the pane.
  item->setToolTip(0, ToQt(text));
  item->setData(0, PlaceRole, ToQt(place));
  return item;
}

void AddEntries(QTreeWidgetItem& parent, const std::vector<HelpEntry>& entries) {
  for (const HelpEntry& entry : entries) {
    QTreeWidgetItem* item = NewItem(entry.title, entry.place);
    parent.addChild(item);
    AddEntries(*item, entry.entries);
  }
}

QTreeWidgetItem* ItemOfPage(QTreeWidgetItem& parent, std::string_view page) {
  for (int i = 0; i < parent.childCount(); ++i) {
    QTreeWidgetItem& item = *parent.child(i);
    if (PageOf(FromQt(item.data(0, PlaceRole).toString())) == page) return &item;
    if (QTreeWidgetItem* found = ItemOfPage(item, page)) return found;
  }
  return nullptr;
}

// Passes keys that belong to the list on from the line above it.
class ListKeys : public QObject {
 public:
  ListKeys(QLineEdit& line, QAbstractItemView& list) : QObject(&line), list_(list) { line.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = dynamic_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Down || key == Qt::Key_Up) {
        list_.setFocus(Qt::OtherFocusReason);
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QAbstractItemView& list_;
};

// Lays out a label, a line and a list. The label names the line.
QLineEdit* LayOut(QWidget& pane, const QString& caption, QAbstractItemView& list) {
  auto* line = new QLineEdit(&pane);
  auto* label = new QLabel(caption, &pane);
  auto* layout = new QVBoxLayout(&pane);
  label->setBuddy(line);
  line->setAccessibleName(QString(caption).remove('&'));
  line->setClearButtonEnabled(true);
  layout->addWidget(label);
  layout->addWidget(line);
  layout->addWidget(&list);
  QWidget::setTabOrder(line, &list);
  pane.setFocusProxy(line);
  new ListKeys(*line, list);
  return line;
}

}  // namespace

void HelpPane::showEvent(QShowEvent* event) {
  if (!filled_) Fill();
  filled_ = true;
  QWidget::showEvent(event);
}

void HelpPane::Choose(const QString& place) const {
  if (Chosen && !place.isEmpty()) Chosen(FromQt(place));
}

ContentsPane::ContentsPane(HelpBook& book, QWidget* parent)
    : HelpPane(book, parent), tree_(NewTree(*this, "Contents")) {
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(tree_);
  setFocusProxy(tree_);
  const auto choose = [this](QTreeWidgetItem* item) { Choose(item->data(0, PlaceRole).toString()); };
  connect(tree_, &QTreeWidget::itemClicked, this, choose);
  connect(tree_, &QTreeWidget::itemActivated, this, choose);
}

void ContentsPane::Fill() {
  AddEntries(*tree_->invisibleRootItem(), Book.Contents());
  tree_->expandAll();
  Mark(place_);
}

void ContentsPane::Mark(const std::string& place) {
  place_ = place;
  QTreeWidgetItem* item = place_.empty() ? nullptr : ItemOfPage(*tree_->invisibleRootItem(), PageOf(place_));
  if (item == nullptr || item == tree_->currentItem()) return;
  tree_->setCurrentItem(item);
  tree_->scrollToItem(item);
}

IndexPane::IndexPane(HelpBook& book, QWidget* parent) : HelpPane(book, parent), tree_(NewTree(*this, "Keywords")) {
  line_ = LayOut(*this, "&Keyword:", *tree_);
  const auto choose = [this](QTreeWidgetItem* item) {
    if (item != nullptr) Choose(item->data(0, PlaceRole).toString());
  };
  connect(tree_, &QTreeWidget::itemClicked, this, choose);
  connect(tree_, &QTreeWidget::itemActivated, this, choose);
  connect(line_, &QLineEdit::returnPressed, this, [this, choose] { choose(tree_->currentItem()); });
  connect(line_, &QLineEdit::textChanged, this, &IndexPane::FindKeyword);
}

// A keyword with several places opens the first one, and lists all of them under the titles of their pages.
void IndexPane::Fill() {
  for (const HelpKeyword& keyword : Book.Index()) {
    if (keyword.places.empty()) continue;
    QTreeWidgetItem* item = NewItem(keyword.keyword, keyword.places.front());
    tree_->addTopLevelItem(item);
    if (keyword.places.size() == 1) continue;
    for (const std::string& place : keyword.places) item->addChild(NewItem(Book.TitleOf(place), place));
    item->setExpanded(true);
  }
  if (tree_->topLevelItemCount() > 0) tree_->setCurrentItem(tree_->topLevelItem(0));
}

void IndexPane::FindKeyword(const QString& start) {
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* item = tree_->topLevelItem(i);
    if (!item->text(0).startsWith(start.trimmed(), Qt::CaseInsensitive)) continue;
    tree_->setCurrentItem(item);
    tree_->scrollToItem(item, QAbstractItemView::PositionAtTop);
    return;
  }
}

SearchPane::SearchPane(HelpBook& book, QWidget* parent) : HelpPane(book, parent), list_(new QListWidget(this)) {
  line_ = LayOut(*this, "&Words:", *list_);
  list_->setAccessibleName("Pages found");
  list_->setWordWrap(true);
  list_->setAlternatingRowColors(true);
  list_->setSpacing(fontMetrics().height() / 4);
  const auto choose = [this](QListWidgetItem* item) {
    if (item != nullptr) Choose(item->data(PlaceRole).toString());
  };
  connect(list_, &QListWidget::itemClicked, this, choose);
  connect(list_, &QListWidget::itemActivated, this, choose);
  connect(line_, &QLineEdit::returnPressed, this, &SearchPane::Search);
}

void SearchPane::Search() {
  list_->clear();
  for (const HelpHit& hit : Book.Search(FromQt(line_->text()))) {
    auto* item = new QListWidgetItem(ToQt(hit.title + "\n" + hit.snippet), list_);
    item->setData(PlaceRole, ToQt(hit.place));
  }
  if (list_->count() > 0) {
    list_->setCurrentRow(0);
    list_->setFocus(Qt::OtherFocusReason);
  } else {
    auto* nothing = new QListWidgetItem("No page has all these words.", list_);
    nothing->setFlags(Qt::ItemIsEnabled);
  }
}

}  // namespace orby
