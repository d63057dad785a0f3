// The judgements under the tabs of the parameters dialog.
#include "dialogs/parameters_fixture.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// A design that holds, but for what a test changes.
constexpr std::string_view Sound =
    "txtCMRR=60|txtDepthofCover=500|txtUnitWeight=160|txtActualSpanDiagonals=50|txtEntryWidth=18|txtStabilityFactor=1."
    "2|"
    "txtBoltLengthPrimary=5|txtBoltsperRowPrimary=4|txtRowSpacingPrimary=4|VSFlexGridPrimary=8|chkCMRRManual=1|"
    "chkSecondSupEntries=0|chkSecondSupInter=0";

struct Judgements : AParametersDialog {
  Judgements() {
    dialog.Open();
    Type(Sound);
  }

  // Ends each edit as the user's act that it is.
  void Type(std::string_view edits) {
    Do(edits);
    dialog.EndAct();
  }
  std::vector<std::string> Rows() const {
    std::vector<std::string> rows;
    for (const ComboItem& item : dialog.lstVerdicts.Items()) rows.push_back(item.text);
    return rows;
  }
  void Choose(std::string_view start) {
    const auto rows = Rows();
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].starts_with(start)) return dialog.lstVerdicts.ClickItem(static_cast<int>(i));
    }
    FAIL() << "no row starts with " << start;
  }
};

TEST_F(Judgements, HoldForASoundDesign) {
  EXPECT_THAT(Rows(), SizeIs(6));
  EXPECT_THAT(Rows(), Each(StartsWith("Holds: ")));
  EXPECT_EQ(dialog.lblVerdicts.Caption(), "Judgements: 6 holding");
}

TEST_F(Judgements, FollowEachEditAndPutTheWorstFirst) {
  Type("txtBoltLengthPrimary=2|txtRowSpacingPrimary=8");

  EXPECT_THAT(Rows()[0], StartsWith("Short: "));
  EXPECT_THAT(Rows(), Contains(StartsWith("Short: Bolt length 2.0 of the suggested ")));
  EXPECT_THAT(Rows(), Contains(StartsWith("Short: Actual PSUP ")));
  EXPECT_EQ(dialog.lstVerdicts.Items()[0].mark, "short");
  EXPECT_EQ(dialog.lblVerdicts.Caption(), "Judgements: 2 short, 4 holding");

  Type("txtBoltLengthPrimary=5|txtRowSpacingPrimary=4");

  EXPECT_EQ(dialog.lblVerdicts.Caption(), "Judgements: 6 holding");
}

TEST_F(Judgements, AppearForEachAnalysisAndSystemInUse) {
  Type("chkSecondSupEntries=1|chkSecEntries_0=0|chkSecEntries_1=0|chkSecEntries_2=0|chkSecEntries_3=1");

  EXPECT_THAT(Rows(), SizeIs(7));
  EXPECT_THAT(Rows(), Contains(HasSubstr("Standing supports in entries")));
}

TEST_F(Judgements, NameWhatOkWouldTakeInAnotherWay) {
  Type("txtCMRR=60.4");

  EXPECT_THAT(Rows(), Contains(HasSubstr("(after OK: ")));

  Type("txtCMRR=60");

  EXPECT_THAT(Rows(), Each(Not(HasSubstr("after OK"))));
}

TEST_F(Judgements, SayWhatCannotBeComputed) {
  Type("txtEntryWidth=");

  EXPECT_THAT(Rows(),
              Contains("Cannot be computed: Sum of diagonals - roof rating, depth, span or entry width are missing"));
}

TEST_F(Judgements, SayThatNothingIsAnalysedWhenTheDialogOpens) {
  for (Integer* analysed : {&program.project.WorkParms.Primary.Analysed, &program.project.WorkParms.Entries.Analysed,
                            &program.project.WorkParms.Intersections.Analysed}) {
    *analysed = 0;
  }
  ParametersDialog other(program);
  other.Open();

  EXPECT_EQ(other.lblVerdicts.Caption(), "Judgements: Nothing is analysed");
}

TEST_F(Judgements, LeadToTheFieldThatDecides) {
  Type(
      "txtBoltLengthPrimary=2|txtRowSpacingPrimary=8|chkSecondSupInter=1|chkSecInter_0=1|chkSecInter_1=1|chkSecInter_2="
      "1|chkSecInter_3=1");

  Choose("Short: Actual PSUP");
  EXPECT_EQ(dialog.SSTab1.Tab(), 1);
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtRowSpacingPrimary);

  for (const ComboItem& item : dialog.lstVerdicts.Items()) {
    if (item.text.find("Standing supports in intersections") == std::string::npos) continue;
    Choose(item.text);
    EXPECT_EQ(dialog.SSTab1.Tab(), 3);
    EXPECT_EQ(dialog.SSTab3.Tab(), 3);
    EXPECT_EQ(dialog.FocusRequest(), &dialog.txtSupportNumberSecInter);
    return;
  }
  FAIL() << "no judgement on the standing supports";
}

TEST_F(Judgements, AllLeadSomewhere) {
  Type(AllSystems);
  Type("chkSecondSupEntries=1|chkSecondSupInter=1");
  ASSERT_THAT(Rows(), SizeIs(20));

  for (int row = 0; row < 20; ++row) {
    dialog.RequestFocus(dialog.Command1);
    dialog.lstVerdicts.ClickItem(row);
    EXPECT_NE(dialog.FocusRequest(), &dialog.Command1) << Rows()[static_cast<std::size_t>(row)];
  }
}

}  // namespace
}  // namespace orby::test
