#include "design/field.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

// The design keeps the loads, capacities and stability factors that the dialog showed last.
using SavedOutputs = AParametersDialog;

struct SavedOutput {
  SingleField field;
  Single value;
};

void ExpectOutputs(const Design& record, const std::vector<SavedOutput>& outputs) {
  ASSERT_EQ(outputs.size(), 18U);
  int index = 0;
  for (const SavedOutput& output : outputs) EXPECT_EQ(output.field.In(record), output.value) << index++;
}

TEST_F(SavedOutputs, AreTheNumbersAsShown) {
  dialog.Open();
  Do(AllSystems);

  dialog.SaveWorkParms();

  ExpectOutputs(program.project.WorkParms, {{[](auto& d) { return &d.Entries.RockLoad; }, 10},
                                            {[](auto& d) { return &d.Entries.Cable.SupportCap; }, 10.6F},
                                            {[](auto& d) { return &d.Entries.Truss.SupportCap; }, 10.6F},
                                            {[](auto& d) { return &d.Entries.Bolt.SupportCap; }, 8.4F},
                                            {[](auto& d) { return &d.Entries.Standing.SupportCap; }, 12.5F},
                                            {[](auto& d) { return &d.Entries.Cable.StabFactor; }, 1.06F},
                                            {[](auto& d) { return &d.Entries.Truss.StabFactor; }, 1.06F},
                                            {[](auto& d) { return &d.Entries.Bolt.StabFactor; }, 0.85F},
                                            {[](auto& d) { return &d.Entries.Standing.StabFactor; }, 1.25F},
                                            {[](auto& d) { return &d.Intersections.RockLoad; }, 183},
                                            {[](auto& d) { return &d.Intersections.Cable.SupportCap; }, 264},
                                            {[](auto& d) { return &d.Intersections.Truss.SupportCap; }, 170},
                                            {[](auto& d) { return &d.Intersections.Bolt.SupportCap; }, 84},
                                            {[](auto& d) { return &d.Intersections.Standing.SupportCap; }, 200},
                                            {[](auto& d) { return &d.Intersections.Cable.StabFactor; }, 1.44F},
                                            {[](auto& d) { return &d.Intersections.Truss.StabFactor; }, 0.93F},
                                            {[](auto& d) { return &d.Intersections.Bolt.StabFactor; }, 0.46F},
                                            {[](auto& d) { return &d.Intersections.Standing.StabFactor; }, 1.09F}});
}

TEST_F(SavedOutputs, AreTheFirstRockLoadAndTheOthersEachFromItsOwnBox) {
  dialog.Open();
  int number = 1;
  for (OutputControls* outputs : {&dialog.EntryOutputs, &dialog.InterOutputs}) {
    for (auto* boxes : {&outputs->RockLoad, &outputs->SupportCap, &outputs->StabFactor}) {
      for (TextBox& box : *boxes) box.SetText(NumberText(number++));
    }
  }

  dialog.SaveWorkParms();

  ExpectOutputs(program.project.WorkParms, {{[](auto& d) { return &d.Entries.RockLoad; }, 1},
                                            {[](auto& d) { return &d.Entries.Cable.SupportCap; }, 5},
                                            {[](auto& d) { return &d.Entries.Truss.SupportCap; }, 6},
                                            {[](auto& d) { return &d.Entries.Bolt.SupportCap; }, 7},
                                            {[](auto& d) { return &d.Entries.Standing.SupportCap; }, 8},
                                            {[](auto& d) { return &d.Entries.Cable.StabFactor; }, 9},
                                            {[](auto& d) { return &d.Entries.Truss.StabFactor; }, 10},
                                            {[](auto& d) { return &d.Entries.Bolt.StabFactor; }, 11},
                                            {[](auto& d) { return &d.Entries.Standing.StabFactor; }, 12},
                                            {[](auto& d) { return &d.Intersections.RockLoad; }, 13},
                                            {[](auto& d) { return &d.Intersections.Cable.SupportCap; }, 17},
                                            {[](auto& d) { return &d.Intersections.Truss.SupportCap; }, 18},
                                            {[](auto& d) { return &d.Intersections.Bolt.SupportCap; }, 19},
                                            {[](auto& d) { return &d.Intersections.Standing.SupportCap; }, 20},
                                            {[](auto& d) { return &d.Intersections.Cable.StabFactor; }, 21},
                                            {[](auto& d) { return &d.Intersections.Truss.StabFactor; }, 22},
                                            {[](auto& d) { return &d.Intersections.Bolt.StabFactor; }, 23},
                                            {[](auto& d) { return &d.Intersections.Standing.StabFactor; }, 24}});
}

TEST_F(SavedOutputs, AreZeroWhereDashesAreShown) {
  Design& record = program.project.WorkParms;
  record.Entries.RockLoad = record.Entries.Bolt.StabFactor = record.Entries.Standing.SupportCap = 7;
  record.Intersections.RockLoad = record.Intersections.Truss.StabFactor = record.Intersections.Bolt.SupportCap = 7;
  dialog.Open();
  Do("txtEntryWidth=0|txtActualSpanDiagonals=0");
  ASSERT_EQ(dialog.EntryOutputs.RockLoad[0].Text(), "--");
  ASSERT_EQ(dialog.InterOutputs.RockLoad[0].Text(), "--");

  dialog.SaveWorkParms();

  EXPECT_EQ(record.Entries.RockLoad, 0);
  EXPECT_EQ(record.Entries.Bolt.StabFactor, 0);
  EXPECT_EQ(record.Entries.Standing.SupportCap, 0);
  EXPECT_EQ(record.Intersections.RockLoad, 0);
  EXPECT_EQ(record.Intersections.Truss.StabFactor, 0);
  EXPECT_EQ(record.Intersections.Bolt.SupportCap, 0);
}

TEST_F(SavedOutputs, OfSystemsThatWereNeverComputedAreZero) {
  program.project.WorkParms.Entries.Truss.StabFactor = program.project.WorkParms.Intersections.Standing.SupportCap = 7;
  dialog.Open();

  dialog.Command2.Press();

  EXPECT_EQ(program.project.WorkParms.Entries.Cable.StabFactor, 1.06F);
  EXPECT_EQ(program.project.WorkParms.Entries.Truss.StabFactor, 0);
  EXPECT_EQ(program.project.WorkParms.Intersections.Standing.SupportCap, 0);
}

}  // namespace
}  // namespace orby::test
