#include "monkey/acts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QWindow>
#include <array>
#include <string>
#include <vector>

#include "monkey/hand.h"
#include "monkey/odd_texts.h"
#include "monkey/sight.h"

namespace orby::monkey {
namespace {

using Log = std::function<void(const std::string& what)>;

// What a monkey prefers to do for a while.
enum class Mood { Hasty, Typing, Playing };

struct Key {
  int key;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

const std::vector<Key>& EditingKeys() {
  static const std::vector<Key> keys{{Qt::Key_Tab},
                                     {Qt::Key_Tab},
                                     {Qt::Key_Tab},
                                     {Qt::Key_Backtab, Qt::ShiftModifier},
                                     {Qt::Key_Return},
                                     {Qt::Key_Return},
                                     {Qt::Key_Enter},
                                     {Qt::Key_Space},
                                     {Qt::Key_Escape},
                                     {Qt::Key_Backspace},
                                     {Qt::Key_Delete},
                                     {Qt::Key_Left},
                                     {Qt::Key_Right},
                                     {Qt::Key_Up},
                                     {Qt::Key_Down},
                                     {Qt::Key_Home},
                                     {Qt::Key_End},
                                     {Qt::Key_PageUp},
                                     {Qt::Key_PageDown},
                                     {Qt::Key_Insert},
                                     {Qt::Key_F1},
                                     {Qt::Key_F2},
                                     {Qt::Key_F3},
                                     {Qt::Key_F4},
                                     {Qt::Key_F5},
                                     {Qt::Key_F10},
                                     {Qt::Key_Menu},
                                     {Qt::Key_Left, Qt::ShiftModifier},
                                     {Qt::Key_End, Qt::ShiftModifier},
                                     {Qt::Key_Down, Qt::AltModifier}};
  return keys;
}

std::string Quoted(const QString& text) {
  QString shown;
  for (const QChar c : text.left(24)) {
    shown += c.isPrint() ? QString(c) : QString("\\u%1").arg(static_cast<int>(c.unicode()), 4, 16, QChar('0'));
  }
  return "'" + shown.toStdString() + (text.size() > 24 ? "'... of " + std::to_string(text.size()) : "'");
}

std::string FocusName() {
  const QWidget* focus = QApplication::focusWidget();
  return focus == nullptr ? "nothing" : WidgetName(*focus).toStdString();
}

class Acting {
 public:
  Acting(Dice& dice, const Log& log, Mood mood) : dice_(dice), log_(log), mood_(mood) {}

  void Act() {
    if (QWidget* popup = QApplication::activePopupWidget(); popup != nullptr && !dice_.OneIn(20)) return ActOn(*popup);
    window_ = WindowInUse();
    if (window_ == nullptr) return Tell("there is no window");
    if (dice_.Percent(6)) window_ = dice_.OneOf(WindowsOnView());
    if (IsBlocked(*window_)) window_ = QApplication::activeModalWidget();
    if (qobject_cast<QMessageBox*>(window_) != nullptr) return AnswerBox();
    if (auto* dialog = qobject_cast<QFileDialog*>(window_)) return AnswerFileDialog(*dialog);
    if (window_->objectName() == "frmMain" && dice_.Percent(60)) return UseMainWindow();
    // The options of the graph are only in its menus.
    if (window_->objectName() == "frmGraph" && dice_.OneIn(2)) return UseMenu();
    ActInDialog();
  }

 private:
  void Tell(const std::string& what) {
    log_((window_ == nullptr ? std::string("popup") : WindowName(*window_).toStdString()) + ": " + what);
  }

  void ActOn(QWidget& popup) {
    if (dice_.Percent(60)) return ClickAt(EntryIn(popup, dice_));
    if (dice_.OneIn(3)) return Press({Qt::Key_Escape});
    if (dice_.OneIn(3)) return TypeOne();
    Press(dice_.OneOf(
        std::array<Key, 5>{{{Qt::Key_Down}, {Qt::Key_Up}, {Qt::Key_Return}, {Qt::Key_Right}, {Qt::Key_End}}}));
  }

  void AnswerBox() {
    if (dice_.Percent(70)) return ClickAt(ButtonIn(*window_, dice_));
    if (dice_.OneIn(4)) return PressLetter();
    Press(dice_.OneOf(std::array<Key, 4>{{{Qt::Key_Return}, {Qt::Key_Escape}, {Qt::Key_Tab}, {Qt::Key_Space}}}));
  }

  void AnswerFileDialog(QFileDialog& dialog) {
    if (dice_.Percent(30)) return Press({Qt::Key_Escape});
    if (dice_.Percent(60)) return GiveName(dialog);
    ActInDialog();
  }

  void GiveName(QFileDialog& dialog) {
    auto* field = dialog.findChild<QLineEdit*>("fileNameEdit");
    if (field == nullptr) return Press({Qt::Key_Return});
    const QString name = FileName(dice_);
    Tell("the name " + name.right(40).toStdString());
    field->setFocus();
    PressKey(Qt::Key_A, Qt::ControlModifier, QChar(1));
    Paste(name);
    PressKey(Qt::Key_Return, Qt::NoModifier, "\r");
  }

  void UseMainWindow() {
    if (dice_.OneIn(8)) return Drop();
    if (dice_.OneIn(6)) return Shortcut();
    if (dice_.OneIn(6)) return ClickAt(ButtonIn(*window_, dice_));
    UseMenu();
  }

  void UseMenu() {
    auto* bar = window_->findChild<QMenuBar*>();
    if (bar == nullptr || !bar->isVisible()) return ClickAt(ButtonIn(*window_, dice_));
    QAction* menu = dice_.OneOf(bar->actions());
    ClickAt({bar, bar->actionGeometry(menu).center(), "menu '" + PlainCaption(menu->text()) + "'"});
  }

  void Drop() {
    const QString path = FilePath(dice_);
    Tell("drop " + path.toStdString());
    DropFile(*window_, path);
  }

  void ActInDialog() {
    const int die = dice_.Below(100);
    if (mood_ == Mood::Hasty && die < 70) return ClickAt(ButtonIn(*window_, dice_));
    if (mood_ == Mood::Typing && die < 60) return ChangeField();
    if (die < 30) return ClickAt(InputIn(*window_, dice_));
    if (die < 60) return ChangeField();
    if (die < 75) return ClickAt(ButtonIn(*window_, dice_));
    ActOddly();
  }

  void ChangeField() {
    switch (dice_.Below(8)) {
      case 0:
      case 1: return FillAnew(PlausibleText(dice_), "type");
      case 2: return FillAnew(OddText(dice_), "type");
      case 3: return PasteInto();
      case 4: return TypeOne();
      case 5: return Press(dice_.OneOf(EditingKeys()));
      case 6: return ClickAt(InputIn(*window_, dice_));
      default: return Press({Qt::Key_Tab});
    }
  }

  void FillAnew(const QString& text, const std::string& way) {
    constexpr int MostKeys = 16;
    Tell(way + " " + Quoted(text.left(MostKeys)) + " into " + FocusName());
    if (dice_.Percent(80)) PressKey(Qt::Key_A, Qt::ControlModifier, QChar(1));
    TypeText(text.left(MostKeys));
  }

  void PasteInto() {
    const QString text = dice_.OneIn(4) ? PlausibleText(dice_) : OddText(dice_);
    Tell("paste " + Quoted(text) + " into " + FocusName());
    if (dice_.Percent(80)) PressKey(Qt::Key_A, Qt::ControlModifier, QChar(1));
    Paste(text);
  }

  void ActOddly() {
    switch (dice_.Below(14)) {
      case 0: return Resize();
      case 1: return CloseWindow();
      case 2: return Wheel();
      case 3: return DragSomething();
      case 4: return DoubleClickAt(AnythingIn(*window_, dice_));
      case 5: return RightClickAt(InputIn(*window_, dice_));
      case 6: return PressLetter();
      case 7: return Shortcut();
      case 8: return ComposeText();
      case 9: return Activate();
      case 10: return Press({Qt::Key_F1});
      case 11: return ClickAt(AnythingIn(*window_, dice_));
      case 12: return Press(dice_.OneOf(EditingKeys()));
      default: return ClickAt(InputIn(*window_, dice_), Qt::ControlModifier);
    }
  }

  void Press(const Key& key) {
    Tell("key " + QKeySequence(QKeyCombination(key.modifiers, Qt::Key(key.key))).toString().toStdString() + " in " +
         FocusName());
    const QString text = key.key == Qt::Key_Space ? " " : key.key == Qt::Key_Return ? "\r" : "";
    PressKey(key.key, key.modifiers, text);
  }

  void TypeOne() {
    static const QString characters = "0123456789.-+eE, abcxyzABC\"#&%$<>*?|:;\u00E9\u00DF\u2126";
    const QChar c = characters[dice_.Below(static_cast<int>(characters.size()))];
    Tell("type " + Quoted(c) + " into " + FocusName());
    TypeText(c);
  }

  void PressLetter() {
    const QChar letter('a' + dice_.Below(26));
    Tell("Alt+" + std::string(1, letter.toLatin1()));
    PressKey(letter.toUpper().unicode(), Qt::AltModifier, letter);
  }

  void Shortcut() {
    static const QString letters = "ACXVZYNOPSFHTWDEKU";
    const QChar letter = letters[dice_.Below(static_cast<int>(letters.size()))];
    const bool shift = dice_.OneIn(5);
    Tell(std::string("Ctrl+") + (shift ? "Shift+" : "") + letter.toLatin1() + " in " + FocusName());
    const auto modifiers = shift ? Qt::ControlModifier | Qt::ShiftModifier : Qt::KeyboardModifiers(Qt::ControlModifier);
    PressKey(letter.unicode(), modifiers, QChar(letter.unicode() - 'A' + 1));
  }

  void ComposeText() {
    const QString text = OddText(dice_);
    Tell("compose " + Quoted(text) + " in " + FocusName());
    Compose(text);
  }

  void ClickAt(const Target& target, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    if (target.widget == nullptr) return Press({Qt::Key_Escape});
    Tell("click " + target.name.toStdString());
    Click(*target.widget, target.place, Qt::LeftButton, modifiers);
  }

  void DoubleClickAt(const Target& target) {
    if (target.widget == nullptr) return Press({Qt::Key_Tab});
    Tell("double click " + target.name.toStdString());
    DoubleClick(*target.widget, target.place);
  }

  void RightClickAt(const Target& target) {
    if (target.widget == nullptr) return Press({Qt::Key_Tab});
    Tell("right click " + target.name.toStdString());
    Click(*target.widget, target.place, Qt::RightButton);
  }

  void DragSomething() {
    const Target target = AnythingIn(*window_, dice_);
    if (target.widget == nullptr) return Press({Qt::Key_Tab});
    const QPoint to = target.place + QPoint(dice_.Below(200) - 100, dice_.Below(100) - 50);
    Tell("drag " + target.name.toStdString());
    Drag(*target.widget, target.place, to);
  }

  void Wheel() {
    const Target target = AnythingIn(*window_, dice_);
    if (target.widget == nullptr) return Press({Qt::Key_PageDown});
    Tell("wheel over " + target.name.toStdString());
    TurnWheel(*target.widget, target.place, dice_.Below(7) - 3, dice_.OneIn(3) ? Qt::ControlModifier : Qt::NoModifier);
  }

  void Resize() {
    const QSize size(dice_.Below(1400), dice_.Below(1000));
    Tell("size " + std::to_string(size.width()) + " x " + std::to_string(size.height()));
    if (dice_.OneIn(6)) {
      window_->setWindowState(window_->windowState() ^ Qt::WindowMaximized);
    } else {
      window_->resize(size);
    }
  }

  // Closes the window as its title bar button does.
  void CloseWindow() {
    constexpr int Seldom = 40;
    if (window_->objectName() == "frmMain" && !dice_.OneIn(Seldom)) return Press({Qt::Key_Escape});
    Tell("close the window");
    if (QWindow* handle = window_->windowHandle()) handle->close();
  }

  void Activate() {
    QWidget* other = dice_.OneOf(WindowsOnView());
    if (!IsBlocked(*other)) window_ = other;
    Tell("comes to the front");
    window_->raise();
    window_->activateWindow();
  }

  Dice& dice_;
  const Log& log_;
  Mood mood_;
  QWidget* window_ = nullptr;
};

}  // namespace

void DoRandomAct(Dice& dice, std::uint64_t seed, long act, const Log& log) {
  constexpr long ActsOfAMood = 30;
  Dice moods(~seed, act / ActsOfAMood);
  Acting(dice, log, moods.OneOf(std::array{Mood::Hasty, Mood::Typing, Mood::Typing, Mood::Playing})).Act();
}

}  // namespace orby::monkey
