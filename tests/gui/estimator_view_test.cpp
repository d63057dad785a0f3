// The roof rating estimator as its user sees it, alone and opened from the parameters.
#include <QAbstractButton>
#include <QTableWidget>

#include "dialogs/estimator_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

class EstimatorView : public GuiTest {
 protected:
  EstimatorDialog dialog{program};
};

// Returns the names of the visible region pictures.
std::vector<std::string> PicturesOn(const QWidget& window) {
  std::vector<std::string> names;
  for (int region = 0; region < 6; ++region) {
    const std::string name = "Picture1_" + std::to_string(region);
    if (Find(window, name).isVisible()) names.push_back(name);
  }
  return names;
}

TEST_F(EstimatorView, ShowsThePictureAndTheRocksOfTheChosenCoalfield) {
  Use(dialog, [](QDialog& window) {
    const auto& rocks = Find<QTableWidget>(window, "VSFlexGrid1");
    EXPECT_THAT(PicturesOn(window), testing::ElementsAre("Picture1_0"));
    EXPECT_EQ(rocks.item(0, 1)->text(), "Claystone");
    const QRect place = rocks.geometry();

    PressLetterOf(window, "optLocation_1");

    EXPECT_THAT(PicturesOn(window), testing::ElementsAre("Picture1_1"));
    EXPECT_EQ(rocks.item(0, 1)->text(), "Thick Claystone");
    EXPECT_EQ(rocks.rowCount(), 8);
    EXPECT_EQ(rocks.geometry(), place);
    Press(Qt::Key_Escape);
  });
}

TEST_F(EstimatorView, ChoosesCoalfieldsByTheArrowKeys) {
  Use(dialog, [this](QDialog& window) {
    EXPECT_EQ(FocusName(), "optLocation_0");
    Press(Qt::Key_Down);
    EXPECT_TRUE(Find<QAbstractButton>(window, "optLocation_1").isChecked());
    EXPECT_EQ(GetArrayIndex(dialog.optLocation), 1);
    Press(Qt::Key_Escape);
  });
}

TEST_F(EstimatorView, ShowsTheRatingOfTheClickedRock) {
  Use(dialog, [](QDialog& window) {
    auto& rocks = Find<QTableWidget>(window, "VSFlexGrid1");
    QTest::mouseClick(rocks.viewport(), Qt::LeftButton, Qt::NoModifier,
                      rocks.visualItemRect(rocks.item(4, 1)).center());
    Settle();
    EXPECT_EQ(TextOn(window, "txtCMRR"), "55");
    Press(Qt::Key_Escape);
  });
}

TEST_F(EstimatorView, RefreshesTheRatingForAnotherCoalfieldAndThenForTheClickedRock) {
  Use(dialog, [](QDialog& window) {
    PressLetterOf(window, "optLocation_1");
    auto& rocks = Find<QTableWidget>(window, "VSFlexGrid1");
    EXPECT_EQ(rocks.currentRow(), 6) << "the region has no claystone";
    EXPECT_EQ(TextOn(window, "txtCMRR"), "45");

    QTest::mouseClick(rocks.viewport(), Qt::LeftButton, Qt::NoModifier,
                      rocks.visualItemRect(rocks.item(0, 1)).center());
    Settle();

    EXPECT_EQ(TextOn(window, "txtCMRR"), "40");
    Press(Qt::Key_Escape);
  });
}

class EstimatorRoundTrip : public GuiTest {
 protected:
  ParametersDialog dialog{program};
};

TEST_F(EstimatorRoundTrip, ReturnsTheChosenRatingByTheKeyboard) {
  Use(dialog, [this](QDialog& window) {
    scripts.Add([](QDialog& estimator) {
      PressLetterOf(estimator, "optLocation_2");
      Press(Qt::Key_Tab);
      EXPECT_EQ(FocusName(), "VSFlexGrid1");
      Press(Qt::Key_Up);
      EXPECT_EQ(TextOn(estimator, "txtCMRR"), "65");
      Press(Qt::Key_Enter);
    });

    PressLetterOf(window, "cmdCMRR");

    EXPECT_EQ(TextOn(window, "txtCMRR"), "65");
    EXPECT_EQ(TextOn(window, "txtSugSumDiagonals"), "70.8");
    EXPECT_FALSE(Find(window, "txtCMRR").isEnabled());
    Press(Qt::Key_Enter);
  });

  EXPECT_EQ(program.project.WorkParms.Place.CMRR, 65);
}

TEST_F(EstimatorRoundTrip, EnablesTypingTheRatingAfterTheManualRow) {
  Use(dialog, [this](QDialog& window) {
    scripts.Add([](QDialog& estimator) {
      Find(estimator, "VSFlexGrid1").setFocus(Qt::TabFocusReason);
      Press(Qt::Key_End, Qt::ControlModifier);
      Press(Qt::Key_Enter);
    });

    PressLetterOf(window, "cmdCMRR");

    EXPECT_TRUE(Find<QAbstractButton>(window, "chkCMRRManual").isChecked());
    EXPECT_TRUE(Find(window, "txtCMRR").isEnabled());
    EXPECT_FALSE(Find(window, "cmdCMRR").isEnabled());
    Press(Qt::Key_Escape);
  });
}

TEST_F(EstimatorRoundTrip, KeepsTheRatingOnEscape) {
  Use(dialog, [this](QDialog& window) {
    scripts.Add([](QDialog& estimator) {
      PressLetterOf(estimator, "optLocation_2");
      Press(Qt::Key_Escape);
    });

    PressLetterOf(window, "cmdCMRR");

    EXPECT_EQ(TextOn(window, "txtCMRR"), "45");
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace orby::test
