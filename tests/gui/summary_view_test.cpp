// The summary beside the history, as the keyboard and the eye find it.
#include <QImage>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <set>

#include "gui/main_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::Eq;
using testing::HasSubstr;
using testing::IsEmpty;

class SummaryOnView : public MainViewTest {
 protected:
  explicit SummaryOnView(const std::function<void(GuiPlatform&)>& prepare = nullptr) : MainViewTest({}, prepare) {
    platform.screen.HelpRequested = [this](const Form& form, const Control* control) {
      topics.push_back(std::string(form.Name()) + "." + std::string(control == nullptr ? "" : control->Name()));
    };
  }

  QWidget& Pane() { return Find(View(), "frmSummary"); }
  // Presses Tab until the control has the focus.
  void TabTo(std::string_view name) {
    for (int i = 0; i < 40; ++i) {
      const QWidget* focus = QApplication::focusWidget();
      if (focus != nullptr && focus->objectName().toStdString() == name) return;
      Press(Qt::Key_Tab);
    }
    ADD_FAILURE() << "the tab key does not reach " << name;
  }
  std::vector<std::string> PartsOnView() {
    std::vector<std::string> names;
    for (const Control* control : model.Summary().Controls()) {
      if (Find(View(), control->Name()).isVisible()) names.emplace_back(control->Name());
    }
    return names;
  }
  static int ColoursIn(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
    }
    return static_cast<int>(colours.size());
  }

  std::vector<std::string> topics;
};

TEST_F(SummaryOnView, StandsBesideTheHistoryAfterTheWindowIsPainted) {
  const QRect history(Find(View(), "txtMain").mapTo(&View(), QPoint()), Find(View(), "txtMain").size());
  const QRect summary(Pane().mapTo(&View(), QPoint()), Pane().size());

  EXPECT_TRUE(Pane().isVisible());
  EXPECT_LT(summary.right(), history.left());
  EXPECT_GT(summary.width(), history.width());
}

TEST_F(SummaryOnView, OffersABeginningWithoutAProject) {
  EXPECT_THAT(PartsOnView(), ElementsAre("lblBegin", "cmdNew", "cmdOpen"));
}

TEST_F(SummaryOnView, ShowsAnOpenProjectWithItsDrawing) {
  OpenFile(Example("weak-roof.ORB"));

  EXPECT_THAT(PartsOnView(), ElementsAre("lblProject", "lblFile", "lblUnits", "cmdParameters", "cmdResults", "cmdStudy",
                                         "picDesign", "lblVerdicts", "lstVerdicts"));
  EXPECT_EQ(TextOn(View(), "lblProject"), "Cinder Hollow, fault zone");
  EXPECT_GT(ColoursIn(Find(View(), "picDesign")), 20);
}

TEST_F(SummaryOnView, ShowsTheMarkOfEachJudgement) {
  OpenFile(Example("weak-roof.ORB"));
  const auto& list = Find<QListWidget>(View(), "lstVerdicts");

  ASSERT_GT(list.count(), 0);
  EXPECT_THAT(list.item(0)->text().toStdString(), testing::StartsWith("Short: "));
  for (int row = 0; row < list.count(); ++row) EXPECT_FALSE(list.item(row)->icon().isNull()) << row;
}

TEST_F(SummaryOnView, ShowsATitleLetterByLetter) {
  OpenFile(Example("weak-roof.ORB"));
  EditDescription("Panel <b>7</b> & crosscut");

  const auto& title = Find<QLabel>(View(), "lblProject");
  EXPECT_EQ(title.text(), "Panel <b>7</b> & crosscut");
  EXPECT_EQ(title.textFormat(), Qt::PlainText);
}

TEST_F(SummaryOnView, OpensTheParametersByTheKeyboard) {
  OpenFile(Example("weak-roof.ORB"));
  std::string opened;
  scripts.Add([&](QDialog& window) {
    opened = window.objectName().toStdString();
    window.close();
  });

  TabTo("cmdParameters");
  Press(Qt::Key_Space);

  EXPECT_EQ(opened, "frmPENVParm");
}

TEST_F(SummaryOnView, OpensTheResultsByTheKeyboard) {
  OpenFile(Example("weak-roof.ORB"));
  std::string caption;
  scripts.Add([&](QDialog& window) {
    caption = window.windowTitle().toStdString();
    window.close();
  });

  TabTo("cmdResults");
  Press(Qt::Key_Space);

  EXPECT_EQ(caption, "Calculation Results - weak-roof.ORB");
  EXPECT_TRUE(View().isVisible());
}

TEST_F(SummaryOnView, OpensTheParametersFromAJudgement) {
  OpenFile(Example("weak-roof.ORB"));
  bool isOpened = false;
  scripts.Add([&](QDialog& window) {
    isOpened = true;
    window.close();
  });

  TabTo("lstVerdicts");
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);

  EXPECT_TRUE(isOpened);
}

TEST_F(SummaryOnView, OpensARecentFileByTheEnterKey) {
  const std::string path = Example("weak-roof.ORB");
  OpenFile(path);
  OpenFile(Example("belt-entry-trusses.ORB"));
  Press(Qt::Key_N, Qt::ControlModifier);

  Press(Qt::Key_C, Qt::AltModifier);
  Press(Qt::Key_Home);
  Press(Qt::Key_Down);
  Press(Qt::Key_Return);

  EXPECT_THAT(program.project.CurrentFile, Eq(path));
}

TEST_F(SummaryOnView, HasATopicForEachPart) {
  OpenFile(Example("weak-roof.ORB"));
  for (const char* part : {"cmdParameters", "cmdResults", "cmdStudy", "picDesign", "lstVerdicts"}) {
    TabTo(part);
    Press(Qt::Key_F1);
  }

  EXPECT_THAT(topics, ElementsAre("frmSummary.cmdParameters", "frmSummary.cmdResults", "frmSummary.cmdStudy",
                                  "frmSummary.picDesign", "frmSummary.lstVerdicts"));
  EXPECT_THAT(platform.help.shown, IsEmpty());
}

TEST_F(SummaryOnView, SharesNoLetterWithTheMenus) {
  std::set<QString> ofMenus;
  for (const QAction* menu : View().menuBar()->actions())
    ofMenus.insert(QKeySequence::mnemonic(menu->text()).toString());

  std::vector<std::string> both;
  const auto note = [&](const QString& caption) {
    if (ofMenus.contains(QKeySequence::mnemonic(caption).toString())) both.push_back(caption.toStdString());
  };
  for (const auto* button : Pane().findChildren<QPushButton*>()) note(button->text());
  for (const auto* label : Pane().findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) note(label->text());
  }

  EXPECT_THAT(both, IsEmpty());
}

TEST_F(SummaryOnView, FitsTheSmallestWindow) {
  OpenFile(Example("weak-roof.ORB"));
  View().resize(View().minimumSizeHint());
  Settle();

  for (const char* part :
       {"lblProject", "lblFile", "lblUnits", "cmdParameters", "cmdResults", "cmdStudy", "lblVerdicts", "lstVerdicts"}) {
    const auto& widget = Find(View(), part);
    EXPECT_TRUE(Pane().rect().contains(widget.geometry())) << part;
    EXPECT_GE(widget.height(), widget.fontMetrics().height()) << part;
  }
}

void AddExamples(GuiPlatform& platform) {
  for (const char* name : {"weak-roof.ORB", "belt-entry-trusses.ORB"}) {
    platform.files.files["/program/examples/" + std::string(name)] = BytesOf(EXAMPLES_DIR "/" + std::string(name));
  }
}

class SummaryWithExamples : public SummaryOnView {
 protected:
  SummaryWithExamples() : SummaryOnView(AddExamples) {}

  QListWidget& List() { return Find<QListWidget>(View(), "lstExamples"); }
};

TEST_F(SummaryWithExamples, ShowsEachWithALineAndADrawing) {
  ASSERT_EQ(List().count(), 2);
  EXPECT_EQ(List().item(1)->text(), "weak-roof: Cinder Hollow, fault zone");
  for (int row = 0; row < List().count(); ++row) {
    EXPECT_EQ(List().item(row)->icon().pixmap(List().iconSize()).size(), List().iconSize());
    EXPECT_GE(List().visualItemRect(List().item(row)).height(), List().iconSize().height());
  }
}

TEST_F(SummaryWithExamples, OpensOneByItsLetterAndTheEnterKey) {
  Press(Qt::Key_E, Qt::AltModifier);
  Press(Qt::Key_End);
  Press(Qt::Key_Return);

  EXPECT_EQ(program.project.ProjectTitle, "Cinder Hollow, fault zone");
  EXPECT_THAT(PartsOnView(), testing::Contains("cmdParameters"));
}

TEST_F(SummaryWithExamples, HasATopicForEachPart) {
  for (const char* part : {"cmdNew", "cmdOpen", "lstExamples"}) {
    TabTo(part);
    Press(Qt::Key_F1);
  }

  EXPECT_THAT(topics, ElementsAre("frmSummary.cmdNew", "frmSummary.cmdOpen", "frmSummary.lstExamples"));
}

TEST_F(SummaryWithExamples, GivesTheRoomOfMissingRecentFilesToTheExamples) {
  EXPECT_FALSE(Find(View(), "lstRecent").isVisible());
  const int above = List().geometry().top() - Find(View(), "cmdOpen").geometry().bottom();

  EXPECT_LT(above, 3 * View().fontMetrics().height());
}

}  // namespace
}  // namespace orby::test
