#include "files/recovery_file.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "any_single.h"
#include "project_fixture.h"
#include "saved_fields.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct RecoveryFile : testing::Test {
  RecoveryFile() {
    FileNew(project.program, Keeping::Name);
    project.program.project.FileSaved = false;
    project.program.project.FileEmpty = false;
  }

  std::string Bytes() const { return RecoveryBytes(project.program.project); }

  TestProject project;
};

TEST_F(RecoveryFile, BeginsWithItsLabelTheProjectAndItsChoices) {
  project.program.project.WorkParms.Units = Metric;
  project.program.project.WorkParms.Basis = StrengthBasis::Ultimate;
  project.program.project.UseAUSStandardTable = 1;
  project.program.project.ProjectTitle = "Panel 3";
  project.program.project.ProjectDescription = "Belt entry\r\nsouth";
  project.program.project.UnitsLocked = true;

  const std::string bytes = Bytes();

  EXPECT_THAT(bytes, StartsWith("ORBY_RECOVERY_1\r\n"
                                "CurrentFile=/designs/panel3.orb\r\n"
                                "Units=1\r\n"
                                "BoltStrengthMode=1\r\n"
                                "UseAUSStandardTable=1\r\n"
                                "ProjectTitle=Panel 3\r\n"
                                "ProjectDescription=Belt entry\\r\\nsouth\r\n"
                                "FileEmpty=0\r\n"
                                "UnitsLocked=1\r\n"
                                "45\r\n"));
}

TEST_F(RecoveryFile, EndsWithTheDataLinesOfTheProjectFile) {
  ASSERT_TRUE(project.Save());
  const std::string& file = project.File();
  const std::string dataLines = file.substr(file.find("##EndDesc##\r\n") + 13);

  const std::string bytes = Bytes();

  EXPECT_TRUE(bytes.ends_with("UnitsLocked=0\r\n" + dataLines));
}

TEST_F(RecoveryFile, HasAnEditedDesignAsItsCommitStoresIt) {
  project.program.project.FileEmpty = true;
  Design design = project.program.project.WorkParms;
  design.Place.DepthofCover = 725;

  const UnsavedProject edited = EditedProject(project.program.project, design);

  EXPECT_EQ(edited.WorkParms.Place.DepthofCover, 725);
  EXPECT_FALSE(edited.FileEmpty);
  EXPECT_TRUE(edited.UnitsLocked);
  EXPECT_EQ(project.program.project.WorkParms.Place.DepthofCover, 400);
}

TEST_F(RecoveryFile, RestoresTheModeOfTheStandingSupportInIntersections) {
  project.program.project.WorkParms.Entries.Standing.TypeMode = ValueSource::Standard;
  project.program.project.WorkParms.Intersections.Standing.TypeMode = ValueSource::Typed;

  const auto read = ReadRecovery(Bytes());

  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->WorkParms.Entries.Standing.TypeMode, ValueSource::Standard);
  EXPECT_EQ(read->WorkParms.Intersections.Standing.TypeMode, ValueSource::Typed);
}

TEST_F(RecoveryFile, KeepsCommasAndQuotesOfABoltDescription) {
  project.program.project.WorkParms.Primary.Desc = "  #6, 3/4\" \"forged\", 5' long\\";

  const auto read = ReadRecovery(Bytes());

  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->WorkParms.Primary.Desc, "  #6, 3/4\" \"forged\", 5' long\\");
}

TEST_F(RecoveryFile, IsAlwaysUtf8) {
  project.program.project.ProjectTitle =
      "Gr\xC3\xBC"
      "n";

  EXPECT_THAT(Bytes(), HasSubstr("ProjectTitle=Gr\xC3\xBC"
                                 "n\r\n"));
}

TEST_F(RecoveryFile, KeepsAPathThatIsNotUtf8) {
  project.program.project.CurrentFile =
      "/designs/gr\xFC"
      "n.orb";

  const auto read = ReadRecovery(Bytes());

  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->CurrentFile,
            "/designs/gr\xFC"
            "n.orb");
}

TEST_F(RecoveryFile, RestoresAnUnsavedProjectWithItsOldName) {
  project.program.project.ProjectTitle = "Panel 3";
  project.program.project.ProjectDescription = "\r\n  a line, kept as it is\r\n\r\n";
  project.program.project.WorkParms.Place.DepthofCover = 725;
  project.program.project.UseAUSStandardTable = 1;
  project.program.project.UnitsLocked = true;
  const auto read = ReadRecovery(Bytes());
  ASSERT_TRUE(read.has_value());
  TestProject next;
  FileNew(next.program, Keeping::Nothing);

  RestoreProject(next.program.project, *read);

  EXPECT_EQ(next.program.project.CurrentFile, "/designs/panel3.orb");
  EXPECT_EQ(next.program.project.ProjectTitle, "Panel 3");
  EXPECT_EQ(next.program.project.ProjectDescription, "\r\n  a line, kept as it is\r\n\r\n");
  EXPECT_EQ(next.program.project.WorkParms.Place.DepthofCover, 725);
  EXPECT_EQ(next.program.project.UseAUSStandardTable, 1);
  EXPECT_FALSE(next.program.project.FileSaved);
  EXPECT_FALSE(next.program.project.FileEmpty);
  EXPECT_TRUE(next.program.project.UnitsLocked);
}

TEST(RecoveryFileOnDisk, IsReadAndWrittenUnchanged) {
  const std::string bytes = ReadTestData("recovery/panel3.tmp");

  const auto project = ReadRecovery(bytes);

  ASSERT_TRUE(project.has_value());
  EXPECT_EQ(project->CurrentFile, "/designs/panel3.orb");
  EXPECT_EQ(project->ProjectTitle, "Panel 3");
  EXPECT_EQ(project->ProjectDescription, "Weak roof\r\nunder the \\ north mains");
  EXPECT_TRUE(project->UnitsLocked);
  EXPECT_EQ(project->WorkParms.Place.CMRR, 25);
  EXPECT_EQ(project->WorkParms.Place.DepthofCover, 1200);
  EXPECT_EQ(RecoveryBytes(*project), bytes);
}

struct Damage {
  const char* name;
  const char* from;
  const char* to;
};

class DamagedRecoveryFile : public testing::TestWithParam<Damage> {};

TEST_P(DamagedRecoveryFile, IsNotRead) {
  TestProject project;
  FileNew(project.program, Keeping::Name);
  std::string bytes = RecoveryBytes(project.program.project);
  const std::size_t at = bytes.find(GetParam().from);
  ASSERT_NE(at, std::string::npos);
  bytes.replace(at, std::string_view(GetParam().from).size(), GetParam().to);

  EXPECT_FALSE(ReadRecovery(bytes).has_value());
}

INSTANTIATE_TEST_SUITE_P(Damages, DamagedRecoveryFile,
                         testing::Values(Damage{"AnotherLabel", "ORBY_RECOVERY_1", "ORBY_105"},
                                         Damage{"AnotherKey", "Units=", "System="},
                                         Damage{"UnknownUnits", "Units=0", "Units=2"},
                                         Damage{"NoFlag", "FileEmpty=1", "FileEmpty=2"},
                                         Damage{"NumberWithALetter", "\r\n400\r\n", "\r\n4x0\r\n"},
                                         Damage{"NumberBeyondAnInteger", "\r\n45\r\n", "\r\n32768\r\n"},
                                         Damage{"NumberBeyondASingle", "\r\n400\r\n", "\r\n4E+39\r\n"},
                                         Damage{"LineMissing", "\r\n400\r\n", "\r\n"},
                                         Damage{"LineTooMany", "\r\n400\r\n", "\r\n400\r\n\r\n"},
                                         Damage{"LineEndOfAnotherSystem", "\r\n400\r\n", "\n400\n"},
                                         Damage{"TextOfAnotherEncoding", "ProjectTitle=", "ProjectTitle=\xFC"},
                                         Damage{"DescriptionOfAnotherEncoding", "Description=", "Description=\xFC"},
                                         Damage{"EscapeOfNothing", "ProjectTitle=", "ProjectTitle=\\x"}),
                         [](const testing::TestParamInfo<Damage>& damage) { return damage.param.name; });

TEST_F(RecoveryFile, NamesItsProjectEvenWithACutEscape) {
  EXPECT_EQ(ProjectNamedIn("ORBY_RECOVERY_1\r\nCurrentFile=/designs/panel3\\"), "/designs/panel3\\");
  EXPECT_EQ(ProjectNamedIn("ORBY_RECOVERY_1\r\nCurrentFile=/designs/panel3\\\r\nUnits=0\r\n"), "/designs/panel3\\");
}

TEST_F(RecoveryFile, ThatIsCutAnywhereIsNotRead) {
  const std::string bytes = Bytes();

  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(ReadRecovery(std::string_view(bytes).substr(0, length)).has_value()) << length;
  }
}

TEST_F(RecoveryFile, WithMoreLinesAfterItsEndIsNotRead) { EXPECT_FALSE(ReadRecovery(Bytes() + "1\r\n").has_value()); }

rc::Gen<std::string> AnyText() {
  const std::vector<std::string> characters{
      "a", "\\", "r", "n", " ", ",", "\"", "=", "#", "\r", "\n", "\xC3\xBC", "\xE2\x82\xAC", "\xE4\xB8\xAD"};
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(characters)),
                      [](const std::vector<std::string>& parts) {
                        std::string text;
                        for (const auto& part : parts) text += part;
                        return text;
                      });
}

UnsavedProject AnyProject() {
  UnsavedProject project;
  for (std::string* text : {&project.CurrentFile, &project.ProjectTitle, &project.ProjectDescription}) {
    *text = *AnyText();
  }
  project.WorkParms.Units = *rc::gen::element(English, Metric);
  project.WorkParms.Basis = StrengthBasis{*rc::gen::arbitrary<Integer>()};
  project.UseAUSStandardTable = *rc::gen::arbitrary<Integer>();
  project.FileEmpty = *rc::gen::arbitrary<bool>();
  project.UnitsLocked = *rc::gen::arbitrary<bool>();
  for (const auto& saved : SavedFields) {
    if (const auto* integer = std::get_if<IntegerField>(&saved.field)) {
      integer->Set(project.WorkParms, *rc::gen::arbitrary<Integer>());
    } else if (const auto* single = std::get_if<SingleField>(&saved.field)) {
      single->In(project.WorkParms) = *AnySingle();
    } else {
      std::get<TextField>(saved.field).In(project.WorkParms) = *AnyText();
    }
  }
  // A record stores the rating as a whole number.
  project.WorkParms.Place.CMRR = *rc::gen::arbitrary<Integer>();
  return project;
}

RC_GTEST_PROP(RecoveryRoundTrip, KeepsAnyProjectUnchanged, ()) {
  const UnsavedProject project = AnyProject();

  const auto read = ReadRecovery(RecoveryBytes(project));

  RC_ASSERT(read.has_value());
  RC_ASSERT(read->CurrentFile == project.CurrentFile);
  RC_ASSERT(read->WorkParms.Units == project.WorkParms.Units);
  RC_ASSERT(read->WorkParms.Basis == project.WorkParms.Basis);
  RC_ASSERT(read->UseAUSStandardTable == project.UseAUSStandardTable);
  RC_ASSERT(read->ProjectTitle == project.ProjectTitle);
  RC_ASSERT(read->ProjectDescription == project.ProjectDescription);
  RC_ASSERT(read->FileEmpty == project.FileEmpty);
  RC_ASSERT(read->UnitsLocked == project.UnitsLocked);
  for (const auto& saved : SavedFields) {
    if (ValueText(read->WorkParms, saved.field) != ValueText(project.WorkParms, saved.field)) RC_FAIL(saved.name);
  }
}

}  // namespace
}  // namespace orby::test
