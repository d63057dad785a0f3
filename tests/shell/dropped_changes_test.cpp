// Changes that the user drops go to the backups.

#include "base/number_text.h"
#include "dialogs/cost_dialog.h"
#include "dialogs/parameters_dialog.h"
#include "files/backups.h"
#include "main_window_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct DroppedChanges : MainWindowTest {
  DroppedChanges() { program.session.folders.ProgramData = ProgramDataPath; }

  // Returns a text such as "/designs/panel3.orb at 800" for each backup, the newest first.
  std::vector<std::string> Kept() {
    std::vector<std::string> kept;
    for (const Backup& entry : ListBackups(program)) {
      const auto project = ReadRecovery(FileAt(entry.Path));
      kept.push_back(entry.Project + " at " +
                     (project ? NumberText(project->WorkParms.Place.DepthofCover) : std::string("nothing")));
    }
    return kept;
  }

  // Opens the dialog, changes a field with `edit` and cancels.
  template <class Dialog>
  void EditAndCancel(EditItem item, const std::function<void(Dialog&)>& edit) {
    platform.windows.onModal = [&](Form& form) {
      edit(dynamic_cast<Dialog&>(form));
      form.Acted();
      form.Close();
    };
    window.mnuEditItem.ClickItem(item);
  }
};

TEST_F(DroppedChanges, AreBackedUpByNew) {
  EditPanel3();

  window.mnuFileItem.ClickItem(FileItem::New);

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 800"));
  EXPECT_EQ(ListBackups(program).front().Reason, BackupReason::Dropped);
  EXPECT_THAT(program.session.history.Text, HasSubstr("Unsaved changes kept in Backups: /designs/panel3.orb"));
  EXPECT_THAT(platform.boxes.shown, IsEmpty());
}

TEST_F(DroppedChanges, AreBackedUpByOpenOnNo) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  OpenByDialog(Panel4);

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 800"));
  EXPECT_EQ(program.project.CurrentFile, Panel4);
}

TEST_F(DroppedChanges, AreBackedUpByARecentFileOnNo) {
  OpenByDialog(Panel4);
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  window.mnuFileArray.ClickItem(2);

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 800"));
  EXPECT_EQ(program.project.CurrentFile, Panel4);
}

TEST_F(DroppedChanges, AreBackedUpByADroppedFileOnNo) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  window.Dropped(Panel4);

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 800"));
}

TEST_F(DroppedChanges, AreBackedUpByTheFileOfTheCommandLineOnNo) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  window.OpenFirstFiles(Panel4);

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 800"));
}

TEST_F(DroppedChanges, AreBackedUpByClosingOnNo) {
  EditPanel3();
  platform.boxes.answers = {BoxResult::No};

  window.mnuFileItem.ClickItem(FileItem::Exit);

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 800"));
}

TEST_F(DroppedChanges, AreBackedUpWhenTheParametersAreCancelled) {
  OpenByDialog(Panel3);

  EditAndCancel<ParametersDialog>(EditItem::Parameters, [](auto& dialog) { dialog.txtDepthofCover.SetText("910"); });

  EXPECT_THAT(Kept(), ElementsAre("/designs/panel3.orb at 910"));
  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 725);
}

TEST_F(DroppedChanges, AreBackedUpWhenTheCostsAreCancelled) {
  OpenByDialog(Panel3);

  EditAndCancel<CostDialog>(EditItem::Cost, [](auto& dialog) { dialog.txtBoltCost.SetText("7.5"); });

  ASSERT_EQ(Kept().size(), 1U);
  EXPECT_EQ(ReadRecovery(FileAt(ListBackups(program).front().Path))->WorkParms.Cost.BoltCost, 7.5F);
}

TEST_F(DroppedChanges, DoNotIncludeADialogCancelledWithoutChanges) {
  OpenByDialog(Panel3);

  EditAndCancel<ParametersDialog>(EditItem::Parameters, [](auto&) {});
  EditAndCancel<CostDialog>(EditItem::Cost, [](auto&) {});

  EXPECT_THAT(Kept(), IsEmpty());
}

TEST_F(DroppedChanges, DoNotIncludeAnAcceptedDialog) {
  OpenByDialog(Panel3);

  EditAndCancel<ParametersDialog>(EditItem::Parameters, [](ParametersDialog& dialog) {
    dialog.txtDepthofCover.SetText("910");
    dialog.Acted();
    dialog.Command2.Press();
  });

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, 910);
  EXPECT_THAT(Kept(), IsEmpty());
}

TEST_F(DroppedChanges, DoNotIncludeASavedProject) {
  OpenByDialog(Panel3);
  window.mnuFileItem.ClickItem(FileItem::New);
  OpenByDialog(Panel4);
  window.mnuFileItem.ClickItem(FileItem::Exit);

  EXPECT_THAT(Kept(), IsEmpty());
}

TEST_F(DroppedChanges, AreReportedOnceIfTheyCannotBeBackedUp) {
  EditPanel3();
  platform.files.Fail(MemoryFiles::Step::Create, error_number::DiskFull);

  window.mnuFileItem.ClickItem(FileItem::New);

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("The unsaved changes could not be kept in Backups: /designs/panel3.orb"));
  EXPECT_EQ(program.project.CurrentFile, "Untitled");
}

// The ways to drop a project with unsaved changes, on a disk without room for a backup.
struct GivenUpOnAFullDisk : DroppedChanges {
  GivenUpOnAFullDisk() {
    EditPanel3();
    window.LeaveAtOnce();
    platform.files.Fail(MemoryFiles::Step::Create, error_number::DiskFull);
    platform.boxes.answers = {BoxResult::No};
  }

  void ExpectKeptAside() {
    const std::string aside = RecoveryPath + ".kept";
    EXPECT_EQ(platform.boxes.Texts().back(),
              "The unsaved changes could not be kept in Backups: /designs/panel3.orb\r\n\r\n"
              "What could be kept of them is in " +
                  aside + ".");
    ASSERT_TRUE(Exists(aside));
    EXPECT_EQ(ReadRecovery(FileAt(aside))->WorkParms.Place.DepthofCover, 800);
    EXPECT_FALSE(Exists(RecoveryPath));
  }
};

TEST_F(GivenUpOnAFullDisk, ChangesAreStillThereAfterNew) {
  window.mnuFileItem.ClickItem(FileItem::New);

  ExpectKeptAside();
}

TEST_F(GivenUpOnAFullDisk, ChangesAreStillThereAfterOpen) {
  OpenByDialog(Panel4);

  EXPECT_EQ(program.project.CurrentFile, Panel4);
  ExpectKeptAside();
}

TEST_F(GivenUpOnAFullDisk, ChangesAreStillThereAfterClosing) {
  window.mnuFileItem.ClickItem(FileItem::Exit);

  ExpectKeptAside();
}

}  // namespace
}  // namespace orby::test
