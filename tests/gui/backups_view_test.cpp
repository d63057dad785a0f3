// The backups window as its user sees it.
#include <QAbstractButton>
#include <QLineEdit>
#include <QTableWidget>

#include "dialogs/backups_window.h"
#include "files/backups.h"
#include "files/project_writer.h"
#include "gui/gui_bench.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct BackupsView : GuiTest {
  BackupsView() { program.session.folders.ProgramData = "/home/user/Documents/Orby/"; }

  // Leaves backups of unsaved changes of three panels. The third is the newest.
  void KeepThree() {
    for (const Single depth : {710.0F, 720.0F, 730.0F}) {
      program.project.CurrentFile = "/designs/panel at " + std::to_string(static_cast<int>(depth)) + ".orb";
      program.project.WorkParms.Place.DepthofCover = depth;
      KeepDropped(program, program.project, BackupReason::Dropped);
    }
  }

  BackupsWindow backups{program};
};

std::vector<std::string> RowOn(const QWidget& window, int row) {
  std::vector<std::string> texts;
  const auto& table = Find<QTableWidget>(window, "grdBackups");
  for (int column = 0; column < table.columnCount(); ++column) {
    texts.push_back(table.item(row, column)->text().toStdString());
  }
  return texts;
}

TEST_F(BackupsView, ListsTheBackupsUnderItsHeaders) {
  KeepThree();

  Use(backups, [](QDialog& window) {
    const auto& table = Find<QTableWidget>(window, "grdBackups");
    EXPECT_EQ(table.rowCount(), 3);
    EXPECT_EQ(table.horizontalHeaderItem(2)->text().toStdString(), "Why it was kept");
    EXPECT_EQ(RowOn(window, 0)[0], "panel at 730.orb");
    EXPECT_EQ(RowOn(window, 2)[2], "Not saved");
    EXPECT_EQ(FocusName(), "grdBackups");
    Press(Qt::Key_Escape);
  });

  EXPECT_FALSE(backups.Chosen);
}

TEST_F(BackupsView, OpensTheBackupSelectedByTheArrowKeysWithEnter) {
  KeepThree();

  Use(backups, [](QDialog& window) {
    Press(Qt::Key_Down);
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "720 (ft)");
    Press(Qt::Key_Down);
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "710 (ft)");
    EXPECT_EQ(TextOn(window, "txtProject"), "/designs/panel at 710.orb");
    Press(Qt::Key_Return);
  });

  ASSERT_TRUE(backups.Chosen);
  EXPECT_EQ(backups.Chosen->WorkParms.Place.DepthofCover, 710);
}

TEST_F(BackupsView, DeletesTheSelectedBackupByItsLetterAndSelectsTheNext) {
  KeepThree();
  platform.boxes.answers = {BoxResult::Yes};

  Use(backups, [](QDialog& window) {
    PressLetterOf(window, "cmdDelete");
    EXPECT_EQ(Find<QTableWidget>(window, "grdBackups").rowCount(), 2);
    EXPECT_EQ(TextOn(window, "txtDepthofCover"), "720 (ft)");
    Press(Qt::Key_Escape);
  });

  EXPECT_THAT(ListBackups(program), SizeIs(2));
}

TEST_F(BackupsView, SavesTheSelectedBackupByItsLetter) {
  KeepThree();
  platform.fileDialogs.answers = {"/designs/back.orb"};

  Use(backups, [](QDialog& window) {
    PressLetterOf(window, "cmdSaveAs");
    EXPECT_TRUE(window.isVisible());
    Press(Qt::Key_Escape);
  });

  EXPECT_EQ(platform.files.files.at("/designs/back.orb"), ProjectFileBytes(program.project));
}

TEST_F(BackupsView, ShowsAnEmptyTableWithItsHeadersAndCanBeClosed) {
  Use(backups, [](QDialog& window) {
    EXPECT_EQ(Find<QTableWidget>(window, "grdBackups").rowCount(), 0);
    EXPECT_EQ(TextOn(window, "lblState"), "There are no backups.");
    EXPECT_FALSE(Find<QAbstractButton>(window, "cmdOpen").isEnabled());
    PressLetterOf(window, "Command1");
  });

  EXPECT_FALSE(backups.IsOpen());
}

}  // namespace
}  // namespace orby::test
