// The message boxes of the desktop: their contents, and the answer that each key gives.
#include "qt/message_boxes.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QStyle>
#include <optional>

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

class MessageBoxesView : public GuiTest {
 protected:
  // Shows a box of this style, lets the user do `act`, and returns the answer.
  BoxResult Ask(BoxStyle style, const std::function<void(QMessageBox& box)>& act) {
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

TEST_F(MessageBoxesView, ShowTheirLinesAndTheirTitle) {
  Ask(BoxIcon::Exclamation, [](QMessageBox& box) {
    EXPECT_EQ(box.text().toStdString(), "Save changes to: /designs/panel3.orb?\nThey would be lost.");
    EXPECT_EQ(box.windowTitle().toStdString(), "Orby");
    Press(Qt::Key_Enter);
  });
}

TEST_F(MessageBoxesView, ShowTheirOwnCaptionsWithMnemonicLetters) {
  for (const auto& [key, answer] : {std::pair(Qt::Key_R, BoxResult::Yes), std::pair(Qt::Key_O, BoxResult::No)}) {
    scripts.Add([key = key](QDialog& window) {
      const auto& box = dynamic_cast<QMessageBox&>(window);
      EXPECT_EQ(box.button(QMessageBox::Yes)->text(), "&Recover");
      EXPECT_EQ(box.button(QMessageBox::No)->text(), "&Open a&&b.orb instead");
      Press(key, Qt::AltModifier);
      EXPECT_TRUE(QTest::qWaitFor([&] { return !window.isVisible(); }));
    });
    QtMessageBoxes boxes;

    EXPECT_EQ(boxes.Show({"Recover?", BoxButtons::YesNo, "Orby", {}, 0, {"Recover", "Open a&b.orb instead"}}), answer);
  }
}

TEST_F(MessageBoxesView, ShowAngleBracketsLiterally) {
  scripts.Add([](QDialog& window) {
    EXPECT_EQ(dynamic_cast<QMessageBox&>(window).textFormat(), Qt::PlainText);
    Press(Qt::Key_Enter);
  });

  QtMessageBoxes boxes;
  boxes.Show({"<b>panel</b>", BoxButtons::Ok, "Orby", {}, 0, {}});
}

struct Style {
  const char* name;
  BoxStyle style;
  QMessageBox::Icon icon;
  std::vector<std::string> buttons;
  BoxResult enter;
  std::optional<BoxResult> escape;  // empty if the box must be answered
};

const std::vector<Style> Styles{
    {"Ok", BoxButtons::Ok, QMessageBox::NoIcon, {"OK"}, BoxResult::Ok, BoxResult::Ok},
    {"Critical", BoxIcon::Critical, QMessageBox::Critical, {"OK"}, BoxResult::Ok, BoxResult::Ok},
    {"Exclamation", BoxIcon::Exclamation, QMessageBox::Warning, {"OK"}, BoxResult::Ok, BoxResult::Ok},
    {"YesNoCancel",
     {BoxButtons::YesNoCancel, BoxIcon::Question},
     QMessageBox::Question,
     {"Yes", "No", "Cancel"},
     BoxResult::Yes,
     BoxResult::Cancel},
    {"YesNo", {BoxButtons::YesNo, BoxIcon::Question}, QMessageBox::Question, {"Yes", "No"}, BoxResult::Yes, {}},
    {"NoYes",
     {BoxButtons::YesNo, BoxIcon::Exclamation, BoxDefault::SecondButton},
     QMessageBox::Warning,
     {"Yes", "No"},
     BoxResult::No,
     {}},
    {"RetryCancel",
     {BoxButtons::RetryCancel, BoxIcon::Critical},
     QMessageBox::Critical,
     {"Retry", "Cancel"},
     BoxResult::Retry,
     BoxResult::Cancel},
    {"OkRetry",
     {BoxButtons::OkRetry, BoxIcon::Critical},
     QMessageBox::Critical,
     {"OK", "Retry"},
     BoxResult::Ok,
     BoxResult::Ok},
};

class ABoxStyle : public MessageBoxesView, public testing::WithParamInterface<Style> {};

TEST_P(ABoxStyle, HasItsIconAndButtons) {
  Ask(GetParam().style, [](QMessageBox& box) {
    EXPECT_EQ(box.icon(), GetParam().icon);
    EXPECT_EQ(ButtonsOn(box), GetParam().buttons);
    Press(Qt::Key_Enter);
  });
}

TEST_P(ABoxStyle, IsAnsweredByEnterWithItsDefault) {
  EXPECT_EQ(Ask(GetParam().style, [](QMessageBox&) { Press(Qt::Key_Enter); }), GetParam().enter);
}

TEST_P(ABoxStyle, IsClosedByEscapeUnlessItMustBeAnswered) {
  const BoxResult answer = Ask(GetParam().style, [](QMessageBox& box) {
    Press(Qt::Key_Escape);
    EXPECT_EQ(box.isVisible(), !GetParam().escape);
    if (box.isVisible()) Press(Qt::Key_Enter);
  });

  EXPECT_EQ(answer, GetParam().escape.value_or(GetParam().enter));
}

TEST_P(ABoxStyle, IsClosedByItsFrameUnlessItMustBeAnswered) {
  const BoxResult answer = Ask(GetParam().style, [](QMessageBox& box) {
    box.close();
    EXPECT_EQ(box.isVisible(), !GetParam().escape);
    if (box.isVisible()) Press(Qt::Key_Enter);
  });

  EXPECT_EQ(answer, GetParam().escape.value_or(GetParam().enter));
}

INSTANTIATE_TEST_SUITE_P(Of, ABoxStyle, testing::ValuesIn(Styles),
                         [](const auto& style) { return std::string(style.param.name); });

TEST_F(MessageBoxesView, AreAsWideAsTheirTitles) {
  const std::string title = "Project Parameters: Range Error of the Support System";
  scripts.Add([&](QDialog& box) {
    QFont heavy = QApplication::font();
    heavy.setBold(true);
    const int buttons = 4 * box.style()->pixelMetric(QStyle::PM_TitleBarHeight);  // including the icon of the title bar
    EXPECT_GE(box.width(), QFontMetrics(heavy).horizontalAdvance(box.windowTitle()) + buttons);
    Press(Qt::Key_Enter);
  });

  QtMessageBoxes boxes;
  boxes.Show({"Overflow", BoxIcon::Critical, title, {}, 0});
}

struct Answer {
  BoxStyle style;
  QMessageBox::StandardButton button;
  BoxResult result;
};

TEST_F(MessageBoxesView, ReturnThePressedButton) {
  const std::vector<Answer> answers{
      {BoxButtons::YesNoCancel, QMessageBox::Yes, BoxResult::Yes},
      {BoxButtons::YesNoCancel, QMessageBox::No, BoxResult::No},
      {BoxButtons::YesNoCancel, QMessageBox::Cancel, BoxResult::Cancel},
      {BoxButtons::YesNo, QMessageBox::No, BoxResult::No},
      {BoxButtons::RetryCancel, QMessageBox::Retry, BoxResult::Retry},
      {BoxButtons::RetryCancel, QMessageBox::Cancel, BoxResult::Cancel},
      {BoxButtons::Ok, QMessageBox::Ok, BoxResult::Ok},
  };
  for (const Answer& answer : answers) {
    const BoxResult given = Ask(answer.style, [&](QMessageBox& box) {
      QTest::mouseClick(box.button(answer.button), Qt::LeftButton);
      Settle();
    });
    EXPECT_EQ(given, answer.result) << answer.button;
  }
}

}  // namespace
}  // namespace orby::test
