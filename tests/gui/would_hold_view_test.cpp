// The window "What Would Hold" on the screen, worked by keys.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "dialogs/parameters_dialog.h"
#include "gui/main_bench.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

class StudyOnView : public GuiTest {
 protected:
  StudyOnView() {
    Site& place = program.project.WorkParms.Place;
    place.CMRR = 45;
    PrimarySupport& bolts = program.project.WorkParms.Primary;
    bolts.TableRow = 5;  // #6 rebar - grade 60
    bolts.RowSpacing = 9;
    bolts.Length = 8;
    program.project.WorkParms.Entries.Analysed = 0;
    program.project.WorkParms.Intersections.Analysed = 0;
  }
  // Opens the study by the letter of its button.
  void Study(const QWidget& parameters, ModalScripts::Script script) {
    scripts.Add(std::move(script));
    PressLetterOf(parameters, "cmdWouldHold");
    Settle();
  }
  static std::string Cell(const QWidget& window, std::string_view grid, int row, int column) {
    const QTableWidgetItem* item = Find<QTableWidget>(window, grid).item(row, column);
    return item == nullptr ? std::string() : item->text().toStdString();
  }

  ParametersDialog dialog{program};
};

TEST_F(StudyOnView, AppliesTheLeastChangeByKeys) {
  Work(dialog, [this](QDialog& parameters) {
    std::string wanted;
    Study(parameters, [&](QDialog& window) {
      EXPECT_THAT(TextOn(window, "lblPresent"), StartsWith("As it is: Short: Actual PSUP "));
      EXPECT_EQ(Cell(window, "grdChanges", 0, 0), "Row spacing");
      EXPECT_EQ(Cell(window, "grdChanges", 0, 1), "9 ft");
      wanted = Cell(window, "grdChanges", 0, 2);
      Find(window, "grdChanges").setFocus();
      Press(Qt::Key_Return);
    });

    EXPECT_EQ(TextOn(parameters, "txtRowSpacingPrimary") + " ft", wanted);
    EXPECT_EQ(FocusName(), "lstVerdicts");
    EXPECT_THAT(TextOn(parameters, "lblVerdicts"), testing::Not(HasSubstr("short")));

    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(TextOn(parameters, "txtRowSpacingPrimary"), "9");
  });
}

TEST_F(StudyOnView, BeginsWithTheJudgementUnderTheArrowKeys) {
  program.project.WorkParms.Entries.Analysed = 1;
  program.project.WorkParms.Entries.Standing.Use = 1;
  Work(dialog, [this](QDialog& parameters) {
    auto& list = Find<QListWidget>(parameters, "lstVerdicts");
    list.setFocus();
    Press(Qt::Key_Home);
    for (int i = 0; i < list.count() && !list.currentItem()->text().contains("Standing supports"); ++i) {
      Press(Qt::Key_Down);
    }
    Study(parameters, [](QDialog& window) {
      EXPECT_EQ(TextOn(window, "cmbSupport"), "Entries: standing supports");
      Press(Qt::Key_Escape);
    });
  });
}

TEST_F(StudyOnView, FindsPatternsWithAPriceTypedIntoTheTable) {
  Work(dialog, [this](QDialog& parameters) {
    std::string bolt;
    Study(parameters, [&](QDialog& window) {
      PressLetterOfTab(window, "tabStudy", 2);
      Find(window, "txtBoltPrice").setFocus();
      for (int row = 0; row < 5; ++row) Press(Qt::Key_Down);
      Press(Qt::Key_Tab);
      Press(Qt::Key_Tab);
      Type("8.5");
      PressLetterOfTab(window, "tabStudy", 1);
      TypeInto(window, "txtLengthFrom", "6");
      TypeInto(window, "txtLengthTo", "6");
      TypeInto(window, "txtSpacingFrom", "2");
      TypeInto(window, "txtSpacingTo", "4");
      PressLetterOf(window, "cmdSearch");
      Settle();
      EXPECT_FALSE(Find<QPushButton>(window, "cmdStop").isEnabled()) << "a short search ends at once";
      EXPECT_EQ(Find<QProgressBar>(window, "prgSearch").value(), 100);
      EXPECT_THAT(TextOn(window, "lblFound"), HasSubstr("patterns hold"));
      Find(window, "grdPatterns").setFocus();
      bolt = Cell(window, "grdPatterns", 0, 2);
      Press(Qt::Key_Return);
    });

    EXPECT_EQ(TextOn(parameters, "txtBoltLengthPrimary"), "6");
    EXPECT_EQ(bolt, "#6 rebar - grade 60");
    EXPECT_EQ(FocusName(), "lstVerdicts");
  });
  EXPECT_THAT(program.session.prices[0].Prices,
              testing::ElementsAre(Price{PricedSupport::Bolt, "#6 rebar - grade 60", 6, 8.5F}));
}

TEST_F(StudyOnView, LeavesTheFieldsAloneOnEscape) {
  Work(dialog, [this](QDialog& parameters) {
    Study(parameters, [](QDialog& window) {
      Find(window, "grdChanges").setFocus();
      Press(Qt::Key_Escape);
    });

    EXPECT_EQ(TextOn(parameters, "txtRowSpacingPrimary"), "9");
  });
}

class StudyMenu : public MainViewTest {};

TEST_F(StudyMenu, OpensTheStudyOverTheParameters) {
  scripts.Add([this](QDialog& parameters) {
    EXPECT_EQ(parameters.objectName(), "frmPENVParm");
    scripts.Add([](QDialog& window) {
      EXPECT_EQ(window.objectName(), "frmWouldHold");
      EXPECT_NE(WindowOnView("frmPENVParm"), nullptr);
      Press(Qt::Key_Escape);
    });
    platform.clock.Pass();
    EXPECT_EQ(scripts.Left(), 0U);
    parameters.close();
  });

  Press(Qt::Key_S, Qt::AltModifier);
  PressInMenu(Qt::Key_W);

  EXPECT_TRUE(View().isVisible());
}

}  // namespace
}  // namespace orby::test
