#include "files/project_file.h"

#include <gmock/gmock.h>

#include "project_fixture.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// Returns a file of the newest format with one line replaced. Lines count from 1.
std::string WithLine(std::size_t number, const std::string& text) {
  const std::string bytes = ReadTestData("projects/orby_105.orb");
  std::size_t start = 0;
  for (std::size_t line = 1; line < number; ++line) start = bytes.find("\r\n", start) + 2;
  std::string changed = bytes;
  return changed.replace(start, bytes.find("\r\n", start) - start, text);
}

constexpr std::size_t LinesAheadOfData = 9;

std::string WithDataLine(std::size_t number, const std::string& text) {
  return WithLine(LinesAheadOfData + number, text);
}

const std::string RefusalText = "Invalid ORBY file format. File can not be opened.";

TEST(ProjectFile, IsASavedProjectAfterItIsOpened) {
  TestProject project;
  project.program.windows.WorkParmsCopy.Place.DepthofCover = 777;
  project.program.session.OutBuf[1] = "report";

  EXPECT_TRUE(project.Open(ReadTestData("projects/orby_104.orb")));

  EXPECT_TRUE(project.program.project.FileSaved);
  EXPECT_FALSE(project.program.project.FileEmpty);
  EXPECT_TRUE(project.program.project.UnitsLocked);
  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
  EXPECT_EQ(project.program.session.OutBuf[1], "");
  EXPECT_EQ(project.program.windows.WorkParmsCopy.Place.DepthofCover, 777);
  EXPECT_FALSE(project.platform.windows.waitCursor);
  EXPECT_EQ(project.program.session.history.Text,
            "1. File initialized. Use Edit-Project Parameters to enter data\r\n2. Opening: /designs/panel3.orb\r\n");
}

TEST(ProjectFile, HasItsTitleAndAMarkerInTheDescriptionAfterItIsOpened) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  project.program.project.ProjectTitle = "T";
  project.program.project.ProjectDescription = "D1\r\nD2";

  ASSERT_TRUE(project.Save());
  ASSERT_TRUE(project.Open());

  EXPECT_EQ(project.program.project.ProjectTitle, " 0 ");
  EXPECT_EQ(project.program.project.ProjectDescription, "T\r\n##StartDesc##\r\nD1\r\nD2\r\n");
  EXPECT_EQ(project.program.project.DescLines, 5);
}

TEST(ProjectFile, GetsALongerDescriptionButTheSameValuesWithEachSaveAndOpen) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  project.program.project.ProjectTitle = "T";
  project.program.project.ProjectDescription = "D1\r\nD2";
  ASSERT_TRUE(project.Save());
  const std::string saved = project.File();
  const std::string data = saved.substr(saved.find("##EndDesc##"));

  ASSERT_TRUE(project.Open());
  ASSERT_TRUE(project.Save());
  ASSERT_TRUE(project.Open());
  EXPECT_EQ(project.program.project.ProjectTitle, " 0 ");
  EXPECT_EQ(project.program.project.ProjectDescription, " 0 \r\n##StartDesc##\r\nT\r\n##StartDesc##\r\nD1\r\nD2\r\n");

  ASSERT_TRUE(project.Save());
  ASSERT_TRUE(project.Open());
  EXPECT_EQ(project.program.project.ProjectTitle, " 0 ");
  EXPECT_EQ(project.program.project.ProjectDescription,
            " 0 \r\n##StartDesc##\r\n0 \r\n##StartDesc##\r\nT\r\n##StartDesc##\r\nD1\r\nD2\r\n");

  ASSERT_TRUE(project.Save());
  EXPECT_EQ(project.File().substr(project.File().find("##EndDesc##")), data);
}

TEST(ProjectFile, WithABlankTitleHasOnlyTheMarkerInTheDescription) {
  TestProject project;
  FileNew(project.program, Keeping::Name);

  ASSERT_TRUE(project.Save());
  ASSERT_TRUE(project.Open());

  EXPECT_EQ(project.program.project.ProjectTitle, " 0 ");
  EXPECT_EQ(project.program.project.ProjectDescription, "##StartDesc##\r\n");
}

TEST(ProjectFile, StoresTheTableChoiceButDoesNotRestoreIt) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  project.program.project.UseAUSStandardTable = 1;

  ASSERT_TRUE(project.Save());
  project.program.project.UseAUSStandardTable = 0;
  ASSERT_TRUE(project.Open());

  EXPECT_EQ(project.program.project.UseAUSStandardTable, 0);
  EXPECT_EQ(project.program.project.ProjectTitle, " 1 ");
}

TEST(ProjectFile, RestoresTheSupportModeOfIntersectionsAsThatOfEntries) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  project.program.project.WorkParms.Entries.Standing.TypeMode = ValueSource::Standard;
  project.program.project.WorkParms.Intersections.Standing.TypeMode = ValueSource::Typed;

  ASSERT_TRUE(project.Save());
  ASSERT_TRUE(project.Open());

  EXPECT_EQ(project.program.project.WorkParms.Entries.Standing.TypeMode, ValueSource::Typed);
  EXPECT_EQ(project.program.project.WorkParms.Intersections.Standing.TypeMode, ValueSource::Standard);
}

TEST(ProjectFile, ShiftsTheFieldsAfterABoltDescriptionWithAComma) {
  TestProject project;

  ASSERT_TRUE(project.Open(WithDataLine(18, "Rebar, 6 ft")));

  const Design& record = project.program.project.WorkParms;
  EXPECT_EQ(record.Primary.Desc, "Rebar");
  EXPECT_EQ(record.Primary.DiameterMode, ValueSource{6});
  EXPECT_EQ(record.Primary.DiameterStd, 0);  // "ft"
  EXPECT_EQ(record.Primary.DiameterManual, 119);
  EXPECT_EQ(record.Primary.GradeMode, ValueSource{20});  // 20.25 as a whole number
  EXPECT_EQ(record.Primary.GradeStd, 21.25F);
}

TEST(ProjectFile, KeepsCommasAndQuotesInASupportName) {
  TestProject project;

  ASSERT_TRUE(project.Open(WithDataLine(60, " \"Crib\", 4-point ")));

  EXPECT_EQ(project.program.project.WorkParms.Entries.Standing.TypeName, " \"Crib\", 4-point ");
  EXPECT_EQ(project.program.project.WorkParms.Entries.Standing.Capacity, 61.25F);
  EXPECT_EQ(project.program.project.WorkParms.Cost.WeeksYear, 120.25F);
}

TEST(ProjectFile, ReadsALineWithoutANumberAsZero) {
  TestProject project;

  ASSERT_TRUE(project.Open(WithDataLine(5, "deep")));

  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 0);
  EXPECT_EQ(project.program.project.WorkParms.Place.UnitWeight, 6.25F);
}

TEST(ProjectFile, ReadsNumbersInExponentForm) {
  TestProject project;

  ASSERT_TRUE(project.Open(WithDataLine(5, "3.333334E-02")));

  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 3.333334E-02F);
}

TEST(ProjectFile, ReadsAnUnknownUnitSystemAsEnglish) {
  for (const char* units : {" 2 ", "-1 ", " 32767 "}) {
    TestProject project;
    project.program.session.settings.UnitsDefault = Metric;

    ASSERT_TRUE(project.Open(WithLine(2, units)));

    EXPECT_EQ(project.program.project.WorkParms.Units, English) << units;
  }
}

TEST(ProjectFile, IsReadWithAnyKindOfLineEnd) {
  std::string bytes = ReadTestData("projects/orby_104.orb");
  std::erase(bytes, '\r');
  for (const char lineEnd : {'\n', '\r'}) {
    std::replace(bytes.begin(), bytes.end(), '\n', lineEnd);
    TestProject project;

    ASSERT_TRUE(project.Open(bytes));

    EXPECT_EQ(project.program.project.ProjectTitle, "Tailgate crosscuts, panel 3");
    EXPECT_EQ(project.program.project.WorkParms.Intersections.Standing.TypeName, "Pumped crib \"96\"");
    EXPECT_EQ(project.program.project.WorkParms.Cost.Advance, 222);
  }
}

class RefusedFile : public testing::TestWithParam<const char*> {};

TEST_P(RefusedFile, ShowsAnErrorAndLeavesANewProjectWithItsName) {
  TestProject project;
  project.program.project.FileVersion = 102;
  project.program.project.WorkParms.Place.DepthofCover = 777;
  project.program.project.UnitsLocked = true;

  EXPECT_FALSE(project.Open(GetParam()));

  EXPECT_THAT(project.platform.boxes.Texts(), ElementsAre(RefusalText));
  EXPECT_EQ(project.platform.boxes.shown.front().style, BoxButtons::Ok);
  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_TRUE(project.program.project.FileSaved);
  EXPECT_TRUE(project.program.project.FileEmpty);
  EXPECT_FALSE(project.program.project.UnitsLocked);
  EXPECT_EQ(project.program.project.FileVersion, 102);
  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
  EXPECT_FALSE(project.platform.windows.waitCursor);
}

INSTANTIATE_TEST_SUITE_P(Labels, RefusedFile,
                         testing::Values("ORBY_101\r\n 0 \r\n", "ORBY_106\r\n 0 \r\n", "orby_105\r\n 0 \r\n",
                                         "ORBY_105 \r\n 0 \r\n", "ORBY_1055\r\n", "\r\nORBY_105\r\n", "ORBY_10",
                                         "\xEF\xBB\xBFORBY_105\r\n"));

TEST(ProjectFile, HasALabelThatEndsAtAComma) {
  TestProject project;

  // The rest of the first line is read as the unit system, and the line after it as the strength mode.
  ASSERT_TRUE(project.Open(WithLine(1, "ORBY_105,1")));

  EXPECT_EQ(project.program.project.FileVersion, 104);
  EXPECT_EQ(project.program.project.WorkParms.Basis, StrengthBasis::Ultimate);
  EXPECT_EQ(project.program.project.ProjectTitle, " 1 ");
}

TEST(ProjectFile, IsReadWithALabelInQuotesAfterBlanks) {
  TestProject project;

  EXPECT_TRUE(project.Open(WithLine(1, "  \"ORBY_105\" ")));
}

TEST(ProjectFile, ThatIsEmptyIsAnEndOfFileError) {
  TestProject project;

  EXPECT_EQ(ErrorNumberOf([&] { project.Open(""); }), 62);
  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

TEST(ProjectFile, ThatIsMissingIsAnErrorAndLeavesANewProject) {
  TestProject project;
  project.program.project.WorkParms.Place.DepthofCover = 777;

  EXPECT_EQ(ErrorNumberOf([&] { project.Open(); }), 53);

  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 400);
  EXPECT_TRUE(project.program.project.FileEmpty);
}

TEST(ProjectFile, ThatIsCutAnywhereIsAnEndOfFileError) {
  const std::string bytes = ReadTestData("projects/orby_105.orb");
  const std::string lastValue = " 222 \r\n";
  for (std::size_t length = 0; length <= bytes.size() - lastValue.size(); ++length) {
    TestProject project;
    project.File() = bytes.substr(0, length);
    bool ok = false;

    const int error = ErrorNumberOf([&] { ok = FileOpen(project.program); });

    const bool labelIsCut = length > 0 && length < 8;
    EXPECT_EQ(error, labelIsCut ? 0 : 62) << length;
    EXPECT_EQ(project.platform.boxes.Texts().size(), labelIsCut ? 1U : 0U) << length;
    EXPECT_FALSE(ok);
    EXPECT_TRUE(project.program.project.FileEmpty);
    EXPECT_FALSE(project.program.project.UnitsLocked);
  }
}

TEST(ProjectFile, KeepsTheFieldsReadBeforeAnError) {
  const std::string bytes = ReadTestData("projects/orby_105.orb");
  TestProject project;
  project.File() = bytes.substr(0, bytes.find("6.25"));

  EXPECT_EQ(ErrorNumberOf([&] { project.Open(); }), 62);

  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 5.25F);
  EXPECT_EQ(project.program.project.WorkParms.Place.UnitWeight, 162);
}

TEST(ProjectFile, OverflowsForAValueOutsideTheRangeOfItsField) {
  TestProject project;

  EXPECT_EQ(ErrorNumberOf([&] { project.Open(WithDataLine(1, "40000")); }), 6);
  EXPECT_EQ(ErrorNumberOf([&] { project.Open(WithDataLine(5, "1E39")); }), 6);
}

TEST(ProjectFile, LeavesTheWaitCursorToItsCommandWhenTheReadFails) {
  TestProject project;

  EXPECT_EQ(ErrorNumberOf([&] { project.Open("ORBY_105\r\n"); }), 62);

  EXPECT_TRUE(project.platform.windows.waitCursor);
}

TEST(ProjectFile, IsReadAsWindows1252) {
  TestProject project;

  ASSERT_TRUE(project.Open(WithDataLine(60, "St\xFCtze \x80 5")));

  EXPECT_EQ(project.program.project.WorkParms.Entries.Standing.TypeName, "St\xC3\xBCtze \xE2\x82\xAC 5");
}

TEST(ProjectFile, IsReadAsUtf8) {
  TestProject project;

  ASSERT_TRUE(project.Open(WithDataLine(60, "\xE6\x94\xAF\xE6\x9F\xB1")));

  EXPECT_EQ(project.program.project.WorkParms.Entries.Standing.TypeName, "\xE6\x94\xAF\xE6\x9F\xB1");
}

// An open project with unsaved changes, and another project to open.
struct UnsavedTestProject : TestProject {
  UnsavedTestProject() {
    FileNew(program, Keeping::Name);
    program.project.WorkParms.Place.DepthofCover = 777;
    program.project.FileSaved = false;
    program.project.PreviousFile = "/designs/previous.orb";
    File() = ReadTestData("projects/orby_104.orb");
  }
};

TEST(OpeningAProject, AsksAboutUnsavedChangesOfThePreviousOne) {
  UnsavedTestProject project;
  project.platform.boxes.answers = {BoxResult::No};

  EXPECT_TRUE(project.Open());

  ASSERT_EQ(project.platform.boxes.shown.size(), 1U);
  EXPECT_EQ(project.platform.boxes.shown[0].text, "Save changes to: /designs/previous.orb?");
  EXPECT_EQ(project.platform.boxes.shown[0].style,
            BoxStyle(BoxButtons::YesNo, BoxIcon::Question, BoxDefault::SecondButton));
  EXPECT_THAT(project.platform.files.created, IsEmpty());
}

TEST(OpeningAProject, SavesThePreviousOneFirstAfterYes) {
  UnsavedTestProject project;
  project.platform.boxes.answers = {BoxResult::Yes};

  EXPECT_TRUE(project.Open());

  EXPECT_THAT(project.platform.files.created, ElementsAre("/designs/previous.orb"));
  EXPECT_THAT(project.platform.files.files["/designs/previous.orb"], HasSubstr("\r\n777\r\n"));
  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
  EXPECT_EQ(project.program.project.PreviousFile, "/designs/previous.orb");
  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 5.25F);
}

TEST(OpeningAProject, AsksForTheNameOfAnUntitledOneAndOpensTheChosenFile) {
  UnsavedTestProject project;
  project.program.project.PreviousFile = "Untitled";
  project.platform.boxes.answers = {BoxResult::Yes};
  project.platform.fileDialogs.answers = {"/designs/named.orb"};

  EXPECT_TRUE(project.Open());

  EXPECT_THAT(project.platform.files.files["/designs/named.orb"], HasSubstr("\r\n777\r\n"));
  EXPECT_EQ(project.program.project.CurrentFile, ProjectPath);
}

TEST(OpeningAProject, EndsWhenTheSaveFails) {
  UnsavedTestProject project;
  project.platform.boxes.answers = {BoxResult::Yes, BoxResult::Cancel};
  project.platform.files.Fail(MemoryFiles::Step::Create, error_number::PermissionDenied);

  EXPECT_FALSE(project.Open());

  EXPECT_THAT(project.platform.boxes.Texts(),
              ElementsAre("Save changes to: /designs/previous.orb?", "Error occurred: Permission denied (70)"));
  EXPECT_EQ(project.program.project.CurrentFile, "/designs/previous.orb");
  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 777);
  EXPECT_FALSE(project.program.project.FileSaved);
  EXPECT_FALSE(project.platform.windows.waitCursor);
}

TEST(OpeningAProject, EndsWhenTheSaveIsCancelled) {
  UnsavedTestProject project;
  project.program.project.PreviousFile = "Untitled";
  project.platform.boxes.answers = {BoxResult::Yes};

  EXPECT_FALSE(project.Open());

  EXPECT_EQ(project.program.project.CurrentFile, "Untitled");
  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 777);
  EXPECT_FALSE(project.program.project.FileSaved);
}

TEST(OpeningAProject, KeepsTheOldNameWhenASaveUnderANewNameFails) {
  UnsavedTestProject project;
  project.program.project.PreviousFile = "Untitled";
  project.platform.boxes.answers = {BoxResult::Yes, BoxResult::Cancel};
  project.platform.fileDialogs.answers = {"/designs/named.orb"};
  project.platform.files.Fail(MemoryFiles::Step::Create, error_number::PermissionDenied);

  EXPECT_FALSE(project.Open());

  EXPECT_EQ(project.program.project.CurrentFile, "Untitled");
}

TEST(OpeningAProject, DoesNotAskAboutASavedOne) {
  UnsavedTestProject project;
  project.program.project.FileSaved = true;

  EXPECT_TRUE(project.Open());

  EXPECT_THAT(project.platform.boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace orby::test
