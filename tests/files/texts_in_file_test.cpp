#include "files/texts_in_file.h"

#include <gmock/gmock.h>

#include "project_fixture.h"

namespace orby::test {
namespace {

using testing::HasSubstr;

// Returns the texts after a number of saves and openings.
ProjectTexts AfterOpening(const ProjectTexts& typed, int times) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  project.program.project.ProjectTitle = typed.Title;
  project.program.project.ProjectDescription = typed.Description;
  for (int time = 0; time < times; ++time) {
    project.Save();
    project.Open();
  }
  return {project.program.project.ProjectTitle, project.program.project.ProjectDescription};
}

std::string LostIn(const std::string& title, const std::string& description) {
  const auto lost = LineThatWouldNotComeBack({title, description});
  return lost ? lost->Line : "none";
}

TEST(TheLostLine, IsNotFoundInAnOrdinaryText) {
  EXPECT_EQ(LostIn("Panel 3", "Belt entry\r\n\r\n  south of the \"old\" gate; 2 cuts\r\nlast"), "none");
  EXPECT_EQ(LostIn("", ""), "none");
}

TEST(TheLostLine, StartsWithAQuotationMark) {
  EXPECT_EQ(LostIn("Panel 3", "Belt entry\r\n\"weak roof\r\nlast"), "\"weak roof");
  EXPECT_EQ(LostIn("Panel 3", "  \"weak\" roof"), "  \"weak\" roof");
  EXPECT_EQ(LostIn("\"Panel 3", "Belt entry"), "\"Panel 3");
  EXPECT_THAT(std::string(LineThatWouldNotComeBack({"\"Panel 3", ""})->Reason),
              HasSubstr("A quotation mark at the start"));
}

TEST(TheLostLine, StartsWithAQuotationMarkAfterALongLineIsBroken) {
  const std::string line = "The crew that works there calls this part of the seam the \"soft ground";

  EXPECT_EQ(LostIn("Panel 3", line), "\"soft ground");
}

TEST(TheLostLine, IsAMarkerOfTheFile) {
  EXPECT_EQ(LostIn("Panel 3", "Belt entry\r\n##EndDesc##"), "##EndDesc##");
  EXPECT_EQ(LostIn("##EndDesc##", "Belt entry"), "##EndDesc##");
  EXPECT_EQ(LostIn("##StartDesc##", "Belt entry"), "##StartDesc##");
  EXPECT_EQ(LostIn("Panel 3,##EndDesc##", "Belt entry"), "Panel 3,##EndDesc##") << "a comma begins a new line";
  EXPECT_THAT(std::string(LineThatWouldNotComeBack({"", "##EndDesc##"})->Reason), HasSubstr("a mark of its own"));
}

TEST(TheLostLine, ContainsAComma) {
  EXPECT_EQ(LostIn("Panel 3", "Belt entry, south"), "Belt entry, south");
  EXPECT_EQ(LineThatWouldNotComeBack({"", "Belt entry, south"})->Reason, "A comma splits the line in two there.");
  EXPECT_EQ(LostIn("Panel 3, north", "Belt entry"), "none") << "the parts of the title are joined";
}

TEST(ShiftedTexts, AreRestoredAfterOpening) {
  const ProjectTexts typed{"Panel 3", "Belt entry\r\nsouth\r\n"};
  const ProjectTexts opened = AfterOpening(typed, 1);
  ASSERT_EQ(opened.Title, " 0 ");

  const auto before = TextsBeforeTheShift(opened);

  ASSERT_TRUE(before);
  EXPECT_EQ(before->Title, "Panel 3");
  EXPECT_EQ(before->Description, "Belt entry\r\nsouth\r\n");
}

TEST(ShiftedTexts, AreRestoredAfterSeveralShifts) {
  const auto before = TextsBeforeTheShift(AfterOpening({"Panel 3", "Belt entry\r\nsouth\r\n"}, 3));

  ASSERT_TRUE(before);
  EXPECT_EQ(before->Title, "Panel 3");
  EXPECT_EQ(before->Description, "Belt entry\r\nsouth\r\n");
}

TEST(ShiftedTexts, AreRestoredWithACommaInTheTitle) {
  const auto before = TextsBeforeTheShift(AfterOpening({"Panel 3, north", "Belt entry\r\n"}, 2));

  ASSERT_TRUE(before);
  EXPECT_EQ(before->Title, "Panel 3, north");
}

TEST(ShiftedTexts, AreRestoredWithoutATitleOrADescription) {
  const auto untitled = TextsBeforeTheShift(AfterOpening({"", "Belt entry\r\n"}, 1));
  ASSERT_TRUE(untitled);
  EXPECT_EQ(untitled->Title, "");
  EXPECT_EQ(untitled->Description, "Belt entry\r\n");

  const auto bare = TextsBeforeTheShift(AfterOpening({"Panel 3", ""}, 1));
  ASSERT_TRUE(bare);
  EXPECT_EQ(bare->Title, "Panel 3");
  EXPECT_EQ(bare->Description, "");
}

TEST(ShiftedTexts, AreNotFoundInOtherTexts) {
  EXPECT_FALSE(TextsBeforeTheShift({"Panel 3", "Belt entry\r\n"}));
  EXPECT_FALSE(TextsBeforeTheShift({"Panel 3", "Old title\r\n##StartDesc##\r\nBelt entry\r\n"}));
  EXPECT_FALSE(TextsBeforeTheShift({" 0 ", "Belt entry\r\n"}));
  EXPECT_FALSE(TextsBeforeTheShift({"0", "Panel 3\r\n##StartDesc##\r\n"}));
}

}  // namespace
}  // namespace orby::test
