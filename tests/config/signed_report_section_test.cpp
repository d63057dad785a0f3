// The choices for signed reports in the configuration file.
#include "config/signed_report_section.h"

#include <gmock/gmock.h>

#include <string>

namespace orby::test {
namespace {

using testing::HasSubstr;
using testing::Not;

SignedReportSettings SomeChoices() {
  SignedReportSettings settings;
  settings.Titles = {" Brannock \"Coal\" ", "Cinder Hollow; No. 2", "3 East", "M. Delacroix", "", "B"};
  settings.Paper = PaperChoice::AlwaysLetter;
  settings.HasDrawings = false;
  settings.HasSheet = true;
  settings.HasCurve[1] = true;
  settings.HasCurve[9] = true;
  settings.RemarksOf = "/home/user/cinder hollow.ORB";
  settings.Remarks = "First line.\r\n\r\n  Third, after an empty one = \"quoted\"";
  return settings;
}

SignedReportSettings ReadChoices(const std::string& text, SignedReportSettings settings = {}) {
  ReadSignedReport(settings, IniText(text));
  return settings;
}

std::string WrittenChoices(const SignedReportSettings& settings, const std::string& before = {}) {
  IniText ini{before};
  WriteSignedReport(settings, ini);
  return ini.Text();
}

TEST(SignedReportSection, IsReadBackAsItWasWritten) {
  EXPECT_EQ(ReadChoices(WrittenChoices(SomeChoices())), SomeChoices());
}

TEST(SignedReportSection, HasALineForEachChoice) {
  const std::string text = WrittenChoices(SomeChoices());

  EXPECT_THAT(text, HasSubstr("[ORBYSignedReport]\r\nCompany=\" Brannock \"Coal\" \"\r\n"));
  EXPECT_THAT(
      text, HasSubstr("\r\nPaper=Letter\r\nDrawings=0\r\nCost=-1\r\nCalculationSheet=-1\r\nCurve1=0\r\nCurve2=-1\r\n"));
  EXPECT_THAT(text, HasSubstr("\r\nRemark1=\"First line.\"\r\nRemark2=\"\"\r\n"));
}

TEST(SignedReportSection, MayBeMissing) { EXPECT_EQ(ReadChoices("[Settings]\r\n", SomeChoices()), SomeChoices()); }

TEST(SignedReportSection, KeepsWhatItCannotRead) {
  const SignedReportSettings read =
      ReadChoices("[ORBYSignedReport]\r\nPaper=A3\r\nDrawings=maybe\r\nCurve2=7\r\n", SomeChoices());

  EXPECT_EQ(read, SomeChoices());
}

TEST(SignedReportSection, ForgetsTheLinesOfLongerRemarks) {
  SignedReportSettings shorter = SomeChoices();
  shorter.Remarks = "One line.";

  EXPECT_EQ(ReadChoices(WrittenChoices(shorter, WrittenChoices(SomeChoices()))), shorter);
}

TEST(SignedReportSection, HasNoBreakInATitle) {
  SignedReportSettings settings;
  settings.Titles.Company = "Brannock\r\n[Settings]";

  EXPECT_THAT(WrittenChoices(settings), Not(HasSubstr("\n[Settings]")));
}

}  // namespace
}  // namespace orby::test
