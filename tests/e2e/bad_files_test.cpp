// Files that are no projects, or are cut off: orby-cli ends with an exit code and a message, never crashes, and writes
// no file.
#include <gmock/gmock.h>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::AnyOf;
using testing::HasSubstr;

class BadFile : public CompanionTest {
 protected:
  // Runs every command on the file and expects this exit code and this text, and no written file.
  void ExpectRefusal(const std::string& file, int exitCode, const std::string& words) const {
    const std::string out = Path("out.ORB");
    const std::vector<std::vector<std::string>> lines{{"report", file},    {"cost", file},        {"live", file},
                                                      {"verdicts", file},  {"validate", file},    {"curve", "1", file},
                                                      {"save", file, out}, {"convert", file, out}};
    for (const auto& words_ : lines) {
      const Outcome outcome = Run(words_);
      EXPECT_EQ(outcome.exitCode, exitCode) << words_[0];
      EXPECT_EQ(outcome.out, "") << words_[0];
      EXPECT_THAT(outcome.err, HasSubstr(words)) << words_[0];
      EXPECT_FALSE(Exists(out)) << words_[0];
    }
  }
};

constexpr auto Invalid = "Invalid ORBY file format. File can not be opened.\n";
constexpr auto TooShort = "run-time error 62: Input past end of file\n";

TEST_F(BadFile, ThatIsEmptyIsReadPastItsEnd) { ExpectRefusal(Write("empty.ORB", ""), 3, TooShort); }

TEST_F(BadFile, ThatIsMissingIsNotFound) {
  ExpectRefusal(Path("missing.ORB"), 3, "run-time error 53: File not found\n");
}

TEST_F(BadFile, ThatIsAFolderCannotBeRead) { ExpectRefusal(Path("."), 3, "run-time error 75: "); }

TEST_F(BadFile, WithAnotherLabelIsRefused) {
  std::string bytes = Read(Example("weak-roof"));
  for (const char* label : {"ORBY_101", "ORBY_106", "orby_105", "ORBY_105x", "PROJECT"}) {
    ExpectRefusal(Write("label.ORB", label + bytes.substr(8)), 2, Invalid);
  }
}

TEST_F(BadFile, WithACommaAfterItsLabelIsReadOnAfterIt) {
  const std::string bytes = Read(Example("weak-roof"));

  const Outcome outcome = Run({"report", Write("comma.ORB", "ORBY_105,x" + bytes.substr(8))});

  EXPECT_EQ(outcome.exitCode, 0);
  EXPECT_THAT(outcome.out, HasSubstr("[PROJECT TITLE]\r\n 0 \r\n")) << "the items of the header shift by one";
}

TEST_F(BadFile, MadeOfCommasIsRefused) { ExpectRefusal(Write("commas.ORB", std::string(5000, ',')), 2, Invalid); }

TEST_F(BadFile, MadeOfBytesIsRefused) {
  std::string bytes;
  for (int i = 0; i < 4096; ++i) bytes.push_back(static_cast<char>(i * 37 % 256));
  ExpectRefusal(Write("bytes.ORB", bytes), 2, Invalid);
}

TEST_F(BadFile, CutAnywhereIsReadPastItsEndOrRefused) {
  const std::string bytes = Read(Example("gateroad-standing-supports"));
  const std::string out = Path("out.ORB");

  for (std::size_t length = 0; length + 4 < bytes.size(); length += 97) {
    const Outcome outcome = Run({"save", Write("cut.ORB", bytes.substr(0, length)), out});

    EXPECT_THAT(outcome.exitCode, AnyOf(2, 3)) << length;
    EXPECT_FALSE(Exists(out)) << length;
  }
}

TEST_F(BadFile, OfImmenseSizeGivesItsError) {
  const std::string label = "ORBY_105\r\n 0 \r\n 0 \r\n";
  const std::string line(40'000'000, 'x');
  std::string many;
  for (int i = 0; i < 1'000'000; ++i) many += "a\r\n";

  EXPECT_EQ(Run({"report", Write("line.ORB", line)}).exitCode, 2);
  EXPECT_EQ(Run({"report", Write("title.ORB", label + line)}).exitCode, 3);
  EXPECT_EQ(Run({"report", Write("quote.ORB", label + "T\r\n\"" + line)}).exitCode, 3);
  EXPECT_EQ(Run({"report", Write("lines.ORB", label + many)}).exitCode, 3);
  EXPECT_EQ(Run({"report", Write("junk.ORB", many)}).exitCode, 2);
}

}  // namespace
}  // namespace orby::test
