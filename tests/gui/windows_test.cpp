// The owners and the positions of windows.
#include "qt/windows.h"

#include <QDropEvent>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>
#include <QUrl>

#include "dialogs/description_dialog.h"
#include "dialogs/estimator_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/main_bench.h"
#include "qt/message_boxes.h"

namespace orby::test {
namespace {

using testing::Eq;

class WindowsOnScreen : public MainViewTest {
 protected:
  WindowsOnScreen() : MainViewTest({.boxes = &boxes}) {}

  QtMessageBoxes boxes;
};

TEST_F(WindowsOnScreen, AMessageBelongsToTheMainWindowIfNoDialogIsOpen) {
  const QWidget* parent = nullptr;
  scripts.Add([&](QDialog& window) {
    parent = window.parentWidget();
    Press(Qt::Key_Enter);
  });

  ShowMessage(program, "Option not active yet");

  EXPECT_EQ(parent, &View());
}

TEST_F(WindowsOnScreen, AMessageBelongsToTheDialogInUse) {
  DescriptionDialog dialog(program);
  const QWidget* parent = nullptr;

  Use(dialog, [&](QDialog& window) {
    scripts.Add([&](QDialog& box) {
      parent = box.parentWidget();
      Press(Qt::Key_Enter);
    });
    ShowMessage(program, "Option not active yet");
    EXPECT_EQ(parent, &window);
    window.close();
  });
}

TEST_F(WindowsOnScreen, ACommandQueuedAfterOneThatOpensADialogIsDropped) {
  auto* parameters = View().findChild<QAction*>("mnuEditItem_1");
  int opened = 0;
  scripts.Add([&](QDialog& window) {
    ++opened;
    Settle();
    window.close();
  });

  parameters->trigger();
  parameters->trigger();
  Settle();

  EXPECT_EQ(opened, 1);
}

TEST_F(WindowsOnScreen, AFileDroppedJustBeforeADialogOpensIsIgnored) {
  const std::string path = std::string(EXAMPLES_DIR) + "/development-entry.ORB";
  platform.files.files[path] = BytesOf(path);
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(ToQt(path))});
  QDragEnterEvent enter(View().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&View(), &enter);
  QDropEvent drop(View().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  scripts.Add([&](QDialog& window) {
    Settle();
    EXPECT_EQ(program.project.CurrentFile, UntitledName);
    window.close();
  });

  View().findChild<QAction*>("mnuEditItem_1")->trigger();
  QCoreApplication::sendEvent(&View(), &drop);
  Settle();

  EXPECT_EQ(program.project.CurrentFile, UntitledName);
}

TEST_F(WindowsOnScreen, ADialogBelongsToTheMainWindow) {
  DescriptionDialog dialog(program);
  const QWidget* parent = nullptr;

  Use(dialog, [&](QDialog& window) {
    parent = window.parentWidget();
    window.close();
  });

  EXPECT_EQ(parent, &View());
}

TEST_F(WindowsOnScreen, ADialogBelongsToTheDialogItWasOpenedFrom) {
  DescriptionDialog below(program);
  EstimatorDialog above(program);
  const QWidget* parent = nullptr;

  Use(below, [&](QDialog& window) {
    Use(above, [&](QDialog& second) {
      parent = second.parentWidget();
      second.close();
    });
    EXPECT_EQ(parent, &window);
    EXPECT_EQ(QApplication::activeWindow(), &window);
    window.close();
  });
}

TEST_F(WindowsOnScreen, TheMainWindowIsActivatedWhenItIsShownAgain) {
  for (const bool wasHidden : {true, false}) {
    QDialog other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    if (wasHidden) platform.screen.ShowMainWindow(false);

    platform.screen.ShowMainWindow(true);

    EXPECT_TRUE(QTest::qWaitForWindowActive(&View()));
    EXPECT_EQ(QApplication::activeWindow(), &View());
  }
}

TEST_F(WindowsOnScreen, TheMainWindowReturnsToTheScreenWhenItsSizeChanges) {
  const QRect screen = View().screen()->availableGeometry();
  View().setGeometry(screen.right() - 100, screen.bottom() - 100, 640, 480);
  Settle();

  View().resize(660, 500);
  Settle();

  const QRect frame = View().frameGeometry();
  EXPECT_TRUE(screen.contains(frame)) << frame.right() << " of " << screen.right() << ", " << frame.bottom() << " of "
                                      << screen.bottom();
}

TEST_F(WindowsOnScreen, TheMainWindowIsNoLargerThanTheScreenWithItsFrame) {
  const QRect screen = View().screen()->availableGeometry();
  View().resize(screen.size());
  Settle();

  QEvent activated(QEvent::WindowActivate);
  QApplication::sendEvent(&View(), &activated);
  Settle();

  EXPECT_TRUE(screen.contains(View().frameGeometry()));
}

TEST_F(WindowsOnScreen, TheMainWindowKeepsASensibleSizeWithoutHistoryAndToolBar) {
  model.mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);
  model.Toolbar1.SetVisible(false);
  Settle();

  EXPECT_GE(View().minimumSizeHint().width(), 600);
  EXPECT_GE(View().minimumSizeHint().height(), 340);
}

TEST_F(WindowsOnScreen, TheSummaryTakesTheRoomOfAHiddenHistory) {
  const auto& summary = Find(View(), "frmSummary");
  const int before = summary.width();

  model.mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);
  Settle();
  const int alone = summary.width();
  model.mnuUtilItem.ClickItem(UtilityItem::ToggleHistory);
  Settle();

  EXPECT_GE(alone, View().centralWidget()->width() - 30);
  EXPECT_EQ(summary.width(), before);
}

TEST_F(WindowsOnScreen, ADialogIsCentredOnTheScreen) {
  DescriptionDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    const QPoint way = window.geometry().center() - window.screen()->availableGeometry().center();
    constexpr int FrameWidth = 4;  // of the window system
    EXPECT_LE(std::abs(way.x()), FrameWidth);
    EXPECT_LE(std::abs(way.y()), FrameWidth);
    window.close();
  });
}

// Triples the font size during a test.
class LargeLetters {
 public:
  LargeLetters() : before_(QApplication::font()) {
    QFont large = before_;
    large.setPointSizeF(3 * before_.pointSizeF());
    QApplication::setFont(large);
  }
  ~LargeLetters() { QApplication::setFont(before_); }
  LargeLetters(const LargeLetters&) = delete;
  LargeLetters& operator=(const LargeLetters&) = delete;

 private:
  QFont before_;
};

TEST_F(WindowsOnScreen, ADialogIsNoHigherThanTheScreenAndKeepsItsButtonsVisible) {
  const LargeLetters letters;
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    const auto& ok = Find<QPushButton>(window, "Command2");
    const int bottom = ok.mapToGlobal(QPoint(0, ok.height())).y();
    EXPECT_LE(window.frameGeometry().height(), window.screen()->availableGeometry().height());
    EXPECT_LE(bottom, window.screen()->availableGeometry().bottom() + 1);
    window.close();
  });
}

TEST_F(WindowsOnScreen, ATableShowsItsNamesCompletely) {
  EstimatorDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    Click(window, "optLocation_1");  // the region with the longest name of a rock type
    const auto& table = Find<QTableWidget>(window, "VSFlexGrid1");
    const QString name = table.item(2, 1)->text();
    EXPECT_EQ(name, "Stackrock (laminated sandstone/shale)");
    EXPECT_GT(table.columnWidth(1), table.fontMetrics().horizontalAdvance(name));
    window.close();
  });
}

}  // namespace
}  // namespace orby::test
