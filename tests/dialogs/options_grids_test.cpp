#include "dialogs/options_fixture.h"

namespace orby::test {
namespace {

using testing::ElementsAre;
using testing::Pair;

struct OptionsGrids : OptionsFixture {
  const StandingSupports& Stands() const { return program.session.catalogs.StandSupports; }
};

// ---- cables --------------------------------------------------------------------------------------------------------

TEST_F(OptionsGrids, ShowTheCables) {
  dialog.Open();

  EXPECT_THAT(Row(dialog.VSFlexGridEng, 0), ElementsAre("No", "(in)", "(tons)"));
  EXPECT_THAT(Row(dialog.VSFlexGridEng, 1), ElementsAre("1", "0.6", "26.4"));
  EXPECT_THAT(Row(dialog.VSFlexGridEng, 2), ElementsAre("2", "0.7", "35.7"));
  EXPECT_EQ(dialog.VSFlexGridEng.Rows(), 3);
  EXPECT_THAT(Row(dialog.VSFlexGridMet, 0), ElementsAre("No", "(mm)", "(kN)"));
  EXPECT_THAT(Row(dialog.VSFlexGridMet, 1), ElementsAre("1", "15.2", "235"));
  EXPECT_THAT(Row(dialog.VSFlexGridMet, 6), ElementsAre("6", "28.6", "970"));
  EXPECT_EQ(dialog.VSFlexGridMet.Rows(), 7);
}

TEST_F(OptionsGrids, StoreTheCellsOnOKIncludingTheEditedOne) {
  dialog.Open();
  Edit(dialog.VSFlexGridEng, 1, 1, "0.62");
  Edit(dialog.VSFlexGridEng, 2, 2, "36");
  Edit(dialog.VSFlexGridMet, 6, 2, "980");

  EXPECT_EQ(program.session.catalogs.DefaultCableDiamArrayENG[0], 0.6F);
  Accept();

  EXPECT_THAT(Values(program.session.catalogs.DefaultCableDiamArrayENG), ElementsAre(0.62F, 0.7F));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayENG), ElementsAre(26.4F, 36));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayMET), ElementsAre(235, 590, 620, 635, 880, 980));
  EXPECT_EQ(Written("ORBYBoltParams", "DefaultCableCapArrayENG1"), "36");
}

TEST_F(OptionsGrids, StoreTheCapacityAsTheStrengthOfACableOnOK) {
  dialog.Open();
  Edit(dialog.VSFlexGridEng, 2, 2, "36");

  Accept();

  EXPECT_THAT(Values(program.session.catalogs.DefaultCableUTSArrayENG), ElementsAre(26.4F, 36));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableUTSArrayMET), ElementsAre(235, 590, 620, 635, 880, 970));
}

TEST_F(OptionsGrids, AddACableAtOnce) {
  dialog.Open();

  dialog.cmdAddCable[EnglishPage].Press();

  EXPECT_THAT(Row(dialog.VSFlexGridEng, 3), ElementsAre("3", "", ""));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayENG), ElementsAre(26.4F, 35.7F, 0));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableUTSArrayENG), ElementsAre(26.4F, 35.7F, 0));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableDiamArrayENG), ElementsAre(0.6F, 0.7F, 0));
}

TEST_F(OptionsGrids, MoveTheFocusToTheAddedRow) {
  dialog.Open();

  dialog.cmdAddCable[MetricPage].Press();

  EXPECT_THAT(std::pair(dialog.VSFlexGridMet.Row(), dialog.VSFlexGridMet.Column()), Pair(7, 1));
  EXPECT_EQ(dialog.FocusRequest(), &dialog.txtCableMet);
  EXPECT_EQ(dialog.txtCableMet.Text(), "");
}

TEST_F(OptionsGrids, StoreAnAddedCable) {
  dialog.Open();
  dialog.cmdAddCable[EnglishPage].Press();
  Edit(dialog.VSFlexGridEng, 3, 1, "0.9");
  Edit(dialog.VSFlexGridEng, 3, 2, "58.6");

  Accept();

  EXPECT_THAT(Values(program.session.catalogs.DefaultCableDiamArrayENG), ElementsAre(0.6F, 0.7F, 0.9F));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayENG), ElementsAre(26.4F, 35.7F, 58.6F));
  EXPECT_EQ(Written("ORBYBoltParams", "DefaultCableIndexENG"), "2");
}

TEST_F(OptionsGrids, GrowPastTenRows) {
  dialog.Open();

  for (int i = 0; i < 12; ++i) dialog.cmdAddCable[EnglishPage].Press();

  EXPECT_EQ(dialog.VSFlexGridEng.Rows(), 15);
  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG.HighestIndex, 13);
  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG.Values.size(), 14U);
}

TEST_F(OptionsGrids, DeleteTheSelectedCableAndRenumberTheOthers) {
  dialog.Open();
  dialog.VSFlexGridMet.ClickCell(2, 1);

  dialog.cmdDeleteCable[MetricPage].Press();

  EXPECT_EQ(dialog.VSFlexGridMet.Rows(), 6);
  EXPECT_THAT(Row(dialog.VSFlexGridMet, 2), ElementsAre("2", "31", "620"));
  EXPECT_THAT(Row(dialog.VSFlexGridMet, 5), ElementsAre("5", "28.6", "970"));
}

TEST_F(OptionsGrids, ShortenTheListAtOnceButMoveItsValuesOnOK) {
  dialog.Open();
  dialog.VSFlexGridEng.ClickCell(1, 1);

  dialog.cmdDeleteCable[EnglishPage].Press();

  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayENG), ElementsAre(26.4F));
  Accept();
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayENG), ElementsAre(35.7F));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableDiamArrayENG), ElementsAre(0.7F));
}

TEST_F(OptionsGrids, DiscardTheTextTypedIntoADeletedRow) {
  dialog.Open();
  Edit(dialog.VSFlexGridEng, 1, 2, "99");

  dialog.cmdDeleteCable[EnglishPage].Press();

  EXPECT_THAT(Row(dialog.VSFlexGridEng, 1), ElementsAre("1", "0.7", "35.7"));
  EXPECT_EQ(dialog.txtCableEng.Text(), "35.7");
}

TEST_F(OptionsGrids, CanBeEmptiedAndFilledAgain) {
  dialog.Open();
  for (int i = 0; i < 4; ++i) dialog.cmdDeleteCable[EnglishPage].Press();
  EXPECT_EQ(dialog.VSFlexGridEng.Rows(), 1);
  EXPECT_EQ(program.session.catalogs.DefaultCableCapArrayENG.HighestIndex, -1);

  dialog.cmdAddCable[EnglishPage].Press();
  Edit(dialog.VSFlexGridEng, 1, 2, "30");
  Accept();

  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayENG), ElementsAre(30));
}

TEST_F(OptionsGrids, ResetTheCablesAtOnce) {
  dialog.Open();
  dialog.cmdDeleteCable[MetricPage].Press();
  Edit(dialog.VSFlexGridMet, 1, 2, "1");

  dialog.cmdSetDefaultCable[MetricPage].Press();
  dialog.cmdCancel.Press();

  EXPECT_THAT(Row(dialog.VSFlexGridMet, 1), ElementsAre("1", "15.2", "235"));
  EXPECT_THAT(Values(program.session.catalogs.DefaultCableCapArrayMET), ElementsAre(235, 590, 620, 635, 880, 970));
}

// ---- standing supports ---------------------------------------------------------------------------------------------

TEST_F(OptionsGrids, ShowTheStandingSupports) {
  dialog.Open();

  EXPECT_THAT(Row(dialog.VSFlexGridStand, 0), ElementsAre("No", "Support Type", "Capacity (tons)"));
  EXPECT_THAT(Row(dialog.VSFlexGridStand, 6), ElementsAre("6", "Link-N-Lock (24in)", "92"));
  EXPECT_THAT(Row(dialog.VSFlexGridStand, 16), ElementsAre("16", "Concrete Crib (24in x 24in)", "525"));
  EXPECT_EQ(dialog.VSFlexGridStand.Rows(), 17);
}

TEST_F(OptionsGrids, ShowTheStandingSupportsOfAMetricProjectInKilonewtons) {
  program.project.WorkParms.Units = Metric;

  dialog.Open();

  EXPECT_THAT(Row(dialog.VSFlexGridStand, 0), ElementsAre("No", "Support Type", "Capacity (kN)"));
  EXPECT_THAT(Row(dialog.VSFlexGridStand, 16), ElementsAre("16", "Concrete Crib (24in x 24in)", "4670"));
}

TEST_F(OptionsGrids, StoreANewStandingSupportInBothUnitSystems) {
  dialog.Open();
  dialog.cmdAddStandSupport.Press();
  Edit(dialog.VSFlexGridStand, 17, 1, "Steel Set");
  Edit(dialog.VSFlexGridStand, 17, 2, "90");

  Accept();

  EXPECT_EQ(Stands().HighestIndex, 16);
  EXPECT_EQ(Stands().DefaultStandSupportType[16], "Steel Set");
  EXPECT_THAT(Stands().DefaultStandSupportCap[16], ElementsAre(90, 800));
  EXPECT_EQ(Written("ORBYStandSupportParams", "DefaultStandSupportType16"), "Steel Set");
  EXPECT_EQ(Written("ORBYStandSupportParams", "DefaultStandSupportCap16_1"), "800");
}

TEST_F(OptionsGrids, StoreAMetricStandingSupportInBothUnitSystems) {
  program.project.WorkParms.Units = Metric;
  dialog.Open();
  Edit(dialog.VSFlexGridStand, 9, 2, "889.6443");

  Accept();

  EXPECT_THAT(Stands().DefaultStandSupportCap[8], ElementsAre(100, 889.6443F));
  EXPECT_THAT(Stands().DefaultStandSupportCap[9], ElementsAre(55, 489));
}

TEST_F(OptionsGrids, KeepBothCapacitiesOfTheRowsAfterADeletedOne) {
  program.project.WorkParms.Units = Metric;
  dialog.Open();
  dialog.VSFlexGridStand.ClickCell(1, 2);

  dialog.cmdDeleteRow.Press();
  Accept();

  EXPECT_EQ(Stands().HighestIndex, 14);
  EXPECT_EQ(Stands().DefaultStandSupportType[0], "4-point Hardwood Crib (8in x 8in timbers, 7' height)");
  EXPECT_THAT(Stands().DefaultStandSupportCap[0], ElementsAre(74, 658));
  EXPECT_THAT(Stands().DefaultStandSupportCap[14], ElementsAre(525, 4670));
}

TEST_F(OptionsGrids, ResetTheStandingSupportsAtOnce) {
  dialog.Open();
  dialog.VSFlexGridStand.ClickCell(1, 1);
  dialog.cmdDeleteRow.Press();

  dialog.cmdSetDefaultStandSupport.Press();
  dialog.cmdCancel.Press();

  EXPECT_EQ(dialog.VSFlexGridStand.Rows(), 17);
  EXPECT_EQ(Stands().HighestIndex, 15);
  EXPECT_EQ(Stands().DefaultStandSupportType[0], "4-point Hardwood Crib (8in x 8in timbers, 5' height)");
  EXPECT_THAT(Stands().DefaultStandSupportCap[15], ElementsAre(525, 4670));
}

TEST_F(OptionsGrids, AcceptAnyTextAsANameAndNumbersAsACapacity) {
  dialog.Open();

  dialog.VSFlexGridStand.ClickCell(3, 1);
  EXPECT_EQ(dialog.txtStand.KeyPress('x'), 'x');

  dialog.VSFlexGridStand.ClickCell(3, 2);
  EXPECT_EQ(dialog.txtStand.KeyPress('x'), 0);
}

}  // namespace
}  // namespace orby::test
