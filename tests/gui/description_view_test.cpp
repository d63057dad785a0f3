// The description dialog as its user sees it.
#include "dialogs/description_dialog.h"

#include <QAbstractButton>
#include <QApplication>

#include "gui/gui_bench.h"

namespace orby::test {
namespace {

class DescriptionView : public GuiTest {
 protected:
  DescriptionDialog dialog{program};
};

bool IsOn(const QWidget& window, std::string_view name) { return Find<QAbstractButton>(window, name).isChecked(); }

TEST_F(DescriptionView, AcceptsATypedTitleOnEnter) {
  Use(dialog, [](QDialog& window) {
    PressLetterOf(window, "Text1");
    Type("Panel 3, north mains");
    Press(Qt::Key_Enter);
    EXPECT_FALSE(window.isVisible());
  });

  EXPECT_EQ(program.project.ProjectTitle, "Panel 3, north mains");
}

TEST_F(DescriptionView, OpensWithTheFocusOnTheTitle) {
  Use(dialog, [](QDialog&) {
    EXPECT_EQ(FocusName(), "Text1");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "Text2");
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), "Option1_0");
    Press(Qt::Key_Escape);
  });
}

TEST_F(DescriptionView, AcceptsADescriptionOfSeveralLines) {
  Use(dialog, [](QDialog& window) {
    Find(window, "Text2").setFocus(Qt::TabFocusReason);
    Type("Headgate");
    Press(Qt::Key_Return);
    QTest::keyClicks(QApplication::focusWidget(), "second cut");
    EXPECT_TRUE(window.isVisible());
    PressLetterOf(window, "Text1");
    Press(Qt::Key_Return);
  });

  EXPECT_EQ(program.project.ProjectDescription, "Headgate\r\nsecond cut");
}

TEST_F(DescriptionView, ShowsADescriptionOfSeveralLines) {
  program.project.ProjectDescription = "Headgate\r\nsecond cut";

  Use(dialog, [](QDialog& window) {
    EXPECT_EQ(TextOn(window, "Text2"), "Headgate\nsecond cut");
    Press(Qt::Key_Escape);
  });

  EXPECT_EQ(program.project.ProjectDescription, "Headgate\r\nsecond cut");
}

TEST_F(DescriptionView, DiscardsEverythingOnEscape) {
  Use(dialog, [](QDialog& window) {
    Type("Panel 4");
    PressLetterOf(window, "Option1_1");
    Press(Qt::Key_Escape);
  });

  EXPECT_EQ(program.project.ProjectTitle, "");
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_TRUE(program.project.FileSaved);
}

TEST_F(DescriptionView, LocksTheUnitsAndStrengthsOfAnOpenedFile) {
  program.project.UnitsLocked = true;

  Use(dialog, [](QDialog& window) {
    EXPECT_TRUE(Find(window, "Option1_0").isEnabled());
    EXPECT_FALSE(Find(window, "Option1_1").isEnabled());
    EXPECT_FALSE(Find(window, "Option2_1").isEnabled());
    Click(window, "Option1_1");
    EXPECT_TRUE(IsOn(window, "Option1_0"));
    EXPECT_FALSE(IsOn(window, "Option1_1"));
    Press(Qt::Key_Escape);
  });
}

TEST_F(DescriptionView, OffersTheAustralianTableOnlyInMetres) {
  Use(dialog, [](QDialog& window) {
    EXPECT_FALSE(Find(window, "Check1").isEnabled());
    PressLetterOf(window, "Option1_1");
    EXPECT_TRUE(IsOn(window, "Option1_1"));
    EXPECT_FALSE(IsOn(window, "Option1_0"));
    EXPECT_TRUE(Find(window, "Check1").isEnabled());
    PressLetterOf(window, "Check1");
    EXPECT_TRUE(IsOn(window, "Check1"));

    PressLetterOf(window, "Option1_0");
    EXPECT_FALSE(IsOn(window, "Check1"));
    EXPECT_FALSE(Find(window, "Check1").isEnabled());
    Press(Qt::Key_Escape);
  });
}

TEST_F(DescriptionView, ChangesEachOfItsTwoChoicesByItself) {
  Use(dialog, [](QDialog& window) {
    PressLetterOf(window, "Option2_1");
    EXPECT_TRUE(IsOn(window, "Option2_1"));
    EXPECT_TRUE(IsOn(window, "Option1_0"));
    Press(Qt::Key_Enter);
  });

  EXPECT_EQ(program.project.WorkParms.Basis, StrengthBasis::Ultimate);
  EXPECT_EQ(program.project.WorkParms.Units, English);
}

TEST_F(DescriptionView, OpensTheParametersOnNextForm) {
  Use(dialog, [](QDialog& window) {
    Type("Panel 5");
    PressLetterOf(window, "Command4");
    EXPECT_FALSE(window.isVisible());
  });

  EXPECT_TRUE(dialog.OpensParameters);
  EXPECT_EQ(program.project.ProjectTitle, "Panel 5");
}

}  // namespace
}  // namespace orby::test
