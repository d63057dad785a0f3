// The places, sizes and divisions of windows that the next run finds again.
#include "qt/window_places.h"

#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QTextEdit>

#include "dialogs/description_dialog.h"
#include "gui/main_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr const char* MainForm = "frmMain";

// A window of 300 x 200 with a divided area, as it is before the user sees it.
struct DividedWindow {
  explicit DividedWindow(const WindowPlaces& places) {
    divider.setObjectName("viewSplit");
    divider.addWidget(new QTextEdit);
    divider.addWidget(new QTextEdit);
    window.setCentralWidget(&divider);
    window.resize(300, 200);
    window.move(10, 20);
    TakePlace(window, MainForm, places);
    opened = PlaceOf(window);
    window.show();
    Settle();
  }
  // Closes the window as its user does.
  WindowPlaces Closed(WindowPlaces places = {}) {
    KeepPlace(window, MainForm, opened, places);
    return places;
  }

  QMainWindow window;
  QSplitter& divider = *new QSplitter;
  QRect opened;
};

QRect Screen() { return QApplication::primaryScreen()->availableGeometry(); }

TEST(WindowPlace, IsNotKeptForAWindowThatTheUserLeavesAlone) {
  DividedWindow shown({});

  EXPECT_THAT(shown.Closed(), IsEmpty());
}

TEST(WindowPlace, IsFoundAgainAfterTheWindowWasMovedAndSized) {
  DividedWindow first({});
  first.window.resize(340, 250);
  first.window.move(33, 44);
  Settle();

  const DividedWindow second(first.Closed());

  EXPECT_EQ(PlaceOf(second.window), QRect(33, 44, 340, 250));
}

TEST(WindowPlace, StaysForAWindowThatIsOnlyLookedAt) {
  const WindowPlaces places{{MainForm, {33, 44, 340, 250, 0}}};
  DividedWindow shown(places);

  EXPECT_EQ(shown.Closed(places), places);
}

TEST(WindowPlace, KeepsAMaximizedWindowAndItsSizeBefore) {
  DividedWindow first({});
  first.window.setWindowState(Qt::WindowMaximized);
  Settle();
  const WindowPlaces places = first.Closed();

  const DividedWindow second(places);

  EXPECT_TRUE(second.window.isMaximized());
  EXPECT_THAT(places.at(MainForm), ElementsAre(10, 20, 300, 200, 1));
}

TEST(WindowPlace, BringsBackAWindowThatIsNoLongerMaximized) {
  const WindowPlaces places{{MainForm, {10, 20, 300, 200, 1}}};
  DividedWindow shown(places);
  shown.window.setWindowState(Qt::WindowNoState);
  Settle();

  EXPECT_THAT(shown.Closed(places).at(MainForm).back(), 0);
}

TEST(WindowPlace, OutsideTheScreensIsReplacedByTheMiddle) {
  for (const QPoint& corner : {QPoint(-5000, 10), QPoint(Screen().right() - 20, 10), QPoint(10, 90'000)}) {
    const DividedWindow shown({{MainForm, {corner.x(), corner.y(), 340, 250, 0}}});

    EXPECT_TRUE(Screen().contains(shown.window.frameGeometry())) << corner.x();
    EXPECT_EQ(shown.window.size(), QSize(340, 250));
  }
}

TEST(WindowPlace, IsNeverLargerThanTheScreen) {
  const DividedWindow shown({{MainForm, {0, 0, 90'000, 90'000, 0}}});

  EXPECT_TRUE(Screen().contains(shown.window.geometry()));
}

TEST(WindowPlace, WithoutSenseIsIgnored) {
  const std::vector<int> damaged[] = {{1, 2, 3}, {33, 44, 0, 250, 0}, {33, 44, 340, -1, 0}, {33, 44, 340, 250, 0, 7}};
  for (const std::vector<int>& place : damaged) {
    const DividedWindow shown({{MainForm, place}});

    EXPECT_EQ(PlaceOf(shown.window), QRect(10, 20, 300, 200)) << testing::PrintToString(place);
  }
}

TEST(WindowDivision, IsFoundAgainAfterTheDividerWasMoved) {
  DividedWindow first({});
  first.divider.handle(1)->setFocus();
  first.divider.setSizes({100, 200});
  emit first.divider.splitterMoved(100, 1);
  const WindowPlaces places = first.Closed();

  const DividedWindow second(places);

  EXPECT_EQ(second.divider.sizes(), first.divider.sizes());
  EXPECT_THAT(places, ElementsAre(Pair("frmMain.viewSplit", testing::SizeIs(2))));
}

TEST(WindowDivision, WithoutSenseIsIgnored) {
  const QList<int> usual = DividedWindow({}).divider.sizes();
  for (const std::vector<int>& sizes : {std::vector{100}, std::vector{0, 300}, std::vector{-10, 20}}) {
    const DividedWindow shown({{"frmMain.viewSplit", sizes}});

    EXPECT_EQ(shown.divider.sizes(), usual) << testing::PrintToString(sizes);
  }
}

struct PlacesOfTheProgram : MainViewTest {
  PlacesOfTheProgram() { platform.screen.Places = &program.session.places; }

  // Opens the description and gives it another size. Returns its size before.
  QSize SizeOfDescription(const QSize& later) {
    QSize size;
    DescriptionDialog dialog(program);
    Work(dialog, [&](QDialog& window) {
      size = window.size();
      if (!later.isEmpty()) window.resize(later);
    });
    return size;
  }
};

TEST_F(PlacesOfTheProgram, AreThoseOfItsDialogs) {
  const QSize larger = SizeOfDescription({}) + QSize(10, 14);
  SizeOfDescription(larger);

  EXPECT_EQ(SizeOfDescription({}), larger);
  EXPECT_EQ(SizeOfDescription({}), larger);
}

TEST_F(PlacesOfTheProgram, AreThatOfTheMainWindow) {
  View().resize(View().size() + QSize(30, 20));
  const QRect place = PlaceOf(View());
  Press(Qt::Key_F, Qt::AltModifier);
  PressInMenu(Qt::Key_X);

  EXPECT_THAT(program.session.places,
              ElementsAre(Pair("frmMain", ElementsAre(place.left(), place.top(), place.width(), place.height(), 0))));
}

}  // namespace
}  // namespace orby::test
