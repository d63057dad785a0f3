// The drawings of the parameters dialog on the screen: they follow the keys, and are copied and saved by the keyboard.
#include <QAccessible>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>

#include "dialogs/parameters_dialog.h"
#include "drawings/scene_svg.h"
#include "gui/gui_bench.h"
#include "gui/readers_bench.h"
#include "qt/drawing_view.h"
#include "qt/picture_files.h"
#include "qt/surroundings.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* DrawingNames[] = {"Picture1", "Image1", "picEntries", "picIntersections"};

RealDoors WithClipboardOfTheDesktop() {
  static QtClipboard clipboard;
  static QtPictureFiles pictures;
  RealDoors doors;
  doors.clipboard = &clipboard;
  doors.pictures = &pictures;
  return doors;
}

class DrawingsOnView : public GuiTest {
 protected:
  DrawingsOnView() : GuiTest(WithClipboardOfTheDesktop()) {
    for (SecondarySupport* support : {&program.project.WorkParms.Entries, &program.project.WorkParms.Intersections}) {
      support->Analysed = 1;
    }
  }

  ParametersDialog dialog{program};
};

// Opens the menu of a widget as the menu key does.
QMenu& MenuOf(QWidget& widget) {
  QContextMenuEvent ask(QContextMenuEvent::Keyboard, QPoint(2, 2), widget.mapToGlobal(QPoint(2, 2)));
  QCoreApplication::sendEvent(&widget, &ask);
  return dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
}

// Presses the letter of an entry of the open menu.
void ChooseByLetter(QMenu& menu, Qt::Key letter) {
  QTest::keyClick(&menu, letter);
  Settle();
}

QString WordsRead(QWidget& drawing) { return ReaderOf(drawing).text(QAccessible::Description); }

// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }

  int count = 0;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return QObject::eventFilter(watched, event);
  }
};

TEST_F(DrawingsOnView, ArePaintedAfterTheKeysThatChangeThem) {
  Work(dialog, [](QDialog& window) {
    Find(window, "txtEntryWidth").setFocus();
    Settle();
    const Paints paints(Find(window, "Picture1"));

    Type("30");

    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
  });
}

TEST_F(DrawingsOnView, ArePaintedAlsoWhenAReaderHasReadThemBefore) {
  Work(dialog, [this](QDialog& window) {
    Find(window, "txtEntryWidth").setFocus();
    Settle();
    const Paints paints(Find(window, "Picture1"));

    Type("30");
    EXPECT_THAT(dialog.Picture1.Words(), StartsWith("Entry width 30 ft. "));

    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
  });
}

TEST_F(DrawingsOnView, ChangeWithTheKeys) {
  Work(dialog, [](QDialog& window) {
    auto& drawing = Find(window, "Picture1");
    const QImage before = drawing.grab().toImage();

    TypeInto(window, "txtEntryWidth", "30");

    EXPECT_NE(drawing.grab().toImage(), before);
  });
}

TEST_F(DrawingsOnView, AreReadAsGraphicsWithTheirNameAndWords) {
  Work(dialog, [](QDialog& window) {
    auto& drawing = Find(window, "Picture1");
    TypeInto(window, "txtEntryWidth", "30");

    EXPECT_EQ(ReaderOf(drawing).role(), QAccessible::Graphic);
    EXPECT_EQ(ReaderOf(drawing).text(QAccessible::Name), "Diagonals of an intersection");
    EXPECT_THAT(WordsRead(drawing).toStdString(), StartsWith("Entry width 30 ft. "));
  });
}

TEST_F(DrawingsOnView, FillTheirPlaceInTheWindow) {
  Work(dialog, [this](QDialog& window) {
    window.resize(window.width() + 150, window.height() + 100);
    Settle();

    const auto& drawing = Find(window, "Picture1");
    const double wide = static_cast<double>(drawing.width()) / drawing.height();
    EXPECT_NEAR(dialog.Picture1.Picture().Width / dialog.Picture1.Picture().Height, wide, 0.02);
  });
}

TEST_F(DrawingsOnView, KeepTheSizeOfTheWindowWhileTabsTurn) {
  Work(dialog, [](QDialog& window) {
    const QSize size = window.size();
    auto& tabs = Find<QTabWidget>(window, "SSTab1");
    for (int tab = 0; tab < tabs.count(); ++tab) {
      tabs.setCurrentIndex(tab);
      Settle();
      EXPECT_TRUE(Find(window, DrawingNames[tab]).isVisible()) << tab;
      EXPECT_EQ(window.size(), size) << tab;
    }
    EXPECT_LE(size.width(), 1366);
    EXPECT_LE(size.height(), 740);
  });
}

TEST_F(DrawingsOnView, AreReachedByTab) {
  Work(dialog, [](QDialog& window) {
    Find(window, "chkSecondSupInter").setFocus();

    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "Picture1");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "lstVerdicts");
  });
}

TEST_F(DrawingsOnView, AreCopiedInTwiceTheirSizeByControlC) {
  QGuiApplication::clipboard()->clear();
  Work(dialog, [this](QDialog& window) {
    Find(window, "Picture1").setFocus();

    Press(Qt::Key_C, Qt::ControlModifier);
    Settle();

    const QImage picture = QGuiApplication::clipboard()->image();
    EXPECT_EQ(picture.width(), qRound(2 * dialog.Picture1.Picture().Width));
    EXPECT_EQ(picture.pixelColor(picture.width() - 2, picture.height() - 2), QColor(Qt::white));
  });
}

TEST_F(DrawingsOnView, AreSavedAsSvgByTheKeyboard) {
  platform.fileDialogs.answers.push_back("/home/user/roof.svg");
  Work(dialog, [this](QDialog& window) {
    ChooseByLetter(MenuOf(Find(window, "Picture1")), Qt::Key_S);

    EXPECT_EQ(platform.files.files["/home/user/roof.svg"], SceneSvg(dialog.Picture1.Picture()));
  });
}

TEST_F(DrawingsOnView, AreSavedAsOnePageOfPdf) {
  platform.fileDialogs.answers.push_back("/home/user/roof.pdf");
  Work(dialog, [this](QDialog& window) {
    ChooseByLetter(MenuOf(Find(window, "Picture1")), Qt::Key_P);

    const std::string& bytes = platform.files.files["/home/user/roof.pdf"];
    EXPECT_THAT(bytes, StartsWith("%PDF-"));
    EXPECT_THAT(bytes, HasSubstr("/Count 1\n"));
  });
}

TEST_F(DrawingsOnView, HaveNoEditsInTheirMenu) {
  Work(dialog, [](QDialog& window) {
    TypeInto(window, "txtEntryWidth", "30");
    QMenu& menu = MenuOf(Find(window, "Picture1"));
    std::vector<std::string> entries;
    for (const QAction* entry : menu.actions()) entries.push_back(entry->text().remove('&').toStdString());
    menu.close();

    EXPECT_THAT(entries, ElementsAre("Copy as Picture", "Save as SVG...", "Save as PDF..."));
  });
}

TEST_F(DrawingsOnView, LeaveTheirTabAloneWhenAnEditIsTakenBack) {
  Work(dialog, [this](QDialog& window) {
    TypeInto(window, "txtEntryWidth", "30");
    Find(window, "Picture1").setFocus();

    Press(Qt::Key_Z, Qt::ControlModifier);

    EXPECT_EQ(TextOn(window, "txtEntryWidth"), "20");
    EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width 20 ft"));
  });
}

}  // namespace
}  // namespace orby::test
