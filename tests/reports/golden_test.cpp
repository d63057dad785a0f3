#include <gtest/gtest.h>

#include "reports/calculation_report.h"
#include "reports/golden_designs.h"
#include "reports/input_echo.h"
#include "support/test_data.h"

namespace orby::test {
namespace {

class GoldenPages : public testing::TestWithParam<std::string> {};

TEST_P(GoldenPages, EqualTheInputPageOfTheDesign) {
  Desk desk;
  OpenGolden(desk, GetParam());

  LoadOutBuf0(desk.program, desk.program.project.WorkParms);

  EXPECT_EQ(desk.program.session.OutBuf[0], ReadTestData("reports/" + GetParam() + "_input.txt"));
}

TEST_P(GoldenPages, EqualTheCalculationPageOfTheDesign) {
  Desk desk;
  OpenGolden(desk, GetParam());

  const Design& design = desk.program.project.WorkParms;
  EXPECT_EQ(CalculationReport(design, desk.program.session.catalogs),
            ReadTestData("reports/" + GetParam() + "_calculations.txt"));
}

INSTANTIATE_TEST_SUITE_P(Designs, GoldenPages, testing::ValuesIn(GoldenNames()),
                         [](const auto& golden) { return golden.param; });

}  // namespace
}  // namespace orby::test
