// Bindings of check boxes, options and lists.
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QWheelEvent>
#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "qt/bindings.h"
#include "qt/field_hints.h"
#include "qt/marked_rows.h"
#include "qt/mnemonics.h"
#include "qt/pictures.h"
#include "qt/texts.h"

namespace orby {
namespace {

class CheckBinding : public WidgetBinding<QCheckBox, CheckBox> {
 public:
  CheckBinding(BindingHost& host, CheckBox& box) : WidgetBinding(host, box) {
    QObject::connect(&widget_, &QCheckBox::toggled, &widget_, [this](bool on) {
      if (!IsUsable(widget_)) return Show();
      const auto set = [this, on] { control_.SetValue(on ? 1 : 0); };
      control_.Kind() == ClickKind::MayAsk ? host_.ActLater(set) : host_.Act(set);
    });
  }

  void Show() override {
    const QSignalBlocker quiet(widget_);
    ShowState(widget_, control_);
    widget_.setText(host_.Letters().Marked(&widget_, 0, control_.Caption()));
    widget_.setChecked(control_.Checked());
  }
  std::vector<CaptionSlot> Captions() const override { return {{&widget_, 0, &widget_, control_.Caption()}}; }
};

// An exclusive button cannot be switched off.
void SwitchOff(QRadioButton& member) {
  const auto set = [&member](bool exclusive) {
    member.setAutoExclusive(exclusive);
    if (member.group() != nullptr) member.group()->setExclusive(exclusive);
  };
  set(false);
  member.setChecked(false);
  set(true);
}

// A member without a caption has no button.
class OptionBinding : public Binding {
 public:
  OptionBinding(BindingHost& host, OptionArray& options)
      : host_(host), options_(options), members_(options.Count(), nullptr) {
    for (std::size_t i = 0; i < options.Count(); ++i) {
      if (options.Caption(i).empty()) continue;
      const int index = static_cast<int>(i);
      auto& member = FindNamed<QRadioButton>(host, MemberName(options, index));
      members_[i] = &member;
      QObject::connect(&member, &QRadioButton::toggled, &member, [this, &member, index](bool on) {
        if (!on) return;
        if (!IsUsable(member)) return Show();
        host_.Act([this, index] { options_.SetValue(index, true); });
      });
    }
  }

  void Show() override {
    for (std::size_t i = 0; i < members_.size(); ++i) {
      if (members_[i] == nullptr) continue;
      QRadioButton& member = *members_[i];
      const QSignalBlocker quiet(member);
      member.setEnabled(options_.Enabled() && options_.MemberEnabled(i));
      member.setVisible(options_.Visible());
      member.setText(host_.Letters().Marked(&member, 0, options_.Caption(i)));
      if (options_.Value(i)) {
        member.setChecked(true);
      } else if (member.isChecked()) {
        SwitchOff(member);
      }
    }
  }
  std::vector<QWidget*> Widgets() const override {
    std::vector<QWidget*> widgets;
    std::ranges::copy_if(members_, std::back_inserter(widgets), [](const auto* member) { return member != nullptr; });
    return widgets;
  }
  std::vector<CaptionSlot> Captions() const override {
    std::vector<CaptionSlot> captions;
    for (std::size_t i = 0; i < members_.size(); ++i) {
      if (members_[i] != nullptr) captions.push_back({members_[i], 0, members_[i], options_.Caption(i)});
    }
    return captions;
  }
  QWidget* FocusWidget() const override { return members_[static_cast<std::size_t>(GetArrayIndex(options_))]; }

 private:
  BindingHost& host_;
  OptionArray& options_;
  std::vector<QRadioButton*> members_;
};

// A list with a text field. It neither completes nor corrects what the user types.
class ComboBinding : public QObject, public WidgetBinding<QComboBox, Combo> {
 public:
  ComboBinding(BindingHost& host, Combo& combo) : WidgetBinding(host, combo) {
    widget_.setInsertPolicy(QComboBox::NoInsert);
    widget_.setCompleter(nullptr);
    widget_.installEventFilter(this);
    if (combo.TakesNumber()) widget_.lineEdit()->installEventFilter(this);
    if (combo.Kind() == ComboKind::FreeText) {
      connect(&widget_, &QComboBox::editTextChanged, this, &ComboBinding::TakeText);
    } else {
      connect(widget_.lineEdit(), &QLineEdit::editingFinished, this, &ComboBinding::TakeText);
      connect(widget_.lineEdit(), &QLineEdit::textEdited, this, [this] { isTyped_ = true; });
      connect(widget_.lineEdit(), &QLineEdit::textChanged, this, &ComboBinding::TakeWholeText);
    }
    connect(&widget_, &QComboBox::activated, this, &ComboBinding::Choose);
    connect(widget_.view()->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ComboBinding::FollowMark,
            Qt::QueuedConnection);
  }

  void Show() override {
    const QSignalBlocker quiet(widget_);
    ShowState(widget_, control_);
    ShowItems();
    ShowText();
  }
  bool RetainsSize() const override { return true; }

  bool CanBeMarked() const override { return control_.TakesNumber(); }
  void ShowMark() override {
    if (hints_.IsOnView()) hints_.ShowMark(control_.Mark());
  }

  // The wheel scrolls the dialog. It does not change a list under the pointer that has no focus.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched != &widget_) return event->type() == QEvent::Paint && hints_.Paint(event);
    if (event->type() == QEvent::ToolTip) return hints_.ShowHint(*dynamic_cast<QHelpEvent*>(event));
    if (event->type() == QEvent::FocusIn && control_.TakesNumber()) hints_.Describe();
    if (event->type() == QEvent::Wheel && !widget_.hasFocus()) {
      event->ignore();
      return true;
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void TakeText() {
    if (!IsUsable(widget_)) return Show();
    // The widget sets the text of a chosen item before it reports the choice. Other items may have the same text.
    const int index = widget_.currentIndex();
    if (index >= 0 && widget_.itemText(index) == widget_.currentText()) return Choose(index);
    host_.Act([this] { control_.SetText(FromQt(widget_.currentText())); });
  }

  // A text that a screen reader sets is complete at once. The text of an item is followed by its choice.
  void TakeWholeText() {
    const bool isTyped = std::exchange(isTyped_, false);
    if (!isTyped && widget_.currentText() != widget_.itemText(widget_.currentIndex())) TakeText();
  }

  void Choose(int index) {
    host_.Act([this, index] { control_.SetListIndex(index); });
  }

  // Screen readers select an item without making it the current one. In an open drop-down list the arrow keys and the
  // mouse make the item current, too, but choose it only by Enter or a click.
  void FollowMark() {
    const QAbstractItemView& list = *widget_.view();
    const QModelIndexList marked = list.selectionModel()->selectedIndexes();
    if (marked.isEmpty() || (list.isVisible() && marked.constFirst() == list.currentIndex()) || !IsUsable(widget_))
      return;
    if (marked.constFirst().row() == widget_.currentIndex()) return;
    widget_.hidePopup();
    Choose(marked.constFirst().row());
  }

  void ShowItems() {
    const auto& items = control_.Items();
    bool same = widget_.count() == static_cast<int>(items.size());
    for (std::size_t i = 0; same && i < items.size(); ++i) {
      same = widget_.itemText(static_cast<int>(i)) == ToQt(items[i].text);
    }
    if (same) return;
    widget_.clear();
    for (const ComboItem& item : items) widget_.addItem(ToQt(item.text));
  }

  // Selecting an item, or none, changes the text too. The cursor stays in place while the user types.
  void ShowText() {
    const QString text = ToQt(control_.Text());
    const bool isShown = widget_.currentText() == text;
    if (isShown && widget_.currentIndex() == control_.ListIndex()) return;
    const int cursor = isShown ? widget_.lineEdit()->cursorPosition() : 0;
    widget_.setCurrentIndex(control_.ListIndex());
    if (widget_.currentText() != text) widget_.setEditText(text);
    widget_.lineEdit()->setCursorPosition(cursor);
  }

  FieldHints hints_{control_, widget_, *widget_.lineEdit()};
  bool isTyped_ = false;  // applies to the next change of the text
};

// In a list of commands, the Enter key chooses like a click. The toolkit's own activation would also react to a double
// click, whose first press has already chosen.
class ListBinding : public QObject, public WidgetBinding<QListWidget, List> {
 public:
  ListBinding(BindingHost& host, List& list) : WidgetBinding(host, list) {
    widget_.setSpacing(2);
    if (list.Kind() == ListKind::Choices) {
      connect(&widget_, &QListWidget::itemSelectionChanged, this, [this] {
        const auto selected = widget_.selectedItems();
        if (selected.isEmpty() || !IsUsable(widget_)) {
          QMetaObject::invokeMethod(this, &ListBinding::Show, Qt::QueuedConnection);
        } else {
          host_.Act([this, index = widget_.row(selected.constFirst())] { control_.ClickItem(index); });
        }
      });
      // A click on the selected item does not change the selection.
      connect(&widget_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        const int index = widget_.row(item);
        if (index == control_.ListIndex()) host_.Act([this, index] { control_.ClickItem(index); });
      });
      return;
    }
    widget_.installEventFilter(this);
    widget_.viewport()->installEventFilter(this);
    connect(&widget_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) { Choose(*item); });
    connect(&widget_, &QListWidget::itemSelectionChanged, this, &ListBinding::FollowMark);
    connect(&widget_, &QListWidget::currentRowChanged, this, [this](int row) {
      if (row >= 0 && isByHand_) control_.PointAt(row);
    });
  }

  void Show() override {
    const QSignalBlocker quiet(widget_);
    ShowState(widget_, control_);
    ShowItems();
    widget_.setCurrentRow(control_.ListIndex());
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->isInputEvent()) NoteHand();
    // The first click may have refilled the list, and the second must not choose another item.
    if (event->type() == QEvent::MouseButtonDblClick) return true;
    if (event->type() == QEvent::MouseButtonPress && watched == widget_.viewport()) {
      if (IsOnEmptySpace(dynamic_cast<QMouseEvent*>(event)->position().toPoint())) return true;
    }
    if (event->type() == QEvent::KeyPress && widget_.currentItem() != nullptr) {
      const int key = dynamic_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        Choose(*widget_.currentItem());
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  // Returns true in the space of a row that is not painted, because the edge of the list would cut it.
  bool IsOnEmptySpace(const QPoint& at) const {
    const QListWidgetItem* row = rows_ == nullptr ? nullptr : widget_.itemAt(at);
    return row != nullptr && !MarkedRows::IsWhole(widget_, widget_.visualItemRect(row));
  }

  // Lasts until the event of the key or the mouse is over.
  void NoteHand() {
    isByHand_ = true;
    const auto forget = [this] { isByHand_ = false; };
    QMetaObject::invokeMethod(this, forget, Qt::QueuedConnection);
  }

  // Keys and the mouse may select items on their way. A selection by a screen reader is a choice.
  void FollowMark() {
    const auto marked = widget_.selectedItems();
    if (!IsUsable(widget_)) {
      QMetaObject::invokeMethod(this, &ListBinding::Show, Qt::QueuedConnection);
    } else if (!isByHand_ && !marked.isEmpty()) {
      Choose(*marked.constFirst());
    }
  }

  // Changes only what differs.
  void ShowItems() {
    const auto& items = control_.Items();
    const int count = static_cast<int>(items.size());
    while (widget_.count() > count) delete widget_.takeItem(count);
    marks_.resize(items.size());
    for (int i = 0; i < count; ++i) {
      const ComboItem& item = items[static_cast<std::size_t>(i)];
      if (i == widget_.count()) widget_.addItem(QString());
      QListWidgetItem& row = *widget_.item(i);
      const QString text = ToQt(item.text);
      if (row.text() != text) row.setText(text);
      std::string_view& mark = marks_[static_cast<std::size_t>(i)];
      if (mark == item.mark) continue;
      if (rows_ == nullptr) widget_.setItemDelegate(rows_ = new MarkedRows(&widget_));
      mark = item.mark;
      row.setIcon(mark.empty() ? QIcon() : ThemedIcon(ToQt(mark)));
    }
  }

  // An earlier action in the queue may refill the list. The item is then gone and nothing is chosen.
  void Choose(const QListWidgetItem& item) {
    host_.ActLater([this, index = widget_.row(&item), text = item.text()] {
      const QListWidgetItem* there = widget_.item(index);
      if (there != nullptr && there->text() == text) control_.ClickItem(index);
    });
  }

  bool isByHand_ = false;
  std::vector<std::string_view> marks_;  // that the items show
  MarkedRows* rows_ = nullptr;           // paints them in a list with marks
};

class SliderBinding : public WidgetBinding<QSlider, Slider> {
 public:
  SliderBinding(BindingHost& host, Slider& slider) : WidgetBinding(host, slider) {
    widget_.setRange(slider.Minimum(), slider.Maximum());
    QObject::connect(&widget_, &QSlider::valueChanged, &widget_, [this, &host](int value) {
      if (!IsUsable(widget_)) return Show();
      host.Act([this, value] { control_.SetValue(value); });
    });
  }

  void Show() override {
    const QSignalBlocker quiet(widget_);
    ShowState(widget_, control_);
    widget_.setValue(control_.Value());
  }
};

}  // namespace

BindingPointer BindCheckBox(BindingHost& host, CheckBox& box) { return std::make_unique<CheckBinding>(host, box); }
BindingPointer BindOptionArray(BindingHost& host, OptionArray& options) {
  return std::make_unique<OptionBinding>(host, options);
}
BindingPointer BindCombo(BindingHost& host, Combo& combo) { return std::make_unique<ComboBinding>(host, combo); }
BindingPointer BindList(BindingHost& host, List& list) { return std::make_unique<ListBinding>(host, list); }
BindingPointer BindSlider(BindingHost& host, Slider& slider) { return std::make_unique<SliderBinding>(host, slider); }

}  // namespace orby
