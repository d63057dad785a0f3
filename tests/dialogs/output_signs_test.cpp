// The signs beside the outputs of the parameters dialog: judgements, and texts of earlier inputs.
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "dialogs/parameters_fixture.h"
#include "support/number_texts.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

struct OutputSigns : AParametersDialog {
  OutputSigns() { dialog.Open(); }

  // Ends each edit as the user's act that it is.
  void Act(std::string_view edits) {
    Do(edits);
    dialog.EndAct();
  }
  const OutputSign& Sign(std::string_view name) const { return dynamic_cast<TextBox&>(*dialog.Find(name)).Sign(); }
  std::vector<std::string> Hint(std::string_view name) const { return dialog.HintOf(*dialog.Find(name)); }
};

constexpr std::string_view WeakRoof =
    "txtCMRR=30|txtDepthofCover=1000|txtActualSpanDiagonals=62|txtEntryWidth=20|txtBoltLengthPrimary=3|"
    "txtRowSpacingPrimary=4|txtBoltsperRowPrimary=4";

TEST_F(OutputSigns, ShowTheJudgementBesideEachPrimaryOutput) {
  Act(WeakRoof);

  EXPECT_EQ(Sign("txtActualPSUP"), (OutputSign{"short", false}));
  EXPECT_EQ(Sign("txtSugPSUP"), (OutputSign{"check", false}));
  EXPECT_EQ(Sign("txtSuggestBoltLength"), (OutputSign{"short", false}));
  EXPECT_EQ(Sign("txtSugSumDiagonals"), (OutputSign{"short", false}));
}

TEST_F(OutputSigns, SayTheJudgementInWords) {
  Act(WeakRoof);

  EXPECT_THAT(Hint("txtActualPSUP"), ElementsAre("Actual PSUP", StartsWith("Short: Actual PSUP ")));
  EXPECT_THAT(Hint("txtSuggestBoltLength"),
              ElementsAre("Suggested Minimum Roof Bolt Length (ft)", StartsWith("Short: Bolt length 3.0 of ")));
}

TEST_F(OutputSigns, AreGoneWithTheAnalysis) {
  Act(WeakRoof);
  Act("chkPrimSupport=0");

  EXPECT_EQ(Sign("txtActualPSUP"), OutputSign());
  EXPECT_THAT(Hint("txtActualPSUP"), ElementsAre("Actual PSUP"));
}

TEST_F(OutputSigns, ShowTheJudgementOfASystemBesideItsFactor) {
  Act("chkSecondSupEntries=1|chkSecEntries_0=0|chkSecEntries_3=1|txtUnitWeight=160|txtEntryWidth=18|txtRockLoadHeight="
      "5|"
      "txtSupportTypeSecEntry=Prop|optSupportTypeSecEntry=1|txtSupportCapSecEntry=1|txtNumberSupPerRowSecEntry=1|"
      "txtSupportRowSpacingSecEntry=8");

  EXPECT_EQ(Sign("txtStabFactorEntry4").Judgement, "short");
  EXPECT_EQ(Sign("txtRockLoadEntry4").Judgement, "");
  for (const char* name : {"txtRockLoadEntry4", "txtSupportCapEntry4", "txtStabFactorEntry4"}) {
    EXPECT_THAT(Hint(name), Contains(StartsWith("Short: Standing supports in entries"))) << name;
  }
  EXPECT_EQ(Sign("txtStabFactorEntry1").Judgement, "");

  Act("txtSupportCapSecEntry=500");

  EXPECT_EQ(Sign("txtStabFactorEntry4").Judgement, "holds");
}

TEST_F(OutputSigns, MarkATextThatAMissingInputLeavesAsItWas) {
  Act(WeakRoof);
  const std::string before = Text("txtSuggestBoltLength");

  Act("txtCMRR=101");

  EXPECT_EQ(Text("txtSugPSUP"), "--");
  EXPECT_FALSE(Sign("txtSugPSUP").IsOfEarlierInputs);
  EXPECT_EQ(Text("txtSuggestBoltLength"), before);
  EXPECT_TRUE(Sign("txtSuggestBoltLength").IsOfEarlierInputs);
  EXPECT_THAT(Hint("txtSuggestBoltLength"), Contains("Of earlier inputs: the fields as they stand give no result"));
  EXPECT_TRUE(Sign("txtMessage").IsOfEarlierInputs);
  EXPECT_THAT(Hint("txtMessage"), ElementsAre("Warnings", "Of earlier inputs"));

  Act("txtCMRR=30");

  EXPECT_FALSE(Sign("txtSuggestBoltLength").IsOfEarlierInputs);
  EXPECT_FALSE(Sign("txtMessage").IsOfEarlierInputs);
}

TEST_F(OutputSigns, MarkTheTrussesThatTheSpacingOfTheStandingSupportsStops) {
  Act("chkSecondSupEntries=1|chkSecEntries_1=1|txtUnitWeight=160|txtEntryWidth=18|txtRockLoadHeight=5|"
      "txtTrussCapacitySecEntry=20|txtTrussAngleSecEntry=45|txtTrussSpacingSecEntry=4|"
      "txtSupportRowSpacingSecEntry=4");
  ASSERT_EQ(Sign("txtSupportCapEntry2"), OutputSign());

  Act("txtSupportRowSpacingSecEntry=0|txtTrussCapacitySecEntry=40");

  EXPECT_TRUE(Sign("txtSupportCapEntry2").IsOfEarlierInputs);
  EXPECT_EQ(Sign("txtStabFactorEntry2"), (OutputSign{"uncomputed", true}));
}

TEST_F(OutputSigns, MarkWhatTheEntryWidthDoesNotRefresh) {
  Act("txtCMRR=45|txtActualSpanDiagonals=50|txtEntryWidth=18|chkSecondSupInter=1|chkSecInter_3=1|txtUnitWeight=160|"
      "txtRockLoadHeightInter=5|txtSupportNumberSecInter=4|optSupportTypeSecInter=1|txtSupportCapSecInter=50");
  const std::string load = Text("txtRockLoadInter4");
  ASSERT_FALSE(Sign("txtRockLoadInter4").IsOfEarlierInputs);

  Act("txtEntryWidth=55");

  EXPECT_EQ(Text("txtRockLoadInter4"), load);
  EXPECT_TRUE(Sign("txtRockLoadInter4").IsOfEarlierInputs);
  EXPECT_TRUE(Sign("txtSugPSUP").IsOfEarlierInputs);
}

TEST_F(OutputSigns, AreNotThereForOutputsThatNeverHadAFigure) {
  for (const Control* control : dialog.Controls()) {
    const auto* box = dynamic_cast<const TextBox*>(control);
    if (box == nullptr) continue;
    EXPECT_FALSE(box->Sign().IsOfEarlierInputs) << box->Name();
  }
  EXPECT_THAT(Hint("txtMessage"), IsEmpty());
}

// ---- against a dialog whose outputs are all made anew ---------------------------------------------------------------

// What an output says: a dash says nothing, however long it is.
std::string Said(const std::string& text) { return text.find_first_not_of('-') == std::string::npos ? "" : text; }

// Returns what each output would show if the figures of the fields were shown for the first time.
std::vector<std::string> MadeAnew(ParametersDialog& dialog, const std::vector<TextBox*>& outputs) {
  for (TextBox* box : outputs) box->SetText("--");
  dialog.ShowSuggested();
  dialog.ShowActualPSUP();
  dialog.ShowEntries();
  dialog.ShowIntersections();
  std::vector<std::string> texts;
  for (const TextBox* box : outputs) texts.push_back(Said(box->Text()));
  return texts;
}

RC_GTEST_PROP(OutputSignsProperty, MarkExactlyTheTextsThatTheFieldsNoLongerGive, ()) {
  RecordingPlatform platform;
  Program program{platform.AsPlatform()};
  SetBuiltInCatalogs(program.session.catalogs);
  program.session.settings.UnitsDefault = *rc::gen::elementOf(std::vector{English, Metric});
  FileNew(program, Keeping::Nothing);
  ParametersDialog dialog(program);
  dialog.Open();
  Edit(dialog, AllSystems);
  std::vector<TextBox*> inputs;
  std::vector<TextBox*> outputs;
  for (Control* control : dialog.Controls()) {
    auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || box == &dialog.txtMessage || box == &dialog.txtRegion || box == &dialog.txtOption) continue;
    (box->Kind() == TextKind::Output ? outputs : inputs).push_back(box);
  }
  const auto texts = rc::gen::oneOf(
      FieldTexts(), rc::gen::map(rc::gen::inRange(0, 120), [](int number) { return std::to_string(number); }));

  for (int i = 0; i < 8; ++i) {
    (*rc::gen::elementOf(inputs))->SetText(*texts);
    if (*rc::gen::inRange(0, 4) == 0) {
      dialog.chkSecEntries[static_cast<std::size_t>(*rc::gen::inRange(0, 4))].SetValue(0);
    }
    dialog.EndAct();
  }

  std::vector<std::string> shown;
  std::vector<bool> marked;
  for (const TextBox* box : outputs) {
    shown.push_back(Said(box->Text()));
    marked.push_back(box->Sign().IsOfEarlierInputs);
  }
  const std::vector<std::string> anew = MadeAnew(dialog, outputs);
  for (std::size_t i = 0; i < outputs.size(); ++i) {
    RC_LOG() << outputs[i]->Name() << ": " << shown[i] << ", now " << anew[i] << '\n';
    RC_ASSERT(marked[i] == (shown[i] != anew[i]));
  }
}

}  // namespace
}  // namespace orby::test
