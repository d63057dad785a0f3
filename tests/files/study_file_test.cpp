// The file of a study: its members, what is unknown in it, and what happens to a damaged one.
#include "files/study_file.h"

#include <gmock/gmock.h>

#include <set>

#include "support/recording_platform.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string Project = "/mine/north.ORB";
const std::string Path = "/mine/north.study.json";

const std::string Example = R"({
  "format": 1,
  "note": "borings of 2024",
  "inputs": [
    {
      "field": "roof rating",
      "source": "core logs",
      "distribution": "measured values",
      "values": [
        38.0,
        45.5,
        52.0
      ]
    },
    {
      "field": "depth of cover",
      "distribution": "lognormal",
      "mean": 500.1,
      "deviation": 120.0,
      "lowest": 300.0,
      "highest": 900.0
    }
  ],
  "rankCorrelations": [
    [
      1.0,
      -0.3
    ],
    [
      -0.3,
      1.0
    ]
  ],
  "sampling": "sobol",
  "seed": 18446744073709551615,
  "samples": 200000,
  "batchSize": 5000,
  "confidence": 0.9,
  "stopWidth": 0.01,
  "figures": [
    "actual-psup",
    "suggested-psup"
  ]
}
)";

Study StudyIn(const std::string& bytes) { return ReadStudy(bytes).Stored.value().Settings; }

std::string FaultIn(const std::string& bytes) { return ReadStudy(bytes).Fault; }

// Returns the example with a part replaced.
std::string With(const std::string& part, const std::string& other) {
  std::string bytes = Example;
  const std::size_t at = bytes.find(part);
  if (at == std::string::npos) throw std::logic_error("no such part");
  return bytes.replace(at, part.size(), other);
}

TEST(StudyFile, HoldsAllSettings) {
  const Study study = StudyIn(Example);

  ASSERT_EQ(study.Inputs.size(), 2);
  EXPECT_EQ(study.Inputs[0].Name, "roof rating");
  EXPECT_TRUE(study.Inputs[0].Field == SingleField([](auto& d) { return &d.Place.CMRR; }));
  EXPECT_EQ(study.Inputs[0].Law, Distribution{(EmpiricalLaw{{38, 45.5, 52}})});
  EXPECT_TRUE(study.Inputs[1].Field == SingleField([](auto& d) { return &d.Place.DepthofCover; }));
  EXPECT_EQ(study.Inputs[1].Law, (Distribution{LognormalLaw{500.1, 120}, 300, 900}));
  EXPECT_EQ(study.Spearman(0, 1), -0.3);
  EXPECT_EQ(study.Sampling, Scheme::Sobol);
  EXPECT_EQ(study.Seed, 18446744073709551615U);
  EXPECT_EQ(study.Samples, 200'000);
  EXPECT_EQ(study.BatchSize, 5000);
  EXPECT_EQ(study.Confidence, 0.9);
  EXPECT_EQ(study.StopWidth, 0.01);
  EXPECT_THAT(study.Figures, ElementsAre("actual-psup", "suggested-psup"));
}

TEST(StudyFile, WrittenAgainHasTheSameBytes) { EXPECT_EQ(StudyBytes(*ReadStudy(Example).Stored), Example); }

TEST(StudyFile, KeepsUnknownMembersWhenTheStudyChanges) {
  StoredStudy stored = *ReadStudy(Example).Stored;
  stored.Settings.Inputs[0].Law = {NormalLaw{45, 6}};
  stored.Settings.StopWidth.reset();

  const std::string bytes = StudyBytes(stored);

  EXPECT_THAT(bytes, HasSubstr("\"note\": \"borings of 2024\""));
  EXPECT_THAT(bytes, HasSubstr("\"source\": \"core logs\""));
  EXPECT_THAT(bytes, Not(HasSubstr("values")));
  EXPECT_THAT(bytes, Not(HasSubstr("stopWidth")));
  EXPECT_EQ(StudyIn(bytes), stored.Settings);
}

TEST(StudyFile, KeepsEachDistributionToTheLastDigit) {
  const DistributionLaw laws[] = {NormalLaw{0.1, 1.0 / 3},       LognormalLaw{2.0 / 3, 1e-7},
                                  TriangularLaw{1e-300, 0.3, 7}, UniformLaw{-0.0001, 16777217},
                                  BetaLaw{0.7, 2.2, -1, 1e30},   EmpiricalLaw{{1.0 / 7, -3}}};
  for (const DistributionLaw& law : laws) {
    StoredStudy stored;
    stored.Settings.Inputs = {{"entry width", [](auto& d) { return &d.Place.EntryWidth; }, {law, 1.0 / 9}}};

    EXPECT_EQ(StudyIn(StudyBytes(stored)), stored.Settings) << LawName(law);
  }
}

TEST(StudyFile, MayLeaveOutWhatHasADefault) {
  const Study study = StudyIn(R"({"format": 1, "inputs": []})");

  EXPECT_EQ(study, Study());
}

TEST(StudyFile, NamesEachNumberThatFiguresDependOnOnce) {
  std::set<std::string_view> names;
  for (const VariableInput& input : VariableInputs()) names.insert(input.Name);

  EXPECT_EQ(names.size(), VariableInputs().size());
  EXPECT_TRUE(names.contains("primary row spacing"));
  EXPECT_TRUE(names.contains("intersection number of standing supports"));
  EXPECT_FALSE(names.contains("cost of a bolt"));
  EXPECT_FALSE(names.contains("rock type"));
}

TEST(StudyFile, TellsWhatIsWrongInIt) {
  EXPECT_EQ(FaultIn(""), "It is not the study of a project.");
  EXPECT_EQ(FaultIn("[1]"), "It is not the study of a project.");
  EXPECT_EQ(FaultIn(R"({"inputs": []})"), "It is not the study of a project.");
  EXPECT_EQ(FaultIn(Example.substr(0, 300)), "It is not the study of a project.");
  EXPECT_EQ(FaultIn(R"({"format": 1})"), "The study has no \"inputs\".");
  EXPECT_EQ(FaultIn(With("\"format\": 1", "\"format\": 2")), "It was written by a later version of the program.");
  EXPECT_EQ(FaultIn(With("depth of cover", "depth")), "A design has no number \"depth\" that may vary.");
  EXPECT_EQ(FaultIn(With("lognormal", "gamma")), "depth of cover: there is no distribution \"gamma\".");
  EXPECT_EQ(FaultIn(With("500.1", "\"500\"")), "depth of cover: \"mean\" must be a number.");
  EXPECT_EQ(FaultIn(With("\"mean\"", "\"Mean\"")), "depth of cover: \"mean\" must be a number.");
  EXPECT_EQ(FaultIn(With("45.5", "null")), "roof rating: \"values\" must be a list of numbers.");
  EXPECT_EQ(FaultIn(With("-0.3", "-0.3, 0")), "\"rankCorrelations\" must have a row and a column for each input.");
  EXPECT_EQ(FaultIn(With("sobol", "halton")), "There is no sampling \"halton\".");
  EXPECT_EQ(FaultIn(With("200000", "-5")), "\"samples\" must be a whole number.");
  EXPECT_EQ(FaultIn(With("\"actual-psup\"", "7")), "\"figures\" must be a list of texts.");
}

TEST(StudyFile, IsBesideItsProject) {
  EXPECT_EQ(StudyPath("/mine/north.ORB"), "/mine/north.study.json");
  EXPECT_EQ(StudyPath("/mine.2024/north"), "/mine.2024/north.study.json");
  EXPECT_EQ(StudyPath("C:\\mine\\north.east.orb"), "C:\\mine\\north.east.study.json");
}

TEST(StudyFile, SavedIsLoadedAgain) {
  RecordingPlatform platform;
  StoredStudy stored = *ReadStudy(Example).Stored;
  stored.Settings.Seed = 7;

  SaveStudy(platform.files, Project, stored);
  const LoadedStudy loaded = LoadStudy(platform.files, Project, English, DamagedStudy::PutAside);

  ASSERT_TRUE(loaded.Stored);
  EXPECT_EQ(loaded.Stored->Settings, stored.Settings);
  EXPECT_EQ(loaded.Message, "");
}

TEST(StudyFile, OfAProjectWithoutOneIsMissingWithoutAMessage) {
  RecordingPlatform platform;

  const LoadedStudy loaded = LoadStudy(platform.files, Project, English, DamagedStudy::PutAside);

  EXPECT_FALSE(loaded.Stored);
  EXPECT_EQ(loaded.Message, "");
}

TEST(StudyFile, DamagedIsToldAndPutAside) {
  RecordingPlatform platform;
  platform.files.files[Path] = "{\"format\": 1, ";
  platform.files.files[Path + ".kept"] = "an earlier one";

  const LoadedStudy loaded = LoadStudy(platform.files, Project, English, DamagedStudy::PutAside);

  EXPECT_FALSE(loaded.Stored);
  EXPECT_EQ(loaded.Message,
            "The study /mine/north.study.json cannot be used. It is not the study of a project. It is kept in "
            "/mine/north.study.json.kept2.");
  EXPECT_FALSE(platform.files.files.contains(Path));
  EXPECT_EQ(platform.files.files[Path + ".kept2"], "{\"format\": 1, ");
  EXPECT_EQ(platform.files.files[Path + ".kept"], "an earlier one");
}

TEST(StudyFile, DamagedStaysWhereItIsForAScript) {
  RecordingPlatform platform;
  platform.files.files[Path] = "{";

  const LoadedStudy loaded = LoadStudy(platform.files, Project, English, DamagedStudy::Leave);

  EXPECT_EQ(loaded.Message, "The study /mine/north.study.json cannot be used. It is not the study of a project.");
  EXPECT_TRUE(platform.files.files.contains(Path));
}

// After a project is converted its study would vary a depth in feet as one in metres.
TEST(StudyFile, InOtherUnitsIsToldAndStays) {
  RecordingPlatform platform;
  StoredStudy stored = *ReadStudy(Example).Stored;
  stored.Units = English;
  SaveStudy(platform.files, Project, stored);

  const LoadedStudy loaded = LoadStudy(platform.files, Project, Metric, DamagedStudy::PutAside);

  EXPECT_FALSE(loaded.Stored);
  EXPECT_EQ(loaded.Message,
            "The study /mine/north.study.json cannot be used. Its numbers have English units, and those of the project "
            "are Metric.");
  EXPECT_TRUE(platform.files.files.contains(Path));
  EXPECT_TRUE(LoadStudy(platform.files, Project, English, DamagedStudy::PutAside).Stored);
}

TEST(StudyFile, WithUnitsThatDoNotExistIsRefused) {
  EXPECT_EQ(ReadStudy(R"({"format": 1, "inputs": [], "units": "cubits"})").Fault,
            "Its \"units\" are not \"english\" or \"metric\".");
}

TEST(StudyFile, OfALaterVersionIsToldAndStays) {
  RecordingPlatform platform;
  platform.files.files[Path] = R"({"format": 2})";

  const LoadedStudy loaded = LoadStudy(platform.files, Project, English, DamagedStudy::PutAside);

  EXPECT_THAT(loaded.Message, HasSubstr("It was written by a later version of the program."));
  EXPECT_TRUE(platform.files.files.contains(Path));
}

}  // namespace
}  // namespace orby::test
