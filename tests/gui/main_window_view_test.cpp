// The main window as its user sees it.
#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include "gui/main_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

constexpr auto NoKey = Qt::Key_unknown;

// ---- the commands ---------------------------------------------------------------------------------------------------

// Records the chosen command instead of running it.
class MainCommands : public MainViewTest {
 protected:
  using Choice = std::pair<std::string, int>;

  MainCommands() {
    ActionArray* const arrays[] = {&model.mnuFileItem, &model.mnuEditItem,  &model.mnuUtilItem, &model.mnuStudyItem,
                                   &model.mnuHelpItem, &model.mnuFileArray, &model.Toolbar1};
    for (ActionArray* array : arrays) {
      array->Click = [this, array](Integer item) { chosen.emplace_back(array->Name(), item); };
    }
  }

  std::vector<Choice> chosen;
};

struct Keys {
  Qt::Key menu;  // with Alt; NoKey for a shortcut
  Qt::Key key;
  Qt::KeyboardModifiers modifiers;
  const char* array;
  int item;
};

std::string NameOfKeys(const testing::TestParamInfo<Keys>& info) {
  return std::string(info.param.array) + "_" + std::to_string(info.param.item);
}

void PrintTo(const Keys& keys, std::ostream* out) { *out << keys.array << "_" << keys.item; }

class MainKeys : public MainCommands, public testing::WithParamInterface<Keys> {};

TEST_P(MainKeys, ChooseTheirCommand) {
  const Keys& keys = GetParam();

  if (keys.menu != NoKey) Press(keys.menu, Qt::AltModifier);
  PressInMenu(keys.key, keys.modifiers);

  EXPECT_THAT(chosen, ElementsAre(Pair(keys.array, keys.item)));
}

INSTANTIATE_TEST_SUITE_P(
    Menus, MainKeys,
    testing::Values(Keys{Qt::Key_F, Qt::Key_N, {}, "mnuFileItem", 0}, Keys{Qt::Key_F, Qt::Key_O, {}, "mnuFileItem", 1},
                    Keys{Qt::Key_F, Qt::Key_S, {}, "mnuFileItem", 2}, Keys{Qt::Key_F, Qt::Key_A, {}, "mnuFileItem", 3},
                    Keys{Qt::Key_F, Qt::Key_U, {}, "mnuFileItem", 5}, Keys{Qt::Key_F, Qt::Key_P, {}, "mnuFileItem", 6},
                    Keys{Qt::Key_F, Qt::Key_X, {}, "mnuFileItem", 11}, Keys{Qt::Key_U, Qt::Key_S, {}, "mnuUtilItem", 0},
                    Keys{Qt::Key_U, Qt::Key_O, {}, "mnuUtilItem", 1}, Keys{Qt::Key_U, Qt::Key_U, {}, "mnuUtilItem", 2},
                    Keys{Qt::Key_U, Qt::Key_F, {}, "mnuUtilItem", 3}, Keys{Qt::Key_H, Qt::Key_R, {}, "mnuHelpItem", 4},
                    Keys{Qt::Key_H, Qt::Key_D, {}, "mnuHelpItem", 6}, Keys{Qt::Key_H, Qt::Key_A, {}, "mnuHelpItem", 10},
                    Keys{Qt::Key_I, Qt::Key_D, {}, "mnuEditItem", 0}, Keys{Qt::Key_I, Qt::Key_P, {}, "mnuEditItem", 1},
                    Keys{Qt::Key_I, Qt::Key_C, {}, "mnuEditItem", 2}, Keys{Qt::Key_U, Qt::Key_C, {}, "mnuUtilItem", 5},
                    Keys{Qt::Key_U, Qt::Key_W, {}, "mnuUtilItem", 6}, Keys{Qt::Key_U, Qt::Key_P, {}, "mnuUtilItem", 7},
                    Keys{Qt::Key_H, Qt::Key_C, {}, "mnuHelpItem", 0}, Keys{Qt::Key_H, Qt::Key_I, {}, "mnuHelpItem", 1},
                    Keys{Qt::Key_H, Qt::Key_P, {}, "mnuHelpItem", 2}, Keys{Qt::Key_S, Qt::Key_W, {}, "mnuStudyItem", 0},
                    Keys{Qt::Key_S, Qt::Key_C, {}, "mnuStudyItem", 1},
                    Keys{Qt::Key_S, Qt::Key_D, {}, "mnuStudyItem", 7}),
    NameOfKeys);

INSTANTIATE_TEST_SUITE_P(Shortcuts, MainKeys,
                         testing::Values(Keys{NoKey, Qt::Key_N, Qt::ControlModifier, "mnuFileItem", 0},
                                         Keys{NoKey, Qt::Key_O, Qt::ControlModifier, "mnuFileItem", 1},
                                         Keys{NoKey, Qt::Key_S, Qt::ControlModifier, "mnuFileItem", 2},
                                         Keys{NoKey, Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier, "mnuFileItem",
                                              3},
                                         Keys{NoKey, Qt::Key_P, Qt::ControlModifier, "mnuFileItem", 6},
                                         Keys{NoKey, Qt::Key_F1, {}, "mnuHelpItem", 0}),
                         NameOfKeys);

TEST_F(MainCommands, AreReachedInTurnByALetterThatTwoItemsShare) {
  Press(Qt::Key_F, Qt::AltModifier);
  PressInMenu(Qt::Key_V);
  PressInMenu(Qt::Key_Return);
  Press(Qt::Key_F, Qt::AltModifier);
  PressInMenu(Qt::Key_V);
  PressInMenu(Qt::Key_V);
  PressInMenu(Qt::Key_Return);

  EXPECT_THAT(chosen, ElementsAre(Pair("mnuFileItem", NumberOf(FileItem::Preview)),
                                  Pair("mnuFileItem", NumberOf(FileItem::ViewSourceFiles))));
}

TEST_F(MainCommands, AreNotChosenByTheLetterOfADisabledItem) {
  for (const UtilityItem item :
       {UtilityItem::Settings, UtilityItem::Options, UtilityItem::UnitConversions, UtilityItem::FileConversion}) {
    model.mnuUtilItem.SetItemEnabled(NumberOf(item), false);
  }
  for (const Qt::Key letter : {Qt::Key_S, Qt::Key_O, Qt::Key_U, Qt::Key_F}) {
    Press(Qt::Key_U, Qt::AltModifier);
    PressInMenu(letter);
    while (QWidget* menu = QApplication::activePopupWidget()) menu->close();
  }

  EXPECT_THAT(chosen, IsEmpty());
}

TEST_F(MainCommands, HaveFiveButtonsWithPicturesAndCaptions) {
  auto& bar = Find<QToolBar>(View(), "Toolbar1");
  std::vector<std::string> captions;

  for (QAction* action : bar.actions()) {
    EXPECT_FALSE(action->icon().isNull());
    captions.push_back(action->text().toStdString());
    QTest::mouseClick(bar.widgetForAction(action), Qt::LeftButton);
  }
  Settle();

  EXPECT_THAT(captions, ElementsAre("Open", "Save", "Print", "Project Description", "Project Parameters"));
  EXPECT_THAT(chosen, ElementsAre(Pair("Toolbar1", 1), Pair("Toolbar1", 2), Pair("Toolbar1", 3), Pair("Toolbar1", 4),
                                  Pair("Toolbar1", 5)));
}

// ---- files ----------------------------------------------------------------------------------------------------------

class MainView : public MainViewTest {
 protected:
  const QPlainTextEdit& Pane() { return Find<QPlainTextEdit>(View(), "txtMain"); }

  // Drags files as a file manager does.
  bool Drag(const QList<QUrl>& urls) {
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(View().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&View(), &enter);
    return enter.isAccepted();
  }
  void Drop(const std::string& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(ToQt(path))});
    QDropEvent drop(View().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&View(), &drop);
    Settle();
  }
  std::vector<std::string> RecentEntries() {
    std::vector<std::string> shown;
    for (int i = 1; i <= 4; ++i) {
      const auto& entry = Find<QMenu>(View(), "mnuFile").actions();
      for (const QAction* action : entry) {
        if (action->objectName() == QString("mnuFileArray_%1").arg(i) && action->isVisible()) {
          shown.push_back(action->text().toStdString());
        }
      }
    }
    return shown;
  }
};

TEST_F(MainView, OpensADroppedProjectFile) {
  const std::string path = Example("weak-roof.ORB");

  EXPECT_TRUE(Drag({QUrl::fromLocalFile(ToQt(path))}));
  Drop(path);

  EXPECT_THAT(program.project.CurrentFile, Eq(path));
  EXPECT_THAT(Caption(), HasSubstr("weak-roof.ORB"));
  EXPECT_THAT(RecentEntries(), ElementsAre(path));
}

TEST_F(MainView, RefusesADropThatIsNotOneFile) {
  const QUrl file = QUrl::fromLocalFile(ToQt(Example("weak-roof.ORB")));

  EXPECT_FALSE(Drag({file, file}));
  EXPECT_FALSE(Drag({QUrl("https://example.org/design.ORB")}));
  EXPECT_FALSE(Drag({QUrl::fromLocalFile(EXAMPLES_DIR)}));
}

TEST_F(MainView, OffersRecentFilesTheNewestFirst) {
  const std::string first = Example("weak-roof.ORB");
  const std::string second = Example("belt-entry-trusses.ORB");

  OpenFile(first);
  OpenFile(second);

  EXPECT_THAT(RecentEntries(), ElementsAre(second, first));
}

TEST_F(MainView, OpensARecentFile) {
  const std::string first = Example("weak-roof.ORB");
  OpenFile(first);
  OpenFile(Example("belt-entry-trusses.ORB"));

  View().findChild<QAction*>("mnuFileArray_2")->trigger();
  Settle();

  EXPECT_THAT(program.project.CurrentFile, Eq(first));
}

TEST_F(MainView, ShowsAStarInTheCaptionWhileThereAreUnsavedChanges) {
  OpenFile(Example("weak-roof.ORB"));
  const std::string before = Caption();

  EditDescription("Panel 7");
  const std::string edited = Caption();
  Press(Qt::Key_S, Qt::ControlModifier);

  EXPECT_THAT(edited, Eq(before + "*"));
  EXPECT_THAT(Caption(), Eq(before));
}

// ---- the history ----------------------------------------------------------------------------------------------------

TEST_F(MainView, FollowsTheHistoryWithItsCaretAtTheEnd) {
  for (int i = 0; i < 60; ++i) AddHistoryLine(program, "A line of what happened");
  Settle();

  EXPECT_THAT(Pane().toPlainText().toStdString(), HasSubstr("60. A line of what happened"));
  EXPECT_TRUE(Pane().textCursor().atEnd());
  EXPECT_GT(Pane().verticalScrollBar()->value(), 0);
  EXPECT_TRUE(Pane().viewport()->rect().contains(Pane().cursorRect()));
}

TEST_F(MainView, ClosesAndRestoresTheHistory) {
  Press(Qt::Key_U, Qt::AltModifier);
  PressInMenu(Qt::Key_W);
  const bool shownAfterClosing = Pane().isVisible();
  const auto* entry = View().findChild<QAction*>("mnuUtilItem_6");
  const QString captionAfterClosing = entry->text();
  Press(Qt::Key_U, Qt::AltModifier);
  PressInMenu(Qt::Key_W);

  EXPECT_FALSE(shownAfterClosing);
  EXPECT_EQ(captionAfterClosing, "Restore History &Window");
  EXPECT_TRUE(Pane().isVisible());
  EXPECT_EQ(entry->text(), "Close History &Window");
}

TEST_F(MainView, ClearsTheHistory) {
  AddHistoryLine(program, "A line of what happened");

  Press(Qt::Key_U, Qt::AltModifier);
  PressInMenu(Qt::Key_C);

  EXPECT_THAT(Pane().toPlainText().toStdString(), IsEmpty());
}

// ---- closing --------------------------------------------------------------------------------------------------------

class MainClosing : public MainView {
 protected:
  MainClosing() {
    path = Example("weak-roof.ORB");
    OpenFile(path);
    EditDescription("Panel 7");
    platform.boxes.shown.clear();
  }
  void CloseWith(BoxResult answer) {
    platform.boxes.answers.push_back(answer);
    View().close();
    Settle();
  }

  std::string path;
};

TEST_F(MainClosing, AsksWhetherToSave) {
  CloseWith(BoxResult::Cancel);

  ASSERT_THAT(platform.boxes.shown, SizeIs(1));
  EXPECT_THAT(platform.boxes.shown[0].text, Eq("Save changes to: " + path + "?"));
  EXPECT_EQ(platform.boxes.shown[0].style, BoxStyle(BoxButtons::YesNoCancel, BoxIcon::Question));
}

TEST_F(MainClosing, StaysOpenIfItIsCancelled) {
  CloseWith(BoxResult::Cancel);

  EXPECT_TRUE(model.IsOpen());
  EXPECT_TRUE(View().isVisible());
}

TEST_F(MainClosing, SavesFirstOnYes) {
  CloseWith(BoxResult::Yes);

  EXPECT_FALSE(model.IsOpen());
  EXPECT_THAT(platform.files.files[path], HasSubstr("Panel 7"));
}

TEST_F(MainClosing, EndsWithoutSavingOnNo) {
  CloseWith(BoxResult::No);

  EXPECT_FALSE(model.IsOpen());
  EXPECT_THAT(platform.files.files[path], Not(HasSubstr("Panel 7")));
}

TEST_F(MainClosing, StaysOpenIfTheSaveFails) {
  platform.files.Fail(MemoryFiles::Step::Create, error_number::PathFileAccess);
  platform.boxes.answers = {BoxResult::Yes, BoxResult::Cancel};

  View().close();
  Settle();

  EXPECT_TRUE(model.IsOpen());
  EXPECT_THAT(Caption(), testing::EndsWith("*"));
}

TEST_F(MainView, ClosesByTheExitItem) {
  Press(Qt::Key_F, Qt::AltModifier);
  PressInMenu(Qt::Key_X);

  EXPECT_FALSE(model.IsOpen());
}

// ---- its position ---------------------------------------------------------------------------------------------------

TEST_F(MainView, KeepsItsSizeAndPositionWhileADialogReplacesIt) {
  View().setGeometry(31, 47, 640, 480);
  Settle();
  bool shownMeanwhile = true;

  scripts.Add([&](QDialog& window) {
    shownMeanwhile = View().isVisible();
    window.close();
  });
  Press(Qt::Key_I, Qt::AltModifier);
  PressInMenu(Qt::Key_C);

  EXPECT_FALSE(shownMeanwhile);
  EXPECT_TRUE(View().isVisible());
  EXPECT_EQ(View().geometry(), QRect(31, 47, 640, 480));
}

TEST_F(MainView, ShowsTheVersion) { EXPECT_EQ(TextOn(View(), "lblver"), "Version: 1.0.00"); }

TEST_F(MainView, HasItsNameInTheCaption) { EXPECT_EQ(Caption(), "Orby Roof Support Workbench: Untitled"); }

}  // namespace
}  // namespace orby::test
