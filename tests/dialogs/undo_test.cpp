// Edits of the parameters and cost dialogs, taken back and made again.
#include "controls/edit_history.h"
#include "dialogs/cost_dialog.h"
#include "parameters_fixture.h"

namespace orby::test {
namespace {

struct Undo : AParametersDialog {
  // Edits as one action of the user.
  void Act(std::string_view edits) {
    Do(edits);
    dialog.EndAct();
  }
  // The state of every input, in order. Outputs are left out: those of a system that is not in use stay as they are.
  std::vector<std::string> Inputs() const {
    std::vector<std::string> texts;
    for (const Control* control : dialog.Controls()) {
      const auto* box = dynamic_cast<const TextBox*>(control);
      const auto* combo = dynamic_cast<const Combo*>(control);
      const bool isInput = (box != nullptr && box->Kind() != TextKind::Output) || combo != nullptr ||
                           dynamic_cast<const OptionArray*>(control) != nullptr ||
                           dynamic_cast<const CheckBox*>(control) != nullptr ||
                           dynamic_cast<const Grid*>(control) != nullptr;
      if (!isInput) continue;
      std::string text = std::string(control->Name()) + "=" + TextOf(dialog, control->Name());
      if (combo != nullptr) text += " item " + NumberText(combo->ListIndex());
      text += control->Enabled() ? "" : " disabled";
      text += control->Visible() ? "" : " hidden";
      texts.push_back(std::move(text));
    }
    return texts;
  }
};

TEST_F(Undo, TakesBackOneFieldAndItsLiveResults) {
  dialog.Open();
  Act("txtDepthofCover=800");
  ASSERT_EQ(Text("txtSugPSUP"), "10.7");

  dialog.UndoEdit();

  EXPECT_EQ(Text("txtDepthofCover"), "400");
  EXPECT_EQ(Text("txtSugPSUP"), "7.6");
  EXPECT_FALSE(dialog.Edits()->CanUndo());

  dialog.RedoEdit();
  EXPECT_EQ(Text("txtDepthofCover"), "800");
  EXPECT_EQ(Text("txtSugPSUP"), "10.7");
}

TEST_F(Undo, TakesTheKeysOfOneFieldTogetherUntilTheFocusLeaves) {
  dialog.Open();
  Act("txtDepthofCover=8");
  Act("txtDepthofCover=80");
  Act("txtDepthofCover=800");
  dialog.Edits()->EndTyping();
  Act("txtDepthofCover=8001");
  Act("txtEntryWidth=2");
  Act("txtEntryWidth=22");

  dialog.UndoEdit();
  EXPECT_EQ(Text("txtEntryWidth"), "20");
  dialog.UndoEdit();
  EXPECT_EQ(Text("txtDepthofCover"), "800");
  dialog.UndoEdit();
  EXPECT_EQ(Text("txtDepthofCover"), "400");
  EXPECT_FALSE(dialog.Edits()->CanUndo());
}

TEST_F(Undo, ForgetsATypingThatCameBackToItsStart) {
  dialog.Open();
  Act("txtDepthofCover=4001");
  Act("txtDepthofCover=400");

  EXPECT_FALSE(dialog.Edits()->CanUndo());
}

TEST_F(Undo, GivesUpWhatWasTakenBackAfterANewEdit) {
  dialog.Open();
  Act("txtDepthofCover=800");
  dialog.UndoEdit();
  Act("txtEntryWidth=22");

  EXPECT_FALSE(dialog.Edits()->CanRedo());
  dialog.RedoEdit();
  EXPECT_EQ(Text("txtDepthofCover"), "400");
}

// Each is one action: an option, a list, a check box, a row, a typed name.
constexpr std::string_view Actions[] = {"chkPrimSupport=0",
                                        "chkPrimSupport=1",
                                        "optBoltOptionsPrimary=1",
                                        "optBoltDiameterPrimary=1",
                                        "txtBoltDiameterPrimary=0.9",
                                        "optBoltGradePrimary=1",
                                        "txtBoltGradePrimary=60",
                                        "optBoltOptionsPrimary=0",
                                        "VSFlexGridPrimary=3",
                                        "chkSecEntries_3=1",
                                        "chkSecEntries_1=1",
                                        "txtTrussAngleSecEntry=30",
                                        "cmbSupportTypeSecEntry=no such prop",
                                        "optSupportTypeSecEntry=1",
                                        "txtSupportTypeSecEntry=Timber crib",
                                        "txtSupportCapSecEntry=77",
                                        "optSupportTypeSecEntry=0",
                                        "optCableCapModeSecEntry=1",
                                        "cmbCableCapacitySecEntry=31",
                                        "optCableCapacitySecEntry=1",
                                        "txtCableCapacitySecEntry=abc",
                                        "chkCMRRManual=1",
                                        "txtCMRR=38"};

TEST_F(Undo, RunsThroughEveryKindOfInputThereAndBack) {
  dialog.Open();
  std::vector<std::vector<std::string>> states{Inputs()};
  for (const std::string_view action : Actions) {
    Act(action);
    dialog.Edits()->EndTyping();
    ASSERT_NE(Inputs(), states.back()) << action;
    states.push_back(Inputs());
  }

  for (std::size_t i = states.size() - 1; i > 0; --i) {
    dialog.UndoEdit();
    ASSERT_EQ(Inputs(), states[i - 1]) << Actions[i - 1];
  }
  EXPECT_FALSE(dialog.Edits()->CanUndo());

  for (std::size_t i = 1; i < states.size(); ++i) {
    dialog.RedoEdit();
    ASSERT_EQ(Inputs(), states[i]) << Actions[i - 1];
  }
  EXPECT_FALSE(dialog.Edits()->CanRedo());
}

TEST_F(Undo, GoesToThePageOfTheField) {
  dialog.Open();
  Act("chkSecInter_1=1");
  Act("txtTrussAngleSecInter=30");

  dialog.UndoEdit();

  EXPECT_EQ(dialog.SSTab1.Tab(), 3);
  EXPECT_EQ(dialog.SSTab3.Tab(), 1);
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtTrussAngleSecInter);
}

TEST_F(Undo, RestoresOneFieldAsSavedAndThatCanBeTakenBackToo) {
  dialog.Open();
  Act("txtDepthofCover=800");
  Act("txtEntryWidth=22");
  EXPECT_TRUE(dialog.Edits()->DiffersFromSaved(dialog.txtDepthofCover));
  EXPECT_FALSE(dialog.Edits()->DiffersFromSaved(dialog.txtUnitWeight));

  dialog.Edits()->RestoreSaved(dialog.txtDepthofCover);
  EXPECT_EQ(Text("txtDepthofCover"), "400");
  EXPECT_EQ(Text("txtEntryWidth"), "22");
  EXPECT_EQ(Text("txtSugPSUP"), "7.6");

  dialog.UndoEdit();
  EXPECT_EQ(Text("txtDepthofCover"), "800");
}

TEST_F(Undo, CommitsWhatTheFieldsShow) {
  dialog.Open();
  const Design before = program.project.WorkParms;
  Act("txtDepthofCover=800");
  Act("optBoltOptionsPrimary=1");
  dialog.UndoEdit();
  dialog.UndoEdit();

  ASSERT_TRUE(dialog.SaveWorkParms());

  EXPECT_EQ(program.project.WorkParms.Place.DepthofCover, before.Place.DepthofCover);
  EXPECT_EQ(program.project.WorkParms.Primary.Options, before.Primary.Options);
}

// The estimator shows its choice in two hidden fields and gives it to the commit apart from them.
TEST_F(Undo, TakesBackTheChoiceOfTheEstimatorWithTheRating) {
  program.project.WorkParms.Place.CMRRRegionIndex = 2;
  program.project.WorkParms.Place.CMRRRockTypeIndex = 1;
  dialog.Open();
  program.windows.estimator.EstimatorRegion = 4;
  program.windows.estimator.EstimatorRockType = 3;
  Act("txtRegion=4|txtOption=3|txtCMRR=52");

  dialog.UndoEdit();
  EXPECT_EQ(Text("txtCMRR"), "45");
  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 2);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 1);

  dialog.RedoEdit();
  EXPECT_EQ(Text("txtCMRR"), "52");
  EXPECT_EQ(program.windows.estimator.EstimatorRegion, 4);
  EXPECT_EQ(program.windows.estimator.EstimatorRockType, 3);
}

TEST_F(Undo, HoldsForCostsToo) {
  CostDialog cost(program);
  cost.Open();
  const std::string advance = cost.txtAdvanceShiftCalc.Text();
  Edit(cost, "txtnBoltsRow=5");
  cost.EndAct();
  ASSERT_NE(cost.txtAdvanceShiftCalc.Text(), advance);
  Edit(cost, "chkAdvance=0");
  cost.EndAct();

  cost.UndoEdit();
  EXPECT_EQ(cost.chkAdvance.Value(), 1);
  cost.UndoEdit();
  EXPECT_EQ(cost.txtAdvanceShiftCalc.Text(), advance);
  EXPECT_FALSE(cost.Edits()->CanUndo());
}

}  // namespace
}  // namespace orby::test
