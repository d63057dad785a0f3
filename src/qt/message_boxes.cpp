#include "qt/message_boxes.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <array>

#include "qt/texts.h"
#include "qt/window_frame.h"

namespace orby {
namespace {

struct ButtonSet {
  std::array<QMessageBox::StandardButton, 3> buttons;  // by the number of the default button
  QMessageBox::StandardButton escape;                  // the button that the Escape key presses
};

constexpr auto None = QMessageBox::NoButton;

ButtonSet ButtonsOf(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::Ok: break;
    case BoxButtons::YesNoCancel:
      return {{QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}, QMessageBox::Cancel};
    case BoxButtons::YesNo: return {{QMessageBox::Yes, QMessageBox::No, None}, None};
    case BoxButtons::RetryCancel: return {{QMessageBox::Retry, QMessageBox::Cancel, None}, QMessageBox::Cancel};
    case BoxButtons::OkRetry: return {{QMessageBox::Ok, QMessageBox::Retry, None}, QMessageBox::Ok};
  }
  return {{QMessageBox::Ok, None, None}, QMessageBox::Ok};
}

QMessageBox::Icon IconOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::None: break;
    case BoxIcon::Critical: return QMessageBox::Critical;
    case BoxIcon::Question: return QMessageBox::Question;
    case BoxIcon::Exclamation: return QMessageBox::Warning;
  }
  return QMessageBox::NoIcon;
}

BoxResult ResultOf(int button) {
  switch (button) {
    case QMessageBox::Yes: return BoxResult::Yes;
    case QMessageBox::No: return BoxResult::No;
    case QMessageBox::Retry: return BoxResult::Retry;
    case QMessageBox::Cancel: return BoxResult::Cancel;
    default: return BoxResult::Ok;
  }
}

// A box that can be closed only by one of its buttons, if the user must answer.
class Box : public QMessageBox {
 public:
  Box(QWidget* parent, bool mustAnswer) : QMessageBox(parent), mustAnswer_(mustAnswer) {}

 protected:
  // Makes the box wide enough for its title.
  void showEvent(QShowEvent* event) override {
    auto& grid = dynamic_cast<QGridLayout&>(*layout());
    auto* width = new QSpacerItem(WidthOfTitle(*this), 0, QSizePolicy::Minimum, QSizePolicy::Minimum);
    grid.addItem(width, grid.rowCount(), 0, 1, grid.columnCount());
    QMessageBox::showEvent(event);
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (!mustAnswer_ || event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }
  void closeEvent(QCloseEvent* event) override {
    if (mustAnswer_) {
      event->ignore();
    } else {
      QMessageBox::closeEvent(event);
    }
  }

 private:
  bool mustAnswer_;
};

// Returns the owner of the box. No window of the program is active while another program has the focus.
QWidget* WindowInUse() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto visible = std::ranges::find_if(windows, [](const QWidget* window) { return window->isVisible(); });
  return visible == windows.end() ? nullptr : *visible;
}

}  // namespace

BoxResult QtMessageBoxes::Show(const MessageBox& box) {
  const ButtonSet set = ButtonsOf(box.style.Buttons);
  Box shown(WindowInUse(), set.escape == None);
  shown.setIcon(IconOf(box.style.Icon));
  shown.setTextFormat(Qt::PlainText);
  shown.setText(ToQtLines(box.text));
  shown.setWindowTitle(ToQt(box.title));
  for (const auto button : set.buttons) {
    if (button != None) shown.addButton(button);
  }
  for (std::size_t at = 0; at < std::min(box.captions.size(), set.buttons.size()); ++at) {
    if (auto* button = shown.button(set.buttons[at])) button->setText("&" + ToQt(box.captions[at]).replace("&", "&&"));
  }
  shown.setDefaultButton(set.buttons[box.style.Default == BoxDefault::SecondButton ? 1 : 0]);
  if (set.escape != None) shown.setEscapeButton(shown.button(set.escape));
  return ResultOf(shown.exec());
}

}  // namespace orby
