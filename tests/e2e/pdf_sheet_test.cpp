// Runs orby-pdf on the example designs and reads its files with other programs.
#include <gmock/gmock.h>

#include "companion_run.h"

namespace orby::test {
namespace {

using testing::AllOf;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Lt;
using testing::Not;
using testing::SizeIs;

class PdfSheet : public CompanionTest {
 protected:
  Outcome Make(const std::string& file, const std::string& out) const {
    return RunProgram(ORBY_PDF, {"--date", "2026-11-21", file, out});
  }
};

TEST_F(PdfSheet, OfEachExampleIsReadByOtherProgramsWithoutComplaint) {
  for (const std::string& name : Examples) {
    const std::string pdf = Path(name + ".pdf");
    ASSERT_EQ(Make(Example(name), pdf).exitCode, 0) << name;

    const Outcome info = RunProgram("pdfinfo", {pdf});
    EXPECT_EQ(info.err, "") << name;
    EXPECT_THAT(info.out, AllOf(HasSubstr("Calculation sheet: "), HasSubstr("(A4)")));
    const Outcome outline = RunProgram("mutool", {"show", pdf, "outline"});
    EXPECT_EQ(outline.err, "") << name;
    EXPECT_THAT(outline.out, AllOf(ContainsRegex("[78]  Suggested PSUP\""), HasSubstr("  Cost of bolting")));
    EXPECT_THAT(Read(pdf), SizeIs(Lt(400'000U))) << name;
  }
}

TEST_F(PdfSheet, HasItsResultsAsText) {
  const std::string pdf = Path("weak-roof.pdf");
  ASSERT_EQ(Make(Example("weak-roof"), pdf).exitCode, 0);

  const std::string text = RunProgram("pdftotext", {"-layout", pdf, "-"}).out;
  EXPECT_THAT(text, AllOf(HasSubstr("Cinder Hollow, fault zone"), HasSubstr("2026-11-21"), HasSubstr("44.86371"),
                          HasSubstr("Short: Bolt length 4.0 of the suggested 8.8 ft, short by 54 %")));
}

TEST_F(PdfSheet, IsTheSameInEachRunOfADay) {
  // The time of the run stands in the file; all else is the same.
  const auto withoutTime = [](std::string pdf) {
    const std::size_t at = pdf.find("/CreationDate");
    return pdf.erase(at, pdf.find('\n', at) - at);
  };
  ASSERT_EQ(Make(Example("weak-roof"), Path("one.pdf")).exitCode, 0);
  ASSERT_EQ(Make(Example("weak-roof"), Path("two.pdf")).exitCode, 0);

  EXPECT_TRUE(withoutTime(Read(Path("one.pdf"))) == withoutTime(Read(Path("two.pdf"))));
}

TEST_F(PdfSheet, RefusesOtherWordsAndOtherFiles) {
  EXPECT_EQ(RunProgram(ORBY_PDF, {Example("weak-roof")}).exitCode, 1);
  EXPECT_EQ(RunProgram(ORBY_PDF, {"--sideways", Example("weak-roof"), Path("out.pdf")}).exitCode, 1);
  const Outcome outcome = Make(Write("no.orb", "no project"), Path("out.pdf"));
  EXPECT_EQ(outcome.exitCode, 2);
  EXPECT_THAT(outcome.err, HasSubstr("Invalid ORBY file format."));
  EXPECT_FALSE(Exists(Path("out.pdf")));
}

TEST_F(PdfSheet, HasAReportToSign) {
  const std::string pdf = Path("report.pdf");
  ASSERT_EQ(RunProgram(ORBY_PDF, {"--report", "--date", "2026-11-21", "--company", "Brannock Coal", "--revision", "C2",
                                  "--remarks", "Probe holes every second break.", "--curve", "2", "--sheet",
                                  Example("weak-roof"), pdf})
                .exitCode,
            0);

  const Outcome outline = RunProgram("mutool", {"show", pdf, "outline"});
  EXPECT_EQ(outline.err, "");
  EXPECT_THAT(outline.out, AllOf(HasSubstr("1  Summary"), HasSubstr("2  Drawings"), HasSubstr("4  Results"),
                                 HasSubstr("8  Signatures"), HasSubstr("Appendix: calculation sheet")));
  const std::string text = RunProgram("pdftotext", {"-layout", pdf, "-"}).out;
  EXPECT_THAT(text, AllOf(HasSubstr("Brannock Coal"), HasSubstr("revision C2, 2026-11-21"),
                          HasSubstr("Probe holes every second break."), HasSubstr("Suggested PSUP vs Depth of Cover"),
                          HasSubstr("at least 8.8 ft"), HasSubstr("Short, short by 54 %"), HasSubstr("44.86371")));
  EXPECT_THAT(Read(pdf), SizeIs(Lt(400'000U)));
}

TEST_F(PdfSheet, OfAReportRefusesACurveThatIsNotInTheList) {
  for (const char* curve : {"0", "11", "two", "1.5x", "nan"}) {
    EXPECT_EQ(RunProgram(ORBY_PDF, {"--report", "--curve", curve, Example("weak-roof"), Path("out.pdf")}).exitCode, 1)
        << curve;
  }
  EXPECT_EQ(RunProgram(ORBY_PDF, {"--report", Example("weak-roof"), Path("out.pdf"), "--company"}).exitCode, 1);
}

TEST_F(PdfSheet, HasLetterPagesOnRequest) {
  ASSERT_EQ(RunProgram(ORBY_PDF, {"--letter", Example("weak-roof"), Path("out.pdf")}).exitCode, 0);

  EXPECT_THAT(RunProgram("pdfinfo", {Path("out.pdf")}).out, AllOf(HasSubstr("(letter)"), Not(HasSubstr("(A4)"))));
}

}  // namespace
}  // namespace orby::test
