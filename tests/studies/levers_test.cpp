// The levers: as the fields of the dialog take them, and their limits.
#include "studies/levers.h"

#include <limits>

#include "dialogs/parameters_fixture.h"
#include "files/shown_design.h"
#include "studies/lever_table.h"
#include "studies/study_designs.h"

namespace orby::test {
namespace {

using testing::ElementsAre;

// ---- as typed ------------------------------------------------------------------------------------------------------

struct TypedPattern {
  StudiedSupport Support;
  Pattern Values;
  std::string_view Edits;
};

class ALeverOfTheDialog : public AParametersDialog {
 protected:
  // Returns the support of the design as OK would commit it, with the outputs left out.
  static RoofSupport Inputs(const Design& design) {
    RoofSupport inputs = AsCommitted(design);
    for (SecondarySupport* support : {&inputs.Entries, &inputs.Intersections}) {
      support->RockLoad = 0;
      for (SupportSystem* system : support->Systems()) system->SupportCap = system->StabFactor = 0;
    }
    return inputs;
  }

  void ExpectSameAsTyped(UnitSystem units, const TypedPattern& typed) {
    StartDesign(units);
    dialog.Open();
    Do(AllSystems);
    Design before = program.project.WorkParms;
    dialog.ReadEdits(before);
    ASSERT_NE(PatternOf(before, program.session.catalogs, typed.Support), typed.Values);

    Design set = before;
    SetPattern(set, program.session.catalogs, typed.Support, typed.Values);
    Do(typed.Edits);
    Design read = before;
    dialog.ReadEdits(read);

    EXPECT_EQ(Inputs(set), Inputs(read)) << typed.Edits;
    EXPECT_EQ(PatternOf(read, program.session.catalogs, typed.Support), typed.Values) << typed.Edits;
  }
};

TEST_F(ALeverOfTheDialog, SetsInEnglishDesignsWhatTypingAndChoosingLeave) {
  const TypedPattern patterns[] = {
      {PrimaryBolts,
       {.Item = 7, .Length = 7, .Number = 6, .Spacing = 3.7F},
       "optBoltOptionsPrimary=0|VSFlexGridPrimary=8|txtBoltLengthPrimary=7|txtBoltsperRowPrimary=6|"
       "txtRowSpacingPrimary=3.7"},
      {EntryCables,
       {.Item = 1, .Length = 14, .Number = 5, .Spacing = 6.3F},
       "optCableCapModeSecEntry=0|cmbCableDiamSecEntry=0.7|txtCableLengthSecEntry=14|txtCableBoltsPerRowSecEntry=5|"
       "txtCableRowSpacingSecEntry=6.3"},
      {EntryTrusses, {.Spacing = 7.1F}, "txtTrussSpacingSecEntry=7.1"},
      {EntryBolts,
       {.Item = 3, .Length = 8, .Number = 2, .Spacing = 5.9F},
       "optBoltOptionsSecEntry=0|VSFlexGridEntry=4|txtBoltLengthSecEntry=8|txtBoltsperRowSecEntry=2|"
       "txtRowSpacingSecEntry=5.9"},
      {EntryStanding,
       {.Item = 8, .Number = 3, .Spacing = 6.6F},
       "optSupportTypeSecEntry=0|cmbSupportTypeSecEntry=Wood Post (8in)|txtNumberSupPerRowSecEntry=3|"
       "txtSupportRowSpacingSecEntry=6.6"},
      {CrossingCables,
       {.Item = 1, .Length = 15, .Number = 12},
       "optCableCapModeSecInter=1|optCableCapacitySecInter=0|cmbCableCapacitySecInter=35.7|txtCableLengthSecInter=15|"
       "txtCableNumberSecInter=12"},
      {CrossingTrusses, {.Number = 9}, "txtTrussNumberSecInter=9"},
      {CrossingBolts,
       {.Item = 9, .Length = 10, .Number = 33},
       "optBoltOptionsSecInter=0|VSFlexGridInter=10|txtBoltLengthSecInter=10|txtBoltNumberSecInter=33"},
      {CrossingStanding,
       {.Item = 15, .Number = 5},
       "optSupportTypeSecInter=0|cmbSupportTypeSecInter=Concrete Crib (24in x 24in)|txtSupportNumberSecInter=5"},
  };
  for (const TypedPattern& pattern : patterns) ExpectSameAsTyped(English, pattern);
}

TEST_F(ALeverOfTheDialog, SetsInMetricDesignsWhatTypingAndChoosingLeave) {
  const TypedPattern patterns[] = {
      {PrimaryBolts,
       {.Item = 8, .Length = 2.4F, .Number = 6, .Spacing = 1.15F},
       "optBoltOptionsPrimary=0|VSFlexGridPrimary=9|txtBoltLengthPrimary=2.4|txtBoltsperRowPrimary=6|"
       "txtRowSpacingPrimary=1.15"},
      {EntryCables,
       {.Item = 4, .Length = 4.5F, .Number = 5, .Spacing = 2.35F},
       "optCableCapModeSecEntry=1|optCableCapacitySecEntry=0|cmbCableCapacitySecEntry=880|txtCableLengthSecEntry=4.5|"
       "txtCableBoltsPerRowSecEntry=5|txtCableRowSpacingSecEntry=2.35"},
      {EntryStanding,
       {.Item = 0, .Number = 3, .Spacing = 2.05F},
       "optSupportTypeSecEntry=0|cmbSupportTypeSecEntry=CAN (24in)|"
       "cmbSupportTypeSecEntry=4-point Hardwood Crib (8in x 8in timbers, 5' height)|"
       "txtNumberSupPerRowSecEntry=3|txtSupportRowSpacingSecEntry=2.05"},
      {CrossingCables,
       {.Item = 5, .Length = 6, .Number = 12},
       "optCableCapacitySecInter=0|cmbCableCapacitySecInter=970|txtCableLengthSecInter=6|txtCableNumberSecInter=12"},
  };
  for (const TypedPattern& pattern : patterns) ExpectSameAsTyped(Metric, pattern);
}

TEST(PatternOfADesign, HasNoItemForAStandingSupportOfAnotherCapacityThanTheCatalogs) {
  Design design = FullDesign();
  design.Entries.Standing.TypeName = "Wood Post (8in)";
  design.Entries.Standing.Capacity = 66;
  EXPECT_EQ(PatternOf(design, Lists(), EntryStanding).Item, 8U);

  design.Entries.Standing.Capacity = 50;
  EXPECT_EQ(PatternOf(design, Lists(), EntryStanding).Item, std::nullopt);
}

TEST(PatternOfADesign, SetAgainChangesNothing) {
  AnyDesigns any(4);
  for (int i = 0; i < 500; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : AllSupports) {
      Design set = design;
      SetPattern(set, Lists(), support, PatternOf(design, Lists(), support));
      ASSERT_EQ(JudgedWhole(set, support), JudgedWhole(design, support));
      // A cable may then be chosen in the other way.
      if (support.What == PricedSupport::Cable) continue;
      ASSERT_EQ(set.Support(), design.Support());
    }
  }
}

// ---- steps ---------------------------------------------------------------------------------------------------------

TEST(LeverSteps, AreTenthsOfAFootAndFiveCentimetres) {
  EXPECT_THAT(BuiltValues(PrimaryBolts, Lever::Spacing, {3.65F, 4.1F}, English, {}),
              ElementsAre(3.7F, 3.8F, 3.9F, 4, 4.1F));
  EXPECT_THAT(BuiltValues(EntryTrusses, Lever::Spacing, {1.1F, 1.26F}, Metric, {}),
              ElementsAre(1.1F, 1.15F, 1.2F, 1.25F));
}

TEST(LeverSteps, AreWholePieces) {
  EXPECT_THAT(BuiltValues(CrossingTrusses, Lever::Number, {1.5F, 4}, Metric, {}), ElementsAre(2, 3, 4));
}

TEST(LeverSteps, OfBoltLengthsAreTheStockedOnesAndOfCablesWholeFeetAndHalfMetres) {
  const PriceList prices{.BoltLengths = {3, 5.5F, 9, 12}, .Prices = {}};

  EXPECT_THAT(BuiltValues(EntryBolts, Lever::Length, {4, 10}, English, prices), ElementsAre(5.5F, 9));
  EXPECT_THAT(BuiltValues(EntryCables, Lever::Length, {11.5F, 14}, English, prices), ElementsAre(12, 13, 14));
  EXPECT_THAT(BuiltValues(EntryCables, Lever::Length, {3.1F, 4.5F}, Metric, prices), ElementsAre(3.5F, 4, 4.5F));
}

TEST(LeverSteps, LeaveOutAStandingSupportWithoutAName) {
  Catalogs lists = Lists();
  lists.StandSupports.DefaultStandSupportType[2].clear();

  const auto items = BuiltItems(lists, English, EntryStanding);
  EXPECT_EQ(items.size(), 15U);
  EXPECT_EQ(std::ranges::count(items, 2U), 0);
}

// ---- limits --------------------------------------------------------------------------------------------------------

TEST(PatternLimits, AreFineAsTheSearchBeginsWithThem) {
  AnyDesigns any(3);
  for (int i = 0; i < 200; ++i) {
    const Design design = any.Next();
    for (const StudiedSupport& support : AllSupports) {
      EXPECT_EQ(FaultOf(UsualLimits(design, support), design.Units, AllPrices(design.Units), support), std::nullopt);
      EXPECT_EQ(FaultOf(WidestLimits(design.Units, support), design.Units, AllPrices(design.Units), support),
                std::nullopt);
    }
  }
}

TEST(PatternLimits, HaveAFaultOutsideTheWidestOnesOrTheWrongWayRound) {
  const PatternLimits usual = UsualLimits(FullDesign(), PrimaryBolts);
  const auto fault = [](const PatternLimits& limits) {
    return FaultOf(limits, English, AllPrices(English), PrimaryBolts);
  };
  PatternLimits limits = usual;
  limits.Spacing = {5, 4};
  EXPECT_EQ(fault(limits), Lever::Spacing);
  limits.Spacing = {0, 4};
  EXPECT_EQ(fault(limits), Lever::Spacing);
  limits.Spacing = {2, Unfit};
  EXPECT_EQ(fault(limits), Lever::Spacing);
  limits = usual;
  limits.Number = {3, std::numeric_limits<Single>::infinity()};
  EXPECT_EQ(fault(limits), Lever::Number);
  limits = usual;
  limits.Length = {1, 11};
  EXPECT_EQ(fault(limits), Lever::Length) << "longer bolts are refused by OK";
}

TEST(PatternLimits, HaveAFaultIfNothingBetweenThemCanBeBuilt) {
  PatternLimits limits = UsualLimits(FullDesign(), PrimaryBolts);
  EXPECT_EQ(FaultOf(limits, English, {}, PrimaryBolts), Lever::Length) << "no length is stocked";

  limits.Number = {3.2F, 3.8F};
  EXPECT_EQ(FaultOf(limits, English, AllPrices(English), PrimaryBolts), Lever::Number);
}

TEST(PatternLimits, BeginWithTheShortestCableThatHasAnchorageAndIsNoShorterThanThePresentOne) {
  Design design = FullDesign();
  design.Entries.RockLoadHeight = 8.5F;
  design.Entries.Cable.Length = 10;
  EXPECT_EQ(UsualLimits(design, EntryCables).Length, (LeverRange{13, 13}));

  design.Entries.Cable.Length = 16;
  EXPECT_EQ(UsualLimits(design, EntryCables).Length, (LeverRange{16, 16}));
  design.Entries.Cable.Length = Unfit;
  EXPECT_EQ(FaultOf(UsualLimits(design, EntryCables), English, {}, EntryCables), std::nullopt);
}

}  // namespace
}  // namespace orby::test
