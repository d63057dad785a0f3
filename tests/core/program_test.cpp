#include "core/program.h"

#include "core/program_bench.h"

namespace orby::test {
namespace {

using AustralianTable = ProgramBench;

TEST_F(AustralianTable, IsUsedInAMetricProjectWithTheSettingOn) {
  program.project.UseAUSStandardTable = 1;
  program.project.WorkParms.Units = Metric;

  EXPECT_TRUE(UsesAustralianTable(program.project));
}

TEST_F(AustralianTable, IsNotUsedInAnEnglishProject) {
  program.project.UseAUSStandardTable = 1;
  program.project.WorkParms.Units = English;

  EXPECT_FALSE(UsesAustralianTable(program.project));
}

TEST_F(AustralianTable, IsNotUsedWithTheSettingOff) {
  program.project.WorkParms.Units = Metric;

  EXPECT_FALSE(UsesAustralianTable(program.project));
}

}  // namespace
}  // namespace orby::test
