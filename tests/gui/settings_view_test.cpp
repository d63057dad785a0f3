// The settings as their user sees them, and the font dialog that they open.
#include <QCheckBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "core/dialog_helpers.h"
#include "dialogs/settings_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class SettingsView : public GuiTest {
 protected:
  SettingsView() {
    platform.fonts.screen = {"Arial", "Courier New", "Sans"};
    platform.files.folders.insert("/home/user/Documents/Orby");
    platform.files.folders.insert("/designs");
    program.session.IniFilePath = "/home/user/Documents/Orby/ORBY.INI";
    program.session.settings.MaxDisplaySize = 4096;
    program.session.settings.DataPath = "/home/user/Documents/Orby/";
    program.session.settings.DisplayFontName = "Courier New";
  }

  int modified = 0;
  SettingsDialog settings{program, [this] { ++modified; }};
};

TEST_F(SettingsView, CanBeSetByTheKeyboard) {
  Use(settings, [](QDialog& window) {
    Find(window, "optUnits_0").setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Right);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "Text1");
    Type("RS7");
    Press(Qt::Key_Tab);
    Type("/designs");
    PressLetterOf(window, "cmdSetDefault");
    PressLetterOf(window, "chkEnableTB");
    PressLetterOf(window, "Text3");
    Type("8000");
    Press(Qt::Key_Enter);
  });

  EXPECT_EQ(program.session.settings.UnitsDefault, Metric);
  EXPECT_EQ(program.session.settings.FileExtension, "RS7");
  EXPECT_EQ(program.session.settings.DataPath, "/designs/");
  EXPECT_EQ(program.session.settings.EnableMainMenuToolbar, 0);
  EXPECT_EQ(program.session.settings.MaxDisplaySize, 8000);
  EXPECT_EQ(modified, 1);
}

TEST_F(SettingsView, DoNotChangeAfterEscape) {
  Use(settings, [](QDialog& window) {
    Click(window, "chkMaxMenu");
    Press(Qt::Key_Escape);
  });

  EXPECT_EQ(program.session.settings.MaxMainMenu, 0);
  EXPECT_EQ(modified, 0);
}

// Unlike the numbers of a design, this one is checked only on OK.
TEST_F(SettingsView, AcceptAnyKeyInTheHistorySizeAndReadItsNumber) {
  Use(settings, [](QDialog& window) {
    TypeInto(window, "Text3", "5000 chars");
    EXPECT_EQ(TextOn(window, "Text3"), "5000 chars");
    Click(window, "cmdOK");
  });

  EXPECT_EQ(program.session.settings.MaxDisplaySize, 5000);
}

TEST_F(SettingsView, MoveTheFocusToTheInvalidField) {
  Use(settings, [this](QDialog& window) {
    TypeInto(window, "Text2", "/nowhere");
    Click(window, "cmdOK");
    EXPECT_EQ(FocusName(), "Text2");
    TypeInto(window, "Text2", "/designs");
    TypeInto(window, "Text3", "4095");
    Click(window, "cmdOK");
    EXPECT_EQ(FocusName(), "Text3");
    TypeInto(window, "Text3", "4096");
    TypeInto(window, "Text1", "O.B");
    Click(window, "cmdOK");
    EXPECT_EQ(FocusName(), "Text1");
    EXPECT_THAT(platform.boxes.shown, SizeIs(3));
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsView, OpenWithoutAMessage) {
  program.session.settings.ShortRecentFiles = 1;

  Use(settings, [this](QDialog& window) {
    EXPECT_TRUE(Find<QCheckBox>(window, "chkShortNames").isChecked());
    EXPECT_THAT(platform.boxes.shown, IsEmpty());
    Press(Qt::Key_Escape);
  });
}

TEST_F(SettingsView, ShowTheMessageAfterTheClickOnABoxIsOver) {
  Use(settings, [this](QDialog& window) {
    auto& box = Find<QCheckBox>(window, "chkShortNames");

    box.click();
    EXPECT_TRUE(box.isChecked());
    EXPECT_THAT(platform.boxes.shown, IsEmpty());
    Settle();

    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Option will take effect upon restarting this program"));
    EXPECT_TRUE(box.isChecked());
    Click(window, "cmdOK");
  });

  EXPECT_EQ(program.session.settings.ShortRecentFiles, 1);
}

TEST_F(SettingsView, AcceptAChosenFolder) {
  platform.fileDialogs.answers = {"/designs"};

  Use(settings, [](QDialog& window) {
    Click(window, "cmdSetPath");
    EXPECT_EQ(TextOn(window, "Text2"), "/designs");
    Click(window, "cmdOK");
  });

  EXPECT_EQ(program.session.settings.DataPath, "/designs/");
}

// ---- the font ------------------------------------------------------------------------------------------------------

TEST_F(SettingsView, ChooseTheFontOfTheHistoryByTheArrowKeys) {
  scripts.Add([](QDialog& settingsWindow) {
    PressLetterOf(settingsWindow, "Command5");
    Click(settingsWindow, "cmdOK");
  });
  scripts.Add([](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstFont");
    const auto& sample = Find<QPlainTextEdit>(window, "txtSample");
    EXPECT_EQ(list.currentItem()->text(), "Courier New");
    EXPECT_TRUE(list.currentItem()->isSelected());
    EXPECT_EQ(sample.font().family(), "Courier New");
    PressLetterOf(window, "lstFont");
    Press(Qt::Key_Down);
    EXPECT_EQ(sample.font().family(), "Sans");
    TypeInto(window, "txtSize", "14");
    EXPECT_EQ(sample.font().pointSize(), 14);
    PressLetterOf(window, "chkItalic");
    EXPECT_TRUE(sample.font().italic());
    Press(Qt::Key_Enter);
  });

  ShowForm(program, settings);

  EXPECT_EQ(program.session.settings.DisplayFontName, "Sans");
  EXPECT_EQ(program.session.settings.DisplayFontSize, 14);
  EXPECT_EQ(program.session.settings.DisplayFontItalic, -1);
}

TEST_F(SettingsView, ChooseAFontByTheMouse) {
  scripts.Add([](QDialog& settingsWindow) {
    Click(settingsWindow, "Command5");
    Click(settingsWindow, "cmdOK");
  });
  scripts.Add([](QDialog& window) {
    auto& list = Find<QListWidget>(window, "lstFont");
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(0)).center());
    Settle();
    EXPECT_EQ(Find<QPlainTextEdit>(window, "txtSample").font().family(), "Arial");
    Click(window, "cmdOK");
  });

  ShowForm(program, settings);

  EXPECT_EQ(program.session.settings.DisplayFontName, "Arial");
}

TEST_F(SettingsView, KeepAFontThatIsNotOfferedWhenTheListGetsTheFocus) {
  program.session.settings.DisplayFontName = "Terminal";
  scripts.Add([](QDialog& settingsWindow) {
    Click(settingsWindow, "Command5");
    Press(Qt::Key_Escape);
  });
  scripts.Add([this](QDialog& window) {
    Find(window, "lstFont").setFocus(Qt::TabFocusReason);
    Settle();
    EXPECT_TRUE(Find<QListWidget>(window, "lstFont").selectedItems().isEmpty());
    Click(window, "cmdOK");
    EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Invalid font selection"));
    Press(Qt::Key_Escape);
  });

  ShowForm(program, settings);
}

}  // namespace
}  // namespace orby::test
