// The calculation sheets of a project and of the results on view.
#include "dialogs/project_sheet.h"

#include "dialogs/cost_dialog.h"
#include "dialogs/parameters_fixture.h"
#include "dialogs/results_window.h"

namespace orby::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct ASheetOfResults : AParametersDialog {
  ASheetOfResults() {
    program.project.CurrentFile = "/home/user/panel 3.ORB";
    dialog.Open();
  }

  static std::string InputText(const DesignSheet& sheet, std::string_view label) {
    for (const SheetSection& section : sheet.Sections) {
      for (const SheetPart& part : section.Parts) {
        const auto* input = std::get_if<SheetInput>(&part);
        if (input != nullptr && input->Label == label) return input->Text;
      }
    }
    return "no such input";
  }
};

TEST_F(ASheetOfResults, IsThatOfTheProjectIfNothingWasTyped) {
  ASSERT_TRUE(dialog.CopyToWorkParmsCopy());

  const DesignSheet sheet = SheetOfResults(program);

  EXPECT_THAT(sheet.Project.Sum, SizeIs(64));
  EXPECT_EQ(sheet.Project.Sum, SheetOfProject(program).Project.Sum);
  EXPECT_EQ(sheet.Project.File, "/home/user/panel 3.ORB");
}

TEST_F(ASheetOfResults, SaysThatItsInputsAreNotThoseOfTheProject) {
  Do("txtDepthofCover=812");
  ASSERT_TRUE(dialog.CopyToWorkParmsCopy());

  const DesignSheet sheet = SheetOfResults(program);

  EXPECT_EQ(InputText(sheet, "Depth of Cover"), "812");
  EXPECT_THAT(sheet.Project.Sum, IsEmpty());
  EXPECT_EQ(sheet.Project.File, "/home/user/panel 3.ORB (with inputs that are not committed)");
  EXPECT_EQ(InputText(SheetOfProject(program), "Depth of Cover"), "400") << "the project itself";
}

// The report takes the primary bolts for all bolts. The inputs are those of the fields.
TEST_F(ASheetOfResults, ListsTheBoltsThatWereTyped) {
  Do("chkSecEntries_2=1|optBoltOptionsSecEntry=1|optBoltDiameterSecEntry=1|txtBoltDiameterSecEntry=0.82");
  ASSERT_TRUE(dialog.CopyToWorkParmsCopy());

  EXPECT_EQ(program.windows.ResultsShown.Entries.Bolt.DiameterManual, 0.82F);
  EXPECT_NE(program.windows.WorkParmsCopy.Entries.Bolt.DiameterManual, 0.82F);
}

TEST_F(ASheetOfResults, HasTheCostsThatWereTyped) {
  dialog.Close();
  CostDialog cost(program);
  cost.Open();
  Edit(cost, "txtBoltCost=7.25");
  cost.cmdresults.Press();

  const DesignSheet sheet = SheetOfResults(program);

  EXPECT_EQ(InputText(sheet, "Bolt cost ($/bolt)"), "7.25");
  EXPECT_THAT(sheet.Project.File, EndsWith("(with inputs that are not committed)"));
}

TEST_F(ASheetOfResults, OpensFromTheResultsWindow) {
  ASSERT_TRUE(dialog.CopyToWorkParmsCopy());
  program.session.OutBuf = {"inputs\r\n", "calculations\r\n", "", "", ""};
  ResultsWindow results(program);
  results.Open();
  std::string opened;
  platform.windows.onModal = [&](Form& form) { opened = form.Name(); };

  results.cmdSheet.Press();

  EXPECT_EQ(opened, "frmSheet");
}

}  // namespace
}  // namespace orby::test
