// Designs side by side, as the user compares them: the open project, files, and variants of the parameters.
#include "dialogs/side_by_side_window.h"

#include <fstream>
#include <map>

#include "base/number_text.h"
#include "base/text.h"
#include "dialogs/compared_pictures.h"
#include "dialogs/parameters_fixture.h"
#include "files/project_writer.h"
#include "support/temporary_folder.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// The project of the window is a new one with a name.
struct ComparedSideBySide : AParametersDialog {
  ComparedSideBySide() {
    program.project.CurrentFile = "/home/user/panel 3.ORB";
    program.session.settings.FileExtension = "ORB";
  }

  // Keeps the fields of the parameters dialog with these edits as a variant.
  void Keep(std::string_view edits) {
    if (!dialog.IsOpen()) dialog.Open();
    Edit(dialog, edits);
    dialog.cmdKeepVariant.Press();
  }

  // Writes the open project with another rating as a file.
  void WriteFile(const std::string& path, Single rating) {
    Project project = program.project;
    project.WorkParms.Place.CMRR = rating;
    platform.files.files[path] = ProjectFileBytes(project);
  }

  void AddFile(const std::string& path) {
    platform.fileDialogs.answers = {path};
    window.cmdAddFile.Press();
  }

  std::vector<std::string> Row(std::string_view head) const {
    std::vector<std::string> cells;
    for (int row = 1; row < window.grdTable.Rows(); ++row) {
      if (Trim(window.grdTable.Cell(row, 0)) != head) continue;
      for (int column = 1; column < window.grdTable.Columns(); ++column) {
        cells.push_back(window.grdTable.Cell(row, column));
      }
    }
    return cells;
  }
  std::vector<std::string> Heads() const {
    std::vector<std::string> heads;
    for (int column = 1; column < window.grdTable.Columns(); ++column) heads.push_back(window.grdTable.Cell(0, column));
    return heads;
  }
  static std::vector<std::string> LinesIn(const List& list) {
    std::vector<std::string> lines;
    for (const ComboItem& item : list.Items()) lines.push_back(item.text);
    return lines;
  }

  SideBySideWindow window{program};
};

TEST_F(ComparedSideBySide, StartWithTheOpenProjectAlone) {
  window.Open();

  EXPECT_THAT(Heads(), ElementsAre("panel 3"));
  EXPECT_THAT(LinesIn(window.lstVariants), IsEmpty());
  EXPECT_THAT(window.lblState.Caption(), StartsWith("Add designs"));
  for (const Button* button : {&window.cmdPrint, &window.cmdSaveAs, &window.cmdCopy}) EXPECT_FALSE(button->Enabled());
  EXPECT_FALSE(window.cmdAddProject.Enabled());
}

TEST_F(ComparedSideBySide, HaveTheVariantsThatTheUserKept) {
  Keep("txtDepthofCover=700");
  Keep("txtDepthofCover=900|txtCMRR=52");
  window.Open();

  EXPECT_THAT(Heads(), ElementsAre("panel 3", "Variant 1", "Variant 2"));
  EXPECT_THAT(Row("Depth of Cover (ft)"), ElementsAre("400", "700", "900"));
  EXPECT_THAT(Row("CMRR"), ElementsAre("45", "45", "52"));
  EXPECT_THAT(LinesIn(window.lstVariants), ElementsAre("Variant 1", "Variant 2"));
  EXPECT_THAT(window.lblState.Caption(), StartsWith("3 designs."));
}

TEST_F(ComparedSideBySide, ChangeNothingInTheProject) {
  const Design before = program.project.WorkParms;
  program.project.FileSaved = true;
  Keep("txtDepthofCover=700");
  dialog.Command1.Press();
  window.Open();
  window.optUnits.SetValue(1, true);

  EXPECT_EQ(program.project.WorkParms, before);
  EXPECT_TRUE(program.project.FileSaved);
  EXPECT_EQ(program.project.CurrentFile, "/home/user/panel 3.ORB");
}

TEST_F(ComparedSideBySide, TellTheUserTheNameOfAVariant) {
  Keep("txtDepthofCover=700");

  EXPECT_THAT(platform.boxes.Texts(), Contains(HasSubstr("kept as Variant 1")));
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(dialog.txtDepthofCover.Text(), "700");
}

TEST_F(ComparedSideBySide, KeepNoVariantOfANumberThatNoProjectHolds) {
  Keep("txtDepthofCover=1e60");

  EXPECT_THAT(program.windows.compared.Variants, IsEmpty());
  EXPECT_THAT(platform.boxes.Texts(), Contains(HasSubstr("1e60")));
}

TEST_F(ComparedSideBySide, TakeFiles) {
  WriteFile("/mine/fault zone.ORB", 38);
  window.Open();
  AddFile("/mine/fault zone.ORB");

  EXPECT_THAT(Heads(), ElementsAre("panel 3", "fault zone"));
  EXPECT_THAT(Row("CMRR"), ElementsAre("45", "38"));
  EXPECT_THAT(LinesIn(window.lstDesigns),
              Contains(AllOf(StartsWith("2  fault zone"), HasSubstr("/mine/fault zone.ORB"))));
  EXPECT_EQ(window.lstDesigns.ListIndex(), 1);
  EXPECT_TRUE(window.cmdSaveAs.Enabled());
}

TEST_F(ComparedSideBySide, SayWhyAFileCannotBeRead) {
  platform.files.files["/mine/letter.ORB"] = "Dear sir,\r\n";
  window.Open();
  AddFile("/mine/letter.ORB");

  EXPECT_THAT(platform.boxes.Texts(),
              ElementsAre("/mine/letter.ORB: Invalid ORBY file format. File can not be opened."));
  EXPECT_THAT(Heads(), ElementsAre("panel 3"));
}

TEST_F(ComparedSideBySide, SayWhyAFileOfBeforeIsGone) {
  WriteFile("/mine/fault zone.ORB", 38);
  window.Open();
  AddFile("/mine/fault zone.ORB");
  window.Close();
  platform.files.files.erase("/mine/fault zone.ORB");
  window.Open();

  EXPECT_THAT(LinesIn(window.lstDesigns), Contains(StartsWith("2  fault zone: File not found")));
  EXPECT_THAT(Row("CMRR"), IsEmpty()) << "nothing to differ from";
}

TEST_F(ComparedSideBySide, TakeEachDesignOnce) {
  WriteFile("/mine/fault zone.ORB", 38);
  window.Open();
  AddFile("/mine/fault zone.ORB");
  AddFile("/mine/fault zone.ORB");

  EXPECT_THAT(platform.boxes.Texts(), ElementsAre("fault zone is compared already."));
  EXPECT_THAT(Heads(), SizeIs(2));
}

TEST_F(ComparedSideBySide, AreEightAtMost) {
  for (int i = 0; i < 9; ++i) Keep("txtDepthofCover=" + std::to_string(500 + i));
  window.Open();

  EXPECT_THAT(Heads(), SizeIs(8));
  EXPECT_THAT(LinesIn(window.lstVariants), SizeIs(9));
  EXPECT_FALSE(window.cmdAddFile.Enabled());

  window.lstDesigns.ClickItem(0);
  window.cmdRemove.Press();
  EXPECT_THAT(Heads(), SizeIs(7));
  window.lstVariants.ClickItem(8);
  window.cmdAddVariant.Press();
  EXPECT_THAT(Heads(), Contains("Variant 9"));
  EXPECT_FALSE(window.cmdAddProject.Enabled());
}

TEST_F(ComparedSideBySide, LetTheOpenProjectGoAndComeBack) {
  Keep("txtDepthofCover=700");
  window.Open();
  window.lstDesigns.ClickItem(0);
  window.cmdRemove.Press();
  EXPECT_THAT(Heads(), ElementsAre("Variant 1"));

  window.cmdAddProject.Press();
  EXPECT_THAT(Heads(), ElementsAre("Variant 1", "panel 3"));
}

TEST_F(ComparedSideBySide, TakeNewNamesOfVariants) {
  Keep("txtDepthofCover=700");
  window.Open();
  window.lstVariants.ClickItem(0);
  window.txtName.SetText("  Deeper  ");
  window.cmdRename.Press();

  EXPECT_THAT(Heads(), ElementsAre("panel 3", "Deeper"));
  EXPECT_THAT(LinesIn(window.lstVariants), ElementsAre("Deeper"));

  window.txtName.SetText(" ");
  window.cmdRename.Press();
  EXPECT_THAT(platform.boxes.Texts(), Contains("A variant needs a name."));
  EXPECT_THAT(LinesIn(window.lstVariants), ElementsAre("Deeper"));
}

TEST_F(ComparedSideBySide, ForgetAVariantOnlyIfTheUserSaysSo) {
  Keep("txtDepthofCover=700");
  window.Open();
  window.lstVariants.ClickItem(0);
  platform.boxes.answers = {BoxResult::No};
  window.cmdForget.Press();
  EXPECT_THAT(LinesIn(window.lstVariants), ElementsAre("Variant 1"));

  platform.boxes.answers = {BoxResult::Yes};
  window.cmdForget.Press();
  EXPECT_THAT(LinesIn(window.lstVariants), IsEmpty());
  EXPECT_THAT(Heads(), ElementsAre("panel 3"));
  EXPECT_FALSE(window.cmdForget.Enabled());
}

TEST_F(ComparedSideBySide, ShowOneUnitSystem) {
  Keep("txtDepthofCover=1000");
  window.Open();
  window.optUnits.SetValue(1, true);

  EXPECT_THAT(Row("Depth of Cover (m)"), ElementsAre("121.92", "304.8"));
}

TEST_F(ComparedSideBySide, ShortenLongNamesOnlyOverTheColumns) {
  const std::string name(80, 'n');
  Keep("txtDepthofCover=1000");
  program.windows.compared.Variants.front().Name = name;
  window.Open();

  EXPECT_EQ(Heads().back(), std::string(19, 'n') + "...");
  EXPECT_THAT(LinesIn(window.lstDesigns), Contains(HasSubstr(name)));
}

TEST_F(ComparedSideBySide, DrawASectionOfEach) {
  Keep("txtDepthofCover=700|txtEntryWidth=18");
  window.Open();

  EXPECT_THAT(window.picSections.Words(), AllOf(HasSubstr("panel 3: "), HasSubstr("Variant 1: ")));
  std::vector<std::string> names;
  for (const SceneLabel& label : window.picSections.Picture().Labels) names.push_back(label.Text);
  EXPECT_THAT(names, ElementsAre("panel 3", "Variant 1"));
}

TEST_F(ComparedSideBySide, DrawACurveOfEachInOneChart) {
  for (int i = 0; i < 7; ++i) Keep("txtCMRR=" + std::to_string(46 + i));
  window.Open();
  const Scene chart = window.picCurves.Picture();

  std::vector<std::string> texts;
  for (const SceneLabel& label : chart.Labels) texts.push_back(label.Text);
  EXPECT_THAT(texts, Contains("1  panel 3"));
  EXPECT_THAT(texts, Contains("8  Variant 7"));
  EXPECT_THAT(texts, Contains("8")) << "on its curve";
  // Four colours, each with a whole and with a dashed line in the chart and in its legend.
  std::map<std::pair<Ink, bool>, int> lines;
  for (const SceneOutline& outline : chart.Outlines) {
    const bool isOfDesign = outline.Line.Colour == Ink::Curve || outline.Line.Colour == Ink::FirstKept ||
                            outline.Line.Colour == Ink::SecondKept || outline.Line.Colour == Ink::ThirdKept;
    if (isOfDesign && outline.Line.Width != 2) ++lines[{outline.Line.Colour, outline.Line.IsDashed}];
  }
  EXPECT_THAT(lines, SizeIs(8));
  for (const auto& [look, count] : lines) EXPECT_EQ(count, 2);
}

TEST_F(ComparedSideBySide, SayWhichCurveCannotBeComputed) {
  Keep("txtEntryWidth=0");
  window.Open();
  window.cmbCurve.SetText("Rock Load vs Rock Load Height (Entries)");

  EXPECT_THAT(window.picCurves.Words(), HasSubstr("Variant 1: cannot be computed, "));
}

// The points of a design of the other system are those that its own chart has, converted.
TEST_F(ComparedSideBySide, DrawCurvesInTheUnitsOfTheChart) {
  window.Open();
  const std::vector<ComparedDesign> designs = ReadAllCompared(program);

  const Sketch feet = CurvesSketch(designs, {"panel 3"}, 1, English, {800, 560});
  const Sketch metres = CurvesSketch(designs, {"panel 3"}, 1, Metric, {800, 560});

  EXPECT_THAT(feet.Facts.at(1), HasSubstr(", at 400.0 "));
  EXPECT_THAT(metres.Facts.at(1), HasSubstr(", at 121.9 "));
  // The curve reaches from 200 to 600 ft, which are 183 m. The figure is far less.
  const auto greatestNumber = [](const Sketch& sketch) {
    double greatest = 0;
    for (const SceneLabel& label : sketch.Picture.Labels) greatest = std::max(greatest, TextValue(label.Text));
    return greatest;
  };
  EXPECT_GE(greatestNumber(feet), 500);
  EXPECT_LE(greatestNumber(metres), 200);
}

TEST_F(ComparedSideBySide, CopyAsCells) {
  Keep("txtDepthofCover=700");
  window.Open();
  window.cmdCopy.Press();

  EXPECT_THAT(platform.clipboard.text, StartsWith("Design\tpanel 3\tVariant 1\r\n"));
  EXPECT_THAT(platform.clipboard.text, HasSubstr("Depth of Cover (ft)\t400\t700\r\n"));
}

TEST_F(ComparedSideBySide, AreAWebPageInWhichNothingIsTakenForMarkup) {
  Keep("txtDepthofCover=700");
  program.windows.compared.Variants.front().Name = "<b>deep & wide</b>";
  window.Open();
  platform.fileDialogs.answers = {"/home/user/side.html"};
  window.cmdSaveAs.Press();

  const std::string html = platform.files.files.at("/home/user/side.html");
  EXPECT_THAT(html, StartsWith("<!DOCTYPE html>"));
  EXPECT_THAT(html, HasSubstr("&lt;b&gt;deep &amp; wide&lt;/b&gt;"));
  EXPECT_THAT(html, Not(HasSubstr("<b>deep")));
  EXPECT_THAT(html, HasSubstr("<th scope=\"row\">Depth of Cover (ft)</th><td>400</td><td>700</td>"));
  EXPECT_THAT(html, HasSubstr("<svg "));
  EXPECT_THAT(html, Not(HasSubstr("<?xml")));
  EXPECT_THAT(program.session.history.Text, HasSubstr("Comparison saved as: /home/user/side.html"));
}

TEST_F(ComparedSideBySide, ArePagesOfPaperAcrossForManyDesigns) {
  for (int i = 0; i < 7; ++i) Keep("txtDepthofCover=" + std::to_string(500 + 50 * i));
  program.windows.compared.Variants.front().Name = std::string(60, 'n');
  window.Open();
  window.cmdPrint.Press();

  ASSERT_THAT(platform.printer.scenes, Not(IsEmpty()));
  std::vector<std::string> texts;
  for (const Scene& page : platform.printer.scenes) {
    EXPECT_GT(page.Width, page.Height);
    for (const SceneLabel& label : page.Labels) {
      texts.push_back(label.Text);
      const double width = platform.pictures.WidthOf(label.Text, {.Size = label.Size});
      const double left = label.Side == Anchor::Start ? label.At.X : label.At.X - width;
      EXPECT_GE(left, 0) << label.Text;
      EXPECT_LE(left + (label.Turn == 0 ? width : 0), page.Width + 0.5) << label.Text;
      EXPECT_LE(label.At.Y, page.Height) << label.Text;
    }
  }
  EXPECT_THAT(texts, Contains("Depth of Cover (ft)"));
  EXPECT_THAT(texts, Contains("800"));
  EXPECT_THAT(texts, Contains(HasSubstr("panel 3: ")));
}

TEST_F(ComparedSideBySide, ArePagesUprightForTwo) {
  Keep("txtDepthofCover=700");
  window.Open();
  window.cmdPrint.Press();

  ASSERT_THAT(platform.printer.scenes, Not(IsEmpty()));
  EXPECT_LT(platform.printer.scenes.front().Width, platform.printer.scenes.front().Height);
}

TEST_F(ComparedSideBySide, AreASpreadsheet) {
  const TemporaryFolder folder;
  Keep("txtDepthofCover=700");
  window.Open();
  platform.fileDialogs.answers = {folder.At("side.xlsx")};
  window.cmdSaveAs.Press();

  std::ifstream book(folder.At("side.xlsx"), std::ios::binary);
  std::string start(2, ' ');
  book.read(start.data(), 2);
  EXPECT_EQ(start, "PK");
}

TEST_F(ComparedSideBySide, TellOfASpreadsheetThatCannotBeWritten) {
  Keep("txtDepthofCover=700");
  window.Open();
  platform.boxes.shown.clear();
  platform.fileDialogs.answers = {"/no such folder/side.xlsx"};
  window.cmdSaveAs.Press();

  EXPECT_THAT(platform.boxes.shown, Not(IsEmpty()));
  EXPECT_THAT(program.session.history.Text, Not(HasSubstr("Comparison saved as")));
}

}  // namespace
}  // namespace orby::test
