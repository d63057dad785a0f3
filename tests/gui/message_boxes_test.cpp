// The message boxes of the desktop: what they show, and which answer each key stands for.
#include "qt/message_boxes.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

class MessageBoxesView : public GuiTest {
 protected:
  // Shows a box of the style to a user who does this, and gives the answer.
  int Ask(int style, const std::function<void(QMessageBox& box)>& act) {
    scripts.Add([&](QDialog& window) { act(dynamic_cast<QMessageBox&>(window)); });
    QtMessageBoxes boxes;
    return boxes.Show({"Save changes to: /designs/panel3.orb?\r\nThey would be lost.", style, "Orby", {}, 0, {}});
  }
};

std::vector<std::string> ButtonsOn(const QMessageBox& box) {
  std::vector<std::string> texts;
  for (const auto button :
       {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Retry, QMessageBox::Cancel}) {
    if (const auto* found = box.button(button)) texts.push_back(found->text().remove('&').toStdString());
  }
  return texts;
}

TEST_F(MessageBoxesView, ShowTheirTextLineByLineAndTheirTitle) {
  Ask(box_style::Exclamation, [](QMessageBox& box) {
    EXPECT_EQ(box.text().toStdString(), "Save changes to: /designs/panel3.orb?\nThey would be lost.");
    EXPECT_EQ(box.windowTitle().toStdString(), "Orby");
    Press(Qt::Key_Enter);
  });
}

TEST_F(MessageBoxesView, ShowCaptionsOfTheirOwnWhichTheirLettersReach) {
  for (const auto& [key, answer] : {std::pair(Qt::Key_R, box_result::Yes), std::pair(Qt::Key_O, box_result::No)}) {
    scripts.Add([key = key](QDialog& window) {
      const auto& box = dynamic_cast<QMessageBox&>(window);
      EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Recover");
      EXPECT_EQ(box.button(QMessageBox::No)->text(), "&Open a&&b.orb instead");
      Press(key, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
    });
    QtMessageBoxes boxes;

    EXPECT_EQ(boxes.Show({"Recover?", box_style::YesNo, "Orby", {}, 0, {"Recover", "Open a&b.orb instead"}}), answer);
  }
}

TEST_F(MessageBoxesView, ShowAngleBracketsAsTheyAre) {
  scripts.Add([](QDialog& window) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(window).textFormat(), Qt::PlainText);
    Press(Qt::Key_Enter);
  });

  QtMessageBoxes boxes;
  boxes.Show({"<b>panel</b>", box_style::Ok, "Orby", {}, 0, {}});
}

struct Style {
  const char* name;
  int style;
  QMessageBox::Icon icon;
  std::vector<std::string> buttons;
  int enter;
  int escape;  // 0: the box must be answered
};

const std::vector<Style> Styles{
    {"Ok", box_style::Ok, QMessageBox::NoIcon, {"OK"}, box_result::Ok, box_result::Ok},
    {"Critical", box_style::Critical, QMessageBox::Critical, {"OK"}, box_result::Ok, box_result::Ok},
    {"Exclamation", box_style::Exclamation, QMessageBox::Warning, {"OK"}, box_result::Ok, box_result::Ok},
    {"YesNoCancel",
     box_style::YesNoCancel | box_style::Question,
     QMessageBox::Question,
     {"Yes", "No", "Cancel"},
     box_result::Yes,
     box_result::Cancel},
    {"YesNo", box_style::YesNo | box_style::Question, QMessageBox::Question, {"Yes", "No"}, box_result::Yes, 0},
    {"NoYes",
     box_style::YesNo | box_style::Exclamation | box_style::SecondButtonDefault,
     QMessageBox::Warning,
     {"Yes", "No"},
     box_result::No,
     0},
    {"RetryCancel",
     box_style::RetryCancel | box_style::Critical,
     QMessageBox::Critical,
     {"Retry", "Cancel"},
     box_result::Retry,
     box_result::Cancel},
    {"OkRetry",
     box_style::OkRetry | box_style::Critical,
     QMessageBox::Critical,
     {"OK", "Retry"},
     box_result::Ok,
     box_result::Ok},
};

class BoxStyle : public MessageBoxesView, public testing::WithParamInterface<Style> {};

TEST_P(BoxStyle, HasItsIconAndButtons) {
  Ask(GetParam().style, [](QMessageBox& box) {
    EXPECT_EQ(box.icon(), GetParam().icon);
    EXPECT_EQ(ButtonsOn(box), GetParam().buttons);
    Press(Qt::Key_Enter);
  });
}

TEST_P(BoxStyle, IsAnsweredByEnterWithItsDefault) {
  EXPECT_EQ(Ask(GetParam().style, [](QMessageBox&) { Press(Qt::Key_Enter); }), GetParam().enter);
}

TEST_P(BoxStyle, IsLeftByEscapeUnlessItMustBeAnswered) {
  const int answer = Ask(GetParam().style, [](QMessageBox& box) {
    Press(Qt::Key_Escape);
    EXPECT_EQ(box.isVisible(), GetParam().escape == 0);
    if (box.isVisible()) Press(Qt::Key_Enter);
  });

  EXPECT_EQ(answer, GetParam().escape != 0 ? GetParam().escape : GetParam().enter);
}

TEST_P(BoxStyle, IsClosedByItsFrameUnlessItMustBeAnswered) {
  const int answer = Ask(GetParam().style, [](QMessageBox& box) {
    box.close();
    EXPECT_EQ(box.isVisible(), GetParam().escape == 0);
    if (box.isVisible()) Press(Qt::Key_Enter);
  });

  EXPECT_EQ(answer, GetParam().escape != 0 ? GetParam().escape : GetParam().enter);
}

INSTANTIATE_TEST_SUITE_P(Of, BoxStyle, testing::ValuesIn(Styles),
                         [](const auto& style) { return std::string(style.param.name); });

TEST_F(MessageBoxesView, AreAsWideAsTheirTitles) {
  const std::string title = "Project Parameters: Range Error of the Support System";
  scripts.Add([&](QDialog& box) {
    QFont heavy = QApplication::font();
    heavy.setBold(true);
    const int buttons = 4 * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);  // with the icon of the title bar
    EXPECT_GE(box.width(), QFontMetrics(heavy).horizontalAdvance(box.windowTitle()) + buttons);
    Press(Qt::Key_Enter);
  });

  QtMessageBoxes boxes;
  boxes.Show({"Overflow", box_style::Critical, title, {}, 0});
}

struct Answer {
  int style;
  QMessageBox::StandardButton button;
  int result;
};

TEST_F(MessageBoxesView, GiveTheButtonThatIsPressed) {
  const std::vector<Answer> answers{
      {box_style::YesNoCancel, QMessageBox::Yes, box_result::Yes},
      {box_style::YesNoCancel, QMessageBox::No, box_result::No},
      {box_style::YesNoCancel, QMessageBox::Cancel, box_result::Cancel},
      {box_style::YesNo, QMessageBox::No, box_result::No},
      {box_style::RetryCancel, QMessageBox::Retry, box_result::Retry},
      {box_style::RetryCancel, QMessageBox::Cancel, box_result::Cancel},
      {box_style::Ok, QMessageBox::Ok, box_result::Ok},
  };
  for (const Answer& answer : answers) {
    const int given = Ask(answer.style, [&](QMessageBox& box) {
      QTest::mouseClick(box.button(answer.button), Qt::LeftButton);
      Settle();
    });
    EXPECT_EQ(given, answer.result) << answer.style;
  }
}

}  // namespace
}  // namespace orby::test
