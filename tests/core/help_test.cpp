#include "core/help.h"

#include "controls/controls.h"
#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Window : public Form {
 public:
  Window() : Form("frmGraph", "Graph") {}
  TextBox txtXYPoint{*this, "txtXYPoint"};

 protected:
  void OnOpen() override {}
  void OnClose() override {}
};

class Help : public ProgramBench {
 protected:
  Help() { platform.files.files["/program/ORBY.CHM"] = "help"; }

  Window window;
};

TEST_F(Help, OpensAtItsContents) {
  OpenHelpContents(program);

  EXPECT_THAT(platform.help.shown, ElementsAre("contents /program/ORBY.CHM"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Help, OpensAtItsIndex) {
  OpenHelpIndex(program);

  EXPECT_THAT(platform.help.shown, ElementsAre("index /program/ORBY.CHM"));
}

TEST_F(Help, OpensAtTheTopicOfTheWindow) {
  OpenHelpTopic(program, window);

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmGraph"));
}

TEST_F(Help, OpensAtTheTopicOfTheField) {
  OpenHelpTopic(program, window, &window.txtXYPoint);

  EXPECT_THAT(platform.help.shown, ElementsAre("topic /program/ORBY.CHM frmGraph.txtXYPoint"));
}

TEST_F(Help, ReportsAMissingHelpFile) {
  platform.files.files.clear();

  OpenHelpContents(program);

  EXPECT_THAT(platform.help.shown, IsEmpty());
  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Help file (/program/ORBY.CHM) not available", BoxButtons::Ok,
                                                      "Orby Roof Support Workbench")));
}

TEST_F(Help, ReportsAFileThatIsNotAHelpFile) {
  platform.help.opens = false;

  OpenHelpTopic(program, window);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Operation Failed"));
}

TEST_F(Help, OpensTheManualWithTheProgramOfTheDesktop) {
  platform.files.files["/program/ORBY.PDF"] = "manual";

  OpenDocument(program, "Help file", ManualFile);

  EXPECT_THAT(platform.documents.opened, ElementsAre("/program/ORBY.PDF"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Help, ReportsThatNoProgramOpensTheManual) {
  platform.files.files["/program/ORBY.PDF"] = "manual";
  platform.documents.opens = false;

  OpenDocument(program, "Help file", ManualFile);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Operation Failed"));
}

TEST_F(Help, ReportsAMissingDocumentByItsFileName) {
  OpenDocument(program, "Resource file", "resources/pull-tests.pdf", "pull-tests.pdf");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Resource file (pull-tests.pdf) not available"));
}

}  // namespace
}  // namespace orby::test
