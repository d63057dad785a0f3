#include "core/help.h"

#include "core/program_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Help = ProgramBench;

TEST_F(Help, OpensTheHelpFileInTheProgramsFolder) {
  platform.files.files["/program/ORBY.CHM"] = "help";

  OpenHelp(program);

  EXPECT_THAT(platform.documents.opened, ElementsAre("/program/ORBY.CHM"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(Help, OpensTheManualOnRequest) {
  platform.files.files["/program/ORBY.PDF"] = "manual";

  OpenHelp(program, ManualFile);

  EXPECT_THAT(platform.documents.opened, ElementsAre("/program/ORBY.PDF"));
}

TEST_F(Help, TellsOfAFileThatIsNotThere) {
  OpenHelp(program);

  EXPECT_THAT(platform.documents.opened, IsEmpty());
  EXPECT_THAT(platform.boxes.shown, ElementsAre(IsBox("Help file (/program/ORBY.CHM) not available", box_style::Ok,
                                                      "Orby Roof Support Workbench")));
}

TEST_F(Help, TellsWhenNoProgramOpensTheFile) {
  platform.files.files["/program/ORBY.CHM"] = "help";
  platform.documents.opens = false;

  OpenHelp(program);

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("Operation Failed"));
}

}  // namespace
}  // namespace orby::test
