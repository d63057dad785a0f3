#include "files/description_reader.h"

#include <gmock/gmock.h>

#include "core/description.h"
#include "project_fixture.h"

namespace orby::test {
namespace {

using Step = MemoryFiles::Step;

struct Saved {
  std::string text;
  Integer lines;
};

Saved Normalize(const std::string& description) {
  TestProject project;
  project.program.project.ProjectDescription = description;
  SaveDescription(project.program);
  return {project.program.project.ProjectDescription, project.program.project.DescLines};
}

TEST(Description, ThatIsEmptyStaysEmptyAndWritesNoFile) {
  TestProject project;

  SaveDescription(project.program);

  EXPECT_EQ(project.program.project.ProjectDescription, "");
  EXPECT_EQ(project.program.project.DescLines, 2);
  EXPECT_THAT(project.platform.files.created, testing::IsEmpty());
}

TEST(Description, LosesBlankLinesAndItsLastLineEnd) {
  const Saved saved = Normalize("Shale roof\r\n\r\n   \r\n  Water at crosscut 4  \r\n");

  EXPECT_EQ(saved.text, "Shale roof\r\n  Water at crosscut 4  ");
  EXPECT_EQ(saved.lines, 4);
}

TEST(Description, GetsTheSameLineEndForEveryKind) {
  const Saved saved = Normalize("Shale\nCoal\rClay\r\nSandstone");

  EXPECT_EQ(saved.text, "Shale\r\nCoal\r\nClay\r\nSandstone");
  EXPECT_EQ(saved.lines, 6);
}

TEST(Description, OfBlankLinesBecomesEmpty) {
  const Saved saved = Normalize("\r\n   \r\n\r\n");

  EXPECT_EQ(saved.text, "");
  EXPECT_EQ(saved.lines, 2);
}

TEST(Description, KeepsALineOfSixtyCharacters) {
  const std::string sixty(60, 'x');

  EXPECT_EQ(Normalize(sixty).text, sixty);
  EXPECT_EQ(Normalize("  " + sixty + "  ").text, "  " + sixty + "  ");
  EXPECT_EQ(Normalize(sixty).lines, 3);
}

TEST(Description, BreaksALineOfSixtyOneCharactersWithoutABlankAfterSixty) {
  const Saved saved = Normalize(std::string(61, 'x'));

  EXPECT_EQ(saved.text, std::string(60, 'x') + "\r\nx");
  EXPECT_EQ(saved.lines, 5);
}

TEST(Description, BreaksALongLineAfterTheBlankAtPosition45) {
  const Saved saved = Normalize(std::string(44, 'x') + " " + std::string(16, 'y'));

  EXPECT_EQ(saved.text, std::string(44, 'x') + " \r\n" + std::string(16, 'y'));
}

TEST(Description, BreaksALineAtPositionFortyAtTheEarliest) {
  EXPECT_EQ(Normalize(std::string(39, 'x') + " " + std::string(21, 'y')).text,
            std::string(39, 'x') + " \r\n" + std::string(21, 'y'));
  EXPECT_EQ(Normalize(std::string(38, 'x') + " " + std::string(22, 'y')).text,
            std::string(38, 'x') + " " + std::string(21, 'y') + "\r\ny");
}

TEST(Description, CountsCharactersNotBytes) {
  std::string sixtyUmlauts;
  for (int i = 0; i < 60; ++i) sixtyUmlauts += "\xC3\xBC";

  EXPECT_EQ(Normalize(sixtyUmlauts).text, sixtyUmlauts);
}

TEST(Description, KeepsCharactersOutsideTheCodePage) {
  EXPECT_EQ(Normalize("\xE4\xB8\xAD\xE6\x96\x87").text, "\xE4\xB8\xAD\xE6\x96\x87");
  EXPECT_EQ(Normalize("\xC3\x83\xC2\xA9").text, "\xC3\x83\xC2\xA9");
}

TEST(Description, LeavesNoTemporaryFile) {
  TestProject project;
  project.program.project.ProjectDescription = "Shale roof";

  SaveDescription(project.program);

  EXPECT_THAT(project.platform.files.created, testing::ElementsAre(TemporaryDescription));
  EXPECT_FALSE(project.platform.files.files.contains(TemporaryDescription));
}

class FailedTemporaryFile : public testing::TestWithParam<Step> {};

TEST_P(FailedTemporaryFile, KeepsTheDescriptionWithoutAMessage) {
  TestProject project;
  project.program.project.ProjectDescription = "Shale roof\r\n\r\nWater";
  project.platform.files.Fail(GetParam(), error_number::PermissionDenied);

  SaveDescription(project.program);

  EXPECT_EQ(project.program.project.ProjectDescription, "Shale roof\r\n\r\nWater");
  EXPECT_EQ(project.program.project.DescLines, 2);
  EXPECT_THAT(project.platform.boxes.shown, testing::IsEmpty());
  EXPECT_EQ(project.program.session.history.Text, "");
}

INSTANTIATE_TEST_SUITE_P(AnyStep, FailedTemporaryFile,
                         testing::Values(Step::Find, Step::Create, Step::Write, Step::Close, Step::Read, Step::Remove));

TEST(Description, OfMoreLinesThanCanBeCountedIsNotChanged) {
  std::string description;
  for (int i = 0; i < 32766; ++i) description += "x\n";

  const Saved saved = Normalize(description);

  EXPECT_EQ(saved.text, description);
  EXPECT_EQ(saved.lines, 2);
}

struct Loaded {
  std::string text;
  Integer lines;
  std::string behind;  // the line after the description
};

Loaded Load(const std::string& bytes, DescriptionMode mode = DescriptionMode::Marked, Integer fileVersion = 103) {
  TestProject project;
  project.program.project.FileVersion = fileVersion;
  project.program.project.ProjectDescription = "previous";
  if (mode == DescriptionMode::Legacy || fileVersion < 50) project.program.project.ProjectDescription.clear();
  ItemReader reader(bytes);
  LoadDescription(project.program.project, reader, mode);
  return {project.program.project.ProjectDescription, project.program.project.DescLines, reader.ReadLine()};
}

TEST(Description, IsReadBetweenItsMarkers) {
  const Loaded loaded = Load(Lines({"##StartDesc##", "Shale roof", "", "Water", "##EndDesc##", "45"}));

  EXPECT_EQ(loaded.text, "Shale roof\r\nWater\r\n");
  EXPECT_EQ(loaded.lines, 3);
  EXPECT_EQ(loaded.behind, "45");
}

TEST(Description, OfAnEmptyLineBetweenTheMarkersIsEmpty) {
  const Loaded loaded = Load(Lines({"##StartDesc##", "", "##EndDesc##", "45"}));

  EXPECT_EQ(loaded.text, "");
  EXPECT_EQ(loaded.lines, 1);
}

TEST(Description, HasItsWholeFirstLine) {
  const Loaded loaded = Load(Lines({"##StartDesc##", "  \"Shale\", coal ", "##EndDesc##", "45"}));

  EXPECT_EQ(loaded.text, "  \"Shale\", coal \r\n");
}

TEST(Description, HasItsLaterLinesReadAsItems) {
  const Loaded loaded = Load(Lines({"##StartDesc##", "Roof", "  shale, coal ", "\"clay, wet\"", "##EndDesc##", "45"}));

  EXPECT_EQ(loaded.text, "Roof\r\nshale\r\ncoal \r\nclay, wet\r\n");
  EXPECT_EQ(loaded.lines, 5);
}

TEST(Description, IsReadAsWindows1252InEachOfItsLines) {
  const Loaded loaded = Load(Lines({"##StartDesc##",
                                    "Gr\xFC"
                                    "be",
                                    "Stra\xDF"
                                    "e",
                                    "\"G\xE4nge\"", "##EndDesc##", "45"}));

  EXPECT_EQ(loaded.text, "Gr\u00FCbe\r\nStra\u00DFe\r\nG\u00E4nge\r\n");
}

TEST(Description, HasTheLineBeforeItsStartMarkerAndTheMarker) {
  const Loaded loaded = Load(Lines({"Panel 3", "##StartDesc##", "Roof", "##EndDesc##", "45"}));

  EXPECT_EQ(loaded.text, "Panel 3\r\n##StartDesc##\r\nRoof\r\n");
}

TEST(Description, WithAnImmediateEndMarkerIsEmpty) {
  EXPECT_EQ(Load(Lines({"##EndDesc##", "45"})).behind, "45");
  EXPECT_EQ(Load(Lines({"##StartDesc##", "##EndDesc##", "45"})).behind, "45");
}

TEST(Description, KeepsMarkersInLowerCaseAsText) {
  const Loaded loaded = Load(Lines({"##startdesc##", "##enddesc##", "##EndDesc##,45"}));

  EXPECT_EQ(loaded.text, "##startdesc##\r\n##enddesc##\r\n");
  EXPECT_EQ(loaded.behind, "45");
}

TEST(Description, WithoutAnEndMarkerIsAnEndOfFileError) {
  EXPECT_EQ(ErrorNumberOf([] { Load(Lines({"##StartDesc##", "Shale", "45"})); }), 62);
}

TEST(Description, OfMoreLinesThanCanBeCountedOverflowsWhenItIsRead) {
  std::string bytes = "##StartDesc##\r\n";
  for (int i = 0; i < 32766; ++i) bytes += "x\n";

  EXPECT_EQ(Load(bytes + "##EndDesc##\n45\n").lines, 32767);
  EXPECT_EQ(ErrorNumberOf([&] { Load(bytes + "x\n##EndDesc##\n45\n"); }), 6);
}

TEST(Description, OfAnOldFormatIsFiveWholeLines) {
  const std::string bytes = Lines({"Panel 3, east", "", "  Shale", "\"wet\"", "   ", "45"});

  for (const Loaded& loaded : {Load(bytes, DescriptionMode::Legacy), Load(bytes, DescriptionMode::Marked, 49)}) {
    EXPECT_EQ(loaded.text, "Panel 3, east\r\n  Shale\r\n\"wet\"\r\n");
    EXPECT_EQ(loaded.lines, 7);
    EXPECT_EQ(loaded.behind, "45");
  }
}

TEST(Description, HasMarkersSinceFormatFifty) {
  EXPECT_EQ(Load(Lines({"##StartDesc##", "Roof", "##EndDesc##", "45"}), DescriptionMode::Marked, 50).text, "Roof\r\n");
}

// ---- the title in summaries -----------------------------------------------------------------------------------------

std::string ShownTitle(const std::string& title, const std::string& description) {
  UnsavedProject project;
  project.ProjectTitle = title;
  project.ProjectDescription = description;
  return TitleToShow(project);
}

TEST(TitleInASummary, IsThatOfTheProject) { EXPECT_EQ(ShownTitle("Cinder Hollow", "Claystone"), "Cinder Hollow"); }

TEST(TitleInASummary, IsTheFirstLineOfTheDescriptionAfterASaveAndAnOpen) {
  EXPECT_EQ(ShownTitle(" 0 ", "Cinder Hollow\r\n##StartDesc##\r\nClaystone\r\n"), "Cinder Hollow");
  EXPECT_EQ(ShownTitle(" 1 ", "Cinder Hollow"), "Cinder Hollow");
}

TEST(TitleInASummary, IsEmptyIfTheProjectHasNone) {
  EXPECT_EQ(ShownTitle("", "Claystone"), "");
  EXPECT_EQ(ShownTitle(" 0 ", ""), "");
  EXPECT_EQ(ShownTitle(" 0 ", "##StartDesc##\r\nClaystone\r\n"), "");
}

}  // namespace
}  // namespace orby::test
