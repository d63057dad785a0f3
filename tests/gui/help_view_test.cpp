// The help window, and F1 in the fields of the program.
#include <QTableWidget>
#include <QTextBlock>
#include <QTextBrowser>

#include "core/help.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/description_dialog.h"
#include "dialogs/estimator_dialog.h"
#include "dialogs/options_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/contrast_bench.h"
#include "gui/help_bench.h"
#include "gui/main_bench.h"
#include "machine/desktop.h"
#include "qt/contrast.h"
#include "qt/help_viewer.h"
#include "qt/help_window.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class HelpOnScreen : public GuiTest {
 protected:
  ~HelpOnScreen() override {
    viewer.Close();
    Settle();
  }

  HelpWindow& Window() { return *viewer.Window(); }
  std::string Place() { return Window().Browser().Place(); }
  std::string PageText() { return FromQt(Window().Browser().toPlainText()); }
  QTabWidget& Panes() { return Find<QTabWidget>(Window(), "helpPanes"); }
  template <class Widget>
  Widget& InPane() {
    return *Panes().currentWidget()->findChild<Widget*>();
  }
  QAction& Button(const QString& caption) {
    for (QAction* action : Window().findChildren<QAction*>()) {
      if (action->text() == caption) return *action;
    }
    throw std::logic_error("no button " + caption.toStdString());
  }

  void OpenContents() {
    ASSERT_TRUE(viewer.ShowContents(CommittedHelp));
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  }

  QtHelpViewer viewer;
};

TEST_F(HelpOnScreen, BeginsWithTheFirstPageAndItsContents) {
  OpenContents();

  EXPECT_EQ(Window().windowTitle(), "Help");
  EXPECT_EQ(Place(), "welcome.html");
  EXPECT_THAT(PageText(), testing::StartsWith("Welcome"));
  auto& tree = InPane<QTreeWidget>();
  EXPECT_EQ(FromQt(tree.currentItem()->text(0)), "Welcome");
  EXPECT_EQ(tree.topLevelItem(0)->text(0), "Getting started");
  EXPECT_TRUE(tree.hasFocus());
}

TEST_F(HelpOnScreen, OpensThePageOfALineOfTheContents) {
  OpenContents();

  Press(Qt::Key_Down);
  Press(Qt::Key_Return);

  EXPECT_EQ(Place(), "workflow.html");
}

// Returns the colour of the first link of the page.
QColor LinkOn(const HelpBrowser& page) {
  for (QTextBlock block = page.document()->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextCharFormat format = piece.fragment().charFormat();
      if (!format.anchorHref().isEmpty()) return format.foreground().color();
    }
  }
  throw std::logic_error("no link");
}

TEST_F(HelpOnScreen, LightensItsLinksOnADarkDesktop) {
  OpenContents();
  const QPalette light = QApplication::palette();
  EXPECT_EQ(LinkOn(Window().Browser()).name(), "#0000ff");

  QApplication::setPalette(QPalette(QColor(0x30, 0x30, 0x30)));
  Settle();
  const QColor onDark = LinkOn(Window().Browser());
  const QColor ground = Window().Browser().palette().color(QPalette::Base);
  QApplication::setPalette(light);
  Settle();

  EXPECT_GT(onDark.lightness(), 180);
  EXPECT_GE(ContrastOf(onDark, ground), 5.9) << "thin strokes come out paler";
  EXPECT_EQ(LinkOn(Window().Browser()).name(), "#0000ff");
  EXPECT_EQ(Place(), "welcome.html");
}

TEST_F(HelpOnScreen, FetchesNothingFromOutsideTheFile) {
  OpenContents();

  for (const char* place : {"https://127.0.0.1/page.html", "file:///etc/hostname", "no-such-page.html", ""}) {
    Window().Browser().setSource(QUrl(place));
    EXPECT_EQ(Place(), "welcome.html") << place;
  }
  EXPECT_FALSE(Window().Browser().loadResource(QTextDocument::HtmlResource, QUrl("file:///etc/hostname")).isValid());
}

TEST_F(HelpOnScreen, GoesBackAndForward) {
  OpenContents();
  EXPECT_FALSE(Button("Back").isEnabled());
  Window().Browser().GoTo("graph.html");

  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Place(), "welcome.html");
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Place(), "graph.html");
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Place(), "welcome.html");
}

TEST_F(HelpOnScreen, ShowsTheSignOfTheSelectedLineAsWellAsItsText) {
  const QPalette usual = QApplication::palette();
  MakeSelectionReadable();
  OpenContents();
  auto& tree = InPane<QTreeWidget>();
  tree.setCurrentItem(tree.topLevelItem(0));
  Settle();

  const QRect line = tree.visualItemRect(tree.topLevelItem(0));
  const QImage signs = tree.viewport()->grab(QRect(0, line.top(), line.left(), line.height())).toImage();
  const QColor ground = tree.palette().color(QPalette::Highlight);
  QApplication::setPalette(usual);
  double best = 1;
  for (int y = 0; y < signs.height(); ++y) {
    for (int x = 0; x < signs.width(); ++x) best = std::max(best, ContrastOf(signs.pixelColor(x, y), ground));
  }

  EXPECT_GE(best, 3);
}

TEST_F(HelpOnScreen, HighlightsThePageInTheContentsHoweverItWasOpened) {
  OpenContents();

  Window().Browser().GoTo("parameters-entries.html");

  EXPECT_EQ(InPane<QTreeWidget>().currentItem()->text(0), "Secondary support of entries");
}

TEST_F(HelpOnScreen, ScalesAPictureToThePage) {
  OpenContents();
  Window().resize(700, 500);

  const auto picture = Window()
                           .Browser()
                           .loadResource(QTextDocument::ImageResource, QUrl("pictures/parameters-general.png"))
                           .value<QImage>();

  EXPECT_FALSE(picture.isNull());
  EXPECT_LE(picture.width(), Window().Browser().viewport()->width() * picture.devicePixelRatio());
}

TEST_F(HelpOnScreen, FindsAKeywordOfTheIndexByItsFirstLetters) {
  ASSERT_TRUE(viewer.ShowIndex(CommittedHelp));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));

  Type("depth of co");

  EXPECT_EQ(InPane<QTreeWidget>().currentItem()->text(0), "depth of cover");
  Press(Qt::Key_Return);
  EXPECT_THAT(Place(), testing::HasSubstr(".html"));
  EXPECT_THAT(PageText(), testing::HasSubstr("Depth of Cover"));
}

TEST_F(HelpOnScreen, SearchesAllPages) {
  OpenContents();
  Press(Qt::Key_S, Qt::AltModifier);
  Panes().currentWidget()->setFocus();

  Type("truss angle");
  Press(Qt::Key_Return);

  auto& list = InPane<QListWidget>();
  ASSERT_GE(list.count(), 3);
  Press(Qt::Key_Return);
  EXPECT_EQ(Place(), FromQt(list.item(0)->data(Qt::UserRole).toString()));
  EXPECT_EQ(Window().Browser().textCursor().selectedText().toLower(), "truss");
}

TEST_F(HelpOnScreen, SaysThatNoPageHasTheWords) {
  OpenContents();
  Panes().setCurrentIndex(2);
  Panes().currentWidget()->setFocus();

  Type("submarine");
  Press(Qt::Key_Return);

  ASSERT_EQ(InPane<QListWidget>().count(), 1);
  EXPECT_EQ(InPane<QListWidget>().item(0)->text(), "No page has all these words.");
}

TEST_F(HelpOnScreen, FindsAWordOnThePage) {
  OpenContents();
  Window().Browser().GoTo("glossary.html");

  Press(Qt::Key_F, Qt::ControlModifier);
  Type("psup");
  Press(Qt::Key_Return);
  const int first = Window().Browser().textCursor().position();
  Press(Qt::Key_F3);

  EXPECT_EQ(Window().Browser().textCursor().selectedText().toLower(), "psup");
  EXPECT_NE(Window().Browser().textCursor().position(), first);
}

TEST_F(HelpOnScreen, ClosesByEscapeAfterTheFindBar) {
  OpenContents();
  Press(Qt::Key_F, Qt::ControlModifier);

  Press(Qt::Key_Escape);
  EXPECT_TRUE(Window().isVisible());
  Press(Qt::Key_Escape);

  EXPECT_EQ(viewer.Window(), nullptr);
}

TEST_F(HelpOnScreen, ZoomsInAndOut) {
  OpenContents();
  const double before = Window().Browser().font().pointSizeF();

  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(Window().Browser().font().pointSizeF(), before);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(Window().Browser().font().pointSizeF(), before);
}

TEST_F(HelpOnScreen, HasAPageAboutItself) {
  OpenContents();

  Press(Qt::Key_F1);

  EXPECT_EQ(Place(), "help-window.html");
}

TEST_F(HelpOnScreen, IsOneWindowForAllTopics) {
  ASSERT_TRUE(viewer.ShowTopic(CommittedHelp, "frmGraph"));
  const HelpWindow* window = viewer.Window();

  ASSERT_TRUE(viewer.ShowTopic(CommittedHelp, "frmPENVParm.txtCMRR"));

  EXPECT_EQ(viewer.Window(), window);
  EXPECT_EQ(Place(), "parameters.html#frmPENVParm.txtCMRR");
}

TEST_F(HelpOnScreen, OpensInTheSizeInWhichItWasClosed) {
  OpenContents();
  Window().resize(640, 480);
  viewer.Close();
  Settle();

  OpenContents();

  EXPECT_EQ(Window().size(), QSize(640, 480));
}

TEST_F(HelpOnScreen, DoesNotOpenAFileThatIsNoHelp) {
  EXPECT_FALSE(viewer.ShowContents(HelpFolder + "/contents.txt"));
  EXPECT_FALSE(viewer.ShowIndex(HelpFolder + "/none.chm"));
  EXPECT_FALSE(viewer.ShowTopic("", "frmGraph"));
  EXPECT_EQ(viewer.Window(), nullptr);
}

TEST_F(HelpOnScreen, NamesItsPartsForScreenReaders) {
  OpenContents();

  for (int pane = 0; pane < Panes().count(); ++pane) {
    Panes().setCurrentIndex(pane);
    for (const auto* widget : Panes().currentWidget()->findChildren<QWidget*>()) {
      const bool isField = widget->focusPolicy() != Qt::NoFocus && !widget->objectName().startsWith("qt_");
      if (isField) {
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
      }
    }
  }
  EXPECT_EQ(Window().Browser().accessibleName(), "Page");
}

// ---- F1 ------------------------------------------------------------------------------------------------------------

class HelpKey : public GuiTest {
 protected:
  HelpKey() {
    platform.files.files["/program/ORBY.CHM"] = "help";
    platform.screen.HelpRequested = [this](const Form& form, const Control* control) {
      OpenHelpTopic(program, form, control);
    };
  }

  // Returns the topics that F1 opens in these fields of the form.
  std::vector<std::string> Topics(Form& form, const std::vector<std::string>& fields) {
    Use(form, [&](QDialog& window) {
      for (const std::string& field : fields) {
        Find(window, field).setFocus(Qt::TabFocusReason);
        Press(Qt::Key_F1);
      }
      window.close();
    });
    std::vector<std::string> topics;
    for (const std::string& shown : platform.help.shown) topics.push_back(shown.substr(shown.rfind(' ') + 1));
    return topics;
  }
};

TEST_F(HelpKey, OpensTheTopicOfTheFieldInUse) {
  ParametersDialog dialog(program);

  EXPECT_THAT(Topics(dialog, {"txtDepthofCover", "chkCMRRManual", "cmdCMRR", "txtUnitWeight", "Command2"}),
              ElementsAre("frmPENVParm.txtDepthofCover", "frmPENVParm.chkCMRRManual", "frmPENVParm.cmdCMRR",
                          "frmPENVParm.txtUnitWeight", "frmPENVParm.Command2"));
}

TEST_F(HelpKey, OpensTheTopicOfATabSet) {
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    Find<QTabWidget>(window, "SSTab1").tabBar()->setFocus(Qt::TabFocusReason);
    Press(Qt::Key_F1);
    window.close();
  });

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmPENVParm.SSTab1"));
}

TEST_F(HelpKey, OpensTheTopicOfTheArrayForItsMember) {
  EstimatorDialog dialog(program);

  EXPECT_THAT(Topics(dialog, {"optLocation_3", "VSFlexGrid1"}),
              ElementsAre("frmCMRREst.optLocation", "frmCMRREst.VSFlexGrid1"));
}

TEST_F(HelpKey, OpensTheTopicOfAFieldOfSeveralLines) {
  DescriptionDialog dialog(program);

  EXPECT_THAT(Topics(dialog, {"Text1", "Text2"}), ElementsAre("frmTULKDesc.Text1", "frmTULKDesc.Text2"));
}

TEST_F(HelpKey, OpensTheTopicOfAListWithATextField) {
  program.session.options.ShowInputScreenOnLoad = 0;
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    Find<QTabWidget>(window, "SSTab1").setCurrentIndex(2);
    Settle();
    Find(window, "cmbCableDiamSecEntry").setFocus(Qt::TabFocusReason);
    Press(Qt::Key_F1);
    window.close();
  });

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmPENVParm.cmbCableDiamSecEntry"));
}

TEST_F(HelpKey, OpensTheTopicOfTheFieldOverATable) {
  constexpr Integer SupportsPage = 3;
  program.windows.OptionsTab = SupportsPage;
  OptionsDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    auto& table = Find<QTableWidget>(window, "VSFlexGridStand");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                      table.visualItemRect(table.item(2, 1)).center());
    Settle();
    EXPECT_EQ(FocusName(), "txtStand");
    Press(Qt::Key_F1);
    window.close();
  });

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmTULKOpts.txtStand"));
}

TEST_F(HelpKey, OpensNothingTogetherWithAModifierKey) {
  CostDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    Press(Qt::Key_F1, Qt::ShiftModifier);
    Press(Qt::Key_F1, Qt::ControlModifier);
    window.close();
  });

  EXPECT_THAT(platform.help.shown, IsEmpty());
}

TEST_F(HelpKey, SaysThatTheHelpIsMissing) {
  platform.files.files.clear();
  CostDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    Press(Qt::Key_F1);
    window.close();
  });

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Help file (/program/ORBY.CHM) not available"));
}

// ---- beside the windows of the program -----------------------------------------------------------------------------

class HelpBesideWindows : public MainViewTest {
 protected:
  HelpBesideWindows() : MainViewTest({.help = &viewer}) {
    platform.files.files["/program/ORBY.CHM"] = "help";
    platform.screen.HelpRequested = [this](const Form& form, const Control* control) {
      viewer.ShowTopic(CommittedHelp, std::string(form.Name()) + "." +
                                          (control == nullptr ? std::string() : std::string(control->Name())));
    };
  }
  ~HelpBesideWindows() override {
    // The main window closes the help.
    model.Close();
    Settle();
  }

  // Opens another page by the mouse and returns true if the window took the click.
  bool TakesClicks() {
    auto& tree = *Find<QTabWidget>(*viewer.Window(), "helpPanes").widget(0)->findChild<QTreeWidget*>();
    auto* other = tree.topLevelItem(0)->child(viewer.Window()->Browser().Place() == "welcome.html" ? 1 : 0);
    tree.scrollToItem(other);
    const std::string before = viewer.Window()->Browser().Place();
    QTest::mouseClick(tree.viewport()->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      tree.viewport()->mapTo(tree.window(), tree.visualItemRect(other).center()));
    Settle();
    return viewer.Window()->Browser().Place() != before;
  }

  QtHelpViewer viewer;
};

TEST_F(HelpBesideWindows, IsOwnedByTheMainWindow) {
  viewer.ShowContents(CommittedHelp);
  Settle();

  EXPECT_EQ(viewer.Window()->parentWidget(), &View());
  EXPECT_TRUE(TakesClicks());
}

TEST_F(HelpBesideWindows, CanBeUsedWhileADialogIsOpen) {
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "700");
    Press(Qt::Key_F1);
    EXPECT_EQ(viewer.Window()->parentWidget(), &window);
    EXPECT_EQ(viewer.Window()->Browser().Place(), "parameters.html#frmPENVParm.txtDepthofCover");
    EXPECT_TRUE(TakesClicks());
    window.close();
  });
}

TEST_F(HelpBesideWindows, OutlivesTheDialogAndMovesToTheWindowBelow) {
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    TypeInto(window, "txtDepthofCover", "700");
    Press(Qt::Key_F1);
    window.close();
  });

  ASSERT_NE(viewer.Window(), nullptr);
  EXPECT_TRUE(viewer.Window()->isVisible());
  EXPECT_EQ(viewer.Window()->parentWidget(), &View());
  EXPECT_TRUE(TakesClicks());
}

TEST_F(HelpBesideWindows, DoesNotCoverTheFieldThatItExplains) {
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    for (const char* name : {"txtDepthofCover", "txtUnitWeight", "txtEntryWidth"}) {
      auto& field = Find(window, name);
      field.setFocus();
      Press(Qt::Key_F1);
      EXPECT_FALSE(viewer.Window()->frameGeometry().intersects(QRect(field.mapToGlobal(QPoint()), field.size())))
          << name;
      window.activateWindow();
      Settle();
    }
    window.close();
  });
}

TEST_F(HelpBesideWindows, StaysWhereTheUserPutsItAsLongAsTheFieldIsVisible) {
  ParametersDialog dialog(program);

  Use(dialog, [&](QDialog& window) {
    auto& field = Find(window, "txtDepthofCover");
    field.setFocus();
    Press(Qt::Key_F1);
    viewer.Window()->setGeometry(
        QRect(field.mapToGlobal(QPoint(0, 2 * field.height())), viewer.Window()->minimumSizeHint()));
    const QRect place = viewer.Window()->geometry();
    window.activateWindow();
    Settle();
    field.setFocus();
    Press(Qt::Key_F1);
    EXPECT_EQ(viewer.Window()->geometry(), place);
    window.close();
  });
}

// Window managers keep a dialog above its owner, so it would cover the next dialog for good.
TEST_F(HelpBesideWindows, IsNoDialogOfTheWindowThatItExplains) {
  viewer.ShowContents(CommittedHelp);

  EXPECT_EQ(viewer.Window()->windowType(), Qt::Window);
}

TEST_F(HelpBesideWindows, PrintsAPage) {
  viewer.ShowContents(CommittedHelp);
  Settle();
  QString title;
  scripts.Add([&](QDialog& window) {
    title = window.windowTitle();
    Settle();
    window.reject();
  });

  Press(Qt::Key_P, Qt::ControlModifier);

  EXPECT_EQ(title, PrintsToFiles() ? "Print" : "Print to File");
  EXPECT_EQ(viewer.Window()->parentWidget(), &View());
  EXPECT_TRUE(TakesClicks());
}

TEST_F(HelpBesideWindows, PrintsAPageWhileADialogIsOpen) {
  ParametersDialog dialog(program);
  bool asked = false;

  Use(dialog, [&](QDialog& window) {
    Find(window, "txtDepthofCover").setFocus();
    Press(Qt::Key_F1);
    scripts.Add([&](QDialog& print) {
      asked = true;
      Settle();
      print.reject();
    });
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(viewer.Window()->parentWidget(), &window);
    window.close();
  });

  EXPECT_TRUE(asked);
}

TEST_F(HelpBesideWindows, FollowsADialogThatOpensAfterIt) {
  viewer.ShowContents(CommittedHelp);
  Settle();
  DescriptionDialog below(program);
  EstimatorDialog above(program);

  Use(below, [&](QDialog& first) {
    EXPECT_EQ(viewer.Window()->parentWidget(), &first);
    Use(above, [&](QDialog& second) {
      EXPECT_EQ(viewer.Window()->parentWidget(), &second);
      EXPECT_TRUE(TakesClicks());
      second.close();
    });
    EXPECT_EQ(viewer.Window()->parentWidget(), &first);
    EXPECT_TRUE(TakesClicks());
    first.close();
  });

  EXPECT_EQ(viewer.Window()->parentWidget(), &View());
  EXPECT_EQ(viewer.Window()->Browser().backwardHistoryCount(), 2);
}

TEST_F(HelpBesideWindows, CanBeUsedAfterItsOwnDialog) {
  viewer.ShowContents(CommittedHelp);
  Settle();
  QDialog print(viewer.Window());
  scripts.Add([&](QDialog& window) {
    EXPECT_EQ(viewer.Window()->parentWidget(), &View());
    EXPECT_EQ(window.parentWidget(), viewer.Window());
    window.close();
  });

  print.exec();

  EXPECT_TRUE(TakesClicks());
}

TEST_F(HelpBesideWindows, StaysOpenWhileTheMainWindowIsHidden) {
  viewer.ShowContents(CommittedHelp);
  Settle();

  platform.screen.ShowMainWindow(false);
  Settle();

  EXPECT_TRUE(viewer.Window()->isVisible());
  EXPECT_TRUE(TakesClicks());
}

TEST_F(HelpBesideWindows, ComesToTheFrontWithTheNewTopic) {
  viewer.ShowContents(CommittedHelp);
  View().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&View()));

  viewer.ShowTopic(CommittedHelp, "frmGraph");

  EXPECT_TRUE(QTest::qWaitForWindowActive(viewer.Window()));
  EXPECT_EQ(viewer.Window()->Browser().Place(), "graph.html#frmGraph");
}

}  // namespace
}  // namespace orby::test
