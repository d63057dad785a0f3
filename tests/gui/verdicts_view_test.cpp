// The judgements under the tabs of the parameters dialog, on the screen.
#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <set>

#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"
#include "qt/windows.h"

namespace orby::test {
namespace {

using testing::HasSubstr;

class VerdictsOnView : public GuiTest {
 protected:
  ParametersDialog dialog{program};
};

TEST_F(VerdictsOnView, HaveTheirMarksAndFollowEachKey) {
  Work(dialog, [](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstVerdicts");
    PressLetterOf(window, "txtEntryWidth");
    Press(Qt::Key_Delete);

    const auto found = list.findItems("Cannot be computed: Sum of diagonals", Qt::MatchStartsWith);
    ASSERT_FALSE(found.isEmpty());
    EXPECT_FALSE(found.constFirst()->icon().isNull());
    EXPECT_THAT(Find<QLabel>(window, "lblVerdicts").text().toStdString(), HasSubstr("not computed"));
  });
}

TEST_F(VerdictsOnView, LeadToTheirFieldByTheEnterKey) {
  Work(dialog, [](QDialog& window) {
    PressLetterOf(window, "txtEntryWidth");
    Press(Qt::Key_Delete);
    auto& list = Find<QListWidget>(window, "lstVerdicts");
    list.setFocus();
    while (!list.currentItem() || !list.currentItem()->text().contains("Sum of diagonals")) Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Settle();

    EXPECT_EQ(FocusName(), "txtActualSpanDiagonals");
  });
}

// Returns the first row that the lower edge of the list cuts.
const QListWidgetItem* CutRowOf(const QListWidget& list) {
  for (int row = 0; row < list.count(); ++row) {
    const QRect place = list.visualItemRect(list.item(row));
    const int edge = list.viewport()->height();
    if (place.top() < edge && place.bottom() >= edge) return list.item(row);
  }
  return nullptr;
}

TEST_F(VerdictsOnView, AreShownWholeOrNotAtAll) {
  Work(dialog, [](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstVerdicts");
    const int row = list.visualItemRect(list.item(0)).height();
    list.setFixedHeight(7 * row / 4 + 2 * list.frameWidth());
    Settle();
    const QListWidgetItem* cut = CutRowOf(list);
    ASSERT_NE(cut, nullptr);
    const QRect place = list.visualItemRect(cut) & list.viewport()->rect();
    ASSERT_GT(place.height(), row / 5);

    const QImage picture = list.viewport()->grab(place).toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
    }
    EXPECT_EQ(colours.size(), 1U) << "the space stays empty";

    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place.center());
    Settle();
    EXPECT_EQ(FocusName(), "lstVerdicts") << "and leads to no field";
  });
}

class LargerLetters : public GuiTest {
 protected:
  LargerLetters() : usual_(QApplication::font()) {
    QFont font = usual_;
    font.setPointSizeF(usual_.pointSizeF() * 1.25);
    QApplication::setFont(font);
  }
  ~LargerLetters() override { QApplication::setFont(usual_); }

 private:
  QFont usual_;
};

TEST_F(LargerLetters, LeaveTheParametersWholeOnAUsualScreen) {
  constexpr QSize Screen(1366, 768);
  constexpr int TitleBar = 30;
  ParametersDialog dialog(program);
  dialog.Open();
  const auto window = MakeWindow(dialog, nullptr);
  const BoundForm view(dialog, *window);
  window->resize(WholeSize(*window).boundedTo(Screen - QSize(0, TitleBar)));
  window->show();
  Settle();

  auto& tabs = Find<QTabWidget>(*window, "SSTab1");
  for (int page = 0; page < tabs.count(); ++page) {
    dialog.SSTab1.SetTab(page);
    Settle();
    EXPECT_EQ(window->findChild<QScrollArea*>("viewScroll")->verticalScrollBar()->maximum(), 0) << page;
  }
  EXPECT_GE(Find(*window, "lstVerdicts").height(), 2 * Find(*window, "lstVerdicts").fontMetrics().height());
  dialog.Close();
}

}  // namespace
}  // namespace orby::test
