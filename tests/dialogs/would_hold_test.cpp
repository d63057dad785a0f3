// The window "What Would Hold": the supports, the least changes, and what is applied.
#include "base/arithmetic.h"
#include "dialogs/study_texts.h"
#include "dialogs/would_hold_fixture.h"

namespace orby::test {
namespace {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

// ---- the support ---------------------------------------------------------------------------------------------------

TEST_F(WouldHold, OffersTheSupportsThatAreAnalysedAndInUse) {
  Open();
  Type("chkSecondSupEntries=1|chkSecEntries_0=1|chkSecEntries_1=0|chkSecEntries_2=0|chkSecEntries_3=1");

  Study([](const WouldHoldWindow& window) {
    EXPECT_THAT(ItemTexts(window.cmbSupport),
                ElementsAre("Primary roof bolts", "Entries: cable bolts", "Entries: standing supports"));
  });
}

TEST_F(WouldHold, BeginsWithTheFirstSupportThatIsShort) {
  Open();
  Type(
      "txtRowSpacingPrimary=4|chkSecondSupEntries=1|chkSecEntries_0=0|chkSecEntries_3=1|txtSupportRowSpacingSecEntry="
      "90");

  Study([](const WouldHoldWindow& window) {
    EXPECT_EQ(window.cmbSupport.Text(), "Entries: standing supports");
    EXPECT_THAT(window.lblPresent.Caption(), StartsWith("As it is: Short: Standing supports in entries "));
  });
}

TEST_F(WouldHold, BeginsWithTheSupportOfTheSelectedJudgement) {
  Open();
  Type("chkSecondSupEntries=1|chkSecEntries_0=0|chkSecEntries_3=1");
  const auto rows = Judgements();
  const auto standing = std::ranges::find_if(
      rows, [](const std::string& row) { return row.find("Standing supports in entries") != std::string::npos; });
  dialog.lstVerdicts.PointAt(static_cast<int>(standing - rows.begin()));

  Study([](const WouldHoldWindow& window) { EXPECT_EQ(window.cmbSupport.Text(), "Entries: standing supports"); });
}

TEST_F(WouldHold, SaysThatThereIsNothingToStudy) {
  Open();
  Type("chkPrimSupport=0");

  Study([](const WouldHoldWindow& window) {
    EXPECT_THAT(window.lblPresent.Caption(), StartsWith("No support is analysed and in use."));
    EXPECT_FALSE(window.cmdApply.Enabled());
    EXPECT_FALSE(window.Patterns.cmdSearch.Enabled());
    EXPECT_FALSE(window.Patterns.Length.From.Enabled());
    EXPECT_THAT(Column(window.grdChanges, 0), IsEmpty());
  });
}

TEST_F(WouldHold, ListsNoChangeForASupportThatHolds) {
  Open();
  Type("txtRowSpacingPrimary=4");

  Study([](const WouldHoldWindow& window) {
    EXPECT_THAT(window.lblPresent.Caption(), StartsWith("As it is: Holds: "));
    EXPECT_THAT(window.lblPresent.Caption(), HasSubstr("It holds, so nothing needs to change."));
    EXPECT_THAT(Column(window.grdChanges, 0), IsEmpty());
    EXPECT_FALSE(window.cmdApply.Enabled());
  });
}

// ---- least changes -------------------------------------------------------------------------------------------------

TEST_F(WouldHold, ListsTheLeastChangeOfEachLever) {
  Open();

  Study([](const WouldHoldWindow& window) {
    EXPECT_THAT(Row(window.grdChanges, 0), ElementsAre("Change", "From", "To", "What decides then", "Cost ($/ft)"));
    EXPECT_THAT(Column(window.grdChanges, 0), ElementsAre("Row spacing", "Bolts per row", "Bolt length", "Bolt"));
    EXPECT_THAT(Column(window.grdChanges, 1), ElementsAre("14 ft", "4", "5 ft", "#6 rebar - grade 60"));
  });
}

// The change holds in the dialog, and one step less does not.
TEST_F(WouldHold, NamesTheLeastRowSpacingThatHolds) {
  Open();
  std::string spacing;
  Study([&](const WouldHoldWindow& window) { spacing = window.grdChanges.Cell(1, 2); });
  ASSERT_THAT(spacing, testing::EndsWith(" ft"));
  const double value = TextValue(spacing);

  Type("txtRowSpacingPrimary=" + NumberText(value));
  EXPECT_THAT(Judgements(), Each(Not(StartsWith("Short: "))));

  Type("txtRowSpacingPrimary=" + NumberText(RoundHalfEven(value * 10 + 1) / 10));
  EXPECT_THAT(Judgements(), Contains(StartsWith("Short: Actual PSUP")));
}

TEST_F(WouldHold, SaysWhyALeverDoesNotHelp) {
  Open();
  Type("txtBoltLengthPrimary=1");

  Study([](WouldHoldWindow& window) {
    const int row = RowOf(window.grdChanges, "Row spacing");
    EXPECT_EQ(window.grdChanges.Cell(row, 2), "none helps");
    EXPECT_THAT(window.grdChanges.Cell(row, 3), StartsWith("Short: Bolt length 1.0 of the suggested "));
    Select(window, window.grdChanges, row);
    EXPECT_FALSE(window.cmdApply.Enabled());
  });
}

TEST_F(WouldHold, AppliesAChangeAsTypingWould) {
  Open();
  std::string wanted;
  Study([&](WouldHoldWindow& window) {
    Select(window, window.grdChanges, RowOf(window.grdChanges, "Row spacing"));
    wanted = NumberText(TextValue(window.grdChanges.Cell(1, 2)));
    EXPECT_TRUE(window.cmdApply.Enabled());
    window.cmdApply.Press();
    EXPECT_FALSE(window.IsOpen());
  });

  EXPECT_EQ(Text("txtRowSpacingPrimary"), wanted);
  EXPECT_THAT(Judgements(), Each(Not(StartsWith("Short: "))));
  EXPECT_EQ(dialog.FocusRequest(), &dialog.lstVerdicts);
  EXPECT_EQ(dialog.SSTab1.Tab(), 1);
  EXPECT_EQ(program.project.WorkParms.Primary.RowSpacing, 4) << "nothing is committed";

  const std::string psup = Text("txtActualPSUP");
  dialog.UndoEdit();
  EXPECT_EQ(Text("txtRowSpacingPrimary"), "14");
  Type("txtRowSpacingPrimary=" + wanted);
  EXPECT_EQ(Text("txtActualPSUP"), psup);
}

TEST_F(WouldHold, IsTakenBackInOneStepAlsoAfterTypingInTheSameField) {
  Open();
  Do("txtRowSpacingPrimary=13");
  dialog.EndAct();

  Apply("Row spacing");
  dialog.UndoEdit();
  EXPECT_EQ(Text("txtRowSpacingPrimary"), "13");

  dialog.UndoEdit();
  EXPECT_EQ(Text("txtRowSpacingPrimary"), "14");
}

TEST_F(WouldHold, ChoosesABoltOfTheTable) {
  Open();
  Type("txtRowSpacingPrimary=4|VSFlexGridPrimary=1|txtBoltsperRowPrimary=3|txtCMRR=45");
  std::string name;

  Study([&](WouldHoldWindow& window) {
    const int row = RowOf(window.grdChanges, "Bolt");
    name = window.grdChanges.Cell(row, 2);
    Select(window, window.grdChanges, row);
    window.cmdApply.Press();
  });

  ASSERT_NE(name, "");
  EXPECT_EQ(dialog.PrimaryBoltControls.Table.Cell(dialog.PrimaryBoltControls.Table.Row(), 1), name);
}

// ---- what is applied -----------------------------------------------------------------------------------------------

// The dialog computes these from the fields, so they are compared apart.
RoofSupport WithoutOutputs(RoofSupport design) {
  for (SecondarySupport* support : {&design.Entries, &design.Intersections}) {
    support->RockLoad = 0;
    for (SupportSystem* system : support->Systems()) {
      system->SupportCap = 0;
      system->StabFactor = 0;
    }
  }
  return design;
}

class AnyPattern : public WouldHold, public testing::WithParamInterface<UnitSystem> {};

TEST_P(AnyPattern, IsInTheFieldsOnceItIsApplied) {
  StartDesign(GetParam());
  Open("chkSecondSupEntries=1|chkSecondSupInter=1");
  Type(AllSystems);
  const Catalogs& catalogs = program.session.catalogs;
  const auto supports = StudiedSupports(dialog.TypedDesign());
  ASSERT_EQ(supports.size(), 9U);

  int number = 2;
  for (const StudiedSupport& support : supports) {
    for (std::size_t item = 0; item < std::max<std::size_t>(ItemCount(catalogs, GetParam(), support), 1); ++item) {
      Design wanted = dialog.TypedDesign();
      Pattern pattern = PatternOf(wanted, catalogs, support);
      pattern.Length = ToSingle(1.5 + number / 8.0);
      pattern.Number = ToSingle(number);
      pattern.Spacing = ToSingle(0.5 + number / 4.0);
      pattern.Item.reset();
      if (ItemCount(catalogs, GetParam(), support) > 0) pattern.Item = item;
      SetPattern(wanted, catalogs, support, pattern);
      number = number % 20 + 1;

      dialog.TakeEdits(wanted);

      EXPECT_EQ(WithoutOutputs(dialog.TypedDesign()), WithoutOutputs(wanted))
          << SupportText(support) << " item " << item;
      EXPECT_EQ(PatternOf(dialog.TypedDesign(), catalogs, support).Item, pattern.Item)
          << SupportText(support) << " item " << item;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(In, AnyPattern, testing::Values(English, Metric),
                         [](const auto& tested) { return tested.param == English ? "English" : "Metric"; });

TEST_F(WouldHold, LeavesFieldsThatNoProjectCanHoldAlone) {
  Open();
  Type("txtUnitWeight=1E40");

  Apply("Row spacing");

  EXPECT_EQ(Text("txtUnitWeight"), "1E40");
  EXPECT_NE(Text("txtRowSpacingPrimary"), "14");
}

// ---- cost ----------------------------------------------------------------------------------------------------------

TEST_F(WouldHold, SaysWhatIsNotPriced) {
  Open();

  Study([](const WouldHoldWindow& window) {
    EXPECT_THAT(window.lblPresent.Caption(), HasSubstr("Cost ($/ft): not priced."));
    EXPECT_THAT(Column(window.grdChanges, 4), Each("not priced"));
  });
}

TEST_F(WouldHold, CostsWhatThePricesAndTheCostInputsGive) {
  Open(
      "chkPrimSupport=0|chkSecondSupEntries=1|chkSecondSupInter=0|chkSecEntries_0=0|chkSecEntries_1=0|chkSecEntries_2="
      "0|"
      "chkSecEntries_3=1|txtNumberSupPerRowSecEntry=2|txtSupportRowSpacingSecEntry=8|optSupportTypeSecEntry=0|"
      "cmbSupportTypeSecEntry=Wood Post (6in)");
  SetPrice({PricedSupport::Standing, "Wood Post (6in)", 0, 60});

  Study([](const WouldHoldWindow& window) {
    EXPECT_THAT(window.lblPresent.Caption(), HasSubstr("Cost ($/ft): 15.00."));
  });
}

TEST_F(WouldHold, FollowsThePricesThatAreTyped) {
  Open(
      "chkPrimSupport=0|chkSecondSupEntries=1|chkSecondSupInter=0|chkSecEntries_0=0|chkSecEntries_1=0|chkSecEntries_2="
      "0|"
      "chkSecEntries_3=1|txtNumberSupPerRowSecEntry=2|txtSupportRowSpacingSecEntry=8|optSupportTypeSecEntry=0|"
      "cmbSupportTypeSecEntry=Wood Post (6in)");

  Study([](WouldHoldWindow& window) {
    Turn(window, study_page::Prices);
    window.grdOtherPrices.ClickCell(RowOf(window.grdOtherPrices, "Wood Post (6in)"), 1);
    window.txtOtherPrice.SetText("40");
    window.EndAct();

    EXPECT_THAT(window.lblPresent.Caption(), HasSubstr("Cost ($/ft): 10.00."));
  });
}

}  // namespace
}  // namespace orby::test
