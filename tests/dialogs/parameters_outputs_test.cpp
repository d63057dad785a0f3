#include "parameters_fixture.h"

namespace orby::test {
namespace {

using R = ProjectRecord;

// What the dialog showed last is what the design keeps of its loads, capacities and stability factors.
using SavedOutputs = AParametersDialog;

struct SavedOutput {
  Single ProjectRecord::*field;
  Single value;
};

void ExpectOutputs(const ProjectRecord& record, const std::vector<SavedOutput>& outputs) {
  ASSERT_EQ(outputs.size(), 18U);
  int index = 0;
  for (const SavedOutput& output : outputs) EXPECT_EQ(record.*output.field, output.value) << index++;
}

TEST_F(SavedOutputs, AreTheNumbersAsShown) {
  dialog.Open();
  Do(AllSystems);

  dialog.SaveWorkParms();

  ExpectOutputs(program.WorkParms, {{&R::RockLoadEntry1, 10},
                                    {&R::SupportCapEntry1, 10.6F},
                                    {&R::SupportCapEntry2, 10.6F},
                                    {&R::SupportCapEntry3, 8.4F},
                                    {&R::SupportCapEntry4, 12.5F},
                                    {&R::StabFactorEntry1, 1.06F},
                                    {&R::StabFactorEntry2, 1.06F},
                                    {&R::StabFactorEntry3, 0.85F},
                                    {&R::StabFactorEntry4, 1.25F},
                                    {&R::RockLoadInter1, 183},
                                    {&R::SupportCapInter1, 264},
                                    {&R::SupportCapInter2, 170},
                                    {&R::SupportCapInter3, 84},
                                    {&R::SupportCapInter4, 200},
                                    {&R::StabFactorInter1, 1.44F},
                                    {&R::StabFactorInter2, 0.93F},
                                    {&R::StabFactorInter3, 0.46F},
                                    {&R::StabFactorInter4, 1.09F}});
}

TEST_F(SavedOutputs, ComeFromTheFirstRockLoadAndEachFromItsOwnBox) {
  dialog.Open();
  int number = 1;
  for (const OutputControls& outputs : {dialog.EntryOutputs, dialog.InterOutputs}) {
    for (auto* boxes : {&outputs.RockLoad, &outputs.SupportCap, &outputs.StabFactor}) {
      for (TextBox& box : *boxes) box.SetText(NumberText(number++));
    }
  }

  dialog.SaveWorkParms();

  ExpectOutputs(program.WorkParms, {{&R::RockLoadEntry1, 1},
                                    {&R::SupportCapEntry1, 5},
                                    {&R::SupportCapEntry2, 6},
                                    {&R::SupportCapEntry3, 7},
                                    {&R::SupportCapEntry4, 8},
                                    {&R::StabFactorEntry1, 9},
                                    {&R::StabFactorEntry2, 10},
                                    {&R::StabFactorEntry3, 11},
                                    {&R::StabFactorEntry4, 12},
                                    {&R::RockLoadInter1, 13},
                                    {&R::SupportCapInter1, 17},
                                    {&R::SupportCapInter2, 18},
                                    {&R::SupportCapInter3, 19},
                                    {&R::SupportCapInter4, 20},
                                    {&R::StabFactorInter1, 21},
                                    {&R::StabFactorInter2, 22},
                                    {&R::StabFactorInter3, 23},
                                    {&R::StabFactorInter4, 24}});
}

TEST_F(SavedOutputs, AreZeroWhereDashesAreShown) {
  ProjectRecord& record = program.WorkParms;
  record.RockLoadEntry1 = record.StabFactorEntry3 = record.SupportCapEntry4 = 7;
  record.RockLoadInter1 = record.StabFactorInter2 = record.SupportCapInter3 = 7;
  dialog.Open();
  Do("txtEntryWidth=0|txtActualSpanDiagonals=0");
  ASSERT_EQ(dialog.txtRockLoadEntry[0].Text(), "--");
  ASSERT_EQ(dialog.txtRockLoadInter[0].Text(), "--");

  dialog.SaveWorkParms();

  EXPECT_EQ(record.RockLoadEntry1, 0);
  EXPECT_EQ(record.StabFactorEntry3, 0);
  EXPECT_EQ(record.SupportCapEntry4, 0);
  EXPECT_EQ(record.RockLoadInter1, 0);
  EXPECT_EQ(record.StabFactorInter2, 0);
  EXPECT_EQ(record.SupportCapInter3, 0);
}

TEST_F(SavedOutputs, OfSystemsThatWereNeverComputedAreZero) {
  program.WorkParms.StabFactorEntry2 = program.WorkParms.SupportCapInter4 = 7;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(program.WorkParms.StabFactorEntry1, 1.06F);
  EXPECT_EQ(program.WorkParms.StabFactorEntry2, 0);
  EXPECT_EQ(program.WorkParms.SupportCapInter4, 0);
}

}  // namespace
}  // namespace orby::test
