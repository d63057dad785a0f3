#include "reports/report_text.h"

#include <gtest/gtest.h>

#include "design/units.h"

namespace orby::test {
namespace {

TEST(ReportText, HasValuesAfterDotsInColumn58WithTheUnitOfTheProject) {
  ReportText page(Metric);

  page.Value("Entry Width", "6.2", UnitSuffix::Length);

  EXPECT_EQ(page.Take(), "Entry Width...............................................6.2 (m)\r\n");
}

TEST(ReportText, HasDegreesForAnglesAndNoUnitForPlainNumbers) {
  ReportText page(English);

  page.Value("Rock Fall Angle", "30", UnitSuffix::Degrees);
  page.Value("PRSUP", "13.3");

  EXPECT_EQ(page.Take(),
            "Rock Fall Angle...........................................30 (deg)\r\n"
            "PRSUP.....................................................13.3\r\n");
}

TEST(ReportText, HasNoDotAfterALabelWiderThanItsColumn) {
  ReportText page(English);

  page.Value("Number of Standing Supports per Row in the Crosscuts Inby the Face", "2");

  EXPECT_EQ(page.Take(), "Number of Standing Supports per Row in the Crosscuts Inby the Face2\r\n");
}

TEST(ReportText, HasWordsThatEndInColumn58) {
  ReportText page(English);

  page.Words("CMRR Region", "Utah");

  EXPECT_EQ(page.Take(), "CMRR Region...........................................Utah\r\n");
}

TEST(ReportText, HasNoDotBetweenALabelAndWordsThatFillTheLine) {
  ReportText page(English);

  page.Words("Bolt Description", "fully grouted rebar, grade 60, M22 thread");
  page.Words("Bolt Description", "fully grouted rebar, grade 60, M22 threads");
  page.Words("Bolt Description", "fully grouted rebar, grade 60, with an M22 thread");

  EXPECT_EQ(page.Take(),
            "Bolt Description.fully grouted rebar, grade 60, M22 thread\r\n"
            "Bolt Descriptionfully grouted rebar, grade 60, M22 threads\r\n"
            "Bolt Descriptionfully grouted rebar, grade 60, with an M22 thread\r\n");
}

TEST(ReportText, HasAnEmptyLineAfterAWrappedText) {
  ReportText page(English);

  page.Wrapped("Cables follow the belt as far as the overcast", 30);

  EXPECT_EQ(page.Take(), "Cables follow the belt as far\r\nas the overcast\r\n\r\n");
}

TEST(ReportText, IsEmptyAfterItsPageIsTaken) {
  ReportText page(English);
  page.Line("[ORBY DESIGN]");

  const std::string given = page.Take();

  EXPECT_EQ(given, "[ORBY DESIGN]\r\n");
  EXPECT_EQ(page.Take(), "");
}

}  // namespace
}  // namespace orby::test
