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
  int style;
  std::array<QMessageBox::StandardButton, 3> buttons;  // in the order of which one is the default
  QMessageBox::StandardButton escape;                  // what the Escape key stands for
};

constexpr auto None = QMessageBox::NoButton;

constexpr std::array ButtonSets{
    ButtonSet{box_style::Ok, {QMessageBox::Ok, None, None}, QMessageBox::Ok},
    ButtonSet{box_style::YesNoCancel, {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}, QMessageBox::Cancel},
    ButtonSet{box_style::YesNo, {QMessageBox::Yes, QMessageBox::No, None}, None},
    ButtonSet{box_style::RetryCancel, {QMessageBox::Retry, QMessageBox::Cancel, None}, QMessageBox::Cancel},
    ButtonSet{box_style::OkRetry, {QMessageBox::Ok, QMessageBox::Retry, None}, QMessageBox::Ok},
};

constexpr int ButtonBits = 15;
constexpr int IconBits = 0x70;

const ButtonSet& ButtonsOf(int style) {
  const auto* found = std::ranges::find(ButtonSets, style & ButtonBits, &ButtonSet::style);
  return found == ButtonSets.end() ? ButtonSets.front() : *found;
}

QMessageBox::Icon IconOf(int style) {
  switch (style & IconBits) {
    case box_style::Critical: return QMessageBox::Critical;
    case box_style::Question: return QMessageBox::Question;
    case box_style::Exclamation: return QMessageBox::Warning;
    default: return QMessageBox::NoIcon;
  }
}

int ResultOf(int button) {
  switch (button) {
    case QMessageBox::Yes: return box_result::Yes;
    case QMessageBox::No: return box_result::No;
    case QMessageBox::Retry: return box_result::Retry;
    case QMessageBox::Cancel: return box_result::Cancel;
    default: return box_result::Ok;
  }
}

// A question of yes or no has no way around its answer.
class Box : public QMessageBox {
 public:
  Box(QWidget* parent, bool mustAnswer) : QMessageBox(parent), mustAnswer_(mustAnswer) {}

 protected:
  // The box asks its layout how wide it has to be.
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

// The window that the box stands on. While another program has the keyboard none of the program's windows is active.
QWidget* WindowInUse() {
  if (QWidget* active = QApplication::activeWindow()) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto visible = std::ranges::find_if(windows, [](const QWidget* window) { return window->isVisible(); });
  return visible == windows.end() ? nullptr : *visible;
}

}  // namespace

int QtMessageBoxes::Show(const MessageBox& box) {
  const ButtonSet& set = ButtonsOf(box.style);
  Box shown(WindowInUse(), set.escape == None);
  shown.setIcon(IconOf(box.style));
  shown.setTextFormat(Qt::PlainText);
  shown.setText(ToQtLines(box.text));
  shown.setWindowTitle(ToQt(box.title));
  for (const auto button : set.buttons) {
    if (button != None) shown.addButton(button);
  }
  for (std::size_t at = 0; at < std::min(box.captions.size(), set.buttons.size()); ++at) {
    if (auto* button = shown.button(set.buttons[at])) button->setText("&" + ToQt(box.captions[at]).replace("&", "&&"));
  }
  shown.setDefaultButton(set.buttons[(box.style & box_style::SecondButtonDefault) != 0 ? 1 : 0]);
  if (set.escape != None) shown.setEscapeButton(shown.button(set.escape));
  return ResultOf(shown.exec());
}

}  // namespace orby
