// The drawings of the parameters dialog: when they are made, and what the user can do with them.
#include "dialogs/parameters_fixture.h"
#include "drawings/scene_svg.h"

namespace orby::test {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

constexpr int BoltsTab = 1;
constexpr int EntriesTab = 2;
constexpr int IntersectionsTab = 3;

struct DrawingsOfTheDesign : AParametersDialog {
  DrawingsOfTheDesign() { dialog.Open(); }

  // Ends the edits as one act of the user.
  void Act(std::string_view edits) {
    Do(edits);
    dialog.EndAct();
  }
  std::vector<std::string_view> Made() {
    std::vector<std::string_view> names;
    for (Drawing* drawing : {&dialog.Picture1, &dialog.Image1, &dialog.picEntries, &dialog.picIntersections}) {
      if (!drawing->Picture().Outlines.empty()) names.push_back(drawing->Name());
    }
    return names;
  }
};

TEST_F(DrawingsOfTheDesign, StartWithTheDiagonalsOfTheIntersection) {
  EXPECT_THAT(Made(), ElementsAre("Picture1"));
  EXPECT_EQ(dialog.Picture1.Words(),
            "Entry width 20 ft. Sum of the diagonals d1 + d2 = 60 ft. Suggested sum of the diagonals 63.2 ft");
}

TEST_F(DrawingsOfTheDesign, FollowEachAct) {
  Act("txtEntryWidth=22|txtActualSpanDiagonals=70");

  EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width 22 ft. Sum of the diagonals d1 + d2 = 70 ft"));
}

TEST_F(DrawingsOfTheDesign, AreMadeOnceForSeveralKeysBeforeSomebodyLooks) {
  int made = 0;
  dialog.Picture1.Make = [&made, make = dialog.Picture1.Make](const SheetSize& sheet) {
    ++made;
    return make(sheet);
  };

  Act("txtEntryWidth=2");
  Act("txtEntryWidth=22");
  EXPECT_EQ(made, 0);

  EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width 22 ft"));
  EXPECT_EQ(made, 1);
}

TEST_F(DrawingsOfTheDesign, KeepTheirEditionWhenNothingOnThemChanges) {
  const int before = dialog.Picture1.Edition();

  Act("txtRowSpacingPrimary=5");
  EXPECT_EQ(dialog.Picture1.Edition(), before);

  Act("txtEntryWidth=22");
  EXPECT_NE(dialog.Picture1.Edition(), before);
}

TEST_F(DrawingsOfTheDesign, AreMadeOnlyOnTheTabOnView) {
  Act("txtRowSpacingPrimary=5|txtRockLoadHeight=6|txtRockLoadHeightInter=7");
  EXPECT_THAT(Made(), ElementsAre("Picture1"));

  dialog.SSTab1.SetTab(BoltsTab);
  EXPECT_THAT(Made(), ElementsAre("Picture1", "Image1"));

  const std::string before = dialog.Picture1.Words();
  Act("txtEntryWidth=23");
  EXPECT_EQ(dialog.Picture1.Words(), before);
  EXPECT_THAT(dialog.Image1.Words(), HasSubstr("Entry width 23 ft"));
}

TEST_F(DrawingsOfTheDesign, HaveTheNewNumbersWhenTheirTabComesBack) {
  dialog.SSTab1.SetTab(BoltsTab);
  Act("txtEntryWidth=23");

  dialog.SSTab1.SetTab(0);

  EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width 23 ft"));
}

TEST_F(DrawingsOfTheDesign, NameTheBoltsTheRockAndTheSystemsInUse) {
  dialog.SSTab1.SetTab(BoltsTab);
  EXPECT_THAT(dialog.Image1.Words(), HasSubstr("4 primary bolts per row, 6 ft, every 4 ft"));

  Act("chkSecEntries_0=0|chkSecEntries_3=1");
  dialog.SSTab1.SetTab(EntriesTab);
  EXPECT_THAT(dialog.picEntries.Words(), HasSubstr("standing supports per row"));
  EXPECT_THAT(dialog.picEntries.Words(), Not(HasSubstr("cable bolts")));
  EXPECT_THAT(dialog.picEntries.Words(), HasSubstr("Rock load height 8 ft, fall angle 30°"));

  Act("chkSecInter_0=1|txtCableNumberSecInter=7");
  dialog.SSTab1.SetTab(IntersectionsTab);
  EXPECT_THAT(dialog.picIntersections.Words(), HasSubstr("7 cable bolts, "));
}

TEST_F(DrawingsOfTheDesign, AreInMetresInAMetricDesign) {
  dialog.Close();
  StartDesign(Metric);
  dialog.Open();

  EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width 6.2 m"));
}

TEST_F(DrawingsOfTheDesign, ShowWhatCannotBeReadAsMissing) {
  Act("txtEntryWidth=1E60");

  EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width -- ft"));
  EXPECT_THAT(dialog.Picture1.Words(), EndsWith("Suggested sum of the diagonals --"));
}

TEST_F(DrawingsOfTheDesign, FollowEditsThatAreTakenBack) {
  Act("txtEntryWidth=23");

  dialog.UndoEdit();
  dialog.EndAct();

  EXPECT_THAT(dialog.Picture1.Words(), HasSubstr("Entry width 20 ft"));
}

TEST_F(DrawingsOfTheDesign, HaveTheSizeOfTheirPlaceInTheWindow) {
  dialog.Picture1.SetSheet({500, 350});
  dialog.Image1.SetSheet({600, 450});

  EXPECT_EQ(dialog.Picture1.Picture().Width, 500);
  EXPECT_EQ(dialog.Picture1.Picture().Height, 350);
  EXPECT_THAT(Made(), ElementsAre("Picture1"));

  dialog.SSTab1.SetTab(BoltsTab);
  EXPECT_EQ(dialog.Image1.Picture().Width, 600);
}

TEST_F(DrawingsOfTheDesign, AreCopiedAsTheyAreOnView) {
  Act("txtEntryWidth=23");

  dialog.Picture1.Command(DrawingCommand::Copy);

  EXPECT_EQ(platform.clipboard.scene, dialog.Picture1.Picture());
  EXPECT_THAT(platform.clipboard.scene.Labels, Not(IsEmpty()));
}

TEST_F(DrawingsOfTheDesign, AreSavedAsSvgUnderTheNameThatTheUserChooses) {
  program.project.CurrentFile = "/home/user/north mains.ORB";
  platform.fileDialogs.answers.push_back("/home/user/roof.svg");

  dialog.Picture1.Command(DrawingCommand::SaveSvg);

  ASSERT_THAT(platform.fileDialogs.asked, SizeIs(1));
  EXPECT_EQ(platform.fileDialogs.asked[0].fileName, "north mains Diagonals of an intersection.svg");
  EXPECT_EQ(platform.files.files["/home/user/roof.svg"], SceneSvg(dialog.Picture1.Picture()));
  EXPECT_EQ(platform.files.onDisk["/home/user/roof.svg"], platform.files.files["/home/user/roof.svg"]);
  EXPECT_THAT(program.session.history.Text, HasSubstr("Drawing saved as: /home/user/roof.svg"));
}

TEST_F(DrawingsOfTheDesign, AreSavedAsPdfWithTheirTitle) {
  dialog.SSTab1.SetTab(BoltsTab);
  platform.fileDialogs.answers.push_back("/home/user/roof.pdf");

  dialog.Image1.Command(DrawingCommand::SavePdf);

  EXPECT_EQ(platform.files.files["/home/user/roof.pdf"], "PDF of Primary support of an entry");
  EXPECT_THAT(platform.pictures.scenes, ElementsAre(dialog.Image1.Picture()));
}

TEST_F(DrawingsOfTheDesign, SayWhenTheyCannotBeSavedAndKeepTheOldFile) {
  platform.files.files["/home/user/roof.svg"] = "old";
  platform.fileDialogs.answers.push_back("/home/user/roof.svg");
  platform.files.Fail(MemoryFiles::Step::Write, error_number::DiskFull);

  dialog.Picture1.Command(DrawingCommand::SaveSvg);

  EXPECT_EQ(platform.files.files["/home/user/roof.svg"], "old");
  EXPECT_THAT(platform.boxes.Texts(), Not(IsEmpty()));
  EXPECT_THAT(program.session.history.Text, Not(HasSubstr("Drawing saved")));
}

TEST_F(DrawingsOfTheDesign, AreNotSavedIfTheUserCancels) {
  dialog.Picture1.Command(DrawingCommand::SavePdf);

  EXPECT_THAT(platform.pictures.scenes, IsEmpty());
  EXPECT_THAT(platform.boxes.Texts(), IsEmpty());
}

TEST_F(DrawingsOfTheDesign, AreNoEdits) {
  dialog.Picture1.SetSheet({500, 350});
  dialog.EndAct();

  EXPECT_FALSE(dialog.Edits()->CanUndo());
}

}  // namespace
}  // namespace orby::test
