// The text file browser as its user sees it.
#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <algorithm>

#include "dialogs/text_browser.h"
#include "gui/gui_bench.h"
#include "qt/lines_view.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BrowserView : public GuiTest {
 protected:
  BrowserView() {
    platform.files.drives = {"/", "/media/stick"};
    platform.files.folders = {"", "/designs", "/designs/east", "/designs/west", "/designs/west/deep", "/media/stick"};
    platform.files.files["/designs/panel3.orb"] = "cover\r\n400\tft\r\n45\xB0 dip\r\n";
    platform.files.files["/designs/panel4.orb"] = "cover\n980\n";
    platform.files.files["/designs/notes.txt"] = "one\n";
    platform.files.files["/media/stick/stick.orb"] = "stick\n";
    program.session.settings.DataPath = "/designs/";
    program.session.settings.ExternalEditor = "/usr/bin/viewer";
    program.session.folders.ProgramTemporary = "/tmp/";
    program.session.IniFilePath = "/designs/ORBY.INI";
  }

  void Browse(ModalScripts::Script script) {
    TextBrowser browser(program);
    Use(browser, [script = std::move(script)](QDialog& window) {
      script(window);
      Click(window, "Command1");
    });
  }

  // Clicks the text of a list item.
  static void ClickItem(const QDialog& window, std::string_view list, const QString& text, int times = 1) {
    auto& widget = Find<QListWidget>(window, list);
    const auto found = widget.findItems(text, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << text.toStdString();
    widget.scrollToItem(found.front());
    const QPoint at = widget.visualItemRect(found.front()).center();
    QTest::mouseClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    Settle();
    if (times > 1) QTest::mouseDClick(widget.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    Settle();
  }
  // Waits until a file is read.
  void Wait() {
    while (!platform.clock.waiting.empty()) platform.clock.Pass();
    Settle();
  }
  void OpenFile(const QDialog& window, const QString& name) {
    ClickItem(window, "File1", name);
    Wait();
  }

  static std::vector<std::string> ItemsOn(const QDialog& window, std::string_view list) {
    std::vector<std::string> items;
    const auto& widget = Find<QListWidget>(window, list);
    for (int i = 0; i < widget.count(); ++i) items.push_back(widget.item(i)->text().toStdString());
    return items;
  }
  static LinesView& Pane(const QDialog& window) { return Find<LinesView>(window, "RichTextBox1"); }
  static std::vector<std::string> LinesOn(const QDialog& window) {
    std::vector<std::string> lines;
    const auto& model = *Pane(window).model();
    for (int i = 0; i < model.rowCount(); ++i) lines.push_back(model.index(i, 0).data().toString().toStdString());
    return lines;
  }
};

TEST_F(BrowserView, ShowsTheLinesOfAFile) {
  Browse([this](QDialog& window) {
    EXPECT_EQ(window.windowTitle(), "View Source Files");
    OpenFile(window, "panel3.orb");

    EXPECT_THAT(LinesOn(window), ElementsAre("cover", "400     ft", "45\u00B0 dip"));
    EXPECT_EQ(TextOn(window, "Label1"), "/designs/panel3.orb");
  });
}

TEST_F(BrowserView, ReplacesAFileByTheNextOne) {
  Browse([this](QDialog& window) {
    OpenFile(window, "panel3.orb");
    OpenFile(window, "panel4.orb");

    EXPECT_THAT(LinesOn(window), ElementsAre("cover", "980"));
  });
}

TEST_F(BrowserView, OpensAFileByTheKeyboard) {
  Browse([this](QDialog& window) {
    Find(window, "File1").setFocus();
    Press(Qt::Key_Home);
    Press(Qt::Key_Enter);
    Wait();

    EXPECT_THAT(LinesOn(window), ElementsAre("cover", "400     ft", "45\u00B0 dip"));
  });
}

TEST_F(BrowserView, ShowsTheProgressOfALongFile) {
  platform.files.files["/designs/long.orb"] = std::string(TextBrowser::PieceBytes * 4, '\n');
  Browse([this](QDialog& window) {
    const auto& bar = Find<QProgressBar>(window, "prgLoading");
    EXPECT_FALSE(bar.isVisible());

    ClickItem(window, "File1", "long.orb");
    platform.clock.Pass();

    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.value(), 25);
    EXPECT_EQ(Pane(window).model()->rowCount(), static_cast<int>(TextBrowser::PieceBytes));
    Wait();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(Pane(window).model()->rowCount(), static_cast<int>(TextBrowser::PieceBytes * 4));
  });
}

TEST_F(BrowserView, OpensAFolderByOneClick) {
  Browse([](QDialog& window) {
    ClickItem(window, "Dir1", "    west");

    EXPECT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    west", "      deep"));
    EXPECT_EQ(Find<QListWidget>(window, "Dir1").currentRow(), 2);
    EXPECT_THAT(ItemsOn(window, "File1"), IsEmpty());
  });
}

TEST_F(BrowserView, OpensNoSecondFolderByADoubleClick) {
  Browse([](QDialog& window) {
    ClickItem(window, "Dir1", "    west", 2);

    EXPECT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    west", "      deep"));
    EXPECT_EQ(Find<QListWidget>(window, "Dir1").currentRow(), 2);
  });
}

// As if the window has not answered for a while.
TEST_F(BrowserView, IgnoresAClickOnAFolderThatAnEarlierClickRemoved) {
  Browse([this](QDialog& window) {
    auto& folders = Find<QListWidget>(window, "Dir1");
    const auto clickRow = [&folders](int row) {
      const QPoint at = folders.visualItemRect(folders.item(row)).center();
      QTest::mouseClick(folders.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    };
    ASSERT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    east", "    west"));

    clickRow(2);
    clickRow(3);
    Settle();

    EXPECT_THAT(ItemsOn(window, "Dir1"), ElementsAre("/", "  designs", "    east"));
    EXPECT_THAT(platform.boxes.shown, IsEmpty());
  });
}

TEST_F(BrowserView, OpensAFolderByTheKeyboard) {
  Browse([](QDialog& window) {
    Find(window, "Dir1").setFocus();
    Press(Qt::Key_Down);
    EXPECT_EQ(ItemsOn(window, "File1").size(), 2U);
    Press(Qt::Key_Enter);

    EXPECT_EQ(Find<QListWidget>(window, "Dir1").currentRow(), 2);
    EXPECT_EQ(ItemsOn(window, "Dir1")[2], "    east");
    EXPECT_THAT(ItemsOn(window, "File1"), IsEmpty());
  });
}

TEST_F(BrowserView, FiltersAsThePatternIsTyped) {
  Browse([](QDialog& window) {
    TypeInto(window, "Text2", "*4.orb;*.txt");

    EXPECT_THAT(ItemsOn(window, "File1"), ElementsAre("notes.txt", "panel4.orb"));
  });
}

TEST_F(BrowserView, ChoosesADrive) {
  Browse([](QDialog& window) {
    Find(window, "Drive1").setFocus();
    Press(Qt::Key_Down);

    EXPECT_EQ(TextOn(window, "Drive1"), "/media/stick");
    EXPECT_THAT(ItemsOn(window, "File1"), ElementsAre("stick.orb"));
  });
}

TEST_F(BrowserView, HidesThePaneForTheExternalViewer) {
  Browse([this](QDialog& window) {
    Click(window, "Check1");

    EXPECT_FALSE(Pane(window).isVisible());
    EXPECT_FALSE(Find(window, "cmdSetFont").isEnabled());
    ClickItem(window, "File1", "panel4.orb");
    EXPECT_FALSE(Pane(window).isVisible());
    EXPECT_THAT(platform.documents.started, ElementsAre(ElementsAre("/usr/bin/viewer", "/tmp/~tmpbr.tmp")));
  });
}

TEST_F(BrowserView, UsesTheChosenFont) {
  program.session.textBrowse.BrowseFontName = "Courier New";
  program.session.textBrowse.BrowseFontSize = 16;
  program.session.textBrowse.BrowseFontBold = -1;
  Browse([](QDialog& window) {
    EXPECT_EQ(Pane(window).font().family(), "Courier New");
    EXPECT_EQ(Pane(window).font().pointSize(), 16);
    EXPECT_TRUE(Pane(window).font().bold());
  });
}

// ---- searching -----------------------------------------------------------------------------------------------------

TEST_F(BrowserView, FindsATextByTheKeyboard) {
  platform.files.files["/designs/found.orb"] = "Bolt row\ncable\nbolt length\n";
  Browse([this](QDialog& window) {
    OpenFile(window, "found.orb");
    const auto& field = Find<QLineEdit>(window, "viewFindText");
    EXPECT_FALSE(field.isVisible());

    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field.isVisible());
    EXPECT_TRUE(field.hasFocus());
    Type("BOLT");
    Press(Qt::Key_Return);
    EXPECT_EQ(Pane(window).Selection().First(), 0U);
    Press(Qt::Key_F3);
    EXPECT_EQ(Pane(window).Selection().First(), 15U);
    EXPECT_EQ(Pane(window).Selection().Last(), 19U);
    Press(Qt::Key_F3);
    EXPECT_EQ(Pane(window).Selection().First(), 0U);
    EXPECT_EQ(TextOn(window, "viewFindResult"), "Continued from the other end");
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Pane(window).Selection().First(), 15U);

    Press(Qt::Key_Escape);
    EXPECT_FALSE(field.isVisible());
    EXPECT_TRUE(Pane(window).hasFocus());
    EXPECT_TRUE(window.isVisible());
  });
}

TEST_F(BrowserView, SaysThatATextIsNotFound) {
  Browse([this](QDialog& window) {
    OpenFile(window, "panel3.orb");
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("truss");

    Press(Qt::Key_Return);

    EXPECT_EQ(TextOn(window, "viewFindResult"), "Not found");
    EXPECT_TRUE(Pane(window).Selection().IsEmpty());
  });
}

TEST_F(BrowserView, OpensTheBarByF3WithoutATextToFind) {
  Browse([this](QDialog& window) {
    OpenFile(window, "panel3.orb");

    Press(Qt::Key_F3);

    EXPECT_TRUE(Find<QLineEdit>(window, "viewFindText").hasFocus());
  });
}

TEST_F(BrowserView, GivesTheBarItsOwnLetters) {
  Browse([](QDialog& window) {
    ClickItem(window, "File1", "panel3.orb");
    Press(Qt::Key_F, Qt::ControlModifier);
    Find(window, "viewStop").parentWidget()->show();
    std::string letters;
    const auto note = [&letters](const QString& caption) {
      const auto mark = caption.indexOf('&');
      if (mark >= 0) letters += caption[mark + 1].toLower().toLatin1();
    };
    for (const auto* label : window.findChildren<QLabel*>()) note(label->text());
    for (const auto* button : window.findChildren<QAbstractButton*>()) note(button->text());

    std::ranges::sort(letters);
    EXPECT_EQ(letters, "cdefhilnpstuv");
  });
}

TEST_F(BrowserView, ClosesByEscWithoutABar) {
  TextBrowser browser(program);
  Use(browser, [](QDialog& window) {
    Find(window, "RichTextBox1").setFocus();
    Press(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
  });
}

TEST_F(BrowserView, HidesTheBarWithThePane) {
  Browse([this](QDialog& window) {
    OpenFile(window, "panel3.orb");
    Press(Qt::Key_F, Qt::ControlModifier);

    Click(window, "Check1");

    EXPECT_FALSE(Find<QLineEdit>(window, "viewFindText").isVisible());
    Press(Qt::Key_F3);
    EXPECT_FALSE(Find<QLineEdit>(window, "viewFindText").isVisible());
  });
}

// A copy or search of a text that takes several pieces.
class LongWork : public BrowserView {
 protected:
  static constexpr std::size_t Size = std::size_t{10} << 20U;

  LongWork() { platform.files.files["/designs/long.orb"] = std::string(Size - 5, 'x') + "\nbolt"; }

  void CopyAll(QDialog& window) {
    OpenFile(window, "long.orb");
    QGuiApplication::clipboard()->setText("before");
    Find(window, "RichTextBox1").setFocus();
    QTest::keyClick(&Pane(window), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&Pane(window), Qt::Key_C, Qt::ControlModifier);
  }
  // Makes a text of many lines, because a single line is copied at once.
  void MakeLines() {
    std::string& text = platform.files.files["/designs/long.orb"];
    text.clear();
    while (text.size() < Size) text += "a line of the file\n";
  }
  static std::string Copied() { return QGuiApplication::clipboard()->text().toStdString(); }
};

TEST_F(LongWork, CopiesPieceByPieceWithAProgressBar) {
  MakeLines();
  Browse([this](QDialog& window) {
    CopyAll(window);

    const auto& bar = Find<QProgressBar>(window, "viewFindProgress");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_GT(bar.value(), 0);
    EXPECT_LT(bar.value(), 50);
    EXPECT_EQ(Copied(), "before");
    while (bar.isVisible()) Settle();
    EXPECT_TRUE(Copied() == platform.files.files["/designs/long.orb"]);
  });
}

TEST_F(LongWork, StopsByEsc) {
  MakeLines();
  Browse([this](QDialog& window) {
    CopyAll(window);

    QTest::keyClick(&Pane(window), Qt::Key_Escape);
    Settle();

    EXPECT_FALSE(Find<QProgressBar>(window, "viewFindProgress").isVisible());
    EXPECT_EQ(Copied(), "before");
    EXPECT_TRUE(window.isVisible());
  });
}

TEST_F(LongWork, StopsByItsButton) {
  MakeLines();
  Browse([this](QDialog& window) {
    CopyAll(window);

    Find<QPushButton>(window, "viewStop").click();

    EXPECT_FALSE(Find<QProgressBar>(window, "viewFindProgress").isVisible());
    EXPECT_EQ(Copied(), "before");
  });
}

TEST_F(LongWork, EndsWhenItsFileIsReplaced) {
  MakeLines();
  Browse([this](QDialog& window) {
    CopyAll(window);

    OpenFile(window, "panel4.orb");

    EXPECT_FALSE(Find<QProgressBar>(window, "viewFindProgress").isVisible());
    EXPECT_EQ(Copied(), "before");
    EXPECT_TRUE(Pane(window).Selection().IsEmpty());
  });
}

TEST_F(LongWork, FindsADistantText) {
  Browse([this](QDialog& window) {
    OpenFile(window, "long.orb");
    Press(Qt::Key_F, Qt::ControlModifier);
    Type("bolt");
    QTest::keyClick(&Find(window, "viewFindText"), Qt::Key_Return);

    EXPECT_TRUE(Find<QProgressBar>(window, "viewFindProgress").isVisible());
    while (Find<QProgressBar>(window, "viewFindProgress").isVisible()) Settle();
    EXPECT_EQ(Pane(window).Selection().First(), Size - 4);
    EXPECT_EQ(Pane(window).currentIndex().row(), 1);
  });
}

}  // namespace
}  // namespace orby::test
