#include <initializer_list>
#include <map>
#include <utility>

#include "parameters_fixture.h"

namespace orby::test {
namespace {

// Which results a change refreshes: S the suggestions, A the actual PSUP, E the entries, I the intersections.
struct ParameterRefreshes : AParametersDialog {
  ParameterRefreshes() {
    dialog.Open();
    Do(AllSystems);
  }

  void Mark() {
    for (TextBox* output :
         std::initializer_list<TextBox*>{&dialog.txtSugPSUP, &dialog.txtActualPSUP, &dialog.EntryOutputs.RockLoad[0],
                                         &dialog.InterOutputs.RockLoad[0]}) {
      output->SetText("as before");
    }
  }

  std::string Refreshed() const {
    std::string refreshed;
    if (dialog.txtSugPSUP.Text() != "as before") refreshed += 'S';
    if (dialog.txtActualPSUP.Text() != "as before") refreshed += 'A';
    if (dialog.EntryOutputs.RockLoad[0].Text() != "as before") refreshed += 'E';
    if (dialog.InterOutputs.RockLoad[0].Text() != "as before") refreshed += 'I';
    return refreshed;
  }

  template <class Act>
  std::string RefreshedBy(const Act& act) {
    Mark();
    act();
    return Refreshed();
  }
};

const std::map<std::string, std::string, std::less<>> RefreshesOfTexts{
    {"txtCMRR", "S"},
    {"txtDepthofCover", "S"},
    {"txtActualSpanDiagonals", "SI"},
    {"txtStabilityFactor", "SA"},
    {"txtEntryWidth", "AE"},
    {"txtUnitWeight", "EI"},
    {"txtRegion", ""},
    {"txtOption", ""},
    {"txtBoltLengthPrimary", "A"},
    {"txtBoltsperRowPrimary", "A"},
    {"txtRowSpacingPrimary", "A"},
    {"txtBoltDiameterPrimary", "A"},
    {"txtBoltGradePrimary", "A"},
    {"txtRockLoadHeight", "E"},
    {"txtRockFallAngle", "E"},
    {"txtCableLengthSecEntry", "E"},
    {"txtCableCapacitySecEntry", "E"},
    {"txtCableBoltsPerRowSecEntry", "E"},
    {"txtCableRowSpacingSecEntry", "E"},
    {"txtTrussLengthMemberSecEntry", ""},
    {"txtTrussAngleSecEntry", "E"},
    {"txtTrussCapacitySecEntry", "E"},
    {"txtTrussSpacingSecEntry", "E"},
    {"txtBoltLengthSecEntry", ""},
    {"txtBoltDiameterSecEntry", "E"},
    {"txtBoltGradeSecEntry", "E"},
    {"txtBoltsperRowSecEntry", "E"},
    {"txtRowSpacingSecEntry", "E"},
    {"txtSupportTypeSecEntry", ""},
    {"txtSupportCapSecEntry", "E"},
    {"txtNumberSupPerRowSecEntry", "E"},
    {"txtSupportRowSpacingSecEntry", "E"},
    {"txtRockLoadHeightInter", "I"},
    {"txtRockFallAngleEntry", "I"},
    {"txtRockFallAngleXcut", "I"},
    {"txtCableLengthSecInter", "I"},
    {"txtCableCapacitySecInter", "I"},
    {"txtCableNumberSecInter", "I"},
    {"txtTrussLengthMemberSecInter", ""},
    {"txtTrussAngleSecInter", "I"},
    {"txtTrussCapacitySecInter", "I"},
    {"txtTrussNumberSecInter", "I"},
    {"txtBoltLengthSecInter", ""},
    {"txtBoltDiameterSecInter", "I"},
    {"txtBoltGradeSecInter", "I"},
    {"txtBoltNumberSecInter", "I"},
    {"txtSupportTypeSecInter", ""},
    {"txtSupportCapSecInter", "I"},
    {"txtSupportNumberSecInter", "I"},
};

TEST_F(ParameterRefreshes, FollowTheTypingInEachField) {
  std::size_t typed = 0;
  for (Control* control : dialog.Controls()) {
    auto* box = dynamic_cast<TextBox*>(control);
    if (box == nullptr || box->Kind() == TextKind::Output) continue;
    const auto expected = RefreshesOfTexts.find(box->Name());
    ASSERT_NE(expected, RefreshesOfTexts.end()) << box->Name();
    const std::string before = box->Text();

    EXPECT_EQ(RefreshedBy([&] { box->SetText(before + "1"); }), expected->second) << box->Name();
    EXPECT_EQ(RefreshedBy([&] { box->SetText(before + "1"); }), "") << box->Name();

    box->SetText(before);
    ++typed;
  }
  EXPECT_EQ(typed, RefreshesOfTexts.size());
}

struct ListRefreshes {
  std::string picked;
  std::string typed;
};

const std::map<std::string, ListRefreshes, std::less<>> RefreshesOfLists{
    {"cmbBoltDiameterPrimary", {"A", "A"}},
    {"cmbBoltGradePrimary", {"A", "A"}},
    {"cmbBoltDiameterSecEntry", {"E", "E"}},
    {"cmbBoltGradeSecEntry", {"E", "E"}},
    {"cmbCableDiamSecEntry", {"E", "E"}},
    {"cmbCableCapacitySecEntry", {"E", "E"}},
    {"cmbBoltDiameterSecInter", {"I", "I"}},
    {"cmbBoltGradeSecInter", {"I", "I"}},
    {"cmbCableDiamSecInter", {"I", "I"}},
    {"cmbCableCapacitySecInter", {"I", "I"}},
    // through the capacity, which a text that is not in the list does not set
    {"cmbSupportTypeSecEntry", {"E", ""}},
    {"cmbSupportTypeSecInter", {"I", ""}},
};

TEST_F(ParameterRefreshes, FollowEachList) {
  for (Combo* combo : Combos()) {
    const auto expected = RefreshesOfLists.find(combo->Name());
    ASSERT_NE(expected, RefreshesOfLists.end()) << combo->Name();
    const int last = static_cast<int>(combo->Items().size()) - 1;

    EXPECT_EQ(RefreshedBy([&] { combo->SetListIndex(last); }), expected->second.picked) << combo->Name();
    EXPECT_EQ(RefreshedBy([&] { combo->SetListIndex(last); }), "") << combo->Name();
    EXPECT_EQ(RefreshedBy([&] { combo->SetText(combo->Text() + "1"); }), expected->second.typed) << combo->Name();
  }
  EXPECT_EQ(Combos().size(), RefreshesOfLists.size());
}

TEST_F(ParameterRefreshes, FollowTheBoltTables) {
  for (const auto& [grid, expected] :
       {std::pair{&dialog.PrimaryBoltControls.Table, "A"}, std::pair{&dialog.EntryBoltControls.Table, "E"},
        std::pair{&dialog.InterBoltControls.Table, "I"}}) {
    EXPECT_EQ(RefreshedBy([table = grid] { table->SetRow(4); }), expected) << grid->Name();
    EXPECT_EQ(RefreshedBy([table = grid] { table->SetRow(4); }), "") << grid->Name();
    EXPECT_EQ(RefreshedBy([table = grid] { table->EditCell(4, 2, "0.7"); }), expected) << grid->Name();
  }
}

const std::map<std::string, std::string, std::less<>> RefreshesOfOptions{
    {"optBoltOptionsPrimary", ""},     {"optBoltOptionsSecEntry", ""},   {"optBoltOptionsSecInter", ""},
    {"optBoltDiameterPrimary", ""},    {"optBoltDiameterSecEntry", "E"}, {"optBoltDiameterSecInter", "I"},
    {"optBoltGradePrimary", ""},       {"optBoltGradeSecEntry", "E"},    {"optBoltGradeSecInter", "I"},
    {"optCableCapModeSecEntry", "E"},  {"optCableCapModeSecInter", "I"}, {"optCableCapacitySecEntry", "E"},
    {"optCableCapacitySecInter", "I"}, {"optSupportTypeSecEntry", "E"},  {"optSupportTypeSecInter", "I"},
};

TEST_F(ParameterRefreshes, FollowEachChoice) {
  std::size_t chosen = 0;
  for (Control* control : dialog.Controls()) {
    auto* options = dynamic_cast<OptionArray*>(control);
    if (options == nullptr) continue;
    const auto expected = RefreshesOfOptions.find(options->Name());
    ASSERT_NE(expected, RefreshesOfOptions.end()) << options->Name();

    EXPECT_EQ(RefreshedBy([&] { options->SetValue(1, true); }), expected->second) << options->Name();
    EXPECT_EQ(RefreshedBy([&] { options->SetValue(0, true); }), expected->second) << options->Name();
    ++chosen;
  }
  EXPECT_EQ(chosen, RefreshesOfOptions.size());
}

TEST_F(ParameterRefreshes, FollowTheSystemsInUseButNotTheAnalyses) {
  for (const auto& [name, expected] :
       {std::pair{"chkCMRRManual", ""}, std::pair{"chkPrimSupport", ""}, std::pair{"chkSecondSupEntries", ""},
        std::pair{"chkSecondSupInter", ""}, std::pair{"chkSecEntries_0", "E"}, std::pair{"chkSecEntries_1", "E"},
        std::pair{"chkSecEntries_2", "E"}, std::pair{"chkSecEntries_3", "E"}, std::pair{"chkSecInter_0", "I"},
        std::pair{"chkSecInter_1", "I"}, std::pair{"chkSecInter_2", "I"}, std::pair{"chkSecInter_3", "I"}}) {
    auto& box = dynamic_cast<CheckBox&>(*dialog.Find(name));
    const auto other = static_cast<Integer>(1 - box.Value());

    EXPECT_EQ(RefreshedBy([&] { box.SetValue(other); }), expected) << name;
    box.SetValue(static_cast<Integer>(1 - other));
  }
}

TEST_F(ParameterRefreshes, DoNotFollowTheTabs) {
  EXPECT_EQ(RefreshedBy([this] {
              for (TabSet* tabs : {&dialog.SSTab1, &dialog.SSTab2, &dialog.SSTab3}) {
                for (const int tab : {1, 2, 3, 0}) tabs->SetTab(tab);
              }
            }),
            "");
}

TEST_F(ParameterRefreshes, AreAllSuspendedTogether) {
  dialog.HoldEvents = true;
  Mark();

  for (const auto& [name, refreshes] : RefreshesOfTexts) SetControl(dialog, name, Text(name) + "1");
  for (Combo* combo : Combos()) combo->SetListIndex(static_cast<int>(combo->Items().size()) - 1);
  for (const auto& [name, refreshes] : RefreshesOfOptions) SetControl(dialog, name, "1");
  Do("chkSecEntries_0=0|chkSecInter_0=0|VSFlexGridPrimary=4|VSFlexGridEntry=4|VSFlexGridInter=4");

  EXPECT_EQ(Refreshed(), "");
}

// Records the refreshes in the order in which their outputs change.
class RefreshOrder : public FormView {
 public:
  explicit RefreshOrder(ParametersDialog& dialog) : dialog_(dialog) { dialog.SetView(this); }
  ~RefreshOrder() override { dialog_.SetView(nullptr); }
  RefreshOrder(const RefreshOrder&) = delete;
  RefreshOrder& operator=(const RefreshOrder&) = delete;

  void ControlChanged(const Control& control) override {
    const auto begins = [this, &control](const TextBox& output, char letter) {
      if (&control == &output) order += letter;
    };
    begins(dialog_.txtSugPSUP, 'S');
    begins(dialog_.txtActualPSUP, 'A');
    begins(dialog_.EntryOutputs.RockLoad[0], 'E');
    begins(dialog_.InterOutputs.RockLoad[0], 'I');
  }
  void CaptionChanged() override {}
  void FocusRequested(Control&) override {}
  void Closed() override {}

  std::string order;

 private:
  ParametersDialog& dialog_;
};

TEST_F(ParameterRefreshes, RunInTheOrderOfTheirFields) {
  for (const auto& [change, order] :
       {std::pair{"txtActualSpanDiagonals=61", "SI"}, std::pair{"txtStabilityFactor=1.2", "SA"},
        std::pair{"txtEntryWidth=19", "EA"}, std::pair{"txtUnitWeight=150", "EI"}}) {
    Mark();
    const RefreshOrder view(dialog);

    Do(change);

    EXPECT_EQ(view.order, order) << change;
  }
}

}  // namespace
}  // namespace orby::test
