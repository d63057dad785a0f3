// Bindings of captions, buttons and text boxes.
#include <QApplication>
#include <QGroupBox>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "qt/bindings.h"
#include "qt/field_hints.h"
#include "qt/find_bar.h"
#include "qt/mnemonics.h"
#include "qt/report_view.h"
#include "qt/texts.h"

namespace orby {
namespace {

class LabelBinding : public WidgetBinding<QLabel, const Label> {
 public:
  using WidgetBinding::WidgetBinding;

  void Show() override {
    ShowState(widget_, control_);
    widget_.setText(host_.Letters().Marked(&widget_, 0, control_.Caption()));
  }
  std::vector<CaptionSlot> Captions() const override {
    // A read-only field needs no letter.
    if (widget_.buddy() == nullptr || widget_.buddy()->property("readOnly").toBool()) return {};
    return {{&widget_, 0, &widget_, control_.Caption()}};
  }
};

class FrameBinding : public WidgetBinding<QGroupBox, const Frame> {
 public:
  using WidgetBinding::WidgetBinding;

  void Show() override {
    ShowState(widget_, control_);
    widget_.setTitle(ToQt(control_.Caption()));
  }
  bool RetainsSize() const override { return true; }
};

class ButtonBinding : public WidgetBinding<QPushButton, const Button> {
 public:
  ButtonBinding(BindingHost& host, const Button& button) : WidgetBinding(host, button) {
    QObject::connect(&widget_, &QPushButton::clicked, &widget_, [this] {
      if (IsUsable(widget_)) host_.ActLater([this] { control_.Press(); });
    });
  }

  void Show() override {
    ShowState(widget_, control_);
    widget_.setText(host_.Letters().Marked(&widget_, 0, control_.Caption()));
  }
  std::vector<CaptionSlot> Captions() const override { return {{&widget_, 0, &widget_, control_.Caption()}}; }
};

// An output has the background of the window.
void ShowAsOutput(QWidget& widget) {
  QPalette palette = QApplication::palette(&widget);
  palette.setBrush(QPalette::Base, palette.window());
  widget.setPalette(palette);
}

// The width that a field keeps in the smallest window: a number of seven digits, and its frame.
constexpr int LeastCharacters = 10;

// A line for input. Refused characters never reach it. When it gets the focus, its text is selected.
class LineEditBinding : public QObject, public WidgetBinding<QLineEdit, TextBox> {
 public:
  LineEditBinding(BindingHost& host, TextBox& box, QLineEdit& widget) : WidgetBinding(host, box, widget) {
    widget_.setReadOnly(box.Kind() == TextKind::Output);
    widget_.setMinimumWidth(widget_.fontMetrics().averageCharWidth() * LeastCharacters);
    widget_.installEventFilter(this);
    // Keys, menus, input methods and screen readers all change the text this way.
    connect(&widget_, &QLineEdit::textChanged, this, [this] {
      if (!IsUsable(widget_) || widget_.isReadOnly()) return Show();
      host_.Act([this] { control_.SetText(FromQt(widget_.text())); });
    });
  }

  void Show() override {
    ShowState(widget_, control_);
    ShowSign();
    const QString text = ToQt(control_.Text());
    if (widget_.text() == text) return;
    const QSignalBlocker quiet(widget_);
    widget_.setText(text);
    widget_.setCursorPosition(0);
  }
  void ShowTheme() override {
    if (control_.Kind() == TextKind::Output) ShowAsOutput(widget_);
  }
  bool RetainsSize() const override { return true; }

  bool CanBeMarked() const override { return true; }
  void ShowMark() override {
    if (hints_.IsOnView()) hints_.ShowMark(control_.Mark());
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) return PaintSigned(event);
    if (event->type() == QEvent::ToolTip) return hints_.ShowHint(*dynamic_cast<QHelpEvent*>(event));
    if (event->type() == QEvent::FocusOut) {
      isLent_ = IsLending(*dynamic_cast<QFocusEvent*>(event));
    } else if (event->type() == QEvent::FocusIn) {
      if (control_.TakesNumber()) hints_.Describe();
      const bool comesBack = isLent_ && IsLending(*dynamic_cast<QFocusEvent*>(event));
      // Delayed, because the mouse press that gave the focus would clear the selection.
      if (!comesBack) QMetaObject::invokeMethod(&widget_, &QLineEdit::selectAll, Qt::QueuedConnection);
    } else if (event->type() == QEvent::KeyPress) {
      return IsRefused(*dynamic_cast<QKeyEvent*>(event));
    } else if (event->type() == QEvent::InputMethod) {
      return TakeComposed(*dynamic_cast<QInputMethodEvent*>(event));
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void ShowSign() {
    if (control_.Sign() == sign_) return;
    sign_ = control_.Sign();
    widget_.setTextMargins(0, 0, WidthOfSigns(sign_), 0);
    widget_.update();
    hints_.Describe();
  }

  // Returns true if the field has been painted. Only inputs have marks, and only outputs have signs.
  bool PaintSigned(QEvent* event) {
    if (sign_ == OutputSign()) return hints_.Paint(event);
    static_cast<QObject&>(widget_).event(event);
    PaintSign(widget_, sign_);
    return true;
  }

  // Returns true if the focus goes to a menu of the field or to another window, or returns from there.
  static bool IsLending(const QFocusEvent& focus) {
    return focus.reason() == Qt::PopupFocusReason || focus.reason() == Qt::ActiveWindowFocusReason;
  }

  // Checks only keys that produce a character. Shortcuts, Enter and Tab do not change the text. The Delete key edits,
  // although some desktops send a control character for it.
  bool IsRefused(const QKeyEvent& key) const {
    const QString text = key.text();
    if ((key.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
    constexpr QChar Tab(9);
    constexpr QChar Enter(13);
    constexpr QChar Escape(27);
    constexpr QChar Delete(127);
    if (text == Tab || text == Enter || text == Escape || text == Delete) return false;
    return std::ranges::any_of(text, [this](QChar character) { return IsRefused(character); });
  }
  bool IsRefused(QChar character) const { return control_.KeyPress(character.unicode()) == 0; }

  // Text from dead keys or an input method is checked like typed keys. Each character gets an event of its own, because
  // the check depends on the text before it.
  bool TakeComposed(const QInputMethodEvent& composed) {
    if (isTaking_ || control_.Kind() != TextKind::Number || composed.commitString().isEmpty()) return false;
    isTaking_ = true;
    int from = composed.replacementStart();
    int length = composed.replacementLength();
    for (const QChar character : composed.commitString()) {
      if (IsRefused(character)) continue;
      QInputMethodEvent one;
      one.setCommitString(character, std::exchange(from, 0), std::exchange(length, 0));
      QCoreApplication::sendEvent(&widget_, &one);
    }
    QInputMethodEvent open(composed.preeditString(), composed.attributes());
    QCoreApplication::sendEvent(&widget_, &open);
    isTaking_ = false;
    return true;
  }

  FieldHints hints_{control_, widget_, widget_};
  bool isLent_ = false;
  bool isTaking_ = false;  // true while the characters of a composed text are taken one by one
  OutputSign sign_;        // as shown
};

// A text of several lines. An output shows its top, or its selection if there is one.
class TextAreaBinding : public QObject, public WidgetBinding<QPlainTextEdit, TextBox> {
 public:
  TextAreaBinding(BindingHost& host, TextBox& box, QPlainTextEdit& widget) : WidgetBinding(host, box, widget) {
    auto* report = dynamic_cast<ReportView*>(&widget_);
    if (report != nullptr) bar_ = FindBarBeside(widget_);
    if (bar_ != nullptr) bar_->Attach(*report, *report);
    widget_.setReadOnly(box.Kind() == TextKind::Output);
    widget_.setTabChangesFocus(true);
    widget_.viewport()->installEventFilter(this);
    connect(&widget_, &QPlainTextEdit::textChanged, this, [this] {
      if (!IsUsable(widget_) || widget_.isReadOnly()) return Show();
      host_.Act([this] { control_.SetText(FromQtLines(widget_.toPlainText())); });
    });
  }

  void Show() override {
    ShowState(widget_, control_);
    ShowSign();
    if (bar_ != nullptr) bar_->ShowLetters(host_.Letters());
    if (control_.Font() != shownFont_) {
      shownFont_ = control_.Font();
      widget_.setFont(FontOf(shownFont_, widget_));
    }
    const QString text = ToQtLines(control_.Text());
    const bool isSame = widget_.toPlainText() == text;
    // While the user types, the cursor stays in place.
    if (isSame && !widget_.isReadOnly()) return;
    const QSignalBlocker quiet(widget_);
    if (!isSame) widget_.setPlainText(text);
    widget_.moveCursor(control_.SelectionStart() > 0 ? QTextCursor::End : QTextCursor::Start);
    widget_.ensureCursorVisible();
  }
  void ShowTheme() override {
    if (control_.Kind() == TextKind::Output) ShowAsOutput(widget_);
  }
  std::vector<CaptionSlot> Captions() const override {
    return bar_ == nullptr ? std::vector<CaptionSlot>() : bar_->Captions();
  }
  bool RetainsSize() const override { return true; }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ToolTip) return ShowHintOf(control_, widget_, *dynamic_cast<QHelpEvent*>(event));
    return QObject::eventFilter(watched, event);
  }

 private:
  void ShowSign() {
    if (control_.Sign() == sign_) return;
    sign_ = control_.Sign();
    if (cover_ == nullptr) cover_ = new SignCover(widget_);
    cover_->Show(sign_);
    DescribeByHint(widget_, control_);
  }

  FindBar* bar_ = nullptr;      // the bar below a report
  SignCover* cover_ = nullptr;  // over an output that has had a sign
  OutputSign sign_;             // as shown
  FontChoice shownFont_;
};

}  // namespace

QFont FontOf(const FontChoice& choice, const QWidget& widget) {
  if (choice.name.empty()) return widget.font();
  QFont font(ToQt(choice.name), choice.size, choice.bold ? QFont::Bold : QFont::Normal, choice.italic);
  // The machine may lack the font. The substitute must be monospaced, too, and draw no ligatures.
  if (font.family().startsWith("Courier", Qt::CaseInsensitive)) {
    font.setStyleHint(QFont::TypeWriter, QFont::PreferNoShaping);
  }
  return font;
}

BindingPointer BindLabel(BindingHost& host, const Label& label) { return std::make_unique<LabelBinding>(host, label); }
BindingPointer BindFrame(BindingHost& host, const Frame& frame) { return std::make_unique<FrameBinding>(host, frame); }
BindingPointer BindButton(BindingHost& host, const Button& button) {
  return std::make_unique<ButtonBinding>(host, button);
}

BindingPointer BindTextBox(BindingHost& host, TextBox& box) {
  QObject& object = FindObject(host, std::string(box.Name()));
  if (auto* line = dynamic_cast<QLineEdit*>(&object)) return std::make_unique<LineEditBinding>(host, box, *line);
  return std::make_unique<TextAreaBinding>(host, box, dynamic_cast<QPlainTextEdit&>(object));
}

}  // namespace orby
