#include <tuple>

#include "parameters_fixture.h"

namespace orby::test {
namespace {

// An open dialog with every support system in use.
struct ParameterEvents : AParametersDialog {
  ParameterEvents() {
    dialog.Open();
    Do(AllSystems);
  }

  std::vector<BoltControls*> Bolts() {
    return {&dialog.PrimaryBoltControls, &dialog.EntryBoltControls, &dialog.InterBoltControls};
  }
  std::vector<CableControls*> Cables() { return {&dialog.EntryCableControls, &dialog.InterCableControls}; }
};

// ---- the rating -----------------------------------------------------------------------------------------------------

TEST_F(ParameterEvents, ARatingComesFromTheEstimatorUntilItIsSetByHand) {
  EXPECT_FALSE(dialog.txtCMRR.Enabled());
  EXPECT_TRUE(dialog.cmdCMRR.Enabled());

  Do("chkCMRRManual=1");

  EXPECT_TRUE(dialog.txtCMRR.Enabled());
  EXPECT_FALSE(dialog.cmdCMRR.Enabled());

  Do("chkCMRRManual=0");

  EXPECT_FALSE(dialog.txtCMRR.Enabled());
  EXPECT_TRUE(dialog.cmdCMRR.Enabled());
}

TEST_F(ParameterEvents, ARatingSetByHandCanBeTyped) {
  program.project.WorkParms.Place.CMRRManual = 1;
  ParametersDialog other(program);

  other.Open();

  EXPECT_TRUE(other.txtCMRR.Enabled());
  EXPECT_FALSE(other.cmdCMRR.Enabled());
}

// ---- analyses and systems -------------------------------------------------------------------------------------------

TEST_F(ParameterEvents, AnAnalysisOpensAndClosesItsTab) {
  const std::array<CheckBox*, 3> boxes{&dialog.chkPrimSupport, &dialog.chkSecondSupEntries, &dialog.chkSecondSupInter};
  int tab = 1;
  for (CheckBox* box : boxes) {
    box->SetValue(0);
    for (int other = 1; other < 4; ++other) EXPECT_EQ(dialog.SSTab1.TabEnabled(other), other != tab) << box->Name();
    box->SetValue(1);
    EXPECT_TRUE(dialog.SSTab1.TabEnabled(tab)) << box->Name();
    ++tab;
  }
  EXPECT_TRUE(dialog.SSTab1.TabEnabled(0));
}

TEST_F(ParameterEvents, ASystemOpensAndClosesItsInnerTab) {
  for (const auto& [boxes, tabs, others] : {std::tuple{&dialog.chkSecEntries, &dialog.SSTab2, &dialog.SSTab3},
                                            std::tuple{&dialog.chkSecInter, &dialog.SSTab3, &dialog.SSTab2}}) {
    for (int system = 0; system < 4; ++system) {
      CheckBox& box = (*boxes)[static_cast<std::size_t>(system)];
      box.SetValue(0);
      for (int tab = 0; tab < 4; ++tab) {
        EXPECT_EQ(tabs->TabEnabled(tab), tab != system) << box.Name();
        EXPECT_TRUE(others->TabEnabled(tab)) << box.Name();
      }
      box.SetValue(1);
      EXPECT_TRUE(tabs->TabEnabled(system)) << box.Name();
    }
  }
}

// ---- bolts ----------------------------------------------------------------------------------------------------------

TEST_F(ParameterEvents, ABoltTableShowsOnItsOwnTabAndTheManualSelectionWhenChosen) {
  for (BoltControls* bolt : Bolts()) {
    for (int tab = 0; tab < 4; ++tab) {
      bolt->Tabs.SetTab(tab);
      for (const int source : {1, 0}) {
        bolt->Options.SetValue(source, true);

        EXPECT_EQ(bolt->TableFrame.Visible(), source == 0 && tab == bolt->Tab) << bolt->Options.Name() << ' ' << tab;
        EXPECT_EQ(bolt->ManualFrame.Visible(), source == 1) << bolt->Options.Name() << ' ' << tab;
        EXPECT_EQ(bolt->Tabs.Tab(), tab) << bolt->Options.Name();
      }
    }
  }
}

TEST_F(ParameterEvents, ABoltTableIsVisibleOnlyOnItsTab) {
  for (BoltControls* bolt : Bolts()) {
    EXPECT_FALSE(bolt->TableFrame.Visible()) << bolt->Options.Name();
    bolt->Tabs.ClickTab(bolt->Tab);
    EXPECT_TRUE(bolt->TableFrame.Visible()) << bolt->Options.Name();
    bolt->Tabs.ClickTab(3);
    EXPECT_FALSE(bolt->TableFrame.Visible()) << bolt->Options.Name();

    bolt->Options.SetValue(1, true);
    bolt->Tabs.ClickTab(bolt->Tab);
    EXPECT_FALSE(bolt->TableFrame.Visible()) << bolt->Options.Name();
    EXPECT_TRUE(bolt->ManualFrame.Visible()) << bolt->Options.Name();
  }
}

TEST_F(ParameterEvents, ABoltsDiameterAndGradeAreChosenFromAListOrTyped) {
  for (BoltControls* bolt : Bolts()) {
    for (const int mode : {1, 0}) {
      bolt->DiameterMode.SetValue(mode, true);
      EXPECT_EQ(bolt->DiameterStd.Visible(), mode == 0) << bolt->DiameterMode.Name();
      EXPECT_EQ(bolt->DiameterManual.Visible(), mode == 1) << bolt->DiameterMode.Name();
      EXPECT_TRUE(bolt->GradeStd.Visible()) << bolt->DiameterMode.Name();
      EXPECT_FALSE(bolt->GradeManual.Visible()) << bolt->DiameterMode.Name();
    }
    bolt->DiameterMode.SetValue(1, true);
    for (const int mode : {1, 0}) {
      bolt->GradeMode.SetValue(mode, true);
      EXPECT_EQ(bolt->GradeStd.Visible(), mode == 0) << bolt->GradeMode.Name();
      EXPECT_EQ(bolt->GradeManual.Visible(), mode == 1) << bolt->GradeMode.Name();
      EXPECT_TRUE(bolt->DiameterManual.Visible()) << bolt->GradeMode.Name();
    }
  }
}

TEST_F(ParameterEvents, AStoredManualBoltOpensWithVisibleFields) {
  program.project.WorkParms.Intersections.Bolt.Options = BoltSource::Manual;
  program.project.WorkParms.Intersections.Bolt.DiameterMode = ValueSource::Typed;
  ParametersDialog other(program);

  other.Open();

  EXPECT_TRUE(other.InterBoltControls.ManualFrame.Visible());
  EXPECT_FALSE(other.InterBoltControls.TableFrame.Visible());
  EXPECT_TRUE(other.InterBoltControls.DiameterManual.Visible());
  EXPECT_FALSE(other.InterBoltControls.DiameterStd.Visible());
  EXPECT_TRUE(other.InterBoltControls.GradeStd.Visible());
  EXPECT_FALSE(other.InterBoltControls.GradeManual.Visible());
}

// ---- cables ---------------------------------------------------------------------------------------------------------

void ExpectCableByDiameter(CableControls& cable) {
  EXPECT_TRUE(cable.Diam.Enabled()) << cable.CapMode.Name();
  EXPECT_FALSE(cable.SpecificationFrame.Enabled()) << cable.CapMode.Name();
  EXPECT_FALSE(cable.Capacity.MemberEnabled(0)) << cable.CapMode.Name();
  EXPECT_FALSE(cable.Capacity.MemberEnabled(1)) << cable.CapMode.Name();
  EXPECT_FALSE(cable.CapacityStd.Visible()) << cable.CapMode.Name();
  EXPECT_FALSE(cable.CapacityManual.Visible()) << cable.CapMode.Name();
}

void ExpectCableByCapacity(CableControls& cable, bool typed) {
  EXPECT_FALSE(cable.Diam.Enabled()) << cable.CapMode.Name();
  EXPECT_TRUE(cable.SpecificationFrame.Enabled()) << cable.CapMode.Name();
  EXPECT_TRUE(cable.Capacity.MemberEnabled(0)) << cable.CapMode.Name();
  EXPECT_TRUE(cable.Capacity.MemberEnabled(1)) << cable.CapMode.Name();
  EXPECT_EQ(cable.CapacityStd.Visible(), !typed) << cable.CapMode.Name();
  EXPECT_EQ(cable.CapacityManual.Visible(), typed) << cable.CapMode.Name();
}

TEST_F(ParameterEvents, ACableIsSpecifiedByDiameterOrByCapacity) {
  for (CableControls* cable : Cables()) {
    ExpectCableByDiameter(*cable);
    cable->CapMode.SetValue(1, true);
    ExpectCableByCapacity(*cable, false);
    cable->Capacity.SetValue(1, true);
    ExpectCableByCapacity(*cable, true);
    cable->CapMode.SetValue(0, true);
    ExpectCableByDiameter(*cable);
    cable->Capacity.SetValue(0, true);
    ExpectCableByDiameter(*cable);
    cable->CapMode.SetValue(1, true);
    ExpectCableByCapacity(*cable, false);
  }
}

TEST_F(ParameterEvents, AMetricCableOpensByItsCapacity) {
  StartDesign(Metric);
  program.project.WorkParms.Intersections.Cable.Capacity = ValueSource::Typed;
  ParametersDialog other(program);

  other.Open();

  ExpectCableByCapacity(other.EntryCableControls, false);
  ExpectCableByCapacity(other.InterCableControls, true);
}

// ---- standing supports ----------------------------------------------------------------------------------------------

TEST_F(ParameterEvents, AStandingSupportIsChosenOrTyped) {
  for (StandingControls* standing : {&dialog.EntryStandingControls, &dialog.InterStandingControls}) {
    for (const int mode : {1, 0}) {
      standing->TypeMode.SetValue(mode, true);

      EXPECT_EQ(standing->TypeStd.Enabled(), mode == 0) << standing->TypeMode.Name();
      EXPECT_EQ(standing->TypeManual.Enabled(), mode == 1) << standing->TypeMode.Name();
      EXPECT_EQ(standing->Capacity.Enabled(), mode == 1) << standing->TypeMode.Name();
    }
  }
}

TEST_F(ParameterEvents, TypingASupportClearsTheListsTextButKeepsItsSelection) {
  for (StandingControls* standing : {&dialog.EntryStandingControls, &dialog.InterStandingControls}) {
    standing->TypeStd.SetListIndex(8);

    standing->TypeMode.SetValue(1, true);

    EXPECT_EQ(standing->TypeStd.Text(), "") << standing->TypeMode.Name();
    EXPECT_EQ(standing->TypeStd.ListIndex(), 8) << standing->TypeMode.Name();
  }
}

TEST_F(ParameterEvents, ChoosingFromTheListAgainRestoresTheNameOnlyInEntries) {
  for (StandingControls* standing : {&dialog.EntryStandingControls, &dialog.InterStandingControls}) {
    standing->TypeStd.SetListIndex(8);
    standing->TypeMode.SetValue(1, true);
    standing->TypeMode.SetValue(0, true);
  }

  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Text(), "Wood Post (8in)");
  EXPECT_EQ(dialog.InterStandingControls.TypeStd.Text(), "");
  EXPECT_EQ(dialog.InterStandingControls.TypeStd.ListIndex(), 8);
}

TEST_F(ParameterEvents, ChoosingFromTheListAgainRestoresNothingWithoutASelection) {
  Do("cmbSupportTypeSecEntry=Stone pack");
  Do("optSupportTypeSecEntry=1");

  Do("optSupportTypeSecEntry=0");

  EXPECT_EQ(dialog.EntryStandingControls.TypeStd.Text(), "");
  EXPECT_FALSE(dialog.EntryStandingControls.TypeStd.HasSelection());
}

TEST_F(ParameterEvents, AChosenSupportSetsItsCapacity) {
  for (StandingControls* standing : {&dialog.EntryStandingControls, &dialog.InterStandingControls}) {
    standing->TypeStd.SetListIndex(6);
    EXPECT_EQ(standing->Capacity.Text(), "132") << standing->TypeStd.Name();
    standing->TypeStd.SetText("Wood Post (6in)");
    EXPECT_EQ(standing->Capacity.Text(), "22") << standing->TypeStd.Name();
    standing->TypeStd.SetText("Stone pack");
    EXPECT_EQ(standing->Capacity.Text(), "22") << standing->TypeStd.Name();
  }
}

TEST_F(ParameterEvents, ClearingTheNameOfAChosenSupportSetsItsCapacityAgain) {
  for (StandingControls* standing : {&dialog.EntryStandingControls, &dialog.InterStandingControls}) {
    ASSERT_EQ(standing->Capacity.Text(), "50") << standing->TypeStd.Name();

    standing->TypeMode.SetValue(1, true);

    EXPECT_EQ(standing->Capacity.Text(), "90") << standing->TypeStd.Name();
  }
}

TEST_F(ParameterEvents, AnEmptySupportListKeepsTheNameAndTheCapacity) {
  program.session.catalogs.StandSupports.HighestIndex = -1;
  ParametersDialog other(program);
  other.Open();

  Edit(other, "optSupportTypeSecEntry=1|optSupportTypeSecInter=1");

  EXPECT_THAT(ItemTexts(other.InterStandingControls.TypeStd), testing::IsEmpty());
  EXPECT_EQ(other.EntryStandingControls.Capacity.Text(), "50");
  EXPECT_EQ(other.InterStandingControls.Capacity.Text(), "50");
}

// ---- suspending -----------------------------------------------------------------------------------------------------

TEST_F(ParameterEvents, SuspendedEventsStillEnableShowAndFill) {
  const std::vector<std::string> before = TextsOf(dialog.EntryOutputs.StabFactor);
  dialog.HoldEvents = true;

  Do("chkCMRRManual=1|chkPrimSupport=0|chkSecEntries_2=0|optBoltOptionsPrimary=1|optBoltDiameterSecEntry=1");
  Do("optCableCapModeSecInter=1|optSupportTypeSecInter=1|cmbSupportTypeSecEntry=Wood Post (8in)");

  EXPECT_TRUE(dialog.txtCMRR.Enabled());
  EXPECT_FALSE(dialog.SSTab1.TabEnabled(1));
  EXPECT_FALSE(dialog.SSTab2.TabEnabled(2));
  EXPECT_TRUE(dialog.PrimaryBoltControls.ManualFrame.Visible());
  EXPECT_TRUE(dialog.EntryBoltControls.DiameterManual.Visible());
  EXPECT_FALSE(dialog.InterCableControls.Diam.Enabled());
  EXPECT_TRUE(dialog.InterStandingControls.TypeManual.Enabled());
  EXPECT_EQ(dialog.EntryStandingControls.Capacity.Text(), "66");
  EXPECT_EQ(TextsOf(dialog.EntryOutputs.StabFactor), before);
}

TEST_F(ParameterEvents, TheTabsOfUnusedAnalysesCannotBeOpened) {
  Do("chkSecondSupEntries=0");

  dialog.SSTab1.ClickTab(2);

  EXPECT_EQ(dialog.SSTab1.Tab(), 0);
}

}  // namespace
}  // namespace orby::test
