// The window "Side by Side" on the screen, and the button that keeps variants, worked by keys.
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

#include "dialogs/parameters_dialog.h"
#include "dialogs/side_by_side_window.h"
#include "gui_bench.h"
#include "pdf_bench.h"
#include "qt/drawing_view.h"
#include "qt/picture_files.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

RealDoors WithPictures() {
  static QtPictureFiles pictures;
  RealDoors doors;
  doors.pictures = &pictures;
  return doors;
}

struct SideBySideOnView : GuiTest {
  SideBySideOnView() : GuiTest(WithPictures()) { program.project.CurrentFile = "/home/user/panel 3.ORB"; }

  void KeepVariants(int count) {
    Design design = program.project.WorkParms;
    for (int i = 0; i < count; ++i) {
      design.Place.DepthofCover += 50;
      KeepVariant(program, design);
    }
  }
  static std::vector<std::string> Heads(const QWidget& view) {
    const auto& table = Find<QTableWidget>(view, "grdTable");
    std::vector<std::string> heads;
    for (int column = 0; column < table.columnCount(); ++column) {
      heads.push_back(table.horizontalHeaderItem(column)->text().toStdString());
    }
    return heads;
  }

  SideBySideWindow window{program};
};

TEST_F(SideBySideOnView, ComparesAVariantThatWasKeptByKeys) {
  ParametersDialog parameters(program);
  Work(parameters, [this](QDialog& view) {
    TypeInto(view, "txtDepthofCover", "900");
    PressLetterOf(view, "cmdKeepVariant");
    Settle();
    EXPECT_THAT(platform.boxes.Texts(), testing::Contains(HasSubstr("kept as Variant 1")));
  });
  Work(window, [](QDialog& view) {
    EXPECT_THAT(Heads(view), ElementsAre("Design", "panel 3", "Variant 1"));
    const auto& table = Find<QTableWidget>(view, "grdTable");
    EXPECT_EQ(table.item(0, 0)->text(), "Inputs that differ");
    EXPECT_EQ(table.item(1, 0)->text().trimmed(), "Depth of Cover (ft)");
    EXPECT_EQ(table.item(1, 2)->text(), "900");
  });
}

TEST_F(SideBySideOnView, RenamesAndRemovesByKeys) {
  KeepVariants(2);
  platform.boxes.answers = {BoxResult::Yes};
  Work(window, [](QDialog& view) {
    PressLetterOf(view, "lstVariants");
    EXPECT_EQ(FocusName(), "lstVariants");
    Press(Qt::Key_Down);
    PressLetterOf(view, "txtName");
    Type("Deeper");
    PressLetterOf(view, "cmdRename");
    Settle();
    EXPECT_THAT(Heads(view), ElementsAre("Design", "panel 3", "Variant 1", "Deeper"));
    PressLetterOf(view, "cmdForget");
    Settle();
    EXPECT_THAT(Heads(view), ElementsAre("Design", "panel 3", "Variant 1"));
    PressLetterOf(view, "lstDesigns");
    Press(Qt::Key_Home);
    PressLetterOf(view, "cmdRemove");
    Settle();
    EXPECT_THAT(Heads(view), ElementsAre("Design", "Variant 1"));
    EXPECT_FALSE(Find<QPushButton>(view, "cmdPrint").isEnabled());
  });
}

TEST_F(SideBySideOnView, SavesEightDesignsAsADocument) {
  KeepVariants(7);
  platform.fileDialogs.answers = {"/home/user/side.pdf"};
  Work(window, [](QDialog& view) {
    PressLetterOf(view, "cmdSaveAs");
    Settle();
  });

  const QTemporaryDir folder;
  const QString path = folder.filePath("side.pdf");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray::fromStdString(platform.files.files.at("/home/user/side.pdf")));
  file.close();
  const std::vector<std::string> pages = PdfPages(path);
  ASSERT_GE(pages.size(), 2);
  EXPECT_THAT(pages.front(), HasSubstr("Designs side by side"));
  for (int i = 1; i <= 7; ++i) EXPECT_THAT(pages.front(), HasSubstr("Variant " + std::to_string(i)));
  EXPECT_THAT(pages.front(), HasSubstr("750"));
}

TEST_F(SideBySideOnView, SaysWhatItsDrawingsShow) {
  KeepVariants(1);
  Work(window, [](QDialog& view) {
    EXPECT_THAT(Find<DrawingView>(view, "picSections").accessibleName().toStdString(),
                HasSubstr("Sections of the designs"));
    PressLetterOfTab(view, "tabSide", 1);
    Settle();
    EXPECT_TRUE(Find(view, "picCurves").isVisible());
    EXPECT_THAT(Find(view, "picCurves").accessibleName().toStdString(), HasSubstr("Curves of the designs"));
  });
}

}  // namespace
}  // namespace orby::test
