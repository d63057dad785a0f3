// The documents that come with the program, as the user sees them.
#include "dialogs/resource_files.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

using ResourceView = GuiTest;

TEST_F(ResourceView, OpenOneByOneAndLeaveTheListOpen) {
  platform.files.files["/program/resources/bolt-design.pdf"] = "%PDF";
  platform.files.files["/program/resources/reading-curves.pdf"] = "%PDF";
  ResourceFiles resources(program);

  Use(resources, [](QDialog& window) {
    EXPECT_EQ(CaptionOn(window, "cmdView_0"), "Designing a Roof Bolt Pattern");
    Click(window, "cmdView_0");
    PressLetterOf(window, "cmdView_7");
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
  });

  EXPECT_THAT(platform.documents.opened,
              ElementsAre("/program/resources/bolt-design.pdf", "/program/resources/reading-curves.pdf"));
}

TEST_F(ResourceView, CloseByTheEnterKey) {
  ResourceFiles resources(program);

  Use(resources, [](QDialog& window) {
    Find(window, "Command1").setFocus(Qt::TabFocusReason);
    Press(Qt::Key_Enter);
  });

  EXPECT_FALSE(resources.IsOpen());
}

}  // namespace
}  // namespace orby::test
