// The file conversion dialog as its user sees it.
#include <QRadioButton>

#include "dialogs/convert_dialog.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConvertView : public GuiTest {
 protected:
  ConvertView() {
    program.project.CurrentFile = "/designs/panel3.ORB";
    program.project.FileEmpty = false;
  }

  // Converts the open design in a new dialog.
  void Convert() {
    ConvertDialog dialog(program);
    Use(dialog, [](QDialog& window) { Click(window, "Command2"); });
  }
};

TEST_F(ConvertView, OffersOnlyTheOtherUnits) {
  ConvertDialog dialog(program);
  Use(dialog, [](QDialog& window) {
    EXPECT_EQ(window.windowTitle(), "File Conversion Utility");
    EXPECT_EQ(CaptionOn(window, "fraUnits"), "Units");
    EXPECT_EQ(CaptionOn(window, "Option1_0"), "feet, psi, pcf");
    EXPECT_EQ(CaptionOn(window, "Option1_1"), "meters, MPa, kN/m3");
    EXPECT_FALSE(Find(window, "Option1_0").isEnabled());
    EXPECT_TRUE(Find<QRadioButton>(window, "Option1_1").isChecked());
    Press(Qt::Key_Escape);
  });
}

TEST_F(ConvertView, OpensWithTheConvertedProjectSelected) {
  ConvertDialog dialog(program);
  Use(dialog, [](QDialog& window) {
    EXPECT_EQ(CaptionOn(window, "Option2_1"), "Load converted project ");
    EXPECT_TRUE(Find<QRadioButton>(window, "Option2_1").isChecked());
    EXPECT_FALSE(Find<QRadioButton>(window, "Option2_0").isChecked());
    Press(Qt::Key_Escape);
  });
}

TEST_F(ConvertView, ConvertsAndCloses) {
  program.project.WorkParms.Place.DepthofCover = 400;

  Convert();

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Conversion Completed: The conversion form will be closed"));
  EXPECT_EQ(program.project.WorkParms.Units, Metric);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 121.92F);
  EXPECT_EQ(program.project.CurrentFile, "Metric_panel3.ORB");
}

TEST_F(ConvertView, ConvertsBackByTheEnterKey) {
  program.project.WorkParms.Place.DepthofCover = 400;
  Convert();
  ConvertDialog dialog(program);

  Use(dialog, [](QDialog& window) {
    EXPECT_FALSE(Find(window, "Option1_1").isEnabled());
    Press(Qt::Key_Enter);
  });

  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_EQ(program.project.CurrentFile, "English_Metric_panel3.ORB");
}

TEST_F(ConvertView, LeavesTheDesignUnchangedIfItIsCancelled) {
  ConvertDialog dialog(program);

  Use(dialog, [](QDialog& window) { Click(window, "Command1"); });

  EXPECT_THAT(platform.boxes.shown, IsEmpty());
  EXPECT_EQ(program.project.WorkParms.Units, English);
  EXPECT_EQ(program.project.CurrentFile, "/designs/panel3.ORB");
}

}  // namespace
}  // namespace orby::test
