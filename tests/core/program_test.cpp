#include "core/program.h"

#include "core/program_bench.h"

namespace orby::test {
namespace {

using AustralianTable = ProgramBench;

TEST_F(AustralianTable, IsInForceInAMetricProjectWithTheSettingOn) {
  program.UseAUSStandardTable = 1;
  program.WorkParms.Units = Metric;

  EXPECT_TRUE(UsesAustralianTable(program));
}

TEST_F(AustralianTable, IsNotInForceInAnEnglishProject) {
  program.UseAUSStandardTable = 1;
  program.WorkParms.Units = English;

  EXPECT_FALSE(UsesAustralianTable(program));
}

TEST_F(AustralianTable, IsNotInForceWithTheSettingOff) {
  program.WorkParms.Units = Metric;

  EXPECT_FALSE(UsesAustralianTable(program));
}

}  // namespace
}  // namespace orby::test
